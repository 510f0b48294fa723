#include "app/dialogs/DatasetPropertiesDialog.h"

#include "analysis/panels/PanelTable.h"
#include "app/dialogs/FileSaving.h"
#include "app/dialogs/UserPrompts.h"
#include "data/StatDataset.h"
#include "grid/opened/EngineMessages.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace {

QString toQString(const std::string& text)
{
    return QString::fromStdString(text);
}

/// Numbers sort as such, texts without regard to case.
QStandardItem* cellItem(const std::string& text, bool isNumber)
{
    const QString shown = toQString(text);
    auto* item = new QStandardItem(shown);
    item->setData(isNumber ? QVariant(shown.toInt()) : QVariant(shown.toCaseFolded()),
                  Qt::UserRole);
    if (isNumber) {
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    item->setEditable(false);
    return item;
}

}  // namespace

DatasetPropertiesDialog::DatasetPropertiesDialog(const StatDataset& dataset, QString name,
                                                 const QString& path, UserPrompts& prompts,
                                                 QWidget* parent)
    : QDialog(parent)
    , m_prompts(prompts)
    , m_name(std::move(name))
    , m_text(toQString(contents::asText(dataset, path)))
    , m_csv(toQString(contents::asCsv(dataset, path)))
    , m_fields(new QTreeWidget(this))
    , m_variables(new QTableView(this))
    , m_model(new QStandardItemModel(this))
    , m_shown(new QSortFilterProxyModel(this))
{
    setWindowTitle(tr("Properties of %1").arg(m_name));
    setAttribute(Qt::WA_DeleteOnClose);
    constexpr QSize comfortable(860, 640);
    resize(comfortable);
    auto* parts = new QSplitter(Qt::Vertical, this);
    parts->addWidget(createFields(contents::sections(dataset, path)));
    parts->addWidget(createVariables(dataset));
    parts->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(parts);
    layout->addWidget(createButtons());
    m_variables->setFocus();
}

QWidget* DatasetPropertiesDialog::createFields(const std::vector<contents::Section>& sections)
{
    m_fields->setAccessibleName(tr("Dataset"));
    m_fields->setColumnCount(2);
    m_fields->setHeaderHidden(true);
    m_fields->setUniformRowHeights(true);
    m_fields->setAlternatingRowColors(true);
    for (const contents::Section& section : sections) {
        auto* top = new QTreeWidgetItem(m_fields, {toQString(section.title)});
        QFont bold = font();
        bold.setBold(true);
        top->setFont(0, bold);
        top->setFirstColumnSpanned(true);
        for (const contents::Field& field : section.fields) {
            if (contents::isTold(field)) {
                const QString text = toQString(contents::valueText(field.value));
                const QString value = field.isMessage ? enginemessages::translated(text) : text;
                auto* item = new QTreeWidgetItem(top, {toQString(field.title), value});
                item->setToolTip(1, value.toHtmlEscaped());
            }
        }
    }
    m_fields->expandAll();
    m_fields->resizeColumnToContents(0);
    return m_fields;
}

QWidget* DatasetPropertiesDialog::createVariables(const StatDataset& dataset)
{
    auto* part = new QWidget(this);
    auto* search = new QLineEdit(part);
    search->setClearButtonEnabled(true);
    search->setPlaceholderText(tr("Name or label"));
    auto* label = new QLabel(tr("&Search:"), part);
    label->setBuddy(search);
    connect(search, &QLineEdit::textChanged, m_shown, &QSortFilterProxyModel::setFilterFixedString);

    fillVariables(dataset);
    m_shown->setSourceModel(m_model);
    m_shown->setSortRole(Qt::UserRole);
    m_shown->setFilterKeyColumn(-1);
    m_shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_variables->setModel(m_shown);
    m_variables->setAccessibleName(tr("Variables"));
    m_variables->setSortingEnabled(true);
    m_variables->sortByColumn(0, Qt::AscendingOrder);
    m_variables->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_variables->setAlternatingRowColors(true);
    m_variables->setWordWrap(false);
    m_variables->verticalHeader()->hide();
    constexpr int rowMargin = 6;
    m_variables->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowMargin);
    m_variables->resizeColumnsToContents();
    m_variables->horizontalHeader()->setStretchLastSection(true);
    panelkeys::install(*m_variables, [this] { close(); });

    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(search);
    auto* layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line);
    layout->addWidget(m_variables);
    return part;
}

void DatasetPropertiesDialog::fillVariables(const StatDataset& dataset)
{
    QStringList titles;
    for (const std::string& title : contents::variableTitles(dataset)) {
        titles << toQString(title);
    }
    m_model->setHorizontalHeaderLabels(titles);
    for (const auto& row : contents::variableRows(dataset)) {
        QList<QStandardItem*> items;
        for (const std::string& cell : row) {
            constexpr std::array numbers{true, false, false, true, false, false, false, true};
            items << cellItem(cell, numbers.at(static_cast<std::size_t>(items.size())));
        }
        m_model->appendRow(items);
    }
}

QWidget* DatasetPropertiesDialog::createButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* copyAll = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    QPushButton* saveAs = buttons->addButton(tr("Save &As..."), QDialogButtonBox::ActionRole);
    QPushButton* closing = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    closing->setDefault(true);
    connect(copyAll, &QPushButton::clicked, this, &DatasetPropertiesDialog::copy);
    connect(saveAs, &QPushButton::clicked, this, &DatasetPropertiesDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    return buttons;
}

void DatasetPropertiesDialog::copy()
{
    QGuiApplication::clipboard()->setText(m_text);
}

void DatasetPropertiesDialog::save()
{
    const QString path =
        m_prompts.chooseSaveFile(tr("Save Properties"), m_name + QStringLiteral(".txt"),
                                 tr("Text Files (*.txt);;CSV Files (*.csv)"));
    if (path.isEmpty()) {
        return;
    }
    const bool isCsv = path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    filesaving::save(m_prompts, tr("Save Properties"), path, isCsv ? m_csv : m_text);
}
