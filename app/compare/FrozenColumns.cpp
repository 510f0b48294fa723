#include "app/compare/FrozenColumns.h"

#include "grid/GridHeader.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

FrozenColumns::FrozenColumns(QTableView& table, int count)
    : QTableView(&table)
    , m_table(table)
    , m_count(count)
{
    setHorizontalHeader(new GridHeader(Qt::Horizontal, this));
    setModel(table.model());
    setSelectionModel(table.selectionModel());
    setItemDelegate(table.itemDelegate());
    setFocusProxy(&table);
    setFrameShape(QFrame::NoFrame);
    setWordWrap(false);
    setShowGrid(table.showGrid());
    setAutoScroll(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(table.verticalScrollMode());
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(table.horizontalHeader()->minimumSectionSize());
    hide();
    followColumns();
    connect(table.model(), &QAbstractItemModel::modelReset, this, &FrozenColumns::followColumns);
    connect(table.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int, int width) {
                if (column < m_count) {
                    setColumnWidth(column, width);
                    place();
                }
            });
    connect(horizontalHeader(), &QHeaderView::sectionResized, &table,
            [this](int column, int, int width) {
                if (column < m_count) {
                    m_table.setColumnWidth(column, width);
                }
            });
    // The table may be scrolled before this one knows that it has so many rows.
    connect(table.verticalScrollBar(), &QAbstractSlider::valueChanged, this,
            &FrozenColumns::followRows);
    connect(verticalScrollBar(), &QAbstractSlider::rangeChanged, this, &FrozenColumns::followRows);
    connect(table.horizontalScrollBar(), &QAbstractSlider::valueChanged, this,
            &FrozenColumns::place);
}

void FrozenColumns::followColumns()
{
    for (int column = 0; column < model()->columnCount(); ++column) {
        setColumnHidden(column, column >= m_count);
    }
}

void FrozenColumns::followLetters()
{
    setFont(m_table.font());
    horizontalHeader()->setFont(m_table.horizontalHeader()->font());
    verticalHeader()->setMinimumSectionSize(m_table.verticalHeader()->minimumSectionSize());
    verticalHeader()->setDefaultSectionSize(m_table.verticalHeader()->defaultSectionSize());
    place();
}

/// Nothing is covered while the columns are in sight anyway, or would leave too little of the rest.
void FrozenColumns::place()
{
    int wanted = 0;
    for (int column = 0; column < m_count; ++column) {
        wanted += m_table.columnWidth(column);
    }
    const QRect& ground = m_table.viewport()->geometry();
    const bool isNeeded = m_table.horizontalScrollBar()->value() > 0;
    const bool hasRoom = 2 * wanted <= ground.width();
    if (!isNeeded || !hasRoom) {
        hide();
        return;
    }
    const int headerHeight = m_table.horizontalHeader()->height();
    horizontalHeader()->setFixedHeight(headerHeight);
    setGeometry(ground.left(), ground.top() - headerHeight, wanted, ground.height() + headerHeight);
    show();
    raise();
    followRows();
}

void FrozenColumns::followRows()
{
    verticalScrollBar()->setValue(m_table.verticalScrollBar()->value());
}

void FrozenColumns::wheelEvent(QWheelEvent* event)
{
    QCoreApplication::sendEvent(m_table.viewport(), event);
}

/// A line parts what stays from what moves below it.
void FrozenColumns::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    const int right = viewport()->width() - 1;
    painter.drawLine(right, 0, right, viewport()->height());
}
