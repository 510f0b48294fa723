#pragma once

#include "analysis/Frequencies.h"
#include "analysis/RowSorter.h"
#include "analysis/Statistics.h"
#include "data/Result.h"
#include "grid/filter/Command.h"
#include "grid/filter/FilterState.h"
#include "grid/filter/Lexer.h"
#include "grid/filter/QuickFilter.h"
#include "grid/opened/CommandFailure.h"
#include "grid/opened/CommandReading.h"
#include "grid/opened/ShownVariables.h"
#include "grid/opened/ViewState.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

struct OpenDatasets;

/// One open dataset as its user works on it: its filters, which variables are shown and in which
/// order, its BY list and its sort. Grids and side views show what is in force here and change it
/// here; none of them is needed for it.
///
/// What a command or a filter cannot do comes back as a failure, and has changed nothing then but
/// for text that trails behind a command, which has acted.
class OpenDataset : public QObject
{
    Q_OBJECT

public:
    /// Which filter a condition that was made from values is for; the numbers are those of the
    /// grid's mode flag.
    enum class FilterKind : std::int32_t
    {
        Dataset = 0,
        Library = 1,
    };

    /// Holds the word of changed variables back until its end, so that thousands of changes are one
    /// for whoever follows.
    class VariablesBatch
    {
    public:
        explicit VariablesBatch(OpenDataset& opened);
        ~VariablesBatch();
        VariablesBatch(const VariablesBatch&) = delete;
        VariablesBatch& operator=(const VariablesBatch&) = delete;

    private:
        OpenDataset& m_opened;
    };

    /// @param dataset  outlives this object
    /// @param shared   outlives this object; without it this dataset has it all for itself
    explicit OpenDataset(StatDataset& dataset, OpenDatasets* shared = nullptr,
                         QObject* parent = nullptr);
    ~OpenDataset() override;

    [[nodiscard]] StatDataset& dataset() { return m_dataset; }
    [[nodiscard]] const StatDataset& dataset() const { return m_dataset; }
    /// The variable's name as users read it.
    [[nodiscard]] QString nameOf(int variable) const;
    [[nodiscard]] const QString& uniqueVarName() const;

    // Filters

    /// Runs a command.
    [[nodiscard]] CommandOutcome run(const QString& commandText, const CommandReading& reading);
    [[nodiscard]] CommandOutcome run(const QString& commandText, Dialect dialect)
    {
        return run(commandText, CommandReading{dialect});
    }
    /// What stands against a command, which is not carried out.
    [[nodiscard]] CommandOutcome check(const Command& command, const QString& commandText) const;
    /// Compares a variable with the value that an observation has.
    [[nodiscard]] CommandOutcome filterByCell(int variable, CompareOp op, int observation,
                                              FilterKind kind = FilterKind::Dataset);
    /// Keeps the rows whose value is one of those that the observations have.
    [[nodiscard]] CommandOutcome filterByCells(int variable, std::span<const int> observations,
                                               FilterKind kind = FilterKind::Dataset);
    [[nodiscard]] CommandOutcome filterByValue(int variable, CompareOp op,
                                               const QuickFilter::Value& value,
                                               FilterKind kind = FilterKind::Dataset);
    [[nodiscard]] CommandOutcome filterByValues(int variable,
                                                std::span<const QuickFilter::Value> values,
                                                FilterKind kind = FilterKind::Dataset);
    /// Takes the last step of the dataset filter back.
    void undo();
    void clearDatasetFilter();
    void clearLibraryFilter();

    /// "if a = 1 and b = 2".
    [[nodiscard]] QString datasetFilterText() const;
    /// The library filter in force, "where a = 1", also where it cannot filter this dataset.
    [[nodiscard]] QString libraryFilterText() const;
    /// Why the library filter in force does not filter this dataset; empty if it does.
    [[nodiscard]] const QString& libraryFilterProblem() const { return m_libraryFilterProblem; }
    /// How many observations the filters select.
    [[nodiscard]] std::size_t selectedCount() const { return m_filters.selectedCount(); }

    // Variables

    [[nodiscard]] const ShownVariables& variables() const { return m_variables; }
    void setShown(std::span<const int> variables, bool shown);
    void showAllVariables();
    void showOnlyVariables(std::span<const int> variables);
    /// Moves a variable past the next shown one. @see ShownVariables::shift
    bool shiftVariable(int variable, int step);
    void setVariableOrder(std::span<const int> variables);

