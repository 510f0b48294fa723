#include "app/docks/ShortcutList.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QStringList>

#include <array>

namespace shortcutlist {
namespace {

using Context = ShortcutContext;

struct Key
{
    const char* portable = nullptr;
    /// Where the platform binds it, its key is shown instead.
    QKeySequence::StandardKey standard = QKeySequence::UnknownKey;
};

struct Row
{
    Context context;
    const char* action;
    std::array<Key, 2> keys;
    const char* description;
};

constexpr std::array rows{
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Layout 1"),
        {{{"Ctrl+1"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Show left dock window and main window")},
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Layout 2"),
        {{{"Ctrl+2"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Show main window maximize")},
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Layout 3"),
        {{{"Ctrl+3"}}},
        QT_TRANSLATE_NOOP("ShortcutList",
                          "Show left dock window, main window and right dock window")},
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Layout 4"),
        {{{"Ctrl+4"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Show main window and right dock window")},
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Quick Open"),
        {{{"Ctrl+P"}, {"Q"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Open the quick navigation palette.")},
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Open SAS Datasets"),
        {{{"Ctrl+O", QKeySequence::Open}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Open a SAS dataset.")},
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Toggle Dark Mode"),
        {{{"Ctrl+D"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Toggle between dark and light themes.")},
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Next Dataset Tab"),
        {{{"Ctrl+Tab"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Switch to the next dataset window.")},
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Exit Application"),
        {{{"Ctrl+Q", QKeySequence::Quit}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Close the application.")},
    Row{Context::Global,
        QT_TRANSLATE_NOOP("ShortcutList", "Find"),
        {{{"Ctrl+F", QKeySequence::Find}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Find text.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, In operator"),
        {{{"I"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator 'in'.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Equal"),
        {{{"D"}, {"="}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator =.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Uneuqal"),
        {{{"^"}, {"~"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator ^= or ~=.")},  // sic
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Greater"),
        {{{">"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator >.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Less"),
        {{{"<"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator <.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Greater or Equal"),
        {{{"Alt+>"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator >=.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Less or Equal"),
        {{{"Alt+<"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator <=.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Undo"),
        {{{"Z"}, {"Ctrl+Z", QKeySequence::Undo}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Undo one step of dataset filter.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Clear Dataset Filter"),
        {{{"C"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Clear dataset level filter.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Library Filter"),
        {{{"L"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator =. It is library level.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Clear Library Filter"),
        {{{"Alt+C"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Clear library level filter.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Frequency"),
        {{{"F"}}},
        QT_TRANSLATE_NOOP("ShortcutList",
                          "Get the frequency of the selected variable(s). Select multiple "
                          "variables by holding down the Ctrl key.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Freq (UniqueID)"),
        {{{"N"}}},
        QT_TRANSLATE_NOOP("ShortcutList",
                          "Count distinct UniqueID of the selected variable(s). Select multiple "
                          "variables by holding down the Ctrl key.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Hide Variable"),
        {{{"H"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Hide the focused variable.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Hide All Variables"),
        {{{"Alt+H"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Hide all the variables.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Unhide All Variables"),
        {{{"U"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Unhide all hidden variables.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Shift Variable Left"),
        {{{"Alt+Left"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Move the focused variable to the left.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Shift Variable Right"),
        {{{"Alt+Right"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Move the focused variable to the right.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Add By Variable"),
        {{{"B"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Append the focused variable to the BY list.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Go to Variable"),
        {{{"G"}, {"V"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Jump to the focused variable in Variables Window.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Copy Selection"),
        {{{"Ctrl+C", QKeySequence::Copy}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Copy selected cells.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Close Dataset"),
        {{{"W"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Close the current dataset.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Close All Datasets"),
        {{{"Ctrl+Shift+W"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Close all the opened datasets")},  // sic
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Increase the Font Size"),
        {{{"Ctrl++"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Make the font bigger.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Decrease the Font Size"),
        {{{"Ctrl+-"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Make the font smaller.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, In operator"),
        {{{"I"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator 'in'.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Equal"),
        {{{"D"}, {"="}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator =.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Uneuqal"),
        {{{"^"}, {"~"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator ^= or ~=.")},  // sic
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Greater"),
        {{{">"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator >.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Less"),
        {{{"<"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator <.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Greater or Equal"),
        {{{"Alt+>"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator >=.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Less or Equal"),
        {{{"Alt+<"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator <=.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Clear Dataset Filter"),
        {{{"C"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Clear dataset level filter.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Library Filter"),
        {{{"L"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Filter data with operator =. It is library level.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Clear Library Filter"),
        {{{"Alt+C"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Clear library level filter.")},
    Row{Context::FrequencyWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Dataset Filter, Undo"),
        {{{"Z"}, {"Ctrl+Z", QKeySequence::Undo}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Undo one step of dataset filter.")},
    Row{Context::VariablesWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Go to Variable"),
        {{{"G"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Jump to the focused variable in Dataset Window.")},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("ShortcutList", text);
}

QString keyText(const Key& key)
{
    QKeySequence sequence(key.standard);
    if (sequence.isEmpty()) {
        sequence = QKeySequence::fromString(QString::fromLatin1(key.portable));
    }
    return sequence.toString(QKeySequence::NativeText);
}

QString keyTexts(const Row& row)
{
    QStringList texts;
    for (const Key& key : row.keys) {
        if (key.portable != nullptr) {
            texts << keyText(key);
        }
    }
    return texts.join(QStringLiteral("; "));
}

}  // namespace

QString contextName(ShortcutContext context)
{
    switch (context) {
    case Context::Global:
        return translated(QT_TRANSLATE_NOOP("ShortcutList", "Global"));
    case Context::DatasetWindow:
        return translated(QT_TRANSLATE_NOOP("ShortcutList", "Dataset Window"));
    case Context::FrequencyWindow:
        return translated(QT_TRANSLATE_NOOP("ShortcutList", "Frequency Window"));
    case Context::VariablesWindow:
        return translated(QT_TRANSLATE_NOOP("ShortcutList", "Variables Window"));
    }
    return {};
}

QList<Shortcut> all()
{
    QList<Shortcut> shortcuts;
    for (const Row& row : rows) {
        shortcuts << Shortcut{row.context, translated(row.action), keyTexts(row),
                              translated(row.description)};
    }
    return shortcuts;
}

}  // namespace shortcutlist
