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

#include <algorithm>

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
    const QString name = origin.member().isEmpty() || !origin.supplements.isEmpty()
        ? QString::fromStdString(dataset.datasetName())
        : origin.member();
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
    return fileKey.chopped(joinKey().size()).mid(filePath.size() + 2);
}

QString DatasetOrigin::joinKey() const
{
    QString key;
    for (const JoinedFile& file : supplements) {
        key += QStringLiteral(" + ") + file.key();
    }
    return key;
}

bool DatasetOrigin::isUnchanged() const
{
    const auto isSame = [](const QString& path, const QDateTime& time, qint64 size) {
        const filepath::FileState file = filepath::stateOf(path);
        return file.lastModified == time && file.size == size;
    };
    return isSame(filePath, fileTimestamp, fileSize)
        && std::all_of(supplements.begin(), supplements.end(), [&](const JoinedFile& file) {
               return isSame(file.path, file.timestamp, file.size);
           });
}

bool DatasetOrigin::exists() const
{
    return filepath::stateOf(filePath).exists
        && std::all_of(supplements.begin(), supplements.end(),
                       [](const JoinedFile& file) { return filepath::stateOf(file.path).exists; });
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

DatasetWindow::DatasetWindow(supplement::Joined joined, const DatasetOrigin& origin,
                             OpenDatasets& shared)
    : DatasetWindow(std::move(joined.dataset), origin, shared)
{
    m_join = std::move(joined);
    addJoinNotice();
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

void DatasetWindow::addJoinNotice()
{
    if (m_join->findings.empty() && m_join->notes.empty()) {
        return;
    }
    auto* notice = new NoticeBar(this);
    notice->setObjectName(QStringLiteral("joinNotice"));
    QStringList lines;
    if (!m_join->findings.empty()) {
        lines << tr("Rows of SUPP-- datasets that match no observation: %1. Rows whose value "
                    "conflicts with another one: %2.")
                     .arg(m_join->unmatched())
                     .arg(m_join->conflicts());
    }
    for (const std::string& note : m_join->notes) {
        lines << enginemessages::translated(QString::fromStdString(note));
    }
    notice->setText(lines.join(u'\n'));
    if (!m_join->findings.empty()) {
        connect(notice->addButton(tr("Show List")), &QPushButton::clicked, this,
                [this] { emit signalFindingsRequested(this); });
    }
    if (auto* column = qobject_cast<QBoxLayout*>(layout())) {
        column->insertWidget(1, notice);
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
    const QString path = member.isEmpty() ? m_origin.filePath : m_origin.filePath + u'/' + member;
    return m_join ? path.section(u'/', 0, -2) + u'/' + ownTitle() : path;
}

/// What the tab says without what tells it from others.
QString DatasetWindow::ownTitle() const
{
    const QString member = m_origin.member();
    if (!m_join) {
        return shortened(member.isEmpty() ? filepath::shown(m_origin.filePath.section(u'/', -1))
                                          : member);
    }
    QStringList names{member.isEmpty() ? QFileInfo(m_origin.filePath).completeBaseName() : member};
    for (const JoinedFile& file : m_origin.supplements) {
        names << (file.member.isEmpty() ? QFileInfo(file.path).completeBaseName() : file.member);
    }
    return shortened(filepath::shown(names.join(QStringLiteral(" + "))));
}

QString DatasetWindow::tip() const
{
    const QString label = QString::fromStdString(m_dataset->header().fileLabel).trimmed();
    QStringList lines{QDir::toNativeSeparators(m_origin.filePath)};
    for (const JoinedFile& file : m_origin.supplements) {
        lines << QDir::toNativeSeparators(file.key());
    }
    if (!label.isEmpty()) {
        lines << label;
    }
    return lines.join(u'\n');
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
    QString title = ownTitle();
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
    const bool isSame = m_origin.isUnchanged();
    const bool exists = m_origin.exists();
    const QString state = isSame ? QString()
        : exists                 ? tr("changed on disk")
                                 : tr("gone from disk");
    if (state == m_fileState) {
        return;
    }
    m_fileState = state;
    m_fileNotice->setText(isSame ? QString()
                              : exists
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
