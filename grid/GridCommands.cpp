#include "grid/GridCommands.h"

#include "grid/MainTableView.h"
#include "grid/NativeKeys.h"

#include <QCoreApplication>
#include <QShortcut>
#include <QStringList>

#include <algorithm>

namespace gridcommands {
namespace {

using enum GridCommand;

constexpr std::size_t commandCount = static_cast<std::size_t>(SmallerFont) + 1;

constexpr Key key(Qt::Key key, Qt::KeyboardModifier modifier = Qt::NoModifier)
{
    return {QKeyCombination(modifier, key).toCombined()};
}

/// A key that works as well and need not be told.
constexpr Key alsoKey(Qt::Key key, Qt::KeyboardModifier modifier = Qt::NoModifier)
{
    return {QKeyCombination(modifier, key).toCombined(), QKeySequence::UnknownKey, false};
}

/// What the platform has for it, and `otherwise` in the list where it has none.
constexpr Key standardKey(QKeySequence::StandardKey standard, Qt::Key otherwise)
{
    return {QKeyCombination(Qt::ControlModifier, otherwise).toCombined(), standard};
}

constexpr Key noKey()
{
    return {0, QKeySequence::UnknownKey, false};
}

template <typename... Keys>
constexpr Entry entry(GridCommand command, void (*run)(MainTableView&), Keys... keys)
{
    return {command, run, {keys...}, static_cast<int>(sizeof...(keys))};
}

constexpr Entry repeating(Entry entry)
{
    entry.repeats = true;
    return entry;
}

constexpr Entry inMenu(const char* text, Entry entry)
{
    entry.menuText = text;
    return entry;
}

constexpr Entry listed(const char* action, const char* description, Entry entry)
{
    entry.action = action;
    entry.description = description;
    return entry;
}

template <CompareOp op>
void filterBy(MainTableView& view)
{
    view.setFilterOperator(op);
    view.cmdWhere();
}

template <auto filter>
void filterByCells(MainTableView& view)
{
    view.filter([&view] { return (view.cellFilters().*filter)(view); });
}

template <auto clear>
void change(MainTableView& view)
{
    view.filter([&view] {
        (view.opened()->*clear)();
        return CommandOutcome();
    });
}

constexpr std::array<Entry, commandCount> entries{
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, In operator"),
           QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator 'in'."),
           entry(FilterIn, filterByCells<&CellFilters::isIn>, key(Qt::Key_I))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Equal"),
           QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator =."),
           entry(
               FilterAgain, [](MainTableView& view) { view.cmdWhere(); }, key(Qt::Key_D),
               key(Qt::Key_Equal))),
    // Some keyboards only have the signs as accents to be put on the next letter.
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Uneuqal"),  // sic
           QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator ^= or ~=."),
           entry(FilterNotEqual, filterBy<CompareOp::NotEqual>, key(Qt::Key_AsciiCircum),
                 key(Qt::Key_AsciiTilde), alsoKey(Qt::Key_Dead_Circumflex),
                 alsoKey(Qt::Key_Dead_Tilde))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Greater"),
           QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator >."),
           entry(FilterGreater, filterBy<CompareOp::Greater>, key(Qt::Key_Greater))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Less"),
           QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator <."),
           entry(FilterLess, filterBy<CompareOp::Less>, key(Qt::Key_Less))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Greater or Equal"),
           QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator >=."),
           entry(FilterGreaterOrEqual, filterBy<CompareOp::GreaterOrEqual>,
                 key(Qt::Key_Greater, Qt::AltModifier))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Less or Equal"),
           QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator <=."),
           entry(FilterLessOrEqual, filterBy<CompareOp::LessOrEqual>,
                 key(Qt::Key_Less, Qt::AltModifier))),
    entry(FilterContains, filterByCells<&CellFilters::contains>, noKey()),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Undo"),
           QT_TRANSLATE_NOOP("ShortcutList", "Undo one step of dataset filter."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Undo Dataset Filter\tZ"),
                  entry(
                      UndoDatasetFilter, [](MainTableView& view) { view.cmdDfUndo(); },
                      key(Qt::Key_Z), standardKey(QKeySequence::Undo, Qt::Key_Z)))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Clear Dataset Filter"),
           QT_TRANSLATE_NOOP("ShortcutList", "Clear dataset level filter."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Clear Dataset Filter\tC"),
                  entry(ClearDatasetFilter, change<&OpenDataset::clearDatasetFilter>,
                        key(Qt::Key_C)))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Library Filter"),
           QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator =. It is library level."),
           entry(
               LibraryFilter, [](MainTableView& view) { view.cmdApplyLf(); }, key(Qt::Key_L))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Clear Library Filter"),
           QT_TRANSLATE_NOOP("ShortcutList", "Clear library level filter."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Clear Library Filter\tAlt+C"),
                  entry(ClearLibraryFilter, change<&OpenDataset::clearLibraryFilter>,
                        key(Qt::Key_C, Qt::AltModifier)))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Frequency"),
           QT_TRANSLATE_NOOP("ShortcutList",
                             "Get the frequency of the selected variable(s). Select multiple "
                             "variables by holding down the Ctrl key."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Frequency\tF"),
                  entry(
                      Frequency, [](MainTableView& view) { view.showFrequencyOfSelected(false); },
                      key(Qt::Key_F)))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Freq (UniqueID)"),
           QT_TRANSLATE_NOOP("ShortcutList",
                             "Count distinct UniqueID of the selected variable(s). Select multiple "
                             "variables by holding down the Ctrl key."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Frequency (%1)\tN"),
                  entry(
                      FrequencyOfSubjects,
                      [](MainTableView& view) { view.showFrequencyOfSelected(true); },
                      key(Qt::Key_N)))),
    inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Univariate\tS"),
           entry(
               Univariate, [](MainTableView& view) { view.showStatistics(); }, key(Qt::Key_S))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Hide Variable"),
           QT_TRANSLATE_NOOP("ShortcutList", "Hide the focused variable."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Hide Variable\tH"),
                  repeating(entry(
                      HideVariable, [](MainTableView& view) { view.cmdHideColumn(); },
                      key(Qt::Key_H))))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Hide All Variables"),
           QT_TRANSLATE_NOOP("ShortcutList", "Hide all the variables."),
           entry(
               HideSelectedVariables, [](MainTableView& view) { view.cmdHideColumns(); },
               key(Qt::Key_H, Qt::AltModifier))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Unhide All Variables"),
           QT_TRANSLATE_NOOP("ShortcutList", "Unhide all hidden variables."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Unhide Variables\tU"),
                  entry(
                      UnhideVariables, [](MainTableView& view) { view.cmdUnhidecolumns(); },
                      key(Qt::Key_U)))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Shift Variable Left"),
           QT_TRANSLATE_NOOP("ShortcutList", "Move the focused variable to the left."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Shift Variable Left\tAlt+Left"),
                  repeating(entry(
                      ShiftLeft, [](MainTableView& view) { view.shiftVariableLeft(); },
                      key(Qt::Key_Left, Qt::AltModifier))))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Shift Variable Right"),
           QT_TRANSLATE_NOOP("ShortcutList", "Move the focused variable to the right."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Shift Variable Right\tAlt+Right"),
                  repeating(entry(
                      ShiftRight, [](MainTableView& view) { view.shiftVariableRight(); },
                      key(Qt::Key_Right, Qt::AltModifier))))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Add By Variable"),
           QT_TRANSLATE_NOOP("ShortcutList", "Append the focused variable to the BY list."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Add By Variable\tB"),
                  entry(
                      AddByVariable, [](MainTableView& view) { view.addCurrentByVariable(); },
                      key(Qt::Key_B)))),
    inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Clear By Variable"),
           entry(ClearByVariables, [](MainTableView& view) { view.cmdClearByVar(); })),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Go to Variable"),
           QT_TRANSLATE_NOOP("ShortcutList", "Jump to the focused variable in Variables Window."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Go to Variable\tG"),
                  entry(
                      GoToVariable, [](MainTableView& view) { view.cmdGotoVariable(); },
                      key(Qt::Key_G), key(Qt::Key_V)))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Copy Selection"),
           QT_TRANSLATE_NOOP("ShortcutList", "Copy selected cells."),
           inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Copy"),
                  entry(
                      Copy, [](MainTableView& view) { view.cmdCopy(false); },
                      standardKey(QKeySequence::Copy, Qt::Key_C)))),
    inMenu(QT_TRANSLATE_NOOP("GridContextMenu", "Copy (include Var Name)"),
           entry(CopyWithNames, [](MainTableView& view) { view.cmdCopy(true); })),
    entry(CopyStoredValues, [](MainTableView& view) { view.cmdCopyStoredValues(); }),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Show Cell"),
           QT_TRANSLATE_NOOP("ShortcutList", "Show the whole text of the current cell."),
           entry(
               ShowCell, [](MainTableView& view) { emit view.signalShowDockCell(); },
               key(Qt::Key_Space), key(Qt::Key_F2))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Show Row"),
           QT_TRANSLATE_NOOP("ShortcutList", "Show all variables of the current row."),
           entry(
               ShowRow, [](MainTableView& view) { emit view.signalShowDockRow(); },
               key(Qt::Key_F2, Qt::ShiftModifier))),
    listed(
        QT_TRANSLATE_NOOP("ShortcutList", "Increase the Font Size"),
        QT_TRANSLATE_NOOP("ShortcutList", "Make the font bigger."),
        repeating(entry(
            LargerFont, [](MainTableView& view) { view.stepFontSize(1); },
            key(Qt::Key_Plus, Qt::ControlModifier), alsoKey(Qt::Key_Equal, Qt::ControlModifier)))),
    listed(QT_TRANSLATE_NOOP("ShortcutList", "Decrease the Font Size"),
           QT_TRANSLATE_NOOP("ShortcutList", "Make the font smaller."),
           repeating(entry(
               SmallerFont, [](MainTableView& view) { view.stepFontSize(-1); },
               key(Qt::Key_Minus, Qt::ControlModifier)))),
};

