#pragma once

#include "data/Result.h"

#include <QStringView>

/// Filter texts as they are shown, saved and restored: "where a = 1" for the library filter, "if
/// a = 1 and b = 2" for the dataset filter.
namespace filterstatement {

/// The condition behind the word with which a filter text begins, normalised. A failure says that
/// the text begins with something else, or holds the parser's message.
[[nodiscard]] Result<QString> condition(QStringView filterText, QStringView word);

}  // namespace filterstatement
