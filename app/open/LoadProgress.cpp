#include "app/open/LoadProgress.h"

#include <QFrame>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>
#include <QVBoxLayout>

LoadProgress::LoadProgress(QMainWindow& window, const QString& what,
                           std::chrono::milliseconds patience)
    : m_window(window)
    , m_text(tr("Opening %1 …").arg(what))
    , m_patience(patience)
{
    m_time.start();
    m_window.statusBar()->showMessage(m_text);
    m_window.statusBar()->repaint();
}

LoadProgress::~LoadProgress()
{
    delete m_panel;
    if (m_window.statusBar()->currentMessage() == m_text) {
        m_window.statusBar()->clearMessage();
    }
}

void LoadProgress::advance(int percent)
{
    if (m_time.elapsed() < m_patience.count()) {
        return;
    }
    if (m_panel == nullptr) {
        createPanel();
    }
    m_bar->setValue(percent);
    m_panel->repaint();
}

void LoadProgress::createPanel()
{
    auto* panel = new QFrame(m_window.centralWidget());
    panel->setObjectName(QStringLiteral("loadProgress"));
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setAutoFillBackground(true);
    auto* label = new QLabel(m_text, panel);
    label->setTextFormat(Qt::PlainText);
    m_bar = new QProgressBar(panel);
    auto* layout = new QVBoxLayout(panel);
    layout->addWidget(label);
    layout->addWidget(m_bar);
    m_panel = panel;
    constexpr int narrowest = 320;
    panel->resize(panel->sizeHint().expandedTo(QSize(narrowest, 0)));
    panel->move(m_window.centralWidget()->rect().center() - panel->rect().center());
    panel->show();
}
