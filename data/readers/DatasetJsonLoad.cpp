#include "data/readers/DatasetJsonLoad.h"

#include "data/readers/JsonRowFeed.h"

#include <fmt/format.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace {

constexpr std::int64_t mostObservations = std::numeric_limits<std::int32_t>::max();

/// Throws for what does not go on as JSON does.
[[noreturn]] void refuse(char found)
{
    throw std::runtime_error(found == '\0' ? "It is cut short" : "It is no valid JSON");
}

}  // namespace

DatasetJsonLoad::DatasetJsonLoad(DatasetJsonDoc& dataset, const FileReader& file)
    : m_dataset(dataset)
    , m_input(file, [&](std::int64_t done, std::int64_t all) { dataset.tellProgress(done, all); })
    , m_window(m_input)
    , m_cells(dataset)
{ }

void DatasetJsonLoad::run()
{
    m_input.open();
    const char first = m_window.next();
    if (first == '[') {
        throw std::runtime_error(
            "It is no Dataset-JSON file: it starts with a list in place of its attributes");
    }
    if (first != '{') {
        throw std::runtime_error("It is no JSON file");
    }
    walkObject(Place::Root);
    if (!m_isDone) {
        takeTail();
    }
    finish();
}

void DatasetJsonLoad::walkObject(Place place)
{
    m_window.pass(1);
    m_text += '{';
    ++m_openObjects;
    char next = m_window.next();
    while (next != '}') {
        walkMember(place);
        if (m_isDone) {
            return;
        }
        next = m_window.next();
        if (next == ',') {
            m_window.pass(1);
            m_text += ',';
            next = m_window.next() == '}' ? ',' : m_window.next();
        } else if (next != '}') {
            refuse(next);
        }
    }
    m_window.pass(1);
    m_text += '}';
    --m_openObjects;
}

void DatasetJsonLoad::walkMember(Place place)
{
    if (const char quote = m_window.next(); quote != '"') {
        refuse(quote);
    }
    const std::size_t start = m_text.size() + 1;
    m_window.passValue(&m_text);
    const std::string key = m_text.substr(start, m_text.size() - start - 1);
    if (const char colon = m_window.next(); colon != ':') {
        refuse(colon);
    }
    m_window.pass(1);
    m_text += ':';
    const char next = m_window.next();
    if (next == '[' && isRows(place, key)) {
        takeRows();
    } else if (next == '{' && placeOf(place, key) != Place::Elsewhere) {
        walkObject(placeOf(place, key));
    } else {
        m_window.passValue(&m_text);
    }
}

DatasetJsonLoad::Place DatasetJsonLoad::placeOf(Place outer, const std::string& key)
{
    if (outer == Place::Root && (key == "clinicalData" || key == "referenceData")) {
        return Place::Data;
    }
    if (outer == Place::Data && key == "itemGroupData") {
        return Place::Groups;
    }
    return outer == Place::Groups ? Place::Group : Place::Elsewhere;
}

bool DatasetJsonLoad::isRows(Place place, const std::string& key)
{
    const bool isNested = place == Place::Group && key == "itemData";
    return isNested || ((place == Place::Root || place == Place::Group) && key == "rows");
}

void DatasetJsonLoad::takeRows()
{
    if (m_hasRows) {
        m_dataset.addDamageNote("It holds rows more than once; the first ones are shown");
        static_cast<void>(JsonRowFeed::countList(m_window));
        m_text += "null";
        return;
    }
    m_text += "null";
    m_hasRows = true;
    const DatasetJsonMeta meta = metaSoFar();
    m_isDone = meta.hasColumns && !meta.name.empty() && isEnough(meta);
    if (m_isDone) {
        m_rowCount = *meta.records;
    } else if (!m_dataset.m_valuesWanted) {
        m_rowCount = JsonRowFeed::countList(m_window);
    } else if (meta.hasColumns) {
        begin(meta);
        JsonRowFeed(m_window, *m_rows).readList();
    } else {
        m_rowsOffset = m_window.offset();
        static_cast<void>(JsonRowFeed::countList(m_window));
    }
}

