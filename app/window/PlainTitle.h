#pragma once

#include <QString>

/// A text as a window title that shows it as it is: a title takes "&" for the mark of a key and
/// "[*]" for the place of the mark of a change.
[[nodiscard]] inline QString plainTitle(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"))
        .replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}
