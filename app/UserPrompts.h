#pragma once

#include <QString>
#include <QStringList>

/// Everything that asks the user something or tells them something. Tests answer in their place.
class UserPrompts
{
public:
    virtual ~UserPrompts() = default;

    /// Asks a question whose answers are Yes and No, No being what Return and Escape give.
    [[nodiscard]] virtual bool confirm(const QString& title, const QString& question) = 0;
    /// Tells that something failed.
    /// @param reason  why, in a sentence; may be empty
    virtual void warn(const QString& title, const QString& text, const QString& reason) = 0;
    /// Tells something that is no failure.
    virtual void inform(const QString& title, const QString& text) = 0;
    /// Lets the user choose existing files.
    /// @param filters  patterns as Qt's file dialogs take them, separated by ";;"
    /// @return         the paths; none when the user cancels
    [[nodiscard]] virtual QStringList chooseFiles(const QString& title, const QString& folder,
                                                  const QString& filters) = 0;
};
