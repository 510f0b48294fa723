#pragma once

#include "data/StatDataset.h"

#include <QString>

#include <array>
#include <string>
#include <vector>

/// The variables of all datasets of a folder beside each other, and in what those of one name
/// differ. Only what files say of their variables is read, no values.
namespace foldervariables {

/// In what variables of one name may differ.
enum class Attribute
{
    Type,
    Length,
    Format,
    Label,
};
inline constexpr std::size_t attributeCount = 4;

struct Variable
{
    QString path;  ///< of the file
    QString member;  ///< which dataset of a file of several; empty for a file's only one
    std::string dataset;
    int position = 0;  ///< in its dataset, from 1
    std::string name;
    std::array<std::string, attributeCount> attributes;  ///< as texts, by Attribute
    /// Whether one of the same name in another dataset has another.
    std::array<bool, attributeCount> differs{};

    [[nodiscard]] const std::string& text(Attribute attribute) const
    {
        return attributes[static_cast<std::size_t>(attribute)];
    }
    [[nodiscard]] bool isDifferent(Attribute attribute) const
    {
        return differs[static_cast<std::size_t>(attribute)];
    }
    [[nodiscard]] bool isDifferent() const;
};

struct Contents
{
    std::vector<Variable> variables;  ///< in the order of files, datasets and variables
    int datasetCount = 0;
    std::vector<std::string> failures;  ///< of files that cannot be read, a sentence each
    std::vector<std::string> notes;  ///< what may be wrong with those that can, with their names
};

/// Reads what files say of their variables; each dataset of a file of several counts.
[[nodiscard]] Contents read(const std::vector<QString>& paths);

/// The same in steps, for who has something to do between the files: adds one file ...
void addFile(Contents& contents, const QString& path);
/// ... and, behind the last one, marks the differences.
void markDifferences(Contents& contents);

/// The values that the variables of one name have of an attribute, each with its datasets: "8: DM,
/// AE\n20: VS", a line each. For someone who wonders what a mark of a difference means.
[[nodiscard]] std::string valuesOf(const Contents& contents, const Variable& variable,
                                   Attribute attribute);

}  // namespace foldervariables
