#pragma once

#include "data/readers/ReadStatDoc.h"

/// An SPSS data file (.sav), plain, row-compressed or zlib-compressed.
class SavDoc : public ReadStatDoc
{
public:
    [[nodiscard]] int load(const QString& path) override;

private:
    class Load;
};
