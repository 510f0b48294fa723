#include "data/readers/RFrameLoad.h"

#include "data/values/RFormat.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <bit>
#include <limits>
#include <memory>
#include <unistd.h>

namespace {

using Kind = RVector::Kind;

struct ParserDeleter
{
    void operator()(rdata_parser_t* parser) const noexcept { rdata_parser_free(parser); }
};
using Parser = std::unique_ptr<rdata_parser_t, ParserDeleter>;

constexpr std::int64_t mostOfAnything = std::numeric_limits<std::int32_t>::max();

/// How the values of a column are held and shown.
struct Meaning
{
    TypeCode type = TypeCode::Character;
    std::string format{};
    std::size_t length = 0;  ///< bytes
};

bool isFactor(const RColumn& column)
{
    return column.kind == Kind::Integer && column.attributes.isOfClass("factor");
}

bool isLongInteger(const RColumn& column)
{
    return column.kind == Kind::Real && column.attributes.isOfClass("integer64");
}

std::string formatOf(const RAttributes& attributes)
{
    if (attributes.isOfClass("Date")) {
        return std::string(rformat::date);
    }
    if (attributes.isOfClass("POSIXct")) {
        return std::string(rformat::dateTime);
    }
    if (attributes.isOfClass("hms")) {
        return std::string(rformat::time);
    }
    return attributes.isOfClass("difftime") ? attributes.units : std::string();
}

std::size_t longestOf(const std::vector<std::optional<std::string>>& texts)
{
    std::size_t longest = 0;
    for (const auto& text : texts) {
        longest = std::max(longest, text ? text->size() : 0);
    }
    return longest;
}

Meaning meaningOf(const RColumn& column)
{
    constexpr std::size_t longestLongInteger = 20;
    if (isFactor(column)) {
        return {.length = longestOf(column.attributes.levels)};
    }
    if (isLongInteger(column) && !column.fitsDoubles) {
        return {.length = longestLongInteger};
    }
    switch (column.kind) {
    case Kind::Logical:
        return {TypeCode::Int8, std::string(rformat::logical), 4};
    case Kind::Integer:
        return {TypeCode::Int32, formatOf(column.attributes), 4};
    case Kind::Real:
        return {TypeCode::Double, formatOf(column.attributes), 8};
    default:
        return {.length = column.longestText};
    }
}

/// In words, with its article.
std::string describe(const RColumn& column)
{
    if (column.attributes.isOfClass("data.frame")) {
        return "a data frame";
    }
    if (column.attributes.isOfClass("POSIXlt")) {
        return "date-times in parts (POSIXlt)";
    }
    if (column.attributes.hasDimensions) {
        return "a matrix";
    }
    return column.length >= 0 ? fmt::format("{} of {} elements", column.description, column.length)
                              : column.description;
}

/// Memory is taken on trust and given where it is touched: more than all of it will not do.
bool fitsMemory(std::int64_t rows, std::int64_t columns)
{
    const auto pages = static_cast<double>(sysconf(_SC_PHYS_PAGES));
    const auto pageSize = static_cast<double>(sysconf(_SC_PAGESIZE));
    const double cells = static_cast<double>(rows) * static_cast<double>(columns);
    return cells * sizeof(CellValue) <= pages * pageSize;
}

}  // namespace

RFrameLoad::RFrameLoad(RdsDoc& dataset, RStream& stream, std::int64_t columns, std::int64_t rows)
    : m_dataset(dataset)
    , m_cells(dataset)
    , m_columnCount(columns)
    , m_feed(stream, columns, rows)
{
    if (columns > mostOfAnything || !fitsMemory(1, columns)) {
        throw FileDamage("It has more variables than can be shown");
    }
    m_dataset.m_variableCount = static_cast<int>(columns);
    m_feed.setRowCheck([this](std::int64_t count) { begin(count); });
    if (rows >= 0) {
        begin(rows);
    }
}

void RFrameLoad::begin(std::int64_t rows)
{
    if (rows > mostOfAnything) {
        throw FileDamage(
            fmt::format("It has {} observations; at most {} can be shown", rows, mostOfAnything));
    }
    if (m_dataset.m_valuesWanted && !fitsMemory(rows, m_columnCount)) {
        throw std::bad_alloc();
    }
    m_cells.begin(static_cast<int>(rows), CellLoader::Order::ByColumn);
    m_hasBegun = true;
    for (const int column : std::exchange(m_columnsWithNothing, {})) {
        putNothing(column);
    }
}

void RFrameLoad::run()
{
    if (m_dataset.m_valuesWanted) {
        parse();
    } else {
        m_feed.drain();
    }
}

void RFrameLoad::parse()
{
    const Parser parser(rdata_parser_init());
    if (!parser) {
        throw std::bad_alloc();
    }
    rdata_set_column_handler(parser.get(), onColumn);
    rdata_set_text_value_handler(parser.get(), onText);
    m_feed.attachTo(parser.get());
    const rdata_error_t code = rdata_parse(parser.get(), "", this);
    for (const std::string* const failure : {&m_feed.failure(), &std::as_const(m_failure)}) {
        if (!failure->empty()) {
            throw FileDamage(*failure);
        }
    }
    if (code == RDATA_ERROR_MALLOC) {
        throw std::bad_alloc();
    }
    if (code != RDATA_OK) {
        throw FileDamage(rdata_error_message(code));
    }
}

int RFrameLoad::onColumn(const char*, rdata_type_t, void* data, long count, void* context) noexcept
{
    auto* self = static_cast<RFrameLoad*>(context);
    try {
        self->acceptColumn(data, static_cast<std::size_t>(count));
        return 0;
    } catch (const std::bad_alloc&) {
        self->m_failure = "There is not enough memory to hold it";
    } catch (const std::exception& error) {
        self->m_failure = error.what();  // an exception must not unwind through C frames
    }
    return 1;
}

