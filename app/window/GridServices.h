#pragma once

#include "grid/GridHost.h"
#include "grid/LibraryFilter.h"

#include <QObject>
#include <QString>

class MainTableView;
class QStatusBar;
class UserPrompts;

/// What the main window does for its grids.
class GridServices final : public QObject, public GridHost
{
    Q_OBJECT

public:
    /// Both outlive the services.
    GridServices(UserPrompts& prompts, QStatusBar& statusBar);

    [[nodiscard]] LibraryFilter& libraryFilter() override { return m_libraryFilter; }
    [[nodiscard]] QString uniqueVarName() const override { return m_uniqueVarName; }
    void setUniqueVarName(const QString& name) { m_uniqueVarName = name; }
    void reportCommandError(const QString& message, const QString& command) override;
    void inform(const QString& title, const QString& text) override;
    void fontSizeChanged(int points) override;
    void showMessage(const QString& text) override;

    /// Runs a typed command on a grid and tells what goes wrong.
    /// @return  whether nothing did
    bool runCommand(MainTableView& grid, const QString& command);
    /// Runs a statement of a program on a grid and tells what goes wrong.
    /// @return  whether nothing did
    bool runStatement(MainTableView& grid, const QString& statement);
    /// Sets or clears the library filter for what is opened later, and tells what goes wrong.
    /// @param text  "where a = 1", "clf" or "clear library filter"
    /// @return      whether nothing did
    bool runLibraryCommand(const QString& text);
    /// Puts a condition in the place of a grid's dataset filter, which stays when it is wrong.
    /// @return  whether nothing went wrong
    bool replaceDatasetFilter(MainTableView& grid, const QString& condition);

signals:
    void signalFontSizeChanged(int points);

private:
    template <typename Command>
    bool attempt(const QString& text, Command command);

    UserPrompts& m_prompts;
    QStatusBar& m_statusBar;
    LibraryFilter m_libraryFilter;
    QString m_uniqueVarName = QStringLiteral("USUBJID");
};
