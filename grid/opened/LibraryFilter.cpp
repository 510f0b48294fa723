#include "grid/opened/LibraryFilter.h"

#include "grid/opened/OpenDataset.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void LibraryFilter::join(OpenDataset& dataset)
{
    m_datasets.push_back(&dataset);
    if (m_condition) {
        dataset.followLibraryFilter(m_condition);
    }
}

void LibraryFilter::leave(OpenDataset& dataset)
{
    std::erase(m_datasets, &dataset);
}

void LibraryFilter::set(const ParsedCondition& condition, OpenDataset* origin)
{
    if (m_condition) {
        throw ParseError(oneLevelOnly);
    }
    replace(condition, origin);
}

void LibraryFilter::replace(const ParsedCondition& condition, OpenDataset* origin)
{
    if (origin != nullptr) {
        origin->checkLibraryFilter(condition);
    }
    m_condition = condition;
    for (OpenDataset* dataset : m_datasets) {
        dataset->followLibraryFilter(m_condition);
    }
}

void LibraryFilter::clear()
{
    m_condition.reset();
    for (OpenDataset* dataset : m_datasets) {
        dataset->followLibraryFilter(m_condition);
    }
}

QString LibraryFilter::text() const
{
    return m_condition ? u"where "_s + m_condition->text : QString();
}

CommandOutcome LibraryFilter::run(const QString& commandText, const CommandReading& reading)
{
    return failureOf(commandText, [&] {
        const Command command = CommandParser::parse(commandText, reading.dialect, reading.bare);
        carryOut(command.action, reading.inForce);
        if (command.trailingText) {
            throw ParseError(ParseError::trailingText, *command.trailingText);
        }
    });
}

void LibraryFilter::carryOut(const Command::Action& action, CommandReading::InForce inForce)
{
    const auto* filter = std::get_if<Command::SetLibraryFilter>(&action);
    if (filter != nullptr && inForce == CommandReading::InForce::IsReplaced) {
        replace(filter->condition, nullptr);
    } else if (filter != nullptr) {
        set(filter->condition, nullptr);
    } else if (std::holds_alternative<Command::ClearLibraryFilter>(action)) {
        clear();
    } else {
        throw ParseError(ParseError::nothingOpen);
    }
}
