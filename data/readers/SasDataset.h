#pragma once

#include "data/readers/FileDataset.h"
#include "data/values/SasFormat.h"

/// What SAS data sets and SAS transport files share: values shown by SAS formats, and attribute
/// texts as SAS writes them.
class SasDataset : public FileDataset
{
public:
    [[nodiscard]] std::string variableAttribute(int column,
                                                VariableAttribute attribute) const override;
    [[nodiscard]] std::string writtenFormat(int column) const override;
    [[nodiscard]] std::string shownText(std::string_view text, int column) const override;
    [[nodiscard]] std::string formatCharacter(std::string_view text, std::string_view format,
                                              int width, int decimals) const override;
    [[nodiscard]] std::string formatNumeric(double number, std::string_view format, int width,
                                            int decimals) const override;

protected:
    /// Normalises the formats of all variables, so that the first paint finds them.
    void normaliseFormats();
    /// Sets format, informat, width and decimals of a variable from the file's own records.
    void setFormats(int column, std::string format, int width, int decimals, std::string informat);

private:
    // Formats that no variable has can be asked for, too; they are added on first use.
    mutable sasformat::FormatTable m_formatTable;
};

/// A format or informat as SAS prints it: name, width, point, decimals; empty when nothing is set.
[[nodiscard]] std::string sasFormatText(const std::string& name, int width, int decimals);
