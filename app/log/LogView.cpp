#include "app/log/LogView.h"

#include "app/log/LogModel.h"
#include "app/log/LogSink.h"
#include "app/look/Icons.h"

#include <QClipboard>
#include <QComboBox>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTableView>

LogView::LogView(const std::shared_ptr<spdlog::logger>& logger, QWidget* parent)
    : QWidget(parent)
    , m_attachment(std::make_unique<LogSinkAttachment>(logger))
    , m_model(new LogModel(10'000, this))
    , m_filter(new LogLevelFilter(this))
{
    m_filter->setSourceModel(m_model);
    createTable();
    createControls();
    createLayout();
    followEnd();
    connect(m_attachment->sink(), &LogSink::signalLogged, m_model, &LogModel::append,
            Qt::QueuedConnection);
}

LogView::~LogView() = default;

void LogView::createTable()
{
    m_table = new QTableView(this);
    m_table->setObjectName(QStringLiteral("tableLog"));
    m_table->setAccessibleName(tr("Log messages"));
    m_table->setModel(m_filter);
    m_table->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->verticalHeader()->hide();
    const QFontMetrics metrics(m_table->font());
    m_table->verticalHeader()->setDefaultSectionSize(metrics.height() + 4);
    QHeaderView* header = m_table->horizontalHeader();
    header->setStretchLastSection(true);
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setColumnWidth(LogModel::Time,
                            metrics.horizontalAdvance(QStringLiteral("00:00:00.000")) + 16);
    m_table->setColumnWidth(LogModel::Level,
                            metrics.horizontalAdvance(LogModel::tr("Information")) + 16);
}

void LogView::createControls()
{
    m_level = new QComboBox(this);
    m_level->setObjectName(QStringLiteral("comboBoxLogLevel"));
    m_level->addItem(tr("All messages"), spdlog::level::trace);
    m_level->addItem(tr("Information and above"), spdlog::level::info);
    m_level->addItem(tr("Warnings and errors"), spdlog::level::warn);
    m_level->addItem(tr("Errors"), spdlog::level::err);
    connect(m_level, &QComboBox::currentIndexChanged, this, &LogView::showLevel);

    m_copy = new QPushButton(tr("Cop&y"), this);
    m_copy->setObjectName(QStringLiteral("buttonCopyLog"));
    m_copy->setToolTip(tr("Copy the selected messages, or all that are shown if none is selected"));
    connect(m_copy, &QPushButton::clicked, this, &LogView::copy);
    auto* copyKeys = new QShortcut(QKeySequence::Copy, m_table);
    copyKeys->setContext(Qt::WidgetShortcut);
    connect(copyKeys, &QShortcut::activated, this, &LogView::copy);

    m_clear = new QPushButton(icons::icon(QStringLiteral("clear")), tr("C&lear"), this);
    m_clear->setObjectName(QStringLiteral("buttonClearLog"));
    connect(m_clear, &QPushButton::clicked, m_model, &LogModel::clear);
}

void LogView::createLayout()
{
    auto* label = new QLabel(tr("Sho&w:"), this);
    label->setBuddy(m_level);
    auto* controls = new QHBoxLayout;
    controls->setContentsMargins(6, 4, 6, 0);
    controls->addWidget(label);
    controls->addWidget(m_level);
    controls->addStretch();
    controls->addWidget(m_copy);
    controls->addWidget(m_clear);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(controls);
    layout->addWidget(m_table);
    setTabOrder(m_clear, m_table);
}

void LogView::followEnd()
{
    QScrollBar* bar = m_table->verticalScrollBar();
    connect(m_filter, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [this, bar] { m_atEnd = bar->value() == bar->maximum(); });
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, [this] {
        if (m_atEnd) {
            m_table->scrollToBottom();
        }
    });
}

void LogView::showLevel(int entry)
{
    m_filter->setLowestLevel(
        static_cast<spdlog::level::level_enum>(m_level->itemData(entry).toInt()));
    m_table->scrollToBottom();
}

void LogView::copy() const
{
    const QItemSelectionModel* selection = m_table->selectionModel();
    QString text;
    for (int row = 0; row < m_filter->rowCount(); ++row) {
        const QModelIndex index = m_filter->index(row, 0);
        if (!selection->hasSelection() || selection->isRowSelected(row)) {
            text += m_model->line(m_filter->mapToSource(index).row()) + u'\n';
        }
    }
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}
