#include "app/boxes/CommandBoxes.h"

#include "app/boxes/CommandBar.h"
#include "app/dialogs/UserPrompts.h"
#include "app/window/GridServices.h"
#include "grid/MainTableView.h"
#include "grid/WaitCursor.h"

#include <spdlog/spdlog.h>

#include <QMainWindow>

namespace {

/// The statement form of a condition for the dataset filter.
QString statementOf(const QString& condition)
{
    return QStringLiteral("if ") + condition;
}

/// What stands behind the "if" of a dataset filter's text.
QString conditionOf(const QString& datasetFilterText)
{
    const QString keyword = statementOf(QString());
    return datasetFilterText.startsWith(keyword, Qt::CaseInsensitive)
        ? datasetFilterText.mid(keyword.size())
        : datasetFilterText;
}

}  // namespace

CommandBoxes::CommandBoxes(QMainWindow& window, GridServices& services)
    : QObject(&window)
    , m_window(window)
    , m_services(services)
    , m_datasetFilter(addBar(tr("Dataset Filter"), QStringLiteral("toolBarDf"),
                             QStringLiteral("comboBoxDf"), BoxLine::Box::DatasetFilter))
    , m_libraryFilter(addBar(tr("Library Filter"), QStringLiteral("toolBarLf"),
                             QStringLiteral("comboBoxLf"), BoxLine::Box::LibraryFilter))
    , m_byVariables(addBar(tr("By Variables"), QStringLiteral("toolBarBy"),
                           QStringLiteral("comboBoxBy"), BoxLine::Box::ByVariables))
{
    constexpr int wide = 36;
    constexpr int narrow = 14;
    m_datasetFilter->setUsualWidth(wide);
    m_byVariables->setUsualWidth(narrow);
}

CommandBar* CommandBoxes::addBar(const QString& title, const QString& barName,
                                 const QString& boxName, BoxLine::Box box)
{
    auto* bar = new CommandBar(title, barName, boxName, &m_window);
    m_window.addToolBar(bar);
    connect(bar, &CommandBar::signalSubmitted, this,
            [this, box](const QString& line, bool isEdited) { submit(box, line, isEdited); });
    connect(bar, &CommandBar::signalCleared, this, [this, box] {
        (void)run({box});
        setGrid(m_grid);
    });
    connect(bar, &CommandBar::signalLeft, this, &CommandBoxes::leaveBoxes);
    return bar;
}

CommandBar& CommandBoxes::barOf(BoxLine::Box box) const
{
    switch (box) {
    case BoxLine::Box::DatasetFilter:
        return *m_datasetFilter;
    case BoxLine::Box::LibraryFilter:
        return *m_libraryFilter;
    case BoxLine::Box::ByVariables:
        break;
    }
    return *m_byVariables;
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
    m_datasetFilter->showInForce(text);
}

void CommandBoxes::showLibraryFilter(const QString& text)
{
    m_libraryFilter->showInForce(text);
}

void CommandBoxes::showByVariables()
{
    m_byVariables->showInForce(m_grid == nullptr ? QString() : m_grid->opened()->byText());
}

void CommandBoxes::submit(BoxLine::Box box, const QString& line, bool isEdited)
{
    CommandBar& bar = barOf(box);
    const QString text = boxline::trimmed(line);
    const bool isNew = !text.isEmpty() && text != bar.inForce();
    // What was edited once may hold what nobody can type.
    const Dialect dialect =
        isEdited || bar.remembers(text) ? Dialect::FilterText : Dialect::Command;
    if (const CommandOutcome outcome = run({box, text, isEdited, dialect})) {
        bar.tell(*outcome);
        return;
    }
    if (isNew) {
        bar.remember(text);
    }
    leaveBoxes();
}

CommandOutcome CommandBoxes::run(const BoxLine& line)
{
    const WaitCursor waitCursor;
    CommandOutcome outcome = boxline::run(line, m_grid == nullptr ? nullptr : m_grid->opened(),
                                          m_services.datasets().libraryFilter);
    // A command fails after it has acted when text trails behind it.
    emit signalLibraryFilterSubmitted();
    return outcome;
}

void CommandBoxes::editDataFilter(UserPrompts& prompts)
{
    if (m_grid == nullptr) {
        return;
    }
    QString text = conditionOf(m_grid->opened()->datasetFilterText());
    bool isApplied = false;
    while (!isApplied) {
        const std::optional<QString> edited = prompts.editDataFilter(text);
        if (!edited) {
            spdlog::info("Filter canceled");
            return;
        }
        text = *edited;
        isApplied = applyDataFilter(text);
    }
}

/// Puts a condition in the place of the grid's dataset filter.
/// @return  whether nothing went wrong, which has been told
bool CommandBoxes::applyDataFilter(const QString& condition)
{
    if (m_grid == nullptr
        || condition.trimmed() == conditionOf(m_grid->opened()->datasetFilterText())) {
        return true;
    }
    const QString plain = conditionOf(boxline::trimmed(condition));
    if (plain.isEmpty()) {
        m_grid->run(GridCommand::ClearDatasetFilter);
        return true;
    }
    const CommandOutcome outcome = m_grid->opened()->run(
        statementOf(plain),
        CommandReading{Dialect::FilterText, CommandReading::InForce::IsReplaced});
    if (!m_services.report(outcome)) {
        return false;
    }
    m_datasetFilter->remember(statementOf(plain));
    return true;
}

/// Goes back to the grid. The boxes show what is in force there, whatever was typed.
void CommandBoxes::leaveBoxes()
{
    setGrid(m_grid);
    if (m_grid != nullptr) {
        m_grid->setFocus();
    }
}
