#pragma once

#include "grid/MainTableModel.h"

#include <QAbstractButton>
#include <QObject>

class QButtonGroup;
class QMainWindow;
class QRadioButton;
class QToolBar;
struct MainActions;

/// The toolbars of the main window besides the command boxes: quick open, layouts, and the switch
/// between variable names and labels.
class MainToolBars : public QObject
{
    Q_OBJECT

public:
    /// Adds the bars that stand left of the command boxes; the window owns them.
    explicit MainToolBars(QMainWindow& window, const MainActions& actions);

    /// Adds the bars that stand right of the command boxes.
    void addRightBars(const MainActions& actions);
    void showHeaderMode(HeaderMode mode);
    [[nodiscard]] HeaderMode headerMode() const;

signals:
    /// The user has chosen what column headers show.
    void signalHeaderModeClicked(QAbstractButton* button);

private:
    [[nodiscard]] QToolBar* addBar(const QString& name, const QString& title);
    void addHeaderModeBar();

    QMainWindow& m_window;
    QButtonGroup* m_headerModes;
    QRadioButton* m_names = nullptr;
    QRadioButton* m_labels = nullptr;
};
