#pragma once

#include "data/readers/FileKinds.h"

#include <QCoreApplication>

#include <array>
#include <utility>

class QAction;
class QActionGroup;
class QKeySequence;
class QObject;
class QString;

/// The actions of the main window. What they do is connected by the window, which owns them.
struct MainActions
{
    Q_DECLARE_TR_FUNCTIONS(MainActions)

public:
    static constexpr int layoutCount = 4;

    explicit MainActions(QObject* window);

    /// What opens files, with the kinds that they open.
    [[nodiscard]] std::array<std::pair<FileKind, QAction*>, 6> openingActions() const;
    /// Those of them whose files can be read.
    [[nodiscard]] QList<QAction*> readableKinds() const;
    /// Switches off what has nothing to work on while no dataset is open.
    void setDatasetOpen(bool isOpen);
    /// What a comparison in front can do as well as a dataset.
    void setComparisonOpen(bool isOpen);

    QAction* openSasData = nullptr;
    QAction* openDatasetJson = nullptr;
    QAction* openFolder = nullptr;
    QAction* manageLibraries = nullptr;
    QAction* saveSession = nullptr;
    QAction* openRData = nullptr;
    QAction* openSpssData = nullptr;
    QAction* openStataData = nullptr;
    QAction* openCsv = nullptr;
    QAction* newSasProgram = nullptr;
    QAction* openSasProgram = nullptr;
    QAction* saveSasProgram = nullptr;
    QAction* saveSasProgramAs = nullptr;
    QAction* close = nullptr;
    QAction* closeAll = nullptr;
    QAction* exit = nullptr;
    QAction* find = nullptr;
    QAction* findNext = nullptr;
    QAction* findPrevious = nullptr;
    QAction* options = nullptr;
    QAction* about = nullptr;
    QAction* checkForUpdates = nullptr;
    QAction* documentation = nullptr;
    QAction* compare = nullptr;
    QAction* joinSupp = nullptr;
    QAction* submit = nullptr;
    QAction* toggleDarkMode = nullptr;

    QAction* quickOpen = nullptr;
    QAction* editDataFilter = nullptr;
    QAction* goToDatasetFilter = nullptr;
    QAction* copyStoredValues = nullptr;
    QAction* copyWithNames = nullptr;
    QAction* nextDataset = nullptr;
    QAction* resetArrangement = nullptr;
    QAction* reload = nullptr;
    QAction* properties = nullptr;
    QActionGroup* layoutGroup = nullptr;
    std::array<QAction*, layoutCount> layouts{};

private:
    void createOpeningActions();
    void createFileActions();
    void createOtherActions();
    void createBarActions();
    void createLayoutActions();
    void drawIcons();
    [[nodiscard]] QAction* add(const char* name, const QString& text);

    QObject* m_window;
};
