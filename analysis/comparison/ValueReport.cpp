#include "analysis/comparison/ValueReport.h"

#include "analysis/comparison/ComparedTexts.h"
#include "analysis/comparison/PairStatistics.h"
#include "analysis/comparison/ReportTable.h"
#include "data/values/AlignedText.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace comparison {

namespace {

using Column = ReportTable::Column;
using Columns = std::vector<Column>;
using Cells = std::vector<std::string>;

constexpr std::size_t numberWidth = 9;

/// One differing value, as its line in a table.
struct ValueCells
{
    std::string base;
    std::string compare;
    std::string difference;
    std::string percent;
};

class ValueReport
{
public:
    ValueReport(const Comparison& comparison, const ReportOptions& options, std::size_t lineSize)
        : m_comparison(comparison)
        , m_options(options)
        , m_lineSize(lineSize)
    { }

    std::string write()
    {
        if (m_options.values && m_options.transpose) {
            writeByObservation();
        }
        for (const ComparedVariable& variable : m_comparison.values()) {
            const bool hasValues =
                m_options.values && !m_options.transpose && !variable.unequal.empty();
            if (hasValues && m_printed < m_options.maxTotal) {
                writeVariable(variable);
            } else if (hasValues) {
                m_wasCut = true;
            }
            if (m_options.statistics && variable.isNumeric) {
                writeStatistics(variable);
            }
        }
        if (m_wasCut) {
            add({fmt::format("NOTE: The MAXPRINT={} printing limit has been reached. No more "
                             "values will be printed for this comparison.",
                             m_options.maxTotal)});
        }
        return std::move(m_out);
    }

private:
    void add(const Cells& lines) { m_out += centred(lines, m_lineSize) + '\n'; }
    void addHeading(const std::string& text)
    {
        if (!m_hasHeading) {
            add({text});
        }
        m_hasHeading = true;
    }

    [[nodiscard]] ValueCells cellsOf(const ComparedVariable& variable,
                                     const ObservationPair& pair) const;
    [[nodiscard]] std::string shortened(const std::string& text) const;
    [[nodiscard]] Columns idColumns(std::size_t others) const;
    [[nodiscard]] Cells idCells(const ObservationPair& pair, std::size_t columns) const;
    void writeVariable(const ComparedVariable& variable);
    void writeByObservation();
    void writeObservation(std::uint32_t place, const std::vector<std::size_t>& variables);
    void writeStatistics(const ComparedVariable& variable);
    [[nodiscard]] const std::string& baseName(const ComparedVariable& variable) const
    {
        return m_comparison.base().names()[static_cast<std::size_t>(variable.variables.base)];
    }
    [[nodiscard]] const std::string& compareName(const ComparedVariable& variable) const
    {
        return m_comparison.compare().names()[static_cast<std::size_t>(variable.variables.compare)];
    }

