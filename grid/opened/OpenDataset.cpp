#include "grid/opened/OpenDataset.h"

#include "grid/filter/CompiledCondition.h"
#include "grid/filter/VariableNames.h"
#include "grid/opened/OpenDatasets.h"

#include <spdlog/spdlog.h>

#include <algorithm>
#include <numeric>
#include <string_view>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

/// The condition of a filter that a text in statement form says; nothing for an empty text.
template <typename Filter>
std::optional<ParsedCondition> conditionOf(const QString& filterText)
{
    if (filterText.trimmed().isEmpty()) {
        return std::nullopt;
    }
    const Command command = CommandParser::parse(filterText, Dialect::FilterText);
    const auto* filter = std::get_if<Filter>(&command.action);
    if (filter == nullptr) {
        throw ParseError("This is no such filter: " + filterText.toStdString());
    }
    if (command.trailingText) {
        throw ParseError(ParseError::trailingText, *command.trailingText);
    }
    return filter->condition;
}

}  // namespace

OpenDataset::OpenDataset(StatDataset& dataset, OpenDatasets* shared, QObject* parent)
    : QObject(parent)
    , m_dataset(dataset)
    , m_own(shared == nullptr ? std::make_unique<OpenDatasets>() : nullptr)
    , m_shared(shared == nullptr ? *m_own : *shared)
    , m_filters(dataset)
    , m_variables(dataset)
    , m_rowMap(static_cast<std::size_t>(std::max(dataset.observationCount(), 0)))
{
    std::iota(m_rowMap.begin(), m_rowMap.end(), 0U);
    m_shared.libraryFilter.join(*this);
}

OpenDataset::~OpenDataset()
{
    m_shared.libraryFilter.leave(*this);
}

QString OpenDataset::nameOf(int variable) const
{
    return QString::fromStdString(m_dataset.names().at(static_cast<std::size_t>(variable)));
}

const QString& OpenDataset::uniqueVarName() const
{
    return m_shared.uniqueVarName;
}

// Commands

// Its act() changes this object, which clang-tidy 14 does not see in a generic lambda.
// NOLINTNEXTLINE(readability-convert-member-functions-to-static)
CommandOutcome OpenDataset::run(const QString& commandText, const CommandReading& reading)
{
    return failureOf(commandText, [&] {
        const Command command = CommandParser::parse(commandText, reading.dialect, reading.bare);
        std::visit([&](const auto& action) { act(action, reading.inForce); }, command.action);
        if (command.trailingText) {
            throw ParseError(ParseError::trailingText, *command.trailingText);
        }
    });
}

CommandOutcome OpenDataset::check(const Command& command, const QString& commandText) const
{
    return failureOf(commandText, [&] {
        std::visit(
            [this](const auto& action) {
                if constexpr (requires { action.condition; }) {
                    static_cast<void>(CompiledCondition(action.condition, m_dataset));
                } else if constexpr (requires { action.names; }) {
                    static_cast<void>(variablesNamed(action.names));
                }
            },
            command.action);
        if (command.trailingText) {
            throw ParseError(ParseError::trailingText, *command.trailingText);
        }
    });
}

void OpenDataset::act(Command::ClearLibraryFilter /*action*/, InForce /*inForce*/)
{
    clearLibraryFilter();
}

void OpenDataset::act(Command::ClearDatasetFilter /*action*/, InForce /*inForce*/)
{
    clearDatasetFilter();
}

void OpenDataset::act(const Command::KeepVariables& action, InForce /*inForce*/)
{
    showOnlyVariables(variablesNamed(action.names));
}

void OpenDataset::act(const Command::DropVariables& action, InForce /*inForce*/)
{
    setShown(variablesNamed(action.names), false);
}

void OpenDataset::act(const Command::FrequencyTable& action, InForce /*inForce*/)
{
    emit signalFrequencyAsked(variablesNamed(action.names), action.frequencyN);
}

void OpenDataset::act(const Command::SetLibraryFilter& action, InForce inForce)
{
    if (inForce == InForce::IsReplaced) {
        m_shared.libraryFilter.replace(action.condition, this);
    } else {
        m_shared.libraryFilter.set(action.condition, this);
    }
}

void OpenDataset::act(const Command::AddDatasetFilter& action, InForce inForce)
{
    if (inForce == InForce::IsReplaced) {
        m_filters.replaceDatasetFilter(action.condition);
    } else {
        m_filters.addDatasetFilterStep(action.condition);
    }
    emit signalFiltersChanged();
}

std::vector<int> OpenDataset::variablesNamed(std::span<const WrittenName> names) const
{
    std::vector<int> variables;
    for (const WrittenName& name : names) {
        variables.push_back(variablenames::require(m_dataset, name));
    }
    return variables;
}

// Filters made from values

CommandOutcome OpenDataset::filterByCell(int variable, CompareOp op, int observation,
                                         FilterKind kind)
{
    return filterByValue(variable, op, QuickFilter(m_dataset, variable).valueAt(observation), kind);
}

