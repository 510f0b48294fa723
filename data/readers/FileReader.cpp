#include "data/readers/FileReader.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

FileReader::~FileReader()
{
    if (m_handle >= 0) {
        close(m_handle);
    }
}

bool FileReader::open(const std::string& path)
{
    // Without blocking: to open a pipe would wait for its other end.
    m_handle = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status
    { };
    if (m_handle < 0 || fstat(m_handle, &status) != 0) {
        m_error = std::generic_category().message(errno);
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        m_error = "Not a regular file";
        return false;
    }
    m_size = status.st_size;
    return true;
}

std::int64_t FileReader::readAt(std::int64_t offset, std::span<char> buffer) const
{
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t got = pread(m_handle, buffer.data() + done, buffer.size() - done,
                                  static_cast<off_t>(offset + static_cast<std::int64_t>(done)));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return -1;
        }
        if (got == 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return static_cast<std::int64_t>(done);
}

std::vector<char> FileReader::bytesAt(std::int64_t offset, std::int64_t count) const
{
    const std::int64_t there =
        std::clamp<std::int64_t>(m_size - offset, 0, std::max<std::int64_t>(count, 0));
    std::vector<char> bytes(static_cast<std::size_t>(there));
    const std::int64_t got = readAt(offset, bytes);
    bytes.resize(static_cast<std::size_t>(std::max<std::int64_t>(got, 0)));
    return bytes;
}
