#pragma once

#include <QString>

class OpenDataset;

/// What a grid says in the place of its cells.
namespace gridemptiness {

/// Why no cell is shown, and which keys bring cells back; empty where some are shown.
[[nodiscard]] QString text(const OpenDataset& opened);

}  // namespace gridemptiness
