#include "data/readers/CsvDelimiter.h"

#include "data/readers/CsvTokens.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace {

constexpr std::size_t recordsLookedAt = 200;

/// Counts the fields of the first records.
class FieldCounts : public CsvSink
{
public:
    void field(std::string_view) override { ++m_fields; }
    void endRecord() override
    {
        if (m_counts.size() < recordsLookedAt) {
            m_counts.push_back(m_fields);
        }
        m_fields = 0;
    }
    [[nodiscard]] const std::vector<int>& counts() const { return m_counts; }

private:
    int m_fields = 0;
    std::vector<int> m_counts;
};

/// How well a delimiter divides the text: the share of records that are like the first, and the
/// number of fields. The last record may be cut, unless it is the only one.
std::tuple<double, int> fitOf(char delimiter, std::string_view beginning)
{
    FieldCounts sink;
    CsvTokens tokens(delimiter, CsvTokens::Quotes::Lenient, sink);
    const bool isWhole = tokens.add(beginning) && tokens.finish();
    const std::vector<int>& counts = sink.counts();
    const std::size_t records = counts.size() > 1 && !isWhole ? counts.size() - 1 : counts.size();
    if (records == 0 || counts.front() < 2) {
        return {0.0, 0};
    }
    const auto end = counts.begin() + static_cast<std::ptrdiff_t>(records);
    const auto alike = std::count(counts.begin(), end, counts.front());
    return {static_cast<double>(alike) / static_cast<double>(records), counts.front()};
}

}  // namespace

char csvDelimiter(std::string_view beginning)
{
    char best = ',';
    std::tuple<double, int> bestFit{0.0, 0};
    for (const char candidate : {',', ';', '\t', '|'}) {
        if (const auto fit = fitOf(candidate, beginning); fit > bestFit) {
            best = candidate;
            bestFit = fit;
        }
    }
    return best;
}
