#pragma once

#include "data/readers/FileDataset.h"
#include "data/Result.h"

#include <string>
#include <utility>
#include <vector>

/// A data frame of an R data file: one that saveRDS() wrote, or one of those that save() wrote.
///
/// Its cells lie column after column. Factors are texts, logicals are numbers that show as TRUE and
/// FALSE. A missing text is "N/A", a missing real NaN and a missing integer the smallest of 32
/// bits.
class RdsDoc : public FileDataset
{
public:
    [[nodiscard]] std::string cellText(int row, int column) const override;
    [[nodiscard]] std::string variableAttribute(int column,
                                                VariableAttribute attribute) const override;
    /// 0, whatever the name, which callers rely on; variablenames::find() tells variables by name.
    [[nodiscard]] int findVariable(std::wstring_view name) const override;
    [[nodiscard]] std::string formatNumeric(double number, std::string_view format, int width,
                                            int decimals) const override;
    [[nodiscard]] bool isNumeric(int column) const override;

    [[nodiscard]] MissingMark missingMark(int column) const override;
    [[nodiscard]] std::string_view missingText(int column) const override;
    [[nodiscard]] DateScale dateScale(int column) const override;
    [[nodiscard]] const CellValue& cell(int row, int column) const override;

    /// Which data frame a load takes: the first when empty.
    void setMember(std::string name) { m_member = std::move(name); }
    /// What cells hold where an integer or a logical is missing.
    static constexpr double missingInteger = -2147483648.0;

    /// Without wanted values the file is read to its end all the same: what describes a data frame
    /// stands behind it.
    [[nodiscard]] int load(const QString& path) override;
    /// The names of all data frames of the file that was loaded; see datasetNames().
    [[nodiscard]] const std::vector<std::string>& memberNames() const { return m_memberNames; }

    /// The names of the data frames of a file; see datasetNames().
    [[nodiscard]] static Result<std::vector<std::string>> memberNamesOf(const QString& path);

private:
    friend class RdsLoad;
    friend class RFrameLoad;

    std::string m_member;
    std::vector<std::string> m_memberNames;
};
