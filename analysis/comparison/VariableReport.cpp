#include "analysis/comparison/VariableReport.h"

#include "analysis/comparison/ComparedTexts.h"
#include "analysis/comparison/ReportTable.h"

#include <fmt/format.h>

#include <algorithm>

namespace comparison {

namespace {

const char* typeName(const StatDataset& dataset, int variable)
{
    return dataset.isNumeric(variable) ? "Num" : "Char";
}

class VariableReport
{
public:
    VariableReport(const Comparison& comparison, const ReportOptions& options, std::size_t lineSize)
        : m_comparison(comparison)
        , m_options(options)
        , m_lineSize(lineSize)
    { }

    void addSummary();
    void listEqualVariables();
    void listUnequalVariables();
    [[nodiscard]] std::string take() { return std::move(m_out); }

private:
    using Lines = std::vector<std::string>;

    void add(const Lines& lines) { m_out += centred(lines, m_lineSize) + '\n'; }
    void addHeading(const std::string& text) { add({text}); }
    void listVariables(const StatDataset& dataset, const std::vector<int>& variables,
                       const std::string& title);
    void listPairs(const std::string& title, bool conflicting);

    const Comparison& m_comparison;
    const ReportOptions& m_options;
    std::size_t m_lineSize;
    std::string m_out;
};

void VariableReport::addSummary()
{
    const VariableMatch& variables = m_comparison.variables();
    Lines lines{fmt::format("Number of Variables in Common: {}.", variables.common.size())};
    const auto count = [&](const std::string& what, std::size_t number) {
        if (number > 0) {
            lines.push_back(fmt::format("Number of {}: {}.", what, number));
        }
    };
    count(onlyIn(m_comparison, "Variables", true), variables.baseOnly.size());
    count(onlyIn(m_comparison, "Variables", false), variables.compareOnly.size());
    count("Variables with Conflicting Types", m_comparison.conflictingTypes());
    count("Variables with Differing Attributes", m_comparison.differingAttributes());
    count("ID Variables", variables.id.size());
    count("VAR Statement Variables", variables.varCount);
    count("WITH Statement Variables", variables.withCount);
    addHeading("Variables Summary");
    add(lines);
    if (m_options.listBaseVariables) {
        listVariables(m_comparison.base(), variables.baseOnly,
                      onlyIn(m_comparison, "Variables", true));
    }
    if (m_options.listCompareVariables) {
        listVariables(m_comparison.compare(), variables.compareOnly,
                      onlyIn(m_comparison, "Variables", false));
    }
    listPairs("Common Variables with Conflicting Types", true);
    listPairs("Common Variables with Differing Attributes", false);
}

void VariableReport::listVariables(const StatDataset& dataset, const std::vector<int>& variables,
                                   const std::string& title)
{
    ReportTable table({{"Variable", false, true, 8},
                       {"Type"},
                       {"Length", true},
                       {"Format"},
                       {"Label", false, true, 8}});
    for (const int variable : variables) {
        const auto place = static_cast<std::size_t>(variable);
        table.add({dataset.names()[place], typeName(dataset, variable),
                   std::to_string(dataset.lengths()[place]), dataset.writtenFormat(variable),
                   dataset.labels()[place]});
    }
    if (!table.isEmpty()) {
        addHeading("Listing of " + title);
        add(table.lines(m_lineSize));
    }
}

void VariableReport::listPairs(const std::string& title, bool conflicting)
{
    ReportTable table({{"Variable", false, true, 8},
                       {"Dataset", false, true, 8},
                       {"Type"},
                       {"Length", true},
                       {"Format"},
                       {"Informat"},
                       {"Label", false, true, 8}});
    for (const VariablePair& pair : m_comparison.variables().common) {
        if (conflicting ? !pair.hasConflictingTypes
                        : pair.hasConflictingTypes || !pair.differing.any()) {
            continue;
        }
        const auto line = [&](const StatDataset& dataset, int variable, const std::string& name,
                              const std::string& first) {
            const auto place = static_cast<std::size_t>(variable);
            table.add({first, name, typeName(dataset, variable),
                       std::to_string(dataset.lengths()[place]), dataset.writtenFormat(variable),
                       dataset.informats()[place], dataset.labels()[place]});
        };
        const std::string& name = m_comparison.base().names()[static_cast<std::size_t>(pair.base)];
        line(m_comparison.base(), pair.base, m_comparison.baseName(), name);
        line(m_comparison.compare(), pair.compare, m_comparison.compareName(), "");
    }
    if (!table.isEmpty()) {
        addHeading("Listing of " + title);
        add(table.lines(m_lineSize));
    }
}

/// Columns of both lists of compared variables; the lengths of both sides where any differ.
struct ListedVariable
{
    const Comparison& comparison;
    bool hasTwoLengths;

