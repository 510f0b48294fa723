#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

/// The program's drawings.
namespace icons {

/// The icon of a name as in names(). It takes the colours of the palette that is in force when it
/// is painted, so that one icon serves the light and the dark look.
[[nodiscard]] QIcon icon(const QString& name);

/// The icon of a dataset file, by its suffix; that of a bare table for a suffix that is not known.
[[nodiscard]] QIcon forDataset(const QString& path);

/// What the desktop shows for the program.
[[nodiscard]] QIcon application();

/// All names, in alphabetical order.
[[nodiscard]] QStringList names();

}  // namespace icons
