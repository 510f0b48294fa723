#pragma once

class LibraryFilter;
class QString;

/// What a grid asks of the window that owns it. What it announces are signals.
class GridHost
{
public:
    /// The one library filter of all open datasets.
    [[nodiscard]] virtual LibraryFilter& libraryFilter() = 0;
    /// The name of the variable that identifies a subject.
    [[nodiscard]] virtual QString uniqueVarName() const = 0;
    /// Tells that a command failed that no caller waits for, such as one run by a key.
    /// @param command  what was to be run, as it can be typed; may be empty
    virtual void reportCommandError(const QString& message, const QString& command) = 0;
    /// Tells something that the user has to read.
    virtual void inform(const QString& title, const QString& text) = 0;
    /// Tells that the user has given the grid's letters another size, which all grids share.
    virtual void fontSizeChanged(int points) = 0;
    /// Tells something in passing.
    virtual void showMessage(const QString& text) = 0;

protected:
    ~GridHost() = default;  // never deleted through this interface
};
