#pragma once

#include "data/readers/FileDataset.h"

/// A CSV file: a table of texts whose first record names the variables.
///
/// The delimiter and the character set are told by the text itself. A variable is numeric where
/// every value is a plain number (see plainNumber()) or missing, which blanks, "." and "NA" are,
/// and at least one is a number. Its length is that of its longest value in bytes. Values are held
/// without blanks at their ends. A record of too few fields is filled up with missing values, of
/// one of too many the last are left out, and both are told in damageNotes().
class CsvDoc : public FileDataset
{
public:
    [[nodiscard]] int load(const QString& path) override;

    [[nodiscard]] bool isNumeric(int column) const override;
    [[nodiscard]] bool isCharacter(int column) const override;

private:
    class Load;
};
