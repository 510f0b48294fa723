#pragma once

#include "data/StatDataset.h"
#include "grid/filter/Condition.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <vector>

/// How users and commands name the variables of a dataset.
namespace variablenames {

/// The variable of that name, else the first whose name differs only in letter case, for any
/// UTF-8 names and every kind of dataset. StatDataset::findVariable compares single bytes.
[[nodiscard]] std::optional<int> find(const StatDataset& dataset, QStringView name);

/// The variable of that name. Throws ParseError with the most similar name where there is none.
[[nodiscard]] int require(const StatDataset& dataset, const WrittenName& name);

/// The name as the command language reads it: as it is, or where it is no identifier as a name
/// literal, 'my var'n.
[[nodiscard]] QString written(const QString& name);

/// The names of a list that is parted by blanks. A name that is no name literal may hold anything
/// else.
[[nodiscard]] std::vector<WrittenName> split(QStringView list);

}  // namespace variablenames
