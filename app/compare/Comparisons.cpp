#include "app/compare/Comparisons.h"

#include "analysis/comparison/CompareJson.h"
#include "analysis/comparison/CompareProgram.h"
#include "app/code/CodeWindow.h"
#include "app/compare/CompareDialog.h"
#include "app/compare/ComparisonWindow.h"
#include "app/compare/DifferenceView.h"
#include "app/compare/DifferenceWindow.h"
#include "app/compare/LinkedGrids.h"
#include "app/dialogs/FileSaving.h"
#include "app/dialogs/UserPrompts.h"
#include "app/docks/OutputView.h"
#include "app/open/DatasetOpener.h"
#include "app/start/Settings.h"
#include "data/readers/FileKinds.h"
#include "grid/filter/VariableNames.h"
#include "grid/MainTableView.h"
#include "grid/opened/EngineMessages.h"
#include "grid/WaitCursor.h"

#include <QFileInfo>
#include <QMainWindow>
#include <QMdiArea>

using namespace Qt::StringLiterals;

namespace {

QString translated(const std::string& text)
{
    return enginemessages::translated(QString::fromStdString(text));
}

comparison::ProgramSource sourceOf(const DatasetWindow& window, bool filtersCount)
{
    // What a joined dataset is made of has to be joined in SAS as well.
    comparison::ProgramSource source{
        window.join() == nullptr ? window.origin().filePath.toStdString() : std::string(),
        programtext::makeSasName(window.datasetName()).toStdString()};
    const OpenDataset& opened = *window.view()->opened();
    for (const QString& filter : {opened.libraryFilterText(), opened.datasetFilterText()}) {
        if (filtersCount && !filter.trimmed().isEmpty()) {
            source.filters.push_back((filter.trimmed() + u';').toStdString());
        }
    }
    std::string hidden;
    const StatDataset& dataset = opened.dataset();
    for (int variable = 0; filtersCount && variable < dataset.variableCount(); ++variable) {
        if (!dataset.visibleVariables()[static_cast<std::size_t>(variable)]
            && !dataset.countsRows(variable)) {
            hidden += ' ' + variablenames::written(opened.nameOf(variable)).toStdString();
        }
    }
    if (!hidden.empty()) {
        source.filters.push_back("drop" + hidden + ';');
    }
    return source;
}

void goTo(MainTableView& grid, int observation, int variable)
{
    if (observation >= 0) {
        grid.cmdGotoObservation(observation);
    }
    if (variable >= 0) {
        grid.cmdGotoVariable(variable);
    }
}

}  // namespace

Comparisons::Comparisons(const Surroundings& surroundings)
    : QObject(&surroundings.window)
    , m_surroundings(surroundings)
{
    connect(&m_surroundings.opener, &DatasetOpener::signalShown, this, &Comparisons::linkGrids);
}

// What to compare

/// Those in front last come first.
QList<DatasetWindow*> Comparisons::datasets() const
{
    QList<DatasetWindow*> windows;
    for (QMdiSubWindow* each :
         m_surroundings.area.subWindowList(QMdiArea::ActivationHistoryOrder)) {
        if (auto* window = qobject_cast<DatasetWindow*>(each)) {
            windows.prepend(window);
        }
    }
    return windows;
}