    [[nodiscard]] std::vector<ReportTable::Column> columns() const
    {
        std::vector<ReportTable::Column> columns{{"Variable", false, true, 8}, {"Type"}};
        columns.push_back({hasTwoLengths ? "Len1" : "Len", true});
        if (hasTwoLengths) {
            columns.push_back({"Len2", true});
        }
        columns.push_back({"Label", false, true, 8});
        return columns;
    }
    [[nodiscard]] std::vector<std::string> cells(const ComparedVariable& variable) const
    {
        const auto base = static_cast<std::size_t>(variable.variables.base);
        const auto compare = static_cast<std::size_t>(variable.variables.compare);
        std::vector<std::string> cells{pairName(comparison, variable.variables),
                                       variable.isNumeric ? "NUM" : "CHAR",
                                       std::to_string(comparison.base().lengths()[base])};
        if (hasTwoLengths) {
            cells.push_back(std::to_string(comparison.compare().lengths()[compare]));
        }
        cells.push_back(comparison.base().labels()[base]);
        return cells;
    }
};

bool haveTwoLengths(const Comparison& comparison)
{
    const auto& values = comparison.values();
    return std::any_of(values.begin(), values.end(), [](const ComparedVariable& variable) {
        return variable.variables.differing.length;
    });
}

void VariableReport::listEqualVariables()
{
    const ListedVariable listed{m_comparison, haveTwoLengths(m_comparison)};
    ReportTable table(listed.columns());
    for (const ComparedVariable& variable : m_comparison.values()) {
        if (variable.unequal.empty()) {
            table.add(listed.cells(variable));
        }
    }
    if (!table.isEmpty()) {
        addHeading("Variables with All Equal Values");
        add(table.lines(m_lineSize));
    }
}

void VariableReport::listUnequalVariables()
{
    const auto& values = m_comparison.values();
    const bool hasMissing =
        std::any_of(values.begin(), values.end(), [](const ComparedVariable& variable) {
            return variable.missingDifferences > 0;
        });
    const bool areAllUnequal =
        std::all_of(values.begin(), values.end(),
                    [](const ComparedVariable& variable) { return !variable.unequal.empty(); });
    const ListedVariable listed{m_comparison, haveTwoLengths(m_comparison)};
    std::vector<ReportTable::Column> columns = listed.columns();
    columns.push_back({"Ndif", true});
    columns.push_back({"MaxDif", true});
    if (hasMissing) {
        columns.push_back({"MissDif", true});
    }
    ReportTable table(std::move(columns));
    for (const ComparedVariable& variable : values) {
        if (variable.unequal.empty()) {
            continue;
        }
        std::vector<std::string> cells = listed.cells(variable);
        cells.push_back(std::to_string(variable.unequal.size()));
        cells.push_back(variable.isNumeric ? differenceText(variable.maximum, 3) : "");
        if (hasMissing) {
            cells.push_back(std::to_string(variable.missingDifferences));
        }
        table.add(std::move(cells));
    }
    if (!table.isEmpty()) {
        addHeading(areAllUnequal ? "All Variables Compared have Unequal Values"
                                 : "Variables with Unequal Values");
        add(table.lines(m_lineSize));
    }
}

}  // namespace

std::string onlyIn(const Comparison& comparison, const char* what, bool base)
{
    const std::string& a = comparison.baseName();
    const std::string& b = comparison.compareName();
    return fmt::format("{} in {} but not in {}", what, base ? a : b, base ? b : a);
}

std::string variableSummary(const Comparison& comparison, const ReportOptions& options,
                            std::size_t lineSize)
{
    VariableReport report(comparison, options, lineSize);
    report.addSummary();
    return report.take();
}

std::string comparedVariables(const Comparison& comparison, const ReportOptions& options,
                              std::size_t lineSize)
{
    VariableReport report(comparison, options, lineSize);
    if (options.listEqualVariables) {
        report.listEqualVariables();
    }
    report.listUnequalVariables();
    return report.take();
}

}  // namespace comparison
