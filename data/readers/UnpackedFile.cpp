#include "data/readers/UnpackedFile.h"

#include "data/readers/Unpackers.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace {

using namespace std::string_view_literals;

constexpr std::size_t packedBytesAtOnce = std::size_t{128} << 10;
constexpr const char* cutShort = "It is cut short";

struct Packing
{
    std::string_view magic;
    const char* name;
    std::unique_ptr<Unpacker> (*unpacker)();
};
constexpr Packing packings[] = {
    {"\x1F\x8B"sv, "gzip", unpackers::gzip},
    {"BZh"sv, "bzip2", unpackers::bzip2},
    {"\xFD"
     "7zXZ\0"sv,
     "xz", unpackers::xz},
    {"\x28\xB5\x2F\xFD"sv, "zstd", nullptr},
};

}  // namespace

UnpackedFile::UnpackedFile(const FileReader& file)
    : m_file(file)
{
    choose();
}

void UnpackedFile::choose()
{
    const std::vector<char> first = m_file.bytesAt(0, 8);
    const std::string_view start(first.data(), first.size());
    for (const Packing& packing : packings) {
        if (!start.starts_with(packing.magic)) {
            continue;
        }
        if (packing.unpacker == nullptr) {
            throw FileDamage(std::string("It is packed by ") + packing.name
                             + ", which cannot be read");
        }
        m_packing = packing.name;
        m_magic = packing.magic;
        m_unpacker = packing.unpacker();
        m_packed.resize(packedBytesAtOnce);
    }
}

std::size_t UnpackedFile::read(std::span<char> buffer)
{
    const std::size_t got = m_unpacker ? readPacked(buffer) : readPlain(buffer);
    if (m_progress) {
        m_progress(m_position - static_cast<std::int64_t>(m_waiting.size()), m_file.size());
    }
    return got;
}

std::size_t UnpackedFile::readPlain(std::span<char> buffer)
{
    const std::int64_t got = m_file.readAt(m_position, buffer);
    if (got < 0) {
        throw FileDamage("It cannot be read");
    }
    m_position += got;
    return static_cast<std::size_t>(got);
}

std::size_t UnpackedFile::readPacked(std::span<char> buffer)
{
    Unpacker::Step step{{}, buffer};
    while (!step.to.empty() && !m_isAtEnd) {
        if (m_waiting.empty()) {
            refill();
        }
        step.from = m_waiting;
        const std::size_t room = step.to.size();
        const bool ended = m_unpacker->unpack(step);
        const bool stands = step.from.size() == m_waiting.size() && step.to.size() == room;
        m_waiting = step.from;
        if (ended) {
            m_hasWrongCheckSum = m_hasWrongCheckSum || m_unpacker->hasWrongCheckSum();
            m_isAtEnd = !beginNextStream();
        } else if (stands && m_position >= m_file.size()) {
            throw FileDamage(cutShort);
        }
    }
    return buffer.size() - step.to.size();
}

void UnpackedFile::refill()
{
    const std::int64_t got = m_file.readAt(m_position, m_packed);
    if (got < 0) {
        throw FileDamage("It cannot be read");
    }
    m_position += got;
    m_waiting = std::span(m_packed).first(static_cast<std::size_t>(got));
}

/// Whatever else stands behind a stream is none of it.
bool UnpackedFile::beginNextStream()
{
    const std::int64_t at = m_position - static_cast<std::int64_t>(m_waiting.size());
    const std::vector<char> next = m_file.bytesAt(at, static_cast<std::int64_t>(m_magic.size()));
    if (std::string_view(next.data(), next.size()) != m_magic) {
        return false;
    }
    m_unpacker->restart();
    return true;
}

std::int64_t UnpackedFile::mostBytesLeft() const
{
    const std::int64_t left =
        m_file.size() - m_position + static_cast<std::int64_t>(m_waiting.size());
    const std::int64_t times = m_unpacker ? m_unpacker->mostBytesOfOne() : 1;
    std::int64_t bytes = 0;
    const bool isKnown = times > 0 && !__builtin_mul_overflow(left, times, &bytes);
    constexpr std::int64_t insidePacker = 1 << 16;  // read already, but not handed on
    return isKnown ? bytes + insidePacker : std::numeric_limits<std::int64_t>::max() / 2;
}
