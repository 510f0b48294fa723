#include "analysis/panels/PanelTable.h"

#include "analysis/panels/TableText.h"

#include <spdlog/spdlog.h>

#include <QAbstractButton>
#include <QHeaderView>
#include <QMouseEvent>
#include <QShortcut>

PanelTable::PanelTable(QWidget* parent)
    : QTableView(parent)
{
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setFrameShape(QFrame::NoFrame);
    // An input method would keep the accent keys to itself, some of which are commands.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    QHeaderView* rows = verticalHeader();
    rows->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    rows->setSectionResizeMode(QHeaderView::Fixed);
    fitRowHeight();
    panelkeys::install(*this, [this] { emit signalLeft(); });
    watchCornerButton();
}

void PanelTable::watchCornerButton()
{
    m_corner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    if (m_corner == nullptr) {
        spdlog::warn("Corner button not found");
        return;
    }
    m_corner->installEventFilter(this);
}

bool PanelTable::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_corner && event->type() == QEvent::MouseButtonPress
        && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        resetOrder();
        return true;
    }
    return QTableView::eventFilter(watched, event);
}

void PanelTable::setSortableModel(QAbstractItemModel* model)
{
    setModel(model);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

void PanelTable::resetOrder()
{
    sortByColumn(-1, Qt::AscendingOrder);
}

void PanelTable::fitRowHeight()
{
    const int height = fontMetrics().height() + 6;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

void PanelTable::fitColumns()
{
    m_isFitted = isVisible();
    if (!m_isFitted) {
        return;
    }
    constexpr int rowsToMeasure = 300;
    constexpr int widest = 300;
    QHeaderView& header = *horizontalHeader();
    const bool stretches = header.stretchLastSection();
    header.setStretchLastSection(false);
    header.setResizeContentsPrecision(rowsToMeasure);
    resizeColumnsToContents();
    for (int column = 0; column < header.count(); ++column) {
        setColumnWidth(column, std::min(columnWidth(column), widest));
    }
    header.setStretchLastSection(stretches);
}

void PanelTable::showEvent(QShowEvent* event)
{
    QTableView::showEvent(event);
    if (!m_isFitted) {
        fitColumns();
    }
}

void PanelTable::keyboardSearch(const QString& /*search*/) { }

void PanelTable::copy()
{
    tabletext::copySelection(*this);
}

void panelkeys::install(QTableView& table, const std::function<void()>& leave)
{
    const auto add = [&table](const QList<QKeySequence>& keys, const std::function<void()>& act) {
        auto* shortcut = new QShortcut(&table);
        shortcut->setKeys(keys);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        shortcut->setAutoRepeat(false);
        QObject::connect(shortcut, &QShortcut::activated, &table, act);
    };
    add(QKeySequence::keyBindings(QKeySequence::Copy),
        [&table] { tabletext::copySelection(table); });
    add({Qt::Key_Escape}, leave);
}
