#include "app/window/DatasetWindow.h"

#include "app/look/Icons.h"
#include "app/window/PlainTitle.h"
#include "data/StatDataset.h"
#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"
#include "grid/opened/OpenDataset.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenu>
#include <QShortcut>

namespace {

/// The name of one dataset within a file of several; empty for a file's only one.
QString memberOf(const DatasetOrigin& origin)
{
    const QString path = origin.filePath + QStringLiteral("::");
    return origin.fileKey.startsWith(path) ? origin.fileKey.mid(path.size()) : QString();
}

/// A name of any length as a tab has room for it: its beginning and its end.
QString shortened(const QString& name)
{
    constexpr int longest = 48;
    constexpr int half = longest / 2 - 1;
    return name.size() <= longest ? name : name.left(half) + QChar(0x2026) + name.right(half);
}

}  // namespace

DatasetWindow::DatasetWindow(std::unique_ptr<StatDataset> dataset, const DatasetOrigin& origin,
                             OpenDatasets& shared)
    : m_dataset(std::move(dataset))
    , m_opened(std::make_unique<OpenDataset>(*m_dataset, &shared))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setProperty("filePath", origin.filePath);
    setProperty("fileKey", origin.fileKey);
    setProperty("fileTimestamp", origin.fileTimestamp);
    createGrid();
    const QString member = memberOf(origin);
    const QString fileName = origin.filePath.section(u'/', -1);
    m_datasetName = member.isEmpty() ? QFileInfo(fileName).completeBaseName() : member;
    setWindowTitle(plainTitle(shortened(member.isEmpty() ? fileName : member)));
    setWindowIcon(icons::forDataset(origin.filePath));
    dropSystemMenuShortcuts();
    addCloseKey();
}

DatasetWindow::~DatasetWindow()
{
    // The dataset would go before the children, and the grid reads it to the last.
    delete m_view;
}

void DatasetWindow::createGrid()
{
    m_view = new MainTableView(m_opened.get(), this);
    m_view->setModel(new MainTableModel(m_opened.get(), m_view));
    m_view->fitColumns();
    m_view->setFrameShape(QFrame::NoFrame);
    setWidget(m_view);
}

/// Its "Close" has the same keys as the main window's, and of two actions for one key Qt runs none.
void DatasetWindow::dropSystemMenuShortcuts()
{
    for (QAction* action : systemMenu()->actions()) {
        action->setShortcuts(QList<QKeySequence>());
    }
}

void DatasetWindow::addCloseKey()
{
    auto* shortcut = new QShortcut(Qt::Key_W, m_view);
    shortcut->setContext(Qt::WidgetShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, &QWidget::close);
}

QString DatasetWindow::fileKey() const
{
    return property("fileKey").toString();
}

void DatasetWindow::closeEvent(QCloseEvent* event)
{
    QMdiSubWindow::closeEvent(event);
    if (event->isAccepted()) {
        emit signalClosed(this);
    }
}
