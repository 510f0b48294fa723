#pragma once

#include "data/readers/DatasetFile.h"

#include <QString>

#include <span>

/// The kinds of dataset files, as people choose among them.
enum class FileKind
{
    Sas,
    DatasetJson,
    R,
    Spss,
    Stata,
    Csv,
};

/// All that is known of the kinds of files, in one table: what opens, what dialogs offer, what
/// icons are shown and what packages register follows from it.
namespace filekinds {

using Reader = Result<OpenedDataset> (*)(const QString& path, const OpenOptions& options);
using Lister = Result<std::vector<std::string>> (*)(const QString& path);

struct Suffix
{
    const char* suffix = nullptr;  ///< without its point, in small letters
    const char* icon = nullptr;
    Reader reader = nullptr;  ///< null where there is none yet
    Lister lister = nullptr;  ///< of the datasets in a file; null where that is always one
};

struct Entry
{
    FileKind kind;
    const char* dialogTitle;
    const char* dialogFilters;  ///< as Qt's file dialogs take them, separated by ";;"
    std::span<const Suffix> suffixes;

    /// Whether files of the kind can be opened.
    [[nodiscard]] bool isReadable() const;
    /// Translated.
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString filters() const;
};

/// All kinds in the order of the enumeration.
[[nodiscard]] std::span<const Entry> table();
[[nodiscard]] const Entry& entryOf(FileKind kind);
/// What a file dialog shows that takes every kind, translated.
[[nodiscard]] QString filtersOfAll();
/// The suffix that a file's name ends with, in any letter case; null for one of no kind.
[[nodiscard]] const Suffix* suffixOf(const QString& path);
[[nodiscard]] bool isOfKind(const QString& path, FileKind kind);

}  // namespace filekinds
