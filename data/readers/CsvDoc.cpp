#include "data/readers/CsvDoc.h"

#include "data/cells/CellLoader.h"
#include "data/readers/CsvDelimiter.h"
#include "data/readers/CsvQuotes.h"
#include "data/readers/CsvText.h"
#include "data/readers/CsvTokens.h"
#include "data/values/PlainNumber.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <stdexcept>

namespace {

constexpr int numberLength = 8;
constexpr int mostObservations = std::numeric_limits<std::int32_t>::max();
constexpr int mostVariables = 1'000'000;
constexpr std::size_t linesNamed = 5;
constexpr std::size_t mostControlsPerThousand = 20;
/// Missing cells that a file may leave unsaid: so many for each of its bytes, and some in any case.
constexpr std::int64_t unsaidCellsPerByte = 16;
constexpr std::int64_t unsaidCellsInAnyCase = 1'000'000;

/// What has been seen of a column.
struct Column
{
    bool isNumber = false;  ///< how its values are kept in this reading
    bool hasNumbers = false;
    bool hasTexts = false;
    std::size_t longest = 0;  ///< bytes

    [[nodiscard]] bool wantsNumbers() const { return hasNumbers && !hasTexts; }
};

TypeCode typeOf(const Column& column)
{
    return column.isNumber ? TypeCode::Double : TypeCode::Character;
}

/// Lines that have something in common, of which the first few are named.
class Lines
{
public:
    void add(std::int64_t line)
    {
        if (++m_count <= linesNamed) {
            m_first.push_back(line);
        }
    }
    [[nodiscard]] bool empty() const { return m_count == 0; }
    /// "3, 7, 9" or "3, 7, 9, 12, 20 and 15 more"
    [[nodiscard]] std::string text() const
    {
        const std::string first = fmt::format("{}", fmt::join(m_first, ", "));
        return m_count > linesNamed ? fmt::format("{} and {} more", first, m_count - linesNamed)
                                    : first;
    }

private:
    std::size_t m_count = 0;
    std::vector<std::int64_t> m_first;
};

bool isMissing(std::string_view value)
{
    return value.empty() || value == "." || value == "NA";
}

bool looksLikeText(std::string_view beginning)
{
    const auto controls = static_cast<std::size_t>(std::ranges::count_if(
        beginning, [](unsigned char letter) { return letter < ' ' && !texts::isSpace(letter); }));
    return controls * 1000 <= beginning.size() * mostControlsPerThousand;
}

}  // namespace

/// One load. The file is read as often as it takes to know what its columns hold: once its first
/// part, then all of it, and once more only where a column turned out to be another than that part
/// promised, or where quotes need to be put right.
class CsvDoc::Load : private CsvSink
{
public:
    Load(CsvDoc& dataset, const FileReader& file)
        : m_dataset(dataset)
        , m_file(file)
        , m_text(file)
    { }

    [[nodiscard]] std::string run();

private:
    enum class Extent
    {
        Beginning,
        Whole,
    };

    void field(std::string_view text) override;
    void endRecord() override;

    [[nodiscard]] bool read(Extent extent);
    [[nodiscard]] bool feed(CsvTokens& tokens, Extent extent);
    void beginReading(Extent extent);
    void keepNames();
    [[nodiscard]] int expectedRows() const;
    void resizeVariables();
    void addValue(std::string_view value);
    void putMissing(std::string_view value);
    void endRow();
    void fillRow();
    [[nodiscard]] bool columnsAreSettled();
    void complete();
    void addNotes();

    CsvDoc& m_dataset;
    const FileReader& m_file;
    CsvText m_text;
    char m_delimiter = ',';
    CsvTokens::Quotes m_quotes = CsvTokens::Quotes::Strict;
    const CsvTokens* m_tokens = nullptr;  ///< those of the reading under way
    std::unique_ptr<CellLoader> m_cells;
    std::vector<std::string> m_names;
    std::vector<Column> m_columns;
    bool m_isHeader = true;
    bool m_isKept = false;  ///< whether this reading fills the cells
    int m_field = 0;  ///< of the current record
    int m_row = 0;
    double m_rowsPerByte = 0;  ///< in the first part
    bool m_hasSurplus = false;
    std::int64_t m_unsaidCells = 0;
    Lines m_shortLines;
    Lines m_longLines;
    bool m_hadEarlyQuotes = false;
    std::string m_refusal;
};

