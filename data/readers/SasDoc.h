#pragma once

#include "data/readers/Sas7bdatLayout.h"
#include "data/readers/SasDataset.h"

/// A SAS data set (.sas7bdat).
class SasDoc : public SasDataset
{
protected:
    std::string prepare(const FileReader& file, ParserInput& input) override;
    readstat_error_t parse(readstat_parser_t* parser, const char* path) override;
    int acceptMetadata(const readstat_metadata_t& metadata) override;
    void completeVariable(int index) override;
    std::string complete(const FileReader& file) override;

private:
    void clearEmptyColumns();

    Sas7bdatLayout m_layout;
};