CommandOutcome OpenDataset::filterByCells(int variable, std::span<const int> observations,
                                          FilterKind kind)
{
    const QuickFilter filter(m_dataset, variable);
    std::vector<QuickFilter::Value> values;
    values.reserve(observations.size());
    for (const int observation : observations) {
        values.push_back(filter.valueAt(observation));
    }
    return filterByValues(variable, values, kind);
}

CommandOutcome OpenDataset::filterByValue(int variable, CompareOp op,
                                          const QuickFilter::Value& value, FilterKind kind)
{
    return filterBy(QuickFilter(m_dataset, variable).compare(op, value), kind);
}

CommandOutcome OpenDataset::filterByValues(int variable, std::span<const QuickFilter::Value> values,
                                           FilterKind kind)
{
    return filterBy(QuickFilter(m_dataset, variable).isIn(values), kind);
}

CommandOutcome OpenDataset::filterBy(const Result<QString>& condition, FilterKind kind)
{
    if (!condition) {
        return CommandFailure{QString::fromStdString(condition.error()), QString()};
    }
    const QString word = kind == FilterKind::Library ? u"where "_s : u"if "_s;
    return run(word + condition.value(), Dialect::FilterText);
}

void OpenDataset::undo()
{
    if (m_filters.undoDatasetFilter()) {
        emit signalFiltersChanged();
    }
}

void OpenDataset::clearDatasetFilter()
{
    m_filters.clearDatasetFilter();
    emit signalFiltersChanged();
}

QString OpenDataset::datasetFilterText() const
{
    return m_filters.datasetFilterText();
}

// Library filter

void OpenDataset::clearLibraryFilter()
{
    m_shared.libraryFilter.clear();
}

QString OpenDataset::libraryFilterText() const
{
    return m_shared.libraryFilter.text();
}

void OpenDataset::checkLibraryFilter(const ParsedCondition& condition) const
{
    static_cast<void>(CompiledCondition(condition, m_dataset));
}

void OpenDataset::followLibraryFilter(const std::optional<ParsedCondition>& condition)
{
    m_filters.clearLibraryFilter();
    const CommandOutcome failure = failureOf(QString(), [&] {
        if (condition) {
            m_filters.setLibraryFilter(*condition);
        }
    });
    m_libraryFilterProblem = failure ? failure->message : QString();
    emit signalFiltersChanged();
}

// Variables

void OpenDataset::setShown(std::span<const int> variables, bool shown)
{
    m_variables.setShown(variables, shown);
    tellVariables();
}

void OpenDataset::showAllVariables()
{
    m_variables.showAll();
    tellVariables();
}

void OpenDataset::showOnlyVariables(std::span<const int> variables)
{
    m_variables.showOnly(variables);
    tellVariables();
}

void OpenDataset::tellVariables()
{
    m_hasUntoldVariables = m_variablesBatches > 0;
    if (!m_hasUntoldVariables) {
        emit signalVariablesChanged();
    }
}

OpenDataset::VariablesBatch::VariablesBatch(OpenDataset& opened)
    : m_opened(opened)
{
    ++m_opened.m_variablesBatches;
}

OpenDataset::VariablesBatch::~VariablesBatch()
{
    if (--m_opened.m_variablesBatches == 0 && m_opened.m_hasUntoldVariables) {
        m_opened.tellVariables();
    }
}

bool OpenDataset::shiftVariable(int variable, int step)
{
    const bool hasMoved = m_variables.shift(variable, step);
    if (hasMoved) {
        emit signalOrderChanged();
    }
    return hasMoved;
}

void OpenDataset::setVariableOrder(std::span<const int> variables)
{
    if (m_variables.setOrder(variables)) {
        emit signalOrderChanged();
    }
}

// BY list

bool OpenDataset::addByVariable(const QString& name)
{
    const auto variable = variablenames::find(m_dataset, name);
    if (!variable) {
        return false;
    }
    const std::string& exact = m_dataset.names()[static_cast<std::size_t>(*variable)];
    if (std::find(m_byVariables.begin(), m_byVariables.end(), exact) == m_byVariables.end()) {
        m_byVariables.push_back(exact);
        emit signalByListChanged(QString::fromStdString(exact));
    }
    return true;
}

CommandOutcome OpenDataset::setByVariables(std::span<const WrittenName> names)
{
    return failureOf(QString(), [&] {
        const std::vector<int> variables = variablesNamed(names);
        clearByVariables();
        for (const int variable : variables) {
            addByVariable(nameOf(variable));
        }
    });
}

CommandOutcome OpenDataset::setByVariables(const QString& list)
{
    std::vector<WrittenName> names = variablenames::split(list);
    const auto isBy = [&] { return compareop::sameWord(names.front().name, u"by"); };
    // In quotes it is a name.
    if (names.size() > 1 && list.trimmed().front().isLetter() && isBy()) {
        names.erase(names.begin());
    }
    CommandOutcome outcome = setByVariables(names);
    if (outcome) {
        outcome->command = list;
    }
    return outcome;
}

