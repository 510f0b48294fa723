#include "analysis/comparison/CompareReport.h"

#include "analysis/comparison/ComparedTexts.h"
#include "analysis/comparison/ReportTable.h"
#include "analysis/comparison/ValueReport.h"
#include "analysis/comparison/VariableReport.h"
#include "data/values/CivilTime.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>

namespace comparison {

namespace {

/// "05JAN24:13:01:59"; empty where the file tells no time.
std::string timeText(std::int64_t seconds)
{
    const civil::DayAndSecond parts = civil::splitSeconds(seconds);
    const std::optional<civil::Date> date = civil::dateFromDays(parts.day);
    if (seconds == 0 || !date) {
        return {};
    }
    std::string month(civil::monthAbbreviation(date->month));
    std::transform(month.begin(), month.end(), month.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    const civil::TimeOfDay time = civil::timeOfDay(parts.second);
    return fmt::format("{:02}{}{:02}:{:02}:{:02}:{:02}", date->day, month, date->year % 100,
                       time.hour, time.minute, time.second);
}

std::string obsNumber(std::uint32_t observation)
{
    return observation == noObservation ? "." : std::to_string(observation + 1);
}

class Report
{
public:
    Report(const Comparison& comparison, const ReportOptions& options)
        : m_comparison(comparison)
        , m_options(options)
        , m_lineSize(static_cast<std::size_t>(std::clamp(
              options.lineSize, ReportOptions::smallestLine, ReportOptions::largestLine)))
    { }

    std::string write()
    {
        addTitles();
        addNotes();
        if (m_options.brief) {
            addBrief();
        } else if (m_options.summary) {
            addDatasets();
            m_out += variableSummary(m_comparison, m_options, m_lineSize);
        }
        listObservations();
        if (!m_options.brief && m_options.summary) {
            addObservations();
            addValues();
        }
        if (m_options.values || m_options.statistics) {
            m_out += valueReport(m_comparison, m_options, m_lineSize);
        }
        return std::move(m_out);
    }

private:
    using Lines = std::vector<std::string>;

    void add(const Lines& lines) { m_out += centred(lines, m_lineSize) + '\n'; }
    void addHeading(const std::string& text) { add({text}); }
    void addNote(const std::string& text);
    void addTitles();
    void addNotes();
    void addBrief();
    void briefSide(const char* what, std::size_t count, bool ofBase);
    void addDatasets();
    void listObservations();
    void addObservations();
    [[nodiscard]] Lines observationTable() const;
    [[nodiscard]] Lines observationCounts() const;
    void addValues();
    [[nodiscard]] Lines valueCounts() const;

    const Comparison& m_comparison;
    const ReportOptions& m_options;
    std::size_t m_lineSize;
    std::string m_out;
};

void Report::addNote(const std::string& text)
{
    for (const std::string& line : wrapped("NOTE: " + text, m_lineSize)) {
        m_out += line + '\n';
    }
}

void Report::addTitles()
{
    for (const std::string& title :
         {std::string("The COMPARE Procedure"),
          fmt::format("Comparison of {} with {}", m_comparison.baseName(),
                      m_comparison.compareName()),
          fmt::format("(Method={})", ruleText(m_comparison.rule()))}) {
        m_out += centred({title}, m_lineSize);
    }
    m_out += '\n';
}

void Report::addNotes()
{
    const std::vector<std::string> notes = m_comparison.notes();
    for (const std::string& note : notes) {
        addNote(note);
    }
    m_out += notes.empty() ? "" : "\n";
}

void Report::briefSide(const char* what, std::size_t count, bool ofBase)
{
    const auto& [own, other] = ofBase
        ? std::pair(m_comparison.baseName(), m_comparison.compareName())
        : std::pair(m_comparison.compareName(), m_comparison.baseName());
    if (count > 0) {
        addNote(fmt::format("Data set {} contains {} {} not in {}.", own, count, what, other));
    }
}

void Report::addBrief()
{
    briefSide("observations", m_comparison.observations().base.unmatched, true);
    briefSide("observations", m_comparison.observations().compare.unmatched, false);
    briefSide("variables", m_comparison.variables().baseOnly.size(), true);
    briefSide("variables", m_comparison.variables().compareOnly.size(), false);
    if (m_comparison.conflictingTypes() > 0) {
        addNote(
            fmt::format("{} variables have conflicting types.", m_comparison.conflictingTypes()));
    }
    std::vector<std::string> names;
    for (const ComparedVariable& variable : m_comparison.values()) {
        if (!variable.unequal.empty()) {
            names.push_back(pairName(m_comparison, variable.variables));
        }
    }
    if (!names.empty()) {
        addNote(fmt::format("Values of the following {} variables compare unequal: {}",
                            names.size(), fmt::join(names, " ")));
    } else {
        addNote(m_comparison.inexactValues() == 0 ? allEqualNote : withinCriterionNote);
    }
    m_out += '\n';
}

void Report::addDatasets()
{
    const StatDataset* const datasets[] = {&m_comparison.base(), &m_comparison.compare()};
    const bool hasLabel =
        std::any_of(std::begin(datasets), std::end(datasets),
                    [](const auto* set) { return !set->header().fileLabel.empty(); });
    std::vector<ReportTable::Column> columns{
        {"Dataset", false, true, 12}, {"Created"}, {"Modified"}, {"NVar", true}, {"NObs", true}};
    if (hasLabel) {
        columns.push_back({"Label", false, true, 8});
    }
    ReportTable table(std::move(columns));
    for (const StatDataset* dataset : datasets) {
        const bool isBase = dataset == &m_comparison.base();
        const DatasetHeader& header = dataset->header();
        std::vector<std::string> row{
            isBase ? m_comparison.baseName() : m_comparison.compareName(),
            timeText(header.creationTime),
            timeText(header.modificationTime),
            std::to_string(dataset->variableCount()),
            std::to_string(dataset->observationCount()),
        };
        if (hasLabel) {
            row.push_back(header.fileLabel);
        }
        table.add(std::move(row));
    }
    addHeading("Data Set Summary");
    add(table.lines(m_lineSize));
}

void Report::listObservations()
{
    const bool hasId = !m_comparison.variables().id.empty();
    Lines lines;
    for (const ObservationPair& pair : m_comparison.observations().pairs) {
        const bool inBase = pair.compare == noObservation;
        if (pair.isMatched()
            || !(inBase ? m_options.listBaseObservations : m_options.listCompareObservations)) {
            continue;
        }
        const auto& [own, other] = inBase
            ? std::pair(m_comparison.baseName(), m_comparison.compareName())
            : std::pair(m_comparison.compareName(), m_comparison.baseName());
        lines.push_back(fmt::format(
            "Observation {} in {} not found in {}{}.", (inBase ? pair.base : pair.compare) + 1, own,
            other, hasId ? ": " + observationText(m_comparison, pair) : std::string()));
    }
    if (!lines.empty()) {
        addHeading("Comparison Results for Observations");
        add(lines);
    }
}

std::vector<std::string> Report::observationTable() const
{
    const auto& pairs = m_comparison.observations().pairs;
    const bool hasId = !m_comparison.variables().id.empty();
    ReportTable table(hasId ? std::vector<ReportTable::Column>{{"Observation"},
                                                               {"Base", true, false, 8},
                                                               {"Compare", true, false, 8},
                                                               {"ID", false, true, 8}}
                            : std::vector<ReportTable::Column>{{"Observation"},
                                                               {"Base", true, false, 8},
                                                               {"Compare", true, false, 8}});
    const auto line = [&](const char* title, const ObservationPair& pair) {
        std::vector<std::string> row{title, obsNumber(pair.base), obsNumber(pair.compare)};
        if (hasId) {
            row.push_back(observationText(m_comparison, pair));
        }
        table.add(std::move(row));
    };
    if (pairs.empty()) {
        return {};
    }
    line("First Obs", pairs.front());
    const BitVector& unequal = m_comparison.unequalObservations();
    const auto first = unequal.find_first();
    if (first != BitVector::npos) {
        auto last = unequal.size() - 1;
        while (!unequal[last]) {
            --last;
        }
        line("First Unequal", pairs[first]);
        line("Last  Unequal", pairs[last]);
    }
    const auto lastMatch = std::find_if(pairs.rbegin(), pairs.rend(),
                                        [](const ObservationPair& p) { return p.isMatched(); });
    if (lastMatch == pairs.rbegin()) {
        line("Last  Obs", pairs.back());
        return table.lines(m_lineSize);
    }
    if (lastMatch != pairs.rend()) {
        line("Last  Match", *lastMatch);
    }
    // Behind the last match each side may have observations of its own.
    const auto lastOfSide = [&](bool ofBase) {
        return std::find_if(pairs.rbegin(), lastMatch, [&](const ObservationPair& pair) {
            return (ofBase ? pair.base : pair.compare) != noObservation;
        });
    };
    for (const auto& last : {lastOfSide(true), lastOfSide(false)}) {
        if (last != lastMatch) {
            line("Last  Obs", *last);
        }
    }
    return table.lines(m_lineSize);
}

std::vector<std::string> Report::observationCounts() const
{
    const ObservationMatch& match = m_comparison.observations();
    const std::size_t unequal = m_comparison.unequalObservations().count();
    Lines lines{fmt::format("Number of Observations in Common: {}.", match.matched())};
    const auto count = [&](const std::string& what, std::size_t number) {
        if (number > 0) {
            lines.push_back(fmt::format("Number of {}: {}.", what, number));
        }
    };
    count(onlyIn(m_comparison, "Observations", true), match.base.unmatched);
    count(onlyIn(m_comparison, "Observations", false), match.compare.unmatched);
    count("Duplicate Observations found in " + m_comparison.baseName(), match.base.duplicates);
    count("Duplicate Observations found in " + m_comparison.compareName(),
          match.compare.duplicates);
    for (const auto& [name, side] : {std::pair(m_comparison.baseName(), match.base),
                                     std::pair(m_comparison.compareName(), match.compare)}) {
        lines.push_back(
            fmt::format("Total Number of Observations Read from {}: {}.", name, side.read));
    }
    lines.emplace_back();
    lines.push_back(
        fmt::format("Number of Observations with Some Compared Variables Unequal: {}.", unequal));
    lines.push_back(fmt::format("Number of Observations with All Compared Variables Equal: {}.",
                                match.matched() - unequal));
    return lines;
}

void Report::addObservations()
{
    addHeading("Observation Summary");
    const Lines table = observationTable();
    if (!table.empty()) {
        add(table);
    }
    add(observationCounts());
}

void Report::addValues()
{
    if (m_comparison.inexactValues() == 0) {
        addNote(allEqualNote);
        m_out += '\n';
    } else {
        addHeading("Values Comparison Summary");
        add(valueCounts());
    }
    m_out += comparedVariables(m_comparison, m_options, m_lineSize);
}

std::vector<std::string> Report::valueCounts() const
{
    std::size_t equal = 0;
    std::size_t missing = 0;
    double maximum = 0;
    const bool measuresShares = isShare(m_comparison.rule().method());
    for (const ComparedVariable& variable : m_comparison.values()) {
        equal += variable.unequal.empty() ? 1U : 0U;
        missing += variable.missingDifferences > 0 ? 1U : 0U;
        if (isShare(variable.rule.method()) == measuresShares) {
            maximum = std::max(maximum, variable.maximum);
        }
    }
    Lines lines{fmt::format("Number of Variables Compared with All Observations Equal: {}.", equal),
                fmt::format("Number of Variables Compared with Some Observations Unequal: {}.",
                            m_comparison.values().size() - equal)};
    if (missing > 0) {
        lines.push_back(
            fmt::format("Number of Variables with Missing Value Differences: {}.", missing));
    }
    lines.push_back(fmt::format("Total Number of Values which Compare Unequal: {}.",
                                m_comparison.unequalValues()));
    if (m_comparison.inexactValues() != m_comparison.unequalValues()) {
        lines.push_back(fmt::format("Total Number of Values not EXACTLY Equal: {}.",
                                    m_comparison.inexactValues()));
    }
    if (maximum > 0) {
        lines.push_back(fmt::format("Maximum Difference{}: {:.6G}.",
                                    measuresShares ? " Criterion Value" : "", maximum));
    }
    return lines;
}

}  // namespace

void ReportOptions::listAll()
{
    listBaseVariables = listCompareVariables = listEqualVariables = true;
    listBaseObservations = listCompareObservations = true;
}

std::string reportText(const Comparison& comparison, const ReportOptions& options)
{
    return Report(comparison, options).write();
}

}  // namespace comparison
