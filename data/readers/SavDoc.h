#pragma once

#include "data/readers/ReadStatDoc.h"

/// An SPSS data file (.sav), plain, row-compressed or zlib-compressed.
class SavDoc : public ReadStatDoc
{
protected:
    std::string prepare(const FileReader& file, ParserInput& input) override;
    readstat_error_t parse(readstat_parser_t* parser, const char* path) override;
    int acceptMetadata(const readstat_metadata_t& metadata) override;
    [[nodiscard]] bool isSuccess(readstat_error_t code) const override;

private:
    ParserInput* m_input = nullptr;  ///< only while a load runs
    bool m_isRenamedUtf8 = false;
    bool m_isZlib = false;
    bool m_isRowCompressed = false;
};
