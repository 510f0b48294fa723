#include "data/readers/RObjects.h"

#include "data/readers/DistinctNames.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

namespace {

constexpr std::size_t mostOthersNamed = 5;

bool isFrame(const RAttributes& attributes)
{
    return attributes.isOfClass("data.frame");
}

}  // namespace

RObjects::RObjects(RStream& stream, Reader reader)
    : m_stream(stream)
    , m_reader(std::move(reader))
{ }

void RObjects::read()
{
    if (m_stream.isWorkspace()) {
        readWorkspace();
    } else {
        readObject(0, {});
    }
    std::vector<std::string> names;
    for (const RFrame& frame : m_frames) {
        names.push_back(texts::repaired(frame.name));
    }
    makeDistinct(names);
    for (std::size_t i = 0; i < names.size(); ++i) {
        m_frames[i].name = names[i];
    }
}

void RObjects::readWorkspace()
{
    int object = 0;
    for (RItem node = m_stream.item(); node.type == RType::Pairlist; node = m_stream.item()) {
        if (node.hasAttributes) {
            m_stream.skipItems(1);
        }
        const std::string name = node.hasTag ? m_stream.symbol() : std::string();
        readObject(object++, name);
    }
}

void RObjects::readObject(int object, const std::string& name)
{
    const RItem item = m_stream.item();
    const std::size_t first = m_frames.size();
    if (item.type != RType::List) {
        RAttributes attributes;
        RVector vector(m_stream);
        vector.open(item);
        vector.skip();
        vector.close(&attributes);
        addOther(name, attributes, vector.description());
        return;
    }
    const RAttributes attributes = readList(item, {object, -1}, name);
    if (isFrame(attributes)) {
        m_frames.resize(first);  // data frames within it are its columns
        m_frames.push_back({{object, -1}, name, attributes.rowCount});
    } else if (m_frames.size() > first) {
        nameChildren(first, name, attributes);
    } else {
        addOther(name, attributes, "a list");
    }
}

/// Reads the elements of a list and its attributes, which alone tell whether it is a data frame.
RAttributes RObjects::readList(const RItem& item, const RPlace& place, const std::string& name)
{
    const std::int64_t count = m_stream.length(4);
    const bool isWanted = m_reader.wants && m_reader.wants(place, name, item);
    if (isWanted) {
        m_reader.read(count);
    } else {
        readElements(count, place);
    }
    RAttributes attributes;
    if (item.hasAttributes) {
        readAttributes(m_stream, &attributes);
    }
    if (isWanted) {
        m_reader.complete(place, attributes);
    }
    return attributes;
}

void RObjects::readElements(std::int64_t count, const RPlace& place)
{
    if (place.child >= 0) {
        m_stream.skipItems(count);
        return;
    }
    for (std::int64_t i = 0; i < count; ++i) {
        const RItem item = m_stream.item();
        if (item.type != RType::List || !item.hasAttributes) {
            m_stream.skipRest(item);
            continue;
        }
        const RPlace child{place.object, i};
        const RAttributes attributes = readList(item, child, {});
        if (isFrame(attributes)) {
            m_frames.push_back({child, {}, attributes.rowCount});
        }
    }
}

/// As R would ask for them: "adsl" of the one list of a file, "study$adsl" of a named one.
void RObjects::nameChildren(std::size_t first, const std::string& name,
                            const RAttributes& attributes)
{
    for (std::size_t i = first; i < m_frames.size(); ++i) {
        const auto at = static_cast<std::size_t>(m_frames[i].place.child);
        const bool isNamed = at < attributes.names.size() && !attributes.names[at].empty();
        std::string own = isNamed ? attributes.names[at] : fmt::format("[[{}]]", at + 1);
        m_frames[i].name = fmt::format("{}{}{}", name, isNamed && !name.empty() ? "$" : "", own);
    }
}

void RObjects::addOther(const std::string& name, const RAttributes& attributes,
                        const char* description)
{
    ++m_otherCount;
    if (m_others.size() == mostOthersNamed) {
        return;
    }
    std::string what = description;
    if (attributes.isOfClass("factor")) {
        what = "a factor";
    } else if (!attributes.classes.empty()) {
        what = fmt::format("an object of class {}", texts::repaired(attributes.classes.front()));
    } else if (attributes.hasDimensions) {
        what = "a matrix";
    }
    m_others.push_back(name.empty() ? what : fmt::format("{} ({})", texts::repaired(name), what));
}

std::string RObjects::others() const
{
    std::string all;
    for (std::size_t i = 0; i < m_others.size(); ++i) {
        const bool isLast = i + 1 == m_otherCount;
        all += i == 0 ? "" : isLast ? " and " : ", ";
        all += m_others[i];
    }
    return m_otherCount > m_others.size()
        ? fmt::format("{} and {} more", all, m_otherCount - m_others.size())
        : all;
}
