#pragma once

#include <QColor>
#include <QString>

#include <functional>

/// What the dialogs of libraries ask and tell on their own. None of them is empty.
struct LibraryPrompts
{
    /// Tells that something is wrong.
    std::function<void(const QString& title, const QString& text)> warn;
    /// Lets the user choose a folder, beginning with another; empty when the user cancels.
    std::function<QString(const QString& title, const QString& folder)> chooseFolder;
    /// Lets the user choose a colour, beginning with another; invalid when the user cancels.
    std::function<QColor(const QString& title, const QColor& color)> chooseColor;
};
