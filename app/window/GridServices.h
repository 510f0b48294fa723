#pragma once

#include "grid/opened/OpenDataset.h"
#include "grid/opened/OpenDatasets.h"

#include <QObject>
#include <QString>

class MainTableView;
class QStatusBar;
class UserPrompts;

/// What the main window does for its datasets and grids: keeps what they share and tells the user
/// what they tell.
class GridServices final : public QObject
{
    Q_OBJECT

public:
    /// Both outlive the services.
    GridServices(UserPrompts& prompts, QStatusBar& statusBar);

    [[nodiscard]] OpenDatasets& datasets() { return m_datasets; }
    /// Listens to a grid from now on.
    void serve(MainTableView& grid);

    /// Runs a typed command on a dataset and tells what goes wrong.
    /// @param opened  null for none, where only the library filter can be set or cleared
    /// @return        whether nothing did
    bool run(OpenDataset* opened, const QString& command);
    /// Tells what went wrong, if anything did.
    /// @return  whether nothing did
    bool report(const CommandOutcome& outcome);
    /// Tells something in passing.
    void showMessage(const QString& text);

signals:
    void signalFontSizeChanged(int points);

private:
    UserPrompts& m_prompts;
    QStatusBar& m_statusBar;
    OpenDatasets m_datasets;
};
