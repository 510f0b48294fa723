#include "grid/GridShortcuts.h"

#include <QShortcut>
#include <QWidget>

namespace gridshortcuts {
namespace {

QList<QKeySequence> key(QKeyCombination combination)
{
    return {QKeySequence(combination)};
}

/// A sign that some keyboards only have as an accent to be put on the next letter.
QList<QKeySequence> sign(Qt::Key plain, Qt::Key accent)
{
    return {QKeySequence(plain), QKeySequence(accent)};
}

void addFilterKeys(std::vector<GridKey>& keys)
{
    using enum GridCommand;
    keys.push_back({FilterIn, key(Qt::Key_I)});
    keys.push_back({FilterAgain, key(Qt::Key_D)});
    keys.push_back({FilterAgain, key(Qt::Key_Equal)});
    keys.push_back({FilterNotEqual, sign(Qt::Key_AsciiCircum, Qt::Key_Dead_Circumflex)});
    keys.push_back({FilterNotEqual, sign(Qt::Key_AsciiTilde, Qt::Key_Dead_Tilde)});
    keys.push_back({FilterGreater, key(Qt::Key_Greater)});
    keys.push_back({FilterLess, key(Qt::Key_Less)});
    keys.push_back({FilterGreaterOrEqual, key(Qt::ALT | Qt::Key_Greater)});
    keys.push_back({FilterLessOrEqual, key(Qt::ALT | Qt::Key_Less)});
    keys.push_back({FilterContains, {QKeySequence()}});  // which no key triggers
    keys.push_back({LibraryFilter, key(Qt::Key_L)});
    keys.push_back({ClearLibraryFilter, key(Qt::ALT | Qt::Key_C)});
    keys.push_back({ClearDatasetFilter, key(Qt::Key_C)});
    keys.push_back({UndoDatasetFilter, key(Qt::Key_Z)});
    keys.push_back({UndoDatasetFilter, QKeySequence::keyBindings(QKeySequence::Undo)});
}

void addColumnKeys(std::vector<GridKey>& keys)
{
    using enum GridCommand;
    keys.push_back({HideVariable, key(Qt::Key_H), true});
    keys.push_back({HideSelectedVariables, key(Qt::ALT | Qt::Key_H)});
    keys.push_back({UnhideVariables, key(Qt::Key_U)});
    keys.push_back({ShiftLeft, key(Qt::ALT | Qt::Key_Left), true});
    keys.push_back({ShiftRight, key(Qt::ALT | Qt::Key_Right), true});
    keys.push_back({GoToVariable, key(Qt::Key_V)});
    keys.push_back({GoToVariable, key(Qt::Key_G)});
    keys.push_back({AddByVariable, key(Qt::Key_B)});
}

void addOtherKeys(std::vector<GridKey>& keys)
{
    using enum GridCommand;
    keys.push_back({Frequency, key(Qt::Key_F)});
    keys.push_back({FrequencyOfSubjects, key(Qt::Key_N)});
    keys.push_back({Univariate, key(Qt::Key_S)});
    keys.push_back({Copy, QKeySequence::keyBindings(QKeySequence::Copy)});
    keys.push_back({LargerFont,
                    {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
                    true});
    keys.push_back({SmallerFont, key(Qt::CTRL | Qt::Key_Minus), true});
}

}  // namespace

std::vector<GridKey> table()
{
    std::vector<GridKey> keys;
    addColumnKeys(keys);
    addFilterKeys(keys);
    addOtherKeys(keys);
    return keys;
}

void install(QWidget* widget, const std::function<void(GridCommand)>& run)
{
    for (const GridKey& entry : table()) {
        auto* shortcut = new QShortcut(widget);
        shortcut->setKeys(entry.keys);
        shortcut->setContext(Qt::WidgetShortcut);
        shortcut->setAutoRepeat(entry.repeats);
        QObject::connect(shortcut, &QShortcut::activated, widget,
                         [run, command = entry.command] { run(command); });
    }
}

}  // namespace gridshortcuts
