#pragma once

#include <QKeySequence>
#include <QString>

/// A menu's text with the keys behind its tabulator as the platform and the user's language name
/// them: "Shift Variable Left\tAlt+Left" ends with "Alt+Links" in German.
[[nodiscard]] inline QString withNativeKeys(const QString& text)
{
    const qsizetype tab = text.indexOf(u'\t');
    if (tab < 0) {
        return text;
    }
    const auto keys = QKeySequence::fromString(text.mid(tab + 1), QKeySequence::PortableText);
    return text.left(tab + 1) + keys.toString(QKeySequence::NativeText);
}