std::string CsvDoc::Load::run()
{
    const std::string beginning(m_text.next());
    if (!looksLikeText(beginning)) {
        return "It is no text file";
    }
    m_delimiter = csvDelimiter(beginning);
    if (!read(Extent::Beginning)) {
        m_quotes = CsvTokens::Quotes::Lenient;
    }
    m_rowsPerByte = m_row / static_cast<double>(std::max<std::int64_t>(m_text.position(), 1));
    do {
        if (!read(Extent::Whole) && m_refusal.empty()) {
            m_quotes = CsvTokens::Quotes::Lenient;
            (void)read(Extent::Whole);
        }
        if (!m_refusal.empty()) {
            return m_refusal;
        }
    } while (!columnsAreSettled());
    complete();
    return {};
}

/// Reads the text once; false where it cannot be read with quotes as strict as these.
bool CsvDoc::Load::read(Extent extent)
{
    beginReading(extent);
    CsvTokens tokens(m_delimiter, m_quotes, *this);
    m_tokens = &tokens;
    const bool isRead = feed(tokens, extent);
    const bool isClosed = !isRead || extent == Extent::Beginning || tokens.finish();
    if (!isClosed) {
        m_refusal = fmt::format("The quote that begins a value in line {} is never closed",
                                tokens.fieldLine());
    }
    m_tokens = nullptr;
    return isRead && isClosed;
}

bool CsvDoc::Load::feed(CsvTokens& tokens, Extent extent)
{
    const bool isStrict = m_quotes == CsvTokens::Quotes::Strict;
    CsvQuotes quotes(m_delimiter);
    for (std::string_view part = m_text.next(); !part.empty(); part = m_text.next()) {
        if (!tokens.add(isStrict ? part : quotes.repaired(part))) {
            return false;
        }
        if (extent == Extent::Beginning) {
            return true;
        }
        m_dataset.tellProgress(m_text.position(), m_file.size());
    }
    m_hadEarlyQuotes = quotes.hadEarlyQuotes();
    return isStrict || tokens.add(quotes.rest());
}

void CsvDoc::Load::beginReading(Extent extent)
{
    m_text.rewind();
    m_isHeader = true;
    m_field = 0;
    m_row = 0;
    m_hasSurplus = false;
    m_unsaidCells = 0;
    m_shortLines = {};
    m_longLines = {};
    m_names.clear();
    for (Column& column : m_columns) {
        column.isNumber = column.wantsNumbers();
    }
    m_cells.reset();
    m_isKept = extent == Extent::Whole && m_dataset.valuesWanted();
}

void CsvDoc::Load::field(std::string_view text)
{
    const std::string_view value = texts::trimmedView(text);
    if (m_isHeader) {
        m_names.emplace_back(value);
        if (m_names.size() > mostVariables) {
            throw std::runtime_error(
                fmt::format("Its first line names more than {} variables", mostVariables));
        }
        return;
    }
    if (m_field < static_cast<int>(m_columns.size())) {
        addValue(value);
    } else {
        m_hasSurplus = m_hasSurplus || !value.empty();
    }
    ++m_field;
}

void CsvDoc::Load::addValue(std::string_view value)
{
    Column& column = m_columns[static_cast<std::size_t>(m_field)];
    column.longest = std::max(column.longest, value.size());
    if (isMissing(value)) {
        putMissing(value);
        return;
    }
    std::optional<double> number;
    if (!column.hasTexts) {
        number = plainNumber(value);
        (number ? column.hasNumbers : column.hasTexts) = true;
    }
    // Where a text shows up among numbers, all will be read once more.
    m_isKept = m_isKept && (number || !column.isNumber);
    if (!m_isKept) {
        return;
    }
    if (column.isNumber) {
        m_cells->putNumber(m_row, m_field, *number);
    } else {
        m_cells->putText(m_row, m_field, value);
    }
}

void CsvDoc::Load::putMissing(std::string_view value)
{
    if (!m_isKept) {
        return;
    }
    if (m_columns[static_cast<std::size_t>(m_field)].isNumber) {
        m_cells->putNumber(m_row, m_field, std::numeric_limits<double>::quiet_NaN());
    } else {
        m_cells->putText(m_row, m_field, value);
    }
}

