#include "analysis/CellSearch.h"
#include "cli/Commands.h"

#include <fmt/format.h>

#include <algorithm>

namespace cli {

namespace {

/// One line for each cell found, or one JSON object.
class FoundPrinter
{
public:
    FoundPrinter(const StatDataset& dataset, OutputFormat format)
        : m_dataset(dataset)
        , m_isJson(format == OutputFormat::Json)
        , m_table(format, {true, false, false})
    {
        if (!m_isJson) {
            m_table.add({"Obs", "Variable", "Text"});
        }
    }

    void add(std::uint32_t observation, int variable)
    {
        const std::string& name = m_dataset.names()[static_cast<std::size_t>(variable)];
        const std::string text = m_dataset.cellText(static_cast<int>(observation), variable);
        if (m_isJson) {
            print(fmt::format("{{\"obs\":{},\"variable\":{},\"text\":{}}}\n", observation + 1,
                              jsonText(name), jsonText(text)));
        } else {
            m_table.add({std::to_string(observation + 1), name, text});
        }
    }
    void finish()
    {
        if (!m_isJson) {
            m_table.finish();
        }
    }

private:
    const StatDataset& m_dataset;
    bool m_isJson;
    TableWriter m_table;
};

std::vector<std::uint32_t> selectedObservations(const StatDataset& dataset)
{
    std::vector<std::uint32_t> observations;
    const BitVector& mask = dataset.datasetFilterMask();
    for (auto bit = mask.find_first(); bit != BitVector::npos; bit = mask.find_next(bit)) {
        observations.push_back(static_cast<std::uint32_t>(bit));
    }
    return observations;
}

}  // namespace

Result<bool> printFound(const StatDataset& dataset, const std::string& text, OutputFormat format)
{
    if (text.empty()) {
        return Failure{"there is no text to find"};
    }
    CellSearch search(dataset, QString::fromStdString(text));
    FoundPrinter printer(dataset, format);
    const std::vector<std::uint32_t> observations = selectedObservations(dataset);
    std::vector<std::uint64_t> words(static_cast<std::size_t>(dataset.variableCount()));
    for (std::size_t begin = 0; begin < observations.size(); begin += 64) {
        const std::span block(&observations[begin],
                              std::min<std::size_t>(64, observations.size() - begin));
        for (std::size_t variable = 0; variable < words.size(); ++variable) {
            words[variable] = search.word(static_cast<int>(variable), block);
        }
        for (std::size_t i = 0; i < block.size(); ++i) {
            for (std::size_t variable = 0; variable < words.size(); ++variable) {
                if ((words[variable] >> i & 1) != 0) {
                    printer.add(block[i], static_cast<int>(variable));
                }
            }
        }
    }
    printer.finish();
    return true;
}

}  // namespace cli
