#pragma once

#include <cstddef>

/// What the sanitizers, valgrind and the system tell about this process.
namespace fuzz::instruments {

/// How many times slower than usual the process runs.
[[nodiscard]] int slowness();

/// Errors that valgrind has counted so far; 0 without valgrind.
[[nodiscard]] unsigned errorCount();

/// Whether there is memory that nothing points to any more; it is listed on standard error. Known
/// in builds with the address sanitizer and under valgrind.
[[nodiscard]] bool hasLeaks();

/// How much the memory of the process has grown, at its highest, since construction. 0 where the
/// system does not tell.
class MemoryPeak
{
public:
    MemoryPeak();
    [[nodiscard]] long kibibytes() const;

private:
    long m_before;
};

}  // namespace fuzz::instruments
