#include "app/compare/DifferenceView.h"

#include "app/compare/DifferenceDelegate.h"
#include "app/compare/FrozenColumns.h"
#include "grid/GridHeader.h"
#include "grid/NativeKeys.h"
#include "grid/WaitCursor.h"

#include <QContextMenuEvent>
#include <QFontInfo>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QShortcut>

#include <algorithm>

using comparison::DifferenceRows;

DifferenceView::DifferenceView(std::shared_ptr<const comparison::Comparison> comparison,
                               QWidget* parent)
    : PanelTable(parent)
    , m_model(new DifferenceModel(std::move(comparison), this))
    , m_header(new GridHeader(Qt::Horizontal, this))
{
    setObjectName(QStringLiteral("tableDifferences"));
    setAccessibleName(tr("Differences"));
    setUpHeaders();
    setModel(m_model);
    setItemDelegate(new DifferenceDelegate(*m_model, this));
    setShowGrid(false);  // the delegate knows which rows belong together
    m_frozen = new FrozenColumns(*this, m_model->leadingColumns());
    installKeys();
    connect(this, &QTableView::doubleClicked, this, &DifferenceView::choose);
    connect(m_frozen, &QTableView::doubleClicked, this, &DifferenceView::choose);
    for (QTableView* table : {static_cast<QTableView*>(this), static_cast<QTableView*>(m_frozen)}) {
        table->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(table, &QWidget::customContextMenuRequested, this, [this, table](QPoint position) {
            showContextMenu(table->viewport()->mapToGlobal(position));
        });
    }
    followLetters();
    if (const DifferenceRows& rows = m_model->rows(); rows.differenceCount() > 0) {
        setCurrentIndex(m_model->indexOf(rows.difference(0), DifferenceModel::Line::Base));
    }
}

void DifferenceView::setUpHeaders()
{
    setHorizontalHeader(m_header);
    m_header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_header->setMinimumSectionSize(24);
    m_header->setRightAligned([this](int section) {
        const QVariant alignment =
            m_model->headerData(section, Qt::Horizontal, Qt::TextAlignmentRole);
        return alignment.toInt() & Qt::AlignRight;
    });
    verticalHeader()->hide();
}

