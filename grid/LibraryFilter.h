#pragma once

#include "data/Result.h"

#include <QString>

#include <vector>

/// The library filter: one condition for all open datasets and those opened while it is in force. A
/// dataset that it cannot filter, lacking one of its variables, stays unfiltered.
class LibraryFilter
{
public:
    /// What a grid does for the library filter.
    class Grid
    {
    public:
        /// Filters the dataset without showing it yet. A failure changes nothing.
        virtual Result<std::size_t> takeLibraryFilter(const QString& condition) = 0;
        virtual void dropLibraryFilter() = 0;
        /// The statement form of the filter taken last: "where a = 1".
        [[nodiscard]] virtual QString ownLibraryFilterText() const = 0;
        /// Shows the rows as they are selected now and publishes texts and counters.
        /// @param problem  why the filter in force does not filter this dataset; empty if it does
        virtual void showLibraryFilter(const QString& problem) = 0;

    protected:
        ~Grid() = default;  // never deleted through this interface
    };

    /// Adds a grid, which is filtered if a filter is in force. It has to leave before it goes.
    void join(Grid& grid);
    void leave(Grid& grid);

    /// Filters all grids, if the dataset of the grid that asks for it can be filtered.
    /// @return  the failure of that grid, or that a filter is in force already; nothing has changed
    ///          then
    Result<std::size_t> apply(const QString& condition, Grid& origin);
    /// Puts a filter in force that a text says, as text() gave it, even where it can filter no open
    /// dataset. One that is in force stays.
    /// @return  whether the filter was put in force; a failure for a text that says none
    Result<bool> restore(const QString& text);
    void clear();

    /// The filter in force, "where a = 1"; empty without one.
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    void takeOver(Grid& grid);

    std::vector<Grid*> m_grids;
    QString m_condition;
    QString m_text;
};
