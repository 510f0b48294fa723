#include "app/window/MainActions.h"

#include "app/look/Icons.h"
#include "grid/NativeKeys.h"

#include <QAction>
#include <QActionGroup>
#include <QKeySequence>

MainActions::MainActions(QObject* window)
    : m_window(window)
{
    createOpeningActions();
    createFileActions();
    createOtherActions();
    createBarActions();
    createLayoutActions();
    drawIcons();
    setDatasetOpen(false);
}

void MainActions::createOpeningActions()
{
    openSasData = add("actionOpenSasData", tr("Open SAS Datasets"));
    openSasData->setShortcuts(QKeySequence::Open);
    openDatasetJson = add("actionOpenDatasetJson", tr("Open Dataset-JSON Files"));
    openFolder = add("actionOpenFolder", tr("Open Folder"));
    manageLibraries = add("actionManageLibraries", tr("Manage Libraries"));
    saveSession = add("actionSaveSession", tr("Save Session..."));
    openRData = add("actionOpenRData", tr("Open R Datasets"));
    openSpssData = add("actionOpenSpssData", tr("Open SPSS Datasets"));
    openStataData = add("actionOpenStataData", tr("Open Stata Datasets"));
    openCsv = add("actionOpenCsv", tr("Open CSV Files"));
    for (const auto& [kind, action] : openingActions()) {
        action->setEnabled(filekinds::entryOf(kind).isReadable());
    }
}

std::array<std::pair<FileKind, QAction*>, 6> MainActions::openingActions() const
{
    return {{{FileKind::Sas, openSasData},
             {FileKind::DatasetJson, openDatasetJson},
             {FileKind::R, openRData},
             {FileKind::Spss, openSpssData},
             {FileKind::Stata, openStataData},
             {FileKind::Csv, openCsv}}};
}

QList<QAction*> MainActions::readableKinds() const
{
    QList<QAction*> actions;
    for (const auto& [kind, action] : openingActions()) {
        if (filekinds::entryOf(kind).isReadable()) {
            actions << action;
        }
    }
    return actions;
}

void MainActions::createFileActions()
{
    newSasProgram = add("actionNewSasProgram", tr("New SAS Program"));
    openSasProgram = add("actionOpenSasProgram", tr("Open SAS Program"));
    saveSasProgram = add("actionSaveSasProgram", tr("Save SAS Program"));
    saveSasProgram->setShortcuts(QKeySequence::Save);
    saveSasProgramAs = add("actionSaveSasProgramAs", tr("Save SAS Program As"));
    close = add("actionClose", withNativeKeys(tr("Close\tCtrl+W")));
    close->setShortcut(Qt::CTRL | Qt::Key_W);
    closeAll = add("actionCloseAll", tr("Close All"));
    closeAll->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_W);
    reload = add("actionReload", tr("Reload Dataset"));
    reload->setShortcut(Qt::Key_F5);
    reload->setStatusTip(tr("Read the file anew and keep filters, columns, order and place"));
    properties = add("actionDatasetProperties", tr("Dataset Properties"));
    properties->setShortcuts(
        {QKeySequence(Qt::ALT | Qt::Key_Return), QKeySequence(Qt::ALT | Qt::Key_Enter)});
    exit = add("actionExit", tr("Exit"));
    exit->setShortcut(Qt::CTRL | Qt::Key_Q);
    exit->setMenuRole(QAction::QuitRole);
}

void MainActions::createOtherActions()
{
    find = add("actionFind", tr("Find"));
    find->setShortcuts(QKeySequence::Find);
    findNext = add("actionFindNext", tr("Find Next"));
    findNext->setShortcuts(QKeySequence::FindNext);
    findPrevious = add("actionFindPrevious", tr("Find Previous"));
    findPrevious->setShortcuts(QKeySequence::FindPrevious);
    options = add("actionOptions", tr("Options"));
    options->setMenuRole(QAction::PreferencesRole);
    about = add("actionAbout", tr("About"));
    about->setMenuRole(QAction::AboutRole);
    checkForUpdates = add("actionCheckForUpdates", tr("Check for Updates"));
    documentation = add("actionDocumentation", tr("Documentaiton"));  // sic
    compare = add("actionCompare", tr("Compare Datasets"));
    joinSupp = add("actionJoinSupp", tr("Join SUPP--..."));
    joinSupp->setStatusTip(tr("Show the dataset with its supplemental qualifiers"));
    submit = add("actionSubmit", tr("Submit"));
    submit->setShortcut(Qt::CTRL | Qt::Key_R);
    toggleDarkMode = add("actionToggleDarkMode", tr("Toggle Dark Mode"));
    toggleDarkMode->setStatusTip(tr("Toggle between light and dark mode"));
    toggleDarkMode->setShortcut(Qt::CTRL | Qt::Key_D);
}

