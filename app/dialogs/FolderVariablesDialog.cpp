#include "app/dialogs/FolderVariablesDialog.h"

#include "analysis/panels/PanelTable.h"
#include "app/dialogs/FolderVariablesModel.h"
#include "grid/opened/EngineMessages.h"

#include <spdlog/spdlog.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace {

/// A table of a side window whose rows are sorted by a click on a title.
class VariablesTable : public PanelTable
{
public:
    VariablesTable(QAbstractItemModel* model, QWidget* parent)
        : PanelTable(parent)
    {
        setSortableModel(model);
    }
    void fit() { fitColumns(); }
};

}  // namespace

FolderVariablesDialog::FolderVariablesDialog(const QString& name, const QString& folder,
                                             QWidget* parent)
    : QDialog(parent)
    , m_model(new FolderVariablesModel(this))
    , m_filter(new FolderVariablesFilter(this))
    , m_search(new QLineEdit(this))
    , m_onlyDifferent(new QCheckBox(tr("Only &differences"), this))
    , m_count(new QLabel(tr("Reading the folder..."), this))
    , m_problems(new QLabel(this))
{
    setWindowTitle(tr("Variables of %1").arg(name));
    resize(900, 560);
    m_filter->setSourceModel(m_model);
    createTable();
    auto* column = new QVBoxLayout(this);
    column->addLayout(createSearchRow());
    column->addWidget(m_table);
    column->addWidget(m_problems);
    column->addWidget(m_count);
    m_problems->setObjectName(QStringLiteral("problems"));
    m_problems->setTextFormat(Qt::PlainText);
    m_problems->setWordWrap(true);
    m_problems->hide();
    m_count->setObjectName(QStringLiteral("count"));
    m_count->setTextFormat(Qt::PlainText);
    connect(&m_scanner, &FolderScanner::signalListed, this,
            [this](const QString&, const FolderScanner::Listing& listing) { begin(listing); });
    connect(&m_scanner, &FolderScanner::signalSilent, this,
            [this] { m_count->setText(tr("The folder does not answer")); });
    connect(&m_reading, &QTimer::timeout, this, &FolderVariablesDialog::readNext);
    m_scanner.scan(folder);
}

void FolderVariablesDialog::createTable()
{
    m_table = new VariablesTable(m_filter, this);
    m_table->setAccessibleName(tr("Variables"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setFrameShape(QFrame::StyledPanel);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    connect(m_table, &QTableView::doubleClicked, this, &FolderVariablesDialog::request);
    connect(m_table, &PanelTable::signalLeft, this, &QDialog::reject);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, m_table);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this,
                [this] { request(m_table->currentIndex()); });
    }
}

QBoxLayout* FolderVariablesDialog::createSearchRow()
{
    auto* row = new QHBoxLayout;
    m_search->setPlaceholderText(tr("Search names, labels, formats, datasets"));
    m_search->setAccessibleName(tr("Search"));
    m_search->setClearButtonEnabled(true);
    row->addWidget(m_search);
    row->addWidget(m_onlyDifferent);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_filter->setText(text);
        showCount();
    });
    connect(m_onlyDifferent, &QCheckBox::toggled, this, [this](bool isOnly) {
        m_filter->setOnlyDifferent(isOnly);
        showCount();
    });
    // Return in the search goes to the rows, not to a button.
    connect(m_search, &QLineEdit::returnPressed, this, [this] {
        m_table->setFocus();
        m_table->selectRow(0);
    });
    return row;
}

// Reading

void FolderVariablesDialog::begin(const FolderScanner::Listing& listing)
{
    if (!listing) {
        m_count->setText(enginemessages::translated(QString::fromStdString(listing.error())));
        return;
    }
    m_paths.clear();
    for (const datasetfolder::File& file : listing.value()) {
        m_paths.push_back(file.path);
    }
    m_next = 0;
    m_contents = {};
    m_reading.start(0);
}

/// One file at each turn of the event loop, so that the window does not stand still.
void FolderVariablesDialog::readNext()
{
    if (m_next < m_paths.size()) {
        m_count->setText(tr("Reading file %1 of %2").arg(m_next + 1).arg(m_paths.size()));
        foldervariables::addFile(m_contents, m_paths[m_next]);
        ++m_next;
        return;
    }
    m_reading.stop();
    foldervariables::markDifferences(m_contents);
    showContents();
}

void FolderVariablesDialog::showContents()
{
    QStringList problems;
    for (const auto* texts : {&m_contents.failures, &m_contents.notes}) {
        for (const std::string& text : *texts) {
            spdlog::warn("{}", text);
            problems << enginemessages::translated(QString::fromStdString(text));
        }
    }
    constexpr qsizetype most = 4;
    const qsizetype more = problems.size() - most;
    if (more > 0) {
        problems = problems.mid(0, most) << tr("... and %1 more in the log").arg(more);
    }
    m_problems->setText(problems.join(u'\n'));
    m_problems->setHidden(problems.isEmpty());
    m_model->setContents(std::exchange(m_contents, {}));
    m_table->sortByColumn(FolderVariablesModel::Name, Qt::AscendingOrder);
    static_cast<VariablesTable*>(m_table)->fit();
    showCount();
}

void FolderVariablesDialog::showCount()
{
    if (!m_reading.isActive()) {
        m_count->setText(tr("Variables: %1 of %2, datasets: %3")
                             .arg(m_filter->rowCount())
                             .arg(m_model->rowCount())
                             .arg(m_model->contents().datasetCount));
    }
}

void FolderVariablesDialog::request(const QModelIndex& index)
{
    if (index.isValid()) {
        const foldervariables::Variable& variable =
            m_model->variable(m_filter->mapToSource(index).row());
        emit signalVariableRequested(variable.path, variable.member,
                                     QString::fromStdString(variable.name));
    }
}
