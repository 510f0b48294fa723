#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// A dataset as it was open when its session was saved.
struct SavedDataset
{
    QString filePath{};  ///< absolute
    QString datasetName{};  ///< of one dataset in a file of several; empty for a file's only one
    QString libraryFilter{};  ///< "where a = 1"; empty for none
    QString datasetFilter{};  ///< "if b = 2"; empty for none
    QStringList hiddenVariables{};  ///< in variable order

    bool operator==(const SavedDataset&) const = default;
};

/// The datasets that were open together, under a name.
struct SavedSession
{
    QString name{};
    QList<SavedDataset> datasets{};  ///< in the order in which they were opened
};

/// A session as it is listed.
struct SessionEntry
{
    qint64 id = 0;
    QString name{};

    bool operator==(const SessionEntry&) const = default;
};
