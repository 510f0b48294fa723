#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

/// A dataset that another one is joined with, and its file as it was read.
struct JoinedFile
{
    QString path;
    QString member{};  ///< empty for a file's only dataset
    QDateTime timestamp{};
    qint64 size = 0;  ///< bytes

    [[nodiscard]] QString key() const;
};

/// Which SUPP-- datasets belong to a dataset, by their names.
namespace suppfiles {

/// Whether a dataset of that name holds qualifiers of the other: SUPPAE those of AE, SUPPLBCH those
/// of LBCH and LB, SUPPLB those of LBCH, too; in any letter case.
[[nodiscard]] bool belongs(const QString& supplement, const QString& parent);

/// Those that stand beside a dataset: in its own file, else in its folder. Of several files of one
/// name that of the parent's kind is taken, and SUPPLB of LBCH only where there is no SUPPLBCH.
/// @param member  empty for a file's only dataset
[[nodiscard]] QList<JoinedFile> beside(const QString& path, const QString& member);

}  // namespace suppfiles
