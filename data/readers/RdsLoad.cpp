#include "data/readers/RdsLoad.h"

#include "data/FilePath.h"

#include <fmt/format.h>

#include <algorithm>

namespace {

/// Whether the file holds one object with a class that begins like a data frame, with a vector. It
/// need not be read to its end then: it holds no second data frame with a name of its own.
bool beginsWithFrame(const FileReader& file)
{
    UnpackedFile unpacked(file);
    RStream stream(unpacked);
    stream.begin();
    if (stream.isWorkspace()) {
        return false;
    }
    const RItem object = stream.item();
    if (object.type != RType::List || !object.isObject || stream.length(4) == 0) {
        return false;
    }
    switch (stream.item().type) {
    case RType::Logical:
    case RType::Integer:
    case RType::Real:
    case RType::Text:
    case RType::Altrep:
        return true;
    default:
        return false;
    }
}

void requireFrames(const RContents& contents)
{
    if (contents.frames.empty()) {
        throw FileDamage(contents.others.empty()
                             ? "It holds no data frame, and nothing else"
                             : "It holds no data frame, but " + contents.others);
    }
}

std::vector<std::string> namesOf(const std::vector<RFrame>& frames)
{
    std::vector<std::string> names;
    for (const RFrame& frame : frames) {
        if (!frame.name.empty()) {
            names.push_back(frame.name);
        }
    }
    return names;
}

FileCompression compressionOf(const std::string& packing)
{
    return packing == "gzip" ? FileCompression::Gzip
        : packing == "bzip2" ? FileCompression::Bzip2
        : packing == "xz"    ? FileCompression::Xz
                             : FileCompression::None;
}

std::vector<std::string> readNames(const FileReader& file)
{
    if (beginsWithFrame(file)) {
        return {};
    }
    UnpackedFile unpacked(file);
    RStream stream(unpacked);
    stream.begin();
    RObjects objects(stream);
    objects.read();
    const RContents contents = objects.contents();
    requireFrames(contents);
    return namesOf(contents.frames);
}

}  // namespace

Result<std::vector<std::string>> RdsLoad::memberNamesOf(const QString& path)
{
    std::string failure;
    try {
        FileReader file;
        if (file.open(filepath::toBytes(path))) {
            return readNames(file);
        }
        failure = file.error();
    } catch (const std::exception& error) {
        failure = error.what();
    }
    return Failure{fmt::format("{}: {}", filepath::displayName(path), failure)};
}

void RdsLoad::read(const FileReader& file)
{
    const RContents contents = readLikely(file);
    requireFrames(contents);
    const RFrame& chosen = chosenOf(contents.frames);
    if (m_read != chosen.place) {
        (void)readOnce(
            file,
            [&](const RPlace& place, const std::string&, const RItem&) {
                return place == chosen.place;
            },
            chosen.rows);
    }
    if (m_read != chosen.place) {
        throw FileDamage("The objects in it are damaged");
    }
    m_dataset.m_header.tableName = chosen.name;
    m_dataset.m_memberNames = namesOf(contents.frames);
}

/// Reads the object that is most likely wanted, and finds out what else there is.
RContents RdsLoad::readLikely(const FileReader& file)
{
    const std::string& member = m_dataset.m_member;
    std::optional<RPlace> taken;
    RContents contents = readOnce(
        file,
        [&](const RPlace& place, const std::string& name, const RItem& item) {
            const bool isLikely =
                !taken && place.child < 0 && item.isObject && (member.empty() || name == member);
            taken = isLikely ? place : taken;
            return isLikely;
        },
        -1);
    const bool isFrame = std::any_of(contents.frames.begin(), contents.frames.end(),
                                     [&](const RFrame& frame) { return frame.place == taken; });
    return taken && !isFrame ? readOnce(file, {}, -1) : contents;
}

RContents RdsLoad::readOnce(const FileReader& file, const Wants& wants, std::int64_t rows)
{
    m_dataset.reset();
    m_read.reset();
    UnpackedFile unpacked(file);
    unpacked.setProgress(
        [this](std::int64_t done, std::int64_t all) { m_dataset.tellProgress(done, all); });
    RStream stream(unpacked);
    stream.begin();
    std::optional<RFrameLoad> load;
    const auto readColumns = [&](std::int64_t columns) {
        load.emplace(m_dataset, stream, columns, rows);
        load->run();
    };
    const auto complete = [&](const RPlace& place, const RAttributes& attributes) {
        if (load->complete(attributes)) {
            m_read = place;
        }
    };
    RObjects objects(stream, {wants, readColumns, complete});
    objects.read();
    stream.finish();
    describeFile(stream, unpacked);
    return objects.contents();
}

const RFrame& RdsLoad::chosenOf(const std::vector<RFrame>& frames) const
{
    for (const RFrame& frame : frames) {
        if (m_dataset.m_member.empty() || frame.name == m_dataset.m_member) {
            return frame;
        }
    }
    throw FileDamage(fmt::format("It holds no data frame named {}", m_dataset.m_member));
}

void RdsLoad::describeFile(const RStream& stream, const UnpackedFile& unpacked)
{
    DatasetHeader& header = m_dataset.m_header;
    header.formatVersion = stream.version();
    header.release = stream.release();
    header.encoding = stream.encoding();
    header.compression = compressionOf(unpacked.packing());
    header.byteOrder = stream.form() == RStream::Form::BigEndian ? ByteOrder::Big
        : stream.form() == RStream::Form::LittleEndian           ? ByteOrder::Little
                                                                 : ByteOrder::None;
    if (unpacked.hasWrongCheckSum()) {
        m_dataset.addDamageNote("Its check sum is wrong: some of its values may be damaged");
    }
}
