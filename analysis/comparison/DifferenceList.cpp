#include "analysis/comparison/DifferenceList.h"

#include "analysis/comparison/ComparedTexts.h"
#include "data/values/AlignedText.h"

#include <fmt/format.h>

#include <cmath>

namespace comparison {

namespace {

std::string numberText(double number)
{
    if (std::isnan(number)) {
        return ".";
    }
    if (std::isinf(number)) {
        return number > 0 ? "Infinity" : "-Infinity";
    }
    return fmt::format("{:.17g}", number);
}

std::string observationNumber(std::uint32_t observation)
{
    return observation == noObservation ? std::string()
                                        : std::to_string(std::uint64_t{observation} + 1);
}

std::string quoted(const std::string& cell)
{
    if (cell.find_first_of(",\"\r\n") == std::string::npos) {
        return cell;
    }
    std::string out = "\"";
    for (const char letter : cell) {
        out.append(letter == '"' ? 2 : 1, letter);
    }
    return out + '"';
}

}  // namespace

DifferenceList::Line DifferenceList::titles() const
{
    Line titles{"Kind", "Variable", "BaseObs", "CompareObs"};
    for (const VariablePair& id : m_comparison.variables().id) {
        titles.push_back(m_comparison.base().names()[static_cast<std::size_t>(id.base)]);
    }
    titles.insert(titles.end(), {"Base", "Compare", "Difference", "Percent"});
    return titles;
}

void DifferenceList::forEachLine(const std::function<void(const Line&)>& take) const
{
    const std::vector<ObservationPair>& pairs = m_comparison.observations().pairs;
    for (const ObservationPair& pair : pairs) {
        if (!pair.isMatched()) {
            const char* const kind = pair.compare == noObservation ? "base only" : "compare only";
            take(line(kind, "", pair, {"", "", "", ""}));
        }
    }
    for (const ComparedVariable& variable : m_comparison.values()) {
        for (const std::uint32_t place : variable.unequal) {
            take(valueLine(variable, pairs[place]));
        }
    }
}

DifferenceList::Line DifferenceList::valueLine(const ComparedVariable& variable,
                                               const ObservationPair& pair) const
{
    const ValueTexts texts = valueTexts(m_comparison, variable, pair);
    std::string difference;
    std::string percent;
    if (variable.isNumeric) {
        const NumberDifference numbers = m_comparison.numbers(variable, pair);
        difference = numberText(numbers.difference);
        percent = numberText(numbers.percent);
    }
    return line("value", pairName(m_comparison, variable.variables), pair,
                {texts.base, texts.compare, difference, percent});
}

DifferenceList::Line DifferenceList::line(const char* kind, const std::string& variable,
                                          const ObservationPair& pair, const Line& values) const
{
    Line line{kind, variable, observationNumber(pair.base), observationNumber(pair.compare)};
    for (const VariablePair& id : m_comparison.variables().id) {
        line.push_back(idText(m_comparison, id, pair));
    }
    line.insert(line.end(), values.begin(), values.end());
    return line;
}

std::string listLine(const DifferenceList::Line& line, ListFormat format)
{
    std::string out;
    for (const std::string& cell : line) {
        if (&cell != line.data()) {
            out += format == ListFormat::Csv ? ',' : '\t';
        }
        out += format == ListFormat::Csv ? quoted(cell) : onOneLine(cell);
    }
    return out + '\n';
}

}  // namespace comparison
