#include "samples/FormatMapping.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace samples {

namespace {

enum class Meaning
{
    Number,
    Date,
    DateTime,
    Time
};

struct KnownFormat
{
    std::string_view sas;
    Meaning meaning;
    std::string_view spss;
    std::string_view stata;
};

constexpr std::array knownFormats{
    KnownFormat{"DATE", Meaning::Date, "DATE11", "%td"},
    KnownFormat{"YYMMDD", Meaning::Date, "SDATE10", "%tdCY-N-D"},
    KnownFormat{"E8601DA", Meaning::Date, "SDATE10", "%tdCY-N-D"},
    KnownFormat{"MMDDYY", Meaning::Date, "ADATE10", "%tdN/D/CY"},
    KnownFormat{"DDMMYY", Meaning::Date, "EDATE10", "%tdD/N/CY"},
    KnownFormat{"DATETIME", Meaning::DateTime, "DATETIME20", "%tc"},
    KnownFormat{"E8601DT", Meaning::DateTime, "DATETIME20", "%tc"},
    KnownFormat{"TIME", Meaning::Time, "TIME8", "%tcHH:MM:SS"},
    KnownFormat{"E8601TM", Meaning::Time, "TIME8", "%tcHH:MM:SS"},
};

const KnownFormat* knownFormat(const Column& column)
{
    const auto* const found = std::ranges::find(knownFormats, column.format, &KnownFormat::sas);
    return found == knownFormats.end() ? nullptr : &*found;
}

std::string widthAndDecimals(const Column& column)
{
    auto text = std::to_string(column.width);
    if (column.decimals > 0) {
        text += '.' + std::to_string(column.decimals);
    }
    return text;
}

std::string transportFormat(const Column& column)
{
    return column.width > 0 ? column.format + widthAndDecimals(column) : column.format;
}

std::string spssFormat(const Column& column)
{
    if (column.character) {
        return "A" + std::to_string(column.length);
    }
    if (const auto* const known = knownFormat(column)) {
        return std::string(known->spss);
    }
    if (column.width == 0 || column.format == "BEST") {
        return "F8.2";
    }
    return (column.format == "COMMA" ? "COMMA" : "F") + widthAndDecimals(column);
}

std::string stataFormat(const Column& column)
{
    if (column.character) {
        return "%" + std::to_string(std::clamp(column.length, 9, 244)) + "s";
    }
    if (const auto* const known = knownFormat(column)) {
        return std::string(known->stata);
    }
    if (column.width == 0) {
        return "%9.0g";
    }
    const auto width = "%" + std::to_string(column.width) + ".";
    if (column.format == "BEST") {
        return width + "0g";
    }
    return width + std::to_string(column.decimals) + (column.format == "COMMA" ? "fc" : "f");
}

}  // namespace

std::string fileFormat(const Column& column, FileKind kind)
{
    switch (kind) {
    case FileKind::Transport:
        return transportFormat(column);
    case FileKind::Sas:
        return column.format;
    case FileKind::Spss:
        return spssFormat(column);
    case FileKind::Stata:
        return stataFormat(column);
    }
    return {};
}

NumberMapping numberMapping(const Column& column, FileKind kind)
{
    constexpr double secondsADay = 86400;
    constexpr double daysFrom1582To1960 = 137775;
    const auto* const known = knownFormat(column);
    if (known == nullptr) {
        return {};
    }
    if (kind == FileKind::Spss) {
        const double offset = daysFrom1582To1960 * secondsADay;
        switch (known->meaning) {
        case Meaning::Date:
            return {secondsADay, offset};
        case Meaning::DateTime:
            return {1, offset};
        default:
            return {};
        }
    }
    if (kind == FileKind::Stata && known->meaning != Meaning::Date) {
        return {1000, 0};
    }
    return {};
}

}  // namespace samples