    // BY list

    /// The names as the dataset has them.
    [[nodiscard]] const std::vector<std::string>& byVariables() const { return m_byVariables; }
    /// "SEX 'ARM D'n", as it can be typed; empty without any.
    [[nodiscard]] QString byText() const;
    /// Appends a variable that is not in the list yet.
    /// @param name  in any letter case
    /// @return      whether there is such a variable
    bool addByVariable(const QString& name);
    /// Makes the named variables the list. Nothing changes when one of them is none.
    [[nodiscard]] CommandOutcome setByVariables(std::span<const WrittenName> names);
    /// The same for names as they are typed, with "by" in front or not.
    [[nodiscard]] CommandOutcome setByVariables(const QString& list);
    void clearByVariables();

    // Order of the rows

    /// The keys of the sort in force; none in dataset order.
    [[nodiscard]] const SortKeys& sortKeys() const { return m_sortKeys; }
    /// The observation of each row; holds every observation exactly once.
    [[nodiscard]] std::span<const std::uint32_t> rowMap() const { return m_rowMap; }
    /// Sorts the rows; no keys return them to the dataset's order.
    void sortBy(const SortKeys& keys);

    // Analyses of the rows that the filters select

    /// How often each combination of values occurs, or how many distinct subjects have it.
    [[nodiscard]] std::vector<WordsAndCounts> frequenciesOf(std::span<const int> variables,
                                                            bool frequencyN) const;
    /// How many distinct subjects there are; nothing where no variable identifies them.
    [[nodiscard]] std::optional<std::int64_t> subjectCount() const;
    /// The statistics of the first variable, by the BY list.
    [[nodiscard]] std::variant<statistics::Table, statistics::Problem>
    statisticsOf(std::span<const int> variables) const;

    // What is kept

    [[nodiscard]] ViewState state() const;
    /// Brings a state back. Variables that the dataset lacks are left out; a library filter that is
    /// in force stays. With a filter that cannot be read or applied nothing changes.
    [[nodiscard]] CommandOutcome restore(const ViewState& state);

    // What LibraryFilter calls

    /// Throws ParseError when the dataset cannot be filtered by the condition.
    void checkLibraryFilter(const ParsedCondition& condition) const;
    /// Filters by the condition, or by none; libraryFilterProblem() tells what stands against it.
    void followLibraryFilter(const std::optional<ParsedCondition>& condition);

signals:
    /// After every change of a filter or of a text that says what is in force.
    void signalFiltersChanged();
    /// The set of shown variables has changed.
    void signalVariablesChanged();
    void signalOrderChanged();
    /// @param added  the variable appended, or nothing when the list has been cleared
    void signalByListChanged(QString added);
    /// Around every change of the row map.
    void signalRowsAboutToChange();
    void signalRowsChanged();
    /// The sort keys have been set, whether that has moved rows or not.
    void signalSorted();
    /// A command asks for a frequency table.
    void signalFrequencyAsked(std::vector<int> variables, bool frequencyN);

private:
    using InForce = CommandReading::InForce;

    [[nodiscard]] std::vector<int> variablesNamed(std::span<const WrittenName> names) const;
    [[nodiscard]] CommandOutcome filterBy(const Result<QString>& condition, FilterKind kind);
    void act(Command::ClearLibraryFilter action, InForce inForce);
    void act(Command::ClearDatasetFilter action, InForce inForce);
    void act(const Command::KeepVariables& action, InForce inForce);
    void act(const Command::DropVariables& action, InForce inForce);
    void act(const Command::FrequencyTable& action, InForce inForce);
    void act(const Command::SetLibraryFilter& action, InForce inForce);
    void act(const Command::AddDatasetFilter& action, InForce inForce);
    void restoreFilters(const ViewState& state);
    void tellVariables();
    [[nodiscard]] std::vector<int> numbersOf(std::span<const std::string> names) const;

    StatDataset& m_dataset;
    std::unique_ptr<OpenDatasets> m_own;  ///< null where others share
    OpenDatasets& m_shared;
    FilterState m_filters;
    QString m_libraryFilterProblem;
    ShownVariables m_variables;
    int m_variablesBatches = 0;
    bool m_hasUntoldVariables = false;
    std::vector<std::string> m_byVariables;
    SortKeys m_sortKeys;
    std::vector<std::uint32_t> m_rowMap;
};
