#pragma once

#include "grid/GridHost.h"
#include "grid/LibraryFilter.h"

#include <QCoreApplication>
#include <QString>

class MainTableView;
class QStatusBar;
class UserPrompts;

/// What the main window does for its grids.
class GridServices final : public GridHost
{
    Q_DECLARE_TR_FUNCTIONS(GridServices)

public:
    /// Both outlive the services.
    GridServices(UserPrompts& prompts, QStatusBar& statusBar);

    [[nodiscard]] LibraryFilter& libraryFilter() override { return m_libraryFilter; }
    [[nodiscard]] QString uniqueVarName() const override { return m_uniqueVarName; }
    void setUniqueVarName(const QString& name) { m_uniqueVarName = name; }
    void reportCommandError(const QString& message, const QString& command) override;
    void inform(const QString& title, const QString& text) override;
    void showMessage(const QString& text) override;

    /// Runs a typed command on a grid and tells what goes wrong.
    /// @return  whether nothing did
    bool runCommand(MainTableView& view, const QString& command);

private:
    UserPrompts& m_prompts;
    QStatusBar& m_statusBar;
    LibraryFilter m_libraryFilter;
    QString m_uniqueVarName = QStringLiteral("USUBJID");
};
