#include "tests/fuzz/Instruments.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>

#if __has_include(<valgrind/memcheck.h>)
#include <valgrind/memcheck.h>
#define QUORLANE_VALGRIND
#endif

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>

/// A request for absurdly much memory fails as it does without sanitizers, and freed memory does
/// not pile up so high that it looks like a mutant's appetite.
extern "C" const char* __asan_default_options();  // NOLINT: the sanitizer's name
extern "C" const char* __asan_default_options()  // NOLINT
{
    return "allocator_may_return_null=1:detect_leaks=1:quarantine_size_mb=16";
}
#endif

namespace fuzz::instruments {

namespace {

/// A line "VmHWM:     1234 kB" of the process's status.
long statusField(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with(name + ":")) {
            return std::stol(line.substr(name.size() + 1));
        }
    }
    return 0;
}

}  // namespace

int slowness()
{
#ifdef QUORLANE_VALGRIND
    return RUNNING_ON_VALGRIND != 0U ? 50 : 1;
#else
    return 1;
#endif
}

unsigned errorCount()
{
#ifdef QUORLANE_VALGRIND
    return VALGRIND_COUNT_ERRORS;
#else
    return 0;
#endif
}

bool hasLeaks()
{
    bool found = false;
#ifdef __SANITIZE_ADDRESS__
    found = __lsan_do_recoverable_leak_check() != 0;
#endif
#ifdef QUORLANE_VALGRIND
    if (RUNNING_ON_VALGRIND != 0U) {
        unsigned long leaked = 0;
        [[maybe_unused]] unsigned long dubious = 0;
        [[maybe_unused]] unsigned long reachable = 0;
        [[maybe_unused]] unsigned long suppressed = 0;
        VALGRIND_DO_LEAK_CHECK;
        VALGRIND_COUNT_LEAKS(leaked, dubious, reachable, suppressed);
        found = found || leaked > 0;
    }
#endif
    return found;
}

MemoryPeak::MemoryPeak()
{
    std::ofstream("/proc/self/clear_refs") << '5';  // the peak begins anew
    m_before = statusField("VmHWM");
}

long MemoryPeak::kibibytes() const
{
    return std::max(statusField("VmHWM") - m_before, 0L);
}

}  // namespace fuzz::instruments
