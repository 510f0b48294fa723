#pragma once

#include <QList>
#include <QString>

/// The window in which a shortcut acts.
enum class ShortcutContext
{
    Global,
    DatasetWindow,
    FrequencyWindow,
    VariablesWindow
};

/// One line of the reference: translated texts, ready to be shown.
struct Shortcut
{
    ShortcutContext context;
    QString action;
    QString keys;  ///< as the platform writes them; two that do the same are parted by "; "
    QString description;
};

/// The reference of the keyboard shortcuts. The bindings themselves belong to the windows.
namespace shortcutlist {

[[nodiscard]] QString contextName(ShortcutContext context);

/// All shortcuts, those of one context together.
[[nodiscard]] QList<Shortcut> all();

}  // namespace shortcutlist
