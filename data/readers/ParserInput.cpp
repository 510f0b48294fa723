#include "data/readers/ParserInput.h"

#include <algorithm>
#include <cstring>

namespace {

int onOpen(const char*, void* context)
{
    return static_cast<ParserInput*>(context)->seek(0, READSTAT_SEEK_SET) == 0 ? 0 : -1;
}

int onClose(void*)
{
    return 0;
}

readstat_off_t onSeek(readstat_off_t offset, readstat_io_flags_t whence, void* context)
{
    return static_cast<ParserInput*>(context)->seek(offset, whence);
}

ssize_t onRead(void* target, size_t count, void* context)
{
    return static_cast<ParserInput*>(context)->read(static_cast<char*>(target), count);
}

readstat_error_t onUpdate(long, readstat_progress_handler, void*, void*)
{
    return READSTAT_OK;
}

}  // namespace

ParserInput::ParserInput(const FileReader& file)
    : m_file(file)
{
    setPieces({{0, file.size()}});
}

void ParserInput::setPieces(const std::vector<Piece>& pieces)
{
    m_pieces.clear();
    m_size = 0;
    for (const Piece& piece : pieces) {
        m_pieces.push_back({m_size, piece.fileOffset, piece.length});
        m_size += piece.length;
    }
}

void ParserInput::replaceByte(std::int64_t offset, char byte)
{
    const auto place = std::lower_bound(
        m_replacements.begin(), m_replacements.end(), offset,
        [](const Replacement& one, std::int64_t other) { return one.offset < other; });
    m_replacements.insert(place, {offset, byte});
}

void ParserInput::replaceBytes(std::int64_t offset, std::string_view bytes)
{
    for (const char byte : bytes) {
        replaceByte(offset++, byte);
    }
}

void ParserInput::setReadAhead(std::size_t bytes)
{
    m_buffer.resize(bytes);
}

void ParserInput::attachTo(readstat_parser_t* parser)
{
    readstat_set_open_handler(parser, onOpen);
    readstat_set_close_handler(parser, onClose);
    readstat_set_seek_handler(parser, onSeek);
    readstat_set_read_handler(parser, onRead);
    readstat_set_update_handler(parser, onUpdate);
    readstat_set_io_ctx(parser, this);
}

std::int64_t ParserInput::seek(std::int64_t offset, readstat_io_flags_t whence)
{
    const std::int64_t base = whence == READSTAT_SEEK_SET ? 0
        : whence == READSTAT_SEEK_CUR                     ? m_position
                                                          : m_size;
    std::int64_t target = 0;
    if (__builtin_add_overflow(base, offset, &target) || target < 0) {
        return -1;
    }
    m_position = target;
    return target;
}

std::int64_t ParserInput::read(char* target, std::size_t count)
{
    std::int64_t done = 0;
    if (count >= m_buffer.size()) {
        done = readPieces(m_position, target, count);
    } else {
        const auto wanted = static_cast<std::int64_t>(count);
        while (done < wanted) {
            const std::int64_t ahead = m_position + done - m_bufferStart;
            if (ahead < 0 || ahead >= m_bufferBytes) {
                m_bufferStart = m_position + done;
                m_bufferBytes = readPieces(m_bufferStart, m_buffer.data(), m_buffer.size());
                if (m_bufferBytes <= 0) {
                    break;
                }
                continue;
            }
            const std::int64_t part = std::min(wanted - done, m_bufferBytes - ahead);
            std::memcpy(target + done, m_buffer.data() + ahead, static_cast<std::size_t>(part));
            done += part;
        }
    }
    if (done > 0) {
        m_position += done;
        tellProgress();
    }
    return done;
}

/// ReadStat 1.1 tells of none for Stata and compressed SPSS files, so that its own handler is no
/// use.
void ParserInput::tellProgress()
{
    if (m_progress == nullptr || m_size == 0) {
        return;
    }
    const auto percent = static_cast<int>(std::min(m_position, m_size) * 100 / m_size);
    if (percent != m_percent) {
        m_percent = percent;
        m_progress(percent);
    }
}

std::int64_t ParserInput::readPieces(std::int64_t offset, char* target, std::size_t count) const
{
    std::size_t done = 0;
    auto piece = std::upper_bound(m_pieces.begin(), m_pieces.end(), offset,
                                  [](std::int64_t one, const PlacedPiece& other) {
                                      return one < other.start + other.length;
                                  });
    for (; piece != m_pieces.end() && done < count; ++piece) {
        const std::int64_t inside = offset + static_cast<std::int64_t>(done) - piece->start;
        const auto part = std::min(count - done, static_cast<std::size_t>(piece->length - inside));
        const std::int64_t got = m_file.readAt(piece->fileOffset + inside, {target + done, part});
        if (got < 0) {
            return -1;
        }
        done += static_cast<std::size_t>(got);
        if (static_cast<std::size_t>(got) < part) {
            break;
        }
    }
    applyReplacements(offset, target, done);
    return static_cast<std::int64_t>(done);
}

void ParserInput::applyReplacements(std::int64_t offset, char* target, std::size_t count) const
{
    const std::int64_t end = offset + static_cast<std::int64_t>(count);
    auto replacement = std::lower_bound(
        m_replacements.begin(), m_replacements.end(), offset,
        [](const Replacement& one, std::int64_t other) { return one.offset < other; });
    for (; replacement != m_replacements.end() && replacement->offset < end; ++replacement) {
        target[replacement->offset - offset] = replacement->byte;
    }
}
