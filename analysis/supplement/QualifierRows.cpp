#include "analysis/supplement/QualifierRows.h"

#include "data/values/NumberText.h"
#include "data/values/Texts.h"
#include "grid/filter/VariableNames.h"

#include <fmt/format.h>

namespace supplement {

std::string keyText(const StatDataset& dataset, int row, int variable)
{
    if (dataset.isCharacter(variable)) {
        std::string text = texts::trimmed(dataset.stringValue(row, variable));
        return text == dataset.missingText(variable) ? std::string() : text;
    }
    const double number = dataset.numericValue(row, variable);
    return dataset.missingMark(variable).isMissing(number) ? std::string()
                                                           : numbertext::shortest(number);
}

int variableOf(const StatDataset& dataset, std::string_view name)
{
    return variablenames::find(dataset,
                               QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())))
        .value_or(-1);
}

Result<std::string> subjectVariable(const StatDataset& dataset)
{
    const bool hasSubject = variableOf(dataset, "USUBJID") >= 0;
    const bool hasAssociated = variableOf(dataset, "APID") >= 0;
    if (hasSubject == hasAssociated) {
        return Failure{fmt::format("{}: {}", dataset.datasetName(),
                                   hasSubject ? "It has both USUBJID and APID; one of them is to "
                                                "name the subject"
                                              : "It has neither USUBJID nor APID")};
    }
    return std::string(hasSubject ? "USUBJID" : "APID");
}

std::string missingVariables(const StatDataset& dataset, const std::vector<std::string>& names)
{
    std::vector<std::string> missing;
    for (const std::string& name : names) {
        if (variableOf(dataset, name) < 0) {
            missing.push_back(name);
        }
    }
    return fmt::format("{}", fmt::join(missing, ", "));
}

Result<QualifierRows> QualifierRows::of(const StatDataset& dataset)
{
    const std::string missing =
        missingVariables(dataset, {"STUDYID", "RDOMAIN", "IDVAR", "IDVARVAL", "QNAM", "QVAL"});
    if (!missing.empty()) {
        return Failure{fmt::format("{}: It is no SUPP-- dataset, as it lacks {}",
                                   dataset.datasetName(), missing)};
    }
    const Result<std::string> subject = subjectVariable(dataset);
    if (!subject) {
        return Failure{subject.error()};
    }
    return QualifierRows(dataset, subject.value());
}

QualifierRows::QualifierRows(const StatDataset& dataset, std::string subjectName)
    : m_dataset(&dataset)
    , m_subjectName(std::move(subjectName))
    , m_study(variableOf(dataset, "STUDYID"))
    , m_domain(variableOf(dataset, "RDOMAIN"))
    , m_subject(variableOf(dataset, m_subjectName))
    , m_pool(variableOf(dataset, "POOLID"))
    , m_device(variableOf(dataset, "SPDEVID"))
    , m_idVariable(variableOf(dataset, "IDVAR"))
    , m_idValue(variableOf(dataset, "IDVARVAL"))
    , m_name(variableOf(dataset, "QNAM"))
    , m_label(variableOf(dataset, "QLABEL"))
    , m_value(variableOf(dataset, "QVAL"))
    , m_origin(variableOf(dataset, "QORIG"))
    , m_evaluator(variableOf(dataset, "QEVAL"))
{ }

std::string QualifierRows::text(int row, int variable) const
{
    return variable < 0 ? std::string() : keyText(*m_dataset, row, variable);
}

std::string QualifierRows::value(int row) const
{
    if (m_dataset->isNumeric(m_value)) {
        return keyText(*m_dataset, row, m_value);
    }
    std::string text = m_dataset->stringValue(row, m_value);
    text.erase(text.find_last_not_of(' ') + 1);
    return text == m_dataset->missingText(m_value) ? std::string() : text;
}

Qualifier QualifierRows::at(int row) const
{
    std::string idVariable = text(row, m_idVariable);
    std::string idValue = text(row, m_idValue);
    // What R writes for a missing text to a CSV file; no variable of a domain is called so.
    if (idVariable == "NA" && idValue == "NA") {
        idVariable.clear();
        idValue.clear();
    }
    return {.study = text(row, m_study),
            .domain = text(row, m_domain),
            .subject = text(row, m_subject),
            .pool = text(row, m_pool),
            .device = text(row, m_device),
            .idVariable = std::move(idVariable),
            .idValue = std::move(idValue),
            .name = text(row, m_name),
            .value = value(row)};
}

}  // namespace supplement
