#pragma once

#include "data/Result.h"
#include "data/StatDataset.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace supplement {

/// The value of a cell as text, without blanks at its ends: a number with the fewest digits, a
/// missing one as an empty text.
[[nodiscard]] std::string keyText(const StatDataset& dataset, int row, int variable);

/// The variable of that name in any letter case; -1 for none.
[[nodiscard]] int variableOf(const StatDataset& dataset, std::string_view name);

/// The variable that names the subject, USUBJID or APID. The failure says that there is none, or
/// that there are both.
[[nodiscard]] Result<std::string> subjectVariable(const StatDataset& dataset);

/// The names of those variables that the dataset lacks, for the user; empty where it has all.
[[nodiscard]] std::string missingVariables(const StatDataset& dataset,
                                           const std::vector<std::string>& names);

/// One supplemental qualifier.
struct Qualifier
{
    std::string study;
    std::string domain;
    std::string subject;
    std::string pool;
    std::string device;
    std::string idVariable;
    std::string idValue;
    std::string name;
    std::string value;  ///< with the blanks before it
};

/// The rows of a SUPP-- dataset.
class QualifierRows
{
public:
    /// The failure names what is missing.
    [[nodiscard]] static Result<QualifierRows> of(const StatDataset& dataset);

    [[nodiscard]] const StatDataset& dataset() const { return *m_dataset; }
    [[nodiscard]] int count() const { return m_dataset->observationCount(); }
    [[nodiscard]] Qualifier at(int row) const;
    [[nodiscard]] std::string domain(int row) const { return text(row, m_domain); }
    [[nodiscard]] std::string label(int row) const { return text(row, m_label); }
    [[nodiscard]] std::string origin(int row) const { return text(row, m_origin); }
    [[nodiscard]] std::string evaluator(int row) const { return text(row, m_evaluator); }
    /// The name of the variable that names the subject.
    [[nodiscard]] const std::string& subjectName() const { return m_subjectName; }

private:
    explicit QualifierRows(const StatDataset& dataset, std::string subjectName);
    [[nodiscard]] std::string text(int row, int variable) const;
    [[nodiscard]] std::string value(int row) const;

    const StatDataset* m_dataset;
    std::string m_subjectName;
    int m_study;
    int m_domain;
    int m_subject;
    int m_pool;
    int m_device;
    int m_idVariable;
    int m_idValue;
    int m_name;
    int m_label;
    int m_value;
    int m_origin;
    int m_evaluator;
};

}  // namespace supplement