void DifferenceView::installKeys()
{
    const auto add = [this](const QList<QKeySequence>& keys, bool repeats, auto act) {
        auto* shortcut = new QShortcut(this);
        shortcut->setKeys(keys);
        shortcut->setContext(Qt::WidgetShortcut);
        shortcut->setAutoRepeat(repeats);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    add({Qt::Key_Return, Qt::Key_Enter}, false, &DifferenceView::choose);
    add({Qt::Key_H}, true, &DifferenceView::hideVariable);
    add({Qt::Key_U}, false, &DifferenceView::unhideVariables);
    add({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, true, [this] { stepFontSize(1); });
    add({Qt::CTRL | Qt::Key_Minus}, true, [this] { stepFontSize(-1); });
}

void DifferenceView::showContextMenu(const QPoint& position)
{
    QMenu menu(this);
    const bool hasDifferences = m_model->rows().differenceCount() > 0;
    const auto add = [&](const QString& text, bool isEnabled, auto act) {
        menu.addAction(withNativeKeys(text), this, act)->setEnabled(isEnabled);
    };
    add(tr("Next Difference\tF8"), hasDifferences, &DifferenceView::goToNext);
    add(tr("Previous Difference\tShift+F8"), hasDifferences, &DifferenceView::goToPrevious);
    add(tr("Go to the Datasets\tReturn"), currentIndex().isValid(), &DifferenceView::choose);
    menu.addSeparator();
    add(tr("Hide Variable\tH"), currentVariable().has_value(), &DifferenceView::hideVariable);
    add(tr("Unhide Variables\tU"), hiddenVariables() > 0, &DifferenceView::unhideVariables);
    menu.addSeparator();
    add(tr("Copy\tCtrl+C"), selectionModel()->hasSelection(), &PanelTable::copy);
    menu.exec(position);
}

// What is shown

void DifferenceView::setFilter(const comparison::DifferenceFilter& filter)
{
    if (filter == m_model->filter()) {
        return;
    }
    const WaitCursor waitCursor;
    const auto before = whereabouts();
    keepWidths();
    m_model->setFilter(filter);
    fitNewColumns();
    if (before) {
        restore(*before);
    }
    emit signalPlaceChanged();
}

std::optional<DifferenceView::Whereabouts> DifferenceView::whereabouts() const
{
    const QModelIndex current = currentIndex();
    if (!current.isValid()) {
        return std::nullopt;
    }
    const DifferenceRows::Row row = m_model->rows().row(static_cast<std::size_t>(current.row()));
    const bool isLeading = current.column() < m_model->leadingColumns();
    return Whereabouts{m_model->rows().pairNumber(row.group), row.line,
                       isLeading ? current.column() : -1, currentVariable().value_or(0)};
}

void DifferenceView::restore(const Whereabouts& place)
{
    const DifferenceRows& rows = m_model->rows();
    if (rows.groupCount() == 0) {
        return;
    }
    const std::size_t group = std::min(rows.groupAt(place.pair), rows.groupCount() - 1);
    const QModelIndex first =
        m_model->indexOf({group, DifferenceRows::wholeObservation}, place.line);
    const auto& variables = rows.variables();
    // The variable, or the next one that is shown, or the last one.
    auto column = place.leadingColumn;
    if (column < 0) {
        const auto found = std::lower_bound(variables.begin(), variables.end(), place.variable);
        column = m_model->leadingColumns() + static_cast<int>(found - variables.begin());
        column = std::min(column, m_model->columnCount() - 1);
    }
    const QModelIndex current = first.siblingAtColumn(column);
    setCurrentIndex(current);
    scrollTo(current, PositionAtCenter);
}

std::optional<std::size_t> DifferenceView::currentVariable() const
{
    const int column = currentIndex().column() - m_model->leadingColumns();
    return column < 0
        ? std::nullopt
        : std::optional(m_model->rows().variables()[static_cast<std::size_t>(column)]);
}

void DifferenceView::hideVariable()
{
    if (const auto variable = currentVariable()) {
        comparison::DifferenceFilter filter = m_model->filter();
        filter.hidden.resize(m_model->comparison().values().size());
        filter.hidden.set(*variable);
        setFilter(filter);
    }
}

void DifferenceView::unhideVariables()
{
    comparison::DifferenceFilter filter = m_model->filter();
    filter.hidden.clear();
    setFilter(filter);
}

int DifferenceView::hiddenVariables() const
{
    return static_cast<int>(m_model->filter().hidden.count());
}

// Ways

void DifferenceView::goToNext()
{
    const DifferenceRows& rows = m_model->rows();
    if (currentIndex().isValid()) {
        goTo(rows.next(m_model->placeOf(currentIndex())), true);
    } else if (rows.differenceCount() > 0) {
        goTo(DifferenceRows::Step{rows.difference(0), false}, true);
    }
}

void DifferenceView::goToPrevious()
{
    const DifferenceRows& rows = m_model->rows();
    if (currentIndex().isValid()) {
        goTo(rows.previous(m_model->placeOf(currentIndex())), false);
    } else if (rows.differenceCount() > 0) {
        goTo(DifferenceRows::Step{rows.difference(rows.differenceCount() - 1), false}, false);
    }
}

/// Shows all rows of the observation, and stays in the line for compare where the user is there.
void DifferenceView::goTo(const std::optional<DifferenceRows::Step>& step, bool forwards)
{
    if (!step) {
        return;
    }
    const auto before = whereabouts();
    const auto& rows = m_model->rows();
    const QModelIndex index =
        m_model->indexOf(step->place, before ? before->line : DifferenceModel::Line::Base);
    scrollTo(index.siblingAtRow(static_cast<int>(rows.firstRow(step->place.group))));
    scrollTo(index.siblingAtRow(static_cast<int>(rows.firstRow(step->place.group + 1)) - 1));
    setCurrentIndex(index);
    if (step->isWrapped) {
        emit signalWrapped(forwards);
    }
}

void DifferenceView::choose()
{
    const QModelIndex current = currentIndex();
    if (!current.isValid()) {
        return;
    }
    const auto [base, compare] = m_model->observationsOf(current.row());
    const auto [baseVariable, compareVariable] = m_model->variablesOf(current.column());
    emit signalRowChosen(base, compare, baseVariable, compareVariable);
}

void DifferenceView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    PanelTable::currentChanged(current, previous);
    m_header->markSection(current.column());
    emit signalPlaceChanged();
}

/// Cells that the columns which stay would cover are brought out from below them.
void DifferenceView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    const int before = horizontalScrollBar()->value();
    PanelTable::scrollTo(index, hint);
    if (index.column() < m_frozen->count()) {
        if (m_frozen->coveredWidth() > 0 || (before > 0 && m_frozen->isVisibleTo(this))) {
            horizontalScrollBar()->setValue(before);
        }
        return;
    }
    const int hidden = m_frozen->coveredWidth() - columnViewportPosition(index.column());
    if (hidden > 0) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
    }
}

