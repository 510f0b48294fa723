#include "data/readers/CsvText.h"

#include "data/values/Texts.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr std::size_t partBytes = std::size_t{256} << 10;
constexpr std::size_t headBytes = 64;

}  // namespace

CsvText::CsvText(const FileReader& file)
    : m_file(file)
    , m_buffer(partBytes)
{
    const std::vector<char> head = file.bytesAt(0, headBytes);
    recognise({head.data(), head.size()});
    rewind();
}

void CsvText::recognise(std::string_view head)
{
    const auto zeroAt = [&](std::size_t first) {
        bool all = head.size() > 1;
        for (std::size_t i = 0; i + 1 < head.size(); i += 2) {
            all = all && head[i + first] == '\0' && head[i + 1 - first] != '\0';
        }
        return all;
    };
    if (head.starts_with("\xEF\xBB\xBF")) {
        m_start = 3;
    } else if (head.starts_with("\xFF\xFE") || zeroAt(1)) {
        m_encoding = QStringDecoder::Utf16LE;
    } else if (head.starts_with("\xFE\xFF") || zeroAt(0)) {
        m_encoding = QStringDecoder::Utf16BE;
    }
    m_isUtf16 = m_encoding != QStringDecoder::Utf8;
}

void CsvText::rewind()
{
    m_position = m_start;
    m_cutCharacter.clear();
    m_isUtf8 = true;
    m_hadNulBytes = false;
    if (m_isUtf16) {
        m_decoder = std::make_unique<QStringDecoder>(m_encoding);
    }
}

std::string_view CsvText::next()
{
    do {
        const std::int64_t got = m_file.readAt(m_position, m_buffer);
        if (got < 0) {
            throw std::runtime_error("It cannot be read to its end");
        }
        if (got == 0) {
            noteEncoding(true);
            return {};
        }
        m_position += got;
        decode({m_buffer.data(), static_cast<std::size_t>(got)});
        if (m_part.find('\0') != std::string::npos) {
            std::erase(m_part, '\0');
            m_hadNulBytes = true;
        }
    } while (m_part.empty());
    noteEncoding(false);
    return m_part;
}

void CsvText::decode(std::string_view bytes)
{
    if (m_isUtf16) {
        const QString text =
            m_decoder->decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
        m_part = text.toStdString();
    } else {
        m_part.assign(bytes);
    }
}

/// Whether the file is UTF-8 as a whole; a character may lie in two parts.
void CsvText::noteEncoding(bool isLast)
{
    if (!m_isUtf8 || m_isUtf16) {
        return;
    }
    if (isLast) {
        m_isUtf8 = m_cutCharacter.empty();
        return;
    }
    if (m_cutCharacter.empty() && texts::isAscii(m_part)) {
        return;
    }
    m_cutCharacter += m_part;
    const std::string_view whole = texts::withoutCutCharacter(m_cutCharacter);
    m_isUtf8 = texts::isUtf8(whole);
    m_cutCharacter.erase(0, whole.size());
}
