#pragma once

#include <QList>
#include <QStringList>

class DatasetWindow;
class QMdiArea;

/// Tells datasets of one name apart by where they stand.
namespace tabtitles {

/// For each path the end of its folder that no other path of the same last part shares; empty for
/// one whose last part is the only one of its kind.
[[nodiscard]] QStringList placesOf(const QStringList& paths);

/// Gives the windows of an area titles that tell them apart, and their tabs tips.
void show(const QMdiArea& area, const QList<DatasetWindow*>& windows);

}  // namespace tabtitles