void MainActions::createBarActions()
{
    quickOpen = add("actionQuickOpen", tr("Quick Open"));
    quickOpen->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_P), QKeySequence(Qt::Key_Q)});
    editDataFilter = add("actionEditDataFilter", tr("Edit Data Filter"));
    goToDatasetFilter = add("actionGoToDatasetFilter", tr("Go to Dataset Filter"));
    goToDatasetFilter->setShortcut(Qt::CTRL | Qt::Key_L);
    copyStoredValues = add("actionCopyStoredValues", tr("Copy Stored Values"));
    copyWithNames = add("actionCopyWithNames", tr("Copy with Names"));
    nextDataset = add("actionNextDataset", tr("Next Dataset Tab"));
    nextDataset->setShortcut(Qt::CTRL | Qt::Key_Tab);
    resetArrangement = add("actionResetArrangement", tr("Reset Window Arrangement"));
    resetArrangement->setStatusTip(tr("Put docks and toolbars where they stood at first"));
}

void MainActions::createLayoutActions()
{
    layoutGroup = new QActionGroup(m_window);
    layoutGroup->setObjectName(QStringLiteral("layoutGroup"));
    layoutGroup->setExclusionPolicy(QActionGroup::ExclusionPolicy::Exclusive);
    const std::array<QString, layoutCount> tips{
        tr("Show left dock window and main window"), tr("Show main window maximize"),
        tr("Show left dock window, main window and right dock window"),
        tr("Show main window and right dock window")};
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        QAction* layout = layoutGroup->addAction(tr("Layout %1").arg(number));
        layout->setObjectName(QStringLiteral("actionLayout%1").arg(number));
        layout->setCheckable(true);
        layout->setToolTip(tips[i]);
        layout->setStatusTip(tips[i]);
        layout->setShortcut(
            QKeyCombination(Qt::CTRL, static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(i))));
        layout->setIconVisibleInMenu(false);  // where the mark of the checked one stands
        layouts[i] = layout;
    }
}

void MainActions::drawIcons()
{
    const std::initializer_list<std::pair<QAction*, const char*>> drawings{
        {openSasData, "open"},
        {openFolder, "folder"},
        {manageLibraries, "library"},
        {saveSession, "save"},
        {openRData, "type-r"},
        {openSpssData, "type-sav"},
        {openStataData, "type-dta"},
        {openCsv, "type-csv"},
        {openDatasetJson, "type-json"},
        {newSasProgram, "new-program"},
        {close, "close"},
        {find, "find"},
        {options, "options"},
        {about, "about"},
        {checkForUpdates, "update"},
        {documentation, "documentation"},
        {compare, "compare"},
        {submit, "run"},
        {toggleDarkMode, "darkmode"},
        {quickOpen, "quickopen"},
        {editDataFilter, "filter"},
        {layouts[0], "layout1"},
        {layouts[1], "layout2"},
        {layouts[2], "layout3"},
        {layouts[3], "layout4"},
    };
    for (const auto& [action, name] : drawings) {
        action->setIcon(icons::icon(QLatin1String(name)));
    }
}

void MainActions::setDatasetOpen(bool isOpen)
{
    for (QAction* action :
         {reload, properties, close, closeAll, find, findNext, findPrevious, submit, editDataFilter,
          goToDatasetFilter, copyStoredValues, copyWithNames, nextDataset}) {
        action->setEnabled(isOpen);
    }
}

void MainActions::setComparisonOpen(bool isOpen)
{
    if (isOpen) {
        for (QAction* action : {close, closeAll, nextDataset}) {
            action->setEnabled(true);
        }
    }
}

QAction* MainActions::add(const char* name, const QString& text)
{
    auto* action = new QAction(text, m_window);
    action->setObjectName(QLatin1String(name));
    return action;
}
