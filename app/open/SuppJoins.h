#pragma once

#include "analysis/supplement/SupplementJoin.h"
#include "app/open/SuppFiles.h"

#include <QObject>
#include <QString>

class DatasetOpener;
class DatasetWindow;
class GridServices;
class QAction;
class QMdiArea;
class QWidget;
class Settings;
class UserPrompts;

/// Joins datasets with their supplemental qualifiers, and leads to what could not be joined.
class SuppJoins : public QObject
{
    Q_OBJECT

public:
    /// All outlive the joins.
    struct Surroundings
    {
        QWidget& window;
        QMdiArea& area;
        DatasetOpener& opener;
        UserPrompts& prompts;
        Settings& settings;
        GridServices& services;
        QAction& action;  ///< joins the dataset in front
    };

    explicit SuppJoins(const Surroundings& surroundings);

    /// Joins the dataset in front.
    void joinActive();
    /// Joins a file with the SUPP-- datasets that stand beside it; lets the user choose where there
    /// are none.
    /// @param member  empty for a file's only dataset
    void join(const QString& path, const QString& member = {});
    /// Allows the action where the dataset in front can have supplemental qualifiers.
    void follow(const DatasetWindow* window);

private:
    [[nodiscard]] QList<JoinedFile> choose(const QString& path);
    void tell(DatasetWindow* window);
    void showFindings(DatasetWindow* window);
    void goTo(const QString& path, const QString& member, int row);
    void goToJoined(const QString& fileKey, int observation);

    Surroundings m_surroundings;
};
