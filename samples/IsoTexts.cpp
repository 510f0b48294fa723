#include "samples/IsoTexts.h"

#include "samples/FormatMapping.h"

#include <QDateTime>

#include <array>
#include <charconv>
#include <cmath>

namespace samples {

namespace {

const QDate firstDay(1960, 1, 1);

std::string shortest(double number)
{
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return {buffer.data(), end};
}

}  // namespace

std::string isoText(const Column& column, double number)
{
    if (std::isnan(number)) {
        return {};
    }
    switch (meaningOf(column)) {
    case Meaning::Date:
        return firstDay.addDays(std::llround(number)).toString(Qt::ISODate).toStdString();
    case Meaning::DateTime:
        return QDateTime(firstDay, QTime(0, 0), Qt::UTC)
            .addSecs(std::llround(number))
            .toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"))
            .toStdString();
    case Meaning::Time:
        return QTime(0, 0).addSecs(static_cast<int>(number)).toString(Qt::ISODate).toStdString();
    case Meaning::Number:
        break;
    }
    return shortest(number);
}

}  // namespace samples
