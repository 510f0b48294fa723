#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <array>
#include <span>

class MainTableView;

/// What keys and menu entries of the grid do, in the order of the list of shortcuts.
enum class GridCommand
{
    FilterIn,
    FilterAgain,  ///< with the operator that was used last
    FilterNotEqual,
    FilterGreater,
    FilterLess,
    FilterGreaterOrEqual,
    FilterLessOrEqual,
    FilterContains,
    UndoDatasetFilter,
    ClearDatasetFilter,
    LibraryFilter,
    ClearLibraryFilter,
    Frequency,
    FrequencyOfSubjects,
    Univariate,
    HideVariable,
    HideSelectedVariables,
    UnhideVariables,
    ShiftLeft,
    ShiftRight,
    AddByVariable,
    ClearByVariables,
    GoToVariable,
    Copy,
    CopyWithNames,
    CopyStoredValues,
    ShowCell,
    ShowRow,
    LargerFont,
    SmallerFont,
};

/// All that is known of the grid's commands, in one table.
namespace gridcommands {

/// A key of a command: one of its own, or what the platform has for it.
struct Key
{
    int combination = 0;  ///< a QKeyCombination; 0 is the key sequence without a key
    QKeySequence::StandardKey standard = QKeySequence::UnknownKey;
    bool isListed = true;  ///< in the list of shortcuts

    /// The key sequences, of which each runs the command.
    [[nodiscard]] QList<QKeySequence> sequences() const;
    /// The key as the platform writes it.
    [[nodiscard]] QString text() const;
};

struct Entry
{
    GridCommand command{};
    /// Throws std::bad_alloc; whatever else goes wrong the view tells.
    void (*run)(MainTableView&) = nullptr;
    std::array<Key, 4> keys{};
    int keyCount = 0;
    bool repeats = false;  ///< while the key is held down
    const char* menuText = nullptr;  ///< in the context menu; null where it has no entry
    const char* action = nullptr;  ///< in the list of shortcuts; null where it is not listed
    const char* description = nullptr;

    [[nodiscard]] std::span<const Key> allKeys() const
    {
        return {keys.data(), static_cast<std::size_t>(keyCount)};
    }
    /// Translated, `%1` and all.
    [[nodiscard]] QString menuEntry() const;
    [[nodiscard]] QString listedAction() const;
    [[nodiscard]] QString listedDescription() const;
    /// The keys that are listed, parted by "; ".
    [[nodiscard]] QString listedKeys() const;
};

/// All commands in the order of the enumeration.
[[nodiscard]] std::span<const Entry> table();
[[nodiscard]] const Entry& entryOf(GridCommand command);

/// Gives the view a shortcut for each key; they act while it has the focus.
void installShortcuts(MainTableView& view);

}  // namespace gridcommands
