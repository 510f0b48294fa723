#include "analysis/comparison/VariableMatch.h"

#include "data/StatDataset.h"
#include "grid/filter/VariableNames.h"

#include <fmt/format.h>

#include <QString>

#include <algorithm>
#include <map>
#include <optional>

namespace comparison {

namespace {

AttributeDifferences differing(const StatDataset& base, const StatDataset& compare, int b, int c)
{
    const auto i = static_cast<std::size_t>(b);
    const auto j = static_cast<std::size_t>(c);
    return {base.lengths()[i] != compare.lengths()[j],
            base.writtenFormat(b) != compare.writtenFormat(c),
            base.informats()[i] != compare.informats()[j], base.labels()[i] != compare.labels()[j]};
}

/// Whether a variable counts as there.
bool isCompared(const StatDataset& dataset, std::size_t variable, const Request& request)
{
    return request.passesOverFilters ? !dataset.countsRows(static_cast<int>(variable))
                                     : dataset.visibleVariables()[variable];
}

/// Finds each variable of the compare dataset once: the one of that very name first.
class NameTable
{
public:
    NameTable(const StatDataset& dataset, const Request& request)
        : m_isTaken(dataset.names().size())
    {
        for (std::size_t i = 0; i < m_isTaken.size(); ++i) {
            m_isTaken[i] = !isCompared(dataset, i, request);
            m_exact.emplace(dataset.names()[i], i);
            m_folded.emplace(folded(dataset.names()[i]), i);
        }
    }

    [[nodiscard]] std::optional<int> takeExact(const std::string& name)
    {
        const auto found = m_exact.find(name);
        return found == m_exact.end() ? std::nullopt : take(found->second);
    }
    [[nodiscard]] std::optional<int> takeFolded(const std::string& name)
    {
        const auto [begin, end] = m_folded.equal_range(folded(name));
        for (auto entry = begin; entry != end; ++entry) {
            if (const std::optional<int> taken = take(entry->second)) {
                return taken;
            }
        }
        return std::nullopt;
    }
    [[nodiscard]] std::vector<int> rest() const
    {
        std::vector<int> variables;
        for (std::size_t i = 0; i < m_isTaken.size(); ++i) {
            if (!m_isTaken[i]) {
                variables.push_back(static_cast<int>(i));
            }
        }
        return variables;
    }

private:
    static QString folded(const std::string& name)
    {
        return QString::fromStdString(name).toCaseFolded();
    }
    std::optional<int> take(std::size_t variable)
    {
        if (m_isTaken[variable]) {
            return std::nullopt;
        }
        m_isTaken[variable] = true;
        return static_cast<int>(variable);
    }

    std::vector<bool> m_isTaken;
    std::map<std::string, std::size_t> m_exact;
    std::multimap<QString, std::size_t> m_folded;
};

class Matcher
{
public:
    Matcher(const StatDataset& base, const StatDataset& compare, const Request& request)
        : m_base(base)
        , m_compare(compare)
        , m_request(request)
    { }

    Result<VariableMatch> match()
    {
        matchNames();
        for (const auto& step : {&Matcher::matchId, &Matcher::chooseCompared}) {
            if (const std::optional<Failure> failure = (this->*step)()) {
                return *failure;
            }
        }
        return std::move(m_match);
    }

private:
    [[nodiscard]] VariablePair pairOf(int base, int compare) const
    {
        return {base, compare, m_base.isNumeric(base) != m_compare.isNumeric(compare),
                differing(m_base, m_compare, base, compare)};
    }
    static std::optional<int> find(const StatDataset& dataset, const std::string& name)
    {
        return variablenames::find(dataset, QString::fromStdString(name));
    }
    [[nodiscard]] const std::string& baseName(int variable) const
    {
        return m_base.names()[static_cast<std::size_t>(variable)];
    }
    void note(std::string text) { m_match.notes.push_back(std::move(text)); }
    static Failure absent(const std::string& name, const std::string& dataset)
    {
        return {fmt::format("There is no variable named {} in the data set {}", name, dataset)};
    }

    void matchNames();
    [[nodiscard]] std::optional<Failure> matchId();
    [[nodiscard]] std::optional<Failure> chooseCompared();
    [[nodiscard]] std::optional<Failure> compareVar(std::size_t place);
    [[nodiscard]] bool isId(const VariablePair& pair) const;
    void compareCommon();