int RFrameLoad::onText(const char* value, int row, void* context) noexcept
{
    auto* self = static_cast<RFrameLoad*>(context);
    try {
        self->m_cells.putText(row, self->m_column,
                              value == nullptr ? rformat::missing : std::string_view(value));
        return 0;
    } catch (const std::bad_alloc&) {
        self->m_failure = "There is not enough memory to hold it";
    } catch (const std::exception& error) {
        self->m_failure = error.what();
    }
    return 1;
}

/// The texts of a column of texts come after it.
void RFrameLoad::acceptColumn(const void* data, std::size_t count)
{
    const RColumn& described = m_feed.columns().at(static_cast<std::size_t>(++m_column));
    switch (described.kind) {
    case Kind::Logical:
    case Kind::Integer:
        putIntegers(m_column, described, {static_cast<const std::int32_t*>(data), count});
        break;
    case Kind::Real:
        putReals(m_column, described, {static_cast<const double*>(data), count});
        break;
    case Kind::None:
        putNothing(m_column);
        break;
    case Kind::Text:
        break;
    }
}

void RFrameLoad::putIntegers(int column, const RColumn& described,
                             std::span<const std::int32_t> numbers)
{
    if (isFactor(described)) {
        putFactor(column, described.attributes, numbers);
        return;
    }
    int row = 0;
    for (const std::int32_t number : numbers) {
        m_cells.putNumber(row++, column, number);
    }
}

void RFrameLoad::putFactor(int column, const RAttributes& attributes,
                           std::span<const std::int32_t> codes)
{
    int row = 0;
    for (const std::int32_t code : codes) {
        const auto level = static_cast<std::size_t>(code) - 1;  // what is below 1 is beyond all
        const bool isThere = level < attributes.levels.size() && attributes.levels[level];
        m_cells.putText(row++, column,
                        isThere ? std::string_view(*attributes.levels[level]) : rformat::missing);
    }
}

void RFrameLoad::putReals(int column, const RColumn& described, std::span<const double> numbers)
{
    if (isLongInteger(described)) {
        putLongIntegers(column, !described.fitsDoubles, numbers);
        return;
    }
    int row = 0;
    for (const double number : numbers) {
        m_cells.putNumber(row++, column, rformat::cellNumber(number));
    }
}

/// 64-bit integers that R keeps in the bytes of reals. Where a double cannot hold one to its last
/// digit they are texts.
void RFrameLoad::putLongIntegers(int column, bool asTexts, std::span<const double> numbers)
{
    int row = 0;
    for (const double bits : numbers) {
        const auto number = std::bit_cast<std::int64_t>(bits);
        const bool isMissing = number == std::numeric_limits<std::int64_t>::min();
        if (asTexts) {
            m_cells.putText(row++, column,
                            isMissing ? std::string(rformat::missing) : std::to_string(number));
        } else {
            m_cells.putNumber(row++, column,
                              isMissing ? std::numeric_limits<double>::quiet_NaN()
                                        : static_cast<double>(number));
        }
    }
}

void RFrameLoad::putNothing(int column)
{
    if (!m_hasBegun) {
        m_columnsWithNothing.push_back(column);
        return;
    }
    for (int row = 0; row < m_dataset.m_observationCount; ++row) {
        m_cells.putText(row, column, {});
    }
}

bool RFrameLoad::complete(const RAttributes& frame)
{
    const std::int64_t rows =
        frame.rowCount >= 0 ? frame.rowCount : std::max<std::int64_t>(m_feed.rows(), 0);
    if (m_feed.rows() >= 0 && m_feed.rows() != rows) {
        return false;
    }
    if (!m_hasBegun) {
        begin(rows);
    }
    describeVariables(frame);
    noteWhatIsLeftOut(frame);
    m_cells.finish();
    m_dataset.m_header.fileLabel = texts::repaired(frame.label);
    return true;
}

void RFrameLoad::describeVariables(const RAttributes& frame)
{
    m_dataset.resizeVariables(static_cast<int>(m_columnCount));
    for (std::size_t i = 0; i < m_feed.columns().size(); ++i) {
        const RColumn& column = m_feed.columns()[i];
        const bool isNamed = i < frame.names.size() && !frame.names[i].empty();
        m_dataset.m_names[i] =
            texts::repaired(isNamed ? frame.names[i] : "V" + std::to_string(i + 1));
        const bool isLabelledThere =
            column.attributes.label.empty() && i < frame.variableLabels.size();
        m_dataset.m_labels[i] =
            texts::repaired(isLabelledThere ? frame.variableLabels[i] : column.attributes.label);
        Meaning meaning = meaningOf(column);
        m_dataset.m_typeCodes[i] = meaning.type;
        m_dataset.m_formats[i] = texts::repaired(meaning.format);
        m_dataset.m_lengths[i] = static_cast<std::int32_t>(meaning.length);
    }
}

/// What users of R would look for in vain.
void RFrameLoad::noteWhatIsLeftOut(const RAttributes& frame)
{
    for (std::size_t i = 0; i < m_feed.columns().size(); ++i) {
        const RColumn& column = m_feed.columns()[i];
        if (column.kind == Kind::None) {
            m_dataset.addDamageNote(fmt::format("The values of {} are not shown: it holds {}",
                                                m_dataset.m_names[i], describe(column)));
        }
    }
    if (frame.hasRowNames) {
        m_dataset.addDamageNote("The names of its rows are not shown");
    }
}
