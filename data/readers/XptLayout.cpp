#include "data/readers/XptLayout.h"

#include "data/readers/ByteView.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>
#include <string_view>

namespace {

constexpr std::int64_t card = 80;
constexpr std::string_view headerMark = "HEADER RECORD*******";
constexpr std::size_t longestFormat = 256;

/// Names what kind of header record a card is: "MEMBER", "NAMESTR", "OBSV8" ...; empty for others.
std::string_view headerKind(std::string_view record)
{
    return record.starts_with(headerMark) ? texts::headerField(record.substr(headerMark.size(), 8))
                                          : std::string_view();
}

/// Digits of a header record; nothing when there are other characters among them.
std::optional<std::int64_t> digitsAt(std::string_view record, std::size_t offset, std::size_t size)
{
    const std::string_view text =
        texts::trimmedView(record.substr(std::min(offset, record.size()), size));
    std::int64_t number = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = end.ec == std::errc() && end.ptr == text.data() + text.size();
    return whole && number >= 0 ? std::optional(number) : std::nullopt;
}

/// Takes over a format name of more than 8 characters, which is written with its width, point and
/// decimals ("LONGFORMATNAME10.2"); those stand in the variable's own record, too.
void setLongName(FormatRecord& format, std::string_view text)
{
    text = texts::headerField(text);
    if (const std::size_t point = text.rfind('.'); point != std::string_view::npos) {
        text = text.substr(0, point);
    }
    // A SAS format name never ends in a digit.
    text = text.substr(0, text.find_last_not_of("0123456789") + 1);
    if (!text.empty()) {
        format.name = text;
    }
}

bool isPossible(const XptMember::Variable& variable)
{
    constexpr int longestNumber = 8;
    return variable.length > 0 && (variable.isCharacter || variable.length <= longestNumber);
}

class XptReader
{
public:
    explicit XptReader(const FileReader& file)
        : m_file(file)
    { }
    Result<XptLayout> read();

private:
    /// The card at that offset; shorter at the end of the file.
    std::string_view cardAt(std::int64_t offset);
    void checkTimes(std::int64_t cards, std::vector<std::int64_t>& damaged) const;
    std::optional<Failure> readMember(std::int64_t& position);
    std::optional<Failure> readVariables(XptMember& member, std::int64_t& position,
                                         std::int64_t size, std::int64_t count);
    std::optional<Failure> readLongLabels(XptMember& member, std::int64_t& position,
                                          std::string_view kind);
    void readLongLabel(XptMember& member, std::int64_t& position, bool withFormats) const;
    [[nodiscard]] std::int64_t findMemberAfter(std::int64_t position) const;
    [[nodiscard]] std::int64_t usedBytes(std::int64_t start, std::int64_t size) const;
    void countRows(XptMember& member, std::optional<std::int64_t> declared) const;