    const StatDataset& m_base;
    const StatDataset& m_compare;
    const Request& m_request;
    VariableMatch m_match;
};

void Matcher::matchNames()
{
    NameTable table(m_compare, m_request);
    const auto count = static_cast<std::size_t>(m_base.variableCount());
    std::vector<std::optional<int>> partner(count);
    for (const bool exactly : {true, false}) {
        for (std::size_t i = 0; i < count; ++i) {
            if (!partner[i] && isCompared(m_base, i, m_request)) {
                const std::string& name = m_base.names()[i];
                partner[i] = exactly ? table.takeExact(name) : table.takeFolded(name);
            }
        }
    }
    for (std::size_t i = 0; i < count; ++i) {
        const int variable = static_cast<int>(i);
        if (partner[i]) {
            m_match.common.push_back(pairOf(variable, *partner[i]));
        } else if (isCompared(m_base, i, m_request)) {
            m_match.baseOnly.push_back(variable);
        }
    }
    m_match.compareOnly = table.rest();
}

std::optional<Failure> Matcher::matchId()
{
    for (const std::string& name : m_request.id) {
        const std::optional<int> base = find(m_base, name);
        const std::optional<int> compare = find(m_compare, name);
        if (!base) {
            return absent(name, m_request.baseName);
        }
        if (!compare) {
            note(fmt::format("The ID variable {} is not in the data set {}; observations are "
                             "matched without it.",
                             baseName(*base), m_request.compareName));
            continue;
        }
        const VariablePair pair = pairOf(*base, *compare);
        if (pair.hasConflictingTypes) {
            return Failure{fmt::format("The ID variable {} is numeric in one data set and "
                                       "character in the other",
                                       baseName(*base))};
        }
        if (!isId(pair)) {
            m_match.id.push_back(pair);
        }
    }
    if (m_match.id.empty() && !m_request.id.empty()) {
        return Failure{
            fmt::format("None of the ID variables is in the data set {}", m_request.compareName)};
    }
    return std::nullopt;
}

bool Matcher::isId(const VariablePair& pair) const
{
    return std::any_of(m_match.id.begin(), m_match.id.end(), [&](const VariablePair& id) {
        return id.base == pair.base && id.compare == pair.compare;
    });
}

std::optional<Failure> Matcher::chooseCompared()
{
    if (m_request.with.size() > m_request.var.size()) {
        return Failure{"There are more WITH than VAR variables"};
    }
    m_match.varCount = m_request.var.size();
    m_match.withCount = m_request.with.size();
    if (m_request.var.empty()) {
        compareCommon();
    }
    for (std::size_t place = 0; place < m_request.var.size(); ++place) {
        if (std::optional<Failure> failure = compareVar(place)) {
            return failure;
        }
    }
    return std::nullopt;
}

void Matcher::compareCommon()
{
    std::copy_if(
        m_match.common.begin(), m_match.common.end(), std::back_inserter(m_match.compared),
        [&](const VariablePair& pair) { return !pair.hasConflictingTypes && !isId(pair); });
}

std::optional<Failure> Matcher::compareVar(std::size_t place)
{
    const std::string& name = m_request.var[place];
    const bool hasPartner = place < m_request.with.size();
    const std::string& partner = hasPartner ? m_request.with[place] : name;
    const std::optional<int> base = find(m_base, name);
    const std::optional<int> compare = find(m_compare, partner);
    if (!base) {
        return absent(name, m_request.baseName);
    }
    if (!compare) {
        note(fmt::format("The variable {} is not in the data set {}; it is not compared.", partner,
                         m_request.compareName));
        return std::nullopt;
    }
    const VariablePair pair = pairOf(*base, *compare);
    if (pair.hasConflictingTypes) {
        note(fmt::format("The variables {} and {} have conflicting types; they are not compared.",
                         name, partner));
    } else {
        m_match.compared.push_back(pair);
    }
    return std::nullopt;
}

}  // namespace

Result<VariableMatch> matchVariables(const StatDataset& base, const StatDataset& compare,
                                     const Request& request)
{
    return Matcher(base, compare, request).match();
}

}  // namespace comparison
