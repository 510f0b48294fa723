#pragma once

/// Whether the program may run on this system: false on the server editions of Windows, and on
/// those alone.
[[nodiscard]] bool isSupportedSystem();
