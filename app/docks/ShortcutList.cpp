#include "app/docks/ShortcutList.h"

#include "grid/GridCommands.h"

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

constexpr std::array globalRows{
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
};

constexpr std::array closingRows{
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Close Dataset"),
        {{{"W"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Close the current dataset.")},
    Row{Context::DatasetWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Close All Datasets"),
        {{{"Ctrl+Shift+W"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Close all the opened datasets")},  // sic
};

constexpr std::array variablesRows{
    Row{Context::VariablesWindow,
        QT_TRANSLATE_NOOP("ShortcutList", "Go to Variable"),
        {{{"G"}}},
        QT_TRANSLATE_NOOP("ShortcutList", "Jump to the focused variable in Dataset Window.")},
};

/// What the frequency window does by the grid's keys.
constexpr std::array frequencyCommands{
    GridCommand::FilterIn,          GridCommand::FilterAgain,
    GridCommand::FilterNotEqual,    GridCommand::FilterGreater,
    GridCommand::FilterLess,        GridCommand::FilterGreaterOrEqual,
    GridCommand::FilterLessOrEqual, GridCommand::ClearDatasetFilter,
    GridCommand::LibraryFilter,     GridCommand::ClearLibraryFilter,
    GridCommand::UndoDatasetFilter,
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

Shortcut shortcutOf(const Row& row)
{
    QStringList keys;
    for (const Key& key : row.keys) {
        if (key.portable != nullptr) {
            keys << keyText(key);
        }
    }
    return {row.context, translated(row.action), keys.join(QStringLiteral("; ")),
            translated(row.description)};
}

Shortcut shortcutOf(Context context, const gridcommands::Entry& entry)
{
    return {context, entry.listedAction(), entry.listedKeys(), entry.listedDescription()};
}

/// The letters' size comes last, behind what closes the window.
void addDatasetWindow(QList<Shortcut>& shortcuts)
{
    const auto add = [&](bool fontSize) {
        for (const gridcommands::Entry& entry : gridcommands::table()) {
            const bool isFontSize = entry.command >= GridCommand::LargerFont;
            if (entry.action != nullptr && isFontSize == fontSize) {
                shortcuts << shortcutOf(Context::DatasetWindow, entry);
            }
        }
    };
    add(false);
    for (const Row& row : closingRows) {
        shortcuts << shortcutOf(row);
    }
    add(true);
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
    for (const Row& row : globalRows) {
        shortcuts << shortcutOf(row);
    }
    addDatasetWindow(shortcuts);
    for (const GridCommand command : frequencyCommands) {
        shortcuts << shortcutOf(Context::FrequencyWindow, gridcommands::entryOf(command));
    }
    for (const Row& row : variablesRows) {
        shortcuts << shortcutOf(row);
    }
    return shortcuts;
}

}  // namespace shortcutlist
