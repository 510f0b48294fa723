#pragma once

#include <QString>

/// Where the workspace store may stand. The second place is taken only when there is no first.
struct StoreLocations
{
    QString home;  ///< empty when the system knows none
    QString appData;

    /// The user's own.
    [[nodiscard]] static StoreLocations standard();
};
