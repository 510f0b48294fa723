#include "data/readers/RdsDoc.h"

#include "data/readers/RdsLoad.h"
#include "data/values/RFormat.h"
#include "data/values/Texts.h"

std::string RdsDoc::cellText(int row, int column) const
{
    if (!inRange(row, column)) {
        return {};
    }
    if (isCharacter(column)) {
        return std::string(texts::trimmedView(heldText(row, column)));
    }
    const auto variable = static_cast<std::size_t>(column);
    return formatNumeric(missingMark(column).unified(numericValue(row, column)),
                         m_formats[variable], m_formatWidths[variable], m_formatDecimals[variable]);
}

std::string RdsDoc::variableAttribute(int column, VariableAttribute attribute) const
{
    if (attribute == VariableAttribute::Type) {
        return isNumeric(column) ? "Numeric" : "Character";
    }
    return StatDataset::variableAttribute(column, attribute);
}

int RdsDoc::findVariable(std::wstring_view) const
{
    return 0;
}

std::string RdsDoc::formatNumeric(double number, std::string_view format, int, int) const
{
    return rformat::formatNumber(number, format);
}

bool RdsDoc::isNumeric(int column) const
{
    return !isCharacter(column);
}

MissingMark RdsDoc::missingMark(int column) const
{
    const TypeCode code = m_typeCodes[static_cast<std::size_t>(column)];
    return code == TypeCode::Int8 || code == TypeCode::Int32 ? MissingMark(missingInteger)
                                                             : MissingMark();
}

std::string_view RdsDoc::missingText(int column) const
{
    return isCharacter(column) ? rformat::missing : std::string_view();
}

DateScale RdsDoc::dateScale(int column) const
{
    return DateScale::ofR(m_formats[static_cast<std::size_t>(column)]);
}

const CellValue& RdsDoc::cell(int row, int column) const
{
    return m_cells[static_cast<std::size_t>(column) * static_cast<std::size_t>(m_observationCount)
                   + static_cast<std::size_t>(row)];
}

int RdsDoc::load(const QString& path)
{
    return loadFrom(path, [this](const FileReader& file) {
        RdsLoad(*this).read(file);
        return std::string();
    });
}

Result<std::vector<std::string>> RdsDoc::memberNamesOf(const QString& path)
{
    return RdsLoad::memberNamesOf(path);
}
