#pragma once

#include "data/StatDataset.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace supplement {

/// A variable of the parent and the value that it is to have.
using KeyPart = std::pair<int, std::string>;

/// Finds the observations of a dataset by the values of some variables. Texts are equal up to the
/// blanks at their ends. Where a variable is numeric, the text that is sought is read as a number;
/// a fraction that no observation has to its last digit is sought as SAS prints it (BEST12.), which
/// is how it came to be a text.
class ParentRows
{
public:
    explicit ParentRows(const StatDataset& parent)
        : m_parent(parent)
    { }

    /// The observations that have all the values, ascending. The variables stand in the same order
    /// at each call. For each set of variables the dataset is gone through once.
    [[nodiscard]] std::vector<std::uint32_t> find(const std::vector<KeyPart>& parts);

    /// The number that a text is; nothing for "", "1,5" or "inf".
    [[nodiscard]] static std::optional<double> numberOf(const std::string& text);

private:
    /// The rows of one key are a chain from the first to the last.
    struct Index
    {
        std::unordered_map<std::string, std::uint32_t> first;
        std::vector<std::uint32_t> next;
    };
    using Variables = std::vector<int>;

    [[nodiscard]] const Index& indexOf(const Variables& variables, bool isRounded);
    [[nodiscard]] bool addRowKey(std::string& key, std::uint32_t row, int variable,
                                 bool isRounded) const;
    [[nodiscard]] bool addKey(std::string& key, const KeyPart& part, bool isRounded) const;
    [[nodiscard]] std::vector<std::uint32_t> find(const std::vector<KeyPart>& parts,
                                                  bool isRounded);

    const StatDataset& m_parent;
    std::map<std::pair<Variables, bool>, Index> m_indexes;
};

}  // namespace supplement
