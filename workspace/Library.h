#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

/// A registered folder of dataset files.
struct Library
{
    qint64 id = 0;  ///< of its row in the store; 0 as long as it has none
    QString dir{};  ///< absolute
    QString alias{};  ///< the library reference of SAS programs
    QString name{};  ///< as it is shown
    QString filter{};  ///< the library filter of what is opened from it
    bool watchesChanges = true;
    bool opensItself = false;  ///< whether the tree shows its files from the start
    QString color{};  ///< "#rrggbb" or a name; empty for the colour of all text
    int sortOrder = 0;
    QByteArray bookmark{};  ///< kept for others, never written here

    /// Its name, or its folder's where it has none.
    [[nodiscard]] QString shownName() const;

    bool operator==(const Library&) const = default;
};
