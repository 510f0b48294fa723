#include "app/window/MainToolBars.h"

#include "app/window/MainActions.h"

#include <QActionGroup>
#include <QButtonGroup>
#include <QMainWindow>
#include <QRadioButton>
#include <QToolBar>

MainToolBars::MainToolBars(QMainWindow& window, const MainActions& actions)
    : QObject(&window)
    , m_window(window)
    , m_headerModes(new QButtonGroup(this))
{
    QToolBar* bar = addBar(QStringLiteral("toolBar"), tr("Quick Open"));
    bar->addAction(actions.openSasData);
    bar->addAction(actions.quickOpen);
}

void MainToolBars::addRightBars(const MainActions& actions)
{
    QToolBar* layouts = addBar(QStringLiteral("toolBarLayouts"), tr("Layouts"));
    layouts->addActions(actions.layoutGroup->actions());
    addHeaderModeBar();
}

void MainToolBars::addHeaderModeBar()
{
    QToolBar* bar = addBar(QStringLiteral("toolBarHeaderMode"), tr("Column Headers"));
    m_names = new QRadioButton(tr("Var Name"), bar);
    m_labels = new QRadioButton(tr("Var Label"), bar);
    m_names->setToolTip(tr("Show variable names in the column headers"));
    m_labels->setToolTip(tr("Show variable labels in the column headers"));
    for (QRadioButton* button : {m_names, m_labels}) {
        button->setFocusPolicy(Qt::TabFocus);  // a click leaves the keys with the grid
        m_headerModes->addButton(button);
        bar->addWidget(button);
    }
    connect(m_headerModes, &QButtonGroup::buttonClicked, this,
            &MainToolBars::signalHeaderModeClicked);
}

void MainToolBars::showHeaderMode(HeaderMode mode)
{
    (mode == HeaderMode::VariableLabels ? m_labels : m_names)->setChecked(true);
}

HeaderMode MainToolBars::headerMode() const
{
    return m_labels->isChecked() ? HeaderMode::VariableLabels : HeaderMode::VariableNames;
}

QToolBar* MainToolBars::addBar(const QString& name, const QString& title)
{
    auto* bar = new QToolBar(title, &m_window);
    bar->setObjectName(name);
    m_window.addToolBar(bar);
    return bar;
}
