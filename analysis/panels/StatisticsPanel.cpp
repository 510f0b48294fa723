#include "analysis/panels/StatisticsPanel.h"

#include "analysis/Frequencies.h"
#include "analysis/panels/DistributionChart.h"
#include "analysis/panels/PanelTable.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

QTableWidget* createTable(QWidget* parent)
{
    auto* table = new QTableWidget(parent);
    table->setObjectName(QStringLiteral("tableStatistics"));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setFrameShape(QFrame::NoFrame);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return table;
}

/// How the axis of a variable names its values: dates as the grid shows them, whose numbers say
/// nothing, and plain numbers with more digits than a format may leave them.
std::function<QString(double)> axisTextsOf(const StatDataset& dataset, int variable)
{
    if (dataset.dateScale(variable).content() == DateScale::Content::Number) {
        return [](double value) { return QString::number(value, 'g', 6); };
    }
    return [&dataset, variable](double value) {
        return QString::fromStdString(frequencies::displayText(dataset, variable, value));
    };
}

}  // namespace

StatisticsPanel::StatisticsPanel(OpenDataset* opened, QWidget* parent)
    : QWidget(parent)
    , m_opened(opened)
{ }

/// Only when there is something to show, as most grids never are asked for statistics.
void StatisticsPanel::createContents()
{
    m_table = createTable(this);
    m_chart = new DistributionChart(this);
    m_foot =
        new QLabel(tr("Made under other filters or BY variables than those in force now."), this);
    m_foot->setWordWrap(true);
    m_foot->setMargin(4);
    setFocusProxy(m_table);
    panelkeys::install(*m_table, [this] { emit signalLeft(); });
    m_results = new QBoxLayout(QBoxLayout::TopToBottom);
    m_results->setSpacing(0);
    m_results->addWidget(m_table, 1);
    m_results->addWidget(m_chart, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(m_results, 1);
    layout->addWidget(m_foot);
    connect(m_opened, &OpenDataset::signalFiltersChanged, this, &StatisticsPanel::updateFoot);
    connect(m_opened, &OpenDataset::signalByListChanged, this, &StatisticsPanel::updateFoot);
}

void StatisticsPanel::showResult(const statistics::Table& contents, int variable)
{
    if (m_table == nullptr) {
        createContents();
    }
    fillTable(contents);
    draw(contents, variable);
    m_madeUnder = FilterMark::of(*m_opened);
    m_madeBy = m_opened->byVariables();
    updateFoot();
    arrange();
}

void StatisticsPanel::fillTable(const statistics::Table& contents)
{
    QStringList labels;
    for (const std::string& text : contents.header) {
        labels << QString::fromStdString(text);
    }
    m_table->clear();
    m_table->setColumnCount(static_cast<int>(contents.header.size()));
    m_table->setRowCount(static_cast<int>(contents.rows.size()));
    m_table->setHorizontalHeaderLabels(labels);
    const int groupColumns = std::max(static_cast<int>(m_opened->byVariables().size()), 1);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const std::vector<std::string>& texts = contents.rows[static_cast<std::size_t>(row)];
        for (int column = 0; column < m_table->columnCount(); ++column) {
            auto* item = new QTableWidgetItem(
                QString::fromStdString(texts[static_cast<std::size_t>(column)]));
            item->setTextAlignment((column < groupColumns ? Qt::AlignLeft : Qt::AlignRight)
                                   | Qt::AlignVCenter);
            m_table->setItem(row, column, item);
        }
    }
    m_table->horizontalHeader()->setResizeContentsPrecision(300);
    m_table->resizeColumnsToContents();
    m_table->setCurrentCell(0, 0);
}

void StatisticsPanel::draw(const statistics::Table& contents, int variable)
{
    const bool isGrouped = !m_opened->byVariables().empty();
    m_chart->setContents({m_opened->nameOf(variable), contents.drawn, isGrouped,
                          isGrouped ? contents.rows.size() : 1,
                          axisTextsOf(m_opened->dataset(), variable)});
}

/// A wide table has the drawing below it, a narrow one beside it where there is room.
void StatisticsPanel::arrange()
{
    if (m_table == nullptr) {
        return;
    }
    const int wanted =
        m_table->horizontalHeader()->length() + m_table->verticalScrollBar()->sizeHint().width();
    const bool isBeside = wanted + m_chart->sizeHint().width() <= width();
    m_results->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void StatisticsPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void StatisticsPanel::updateFoot()
{
    m_foot->setVisible(m_madeUnder != FilterMark::of(*m_opened)
                       || m_madeBy != m_opened->byVariables());
}

StatisticsPanel::Message StatisticsPanel::messageOf(statistics::Problem problem)
{
    switch (problem) {
    case statistics::Problem::NoColumnSelected:
        return {tr("Descriptive Statistics"), tr("Please select at least one column.")};
    case statistics::Problem::NotNumeric:
        return {tr("Desciptive Stattistics"),  // sic
                tr("Selected variable is not numeric.")};
    case statistics::Problem::NoData:
        break;
    }
    return {tr("Desciptive Stattistics"),  // sic
            tr("No data available under current filters.")};
}
