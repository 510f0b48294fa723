#include "data/readers/RVector.h"

#include <array>
#include <cmath>

namespace {

std::vector<std::optional<std::string>> readTexts(RVector& vector)
{
    std::vector<std::optional<std::string>> texts;
    while (vector.kind() == RVector::Kind::Text && vector.left() > 0) {
        const auto text = vector.text();
        texts.push_back(text ? std::optional<std::string>(*text) : std::nullopt);
    }
    return texts;
}

std::vector<std::string> filled(const std::vector<std::optional<std::string>>& texts)
{
    std::vector<std::string> all;
    all.reserve(texts.size());
    for (const auto& text : texts) {
        all.push_back(text.value_or(std::string()));
    }
    return all;
}

std::string firstOf(const std::vector<std::optional<std::string>>& texts)
{
    return texts.empty() ? std::string() : texts.front().value_or(std::string());
}

/// Row names are texts, or numbers, or nothing but their count: NA and its negative.
void readRowNames(RVector& vector, RAttributes& attributes)
{
    attributes.rowCount = vector.length();
    if (vector.kind() == RVector::Kind::Text && vector.left() > 0) {
        const auto first = vector.text();
        attributes.hasRowNames = first && first->find_first_not_of("0123456789") != first->npos;
    }
    if (vector.kind() != RVector::Kind::Integer || vector.length() != 2) {
        return;
    }
    std::array<char, 8> bytes{};
    vector.numbers(bytes);
    const auto numberAt = [&](std::size_t at) {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
        }
        return static_cast<std::int32_t>(number);
    };
    if (numberAt(0) == missingIntegerOfR) {
        attributes.rowCount = std::abs(std::int64_t{numberAt(4)});
    }
}

void readAttribute(RStream& stream, const std::string& name, RAttributes& attributes)
{
    RVector vector(stream);
    vector.open(stream.item());
    if (name == "class") {
        attributes.classes = filled(readTexts(vector));
    } else if (name == "names") {
        attributes.names = filled(readTexts(vector));
    } else if (name == "levels") {
        attributes.levels = readTexts(vector);
    } else if (name == "var.labels") {
        attributes.variableLabels = filled(readTexts(vector));
    } else if (name == "label" || name == "datalabel") {
        attributes.label = firstOf(readTexts(vector));
    } else if (name == "units") {
        attributes.units = firstOf(readTexts(vector));
    } else if (name == "row.names") {
        readRowNames(vector, attributes);
    } else if (name == "dim") {
        attributes.hasDimensions = true;
    }
    vector.skip();
    vector.close(nullptr);
}

}  // namespace

void readAttributes(RStream& stream, RAttributes* attributes)
{
    if (attributes == nullptr) {
        stream.skipItems(1);
        return;
    }
    for (RItem node = stream.item();; node = stream.item()) {
        if (node.type != RType::Pairlist) {
            stream.skipRest(node);
            return;
        }
        if (node.hasAttributes) {
            stream.skipItems(1);
        }
        const std::string name = node.hasTag ? stream.symbol() : std::string();
        readAttribute(stream, name, *attributes);
    }
}
