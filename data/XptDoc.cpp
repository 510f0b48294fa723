#include "data/XptDoc.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <limits>

namespace {

bool sameName(const std::string& one, const std::string& other)
{
    return std::equal(
        one.begin(), one.end(), other.begin(), other.end(),
        [](unsigned char a, unsigned char b) { return std::toupper(a) == std::toupper(b); });
}

}  // namespace

std::string XptDoc::prepare(const FileReader& file, ParserInput& input)
{
    const Result<XptLayout> layout = readXptLayout(file);
    if (!layout) {
        return layout.error();
    }
    setDecoder(TextDecoder());
    m_memberNames.clear();
    for (const XptMember& member : layout.value().members) {
        m_memberNames.push_back(decoded(member.name.c_str()));
    }
    if (std::string problem = chooseMember(layout.value()); !problem.empty()) {
        return problem;
    }
    const std::int64_t rowBytes = m_member.rowCount * m_member.rowLength;
    input.setPieces({{0, layout.value().libraryEnd},
                     {m_member.start, m_member.observations - m_member.start + rowBytes}});
    input.setReadAhead(std::size_t{256} << 10);
    return {};
}

std::string XptDoc::chooseMember(const XptLayout& layout)
{
    const auto found = m_memberName.empty()
        ? layout.members.begin()
        : std::find_if(layout.members.begin(), layout.members.end(), [&](const XptMember& one) {
              return sameName(decoded(one.name.c_str()), m_memberName);
          });
    if (found == layout.members.end()) {
        return fmt::format("It has no data set named {}; it has {}", m_memberName,
                           fmt::join(m_memberNames, ", "));
    }
    m_member = *found;
    if (m_member.rowLength <= 0 && !m_member.variables.empty()) {
        return "Its variables have no length";
    }
    return {};
}

readstat_error_t XptDoc::parse(readstat_parser_t* parser, const char* path)
{
    return readstat_parse_xport(parser, path, this);
}

int XptDoc::acceptMetadata(const readstat_metadata_t& metadata)
{
    if (metadata.row_count != -1) {
        return READSTAT_HANDLER_OK;  // the library tells no row count of a transport file
    }
    copyCommonMetadata(metadata);
    m_header.tableName = decoded(m_member.name.c_str());
    m_header.fileLabel = decoded(metadata.file_label);
    m_header.memberType = {};
    m_header.encoding = {};
    m_header.release = {};
    m_header.host = {};
    m_header.observationLength = m_member.rowLength;
    resizeVariables(static_cast<int>(metadata.var_count));
    if (!m_valuesWanted) {
        m_observationCount = static_cast<int>(m_member.rowCount);
        return READSTAT_HANDLER_OK;
    }
    return reserveRows(m_member.rowCount);
}

void XptDoc::completeVariable(int index)
{
    const auto at = static_cast<std::size_t>(index);
    if (at >= m_member.variables.size()) {
        return;
    }
    const auto& variable = m_member.variables[at];
    const FormatRecord& format = variable.format;
    const FormatRecord& informat = variable.informat;
    setFormats(index, decoded(format.name.c_str()), format.width, format.decimals,
               sasFormatText(decoded(informat.name.c_str()), informat.width, informat.decimals));
}

std::string XptDoc::complete(const FileReader&)
{
    if (m_valuesWanted) {
        addBlankRows();
        normaliseFormats();
    }
    m_member = {};
    return {};
}

/// The library drops all blank rows at the end; those that cannot be padding are observations.
void XptDoc::addBlankRows()
{
    for (int row = rowsSeen(); row < m_member.rowCount; ++row) {
        for (int column = 0; column < m_variableCount; ++column) {
            setCell(row, column,
                    isCharacter(column) ? CellValue(pooled(""))
                                        : CellValue(std::numeric_limits<double>::quiet_NaN()));
        }
    }
    setRowsSeen(static_cast<int>(m_member.rowCount));
}
