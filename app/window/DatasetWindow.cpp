#include "app/window/DatasetWindow.h"

#include "app/look/Icons.h"
#include "app/window/NoticeBar.h"
#include "app/window/PlainTitle.h"
#include "data/FilePath.h"
#include "data/StatDataset.h"
#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"
#include "grid/opened/EngineMessages.h"
#include "grid/opened/OpenDataset.h"

#include <QAction>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>

namespace {

/// A name of any length as a tab has room for it: its beginning and its end.
QString shortened(const QString& name)
{
    constexpr int longest = 48;
    constexpr int half = longest / 2 - 1;
    return name.size() <= longest ? name : name.left(half) + QChar(0x2026) + name.right(half);
}

/// What the user calls a dataset.
QString nameOf(const StatDataset& dataset, const DatasetOrigin& origin)
{
    const QString name =
        origin.member().isEmpty() ? QString::fromStdString(dataset.datasetName()) : origin.member();
    return name.isEmpty() ? QFileInfo(origin.filePath).completeBaseName() : name;
}

/// What may be wrong with a dataset's file, a line each.
QString damageOf(const StatDataset& dataset)
{
    QStringList notes;
    for (const std::string& note : dataset.damageNotes()) {
        notes << enginemessages::translated(QString::fromStdString(note));
    }
    return notes.join(u'\n');
}

}  // namespace

QString DatasetOrigin::member() const
{
    return fileKey.mid(filePath.size() + 2);
}

DatasetWindow::DatasetWindow(std::shared_ptr<StatDataset> dataset, const DatasetOrigin& origin,
                             OpenDatasets& shared)
    : m_dataset(std::move(dataset))
    , m_opened(std::make_unique<OpenDataset>(*m_dataset, &shared))
    , m_origin(origin)
    , m_datasetName(nameOf(*m_dataset, origin))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setProperty("filePath", origin.filePath);
    setProperty("fileKey", origin.fileKey);
    setProperty("fileTimestamp", origin.fileTimestamp);
    createGrid();
    createNotices();
    showTitle();
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

/// They stand above the grid, which stays the window's widget.
void DatasetWindow::createNotices()
{
    auto* damage = new NoticeBar(this);
    damage->setObjectName(QStringLiteral("damageNotice"));
    damage->setText(damageOf(*m_dataset));
    m_fileNotice = new NoticeBar(this);
    m_fileNotice->setObjectName(QStringLiteral("fileNotice"));
    // Queued, as this window and the button with it are replaced.
    connect(
        m_fileNotice->addButton(tr("Reload")), &QPushButton::clicked, this,
        [this] { emit signalReloadRequested(this); }, Qt::QueuedConnection);
    if (auto* column = qobject_cast<QBoxLayout*>(layout())) {
        column->setSpacing(0);
        column->insertWidget(0, damage);
        column->insertWidget(1, m_fileNotice);
    }
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

// What its tab tells

QString DatasetWindow::path() const
{
    const QString member = m_origin.member();
    return member.isEmpty() ? m_origin.filePath : m_origin.filePath + u'/' + member;
}

QString DatasetWindow::tip() const
{
    const QString label = QString::fromStdString(m_dataset->header().fileLabel).trimmed();
    const QString path = QDir::toNativeSeparators(m_origin.filePath);
    return label.isEmpty() ? path : path + u'\n' + label;
}

QString DatasetWindow::mainTitle() const
{
    return tr("%1 - %2 - Quorlane")
        .arg(m_datasetName, filepath::shown(QDir::toNativeSeparators(m_origin.filePath)))
        .replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

void DatasetWindow::setPlace(const QString& place)
{
    m_place = place;
    showTitle();
}

void DatasetWindow::showTitle()
{
    const QString file = filepath::shown(m_origin.filePath.section(u'/', -1));
    const QString member = m_origin.member();
    QString title = shortened(member.isEmpty() ? file : member);
    if (!m_place.isEmpty() || !member.isEmpty()) {
        title = tr("%1 (in %2)").arg(title, shortened(m_place.isEmpty() ? file : m_place));
    }
    if (!m_fileState.isEmpty()) {
        title = tr("%1 - %2").arg(title, m_fileState);
    }
    setWindowTitle(plainTitle(title));
}

void DatasetWindow::lookAtFile()
{
    const filepath::FileState file = filepath::stateOf(m_origin.filePath);
    const bool isSame =
        file.lastModified == m_origin.fileTimestamp && file.size == m_origin.fileSize;
    const QString state = isSame ? QString()
        : file.exists            ? tr("changed on disk")
                                 : tr("gone from disk");
    if (state == m_fileState) {
        return;
    }
    m_fileState = state;
    m_fileNotice->setText(isSame ? QString()
                              : file.exists
                              ? tr("The file has changed since it was read; what is shown here is "
                                   "what it held before.")
                              : tr("The file is no longer there; what is shown here is what it "
                                   "held."));
    showTitle();
}

void DatasetWindow::closeEvent(QCloseEvent* event)
{
    QMdiSubWindow::closeEvent(event);
    if (event->isAccepted()) {
        emit signalClosed(this);
    }
}
