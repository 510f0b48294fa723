#pragma once

#include "data/readers/SasDataset.h"

/// A SAS data set (.sas7bdat).
class SasDoc : public SasDataset
{
public:
    [[nodiscard]] int load(const QString& path) override;

private:
    class Load;
};
