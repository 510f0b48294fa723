#include "cli/FreqCommand.h"

#include "analysis/Frequencies.h"
#include "cli/Selection.h"

#include <fmt/format.h>

#include <algorithm>

namespace cli {

namespace {

/// Lines for people are aligned so many at a time, so that long lists flow.
constexpr std::size_t linesPerBlock = 1000;

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

class FreqPrinter
{
public:
    FreqPrinter(const StatDataset& dataset, const std::vector<int>& variables, std::string title)
        : m_dataset(dataset)
        , m_variables(variables)
        , m_title(std::move(title))
    { }
    void print(const Frequencies& frequencies, OutputFormat format) const;

private:
    void printJson(const Frequencies& frequencies) const;
    void printTsv(const Frequencies& frequencies) const;
    void printText(const Frequencies& frequencies) const;
    [[nodiscard]] const std::string& nameOf(int variable) const
    {
        return m_dataset.names()[static_cast<std::size_t>(variable)];
    }
    [[nodiscard]] std::vector<std::string> texts(const WordsAndCounts& line) const;

    const StatDataset& m_dataset;
    const std::vector<int>& m_variables;
    std::string m_title;  ///< of the counts
};

void FreqPrinter::print(const Frequencies& frequencies, OutputFormat format) const
{
    switch (format) {
    case OutputFormat::Json:
        printJson(frequencies);
        break;
    case OutputFormat::Tsv:
        printTsv(frequencies);
        break;
    case OutputFormat::Text:
        printText(frequencies);
        break;
    }
}

void FreqPrinter::printJson(const Frequencies& frequencies) const
{
    for (const WordsAndCounts& one : frequencies) {
        std::string values;
        for (const std::string& text : texts(one)) {
            values += values.empty() ? "" : ",";
            values += jsonText(text);
        }
        cli::print(fmt::format("{{\"values\":[{}],\"count\":{}}}\n", values, one.count));
    }
}

void FreqPrinter::printTsv(const Frequencies& frequencies) const
{
    std::string line;
    for (const int variable : m_variables) {
        line += tsvText(nameOf(variable)) + '\t';
    }
    cli::print(line + tsvText(m_title) + '\n');
    for (const WordsAndCounts& one : frequencies) {
        line.clear();
        for (const std::string& text : texts(one)) {
            line += tsvText(text) + '\t';
        }
        cli::print(line + std::to_string(one.count) + '\n');
    }
}

void FreqPrinter::printText(const Frequencies& frequencies) const
{
    std::vector<std::string> titles;
    std::vector<bool> alignRight;
    for (const int variable : m_variables) {
        titles.push_back(nameOf(variable));
        alignRight.push_back(m_dataset.isNumeric(variable));
    }
    titles.push_back(m_title);
    alignRight.push_back(true);
    TextTable table;
    table.add(std::move(titles));
    for (std::size_t i = 0; i < frequencies.size(); ++i) {
        std::vector<std::string> line;
        for (const std::string& text : texts(frequencies[i])) {
            line.push_back(tsvText(text));
        }
        line.push_back(std::to_string(frequencies[i].count));
        table.add(std::move(line));
        if ((i + 1) % linesPerBlock == 0) {
            table.print(alignRight);
        }
    }
    table.print(alignRight);
}

std::vector<std::string> FreqPrinter::texts(const WordsAndCounts& line) const
{
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < m_variables.size(); ++i) {
        texts.push_back(frequencies::displayText(m_dataset, m_variables[i], line.values[i]));
    }
    return texts;
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
    const std::string title =
        request.distinct ? fmt::format("Freq ({})", request.idName) : std::string("Frequency");
    FreqPrinter(dataset, variables.value(), title)
        .print(request.distinct
                   ? frequencies::distinctIds(dataset, variables.value(), request.idName)
                   : frequencies::plain(dataset, variables.value()),
               format);
    return true;
}

}  // namespace cli
