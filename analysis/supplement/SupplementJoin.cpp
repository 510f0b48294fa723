#include "analysis/supplement/SupplementJoin.h"

#include "analysis/supplement/ParentRows.h"
#include "analysis/supplement/QualifierColumns.h"
#include "analysis/supplement/QualifierRows.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

namespace supplement {
namespace {

/// The parent's variables that say to whom an observation belongs.
struct ParentVariables
{
    int study;
    int domain;
    int subject;
    int pool;
    int device;
};

class Joiner
{
public:
    Joiner(const StatDataset& parent, const ParentVariables& variables, Joined& joined)
        : m_parent(parent)
        , m_variables(variables)
        , m_rows(parent)
        , m_columns(parent.observationCount())
        , m_joined(joined)
    { }

    void add(const QualifierRows& rows);
    [[nodiscard]] std::vector<ExtendedDataset::Column> takeColumns()
    {
        return m_columns.take(m_parent, m_joined.notes);
    }

private:
    [[nodiscard]] std::optional<Fault> faultOf(const Qualifier& qualifier) const;
    [[nodiscard]] std::vector<KeyPart> subjectOf(const Qualifier& qualifier) const;
    void join(const Qualifier& qualifier, std::size_t column, RowPlace place);
    void fill(const Qualifier& qualifier, std::size_t column, RowPlace place,
              const std::vector<std::uint32_t>& observations);
    Finding& report(Fault fault, const Qualifier& qualifier, RowPlace place);

