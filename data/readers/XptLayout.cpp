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
    static void applyLongLabel(XptMember& member, const ByteView& records, bool withFormats,
                               std::size_t& at);
    [[nodiscard]] std::int64_t findMemberAfter(std::int64_t position) const;
    [[nodiscard]] std::int64_t countRows(const XptMember& member,
                                         std::optional<std::int64_t> declared) const;

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
    member.rowCount = countRows(member, isLong ? digitsAt(next, 48, 15) : std::nullopt);
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
        if (variable.length < 0) {
            return Failure{fmt::format("Variable {} has a negative length", variable.name)};
        }
        member.rowLength += variable.length;
        member.variables.push_back(std::move(variable));
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
    if (!count) {
        return Failure{"The record that counts the long labels is damaged"};
    }
    position += card;
    const std::int64_t longest = *count > 0xFFFF ? 0 : *count * (10 + 4 * 0xFFFF);
    const std::vector<char> bytes = m_file.bytesAt(position, longest);
    const ByteView records({bytes.data(), bytes.size()}, false);
    std::size_t at = 0;
    for (std::int64_t i = 0; i < *count && at < records.size(); ++i) {
        applyLongLabel(member, records, withFormats, at);
    }
    position += (static_cast<std::int64_t>(at) + card - 1) / card * card;
    return std::nullopt;
}

void XptReader::applyLongLabel(XptMember& member, const ByteView& records, bool withFormats,
                               std::size_t& at)
{
    const std::size_t index = records.u16(at);
    const std::size_t nameSize = records.u16(at + 2);
    const std::size_t labelSize = records.u16(at + 4);
    const std::size_t formatSize = withFormats ? records.u16(at + 6) : 0;
    const std::size_t informatSize = withFormats ? records.u16(at + 8) : 0;
    const std::size_t nameAt = at + (withFormats ? 10 : 6);
    if (index >= 1 && index <= member.variables.size() && formatSize < longestFormat) {
        XptMember::Variable& variable = member.variables[index - 1];
        const std::size_t formatAt = nameAt + nameSize + labelSize;
        setLongName(variable.format, records.text(formatAt, formatSize));
        setLongName(variable.informat, records.text(formatAt + formatSize, informatSize));
    }
    at = nameAt + nameSize + labelSize + formatSize + informatSize;
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

/// The last card is filled up with blanks, and rows of blanks look the same. So as many rows count
/// as fit before the last card's padding could start, and behind them those that are not blank.
/// Version 8 may declare the count; it is believed where the rows and one padding fill the space.
std::int64_t XptReader::countRows(const XptMember& member,
                                  std::optional<std::int64_t> declared) const
{
    const std::int64_t space = member.end - member.observations;
    const std::int64_t length = member.rowLength;
    if (length <= 0 || space <= 0) {
        return 0;
    }
    const std::int64_t most = space / length;
    const std::int64_t certain = std::max<std::int64_t>(space - card + 1, 0);
    const std::int64_t least = std::min(most, (certain + length - 1) / length);
    if (declared && *declared >= least && *declared <= most) {
        return *declared;
    }
    const std::vector<char> tail =
        m_file.bytesAt(member.observations + least * length, (most - least) * length);
    const auto lastLetter =
        std::find_if(tail.rbegin(), tail.rend(), [](char byte) { return byte != ' '; });
    const std::int64_t used = tail.rend() - lastLetter;
    return least + (used + length - 1) / length;
}

}  // namespace

Result<XptLayout> readXptLayout(const FileReader& file)
{
    return XptReader(file).read();
}
