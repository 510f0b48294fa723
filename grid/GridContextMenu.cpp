#include "grid/GridContextMenu.h"

#include <QAction>

#include <array>
#include <optional>

namespace {

using enum GridCommand;

constexpr std::nullopt_t separator = std::nullopt;

constexpr std::array<std::optional<GridCommand>, 18> entries{HideVariable,
                                                             UnhideVariables,
                                                             ShiftLeft,
                                                             ShiftRight,
                                                             GoToVariable,
                                                             AddByVariable,
                                                             ClearByVariables,
                                                             separator,
                                                             ClearLibraryFilter,
                                                             ClearDatasetFilter,
                                                             UndoDatasetFilter,
                                                             separator,
                                                             Frequency,
                                                             FrequencyOfSubjects,
                                                             Univariate,
                                                             separator,
                                                             Copy,
                                                             CopyWithNames};

}  // namespace

GridContextMenu::GridContextMenu(const QString& idVariable, QWidget* parent)
    : QMenu(parent)
{
    setObjectName(QStringLiteral("gridContextMenu"));
    for (const std::optional<GridCommand> command : entries) {
        if (command) {
            add(*command, idVariable);
        } else {
            addSeparator();
        }
    }
}

void GridContextMenu::add(GridCommand command, const QString& idVariable)
{
    QString text = gridcommands::entryOf(command).menuEntry();
    if (command == FrequencyOfSubjects) {
        // An ampersand in a menu would underline the letter behind it instead of being shown.
        text = text.arg(QString(idVariable).replace(u'&', QStringLiteral("&&")));
    }
    connect(addAction(text), &QAction::triggered, this,
            [this, command] { emit signalCommand(command); });
}
