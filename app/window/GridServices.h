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

    /// Tells what went wrong, if anything did, in a few lines.
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