// Looks

void DifferenceView::stepFontSize(int step)
{
    constexpr int smallestToShrink = 6;
    const int before = fontSize();
    if (step > 0 || before >= smallestToShrink) {
        setFontSize(before + step);
    }
    if (fontSize() != before) {
        emit signalFontSizeChanged(fontSize());
    }
}

int DifferenceView::fontSize() const
{
    return QFontInfo(font()).pointSize();
}

void DifferenceView::setFontSize(int points)
{
    if (points == fontSize() && points == QFontInfo(m_header->font()).pointSize()) {
        return;
    }
    QFont changed = font();
    changed.setPointSize(points);
    setFont(changed);
    m_header->setFont(changed);
    m_header->viewport()->setFont(changed);
    m_widths.clear();
    m_leadingAreFitted = false;
    followLetters();
    scrollTo(currentIndex());
}

void DifferenceView::followLetters()
{
    fitRowHeight();
    m_frozen->followLetters();
    if (isVisible()) {
        fitNewColumns();
    }
}

void DifferenceView::keepWidths()
{
    const auto& variables = m_model->rows().variables();
    for (std::size_t i = 0; i < variables.size(); ++i) {
        m_widths[variables[i]] = columnWidth(m_model->leadingColumns() + static_cast<int>(i));
    }
}

/// Columns that had a width keep it, the others are made as wide as their contents.
void DifferenceView::fitNewColumns()
{
    for (int column = 0; column < m_model->leadingColumns() && !m_leadingAreFitted; ++column) {
        setColumnWidth(column, widthFor(column));
    }
    m_leadingAreFitted = m_leadingAreFitted || m_model->rowCount() > 0;
    const auto& variables = m_model->rows().variables();
    for (std::size_t i = 0; i < variables.size(); ++i) {
        const int column = m_model->leadingColumns() + static_cast<int>(i);
        const auto known = m_widths.find(variables[i]);
        setColumnWidth(column, known != m_widths.end() ? known->second : widthFor(column));
    }
    m_frozen->place();
}

/// As wide as the title and a sample of the cells, the first ones and some from all over the table.
int DifferenceView::widthFor(int column) const
{
    constexpr int cellsToMeasure = 4000;
    constexpr int widest = 320;
    constexpr int marks = 6;  // what stands in the corners
    const int rows = m_model->rowCount();
    const int sample =
        std::min(rows, std::clamp(cellsToMeasure / std::max(m_model->columnCount(), 1), 12, 240));
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    int width = m_header->titleWidth(column);
    for (int i = 0; i < sample; ++i) {
        const auto spread = static_cast<int>(qint64{rows} * i / sample);
        for (const int row : {i, spread}) {
            const QModelIndex index = m_model->index(row, column);
            width = std::max(width, itemDelegate()->sizeHint(option, index).width() + marks);
        }
    }
    return std::min(width, widest);
}

/// Says why nothing is there.
void DifferenceView::paintEvent(QPaintEvent* event)
{
    PanelTable::paintEvent(event);
    if (m_model->rowCount() > 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QString text = hiddenVariables() > 0
        ? tr("The variables that are shown have no differences.\nU shows the hidden ones.")
        : tr("There are no differences: all compared values are equal,\nand no observation is in "
             "one dataset only.");
    painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12),
                     Qt::AlignCenter | Qt::TextWordWrap, text);
}

void DifferenceView::resizeEvent(QResizeEvent* event)
{
    PanelTable::resizeEvent(event);
    m_frozen->place();
}

void DifferenceView::showEvent(QShowEvent* event)
{
    PanelTable::showEvent(event);
    if (!m_leadingAreFitted) {
        fitNewColumns();
        if (currentIndex().isValid()) {
            scrollTo(currentIndex());
        }
    }
}