QString OpenDataset::byText() const
{
    QStringList names;
    for (const std::string& each : m_byVariables) {
        const auto name = QString::fromStdString(each);
        // In front of a list it would be taken for the statement's word.
        names << (compareop::sameWord(name, u"by") ? u'\'' + name + u"'n"_s
                                                   : variablenames::written(name));
    }
    return names.join(u' ');
}

void OpenDataset::clearByVariables()
{
    if (!m_byVariables.empty()) {
        m_byVariables.clear();
        emit signalByListChanged(QString());
    }
}

// Order of the rows

void OpenDataset::sortBy(const SortKeys& keys)
{
    std::vector<std::uint32_t> rowMap;
    try {
        rowsorter::sortObservations(m_dataset, keys, rowMap);
    } catch (const std::bad_alloc&) {
        spdlog::error("Error: not enough memory to sort {} rows", m_rowMap.size());
        return;
    }
    m_sortKeys = keys;
    if (rowMap != m_rowMap) {
        emit signalRowsAboutToChange();
        m_rowMap.swap(rowMap);
        emit signalRowsChanged();
    }
    emit signalSorted();
}

// Analyses

std::vector<WordsAndCounts> OpenDataset::frequenciesOf(std::span<const int> variables,
                                                       bool frequencyN) const
{
    return frequencyN
        ? frequencies::distinctIds(m_dataset, variables, uniqueVarName().toStdString())
        : frequencies::plain(m_dataset, variables);
}

std::optional<std::int64_t> OpenDataset::subjectCount() const
{
    const auto id = frequencies::idVariable(m_dataset, uniqueVarName().toStdString());
    if (!id) {
        return std::nullopt;
    }
    const auto counted = frequencies::distinctIds(m_dataset, {}, uniqueVarName().toStdString());
    return counted.empty() ? 0 : counted.front().count;
}

std::variant<statistics::Table, statistics::Problem>
OpenDataset::statisticsOf(std::span<const int> variables) const
{
    return statistics::describe(m_dataset, variables, numbersOf(m_byVariables));
}

/// The variables of these names, without those that the dataset lacks.
std::vector<int> OpenDataset::numbersOf(std::span<const std::string> names) const
{
    std::unordered_map<std::string_view, int> numbers;
    for (int variable = 0; variable < m_dataset.variableCount(); ++variable) {
        numbers.try_emplace(m_dataset.names()[static_cast<std::size_t>(variable)], variable);
    }
    std::vector<int> variables;
    for (const std::string& name : names) {
        if (const auto found = numbers.find(name); found != numbers.end()) {
            variables.push_back(found->second);
        }
    }
    return variables;
}

// What is kept

ViewState OpenDataset::state() const
{
    const auto namesOf = [this](std::span<const int> variables) {
        std::vector<std::string> names;
        for (const int variable : variables) {
            names.push_back(m_dataset.names()[static_cast<std::size_t>(variable)]);
        }
        return names;
    };
    ViewState state{libraryFilterText(),
                    datasetFilterText(),
                    namesOf(m_variables.hidden()),
                    namesOf(m_variables.order()),
                    {},
                    m_byVariables};
    for (const auto& [variable, order] : m_sortKeys) {
        state.sortKeys.emplace_back(m_dataset.names()[static_cast<std::size_t>(variable)], order);
    }
    return state;
}

CommandOutcome OpenDataset::restore(const ViewState& state)
{
    return failureOf(QString(), [&] {
        restoreFilters(state);
        m_variables.showAll();
        setShown(numbersOf(state.hiddenVariables), false);
        setVariableOrder(numbersOf(state.variableOrder));
        clearByVariables();
        for (const std::string& name : state.byVariables) {
            addByVariable(QString::fromStdString(name));
        }
        SortKeys keys;
        for (const auto& [name, order] : state.sortKeys) {
            for (const int variable : numbersOf({&name, 1})) {
                keys.emplace_back(variable, order);
            }
        }
        sortBy(keys);
    });
}

/// Both filters are read and tried before either changes.
void OpenDataset::restoreFilters(const ViewState& state)
{
    const auto library = conditionOf<Command::SetLibraryFilter>(state.libraryFilter);
    const auto step = conditionOf<Command::AddDatasetFilter>(state.datasetFilter);
    if (step) {
        static_cast<void>(CompiledCondition(*step, m_dataset));
    }
    if (step) {
        m_filters.replaceDatasetFilter(*step);
    } else {
        m_filters.clearDatasetFilter();
    }
    if (library && !m_shared.libraryFilter.isInForce()) {
        m_shared.libraryFilter.set(*library, nullptr);
    }
    emit signalFiltersChanged();
}
