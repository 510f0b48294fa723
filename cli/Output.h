#pragma once

#include "data/values/AlignedText.h"
#include "data/values/WrittenJson.h"

#include <string>
#include <string_view>
#include <vector>

namespace cli {

enum class OutputFormat
{
    Text,
    Json,
    Tsv
};

/// Writes to standard output.
void print(std::string_view text);

/// Writes a table as text or as tab-separated values, whichever is asked for: the first line holds
/// the titles. Tabs, line breaks and backslashes are escaped in both.
class TableWriter
{
public:
    /// @param alignRight  whether each column holds numbers, which text aligns to the right;
    /// columns
    ///                    beyond its end hold none
    explicit TableWriter(OutputFormat format, std::vector<bool> alignRight = {})
        : m_format(format)
        , m_lines(std::move(alignRight))
    { }
    /// Text waits for others that it is aligned with, but not for so many that nothing flows.
    void add(const std::vector<std::string>& line);
    /// Prints what is waiting.
    void finish();

private:
    OutputFormat m_format;
    AlignedText m_lines;
};

}  // namespace cli