    const FileReader& m_file;
    std::vector<char> m_card;
    XptLayout m_layout;
};

std::string_view XptReader::cardAt(std::int64_t offset)
{
    m_card = m_file.bytesAt(offset, card);
    return {m_card.data(), m_card.size()};
}

/// Looks at the times of creation and modification that two cards hold, "15JAN25:12:00:00".
void XptReader::checkTimes(std::int64_t cards, std::vector<std::int64_t>& damaged) const
{
    for (const std::int64_t offset : {cards + 64, cards + card}) {
        const std::vector<char> bytes = m_file.bytesAt(offset, 5);
        const auto is = [&](std::size_t at, auto kind) {
            return at < bytes.size() && kind(static_cast<unsigned char>(bytes[at])) != 0;
        };
        const auto digit = [](int letter) { return std::isdigit(letter); };
        const auto alpha = [](int letter) { return std::isalpha(letter); };
        if (!is(1, digit) || !is(2, alpha) || !is(3, alpha) || !is(4, alpha)
            || !(is(0, digit) || is(0, [](int letter) { return letter == ' ' ? 1 : 0; }))) {
            damaged.push_back(offset);
        }
    }
}

Result<XptLayout> XptReader::read()
{
    const std::string library(headerKind(cardAt(0)));
    if (library != "LIBRARY" && library != "LIBV8") {
        return Failure{"It is no SAS transport file"};
    }
    std::int64_t position = 3 * card;  // the header, the real header and the modification time
    m_layout.libraryEnd = position;
    checkTimes(card, m_layout.damagedTimes);
    while (position < m_file.size()) {
        if (const auto failure = readMember(position)) {
            return *failure;
        }
    }
    if (m_layout.members.empty()) {
        return Failure{"It holds no data set"};
    }
    return std::move(m_layout);
}

/// Reads one member's records, counts its rows, and moves the position to the next member.
std::optional<Failure> XptReader::readMember(std::int64_t& position)
{
    XptMember member;
    member.start = position;
    const std::string record(cardAt(position));
    const std::string kind(headerKind(record));
    const std::optional<std::int64_t> namestrSize = digitsAt(record, 73, 5);
    const bool isLong = kind == "MEMBV8";
    if ((kind != "MEMBER" && !isLong) || !namestrSize || *namestrSize < 90) {
        return Failure{"The record that starts a data set is damaged"};
    }
    const std::string description(cardAt(position + 2 * card));
    const std::string second(cardAt(position + 3 * card));
    member.name = texts::headerField(
        std::string_view(description)
            .substr(std::min<std::size_t>(8, description.size()), isLong ? 32 : 8));
    member.label = texts::headerField(
        std::string_view(second).substr(std::min<std::size_t>(32, second.size()), 40));

    checkTimes(position + 2 * card, member.damagedTimes);
    position += 4 * card;
    const std::string namestrs(cardAt(position));
    const auto count = digitsAt(namestrs, 53, 5);
    const std::string namestrKind(headerKind(namestrs));
    if ((namestrKind != "NAMESTR" && namestrKind != "NAMSTV8") || !count) {
        return Failure{"The record that counts the variables is damaged"};
    }
    position += card;
    if (auto failure = readVariables(member, position, *namestrSize, *count)) {
        return failure;
    }
    std::string next(cardAt(position));
    if (headerKind(next).starts_with("LABELV")) {
        const std::string labelKind(headerKind(next));
        if (auto failure = readLongLabels(member, position, labelKind)) {
            return failure;
        }
        next = cardAt(position);
    }
    const std::string observationKind(headerKind(next));
    if (observationKind != "OBS" && observationKind != "OBSV8") {
        return Failure{"The record that starts the observations is missing"};
    }
    member.observations = position + card;
    member.end = findMemberAfter(member.observations);
    if (member.damage.empty()) {
        countRows(member, isLong ? digitsAt(next, 48, 15) : std::nullopt);
    }
    position = member.end;
    m_layout.members.push_back(std::move(member));
    return std::nullopt;
}

std::optional<Failure> XptReader::readVariables(XptMember& member, std::int64_t& position,
                                                std::int64_t size, std::int64_t count)
{
    if (position + size * count > m_file.size()) {
        return Failure{
            fmt::format("It promises {} variables, but it is too short to describe them", count)};
    }
    const std::vector<char> bytes = m_file.bytesAt(position, size * count);
    for (std::int64_t i = 0; i < count; ++i) {
        const ByteView record({bytes.data() + i * size, static_cast<std::size_t>(size)}, false);
        const auto field = [&](std::size_t offset, std::size_t length) {
            return std::string(texts::headerField(record.text(offset, length)));
        };
        XptMember::Variable variable;
        variable.name = field(8, 8);
        variable.isCharacter = record.u16(0) == 2;
        variable.length = static_cast<std::int16_t>(record.u16(4));
        variable.format = {field(56, 8), record.u16(64), record.u16(66)};
        variable.informat = {field(72, 8), record.u16(80), record.u16(82)};
        if (!isPossible(variable) && member.damage.empty()) {
            member.damage = fmt::format("Variable {} has an impossible length, {}", variable.name,
                                        variable.length);
        }
        member.rowLength += variable.length;
        member.variables.push_back(std::move(variable));
    }
    if (count == 0) {
        member.damage = "It has no variables";
    }
    position += (size * count + card - 1) / card * card;
    return std::nullopt;
}

/// Version 8 writes labels beyond 40 characters, and with LABELV9 long format names, behind the
/// variables: one entry each, run together and padded to whole cards.
std::optional<Failure> XptReader::readLongLabels(XptMember& member, std::int64_t& position,
                                                 std::string_view kind)
{
    const bool withFormats = kind == "LABELV9";
    const auto count = digitsAt(cardAt(position), 48, 8);
    if (!count || *count > 0xFFFF) {
        return Failure{"The record that counts the long labels is damaged"};
    }
    position += card;
    const std::int64_t start = position;
    for (std::int64_t i = 0; i < *count && position < m_file.size(); ++i) {
        readLongLabel(member, position, withFormats);
    }
    position = start + (position - start + card - 1) / card * card;
    return std::nullopt;
}

/// Takes over the formats of one entry; its name and label are left to the library, and most
/// entries are small parts of what their sizes could be: nothing is read ahead.
void XptReader::readLongLabel(XptMember& member, std::int64_t& position, bool withFormats) const
{
    const std::int64_t headSize = withFormats ? 10 : 6;
    const std::vector<char> head = m_file.bytesAt(position, headSize);
    const ByteView record({head.data(), head.size()}, false);
    const std::size_t index = record.u16(0);
    const std::size_t formatSize = record.u16(6);
    const std::size_t informatSize = record.u16(8);
    position += headSize + record.u16(2) + record.u16(4);
    if (index >= 1 && index <= member.variables.size() && formatSize < longestFormat) {
        XptMember::Variable& variable = member.variables[index - 1];
        const std::vector<char> bytes =
            m_file.bytesAt(position, static_cast<std::int64_t>(formatSize + informatSize));
        const std::string_view names(bytes.data(), bytes.size());
        setLongName(variable.format, names.substr(0, formatSize));
        setLongName(variable.informat, names.substr(std::min(formatSize, names.size())));
    }
    position += static_cast<std::int64_t>(formatSize + informatSize);
}

/// Offset of the next member's header, on an 80-byte boundary, or the end of the file.
std::int64_t XptReader::findMemberAfter(std::int64_t position) const
{
    constexpr std::int64_t cardsAtOnce = 4096;
    for (; position < m_file.size(); position += cardsAtOnce * card) {
        const std::vector<char> bytes = m_file.bytesAt(position, cardsAtOnce * card);
        const std::string_view cards(bytes.data(), bytes.size());
        for (std::size_t at = 0; at < cards.size(); at += card) {
            const std::string_view kind = headerKind(cards.substr(at, card));
            if (kind == "MEMBER" || kind == "MEMBV8") {
                return position + static_cast<std::int64_t>(at);
            }
        }
    }
    return m_file.size();
}

/// How many of these bytes there are up to the last one that is not blank.
std::int64_t XptReader::usedBytes(std::int64_t start, std::int64_t size) const
{
    constexpr std::int64_t bytesAtOnce = 4096;
    while (size > 0) {
        const std::int64_t part = std::min(size, bytesAtOnce);
        const std::vector<char> bytes = m_file.bytesAt(start + size - part, part);
        const auto last =
            std::find_if(bytes.rbegin(), bytes.rend(), [](char byte) { return byte != ' '; });
        if (last != bytes.rend()) {
            return size - part + (bytes.rend() - last);
        }
        size -= part;
    }
    return 0;
}

/// Blanks fill up the last card, and with some writers more cards. A row that holds a number is
/// never blank, but one of texts alone may be: of those as many count as fit before the last card's
/// padding could start. Version 8 may declare the count.
void XptReader::countRows(XptMember& member, std::optional<std::int64_t> declared) const
{
    const std::int64_t space = std::max<std::int64_t>(member.end - member.observations, 0);
    const std::int64_t length = member.rowLength;
    const std::int64_t whole = length > 0 ? space / length : 0;
    const std::int64_t used = usedBytes(member.observations, space);
    const std::vector<char> rest =
        m_file.bytesAt(member.observations + whole * length, used - whole * length);
    // Some programs fill up with NUL bytes, which a cut row may start with, too.
    const bool isUnclear = !rest.empty()
        && std::ranges::all_of(rest, [](char byte) { return byte == '\0' || byte == ' '; });
    const std::int64_t usedRows = length <= 0 ? 0
        : isUnclear                           ? whole
                                              : (used + length - 1) / length;
    if (declared && *declared > whole) {
        member.damage = fmt::format(
            "Its header promises {} observations, but it is too short to hold them", *declared);
    } else if (usedRows > whole) {
        member.damage = fmt::format("It is cut short within observation {}", whole + 1);
    } else if (declared && *declared < usedRows) {
        member.notes.push_back(
            fmt::format("Its header counts {} observations, but it holds {}", *declared, usedRows));
    } else if (isUnclear || (!declared && member.end % card != 0)) {
        member.notes.emplace_back(
            "It does not end with a whole record: observations at its end may be missing");
    }
    const bool isText = std::ranges::all_of(member.variables, &XptMember::Variable::isCharacter);
    const std::int64_t certain = std::max<std::int64_t>(space - card + 1, 0);
    const std::int64_t least =
        isText && length > 0 ? std::min(whole, (certain + length - 1) / length) : 0;
    member.rowCount = std::max(usedRows, declared.value_or(least));
}

}  // namespace

Result<XptLayout> readXptLayout(const FileReader& file)
{
    return XptReader(file).read();
}
