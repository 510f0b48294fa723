#pragma once

#include <QCoreApplication>
#include <QList>

class QDockWidget;
class QMainWindow;
class QMenu;
class QString;
class QWidget;

/// The dock windows of the main window: which there are, where they stand at first and what they
/// are called. Their contents are put in from outside.
class DockWindows
{
    Q_DECLARE_TR_FUNCTIONS(DockWindows)

public:
    /// Creates the docks, which the window owns; it outlives this object.
    explicit DockWindows(QMainWindow& window);

    /// Adds the docks' toggle actions.
    void fillMenu(QMenu& menu) const;
    /// Names the dataset whose views the side docks show; without one they have their plain titles.
    void showTitlesOf(const QString& datasetName);
    /// Brings floating docks before the window, which was not there yet when they were restored.
    void raiseFloating() const;
    /// Shows a dock and brings it in front of those that share its place.
    static void bringUp(QDockWidget& dock);

    /// All docks in the order of their creation.
    [[nodiscard]] const QList<QDockWidget*>& all() const { return m_docks; }
    [[nodiscard]] QDockWidget* workspace() const { return m_workspace; }
    [[nodiscard]] QDockWidget* variables() const { return m_variables; }
    [[nodiscard]] QDockWidget* frequency() const { return m_frequency; }
    [[nodiscard]] QDockWidget* univariate() const { return m_univariate; }
    [[nodiscard]] QDockWidget* code() const { return m_code; }
    [[nodiscard]] QDockWidget* log() const { return m_log; }
    [[nodiscard]] QDockWidget* output() const { return m_output; }
    [[nodiscard]] QDockWidget* shortcutKeys() const { return m_shortcutKeys; }
    [[nodiscard]] QDockWidget* cell() const { return m_cell; }
    [[nodiscard]] QDockWidget* row() const { return m_row; }

private:
    [[nodiscard]] QDockWidget* add(const QString& name, const QString& title,
                                   Qt::DockWidgetArea area);
    void arrange();

    QMainWindow& m_window;
    QList<QDockWidget*> m_docks;
    QDockWidget* m_workspace;
    QDockWidget* m_variables;
    QDockWidget* m_frequency;
    QDockWidget* m_univariate;
    QDockWidget* m_code;
    QDockWidget* m_log;
    QDockWidget* m_output;
    QDockWidget* m_shortcutKeys;
    QDockWidget* m_cell;
    QDockWidget* m_row;
};