void CsvDoc::Load::endRecord()
{
    if (m_isHeader) {
        keepNames();
    } else {
        endRow();
    }
    m_field = 0;
    m_hasSurplus = false;
    m_isHeader = false;
}

void CsvDoc::Load::keepNames()
{
    const TextDecoder decoder;
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        m_names[i] = m_names[i].empty() ? fmt::format("VAR{}", i + 1) : decoder.decode(m_names[i]);
    }
    m_columns.resize(m_names.size());
    resizeVariables();
    if (m_isKept) {
        m_cells = std::make_unique<CellLoader>(m_dataset);
        m_cells->beginUncounted(expectedRows());
    }
}

/// A little more than there are if all of the file is like its first part.
int CsvDoc::Load::expectedRows() const
{
    constexpr double margin = 1.05;
    const double expected = static_cast<double>(m_file.size()) * m_rowsPerByte * margin;
    return static_cast<int>(std::min<double>(expected, mostObservations));
}

void CsvDoc::Load::resizeVariables()
{
    m_dataset.resizeVariables(static_cast<int>(m_names.size()));
    m_dataset.m_names = m_names;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        m_dataset.m_typeCodes[i] = typeOf(m_columns[i]);
    }
}

void CsvDoc::Load::endRow()
{
    if (m_hasSurplus) {
        m_longLines.add(m_tokens->line());
    } else if (m_field < static_cast<int>(m_columns.size())) {
        fillRow();
    }
    if (m_row == mostObservations) {
        throw std::runtime_error(
            fmt::format("It has more than {} rows, the most that can be shown", mostObservations));
    }
    ++m_row;
}

void CsvDoc::Load::fillRow()
{
    m_shortLines.add(m_tokens->line());
    m_unsaidCells += static_cast<std::int64_t>(m_columns.size()) - m_field;
    if (m_unsaidCells > unsaidCellsInAnyCase + unsaidCellsPerByte * m_file.size()) {
        throw std::runtime_error("Far more values are missing in its lines than there are");
    }
    for (; m_field < static_cast<int>(m_columns.size()); ++m_field) {
        putMissing({});
    }
}

/// Whether the columns hold what this reading took them for; where none of it was kept, they do.
bool CsvDoc::Load::columnsAreSettled()
{
    if (!m_dataset.valuesWanted()) {
        for (Column& column : m_columns) {
            column.isNumber = column.wantsNumbers();
        }
    }
    return std::ranges::all_of(
        m_columns, [](const Column& column) { return column.isNumber == column.wantsNumbers(); });
}

void CsvDoc::Load::complete()
{
    if (m_cells) {
        m_cells->finish();
    }
    m_dataset.m_observationCount = m_row;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const Column& column = m_columns[i];
        m_dataset.m_typeCodes[i] = typeOf(column);
        m_dataset.m_lengths[i] =
            column.isNumber ? numberLength : static_cast<std::int32_t>(column.longest);
    }
    m_dataset.m_header.encoding = m_text.isUtf16() ? "UTF-16"
        : m_text.isUtf8()                          ? "UTF-8"
                                                   : "WINDOWS-1252";
    addNotes();
}

void CsvDoc::Load::addNotes()
{
    if (m_names.empty()) {
        m_dataset.addDamageNote("The file is empty");
    }
    if (!m_shortLines.empty()) {
        m_dataset.addDamageNote(
            fmt::format("Lines with fewer values than variables, filled up with missing ones: {}",
                        m_shortLines.text()));
    }
    if (!m_longLines.empty()) {
        m_dataset.addDamageNote(
            fmt::format("Lines with more values than variables, whose last values are left out: {}",
                        m_longLines.text()));
    }
    if (m_hadEarlyQuotes) {
        m_dataset.addDamageNote("There are letters behind the closing quote of a value; they are "
                                "taken for a part of it");
    }
    if (m_text.hadNulBytes()) {
        m_dataset.addDamageNote("There are NUL bytes in the file, which are left out");
    }
}

int CsvDoc::load(const QString& path)
{
    return loadFrom(path, [this](const FileReader& file) { return Load(*this, file).run(); });
}

bool CsvDoc::isNumeric(int column) const
{
    return isColumn(column) && StatDataset::isNumeric(column);
}

bool CsvDoc::isCharacter(int column) const
{
    return isColumn(column) && StatDataset::isCharacter(column);
}
