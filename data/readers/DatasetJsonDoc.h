#pragma once

#include "data/readers/DatasetJsonMeta.h"
#include "data/readers/DatasetJsonRows.h"
#include "data/readers/DatasetJsonTexts.h"
#include "data/readers/FileDataset.h"

#include <QString>

#include <string>
#include <vector>

/// A CDISC Dataset-JSON file of version 1.0 or 1.1, as one document, as NDJSON or compressed.
///
/// Numbers, booleans, and dates and times whose target is a number are numeric; the others are
/// texts. A number that its cell could not give back digit by digit is shown as the file has it.
class DatasetJsonDoc : public FileDataset
{
public:
    DatasetJsonDoc();

    /// Without wanted values the file is read up to its rows, or to its end where it does not tell
    /// their number, describes the variables behind them, or is small.
    [[nodiscard]] int load(const QString& path) override;

    [[nodiscard]] std::string cellText(int row, int column) const override;
    /// Type, length, format and label are those of the file, which may be none.
    [[nodiscard]] std::string variableAttribute(int column,
                                                VariableAttribute attribute) const override;
    [[nodiscard]] std::string formatCharacter(std::string_view text, std::string_view format,
                                              int width, int decimals) const override;
    [[nodiscard]] std::string formatNumeric(double number, std::string_view format, int width,
                                            int decimals) const override;
    [[nodiscard]] bool isNumeric(int column) const override;
    [[nodiscard]] bool isCharacter(int column) const override;
    [[nodiscard]] std::string writtenFormat(int column) const override;
    [[nodiscard]] bool countsRows(int column) const override { return m_hidesFirst && column == 0; }
    [[nodiscard]] std::string shownText(std::string_view text, int column) const override;

private:
    friend class DatasetJsonLoad;

    /// What the file says of a variable, besides what all datasets know.
    struct Described
    {
        std::string dataType;
        std::string displayFormat;
        bool hasLength = false;
    };

    /// Fills the attribute vectors; tells what the values of each variable are.
    std::vector<DatasetJsonRows::Column> describe(const DatasetJsonMeta& meta);
    void describeVariable(std::size_t variable, const DatasetJsonColumn& column,
                          DatasetJsonContent content);
    void nameVariables(const DatasetJsonMeta& meta);
    /// Fills the header and what else there is to be told, once all is read.
    void finishDescription(const DatasetJsonMeta& meta, const std::string& encoding);
    void setKeys(const DatasetJsonMeta& meta);

    std::vector<Described> m_described;
    DatasetJsonTexts m_exactTexts;
    bool m_hidesFirst = false;  ///< the first variable only numbers the rows
};
