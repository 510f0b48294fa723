#pragma once

#include "grid/GridCommand.h"

#include <QKeySequence>
#include <QList>

#include <functional>
#include <vector>

class QWidget;

/// The keys of the grid.
namespace gridshortcuts {

struct GridKey
{
    GridCommand command;
    QList<QKeySequence> keys;  ///< each of them runs the command
    bool repeats = false;  ///< while the key is held down
};

/// All keys with their commands, the platform's own bindings filled in. A command may have several
/// entries.
[[nodiscard]] std::vector<GridKey> table();

/// Gives the widget a shortcut for each entry; they act while it has the focus.
void install(QWidget* widget, const std::function<void(GridCommand)>& run);

}  // namespace gridshortcuts