/// A command without an entry leaves one behind that is none, the first command's.
constexpr bool standInOrder()
{
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (static_cast<std::size_t>(entries[i].command) != i) {
            return false;
        }
    }
    return true;
}
static_assert(standInOrder(), "each command has its entry, in the order of the enumeration");

QString translated(const char* context, const char* text)
{
    return QCoreApplication::translate(context, text);
}

}  // namespace

QList<QKeySequence> Key::sequences() const
{
    if (standard != QKeySequence::UnknownKey) {
        return QKeySequence::keyBindings(standard);
    }
    return {combination == 0 ? QKeySequence() : QKeySequence(combination)};
}

QString Key::text() const
{
    const QKeySequence bound(standard);
    return (bound.isEmpty() ? QKeySequence(combination) : bound).toString(QKeySequence::NativeText);
}

QString Entry::menuEntry() const
{
    return withNativeKeys(translated("GridContextMenu", menuText));
}

QString Entry::listedAction() const
{
    return translated("ShortcutList", action);
}

QString Entry::listedDescription() const
{
    return translated("ShortcutList", description);
}

QString Entry::listedKeys() const
{
    QStringList texts;
    for (const Key& key : allKeys()) {
        if (key.isListed) {
            texts << key.text();
        }
    }
    return texts.join(QStringLiteral("; "));
}

std::span<const Entry> table()
{
    return entries;
}

const Entry& entryOf(GridCommand command)
{
    return entries.at(static_cast<std::size_t>(command));
}

void installShortcuts(MainTableView& view)
{
    for (const Entry& entry : entries) {
        for (const Key& key : entry.allKeys()) {
            auto* shortcut = new QShortcut(&view);
            shortcut->setKeys(key.sequences());
            shortcut->setContext(Qt::WidgetShortcut);
            shortcut->setAutoRepeat(entry.repeats);
            QObject::connect(shortcut, &QShortcut::activated, &view,
                             [&view, command = entry.command] { view.run(command); });
        }
    }
}

}  // namespace gridcommands
