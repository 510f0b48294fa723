#pragma once

#include "data/readers/DtaLayout.h"
#include "data/readers/ReadStatDoc.h"

/// A Stata data file (.dta), releases 104 to 119.
class DtaDoc : public ReadStatDoc
{
public:
    [[nodiscard]] std::string cellText(int row, int column) const override;
    [[nodiscard]] std::string variableAttribute(int column,
                                                VariableAttribute attribute) const override;
    [[nodiscard]] std::string formatNumeric(double number, std::string_view format, int width,
                                            int decimals) const override;

protected:
    std::string prepare(const FileReader& file, ParserInput& input) override;
    readstat_error_t parse(readstat_parser_t* parser, const char* path) override;
    int acceptMetadata(const readstat_metadata_t& metadata) override;
    std::string complete(const FileReader& file) override;

private:
    void resolveLongStrings(const FileReader& file, const LongStrings& strings);
    [[nodiscard]] LongStrings::key_type longStringKey(std::uint64_t reference) const;

    DtaLayout m_layout;
};