/// What stands behind the attributes: the rows, where each has a line of its own.
void DatasetJsonLoad::takeTail()
{
    const std::int64_t line = m_window.line();
    if (m_window.next() == '\0') {
        return;
    }
    if (m_hasRows) {
        m_dataset.addDamageNote("It goes on behind its end, which is left out");
        return;
    }
    const DatasetJsonMeta meta = metaSoFar();
    if (m_dataset.m_valuesWanted) {
        begin(meta);
        JsonRowFeed(m_window, *m_rows).readLines(std::max(line, m_window.line()));
    } else {
        m_isDone = isEnough(meta);
        m_rowCount = m_isDone ? *meta.records : JsonRowFeed::countLines(m_window);
    }
}

/// Whether what a file tells of itself is all that is wanted of it. The rows of a file that is read
/// in a blink are counted all the same: not every file knows how many it holds.
bool DatasetJsonLoad::isEnough(const DatasetJsonMeta& meta) const
{
    constexpr std::int64_t smallBytes = 8 << 20;
    constexpr std::int64_t usualPacking = 25;
    const std::int64_t bytes = m_input.size() * (m_input.isCompressed() ? usualPacking : 1);
    return !m_dataset.m_valuesWanted && meta.records && bytes > smallBytes;
}

DatasetJsonMeta DatasetJsonLoad::metaSoFar() const
{
    Result<DatasetJsonMeta> meta = readDatasetJsonMeta(m_text + std::string(m_openObjects, '}'));
    if (!meta) {
        throw std::runtime_error(meta.error());
    }
    return std::move(meta).value();
}

/// Describes the variables and makes room for the rows.
void DatasetJsonLoad::begin(const DatasetJsonMeta& meta)
{
    if (!meta.hasColumns) {
        throw std::runtime_error("It is no Dataset-JSON file: it describes no columns");
    }
    m_rows.emplace(m_dataset.describe(meta), m_cells, m_dataset.m_exactTexts);
    m_cells.setTextsAreUtf8();
    if (m_dataset.m_valuesWanted) {
        m_cells.beginUncounted(expectedRows(meta));
        return;
    }
    if (m_rowCount < 0 || m_rowCount > mostObservations) {
        throw std::runtime_error(fmt::format("It has {} observations; at most {} can be shown",
                                             m_rowCount, mostObservations));
    }
    m_cells.begin(static_cast<int>(m_rowCount));
}

/// What the file promises, as far as it is long enough for it: two bytes a value, and packed a
/// thousandth of that at the least. Room that is not needed costs nothing.
int DatasetJsonLoad::expectedRows(const DatasetJsonMeta& meta) const
{
    constexpr std::int64_t mostPacked = 1032;
    const auto columns = static_cast<std::int64_t>(std::max<std::size_t>(meta.columns.size(), 1));
    const std::int64_t bytes = m_input.size() * (m_input.isCompressed() ? mostPacked : 1);
    const std::int64_t most = std::min(bytes / (2 * columns) + 1, mostObservations);
    const std::int64_t promised =
        meta.records.value_or(m_input.isCompressed() ? 0 : m_input.size() / (4 * columns));
    return static_cast<int>(std::clamp<std::int64_t>(promised, 0, most));
}

void DatasetJsonLoad::finish()
{
    const DatasetJsonMeta meta = metaSoFar();
    if (m_rowsOffset >= 0) {
        begin(meta);
        m_window.restart(m_rowsOffset);
        JsonRowFeed(m_window, *m_rows).readList();
    } else if (!m_rows) {
        begin(meta);
    }
    m_cells.finish();
    m_dataset.m_exactTexts.finish();
    m_dataset.finishDescription(meta, m_input.encoding());
    tellNotes(meta);
}

void DatasetJsonLoad::tellNotes(const DatasetJsonMeta& meta)
{
    for (const std::string& note : meta.notes) {
        m_dataset.addDamageNote(note);
    }
    const std::int64_t found = m_dataset.m_valuesWanted ? m_rows->rowCount() : m_rowCount;
    if (meta.records && *meta.records != found) {
        m_dataset.addDamageNote(fmt::format("Its header counts {} observations, but it holds {}",
                                            *meta.records, found));
    }
    for (std::string& note : m_rows->oddities().notes(m_dataset.m_names)) {
        m_dataset.addDamageNote(std::move(note));
    }
    for (const std::string& remark : m_rows->oddities().remarks(m_dataset.m_names)) {
        spdlog::info("{}: {}", meta.name, remark);
    }
}
