#pragma once

#include "data/readers/FileDataset.h"

/// An SPSS data file (.sav), plain, row-compressed or zlib-compressed.
class SavDoc : public FileDataset
{
public:
    [[nodiscard]] int load(const QString& path) override;

    [[nodiscard]] std::string formatNumeric(double number, std::string_view format, int width,
                                            int decimals) const override;
    [[nodiscard]] DateScale dateScale(int column) const override;

private:
    class Load;
};
