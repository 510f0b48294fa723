#include "data/InMemoryDataset.h"

#include "data/values/NumberText.h"
#include "data/values/SasFormat.h"
#include "data/values/Texts.h"

#include <cmath>
#include <stdexcept>

std::string InMemoryDataset::cellText(int row, int column) const
{
    if (!inRange(row, column)) {
        return {};
    }
    const auto variable = static_cast<std::size_t>(column);
    if (isNumeric(column)) {
        return texts::trimmed(formatNumeric(numericValue(row, column), m_formats[variable],
                                            m_formatWidths[variable], m_formatDecimals[variable]));
    }
    return texts::trimmed(stringValue(row, column));
}

std::string InMemoryDataset::variableAttribute(int column, VariableAttribute attribute) const
{
    if (attribute == VariableAttribute::Informat) {
        return m_informats.at(static_cast<std::size_t>(column));
    }
    return StatDataset::variableAttribute(column, attribute);
}

int InMemoryDataset::findVariable(std::wstring_view name) const
{
    std::wstring narrowed;
    narrowed.reserve(name.size());
    for (const wchar_t letter : name) {
        narrowed.push_back(static_cast<wchar_t>(static_cast<unsigned char>(letter)));
    }
    return StatDataset::findVariable(narrowed);
}

std::string InMemoryDataset::formatCharacter(std::string_view text, std::string_view, int,
                                             int) const
{
    return text.data() == nullptr ? std::string() : std::string(text);
}

std::string InMemoryDataset::formatNumeric(double number, std::string_view format, int width,
                                           int decimals) const
{
    if (number == missing || std::isnan(number)) {
        return ".";
    }
    const sasformat::Descriptor descriptor = sasformat::normalise(format);
    if (sasformat::isDateOrTime(descriptor.canonical)) {
        return sasformat::formatNumber(number, descriptor, width, decimals);
    }
    // A joined column has no width to go by: decimals when the variable asks for them, else all.
    return decimals > 0 ? numbertext::fixed(number, decimals) : numbertext::shortest(number);
}

bool InMemoryDataset::isNumeric(int column) const
{
    return m_typeCodes.at(static_cast<std::size_t>(column)) == TypeCode::Double;
}

bool InMemoryDataset::isCharacter(int column) const
{
    return !isNumeric(column);
}

std::string InMemoryDataset::stringValue(int row, int column) const
{
    const PooledText* record = std::get<0>(m_cells.at(cellIndex(row, column)));
    return record == nullptr ? std::string() : std::string(record->text());
}

double InMemoryDataset::numericValue(int row, int column) const
{
    const CellValue& value = m_cells.at(cellIndex(row, column));
    return value.index() == 1 ? std::get<1>(value) : std::numeric_limits<double>::quiet_NaN();
}

MissingMark InMemoryDataset::missingMark(int) const
{
    return MissingMark(missing);
}

InMemoryDatasetBuilder::InMemoryDatasetBuilder()
    : m_dataset(std::make_unique<InMemoryDataset>())
{ }

InMemoryDatasetBuilder& InMemoryDatasetBuilder::setTableName(std::string name)
{
    m_dataset->m_header.tableName = std::move(name);
    return *this;
}

InMemoryDatasetBuilder& InMemoryDatasetBuilder::setFileLabel(std::string label)
{
    m_dataset->m_header.fileLabel = std::move(label);
    return *this;
}

InMemoryDatasetBuilder& InMemoryDatasetBuilder::addVariable(VariableDescription variable)
{
    if (!m_dataset->m_cells.empty()) {
        throw std::logic_error("variable " + variable.name + " comes after the first cell");
    }
    if (variable.type != TypeCode::Character && variable.type != TypeCode::Double) {
        throw std::logic_error("variable " + variable.name + " is neither character nor double");
    }
    InMemoryDataset& dataset = *m_dataset;
    dataset.m_names.push_back(std::move(variable.name));
    dataset.m_labels.push_back(std::move(variable.label));
    dataset.m_formats.push_back(std::move(variable.format));
    dataset.m_informats.push_back(std::move(variable.informat));
    dataset.m_typeCodes.push_back(variable.type);
    dataset.m_lengths.push_back(variable.length);
    dataset.m_formatWidths.push_back(variable.width);
    dataset.m_formatDecimals.push_back(variable.decimals);
    ++dataset.m_variableCount;
    return *this;
}

void InMemoryDatasetBuilder::reserve(int observations)
{
    m_dataset->m_cells.reserve(static_cast<std::size_t>(observations)
                               * static_cast<std::size_t>(m_dataset->m_variableCount));
}

InMemoryDatasetBuilder& InMemoryDatasetBuilder::addText(std::string_view text)
{
    PooledText* record = m_dataset->m_textPool.intern(text);
    append(TypeCode::Character, record);
    record->addReference();
    return *this;
}

InMemoryDatasetBuilder& InMemoryDatasetBuilder::addNullText()
{
    append(TypeCode::Character, static_cast<PooledText*>(nullptr));
    return *this;
}

InMemoryDatasetBuilder& InMemoryDatasetBuilder::addNumber(double number)
{
    append(TypeCode::Double, std::isnan(number) ? InMemoryDataset::missing : number);
    return *this;
}

InMemoryDatasetBuilder& InMemoryDatasetBuilder::addMissing()
{
    return addNumber(InMemoryDataset::missing);
}

void InMemoryDatasetBuilder::append(TypeCode type, CellValue value)
{
    InMemoryDataset& dataset = *m_dataset;
    if (dataset.m_variableCount == 0) {
        throw std::logic_error("a cell comes before the first variable");
    }
    const std::size_t variable =
        dataset.m_cells.size() % static_cast<std::size_t>(dataset.m_variableCount);
    if (dataset.m_typeCodes[variable] != type) {
        throw std::logic_error("variable " + dataset.m_names[variable] + " has the other type");
    }
    dataset.m_cells.push_back(value);
}

std::unique_ptr<InMemoryDataset> InMemoryDatasetBuilder::build()
{
    InMemoryDataset& dataset = *m_dataset;
    const auto variables = static_cast<std::size_t>(dataset.m_variableCount);
    if (variables != 0 && dataset.m_cells.size() % variables != 0) {
        throw std::logic_error("the last row is incomplete");
    }
    dataset.m_observationCount =
        variables == 0 ? 0 : static_cast<int>(dataset.m_cells.size() / variables);
    dataset.resizeBits();
    return std::exchange(m_dataset, std::make_unique<InMemoryDataset>());
}
