#include "analysis/panels/VariableTableView.h"

#include "analysis/panels/CenteredCheckBoxDelegate.h"
#include "analysis/panels/CheckBoxHeader.h"
#include "analysis/panels/TableText.h"
#include "analysis/panels/VariableTableModel.h"
#include "grid/opened/OpenDataset.h"

#include <QFontInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace {

/// Names in any case, lengths as the numbers they are.
class VariableSortProxy : public QSortFilterProxyModel
{
public:
    explicit VariableSortProxy(QObject* parent)
        : QSortFilterProxyModel(parent)
    {
        setSortCaseSensitivity(Qt::CaseInsensitive);
    }

protected:
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override
    {
        return left.column() == VariableTableModel::lengthColumn
            ? left.data().toInt() < right.data().toInt()
            : QSortFilterProxyModel::lessThan(left, right);
    }
};

}  // namespace

VariableTableView::VariableTableView(OpenDataset* opened, QWidget* parent)
    : PanelTable(parent)
    , m_model(new VariableTableModel(this))
    , m_header(new CheckBoxHeader(this))
    , m_proxy(new VariableSortProxy(this))
{
    setObjectName(QStringLiteral("tableVariables"));
    setAccessibleName(tr("Variables"));
    setItemDelegateForColumn(VariableTableModel::shownColumn, new CenteredCheckBoxDelegate(this));
    createHeader();
    createModel();
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &VariableTableView::showContextMenu);
    connect(this, &QAbstractItemView::activated, this, [this](const QModelIndex& index) {
        if (index.column() != VariableTableModel::shownColumn) {
            goToCurrent();
        }
    });
    auto* shortcut = new QShortcut(Qt::Key_G, this);
    shortcut->setContext(Qt::WidgetShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, &VariableTableView::goToCurrent);
    setOpened(opened);
}

void VariableTableView::createHeader()
{
    m_header->setSectionsClickable(true);
    m_header->setHighlightSections(true);
    m_header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setHorizontalHeader(m_header);
    connect(m_header, &CheckBoxHeader::signalCheckStateChanged, this,
            &VariableTableView::showOrHideAll);
}

void VariableTableView::createModel()
{
    m_proxy->setSourceModel(m_model);
    setSortableModel(m_proxy);
    connect(m_model, &VariableTableModel::signalVarHideUnhide, this,
            &VariableTableView::hideUnhideVar);
    connect(m_model, &VariableTableModel::signalVarHideUnhide, this,
            &VariableTableView::updateHeaderState);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &VariableTableView::updateHeaderState);
    connect(m_model, &QAbstractItemModel::modelReset, this, &VariableTableView::updateHeaderState);
}

void VariableTableView::setOpened(OpenDataset* opened)
{
    m_opened = opened;
    m_currentVariable = -1;
    m_model->setOpened(opened);
    fitColumns();
}

// Hiding and showing

void VariableTableView::hideUnhideVar(int variable)
{
    emit signalVarHideUnhide(variable);
}

void VariableTableView::updateHeaderState()
{
    const int shown = m_opened == nullptr ? 0 : m_opened->variables().shownCount();
    const Qt::CheckState some = shown == 0 ? Qt::Unchecked : Qt::PartiallyChecked;
    const QSignalBlocker blocker(m_header);
    m_header->setCheckState(shown == m_model->rowCount() ? Qt::Checked : some);
}

void VariableTableView::showOrHideAll(Qt::CheckState state)
{
    if (m_opened != nullptr) {
        const OpenDataset::VariablesBatch batch(*m_opened);
        const auto shown = state == Qt::Unchecked ? Qt::Unchecked : Qt::Checked;
        for (int row = 0; row < model()->rowCount(); ++row) {
            model()->setData(model()->index(row, VariableTableModel::shownColumn), shown,
                             Qt::CheckStateRole);
        }
    }
    updateHeaderState();
    viewport()->update();
}

// Variables and rows

int VariableTableView::variableOf(const QModelIndex& index) const
{
    return index.isValid() ? m_proxy->mapToSource(index).row() : -1;
}

void VariableTableView::cmdSelectRow(int variable)
{
    const QModelIndex index =
        m_proxy->mapFromSource(m_model->index(variable, VariableTableModel::shownColumn));
    if (index.isValid()) {
        // Whatever keys are held down, which the view would heed.
        selectionModel()->setCurrentIndex(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        scrollTo(index);
        m_currentVariable = variable;
    }
}

void VariableTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    PanelTable::currentChanged(current, previous);
    m_currentVariable = variableOf(current);
}

void VariableTableView::goToCurrent()
{
    if (m_currentVariable >= 0) {
        emit signalGotoVar(m_currentVariable);
    }
}

/// In the order on the screen.
std::vector<int> VariableTableView::selectedVariables() const
{
    const std::vector<int> rows = tabletext::selectedRows(*this);
    std::vector<int> variables;
    std::transform(rows.begin(), rows.end(), std::back_inserter(variables), [this](int row) {
        return variableOf(model()->index(row, VariableTableModel::shownColumn));
    });
    return variables;
}

// Keys and menu

void VariableTableView::keyPressEvent(QKeyEvent* event)
{
    const bool isControl = event->modifiers().testFlag(Qt::ControlModifier);
    const int key = event->key();
    if (isControl && (key == Qt::Key_Plus || key == Qt::Key_Equal)) {
        stepFontSize(1);
    } else if (isControl && key == Qt::Key_Minus) {
        stepFontSize(-1);
    } else {
        PanelTable::keyPressEvent(event);
    }
}

void VariableTableView::stepFontSize(int step)
{
    constexpr int smallestToShrink = 6;
    const int size = QFontInfo(font()).pointSize();
    if (step < 0 && size < smallestToShrink) {
        return;
    }
    QFont changed = font();
    changed.setPointSize(size + step);
    setFont(changed);
    fitRowHeight();
    fitColumns();
}

void VariableTableView::showContextMenu(const QPoint& position)
{
    if (m_opened == nullptr) {
        return;
    }
    const int variable = variableOf(indexAt(position));
    // An ampersand in a menu would underline the letter behind it instead of being shown.
    const QString id = QString(m_opened->uniqueVarName()).replace(u'&', QStringLiteral("&&"));
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("variablesContextMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("Copy")), &QAction::triggered, this, &PanelTable::copy);
    QAction* goTo = menu->addAction(tr("Go to Variable"));
    goTo->setEnabled(variable >= 0);
    connect(goTo, &QAction::triggered, this, [this, variable] { emit signalGotoVar(variable); });
    const auto addFrequency = [&](const QString& text, bool frequencyN) {
        connect(menu->addAction(text), &QAction::triggered, this,
                [this, frequencyN] { emit signalFrequencyAsked(selectedVariables(), frequencyN); });
    };
    addFrequency(tr("Frequency"), false);
    addFrequency(tr("Frequency (%1)").arg(id), true);
    menu->popup(viewport()->mapToGlobal(position));
}
