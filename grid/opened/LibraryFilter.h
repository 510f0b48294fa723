#pragma once

#include "grid/filter/Command.h"
#include "grid/opened/CommandFailure.h"
#include "grid/opened/CommandReading.h"

#include <QString>

#include <optional>
#include <vector>

class OpenDataset;

/// The one library filter of all open datasets: set in one of them it filters every other and those
/// that are opened later. A dataset that it cannot filter, because it lacks a variable for
/// instance, shows all its rows and knows the reason.
class LibraryFilter
{
public:
    /// What is said to a second filter.
    static constexpr const char* oneLevelOnly =
        "Library Filter supports one level only. Please clear library filter first.";

    LibraryFilter() = default;
    LibraryFilter(const LibraryFilter&) = delete;
    LibraryFilter& operator=(const LibraryFilter&) = delete;

    /// Takes a dataset in, filtering it by the filter in force. It leaves before it goes.
    void join(OpenDataset& dataset);
    void leave(OpenDataset& dataset);

    /// Puts a condition in force. Throws ParseError, and changes nothing, while a filter is in
    /// force or when the dataset in which it was asked for cannot be filtered by it.
    /// @param origin  null where it was asked for without a dataset
    void set(const ParsedCondition& condition, OpenDataset* origin);
    /// The same, in the place of a filter that is in force.
    void replace(const ParsedCondition& condition, OpenDataset* origin);
    void clear();

    /// Runs a command while no dataset is open, which only this filter's commands can be.
    [[nodiscard]] CommandOutcome run(const QString& commandText,
                                     const CommandReading& reading = {});

    /// The filter in force, "where a = 1"; empty without one.
    [[nodiscard]] QString text() const;
    [[nodiscard]] bool isInForce() const { return m_condition.has_value(); }

private:
    void carryOut(const Command::Action& action, CommandReading::InForce inForce);

    std::vector<OpenDataset*> m_datasets;
    std::optional<ParsedCondition> m_condition;
};