    const StatDataset& m_parent;
    ParentVariables m_variables;
    ParentRows m_rows;
    QualifierColumns m_columns;
    Joined& m_joined;
    std::uint32_t m_supplement = 0;
};

/// What can be told of a row without a look at the observations.
std::optional<Fault> Joiner::faultOf(const Qualifier& qualifier) const
{
    if (qualifier.value.empty()) {
        return Fault::NoValue;
    }
    if (qualifier.subject.empty() && qualifier.pool.empty() && qualifier.device.empty()) {
        return Fault::NoSubject;
    }
    if (qualifier.idVariable.empty()) {
        return qualifier.idValue.empty() ? std::nullopt : std::optional(Fault::NoIdVariable);
    }
    const int variable = variableOf(m_parent, qualifier.idVariable);
    if (variable < 0) {
        return Fault::UnknownIdVariable;
    }
    if (qualifier.idValue.empty()) {
        return Fault::NoIdValue;
    }
    const bool isNoNumber =
        m_parent.isNumeric(variable) && !ParentRows::numberOf(qualifier.idValue);
    return isNoNumber ? std::optional(Fault::NoNumber) : std::nullopt;
}

/// A subject, pool or device that the row leaves blank is not asked for.
std::vector<KeyPart> Joiner::subjectOf(const Qualifier& qualifier) const
{
    std::vector<KeyPart> parts{{m_variables.study, qualifier.study},
                               {m_variables.domain, qualifier.domain}};
    for (const auto& [variable, text] : {KeyPart(m_variables.subject, qualifier.subject),
                                         KeyPart(m_variables.pool, qualifier.pool),
                                         KeyPart(m_variables.device, qualifier.device)}) {
        if (variable >= 0 && !text.empty()) {
            parts.emplace_back(variable, text);
        }
    }
    return parts;
}

void Joiner::add(const QualifierRows& rows)
{
    std::set<std::string> domains;
    for (int row = 0; row < m_parent.observationCount(); ++row) {
        domains.insert(keyText(m_parent, row, m_variables.domain));
    }
    const std::string& dataset = m_joined.supplements[m_supplement];
    for (int row = 0; row < rows.count(); ++row) {
        const RowPlace place{m_supplement, static_cast<std::uint32_t>(row)};
        const Qualifier qualifier = rows.at(row);
        if (!domains.contains(qualifier.domain) && !domains.empty()) {
            report(Fault::OtherDomain, qualifier, place);
        } else if (qualifier.name.empty()) {
            report(Fault::NoName, qualifier, place);
        } else {
            // Also for a row that has no cell to go to: its variable is not to be missed.
            const std::size_t column = m_columns.columnOf(rows, row, qualifier.name, dataset);
            if (const std::optional<Fault> fault = faultOf(qualifier)) {
                report(*fault, qualifier, place);
            } else {
                join(qualifier, column, place);
            }
        }
    }
    ++m_supplement;
}

void Joiner::join(const Qualifier& qualifier, std::size_t column, RowPlace place)
{
    const std::vector<KeyPart> subject = subjectOf(qualifier);
    std::vector<KeyPart> parts = subject;
    if (!qualifier.idVariable.empty()) {
        parts.emplace_back(variableOf(m_parent, qualifier.idVariable), qualifier.idValue);
    }
    const std::vector<std::uint32_t> observations = m_rows.find(parts);
    if (observations.empty()) {
        const bool isKnown = parts.size() > subject.size() && !m_rows.find(subject).empty();
        report(isKnown ? Fault::NoObservation : Fault::UnknownSubject, qualifier, place);
    }
    fill(qualifier, column, place, observations);
}

/// One finding for all cells of a row that have another value already.
void Joiner::fill(const Qualifier& qualifier, std::size_t column, RowPlace place,
                  const std::vector<std::uint32_t>& observations)
{
    Finding* conflict = nullptr;
    for (const std::uint32_t observation : observations) {
        const auto before = m_columns.put(column, observation, qualifier.value, place);
        if (!before) {
            continue;
        }
        if (conflict == nullptr) {
            conflict = &report(Fault::Conflict, qualifier, place);
            conflict->otherSupplement = before->place.supplement;
            conflict->otherRow = static_cast<int>(before->place.row);
            conflict->otherValue = before->value;
            conflict->observation = static_cast<int>(observation);
        }
        ++conflict->observations;
    }
}

Finding& Joiner::report(Fault fault, const Qualifier& qualifier, RowPlace place)
{
    Finding& finding = m_joined.findings.emplace_back();
    finding.fault = fault;
    finding.supplement = place.supplement;
    finding.row = static_cast<int>(place.row);
    finding.domain = qualifier.domain;
    finding.subject = !qualifier.subject.empty() ? qualifier.subject
        : !qualifier.pool.empty()                ? qualifier.pool
                                                 : qualifier.device;
    finding.idVariable = qualifier.idVariable;
    finding.idValue = qualifier.idValue;
    finding.name = qualifier.name;
    finding.value = qualifier.value;
    return finding;
}

/// The rows of all SUPP-- datasets, each of which the parent can be joined with.
Result<std::vector<QualifierRows>> checkedRows(const StatDataset& parent,
                                               const std::string& subject,
                                               const std::vector<Supplement>& supplements)
{
    std::vector<QualifierRows> all;
    for (const Supplement& supplement : supplements) {
        Result<QualifierRows> rows = QualifierRows::of(*supplement.dataset);
        if (!rows) {
            return Failure{rows.error()};
        }
        if (rows.value().subjectName() != subject) {
            return Failure{fmt::format("{}: There is no variable named {}", parent.datasetName(),
                                       rows.value().subjectName())};
        }
        all.push_back(std::move(rows.value()));
    }
    return all;
}

std::string otherDomainOf(const StatDataset& parent, const Joined& joined,
                          const std::vector<QualifierRows>& supplements)
{
    std::vector<int> strangers(supplements.size(), 0);
    for (const Finding& finding : joined.findings) {
        strangers[finding.supplement] += finding.fault == Fault::OtherDomain ? 1 : 0;
    }
    for (std::size_t i = 0; i < supplements.size(); ++i) {
        if (strangers[i] > 0 && strangers[i] == supplements[i].count()) {
            return fmt::format("{}: None of its rows belongs to {}; RDOMAIN is {}",
                               joined.supplements[i], parent.datasetName(),
                               supplements[i].domain(0));
        }
    }
    return {};
}

ExtendedDataset::Description descriptionOf(const StatDataset& parent, const std::string& file,
                                           const std::vector<Supplement>& supplements,
                                           const Joined& joined)
{
    ExtendedDataset::Description description{parent.datasetName(), {{parent.datasetName(), file}}};
    for (std::size_t i = 0; i < supplements.size(); ++i) {
        description.name += " + " + joined.supplements[i];
        description.attributes.emplace_back(joined.supplements[i], supplements[i].file);
    }
    return description;
}

}  // namespace

int Joined::conflicts() const
{
    return static_cast<int>(
        std::count_if(findings.begin(), findings.end(),
                      [](const Finding& each) { return each.fault == Fault::Conflict; }));
}

int Joined::unmatched() const
{
    return static_cast<int>(findings.size()) - conflicts();
}

std::string whyNoParent(const StatDataset& dataset)
{
    const std::string missing = missingVariables(dataset, {"STUDYID", "DOMAIN"});
    if (!missing.empty()) {
        return fmt::format("{}: There is no variable named {}", dataset.datasetName(), missing);
    }
    const Result<std::string> subject = subjectVariable(dataset);
    return subject ? std::string() : subject.error();
}

Result<Joined> join(std::unique_ptr<StatDataset> parent, const std::string& file,
                    const std::vector<Supplement>& supplements)
{
    if (const std::string why = whyNoParent(*parent); !why.empty()) {
        return Failure{why};
    }
    const std::string subject = subjectVariable(*parent).value();
    const auto rows = checkedRows(*parent, subject, supplements);
    if (!rows) {
        return Failure{rows.error()};
    }
    Joined joined;
    for (const Supplement& supplement : supplements) {
        joined.supplements.push_back(supplement.dataset->datasetName());
    }
    Joiner joiner(*parent,
                  {variableOf(*parent, "STUDYID"), variableOf(*parent, "DOMAIN"),
                   variableOf(*parent, subject), variableOf(*parent, "POOLID"),
                   variableOf(*parent, "SPDEVID")},
                  joined);
    for (const QualifierRows& each : rows.value()) {
        joiner.add(each);
    }
    if (const std::string why = otherDomainOf(*parent, joined, rows.value()); !why.empty()) {
        return Failure{why};
    }
    const std::vector<ExtendedDataset::Column> columns = joiner.takeColumns();
    joined.joinedVariables = static_cast<int>(columns.size());
    auto description = descriptionOf(*parent, file, supplements, joined);
    auto dataset =
        std::make_unique<ExtendedDataset>(std::move(parent), std::move(description), columns);
    for (std::size_t i = 0; i < supplements.size(); ++i) {
        for (const std::string& note : supplements[i].dataset->damageNotes()) {
            dataset->addDamageNote(fmt::format("{}: {}", joined.supplements[i], note));
        }
    }
    joined.dataset = std::move(dataset);
    return joined;
}

std::string sentenceOf(const Joined& joined, const Finding& finding)
{
    switch (finding.fault) {
    case Fault::NoName:
        return "QNAM is blank";
    case Fault::NoValue:
        return "QVAL is blank";
    case Fault::OtherDomain:
        return fmt::format("RDOMAIN is {}, which is not the domain of the observations",
                           finding.domain);
    case Fault::NoSubject:
        return "It names no subject";
    case Fault::NoIdVariable:
        return "IDVARVAL has no IDVAR";
    case Fault::UnknownIdVariable:
        return fmt::format("There is no variable named {}", finding.idVariable);
    case Fault::NoIdValue:
        return "IDVARVAL is blank";
    case Fault::NoNumber:
        return fmt::format("{} is numeric, and IDVARVAL is no number", finding.idVariable);
    case Fault::UnknownSubject:
        return "No observation belongs to this subject";
    case Fault::NoObservation:
        return fmt::format("The subject has no observation with this {}", finding.idVariable);
    case Fault::Conflict:
        break;
    }
    return fmt::format("Row {} of {} has another value: {}", finding.otherRow + 1,
                       joined.supplements[finding.otherSupplement], finding.otherValue);
}

std::string lineOf(const Joined& joined, const Finding& finding)
{
    const std::string id = finding.idVariable.empty() && finding.idValue.empty()
        ? std::string()
        : fmt::format(" {}={}", finding.idVariable, finding.idValue);
    return fmt::format("{} row {}, {}{} {}={}: {}", joined.supplements[finding.supplement],
                       finding.row + 1, finding.subject, id, finding.name, finding.value,
                       sentenceOf(joined, finding));
}

}  // namespace supplement
