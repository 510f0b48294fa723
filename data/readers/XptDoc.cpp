#include "data/readers/XptDoc.h"

#include "data/FilePath.h"
#include "data/readers/DistinctNames.h"
#include "data/readers/ReadStatLoad.h"
#include "data/readers/XptLayout.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>

namespace {

bool sameName(const std::string& one, const std::string& other)
{
    return std::equal(
        one.begin(), one.end(), other.begin(), other.end(),
        [](unsigned char a, unsigned char b) { return std::toupper(a) == std::toupper(b); });
}

std::vector<std::string> namesOf(const XptLayout& layout, const TextDecoder& decoder)
{
    std::vector<std::string> names;
    for (const XptMember& member : layout.members) {
        names.push_back(decoder.decode(member.name));
        if (names.back().empty() && layout.members.size() > 1) {
            names.back() = fmt::format("DATA{}", names.size());
        }
    }
    makeDistinct(names);
    return names;
}

}  // namespace

class XptDoc::Load : public ReadStatLoad
{
public:
    explicit Load(XptDoc& dataset)
        : ReadStatLoad(dataset)
        , m_dataset(dataset)
    { }

private:
    std::string prepare(const FileReader& file, ParserInput& input) override;
    readstat_error_t parse(readstat_parser_t* parser, const char* path) override;
    int acceptMetadata(const readstat_metadata_t& metadata) override;
    void completeVariable(int index) override;
    std::string complete(const FileReader& file) override;

    std::string chooseMember(const XptLayout& layout);
    void hideDamagedTimes(const XptLayout& layout, ParserInput& input);

    XptDoc& m_dataset;
    std::string m_name;
    XptMember m_member;
    bool m_timesAreKnown = true;
};

int XptDoc::load(const QString& path)
{
    m_memberNames.clear();
    return Load(*this).run(path);
}

Result<std::vector<std::string>> XptDoc::memberNamesOf(const QString& path)
{
    FileReader file;
    const std::string name = filepath::displayName(path);
    if (!file.open(filepath::toBytes(path))) {
        return Failure{fmt::format("{}: {}", name, file.error())};
    }
    const TextDecoder decoder;
    const Result<XptLayout> layout = readXptLayout(file);
    if (!layout) {
        return Failure{fmt::format("{}: {}", name, decoder.decode(layout.error()))};
    }
    return namesOf(layout.value(), decoder);
}

std::string XptDoc::Load::prepare(const FileReader& file, ParserInput& input)
{
    cells().setDecoder(TextDecoder());
    const Result<XptLayout> layout = readXptLayout(file);
    if (!layout) {
        return decoded(layout.error().c_str());  // it may quote the file
    }
    m_dataset.m_memberNames = namesOf(layout.value(), cells().decoder());
    if (std::string problem = chooseMember(layout.value()); !problem.empty()) {
        return problem;
    }
    const std::int64_t rowBytes = m_member.rowCount * m_member.rowLength;
    input.setPieces({{0, layout.value().libraryEnd},
                     {m_member.start, m_member.observations - m_member.start + rowBytes}});
    input.setReadAhead(std::size_t{256} << 10);
    hideDamagedTimes(layout.value(), input);
    return {};
}

/// Where a time cannot be read, the library looks for the month in memory it never set.
void XptDoc::Load::hideDamagedTimes(const XptLayout& layout, ParserInput& input)
{
    constexpr std::string_view someTime = "01JAN70:00:00:00";
    for (const std::int64_t offset : layout.damagedTimes) {
        input.replaceBytes(offset, someTime);
    }
    for (const std::int64_t offset : m_member.damagedTimes) {
        input.replaceBytes(layout.libraryEnd + offset - m_member.start, someTime);
    }
    m_timesAreKnown = layout.damagedTimes.empty() && m_member.damagedTimes.empty();
}

std::string XptDoc::Load::chooseMember(const XptLayout& layout)
{
    const std::vector<std::string>& names = m_dataset.m_memberNames;
    const std::string& wanted = m_dataset.m_memberName;
    auto found = wanted.empty() ? names.begin() : std::find(names.begin(), names.end(), wanted);
    if (found == names.end()) {
        found = std::find_if(names.begin(), names.end(),
                             [&](const std::string& name) { return sameName(name, wanted); });
    }
    if (found == names.end()) {
        return fmt::format("It has no data set named {}; it has {}", wanted,
                           fmt::join(names, ", "));
    }
    m_name = *found;
    m_member = layout.members[static_cast<std::size_t>(found - names.begin())];
    for (const std::string& note : m_member.notes) {
        m_dataset.addDamageNote(note);
    }
    return decoded(m_member.damage.c_str());  // it may quote the file
}

readstat_error_t XptDoc::Load::parse(readstat_parser_t* parser, const char* path)
{
    return readstat_parse_xport(parser, path, this);
}

int XptDoc::Load::acceptMetadata(const readstat_metadata_t& metadata)
{
    if (metadata.row_count != -1) {
        return READSTAT_HANDLER_OK;  // the library tells no row count of a transport file
    }
    copyCommonMetadata(metadata);
    DatasetHeader& header = m_dataset.m_header;
    if (!m_timesAreKnown) {
        header.creationTime = 0;
        header.modificationTime = 0;
    }
    header.tableName = m_name;
    header.fileLabel = decoded(metadata.file_label);
    header.memberType = {};
    header.encoding = {};
    header.release = {};
    header.host = {};
    header.observationLength = m_member.rowLength;
    // The library drops all blank rows at the end; those that cannot be padding stay empty rows
    // here.
    return beginRows(m_member.rowCount, metadata.var_count, m_member.rowCount);
}

void XptDoc::Load::completeVariable(int index)
{
    const auto at = static_cast<std::size_t>(index);
    if (at >= m_member.variables.size()) {
        return;
    }
    const auto& variable = m_member.variables[at];
    const FormatRecord& format = variable.format;
    const FormatRecord& informat = variable.informat;
    m_dataset.setFormats(
        index, decoded(format.name.c_str()), format.width, format.decimals,
        sasFormatText(decoded(informat.name.c_str()), informat.width, informat.decimals));
}

std::string XptDoc::Load::complete(const FileReader&)
{
    if (m_dataset.m_valuesWanted) {
        m_dataset.normaliseFormats();
    }
    return {};
}
