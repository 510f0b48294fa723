#include "grid/opened/LibraryFilter.h"

#include "grid/filter/CommandParser.h"
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
        throw ParseError("Library Filter supports one level only. "
                         "Please clear library filter first.");
    }
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

CommandOutcome LibraryFilter::run(const QString& commandText)
{
    return failureOf(commandText, [&] {
        const Command command = CommandParser::parse(commandText, Dialect::Command);
        carryOut(command.action);
        if (command.hasTrailingText) {
            throw ParseError(ParseError::trailingText);
        }
    });
}

void LibraryFilter::carryOut(const Command::Action& action)
{
    if (const auto* filter = std::get_if<Command::SetLibraryFilter>(&action)) {
        set(filter->condition, nullptr);
    } else if (std::holds_alternative<Command::ClearLibraryFilter>(action)) {
        clear();
    } else {
        throw ParseError("No dataset is open that this could act on.");
    }
}
