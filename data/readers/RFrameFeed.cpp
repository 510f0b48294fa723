#include "data/readers/RFrameFeed.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <exception>
#include <limits>
#include <utility>

namespace {

constexpr std::size_t bytesAtOnce = std::size_t{32} << 10;
constexpr std::uint32_t objectWithAttributes = 0x300;
constexpr std::uint32_t withAttributes = 0x200;
constexpr std::uint32_t charInUtf8 = 0x8009;
constexpr std::uint32_t missingChar = 9;

std::uint32_t numberOf(RType type)
{
    return static_cast<std::uint32_t>(type);
}

RType typeOf(RVector::Kind kind)
{
    switch (kind) {
    case RVector::Kind::Logical:
        return RType::Logical;
    case RVector::Kind::Real:
        return RType::Real;
    case RVector::Kind::Text:
        return RType::Text;
    default:
        return RType::Integer;
    }
}

/// Whether a real, taken for a 64-bit integer in disguise, is one that a double can hold.
bool isSmallInteger(const char* bigEndian)
{
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < sizeof(bits); ++i) {
        bits = bits << 8 | static_cast<unsigned char>(bigEndian[i]);
    }
    constexpr std::int64_t largest = std::int64_t{1} << 53;
    const auto number = std::bit_cast<std::int64_t>(bits);
    return (number >= -largest && number <= largest)
        || number == std::numeric_limits<std::int64_t>::min();
}

}  // namespace

RFrameFeed::RFrameFeed(RStream& stream, std::int64_t columns, std::int64_t rows)
    : m_stream(stream)
    , m_columnCount(static_cast<std::size_t>(columns))
    , m_rows(rows)
{
    m_out = "X\n";
    constexpr std::uint32_t version = 2;
    constexpr std::uint32_t release = 0x020300;
    for (const std::uint32_t number :
         {version, release, release, numberOf(RType::List) | objectWithAttributes,
          static_cast<std::uint32_t>(columns)}) {
        putInteger(number);
    }
}

void RFrameFeed::attachTo(rdata_parser_t* parser)
{
    rdata_set_open_handler(parser, [](const char*, void*) { return 0; });
    rdata_set_close_handler(parser, [](void*) { return 0; });
    rdata_set_seek_handler(parser, onSeek);
    rdata_set_read_handler(parser, onRead);
    rdata_set_update_handler(parser,
                             [](long, rdata_progress_handler, void*, void*) { return RDATA_OK; });
    std::free(parser->io->io_ctx);  // the library's own for files, which it would lose hold of
    rdata_set_io_ctx(parser, this);
}

/// The parser goes back to the start while it finds out what kind of file it has.
rdata_off_t RFrameFeed::onSeek(rdata_off_t offset, rdata_io_flags_t whence, void* context) noexcept
{
    auto* self = static_cast<RFrameFeed*>(context);
    if (offset != 0 || whence != RDATA_SEEK_SET || !self->m_isAtStart) {
        return -1;
    }
    self->m_taken = 0;
    return 0;
}

ssize_t RFrameFeed::onRead(void* target, size_t count, void* context) noexcept
{
    auto* self = static_cast<RFrameFeed*>(context);
    try {
        return static_cast<ssize_t>(self->read(static_cast<char*>(target), count));
    } catch (const std::bad_alloc&) {
        self->m_failure = "There is not enough memory to hold it";
    } catch (const std::exception& error) {
        self->m_failure = error.what();  // an exception must not unwind through C frames
    }
    return -1;
}

std::size_t RFrameFeed::read(char* target, std::size_t count)
{
    std::size_t done = 0;
    while (done < count) {
        if (m_taken == m_out.size() && !fill()) {
            break;
        }
        const std::size_t part = std::min(count - done, m_out.size() - m_taken);
        m_out.copy(target + done, part, m_taken);
        m_taken += part;
        done += part;
    }
    return done;
}

/// Makes the next portion; false at the end.
bool RFrameFeed::fill()
{
    m_isAtStart = false;
    m_out.clear();
    m_taken = 0;
    while (m_out.size() < bytesAtOnce) {
        if (m_vector && m_vector->left() > 0) {
            addElements();
        } else if (m_vector) {
            endColumn();
        } else if (m_columns.size() < m_columnCount) {
            startColumn();
        } else {
            if (!std::exchange(m_hasEnded, true)) {
                putInteger(numberOf(RType::Null));  // in place of the data frame's attributes
            }
            break;
        }
    }
    return !m_out.empty();
}

void RFrameFeed::drain()
{
    while (fill()) { }
}

void RFrameFeed::startColumn()
{
    RColumn& column = m_columns.emplace_back();
    m_vector.emplace(m_stream);
    m_vector->open(m_stream.item());
    column.description = m_vector->description();
    const bool isVector = m_vector->kind() != RVector::Kind::None;
    column.length = isVector ? m_vector->length() : -1;
    if (isVector && hasRowsOf(*m_vector)) {
        column.kind = m_vector->kind();
    } else {
        m_vector->skip();
    }
    putInteger(numberOf(typeOf(column.kind)) | withAttributes);
    putInteger(static_cast<std::uint32_t>(m_vector->left()));
}

bool RFrameFeed::hasRowsOf(const RVector& vector)
{
    if (m_rows < 0) {
        m_rows = vector.length();
        if (m_checkRows) {
            m_checkRows(m_rows);
        }
    }
    return vector.length() == m_rows;
}

void RFrameFeed::addElements()
{
    if (m_columns.back().kind != RVector::Kind::Text) {
        addNumbers();
        return;
    }
    while (m_vector->left() > 0 && m_out.size() < bytesAtOnce) {
        addText();
    }
}

void RFrameFeed::addText()
{
    const auto text = m_vector->text();
    putInteger(text ? charInUtf8 : missingChar);
    putInteger(text ? static_cast<std::uint32_t>(text->size()) : 0xFFFFFFFF);
    if (text) {
        m_out += *text;
        RColumn& column = m_columns.back();
        column.longestText = std::max(column.longestText, text->size());
    }
}

void RFrameFeed::addNumbers()
{
    RColumn& column = m_columns.back();
    const std::size_t width = RVector::widthOf(column.kind);
    const std::size_t start = m_out.size();
    const auto count =
        std::min<std::size_t>(static_cast<std::size_t>(m_vector->left()), bytesAtOnce / width);
    m_out.resize(start + count * width);
    m_vector->numbers(std::span(m_out).subspan(start));
    const bool mayBeDisguised = column.kind == RVector::Kind::Real;
    for (std::size_t at = start; mayBeDisguised && column.fitsDoubles && at < m_out.size();
         at += width) {
        column.fitsDoubles = isSmallInteger(&m_out[at]);
    }
}

void RFrameFeed::endColumn()
{
    m_vector->close(&m_columns.back().attributes);
    m_vector.reset();
    putInteger(numberOf(RType::Null));  // in place of the attributes that were read
}

void RFrameFeed::putInteger(std::uint32_t number)
{
    for (int shift = 24; shift >= 0; shift -= 8) {
        m_out += static_cast<char>(number >> shift);
    }
}
