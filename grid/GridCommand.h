#pragma once

/// What a key or a menu entry of the grid does.
enum class GridCommand
{
    HideVariable,
    HideSelectedVariables,
    UnhideVariables,
    ShiftLeft,
    ShiftRight,
    GoToVariable,
    AddByVariable,
    ClearByVariables,
    LibraryFilter,
    ClearLibraryFilter,
    FilterIn,
    FilterAgain,  ///< with the operator that was used last
    FilterNotEqual,
    FilterGreater,
    FilterLess,
    FilterGreaterOrEqual,
    FilterLessOrEqual,
    FilterContains,
    ClearDatasetFilter,
    UndoDatasetFilter,
    Frequency,
    FrequencyOfSubjects,
    Univariate,
    Copy,
    CopyWithNames,
    LargerFont,
    SmallerFont,
};
