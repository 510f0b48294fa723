#include "app/dialogs/FindDialog.h"

#include "analysis/CellSearch.h"
#include "grid/MainTableModel.h"
#include "grid/opened/OpenDataset.h"
#include "grid/WaitCursor.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QVBoxLayout>

FindDialog::FindDialog(QWidget* parent)
    : QDialog(parent)
    , m_text(new QLineEdit(this))
    , m_byRow(new QRadioButton(tr("By &Row"), this))
    , m_byColumn(new QRadioButton(tr("By &Column"), this))
    , m_status(new QLabel(this))
{
    setWindowTitle(tr("Find"));
    createParts();
}

FindDialog::~FindDialog() = default;

void FindDialog::createParts()
{
    constexpr int comfortableWidth = 320;
    m_text->setPlaceholderText(tr("Find in table..."));
    m_text->setAccessibleName(tr("Text to find"));
    m_text->setMinimumWidth(comfortableWidth);
    m_byRow->setChecked(true);
    auto* find = new QPushButton(tr("Find"), this);
    auto* next = new QPushButton(tr("Next"), this);
    auto* previous = new QPushButton(tr("Previous"), this);
    find->setDefault(true);
    const auto search = [this](CellWalk::Direction direction) {
        return [this, direction] { (void)this->find(direction); };
    };
    connect(find, &QPushButton::clicked, this, search(CellWalk::Direction::Forward));
    connect(next, &QPushButton::clicked, this, search(CellWalk::Direction::Forward));
    connect(previous, &QPushButton::clicked, this, search(CellWalk::Direction::Backward));
    // What was said of another text does not hold for this one.
    connect(m_text, &QLineEdit::textChanged, this, [this] {
        m_search.reset();
        m_status->clear();
    });
    connect(this, &QDialog::finished, this, [this] {
        m_search.reset();
        if (m_view != nullptr) {
            m_view->setFocus();
        }
    });

    auto* order = new QHBoxLayout;
    for (QWidget* part : std::initializer_list<QWidget*>{m_byRow, m_byColumn, m_status}) {
        order->addWidget(part);
    }
    order->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {find, next, previous}) {
        buttons->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addLayout(order);
    layout->addLayout(buttons);
}

void FindDialog::setView(QTableView* view)
{
    if (view != m_view) {
        m_view = view;
        m_last.reset();
        m_search.reset();
        m_status->clear();
    }
}

bool FindDialog::hasText() const
{
    return !m_text->text().isEmpty();
}

bool FindDialog::hasStatus() const
{
    return !m_status->text().isEmpty();
}

void FindDialog::bringUp()
{
    if (isHidden() && m_view != nullptr) {
        // In the corner of the table where it hides least.
        adjustSize();
        const QPoint corner = m_view->mapToGlobal(m_view->rect().topRight());
        constexpr int margin = 24;
        move(corner - QPoint(frameGeometry().width() + margin, -margin));
    }
    QDialog::show();
    raise();
    activateWindow();
    m_text->setFocus();
    m_text->selectAll();
}

bool FindDialog::find(CellWalk::Direction direction)
{
    const QAbstractItemModel* model = m_view == nullptr ? nullptr : m_view->model();
    if (model == nullptr || !hasText() || model->rowCount() == 0 || model->columnCount() == 0) {
        return false;
    }
    const CellWalk walk(
        model->rowCount(), model->columnCount(),
        m_byColumn->isChecked() ? CellWalk::Order::ByColumn : CellWalk::Order::ByRow, wordOfView());
    const auto found = [&] {
        const WaitCursor waitCursor;
        return walk.next(m_last, direction);
    }();
    if (!found) {
        tell(tr("Not found"), Qt::red);
        return false;
    }
    m_last = found;
    show(*found);
    return true;
}

/// The cells of a dataset are searched by their values, any other table by its texts.
CellWalk::Word FindDialog::wordOfView()
{
    if (const auto* grid = qobject_cast<MainTableModel*>(m_view->model())) {
        if (m_search == nullptr) {
            m_search = std::make_unique<CellSearch>(grid->opened()->dataset(), m_text->text());
        }
        return [this, grid](int column, int firstRow, int rowCount) {
            return m_search->word(column,
                                  grid->rowMap().subspan(static_cast<std::size_t>(firstRow),
                                                         static_cast<std::size_t>(rowCount)));
        };
    }
    return
        [model = m_view->model(), text = m_text->text()](int column, int firstRow, int rowCount) {
            std::uint64_t word = 0;
            for (int i = 0; i < rowCount; ++i) {
                const QString shown = model->index(firstRow + i, column).data().toString();
                word |= std::uint64_t{shown.contains(text, Qt::CaseInsensitive)} << i;
            }
            return word;
        };
}

void FindDialog::show(TableCell cell)
{
    const QModelIndex index = m_view->model()->index(cell.row, cell.column);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
    giveWayTo(index);
    if (isOutOfSight(cell)) {
        tell(tr("Found, but not visible"), Qt::darkYellow);
    } else {
        m_status->clear();
    }
}

bool FindDialog::isOutOfSight(TableCell cell) const
{
    return m_view->isRowHidden(cell.row) || m_view->isColumnHidden(cell.column);
}

void FindDialog::followVisibility()
{
    if (m_status->text() == tr("Found, but not visible") && !isOutOfSight(*m_last)) {
        m_status->clear();
    }
}

/// Moves below or above a cell that it would hide.
void FindDialog::giveWayTo(const QModelIndex& cell)
{
    QRect shown = m_view->visualRect(cell);
    shown.moveTopLeft(m_view->viewport()->mapToGlobal(shown.topLeft()));
    const QRect own = frameGeometry();
    if (isVisible() && own.intersects(shown)) {
        const bool isUpper = shown.center().y() < m_view->mapToGlobal(m_view->rect().center()).y();
        constexpr int margin = 8;
        move(own.left(), isUpper ? shown.bottom() + margin : shown.top() - own.height() - margin);
    }
}

void FindDialog::tell(const QString& text, Qt::GlobalColor colour)
{
    QPalette palette = m_status->palette();
    palette.setColor(QPalette::WindowText, colour);
    m_status->setPalette(palette);
    m_status->setText(text);
}
