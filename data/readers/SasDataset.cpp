#include "data/readers/SasDataset.h"

#include "data/values/Texts.h"

std::string sasFormatText(const std::string& name, int width, int decimals)
{
    if (name.empty() && width == 0 && decimals == 0) {
        return {};
    }
    std::string text = name;
    if (width > 0) {
        text += std::to_string(width);
    }
    text += '.';
    if (decimals > 0) {
        text += std::to_string(decimals);
    }
    return text;
}

std::string SasDataset::shownText(std::string_view text, int column) const
{
    // A character format without a width shows the whole variable, not the format's default width.
    const auto variable = static_cast<std::size_t>(column);
    const int width = m_formatWidths[variable] > 0 ? m_formatWidths[variable] : m_lengths[variable];
    return texts::trimmed(
        formatCharacter(text, m_formats[variable], width, m_formatDecimals[variable]));
}

std::string SasDataset::variableAttribute(int column, VariableAttribute attribute) const
{
    const auto variable = static_cast<std::size_t>(column);
    const std::string& name = m_formats[variable];
    const bool isFormat = attribute == VariableAttribute::Format && !name.empty();
    const bool isInformat =
        attribute == VariableAttribute::Informat && (name == "$" || name == "BEST");
    if (isFormat || isInformat) {
        const int decimals = m_formatDecimals[variable];
        return name + '.' + (decimals >= 1 ? std::to_string(decimals) : std::string());
    }
    return StatDataset::variableAttribute(column, attribute);
}

std::string SasDataset::writtenFormat(int column) const
{
    const auto variable = static_cast<std::size_t>(column);
    return sasFormatText(m_formats[variable], m_formatWidths[variable], m_formatDecimals[variable]);
}

std::string SasDataset::formatCharacter(std::string_view text, std::string_view format, int width,
                                        int) const
{
    if (format.empty()) {
        return std::string(text);
    }
    return sasformat::formatText(text, m_formatTable.descriptorOf(format), width);
}

std::string SasDataset::formatNumeric(double number, std::string_view format, int width,
                                      int decimals) const
{
    if (format.empty()) {
        format = width != 0 ? "F" : "BEST";
    }
    return sasformat::formatNumber(number, m_formatTable.descriptorOf(format), width, decimals);
}

void SasDataset::normaliseFormats()
{
    for (const std::string& format : m_formats) {
        if (!format.empty()) {
            static_cast<void>(m_formatTable.descriptorOf(format));
        }
    }
}

void SasDataset::setFormats(int column, std::string format, int width, int decimals,
                            std::string informat)
{
    const auto variable = static_cast<std::size_t>(column);
    m_formats[variable] = std::move(format);
    m_formatWidths[variable] = width;
    m_formatDecimals[variable] = decimals;
    m_informats[variable] = std::move(informat);
}
