#include "app/boxes/CommandBoxes.h"

#include "app/boxes/CommandBar.h"
#include "app/window/GridServices.h"
#include "grid/MainTableView.h"

#include <QMainWindow>

namespace {

/// The statement form of a condition for the dataset filter.
QString statementOf(const QString& condition)
{
    return QStringLiteral("if ") + condition;
}

}  // namespace

CommandBoxes::CommandBoxes(QMainWindow& window, GridServices& services)
    : QObject(&window)
    , m_window(window)
    , m_services(services)
    , m_datasetFilter(
          addBar(tr("Dataset Filter"), QStringLiteral("toolBarDf"), QStringLiteral("comboBoxDf")))
    , m_libraryFilter(
          addBar(tr("Library Filter"), QStringLiteral("toolBarLf"), QStringLiteral("comboBoxLf")))
    , m_byVariables(
          addBar(tr("By Variables"), QStringLiteral("toolBarBy"), QStringLiteral("comboBoxBy")))
{
    constexpr int wide = 36;
    constexpr int narrow = 14;
    m_datasetFilter->setUsualWidth(wide);
    m_byVariables->setUsualWidth(narrow);
    connect(m_datasetFilter, &CommandBar::signalSubmitted, this,
            &CommandBoxes::submitDatasetFilter);
    connect(m_libraryFilter, &CommandBar::signalSubmitted, this,
            &CommandBoxes::submitLibraryFilter);
    connect(m_byVariables, &CommandBar::signalSubmitted, this, &CommandBoxes::submitByVariables);
}

CommandBar* CommandBoxes::addBar(const QString& title, const QString& barName,
                                 const QString& boxName)
{
    auto* bar = new CommandBar(title, barName, boxName, &m_window);
    m_window.addToolBar(bar);
    connect(bar, &CommandBar::signalLeft, this, &CommandBoxes::leaveBoxes);
    return bar;
}

void CommandBoxes::setGrid(MainTableView* grid)
{
    m_grid = grid;
    showDatasetFilter(grid == nullptr ? QString() : grid->opened()->datasetFilterText());
    showLibraryFilter(m_services.datasets().libraryFilter.text());
    showByVariables();
}

void CommandBoxes::showDatasetFilter(const QString& text)
{
    m_datasetFilter->setText(text);
}

void CommandBoxes::showLibraryFilter(const QString& text)
{
    m_libraryFilter->setText(text);
}

void CommandBoxes::showByVariables()
{
    QStringList names;
    if (m_grid != nullptr) {
        for (const std::string& name : m_grid->opened()->byVariables()) {
            names << QString::fromStdString(name);
        }
    }
    m_byVariables->setText(names.join(u' '));
}

/// An empty line takes the filter away, as it leaves the box the way it is without one. The line
/// that the box shows anyway changes nothing.
void CommandBoxes::submitDatasetFilter(const QString& line)
{
    if (m_grid == nullptr) {
        return;
    }
    const QString text = line.trimmed();
    if (text.isEmpty()) {
        m_grid->run(GridCommand::ClearDatasetFilter);
    } else if (text != m_grid->opened()->datasetFilterText()) {
        if (!run(line)) {
            return;
        }
        m_datasetFilter->remember(line);
    }
    leaveBoxes();
}

void CommandBoxes::submitLibraryFilter(const QString& line)
{
    const QString text = line.trimmed();
    if (text.isEmpty()) {
        m_services.datasets().libraryFilter.clear();
        emit signalLibraryFilterSubmitted();
    } else if (text != m_services.datasets().libraryFilter.text()) {
        const bool hasSucceeded = run(line);
        // A command fails after it has acted when text trails behind it.
        emit signalLibraryFilterSubmitted();
        if (!hasSucceeded) {
            return;
        }
        m_libraryFilter->remember(line);
    }
    leaveBoxes();
}

/// Names of variables become the list, "by" in front of them or not; any other line is a command.
void CommandBoxes::submitByVariables(const QString& line)
{
    if (m_grid == nullptr || (!m_grid->opened()->setByVariables(line) && !run(line))) {
        return;
    }
    if (!line.trimmed().isEmpty()) {
        m_byVariables->remember(line);
    }
    leaveBoxes();
}

bool CommandBoxes::applyDataFilter(const QString& condition)
{
    if (m_grid == nullptr
        || condition.trimmed() == conditionOf(m_grid->opened()->datasetFilterText())) {
        return true;
    }
    const QString plain = conditionOf(condition.trimmed());
    if (plain.isEmpty()) {
        m_grid->run(GridCommand::ClearDatasetFilter);
        return true;
    }
    const CommandOutcome outcome = m_grid->opened()->run(statementOf(plain), Dialect::FilterText,
                                                         OpenDataset::IfCommand::Replaces);
    if (!m_services.report(outcome)) {
        return false;
    }
    m_datasetFilter->remember(statementOf(plain));
    return true;
}

QString CommandBoxes::conditionOf(const QString& datasetFilterText)
{
    const QString keyword = statementOf(QString());
    return datasetFilterText.startsWith(keyword, Qt::CaseInsensitive)
        ? datasetFilterText.mid(keyword.size())
        : datasetFilterText;
}

bool CommandBoxes::run(const QString& command)
{
    return m_services.run(m_grid == nullptr ? nullptr : m_grid->opened(), command);
}

/// Goes back to the grid. The boxes show what is in force there, whatever was typed.
void CommandBoxes::leaveBoxes()
{
    setGrid(m_grid);
    if (m_grid != nullptr) {
        m_grid->setFocus();
    }
}
