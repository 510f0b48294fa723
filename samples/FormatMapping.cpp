#include "samples/FormatMapping.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace samples {

namespace {

struct KnownFormat
{
    std::string_view sas;
    Meaning meaning;
    std::string_view spss;
    std::string_view stata;
};

constexpr KnownFormat plainNumber{"", Meaning::Number, "F", "f"};

constexpr std::array knownFormats{
    KnownFormat{"COMMA", Meaning::Number, "COMMA", "fc"},
    KnownFormat{"DATE", Meaning::Date, "DATE11", "%td"},
    KnownFormat{"YYMMDD", Meaning::Date, "SDATE10", "%tdCY-N-D"},
    KnownFormat{"DATETIME", Meaning::DateTime, "DATETIME20", "%tc"},
    KnownFormat{"TIME", Meaning::Time, "TIME8", "%tcHH:MM:SS"},
};

const KnownFormat& knownFormat(const Column& column)
{
    const auto* const found = std::ranges::find(knownFormats, column.format, &KnownFormat::sas);
    return found == knownFormats.end() ? plainNumber : *found;
}

std::string widthAndDecimals(const Column& column)
{
    const auto width = std::to_string(column.width);
    return column.decimals > 0 ? width + '.' + std::to_string(column.decimals) : width;
}

std::string spssFormat(const Column& column)
{
    if (column.character) {
        return "A" + std::to_string(column.length);
    }
    const auto& known = knownFormat(column);
    if (known.meaning != Meaning::Number) {
        return std::string(known.spss);
    }
    const bool isGeneral = column.width == 0 || column.format == "BEST";
    return isGeneral ? "F8.2" : std::string(known.spss) + widthAndDecimals(column);
}

std::string stataFormat(const Column& column)
{
    constexpr int narrowest = 9;
    constexpr int widest = 244;
    if (column.character) {
        return "%" + std::to_string(std::clamp(column.length, narrowest, widest)) + "s";
    }
    const auto& known = knownFormat(column);
    if (known.meaning != Meaning::Number) {
        return std::string(known.stata);
    }
    if (column.width == 0 || column.format == "BEST") {
        return "%" + std::to_string(column.width == 0 ? narrowest : column.width) + ".0g";
    }
    return "%" + std::to_string(column.width) + '.' + std::to_string(column.decimals)
        + std::string(known.stata);
}

}  // namespace

Meaning meaningOf(const Column& column)
{
    return knownFormat(column).meaning;
}

std::string fileFormat(const Column& column, FileKind kind)
{
    switch (kind) {
    case FileKind::Transport:
        return column.width > 0 ? column.format + widthAndDecimals(column) : column.format;
    case FileKind::Sas:
        return column.format;
    case FileKind::Spss:
        return spssFormat(column);
    case FileKind::Stata:
        return stataFormat(column);
    case FileKind::Csv:
    case FileKind::R:
    case FileKind::DatasetJson:
    case FileKind::Ndjson:
    case FileKind::Dsjc:
        break;
    }
    return {};
}

NumberMapping numberMapping(const Column& column, FileKind kind)
{
    constexpr double secondsADay = 86400;
    constexpr double daysFrom1582To1960 = 137775;
    const auto meaning = meaningOf(column);
    if (kind == FileKind::Spss && (meaning == Meaning::Date || meaning == Meaning::DateTime)) {
        return {meaning == Meaning::Date ? secondsADay : 1, daysFrom1582To1960 * secondsADay};
    }
    if (kind == FileKind::Stata && (meaning == Meaning::DateTime || meaning == Meaning::Time)) {
        return {1000, 0};
    }
    if (kind == FileKind::R && (meaning == Meaning::Date || meaning == Meaning::DateTime)) {
        constexpr double daysFrom1960To1970 = 3653;
        return {1, -daysFrom1960To1970 * (meaning == Meaning::Date ? 1 : secondsADay)};
    }
    return {};
}

}  // namespace samples