    const Comparison& m_comparison;
    const ReportOptions& m_options;
    std::size_t m_lineSize;
    std::string m_out;
    bool m_hasHeading = false;
    bool m_wasCut = false;
    std::size_t m_printed = 0;
};

/// A text of one line, with a mark where it goes on.
std::string ValueReport::shortened(const std::string& text) const
{
    const std::string line = onOneLine(text);
    const auto width = static_cast<std::size_t>(std::max(m_options.textWidth, 1));
    return widthOf(line) <= width ? line : std::string(cutTo(line, width)) + '+';
}

ValueCells ValueReport::cellsOf(const ComparedVariable& variable, const ObservationPair& pair) const
{
    ValueTexts texts = valueTexts(m_comparison, variable, pair);
    if (!variable.isNumeric) {
        return {shortened(texts.base), shortened(texts.compare), "", ""};
    }
    const NumberDifference numbers = m_comparison.numbers(variable, pair);
    const auto isFuzz = [this](double number) { return std::abs(number) < m_options.fuzz; };
    const auto shown = [&](double difference) {
        return isFuzz(difference) ? std::string() : differenceText(difference);
    };
    return {isFuzz(numbers.base) ? "0" : texts.base, isFuzz(numbers.compare) ? "0" : texts.compare,
            shown(numbers.difference), shown(numbers.percent)};
}

/// A column for each ID variable, or one for all of them where there is no room.
/// @param others  how wide the rest of the line is
Columns ValueReport::idColumns(std::size_t others) const
{
    const std::vector<VariablePair>& id = m_comparison.variables().id;
    if (id.empty()) {
        return {{"Obs", true, false, 8}};
    }
    Columns columns;
    std::size_t width = 0;
    for (const VariablePair& pair : id) {
        const auto variable = static_cast<std::size_t>(pair.base);
        const std::string& name = m_comparison.base().names()[variable];
        const auto length = static_cast<std::size_t>(m_comparison.base().lengths()[variable]);
        columns.push_back({name, m_comparison.base().isNumeric(pair.base), true, 4});
        width += std::max(widthOf(name), std::max<std::size_t>(length, 8)) + 2;
    }
    if (columns.size() > 1 && width + others > m_lineSize) {
        return {{"ID", false, true, 12}};
    }
    return columns;
}

Cells ValueReport::idCells(const ObservationPair& pair, std::size_t columns) const
{
    const std::vector<VariablePair>& id = m_comparison.variables().id;
    if (id.empty()) {
        // The compare dataset's number only where it is another.
        const std::string number = std::to_string(pair.base + 1);
        return {pair.base == pair.compare ? number
                                          : fmt::format("{}/{}", number, pair.compare + 1)};
    }
    if (columns != id.size()) {
        return {observationText(m_comparison, pair)};
    }
    Cells cells;
    for (const VariablePair& one : id) {
        cells.push_back(idText(m_comparison, one, pair));
    }
    return cells;
}

void ValueReport::writeVariable(const ComparedVariable& variable)
{
    addHeading("Value Comparison Results for Variables");
    const auto textWidth = static_cast<std::size_t>(std::max(m_options.textWidth, 8));
    const std::size_t others =
        2 + (variable.isNumeric ? 4 * (numberWidth + 2) : 2 * (textWidth + 3));
    Columns columns = idColumns(others);
    const std::size_t idCount = columns.size();
    columns.push_back({std::string(ReportTable::bar)});
    const bool isNumber = variable.isNumeric;
    const std::size_t width = isNumber ? numberWidth : textWidth;
    columns.push_back(
        {(isNumber ? "Base\n" : "Base Value\n") + baseName(variable), isNumber, true, width});
    columns.push_back({(isNumber ? "Compare\n" : "Compare Value\n") + compareName(variable),
                       isNumber, true, width});
    if (isNumber) {
        columns.push_back({"Diff.", true, false, numberWidth});
        columns.push_back({"% Diff", true, false, numberWidth});
    }
    ReportTable table(std::move(columns));
    table.setCaption(
        m_comparison.base().labels()[static_cast<std::size_t>(variable.variables.base)]);
    std::size_t printed = 0;
    for (const std::uint32_t place : variable.unequal) {
        if (printed == m_options.maxPerVariable || m_printed == m_options.maxTotal) {
            break;
        }
        const ObservationPair& pair = m_comparison.observations().pairs[place];
        Cells row = idCells(pair, idCount);
        const ValueCells cells = cellsOf(variable, pair);
        row.insert(row.end(), {"", cells.base, cells.compare});
        if (isNumber) {
            row.insert(row.end(), {cells.difference, cells.percent});
        }
        table.add(std::move(row));
        ++printed;
        ++m_printed;
    }
    m_out += centred(table.ruledLines(m_lineSize), m_lineSize) + '\n';
    if (printed == m_options.maxPerVariable && printed < variable.unequal.size()) {
        add({fmt::format("NOTE: The MAXPRINT={} printing limit has been reached for the variable "
                         "{}. No more values will be printed for this variable.",
                         m_options.maxPerVariable, baseName(variable))});
    } else {
        m_wasCut = m_wasCut || printed < variable.unequal.size();
    }
}

void ValueReport::writeByObservation()
{
    const std::vector<ComparedVariable>& values = m_comparison.values();
    const BitVector& unequal = m_comparison.unequalObservations();
    std::vector<std::size_t> next(values.size());
    for (auto place = unequal.find_first(); place != BitVector::npos;
         place = unequal.find_next(place)) {
        if (m_printed >= m_options.maxTotal) {
            m_wasCut = true;
            return;
        }
        std::vector<std::size_t> variables;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const auto& places = values[i].unequal;
            if (next[i] < places.size() && places[next[i]] == place) {
                ++next[i];
                variables.push_back(i);
            }
        }
        writeObservation(static_cast<std::uint32_t>(place), variables);
    }
}

