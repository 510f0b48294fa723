#pragma once

#include <QString>
#include <QStringList>

/// The SAS program that reproduces what a grid shows.
namespace programtext {

/// A library as it is registered.
struct Library
{
    QString folder;
    QString alias;
    QString name;
};

struct View
{
    QString filePath;
    Library library{};  ///< that holds the file; without a folder none does
    QString datasetName{};
    QString libraryFilter{};  ///< "where a = 1"
    QString datasetFilter{};  ///< "if b = 2"
    QStringList byVariables{};
    QStringList shownVariables{};  ///< in variable order
    qsizetype variableCount = 0;
};

/// The program, its lines parted by line feeds.
[[nodiscard]] QString of(const View& view);

/// The longest name of a variable or dataset in SAS.
inline constexpr qsizetype longestName = 32;

/// Turns any text into a SAS name: small letters, digits and underscores, not beginning with a
/// digit. Blanks and hyphens become underscores, all else is dropped.
/// @param fallback  what is turned into the name when nothing is left; without it "temp"
[[nodiscard]] QString makeSasName(const QString& text, qsizetype maximumLength = longestName,
                                  const QString& fallback = {});

/// The library reference: from the alias, else the name, else the name of the file's folder.
[[nodiscard]] QString makeLibref(const Library& library, const QString& filePath);

}  // namespace programtext
