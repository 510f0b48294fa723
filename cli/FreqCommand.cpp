#include "analysis/Frequencies.h"
#include "cli/Commands.h"
#include "cli/Selection.h"

#include <fmt/format.h>

namespace cli {

namespace {

using Frequencies = std::vector<WordsAndCounts>;

std::vector<std::string> splitAtStars(std::string_view text)
{
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t star = text.find('*');
        parts.emplace_back(text.substr(0, star));
        if (star == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(star + 1);
    }
}

using Variables = std::vector<int>;

std::vector<std::string> texts(const StatDataset& dataset, const Variables& variables,
                               const WordsAndCounts& line)
{
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < variables.size(); ++i) {
        texts.push_back(frequencies::displayText(dataset, variables[i], line.values[i]));
    }
    return texts;
}

/// As it is stored; null where missing.
std::string jsonValue(const FreqValue& value)
{
    if (const auto* text = std::get_if<std::string_view>(&value)) {
        return jsonText(*text);
    }
    const auto* number = std::get_if<double>(&value);
    return number == nullptr ? "null" : jsonNumber(*number);
}

void printJson(const StatDataset& dataset, const Variables& variables,
               const Frequencies& frequencies)
{
    for (const WordsAndCounts& one : frequencies) {
        std::string values;
        for (const FreqValue& value : one.values) {
            values += values.empty() ? "" : ",";
            values += jsonValue(value);
        }
        print(fmt::format("{{\"values\":[{}],\"texts\":[{}],\"count\":{}}}\n", values,
                          jsonTexts(texts(dataset, variables, one)), one.count));
    }
}

void printTable(const StatDataset& dataset, const Variables& variables,
                const Frequencies& frequencies, const std::string& title, OutputFormat format)
{
    std::vector<std::string> titles;
    std::vector<bool> alignRight;
    for (const int variable : variables) {
        titles.push_back(dataset.names()[static_cast<std::size_t>(variable)]);
        alignRight.push_back(dataset.isNumeric(variable));
    }
    titles.push_back(title);
    alignRight.push_back(true);
    TableWriter table(format, std::move(alignRight));
    table.add(titles);
    for (const WordsAndCounts& one : frequencies) {
        std::vector<std::string> line = texts(dataset, variables, one);
        line.push_back(std::to_string(one.count));
        table.add(line);
    }
    table.finish();
}

}  // namespace

Result<bool> printFrequencies(const StatDataset& dataset, const FreqRequest& request,
                              OutputFormat format)
{
    const Result<std::vector<int>> variables =
        variablesNamed(dataset, splitAtStars(request.variables));
    if (!variables) {
        return Failure{variables.error()};
    }
    const Frequencies counted = request.distinct
        ? frequencies::distinctIds(dataset, variables.value(), request.idName)
        : frequencies::plain(dataset, variables.value());
    if (format == OutputFormat::Json) {
        printJson(dataset, variables.value(), counted);
    } else {
        const std::string title =
            request.distinct ? fmt::format("Freq ({})", request.idName) : "Frequency";
        printTable(dataset, variables.value(), counted, title, format);
    }
    return true;
}

}  // namespace cli