void ValueReport::writeObservation(std::uint32_t place, const std::vector<std::size_t>& variables)
{
    addHeading("Comparison Results for Observations");
    const ObservationPair& pair = m_comparison.observations().pairs[place];
    ReportTable table({{"Variable", false, true, 8},
                       {"Base Value", true, true, numberWidth},
                       {"Compare", true, true, numberWidth},
                       {"Diff.", true, false, numberWidth},
                       {"% Diff", true, false, numberWidth}});
    for (const std::size_t i : variables) {
        const ComparedVariable& variable = m_comparison.values()[i];
        const ValueCells cells = cellsOf(variable, pair);
        table.add({pairName(m_comparison, variable.variables), cells.base, cells.compare,
                   cells.difference, cells.percent});
        ++m_printed;
    }
    Cells lines{observationText(m_comparison, pair) + ':'};
    const Cells rows = table.lines(m_lineSize);
    lines.insert(lines.end(), rows.begin(), rows.end());
    m_out += centred(lines, m_lineSize) + '\n';
}

void ValueReport::writeStatistics(const ComparedVariable& variable)
{
    const PairStatistics statistics = pairStatistics(m_comparison, variable);
    ReportTable table({{"Statistic"},
                       {"Base", true, false, numberWidth},
                       {"Compare", true, false, numberWidth},
                       {"Diff.", true, false, numberWidth},
                       {"% Diff", true, false, numberWidth}});
    const auto line = [&](const char* title, auto member) {
        Cells row{title};
        for (const SampleStatistics& sample : statistics.samples) {
            const double number = sample.*member;
            row.push_back(std::abs(number) < m_options.fuzz ? "0" : differenceText(number));
        }
        table.add(std::move(row));
    };
    Cells counts{"N"};
    for (const SampleStatistics& sample : statistics.samples) {
        counts.push_back(std::to_string(sample.count));
    }
    table.add(std::move(counts));
    line("Mean", &SampleStatistics::mean);
    line("Std", &SampleStatistics::standardDeviation);
    line("Max", &SampleStatistics::maximum);
    line("Min", &SampleStatistics::minimum);
    line("StdErr", &SampleStatistics::standardError);
    line("t", &SampleStatistics::t);
    line("Prob>|t|", &SampleStatistics::probability);
    table.add({"Ndif", std::to_string(variable.unequal.size()),
               differenceText(statistics.percentUnequal, 3) + '%', "", ""});
    table.add({"DifMeans", differenceText(statistics.meansByBase, 3) + '%',
               differenceText(statistics.meansByCompare, 3) + '%',
               differenceText(statistics.differenceOfMeans), ""});
    table.add({"r, rsq", differenceText(statistics.correlation, 3),
               differenceText(statistics.correlation * statistics.correlation, 3), "", ""});
    add({"Table of Summary Statistics for " + pairName(m_comparison, variable.variables)});
    m_out += centred(table.lines(m_lineSize), m_lineSize) + '\n';
}

}  // namespace

std::string valueReport(const Comparison& comparison, const ReportOptions& options,
                        std::size_t lineSize)
{
    return ValueReport(comparison, options, lineSize).write();
}

}  // namespace comparison
