#include "data/readers/JsonInput.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace {

constexpr std::size_t pieceBytes = std::size_t{64} << 10;
constexpr int anyWrapping = 15 + 32;  ///< zlib finds out itself whether a stream is gzip or zlib
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

unsigned at(const std::vector<char>& bytes, std::size_t place)
{
    return place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0U;
}

/// Whether a zlib stream starts there: its first two bytes are a multiple of 31.
bool isZlibHeader(const std::vector<char>& bytes, std::size_t place)
{
    return at(bytes, place) == 0x78 && (at(bytes, place) * 256 + at(bytes, place + 1)) % 31 == 0;
}

Bytef* bytesOf(char* text)
{
    return reinterpret_cast<Bytef*>(text);  // NOLINT: zlib's bytes are unsigned
}

}  // namespace

JsonInput::JsonInput(const FileReader& file,
                     std::function<void(std::int64_t, std::int64_t)> progress)
    : m_file(file)
    , m_progress(std::move(progress))
{ }

void JsonInput::open()
{
    if (m_file.size() == 0) {
        throw std::runtime_error("It is empty");
    }
    findPacking();
    startUnpacking();
    std::array<char, 4> first{};
    m_ahead.assign(first.begin(), first.begin() + static_cast<long>(readUnpacked(first)));
    const bool isLittle = at(m_ahead, 0) == 0xFF && at(m_ahead, 1) == 0xFE;
    m_isBigEndian = at(m_ahead, 0) == 0xFE && at(m_ahead, 1) == 0xFF;
    // Without a mark the zero beside its first letter gives UTF-16 away.
    const bool isBareLittle = m_ahead.size() > 1 && m_ahead[0] != 0 && m_ahead[1] == 0;
    const bool isBareBig = m_ahead.size() > 1 && m_ahead[0] == 0 && m_ahead[1] != 0;
    m_isBigEndian = m_isBigEndian || isBareBig;
    m_isUtf16 = isLittle || m_isBigEndian || isBareLittle;
    rewind();
}

JsonInput::~JsonInput()
{
    stopUnpacking();
}

void JsonInput::findPacking()
{
    const std::vector<char> head = m_file.bytesAt(0, 16);
    if (isZlibHeader(head, 0)) {
        m_packing = Packing::ZlibOrGzip;
    } else if (at(head, 0) == 0x1F && at(head, 1) == 0x8B) {
        m_packing = isZlibHeader(head, 8) ? Packing::ZlibBehindGzipHeader : Packing::ZlibOrGzip;
    }
}

void JsonInput::rewind()
{
    startUnpacking();
    m_ahead.clear();
    m_converted.clear();
    m_convertedTaken = 0;
    m_decoder.reset();
    if (m_isUtf16) {
        m_decoder.emplace(m_isBigEndian ? QStringConverter::Utf16BE : QStringConverter::Utf16LE);
        return;
    }
    std::array<char, utf8Mark.size()> first{};
    const std::size_t there = readUnpacked(first);
    if (std::string_view(first.data(), there) != utf8Mark) {
        m_ahead.assign(first.begin(), first.begin() + static_cast<long>(there));
    }
}

void JsonInput::startUnpacking()
{
    stopUnpacking();
    m_position = m_packing == Packing::ZlibBehindGzipHeader ? 8 : 0;
    m_isUnpacked = false;
    if (m_packing == Packing::None) {
        return;
    }
    m_stream = {};
    if (inflateInit2(&m_stream, anyWrapping) != Z_OK) {
        throw std::bad_alloc();
    }
    m_isUnpacking = true;
}

void JsonInput::stopUnpacking()
{
    if (m_isUnpacking) {
        inflateEnd(&m_stream);
        m_isUnpacking = false;
    }
}

std::size_t JsonInput::readFile(std::span<char> buffer)
{
    const std::int64_t got = m_file.readAt(m_position, buffer);
    if (got < 0) {
        throw std::runtime_error("Unable to read from file");
    }
    m_position += got;
    m_progress(m_position, size());
    return static_cast<std::size_t>(got);
}

void JsonInput::refill()
{
    m_packed.resize(pieceBytes);
    const std::size_t got = readFile(m_packed);
    m_stream.next_in = bytesOf(m_packed.data());
    m_stream.avail_in = static_cast<uInt>(got);
    if (got == 0) {
        throw std::runtime_error("It is cut short: its compressed data have no end");
    }
}

std::size_t JsonInput::readUnpacked(std::span<char> buffer)
{
    if (!m_ahead.empty()) {
        const std::size_t part = std::min(buffer.size(), m_ahead.size());
        std::memcpy(buffer.data(), m_ahead.data(), part);
        m_ahead.erase(m_ahead.begin(), m_ahead.begin() + static_cast<long>(part));
        return part;
    }
    if (m_packing == Packing::None) {
        return readFile(buffer);
    }
    m_stream.next_out = bytesOf(buffer.data());
    m_stream.avail_out = static_cast<uInt>(std::min(buffer.size(), pieceBytes * 16));
    const uInt room = m_stream.avail_out;
    while (m_stream.avail_out > 0 && !m_isUnpacked) {
        if (m_stream.avail_in == 0) {
            refill();
        }
        m_isUnpacked = !continueUnpacking(inflate(&m_stream, Z_NO_FLUSH));
    }
    return room - m_stream.avail_out;
}

/// False at the end of the compressed data. A gzip file may be several behind each other.
bool JsonInput::continueUnpacking(int result)
{
    if (result == Z_MEM_ERROR) {
        throw std::bad_alloc();
    }
    if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR) {
        throw std::runtime_error("It is damaged: its compressed data cannot be unpacked");
    }
    if (result != Z_STREAM_END) {
        return true;
    }
    if (m_stream.avail_in == 0) {
        m_packed.resize(pieceBytes);
        m_stream.avail_in = static_cast<uInt>(readFile(m_packed));
        m_stream.next_in = bytesOf(m_packed.data());
    }
    const bool goesOn =
        m_stream.avail_in > 1 && m_stream.next_in[0] == 0x1F && m_stream.next_in[1] == 0x8B;
    return goesOn && inflateReset(&m_stream) == Z_OK;
}

std::size_t JsonInput::readConverted(std::span<char> buffer)
{
    while (m_convertedTaken == m_converted.size()) {
        std::vector<char> raw(pieceBytes);
        const std::size_t got = readUnpacked(raw);
        if (got == 0) {
            return 0;
        }
        const QString text =
            m_decoder->decode(QByteArrayView(raw.data(), static_cast<qsizetype>(got)));
        m_converted = text.toStdString();
        m_convertedTaken = 0;
    }
    const std::size_t part = std::min(buffer.size(), m_converted.size() - m_convertedTaken);
    std::memcpy(buffer.data(), m_converted.data() + m_convertedTaken, part);
    m_convertedTaken += part;
    return part;
}

std::size_t JsonInput::read(std::span<char> buffer)
{
    std::size_t done = 0;
    while (done < buffer.size()) {
        const std::span<char> rest = buffer.subspan(done);
        const std::size_t got = m_decoder ? readConverted(rest) : readUnpacked(rest);
        if (got == 0) {
            break;
        }
        done += got;
    }
    return done;
}