void Comparisons::showDialog()
{
    auto* dialog = new CompareDialog(m_surroundings.settings, &m_surroundings.window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const QList<DatasetWindow*> windows = datasets();
    dialog->setDatasets(windows);
    dialog->choose(windows.value(0), windows.value(1));
    connect(dialog, &CompareDialog::signalOpenRequested, this,
            [this, dialog](bool isBase) { open(*dialog, isBase); });
    connect(dialog, &CompareDialog::signalCompareRequested, this, [this, dialog] { run(*dialog); });
    connect(dialog, &CompareDialog::signalProgramRequested, this,
            [this, dialog] { writeProgram(*dialog); });
    dialog->open();
}

void Comparisons::showDialogFor(const QStringList& paths)
{
    // The last one opened is in front, and so the base.
    const QStringList lastFirst(paths.rbegin(), paths.rend());
    for (const QString& path : lastFirst) {
        if (DatasetWindow* window = windowOf(path)) {
            m_surroundings.opener.activate(window);
        } else if (!m_surroundings.opener.open(path)) {
            return;
        }
    }
    showDialog();
}

DatasetWindow* Comparisons::windowOf(const QString& path) const
{
    for (DatasetWindow* window : datasets()) {
        if (window->origin().filePath == QFileInfo(path).absoluteFilePath()) {
            return window;
        }
    }
    return nullptr;
}

void Comparisons::open(CompareDialog& dialog, bool isBase)
{
    Settings& settings = m_surroundings.settings;
    const QString filters = filekinds::filtersOfAll();
    const QStringList paths = m_surroundings.prompts.chooseFiles(
        tr("Open File"), settings.lastFolder(), filters, filters);
    for (const QString& path : paths) {
        settings.setLastFolder(QFileInfo(path).absolutePath());
        DatasetWindow* window = windowOf(path);
        if (window == nullptr && m_surroundings.opener.open(path)) {
            window = windowOf(path);
        }
        if (window != nullptr) {
            dialog.setDatasets(datasets());
            dialog.choose(isBase ? window : nullptr, isBase ? nullptr : window);
        }
    }
}

// Comparing

void Comparisons::run(CompareDialog& dialog)
{
    const DatasetWindow* base = dialog.base();
    const DatasetWindow* compare = dialog.compare();
    if (base == nullptr || compare == nullptr) {
        return;
    }
    const Result<comparison::Request> request = dialog.request();
    const Result<comparison::ReportOptions> options = dialog.reportOptions();
    if (!request || !options) {
        dialog.tell(translated(request ? options.error() : request.error()));
        return;
    }
    const WaitCursor wait;
    Result<comparison::Comparison> result =
        comparison::Comparison::of(*base->dataset(), *compare->dataset(), request.value());
    if (!result) {
        dialog.tell(translated(result.error()));
        return;
    }
    const auto compared = std::make_shared<const ComparedDatasets>(
        ComparedDatasets{base->sharedDataset(), compare->sharedDataset(), base->origin(),
                         compare->origin(), std::move(result.value())});
    dialog.rememberOptions();
    report(*compared, dialog);
    dialog.accept();
    show(compared);
}

void Comparisons::report(const ComparedDatasets& compared, const CompareDialog& dialog)
{
    m_surroundings.output.add(QString::fromStdString(comparison::reportText(
                                  compared.result, dialog.reportOptions().value())),
                              u"compare-%1.txt"_s.arg(dialog.base()->datasetName().toLower()));
    emit signalReported();
}

/// Equal observations need no grid.
void Comparisons::show(const std::shared_ptr<const ComparedDatasets>& compared)
{
    const comparison::ObservationMatch& match = compared->result.observations();
    if (compared->result.unequalValues() == 0 && match.base.unmatched == 0
        && match.compare.unmatched == 0) {
        emit signalMessage(tr("All compared values of %1 and %2 are equal")
                               .arg(QString::fromStdString(compared->result.baseName()),
                                    QString::fromStdString(compared->result.compareName())));
        return;
    }
    auto* window = new ComparisonWindow(compared);
    connect(&window->differences(), &DifferenceWindow::signalRowChosen, this,
            [this, window](int baseObservation, int compareObservation, int baseVariable,
                           int compareVariable) {
                goTo(*window, baseObservation, compareObservation, baseVariable, compareVariable);
            });
    connect(&window->differences(), &DifferenceWindow::signalSaveRequested, this,
            [this, window] { save(*window); });
    connect(window, &QObject::destroyed, this, &Comparisons::signalWindowsChanged);
    m_surroundings.area.addSubWindow(window);
    window->showMaximized();
    window->differences().setFocus();
    DifferenceView& view = window->differences().view();
    emit signalShown(view);
    connect(&view, &DifferenceView::signalFontSizeChanged, this,
            &Comparisons::signalFontSizeChanged);
    linkGrids();
    emit signalWindowsChanged();
}

void Comparisons::writeProgram(CompareDialog& dialog)
{
    if (dialog.base() == nullptr || dialog.compare() == nullptr) {
        return;
    }
    const Result<comparison::Request> request = dialog.request();
    const Result<comparison::ReportOptions> options = dialog.reportOptions();
    if (!request || !options) {
        dialog.tell(translated(request ? options.error() : request.error()));
        return;
    }
    const Result<comparison::Request> checked = comparison::Comparison::checked(
        *dialog.base()->dataset(), *dialog.compare()->dataset(), request.value());
    if (!checked) {
        dialog.tell(translated(checked.error()));
        return;
    }
    m_surroundings.code.addProgram(QString::fromStdString(comparison::programText(
        sourceOf(*dialog.base(), dialog.filtersCount()),
        sourceOf(*dialog.compare(), dialog.filtersCount()), checked.value(), options.value())));
    dialog.rememberOptions();
    dialog.accept();
    emit signalProgramWritten();
}

// From the differences into the datasets

/// The grids of what was compared; what is read anew may have other rows and is let go.
void Comparisons::linkGrids()
{
    const QList<DatasetWindow*> windows = datasets();
    const auto gridOf = [&windows](const StatDataset& dataset) -> MainTableView* {
        for (const DatasetWindow* window : windows) {
            if (window->dataset() == &dataset) {
                return window->view();
            }
        }
        return nullptr;
    };
    for (QMdiSubWindow* each : m_surroundings.area.subWindowList()) {
        if (auto* window = qobject_cast<ComparisonWindow*>(each)) {
            window->grids().link(gridOf(*window->comparison().base),
                                 gridOf(*window->comparison().compare));
        }
    }
}

/// The window of one of the datasets, which may have been closed or read anew since.
DatasetWindow* Comparisons::openSide(const ComparedDatasets& compared, bool isBase)
{
    const StatDataset* dataset = (isBase ? compared.base : compared.compare).get();
    const DatasetOrigin& origin = isBase ? compared.baseOrigin : compared.compareOrigin;
    for (DatasetWindow* window : datasets()) {
        if (window->dataset() == dataset) {
            return window;
        }
    }
    // A joined dataset has no file of its own to be opened again.
    const bool isFile = origin.supplements.isEmpty();
    auto* window =
        qobject_cast<DatasetWindow*>(m_surroundings.opener.openFiles().find(origin.fileKey));
    if (window == nullptr && isFile
        && m_surroundings.opener.bringUp(origin.filePath, origin.member())) {
        window = m_surroundings.opener.find(origin.filePath, origin.member());
    }
    emit signalMessage(window == nullptr
                           ? tr("%1 is no longer open").arg(origin.fileKey)
                           : tr("%1 has been read anew since it was compared").arg(origin.fileKey));
    return window;
}

void Comparisons::goTo(const ComparisonWindow& window, int baseObservation, int compareObservation,
                       int baseVariable, int compareVariable)
{
    // The base comes last and is in front then, unless it lacks the observation.
    const std::shared_ptr<const ComparedDatasets> kept = window.shared();
    if (compareObservation >= 0) {
        if (DatasetWindow* compare = openSide(*kept, false)) {
            ::goTo(*compare->view(), compareObservation, compareVariable);
            m_surroundings.opener.activate(compare);
        }
    }
    if (baseObservation >= 0) {
        if (DatasetWindow* base = openSide(*kept, true)) {
            ::goTo(*base->view(), baseObservation, baseVariable);
            m_surroundings.opener.activate(base);
        }
    }
}

void Comparisons::save(const ComparisonWindow& window)
{
    const ComparedDatasets& compared = window.comparison();
    const QString title = tr("Save Differences");
    const QString path = m_surroundings.prompts.chooseSaveFile(
        title, u"differences.txt"_s,
        tr("Tab-Separated Text (*.txt *.tsv);;CSV Files (*.csv);;JSON Files (*.json)"));
    if (path.isEmpty()) {
        return;
    }
    if (path.endsWith(u".json"_s, Qt::CaseInsensitive)) {
        const comparison::Comparison& result = compared.result;
        filesaving::save(
            m_surroundings.prompts, title, path,
            QString::fromStdString(comparison::json(result,
                                                    {compared.baseOrigin.filePath.toStdString(),
                                                     compared.compareOrigin.filePath.toStdString(),
                                                     result.sysInfo() >= comparison::firstDataBit,
                                                     /*listsDifferences=*/true}))
                + u'\n');
    } else if (const std::optional<QString> problem = window.differences().save(path)) {
        m_surroundings.prompts.warn(title, tr("Failed to save the file: %1").arg(path), *problem);
    }
}
