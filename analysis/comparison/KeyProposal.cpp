#include "analysis/comparison/KeyProposal.h"

#include "analysis/RowGroups.h"
#include "data/StatDataset.h"
#include "grid/filter/VariableNames.h"

#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace comparison {

namespace {

/// A variable of both datasets.
struct Key
{
    int base;
    int compare;
};

/// Who an observation is about: taken whether or not they tell observations apart.
constexpr std::array<std::string_view, 8> subjects{"STUDYID", "RDOMAIN", "USUBJID", "APID",
                                                   "POOLID",  "SPDEVID", "IDVAR",   "IDVARVAL"};

/// What tells the observations of a subject apart, the best first; "--" stands for the two letters
/// of a domain.
constexpr std::array<std::string_view, 22> details{
    "QNAM",     "--SEQ",   "ASEQ",   "RELID", "PARAMCD",  "--TESTCD", "AVISITN", "AVISIT",
    "VISITNUM", "VISIT",   "ATPTN",  "ATPT",  "--TPTNUM", "--TPT",    "ADTM",    "ADT",
    "--DTC",    "--STDTC", "ASTDTM", "ASTDT", "DTYPE",    "BASETYPE"};

/// So many variables are tried alone where no usual one is there.
constexpr int mostTried = 20;

bool isNamed(std::string_view name, std::string_view pattern)
{
    if (pattern.starts_with("--")) {
        return name.size() == pattern.size() && name.substr(2) == pattern.substr(2);
    }
    return name == pattern;
}

class Proposal
{
public:
    Proposal(const StatDataset& base, const StatDataset& compare)
        : m_base(base)
        , m_compare(compare)
    { }

    std::vector<Key> keys()
    {
        if (takeDeclared()) {
            return m_keys;
        }
        takeUsual();
        if (m_keys.empty()) {
            takeFirstUnique();
        }
        return m_keys;
    }

private:
    [[nodiscard]] std::optional<Key> keyOf(int base) const
    {
        const auto compare = variablenames::find(
            m_compare, QString::fromStdString(m_base.names()[static_cast<std::size_t>(base)]));
        if (!compare || m_base.isNumeric(base) != m_compare.isNumeric(*compare)) {
            return std::nullopt;
        }
        return Key{base, *compare};
    }
    bool takeDeclared();
    void takeUsual();
    void takeFirstUnique();
    [[nodiscard]] std::vector<Key> keysNamed(std::string_view pattern) const;

    /// Into how many groups the keys part the observations of both datasets together.
    [[nodiscard]] std::size_t groupCount(const std::vector<Key>& keys) const
    {
        return groupCount(m_base, keys, &Key::base) + groupCount(m_compare, keys, &Key::compare);
    }
    static std::size_t groupCount(const StatDataset& dataset, const std::vector<Key>& keys,
                                  int Key::*side)
    {
        const std::vector<std::uint32_t> rows = allObservations(dataset);
        std::vector<int> variables;
        variables.reserve(keys.size());
        for (const Key& key : keys) {
            variables.push_back(key.*side);
        }
        return RowGroups(dataset, variables, rows).size();
    }
    [[nodiscard]] std::size_t observations() const
    {
        return static_cast<std::size_t>(m_base.observationCount())
            + static_cast<std::size_t>(m_compare.observationCount());
    }

    const StatDataset& m_base;
    const StatDataset& m_compare;
    std::vector<Key> m_keys;
};

bool Proposal::takeDeclared()
{
    for (const int variable : m_base.keyVariables()) {
        if (const std::optional<Key> key = keyOf(variable)) {
            m_keys.push_back(*key);
        }
    }
    if (m_keys.size() == m_base.keyVariables().size() && !m_keys.empty()) {
        return true;
    }
    m_keys.clear();
    for (const int variable : m_compare.keyVariables()) {
        const auto base = variablenames::find(
            m_base, QString::fromStdString(m_compare.names()[static_cast<std::size_t>(variable)]));
        if (base && keyOf(*base)) {
            m_keys.push_back(*keyOf(*base));
        }
    }
    if (m_keys.size() == m_compare.keyVariables().size() && !m_keys.empty()) {
        return true;
    }
    m_keys.clear();
    return false;
}

std::vector<Key> Proposal::keysNamed(std::string_view pattern) const
{
    std::vector<Key> keys;
    for (int variable = 0; variable < m_base.variableCount(); ++variable) {
        const QString name =
            QString::fromStdString(m_base.names()[static_cast<std::size_t>(variable)]).toUpper();
        if (isNamed(name.toStdString(), pattern)) {
            if (const std::optional<Key> key = keyOf(variable)) {
                keys.push_back(*key);
            }
        }
    }
    return keys;
}

void Proposal::takeUsual()
{
    for (const std::string_view pattern : subjects) {
        const std::vector<Key> found = keysNamed(pattern);
        m_keys.insert(m_keys.end(), found.begin(), found.end());
    }
    std::size_t groups = groupCount(m_keys);
    for (const std::string_view pattern : details) {
        for (const Key& key : keysNamed(pattern)) {
            if (groups == observations()) {
                return;
            }
            std::vector<Key> more = m_keys;
            more.push_back(key);
            if (const std::size_t finer = groupCount(more); finer > groups) {
                m_keys = std::move(more);
                groups = finer;
            }
        }
    }
}

void Proposal::takeFirstUnique()
{
    const int count = std::min(m_base.variableCount(), mostTried);
    for (int variable = 0; variable < count; ++variable) {
        const std::optional<Key> key = keyOf(variable);
        if (key && observations() > 0 && groupCount({*key}) == observations()) {
            m_keys = {*key};
            return;
        }
    }
}

}  // namespace

std::vector<std::string> proposedKeys(const StatDataset& base, const StatDataset& compare)
{
    std::vector<std::string> names;
    for (const Key& key : Proposal(base, compare).keys()) {
        names.push_back(base.names()[static_cast<std::size_t>(key.base)]);
    }
    return names;
}

Result<std::size_t> repeatedKeys(const StatDataset& dataset, const std::vector<std::string>& names,
                                 bool passesOverFilters)
{
    std::vector<int> variables;
    for (const std::string& name : names) {
        const auto variable = variablenames::find(dataset, QString::fromStdString(name));
        if (!variable) {
            return Failure{"There is no variable named " + name};
        }
        variables.push_back(*variable);
    }
    const std::vector<std::uint32_t> rows =
        passesOverFilters ? allObservations(dataset) : selectedObservations(dataset);
    return rows.size() - RowGroups(dataset, variables, rows).size();
}

}  // namespace comparison
