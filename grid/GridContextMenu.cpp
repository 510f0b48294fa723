#include "grid/GridContextMenu.h"

#include <QAction>

GridContextMenu::GridContextMenu(const QString& idVariable, QWidget* parent)
    : QMenu(parent)
{
    setObjectName(QStringLiteral("gridContextMenu"));
    addColumnEntries();
    addSeparator();
    addFilterEntries();
    addSeparator();
    addAnalysisEntries(idVariable);
    addSeparator();
    add(tr("Copy"), GridCommand::Copy);
    add(tr("Copy (include Var Name)"), GridCommand::CopyWithNames);
}

void GridContextMenu::addColumnEntries()
{
    add(tr("Hide Variable\tH"), GridCommand::HideVariable);
    add(tr("Unhide Variables\tU"), GridCommand::UnhideVariables);
    add(tr("Shift Variable Left\tAlt+Left"), GridCommand::ShiftLeft);
    add(tr("Shift Variable Right\tAlt+Right"), GridCommand::ShiftRight);
    add(tr("Go to Variable\tG"), GridCommand::GoToVariable);
    add(tr("Add By Variable\tB"), GridCommand::AddByVariable);
    add(tr("Clear By Variable"), GridCommand::ClearByVariables);
}

void GridContextMenu::addFilterEntries()
{
    add(tr("Clear Library Filter\tAlt+C"), GridCommand::ClearLibraryFilter);
    add(tr("Clear Dataset Filter\tC"), GridCommand::ClearDatasetFilter);
    add(tr("Undo Dataset Filter\tZ"), GridCommand::UndoDatasetFilter);
}

void GridContextMenu::addAnalysisEntries(const QString& idVariable)
{
    // An ampersand in a menu would underline the letter behind it instead of being shown.
    const QString shownName = QString(idVariable).replace(u'&', QStringLiteral("&&"));
    add(tr("Frequency\tF"), GridCommand::Frequency);
    add(tr("Frequency (%1)\tN").arg(shownName), GridCommand::FrequencyOfSubjects);
    add(tr("Univariate\tS"), GridCommand::Univariate);
}

void GridContextMenu::add(const QString& text, GridCommand command)
{
    connect(addAction(text), &QAction::triggered, this,
            [this, command] { emit signalCommand(command); });
}
