#include "app/dialogs/SuppFindingsDialog.h"

#include "analysis/panels/PanelTable.h"
#include "grid/opened/EngineMessages.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

class FindingsTable : public PanelTable
{
public:
    FindingsTable(QAbstractItemModel* model, QWidget* parent)
        : PanelTable(parent)
    {
        setSortableModel(model);
        fitColumns();
    }
};

QStandardItem* textItem(const std::string& text)
{
    auto* item = new QStandardItem(QString::fromStdString(text));
    item->setEditable(false);
    return item;
}

}  // namespace

SuppFindingsDialog::SuppFindingsDialog(const supplement::Joined& joined, const QString& name,
                                       QWidget* parent)
    : QDialog(parent)
    , m_findings(joined.findings)
    , m_model(new QStandardItemModel(this))
    , m_sorted(new QSortFilterProxyModel(this))
{
    setObjectName(QStringLiteral("suppFindings"));
    setWindowTitle(tr("Findings of %1").arg(name));
    setAttribute(Qt::WA_DeleteOnClose);
    constexpr QSize comfortable(960, 480);
    resize(comfortable);
    fill(joined);
    createTable();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    QStringList notes;
    for (const std::string& note : joined.notes) {
        notes << enginemessages::translated(QString::fromStdString(note));
    }
    if (!notes.isEmpty()) {
        auto* label = new QLabel(notes.join(u'\n'), this);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    layout->addWidget(createButtons());
    m_table->selectRow(0);
    m_table->setFocus();
    showPossible();
}

void SuppFindingsDialog::fill(const supplement::Joined& joined)
{
    m_model->setHorizontalHeaderLabels({tr("Dataset"), tr("Row"), tr("Subject"),
                                        QStringLiteral("IDVAR"), QStringLiteral("IDVARVAL"),
                                        QStringLiteral("QNAM"), QStringLiteral("QVAL"),
                                        tr("What is wrong")});
    for (const supplement::Finding& finding : m_findings) {
        auto* row = new QStandardItem;
        row->setData(finding.row + 1, Qt::DisplayRole);
        row->setEditable(false);
        const QString wrong = enginemessages::translated(
            QString::fromStdString(supplement::sentenceOf(joined, finding)));
        m_model->appendRow({textItem(joined.supplements[finding.supplement]), row,
                            textItem(finding.subject), textItem(finding.idVariable),
                            textItem(finding.idValue), textItem(finding.name),
                            textItem(finding.value), textItem(wrong.toStdString())});
    }
    m_sorted->setSourceModel(m_model);
}

void SuppFindingsDialog::createTable()
{
    m_table = new FindingsTable(m_sorted, this);
    m_table->setAccessibleName(tr("Findings"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setFrameShape(QFrame::StyledPanel);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    connect(m_table, &QTableView::doubleClicked, this, &SuppFindingsDialog::requestRow);
    connect(m_table, &PanelTable::signalLeft, this, &QDialog::reject);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &SuppFindingsDialog::showPossible);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, m_table);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, &SuppFindingsDialog::requestRow);
    }
}

QWidget* SuppFindingsDialog::createButtons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_row = buttons->addButton(tr("Show &Row"), QDialogButtonBox::ActionRole);
    m_other = buttons->addButton(tr("Show &Other Row"), QDialogButtonBox::ActionRole);
    m_observation = buttons->addButton(tr("Show Obser&vation"), QDialogButtonBox::ActionRole);
    m_row->setObjectName(QStringLiteral("showRow"));
    m_other->setObjectName(QStringLiteral("showOtherRow"));
    m_observation->setObjectName(QStringLiteral("showObservation"));
    for (QPushButton* button : {m_row, m_other, m_observation}) {
        button->setAutoDefault(false);
    }
    connect(m_row, &QPushButton::clicked, this, &SuppFindingsDialog::requestRow);
    connect(m_other, &QPushButton::clicked, this, &SuppFindingsDialog::requestOther);
    connect(m_observation, &QPushButton::clicked, this, &SuppFindingsDialog::requestObservation);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

const supplement::Finding* SuppFindingsDialog::current() const
{
    const QModelIndex index = m_sorted->mapToSource(m_table->currentIndex());
    return index.isValid() ? &m_findings.at(static_cast<std::size_t>(index.row())) : nullptr;
}

void SuppFindingsDialog::requestRow()
{
    if (const supplement::Finding* finding = current()) {
        emit signalRowRequested(finding->supplement, finding->row);
    }
}

void SuppFindingsDialog::requestOther()
{
    if (const supplement::Finding* finding = current()) {
        emit signalRowRequested(finding->otherSupplement, finding->otherRow);
    }
}

void SuppFindingsDialog::requestObservation()
{
    if (const supplement::Finding* finding = current()) {
        emit signalObservationRequested(finding->observation);
    }
}

/// Only a conflict has another row and an observation.
void SuppFindingsDialog::showPossible()
{
    const supplement::Finding* finding = current();
    const bool isConflict = finding != nullptr && finding->fault == supplement::Fault::Conflict;
    m_row->setEnabled(finding != nullptr);
    m_other->setEnabled(isConflict);
    m_observation->setEnabled(isConflict);
}
