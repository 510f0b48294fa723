#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QString>

#include <chrono>

class QMainWindow;
class QProgressBar;
class QWidget;

/// Says in a window what is being opened and, when that takes long, how far it is; for as long as
/// it lives. It is only painted: whatever the user does meanwhile waits.
class LoadProgress
{
    Q_DECLARE_TR_FUNCTIONS(LoadProgress)

public:
    /// @param window    outlives this object
    /// @param what      the file's name, as people read it
    /// @param patience  how long the opening may take without saying how far it is
    LoadProgress(QMainWindow& window, const QString& what,
                 std::chrono::milliseconds patience = std::chrono::seconds(1));
    ~LoadProgress();
    LoadProgress(const LoadProgress&) = delete;
    LoadProgress& operator=(const LoadProgress&) = delete;

    void advance(int percent);

private:
    void createPanel();

    QMainWindow& m_window;
    QString m_text;
    std::chrono::milliseconds m_patience;
    QElapsedTimer m_time;
    QPointer<QWidget> m_panel;  ///< of the window; null before it is needed
    QProgressBar* m_bar = nullptr;  ///< of the panel
};
