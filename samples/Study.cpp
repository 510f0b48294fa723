#include "samples/Study.h"

#include "samples/FormatMapping.h"

#include <csv.h>

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>

#include <stdexcept>

namespace samples {

namespace {

using Record = std::vector<std::string>;

[[noreturn]] void refuse(const std::string& what)
{
    throw std::runtime_error("sample study: " + what);
}

/// The records of a CSV text; lines without anything are none.
std::vector<Record> recordsOf(std::string_view csv)
{
    std::vector<Record> records(1);
    const auto onField = [](void* text, std::size_t size, void* context) noexcept {
        auto& all = *static_cast<std::vector<Record>*>(context);
        all.back().emplace_back(static_cast<const char*>(text), size);
    };
    const auto onRecord = [](int, void* context) noexcept {
        static_cast<std::vector<Record>*>(context)->emplace_back();
    };
    csv_parser parser{};
    csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
    const bool isRead =
        csv_parse(&parser, csv.data(), csv.size(), onField, onRecord, &records) == csv.size()
        && csv_fini(&parser, onField, onRecord, &records) == 0;
    csv_free(&parser);
    if (!isRead) {
        refuse("a quote stands wrong behind record " + std::to_string(records.size()));
    }
    records.pop_back();
    return records;
}

Column columnOf(const Record& record)
{
    static const QRegularExpression type(QStringLiteral("^(number|text ([1-9]\\d*))$"));
    static const QRegularExpression format(QStringLiteral("^(.*?)(\\d*)\\.(\\d*)$"));
    const auto typed = type.match(QString::fromStdString(record.size() > 2 ? record[2] : ""));
    const auto shown = format.match(QString::fromStdString(record.size() > 3 ? record[3] : "."));
    if (!typed.hasMatch() || !shown.hasMatch()) {
        refuse(record.front() + " has no type, or a wrong format");
    }
    const bool isText = typed.hasCaptured(2);
    return {.name = record[0],
            .label = record[1],
            .format = shown.captured(1).toStdString(),
            .width = shown.captured(2).toInt(),
            .decimals = shown.captured(3).toInt(),
            .character = isText,
            .length = isText ? typed.captured(2).toInt() : 8};
}

double numberOf(const QString& text, Meaning meaning, bool& isNumber)
{
    if (meaning == Meaning::Number) {
        return text.toDouble(&isNumber);
    }
    constexpr double secondsADay = 86400;
    const QDateTime start(QDate(1960, 1, 1), QTime(0, 0), Qt::UTC);
    const bool isDate = meaning == Meaning::Date;
    const QString day = meaning == Meaning::Time ? QStringLiteral("1960-01-01T") : QString();
    const QString time = isDate ? QStringLiteral("T00:00Z") : QStringLiteral("Z");
    const auto moment = QDateTime::fromString(day + text + time, Qt::ISODate);
    isNumber = moment.isValid();
    return static_cast<double>(start.secsTo(moment)) / (isDate ? secondsADay : 1);
}

Cell cellOf(const std::string& text, const Column& column)
{
    bool isRight = true;
    Cell cell = missing;
    if (column.character) {
        isRight = static_cast<int>(text.size()) <= column.length;
        cell = text;
    } else if (!text.empty()) {
        cell = numberOf(QString::fromStdString(text), meaningOf(column), isRight);
    }
    if (!isRight) {
        refuse(column.name + " cannot hold \"" + text + '"');
    }
    return cell;
}

Row rowOf(const Record& record, const Table& table)
{
    if (record.size() != table.columns.size()) {
        refuse(table.name + " has a row of " + std::to_string(record.size()) + " cells");
    }
    Row row;
    for (std::size_t i = 0; i < record.size(); ++i) {
        row.push_back(cellOf(record[i], table.columns[i]));
    }
    return row;
}

}  // namespace

Table readTable(std::string_view csv)
{
    const auto records = recordsOf(csv);
    if (records.empty() || records.front().size() != 2) {
        refuse("a dataset has no name and label");
    }
    Table table{{records[0][0], records[0][1], {}}, {}};
    Record names;
    auto record = records.begin() + 1;
    for (; record != records.end() && (names.empty() || record->front() != names.front());
         ++record) {
        table.columns.push_back(columnOf(*record));
        names.push_back(table.columns.back().name);
    }
    if (record == records.end() || *record != names) {
        refuse(table.name + " does not name its columns above the rows");
    }
    for (++record; record != records.end(); ++record) {
        table.rows.push_back(rowOf(*record, table));
    }
    return table;
}

std::vector<Table> studyTables()
{
    std::vector<Table> tables;
    const QDir folder(QStringLiteral(":/study"));
    for (const QString& name : folder.entryList()) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            refuse(name.toStdString() + " cannot be read");
        }
        tables.push_back(readTable(file.readAll().toStdString()));
    }
    return tables;
}

}  // namespace samples
