#pragma once

#include <QString>

/// The kinds of dataset files that the File menu has an entry for.
enum class FileKind
{
    Sas,
    DatasetJson,
    R,
    Spss,
    Stata,
    Csv,
};

namespace filekinds {

/// What the dialog that chooses such files says.
struct DialogTexts
{
    QString title;
    QString filters;  ///< as Qt's file dialogs take them, separated by ";;"
};

[[nodiscard]] DialogTexts dialogTexts(FileKind kind);

}  // namespace filekinds
