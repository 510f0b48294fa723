#include "app/dialogs/QuickOpenDialog.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QVBoxLayout>

namespace {

/// The items below an item that have none below them, in the order of the tree: the path, with the
/// name in front of it where that is another. What is no dataset has no path.
void addDatasets(const QAbstractItemModel& tree, const QModelIndex& parent, QStringList& entries)
{
    for (int row = 0; row < tree.rowCount(parent); ++row) {
        const QModelIndex item = tree.index(row, 0, parent);
        const QString path = item.data(Qt::UserRole).toString();
        const QString text = item.data().toString();
        if (tree.hasChildren(item)) {
            addDatasets(tree, item, entries);
        } else {
            entries << (text == path ? path : text + u'\t' + path);
        }
    }
}

QStringList datasetsOf(const QAbstractItemModel& tree)
{
    QStringList entries;
    addDatasets(tree, QModelIndex(), entries);
    return entries;
}

QStringList variablesOf(const QAbstractItemModel* grid)
{
    QStringList texts;
    for (int column = 0; grid != nullptr && column < grid->columnCount(); ++column) {
        texts << grid->headerData(column, Qt::Horizontal).toString();
    }
    return texts;
}

}  // namespace

QuickOpenDialog::QuickOpenDialog(const QAbstractItemModel& workspace,
                                 const QAbstractItemModel* grid, QWidget* parent)
    : QDialog(parent, Qt::Popup | Qt::FramelessWindowHint)
    , m_datasets(new QStringListModel(datasetsOf(workspace), this))
    , m_variables(new QStringListModel(variablesOf(grid), this))
    , m_proxy(new QSortFilterProxyModel(this))
    , m_text(new QLineEdit(this))
    , m_list(new QListView(this))
    , m_hint(new QLabel(this))
    , m_observationCount(grid == nullptr ? 0 : grid->rowCount())
{
    setWindowTitle(tr("Quick Open"));
    resize(500, 400);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSourceModel(m_datasets);
    createParts();
    filter(QString());
}

void QuickOpenDialog::createParts()
{
    m_text->setPlaceholderText(tr("Dataset, \"v\" and a variable, or a row number"));
    m_text->setAccessibleName(tr("Quick Open"));
    m_text->installEventFilter(this);
    m_list->setModel(m_proxy);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QListView::NoEditTriggers);
    m_list->setFocusProxy(m_text);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    connect(m_text, &QLineEdit::textChanged, this, &QuickOpenDialog::filter);
    connect(m_text, &QLineEdit::returnPressed, this, &QuickOpenDialog::accept);
    connect(m_list, &QListView::clicked, this, &QuickOpenDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_list);
    layout->addWidget(m_hint);
    m_text->setFocus();
}

void QuickOpenDialog::filter(const QString& text)
{
    static const QRegularExpression ofVariables(QStringLiteral("^\\s*(?:col|var|c|v)\\s+(.*)$"),
                                                QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = ofVariables.match(text);
    setMode(match.hasMatch() ? Mode::Variables : Mode::Datasets);
    QRegularExpression pattern(match.hasMatch() ? match.captured(1) : text,
                               QRegularExpression::CaseInsensitiveOption);
    if (!pattern.isValid()) {
        pattern.setPattern(QStringLiteral("(?!)"));  // which nothing matches
    }
    m_proxy->setFilterRegularExpression(pattern);
    const QModelIndex first = m_proxy->index(0, 0);
    if (first.isValid()) {
        m_list->setCurrentIndex(first);
    } else {
        m_list->clearSelection();
        m_list->setCurrentIndex(QModelIndex());
    }
    const int observation = typedObservation();
    m_hint->setText(observation >= 0      ? tr("Return goes to observation %1").arg(observation + 1)
                        : first.isValid() ? QString()
                        : m_mode == Mode::Variables || m_datasets->rowCount() > 0
                        ? tr("Nothing matches")
                        : tr("The workspace holds no datasets"));
    m_hint->setHidden(m_hint->text().isEmpty());
}

void QuickOpenDialog::setMode(Mode mode)
{
    if (mode != m_mode) {
        m_mode = mode;
        m_proxy->setSourceModel(mode == Mode::Variables ? m_variables : m_datasets);
    }
}

int QuickOpenDialog::typedObservation() const
{
    bool isNumber = false;
    const int number = m_text->text().trimmed().toInt(&isNumber);
    const bool isObservation = isNumber && number >= 1 && number <= m_observationCount;
    return isObservation && m_proxy->rowCount() == 0 ? number - 1 : -1;
}

void QuickOpenDialog::accept()
{
    const QModelIndex chosen = m_proxy->mapToSource(m_list->currentIndex());
    const int observation = typedObservation();
    const QString entry = chosen.data().toString();
    const QString path = entry.mid(entry.indexOf(u'\t') + 1);
    const bool leadsSomewhere =
        observation >= 0 || (chosen.isValid() && (m_mode == Mode::Variables || !path.isEmpty()));
    if (!leadsSomewhere) {
        return;
    }
    QDialog::accept();
    if (!chosen.isValid()) {
        emit rowChosen(observation);
    } else if (m_mode == Mode::Variables) {
        emit columnChosen(chosen.row());
    } else {
        emit fileChosen(path);
    }
}

/// The window has no frame of its own.
void QuickOpenDialog::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

/// Keys that move through a list are the list's.
bool QuickOpenDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_text && event->type() == QEvent::KeyPress) {
        switch (static_cast<const QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(m_list, event);
            return true;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}
