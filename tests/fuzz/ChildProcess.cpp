#include "tests/fuzz/ChildProcess.h"

#include "tests/fuzz/Corpus.h"
#include "tests/fuzz/Instruments.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fuzz {

namespace {

constexpr int failureCode = 99;

/// A mutant that waits for something uses no processor time.
constexpr unsigned longestWait = 120;

void startClocks(int seconds)
{
    const itimerval limit{{0, 0}, {seconds * instruments::slowness(), 0}};
    setitimer(ITIMER_PROF, &limit, nullptr);
    alarm(longestWait * static_cast<unsigned>(instruments::slowness()));
}

void redirect(const char* path, int target)
{
    const int handle = open(path, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (handle >= 0) {
        dup2(handle, target);
        close(handle);
    }
}

}  // namespace

struct ChildProcess::Shared
{
    std::uint64_t mutant;
    std::array<char, 1024> failure;
};

ChildProcess::ChildProcess(Limits limits, std::filesystem::path logFile)
    : m_limits(limits)
    , m_logFile(std::move(logFile))
{
    void* const memory =
        mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::runtime_error("no memory to share with a child process");
    }
    m_shared = new (memory) Shared{};
}

ChildProcess::~ChildProcess()
{
    munmap(m_shared, sizeof(Shared));
}

Ending ChildProcess::run(std::uint64_t first, std::uint64_t end, const Check& check)
{
    *m_shared = {};
    m_shared->mutant = first;
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child < 0) {
        throw std::runtime_error("no child process can be started");
    }
    if (child == 0) {
        work(first, end, check);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    return {m_shared->mutant, describe(status), bytesOfFile(m_logFile)};
}

void ChildProcess::work(std::uint64_t first, std::uint64_t end, const Check& check) const
{
    redirect("/dev/null", STDOUT_FILENO);
    redirect(m_logFile.c_str(), STDERR_FILENO);
    for (std::uint64_t mutant = first; mutant < end; ++mutant) {
        m_shared->mutant = mutant;
        startClocks(m_limits.seconds);
        const instruments::MemoryPeak peak;
        const auto errors = instruments::errorCount();
        std::string broken;
        try {
            broken = check(mutant);
        } catch (const std::exception& error) {
            broken = std::string("an exception escapes: ") + error.what();
        }
        if (broken.empty() && peak.kibibytes() > m_limits.kibibytes) {
            broken = "takes " + std::to_string(peak.kibibytes()) + " KiB of memory";
        }
        if (broken.empty() && instruments::errorCount() > errors) {
            broken = "makes the memory checker complain";
        }
        if (!broken.empty()) {
            fail(broken);
        }
    }
    alarm(0);
    if (instruments::hasLeaks()) {
        fail("leaks memory");
    }
    _exit(0);  // what the parent has open, and its temporary folder, are left alone
}

void ChildProcess::fail(const std::string& message) const
{
    auto& text = m_shared->failure;
    std::memcpy(text.data(), message.data(), std::min(message.size(), text.size() - 1));
    _exit(failureCode);
}

std::string ChildProcess::describe(int status) const
{
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        if (signal == SIGPROF || signal == SIGALRM) {
            return "hangs";
        }
        return std::string("crashes: ") + strsignal(signal);
    }
    if (WEXITSTATUS(status) == 0) {
        return {};
    }
    return WEXITSTATUS(status) == failureCode
        ? m_shared->failure.data()
        : "ends its process with code " + std::to_string(WEXITSTATUS(status));
}

}  // namespace fuzz
