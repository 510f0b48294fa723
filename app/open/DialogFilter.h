#pragma once

#include <QString>
#include <QStringList>

/// Which of its filters a file dialog begins with.
namespace dialogfilter {

/// The filter of the files that were opened last, unless the folder has only files of another.
/// @param filters  as Qt's file dialogs take them, separated by ";;"
/// @param recent   the paths of files opened before, the last one first
[[nodiscard]] QString firstOf(const QString& filters, const QStringList& recent,
                              const QString& folder);

}  // namespace dialogfilter
