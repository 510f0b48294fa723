#include "analysis/panels/FrequencyPanel.h"

#include "analysis/panels/FreqTableModel.h"
#include "analysis/panels/FreqTableView.h"

#include <QLabel>
#include <QVBoxLayout>

FrequencyPanel::FrequencyPanel(OpenDataset* opened, QWidget* parent)
    : QWidget(parent)
    , m_opened(opened)
    , m_table(new FreqTableView(opened, this))
    , m_foot(new QLabel(this))
{
    setFocusProxy(m_table);
    m_foot->setObjectName(QStringLiteral("labelFrequency"));
    m_foot->setTextFormat(Qt::PlainText);
    m_foot->setWordWrap(true);
    m_foot->setMargin(4);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_foot);
    connect(m_table, &FreqTableView::signalSelectionChanged, this, &FrequencyPanel::updateFoot);
    if (m_opened != nullptr) {
        connect(m_opened, &OpenDataset::signalFiltersChanged, this, &FrequencyPanel::updateFoot);
    }
}

bool FrequencyPanel::hasList() const
{
    return m_table->list().hasList();
}

void FrequencyPanel::noteCounted(bool frequencyN)
{
    m_countedUnder = FilterMark::of(*m_opened);
    m_idVariable = frequencyN ? m_opened->uniqueVarName() : QString();
    m_subjects = frequencyN ? m_opened->subjectCount() : std::nullopt;
    updateFoot();
}

/// Each stays in one line.
QStringList FrequencyPanel::figures() const
{
    const FreqTableModel& list = m_table->list();
    QStringList texts{tr("Rows: %1").arg(list.rowCount()), tr("Sum: %1").arg(list.sum())};
    if (m_subjects) {
        texts << tr("Subjects: %1").arg(*m_subjects);
    }
    if (const QString selection = selectionText(); !selection.isEmpty()) {
        texts << selection;
    }
    texts.replaceInStrings(QStringLiteral(" "), QStringLiteral("\u00A0"));
    return texts;
}

/// Of several rows, the same subject may be in each: their share is not told.
QString FrequencyPanel::selectionText() const
{
    const std::vector<int> rows = m_table->selectedRows();
    std::int64_t count = 0;
    for (const int row : rows) {
        count += m_table->list().countOf(row);
    }
    const std::int64_t whole = m_subjects.value_or(m_table->list().sum());
    if (rows.empty()) {
        return {};
    }
    if (whole == 0 || (m_subjects && rows.size() > 1)) {
        return tr("Selected: %1").arg(count);
    }
    const double percent = 100.0 * static_cast<double>(count) / static_cast<double>(whole);
    return tr("Selected: %1 (%2 %)").arg(count).arg(percent, 0, 'f', 1);
}

QStringList FrequencyPanel::warnings() const
{
    QStringList texts;
    if (!m_idVariable.isEmpty() && !m_subjects) {
        texts << tr("There is no variable %1: observations are counted.").arg(m_idVariable);
    }
    if (m_countedUnder != FilterMark::of(*m_opened)) {
        texts << tr("Counted under other filters than those in force now.");
    }
    return texts;
}

void FrequencyPanel::updateFoot()
{
    if (hasList()) {
        const QString gap = QStringLiteral("   ");
        m_foot->setText((QStringList{figures().join(gap)} + warnings()).join(u'\n'));
    }
}
