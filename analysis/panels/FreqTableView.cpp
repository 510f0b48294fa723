#include "analysis/panels/FreqTableView.h"

#include "analysis/panels/CountBarDelegate.h"
#include "analysis/panels/FreqSortProxyModel.h"
#include "analysis/panels/FreqTableModel.h"
#include "analysis/panels/TableText.h"
#include "grid/opened/EngineMessages.h"
#include "grid/opened/OpenDataset.h"

#include <QHeaderView>
#include <QMenu>
#include <QShortcut>

#include <algorithm>

namespace {

/// A condition as a menu has room for it.
QString menuText(QString condition)
{
    constexpr int longest = 60;
    if (condition.size() > longest) {
        condition = condition.left(longest - 1) + QChar(0x2026);
    }
    // What a menu takes for the marks of a letter and of a key.
    return condition.replace(u'&', QStringLiteral("&&")).replace(u'\t', u' ');
}

}  // namespace

FreqTableView::FreqTableView(OpenDataset* opened, QWidget* parent)
    : PanelTable(parent)
    , m_opened(opened)
    , m_model(new FreqTableModel(this))
    , m_proxy(new FreqSortProxyModel(*m_model, this))
    , m_bars(new CountBarDelegate(this))
{
    setObjectName(QStringLiteral("tableFrequency"));
    setAccessibleName(tr("Frequency"));
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    setSortableModel(m_proxy);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &FreqTableView::showContextMenu);
    installKeys();
}

void FreqTableView::updateSetFrequency(std::vector<WordsAndCounts>* vectorFrequency,
                                       std::vector<int> variableNo, StatDataset* dataset,
                                       bool m_bFrequencyN)
{
    setItemDelegateForColumn(m_model->countColumn(), nullptr);
    if (m_opened != nullptr) {
        m_model->setUniqueVarName(m_opened->uniqueVarName());
    }
    m_model->updateSetFrequency(vectorFrequency, std::move(variableNo), dataset, m_bFrequencyN);
    m_bars->setLargest(m_model->largestCount());
    setItemDelegateForColumn(m_model->countColumn(), m_bars);
    resetOrder();
    selectionModel()->setCurrentIndex(model()->index(0, 0), QItemSelectionModel::ClearAndSelect);
    fitColumns();
    emit signalSelectionChanged();
}

void FreqTableView::selectionChanged(const QItemSelection& selected,
                                     const QItemSelection& deselected)
{
    PanelTable::selectionChanged(selected, deselected);
    emit signalSelectionChanged();
}

std::vector<int> FreqTableView::selectedRows() const
{
    std::vector<int> rows = tabletext::selectedRows(*this);
    std::transform(rows.begin(), rows.end(), rows.begin(),
                   [this](int row) { return m_proxy->sourceRow(row); });
    return rows;
}

// Filters

/// The counts of a single variable stand for its values.
std::optional<FreqTableView::Cell> FreqTableView::currentCell() const
{
    const QModelIndex index = currentIndex();
    const bool isOfOne = m_model->countColumn() == 1;
    const int column = isOfOne ? 0 : index.column();
    const int variable = m_model->variableOf(column);
    if (m_opened == nullptr || !index.isValid() || variable < 0) {
        return std::nullopt;
    }
    return Cell{m_proxy->sourceRow(index.row()), column, variable};
}

void FreqTableView::apply(Act act)
{
    if (m_opened != nullptr) {
        emit signalFilter(std::move(act));
    }
}

void FreqTableView::filterByCell(const std::function<CommandOutcome(const Cell&)>& filter)
{
    if (const auto cell = currentCell()) {
        apply([filter, cell] { return filter(*cell); });
    } else if (currentIndex().isValid()) {
        emit signalMessage(tr("Choose a value of a variable to filter by."));
    }
}

void FreqTableView::filterBy(CompareOp op)
{
    filterByCell([this, op](const Cell& cell) {
        return m_opened->filterByValue(cell.variable, op, valueOf(cell));
    });
}

void FreqTableView::filterByLibrary()
{
    filterByCell([this](const Cell& cell) {
        return m_opened->filterByValue(cell.variable, CompareOp::Equal, valueOf(cell),
                                       OpenDataset::FilterKind::Library);
    });
}

void FreqTableView::filterByValues()
{
    filterByCell([this](const Cell& cell) {
        return m_opened->filterByValues(cell.variable, selectedValues(cell.column));
    });
}

QuickFilter::Value FreqTableView::valueOf(const Cell& cell) const
{
    return m_model->filterValue(cell.row, cell.column);
}

std::vector<QuickFilter::Value> FreqTableView::selectedValues(int column) const
{
    std::vector<QuickFilter::Value> values;
    for (const int row : selectedRows()) {
        values.push_back(m_model->filterValue(row, column));
    }
    return values;
}

