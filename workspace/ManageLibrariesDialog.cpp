#include "workspace/ManageLibrariesDialog.h"

#include "workspace/LibraryEditorDialog.h"
#include "workspace/LibraryRegistry.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPixmap>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

/// A patch of the colour; nothing where a library has none.
QIcon swatch(const QString& name)
{
    constexpr int pixels = 12;
    const QColor color(name);
    if (!color.isValid()) {
        return {};
    }
    QPixmap patch(pixels, pixels);
    patch.fill(color);
    return patch;
}

}  // namespace

ManageLibrariesDialog::ManageLibrariesDialog(const LibraryRegistry& registry,
                                             LibraryPrompts prompts, QWidget* parent)
    : QDialog(parent)
    , m_registry(registry)
    , m_prompts(std::move(prompts))
    , m_table(new QTableWidget(this))
{
    setWindowTitle(tr("Manage Libraries"));
    resize(760, 360);
    createTable();
    auto* row = new QHBoxLayout;
    row->addWidget(m_table);
    row->addLayout(createButtons());
    auto* column = new QVBoxLayout(this);
    column->addLayout(row);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    enableButtons();
}

void ManageLibrariesDialog::createTable()
{
    m_table->setObjectName(QStringLiteral("libraries"));
    m_table->setAccessibleName(tr("Libraries"));
    m_table->setColumnCount(Columns);
    m_table->setHorizontalHeaderLabels(
        {tr("Name"), tr("Directory"), tr("SAS Library"), tr("Library Filter")});
    m_table->horizontalHeader()->setSectionResizeMode(Directory, QHeaderView::Stretch);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->verticalHeader()->hide();
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    connect(m_table, &QTableWidget::itemSelectionChanged, this,
            &ManageLibrariesDialog::enableButtons);
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &ManageLibrariesDialog::edit);
    auto* erase = new QShortcut(QKeySequence::Delete, m_table);
    erase->setContext(Qt::WidgetShortcut);
    connect(erase, &QShortcut::activated, this, &ManageLibrariesDialog::remove);
}

QBoxLayout* ManageLibrariesDialog::createButtons()
{
    auto* column = new QVBoxLayout;
    addButton("add", tr("&Add"), *column, &ManageLibrariesDialog::add);
    m_edit = addButton("edit", tr("&Edit"), *column, &ManageLibrariesDialog::edit);
    m_delete = addButton("delete", tr("&Delete"), *column, &ManageLibrariesDialog::remove);
    m_moveUp = addButton("moveUp", tr("Move &Up"), *column, nullptr);
    m_moveDown = addButton("moveDown", tr("Move Do&wn"), *column, nullptr);
    connect(m_moveUp, &QPushButton::clicked, this, [this] { move(-1); });
    connect(m_moveDown, &QPushButton::clicked, this, [this] { move(1); });
    column->addStretch();
    return column;
}

QPushButton* ManageLibrariesDialog::addButton(const char* name, const QString& text,
                                              QBoxLayout& column,
                                              void (ManageLibrariesDialog::*run)())
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);  // Return accepts the dialog
    column.addWidget(button);
    if (run != nullptr) {
        connect(button, &QPushButton::clicked, this, run);
    }
    return button;
}

bool ManageLibrariesDialog::load()
{
    const Result<QList<Library>> loaded = m_registry.loadForEditing();
    if (!loaded) {
        m_prompts.warn(windowTitle(), QString::fromStdString(loaded.error()));
        return false;
    }
    m_libraries = loaded.value();
    m_removed.clear();
    showList(0);
    m_table->resizeColumnsToContents();
    return true;
}

void ManageLibrariesDialog::accept()
{
    const Result<bool> saved = m_registry.save(m_libraries, m_removed);
    if (saved) {
        QDialog::accept();
    } else {
        m_prompts.warn(windowTitle(), QString::fromStdString(saved.error()));
    }
}

// Changes of the list

void ManageLibrariesDialog::add()
{
    LibraryEditorDialog editor(Library(), dirsWithout(-1), m_prompts, this);
    if (editor.exec() == QDialog::Accepted) {
        m_libraries << editor.library();
        showList(m_libraries.size() - 1);
    }
}

void ManageLibrariesDialog::edit()
{
    const int row = m_table->currentRow();
    if (row < 0) {
        return;
    }
    LibraryEditorDialog editor(m_libraries[row], dirsWithout(row), m_prompts, this);
    if (editor.exec() == QDialog::Accepted) {
        m_libraries[row] = editor.library();
        showList(row);
    }
}

void ManageLibrariesDialog::remove()
{
    const int row = m_table->currentRow();
    if (row < 0) {
        return;
    }
    const Library removed = m_libraries.takeAt(row);
    if (removed.id != 0) {
        m_removed << removed.id;
    }
    showList(std::min<qsizetype>(row, m_libraries.size() - 1));
}

void ManageLibrariesDialog::move(int step)
{
    const int row = m_table->currentRow();
    const int target = row + step;
    if (row < 0 || target < 0 || target >= m_libraries.size()) {
        return;
    }
    m_libraries.swapItemsAt(row, target);
    showList(target);
}

QStringList ManageLibrariesDialog::dirsWithout(qsizetype row) const
{
    QStringList dirs;
    for (qsizetype other = 0; other < m_libraries.size(); ++other) {
        if (other != row) {
            dirs << m_libraries[other].dir;
        }
    }
    return dirs;
}

// The table

void ManageLibrariesDialog::showList(qsizetype current)
{
    m_table->setRowCount(static_cast<int>(m_libraries.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        showRow(row);
    }
    if (current >= 0) {
        m_table->selectRow(static_cast<int>(current));
    }
    enableButtons();
}

void ManageLibrariesDialog::showRow(int row)
{
    const Library& library = m_libraries[row];
    const QStringList texts{library.shownName(), QDir::toNativeSeparators(library.dir),
                            library.alias, library.filter};
    for (int column = 0; column < Columns; ++column) {
        auto* item = new QTableWidgetItem(texts[column]);
        item->setToolTip(texts[column]);
        if (column == Name) {
            item->setIcon(swatch(library.color));
        }
        m_table->setItem(row, column, item);
    }
}

void ManageLibrariesDialog::enableButtons()
{
    const int row = m_table->selectionModel()->hasSelection() ? m_table->currentRow() : -1;
    m_edit->setEnabled(row >= 0);
    m_delete->setEnabled(row >= 0);
    m_moveUp->setEnabled(row > 0);
    m_moveDown->setEnabled(row >= 0 && row + 1 < m_libraries.size());
}
