#include "data/ExtendedDataset.h"

#include "data/values/Texts.h"

#include <algorithm>

ExtendedDataset::ExtendedDataset(std::unique_ptr<StatDataset> source, Description description,
                                 const std::vector<Column>& columns)
    : m_source(std::move(source))
{
    describe(std::move(description));
    addVariables(columns);
    m_textPool.swap(m_source->m_textPool);
    fillCells(columns);
    m_source->m_cells = CellVector();
    resizeBits();
}

ExtendedDataset::~ExtendedDataset() = default;

/// What the header tells of the source's file would be untrue of this dataset.
void ExtendedDataset::describe(Description description)
{
    const DatasetHeader& header = m_source->header();
    m_header.tableName = std::move(description.name);
    m_header.fileLabel = header.fileLabel;
    m_header.memberType = header.memberType;
    m_fileAttributes = std::move(description.attributes);
    m_damageNotes = m_source->damageNotes();
    m_keyVariables = m_source->keyVariables();
}

void ExtendedDataset::addVariables(const std::vector<Column>& columns)
{
    m_names = m_source->names();
    m_labels = m_source->labels();
    m_formats = m_source->formats();
    m_informats = m_source->informats();
    m_lengths = m_source->lengths();
    m_formatWidths = m_source->formatWidths();
    m_formatDecimals = m_source->formatDecimals();
    resizeVariables(m_source->variableCount() + static_cast<int>(columns.size()));
    for (int column = 0; column < m_source->variableCount(); ++column) {
        m_typeCodes[static_cast<std::size_t>(column)] =
            m_source->isNumeric(column) ? TypeCode::Double : TypeCode::Character;
    }
    auto variable = static_cast<std::size_t>(m_source->variableCount());
    for (const Column& column : columns) {
        std::size_t longest = 1;
        for (const std::string& text : column.texts) {
            longest = std::max(longest, text.size());
        }
        m_names[variable] = column.name;
        m_labels[variable] = column.label;
        m_lengths[variable] = static_cast<std::int32_t>(longest);
        m_origins.push_back(column.origin);
        ++variable;
    }
}

void ExtendedDataset::fillCells(const std::vector<Column>& columns)
{
    m_observationCount = m_source->observationCount();
    m_cells.reserve(static_cast<std::size_t>(m_observationCount)
                    * static_cast<std::size_t>(m_variableCount));
    std::vector<MissingMark> marks;
    marks.reserve(static_cast<std::size_t>(m_source->variableCount()));
    for (int column = 0; column < m_source->variableCount(); ++column) {
        marks.push_back(m_source->missingMark(column));
    }
    std::vector<std::vector<PooledText*>> records;
    for (const Column& column : columns) {
        records.emplace_back(1, nullptr);
        for (const std::string& text : column.texts) {
            records.back().push_back(m_textPool.intern(text));
        }
    }
    for (int row = 0; row < m_observationCount; ++row) {
        for (int column = 0; column < m_source->variableCount(); ++column) {
            const CellValue& cell = m_source->cell(row, column);
            const double* number = std::get_if<double>(&cell);
            const bool isMissing =
                number != nullptr && marks[static_cast<std::size_t>(column)].isMissing(*number);
            m_cells.push_back(isMissing ? CellValue(missing) : cell);
        }
        for (std::size_t i = 0; i < columns.size(); ++i) {
            PooledText* record = records[i][columns[i].places[static_cast<std::size_t>(row)]];
            if (record != nullptr) {
                record->addReference();
            }
            m_cells.push_back(record);
        }
    }
}

bool ExtendedDataset::isOfSource(int column) const
{
    return column < m_source->variableCount();
}

std::string ExtendedDataset::cellText(int row, int column) const
{
    return inRange(row, column) && isOfSource(column) && isCharacter(column)
        ? m_source->shownText(heldText(row, column), column)
        : InMemoryDataset::cellText(row, column);
}

std::string ExtendedDataset::variableAttribute(int column, VariableAttribute attribute) const
{
    return isOfSource(column) ? m_source->variableAttribute(column, attribute)
                              : InMemoryDataset::variableAttribute(column, attribute);
}

std::string ExtendedDataset::formatCharacter(std::string_view text, std::string_view format,
                                             int width, int decimals) const
{
    return text.data() == nullptr ? std::string()
                                  : m_source->formatCharacter(text, format, width, decimals);
}

std::string ExtendedDataset::formatNumeric(double number, std::string_view format, int width,
                                           int decimals) const
{
    return number == missing ? "." : m_source->formatNumeric(number, format, width, decimals);
}

std::string_view ExtendedDataset::missingText(int column) const
{
    return isOfSource(column) ? m_source->missingText(column) : std::string_view();
}

std::string ExtendedDataset::writtenFormat(int column) const
{
    return isOfSource(column) ? m_source->writtenFormat(column) : std::string();
}

DateScale ExtendedDataset::dateScale(int column) const
{
    return isOfSource(column) ? m_source->dateScale(column) : StatDataset::dateScale(column);
}

std::string ExtendedDataset::variableOrigin(int column) const
{
    return isOfSource(column)
        ? std::string()
        : m_origins.at(static_cast<std::size_t>(column - m_source->variableCount()));
}
