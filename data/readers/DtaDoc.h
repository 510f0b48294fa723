#pragma once

#include "data/readers/FileDataset.h"

/// A Stata data file (.dta), releases 104 to 119.
class DtaDoc : public FileDataset
{
public:
    [[nodiscard]] int load(const QString& path) override;

    [[nodiscard]] std::string cellText(int row, int column) const override;
    [[nodiscard]] std::string variableAttribute(int column,
                                                VariableAttribute attribute) const override;
    [[nodiscard]] std::string formatNumeric(double number, std::string_view format, int width,
                                            int decimals) const override;
    [[nodiscard]] DateScale dateScale(int column) const override;

private:
    class Load;
};
