#pragma once

#include "grid/filter/Token.h"

#include <QString>

/// Writes a condition token by token: one blank between tokens, none inside parentheses, before a
/// comma and between a function and its parenthesis.
class ConditionWriter
{
public:
    /// Adds a token as it stands.
    void add(const Token& token);
    void addWord(QStringView word) { append(word, true); }
    /// Adds the parenthesis that opens a function's arguments.
    void addCall() { append(u"(", false); }

    [[nodiscard]] const QString& text() const { return m_text; }

private:
    void append(QStringView piece, bool blankBefore);

    QString m_text;
};