template <CompareOp op>
void FreqTableView::filter()
{
    filterBy(op);
}

void FreqTableView::clearDatasetFilter()
{
    apply([this] {
        m_opened->clearDatasetFilter();
        return CommandOutcome();
    });
}

void FreqTableView::clearLibraryFilter()
{
    apply([this] {
        m_opened->clearLibraryFilter();
        return CommandOutcome();
    });
}

void FreqTableView::undoDatasetFilter()
{
    apply([this] {
        m_opened->undo();
        return CommandOutcome();
    });
}

// Keys and menu

void FreqTableView::addKeys(const QList<int>& keys, void (FreqTableView::*act)())
{
    for (const int key : keys) {
        auto* shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setContext(Qt::WidgetShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, act);
    }
}

void FreqTableView::installKeys()
{
    const auto alt = [](Qt::Key key) { return QKeyCombination(Qt::AltModifier, key).toCombined(); };
    using enum CompareOp;
    addKeys({Qt::Key_Equal, Qt::Key_D}, &FreqTableView::filter<Equal>);
    // Some keyboards only have the signs as accents to be put on the next letter.
    addKeys({Qt::Key_AsciiCircum, Qt::Key_AsciiTilde, Qt::Key_Dead_Circumflex, Qt::Key_Dead_Tilde},
            &FreqTableView::filter<NotEqual>);
    addKeys({Qt::Key_Greater}, &FreqTableView::filter<Greater>);
    addKeys({Qt::Key_Less}, &FreqTableView::filter<Less>);
    addKeys({alt(Qt::Key_Greater)}, &FreqTableView::filter<GreaterOrEqual>);
    addKeys({alt(Qt::Key_Less)}, &FreqTableView::filter<LessOrEqual>);
    addKeys({Qt::Key_I}, &FreqTableView::filterByValues);
    addKeys({Qt::Key_L}, &FreqTableView::filterByLibrary);
    addKeys({Qt::Key_C}, &FreqTableView::clearDatasetFilter);
    addKeys({Qt::Key_Z}, &FreqTableView::undoDatasetFilter);
    addKeys({alt(Qt::Key_C)}, &FreqTableView::clearLibraryFilter);
}

void FreqTableView::showContextMenu(const QPoint& position)
{
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("frequencyContextMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& text, auto act) {
        connect(menu->addAction(text), &QAction::triggered, this, act);
    };
    add(tr("Copy"), &PanelTable::copy);
    menu->addSeparator();
    add(tr("Clear Library Filter"), &FreqTableView::clearLibraryFilter);
    add(tr("Undo Dataset Filter"), &FreqTableView::undoDatasetFilter);
    add(tr("Clear Dataset Filter"), &FreqTableView::clearDatasetFilter);
    addFilters(*menu);
    menu->popup(viewport()->mapToGlobal(position));
}

/// Each entry reads as the filter that it sets.
void FreqTableView::addFilters(QMenu& menu)
{
    const auto cell = currentCell();
    if (!cell) {
        return;
    }
    menu.addSeparator();
    const QuickFilter filters(m_opened->dataset(), cell->variable);
    const QuickFilter::Value value = valueOf(*cell);
    const auto add = [&](CompareOp op, const char* key, void (FreqTableView::*act)()) {
        addFilter(menu, filters.compare(op, value), key, act);
    };
    using enum CompareOp;
    add(Equal, "=", &FreqTableView::filter<Equal>);
    add(NotEqual, "^", &FreqTableView::filter<NotEqual>);
    add(Greater, ">", &FreqTableView::filter<Greater>);
    add(Less, "<", &FreqTableView::filter<Less>);
    add(GreaterOrEqual, "Alt+>", &FreqTableView::filter<GreaterOrEqual>);
    add(LessOrEqual, "Alt+<", &FreqTableView::filter<LessOrEqual>);
    addFilter(menu, filters.isIn(selectedValues(cell->column)), "I",
              &FreqTableView::filterByValues);
    add(Contains, "", &FreqTableView::filter<Contains>);
    const Result<QString> condition = filters.compare(Equal, value);
    addFilter(menu, condition ? QStringLiteral("where ") + condition.value() : condition, "L",
              &FreqTableView::filterByLibrary);
}

// What it connects changes the view. NOLINTNEXTLINE(readability-make-member-function-const)
void FreqTableView::addFilter(QMenu& menu, const Result<QString>& condition, const char* key,
                              void (FreqTableView::*act)())
{
    const QString text = condition
        ? condition.value()
        : enginemessages::translated(QString::fromStdString(condition.error()));
    QAction* action = menu.addAction(menuText(text) + u'\t' + QString::fromLatin1(key));
    action->setEnabled(static_cast<bool>(condition));
    connect(action, &QAction::triggered, this, act);
}
