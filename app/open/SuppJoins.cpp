#include "app/open/SuppJoins.h"

#include "app/dialogs/SuppFindingsDialog.h"
#include "app/dialogs/UserPrompts.h"
#include "app/open/DatasetOpener.h"
#include "app/start/Settings.h"
#include "app/window/DatasetWindow.h"
#include "app/window/GridServices.h"
#include "data/readers/DatasetFile.h"
#include "grid/MainTableView.h"

#include <spdlog/spdlog.h>

#include <QAction>
#include <QFileInfo>
#include <QMdiArea>

SuppJoins::SuppJoins(const Surroundings& surroundings)
    : QObject(&surroundings.opener)
    , m_surroundings(surroundings)
{
    connect(&surroundings.opener, &DatasetOpener::signalShown, this, &SuppJoins::tell);
    connect(&surroundings.action, &QAction::triggered, this, &SuppJoins::joinActive);
    follow(nullptr);
}

void SuppJoins::follow(const DatasetWindow* window)
{
    m_surroundings.action.setEnabled(window != nullptr && window->join() == nullptr
                                     && supplement::whyNoParent(*window->dataset()).empty());
}

void SuppJoins::joinActive()
{
    if (const auto* window = qobject_cast<DatasetWindow*>(m_surroundings.area.currentSubWindow())) {
        join(window->origin().filePath, window->origin().member());
    }
}

void SuppJoins::join(const QString& path, const QString& member)
{
    QString name = member;
    if (const auto names = datasetNames(path);
        name.isEmpty() && names && names.value().size() > 1) {
        name = QString::fromStdString(names.value().front());
    }
    QList<JoinedFile> files = suppfiles::beside(path, name);
    if (files.isEmpty()) {
        files = choose(path);
    }
    if (!files.isEmpty()) {
        static_cast<void>(m_surroundings.opener.openJoined(path, name, files));
    }
}

/// The SUPP-- datasets that the user points out; none where the user cancels.
QList<JoinedFile> SuppJoins::choose(const QString& path)
{
    UserPrompts& prompts = m_surroundings.prompts;
    QStringList patterns;
    for (const filekinds::Entry& entry : filekinds::table()) {
        for (const filekinds::Suffix& suffix : entry.suffixes) {
            if (suffix.reader != nullptr) {
                patterns << QStringLiteral("*.") + QLatin1String(suffix.suffix);
            }
        }
    }
    const QString filter = tr("Datasets (%1)").arg(patterns.join(u' '));
    const QStringList chosen = prompts.chooseFiles(tr("Choose the SUPP-- Datasets"),
                                                   QFileInfo(path).absolutePath(), filter, filter);
    QList<JoinedFile> files;
    for (const QString& each : chosen) {
        const auto names = datasetNames(each);
        if (!names || names.value().size() < 2) {
            files << JoinedFile{each};
            continue;
        }
        QStringList members;
        for (const std::string& name : names.value()) {
            members << QString::fromStdString(name);
        }
        for (const QString& name : prompts.chooseDatasets(each.section(u'/', -1), members)) {
            files << JoinedFile{each, name};
        }
    }
    return files;
}

/// Tells what could not be joined: all of it in the window's list, the first of it in the log.
void SuppJoins::tell(DatasetWindow* window)
{
    const supplement::Joined* joined = window->join();
    if (joined == nullptr) {
        return;
    }
    connect(window, &DatasetWindow::signalFindingsRequested, this, &SuppJoins::showFindings);
    constexpr std::size_t most = 200;
    for (std::size_t i = 0; i < std::min(most, joined->findings.size()); ++i) {
        spdlog::warn("{}", supplement::lineOf(*joined, joined->findings[i]));
    }
    if (joined->findings.size() > most) {
        spdlog::warn("{}: {} more findings stand in the list of the window",
                     window->datasetName().toStdString(), joined->findings.size() - most);
    }
    for (const std::string& note : joined->notes) {
        spdlog::warn("{}", note);
    }
    m_surroundings.services.showMessage(
        tr("%1: joined variables %2, rows that match no observation %3, conflicts %4")
            .arg(window->datasetName(), QString::number(joined->joinedVariables),
                 QString::number(joined->unmatched()), QString::number(joined->conflicts())));
}

void SuppJoins::showFindings(DatasetWindow* window)
{
    auto* dialog =
        new SuppFindingsDialog(*window->join(), window->datasetName(), &m_surroundings.window);
    const QList<JoinedFile> files = window->origin().supplements;
    connect(dialog, &SuppFindingsDialog::signalRowRequested, this,
            [this, files](std::size_t supplement, int row) {
                const JoinedFile& file = files.at(static_cast<qsizetype>(supplement));
                goTo(file.path, file.member, row);
            });
    connect(dialog, &SuppFindingsDialog::signalObservationRequested, this,
            [this, key = window->fileKey()](int observation) { goToJoined(key, observation); });
    dialog->show();
}

void SuppJoins::goTo(const QString& path, const QString& member, int row)
{
    DatasetOpener& opener = m_surroundings.opener;
    if (opener.bringUp(path, member)) {
        if (DatasetWindow* window = opener.find(path, member)) {
            window->view()->cmdGotoObservation(row);
        }
    }
}

void SuppJoins::goToJoined(const QString& fileKey, int observation)
{
    if (auto* window =
            qobject_cast<DatasetWindow*>(m_surroundings.opener.openFiles().find(fileKey))) {
        m_surroundings.opener.activate(window);
        window->view()->cmdGotoObservation(observation);
    }
}
