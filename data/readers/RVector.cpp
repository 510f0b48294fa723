#include "data/readers/RVector.h"

#include "data/values/RFormat.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>

namespace {

constexpr const char* damaged = "The objects in it are damaged";
constexpr std::size_t mostWrappers = 16;

struct PlainKind
{
    RType type;
    RVector::Kind kind;
    const char* description;
    std::int64_t width;  ///< bytes that an element takes at least
};
using Kind = RVector::Kind;
constexpr PlainKind plainKinds[] = {
    {RType::Logical, Kind::Logical, "a logical vector", 4},
    {RType::Integer, Kind::Integer, "an integer vector", 4},
    {RType::Real, Kind::Real, "a numeric vector", 8},
    {RType::Complex, Kind::Text, "a complex vector", 16},
    {RType::Text, Kind::Text, "a character vector", 4},
    {RType::Raw, Kind::Text, "a raw vector", 1},
};

const char* descriptionOf(RType type)
{
    switch (type) {
    case RType::List:
        return "a list";
    case RType::Expression:
        return "an expression";
    case RType::Closure:
    case RType::Special:
    case RType::Builtin:
        return "a function";
    case RType::Symbol:
        return "a symbol";
    case RType::Call:
        return "a call";
    case RType::Pairlist:
        return "a pairlist";
    case RType::Environment:
    case RType::GlobalEnvironment:
    case RType::BaseEnvironment:
    case RType::EmptyEnvironment:
    case RType::Namespace:
    case RType::BaseNamespace:
    case RType::Package:
        return "an environment";
    case RType::S4:
        return "an S4 object";
    case RType::Null:
        return "NULL";
    default:
        return "an object of another kind";
    }
}

}  // namespace

bool RAttributes::isOfClass(std::string_view name) const
{
    return std::find(classes.begin(), classes.end(), name) != classes.end();
}

void RVector::open(const RItem& item)
{
    for (const PlainKind& plain : plainKinds) {
        if (plain.type == item.type) {
            openPlain(item, plain.kind, plain.description, plain.width);
            return;
        }
    }
    if (item.type == RType::Altrep) {
        openAltrep();
        return;
    }
    m_description = descriptionOf(item.type);
    if (item.type == RType::List || item.type == RType::Expression) {
        m_length = m_stream.length(4);
        m_stream.skipItems(m_length);
        if (item.hasAttributes) {
            m_closers.push_back(Closer::Attributes);
        }
        return;
    }
    m_stream.skipRest(item);
}

void RVector::openPlain(const RItem& item, Kind kind, const char* description, std::int64_t width)
{
    m_stored = item.type;
    m_kind = m_isDeferredText ? Kind::Text : kind;
    m_description = m_isDeferredText ? "a character vector" : description;
    m_length = m_stream.length(width);
    m_left = m_length;
    if (item.hasAttributes) {
        m_closers.push_back(Closer::Attributes);
    }
}

/// An item of the class, one of the state and one of the attributes.
void RVector::openAltrep()
{
    const RItem info = m_stream.item();
    if (info.type != RType::Pairlist || m_closers.size() > mostWrappers) {
        throw FileDamage(damaged);
    }
    m_stream.skipItems((info.hasAttributes ? 1 : 0) + (info.hasTag ? 1 : 0));
    const std::string name = m_stream.symbol();
    m_stream.skipItems(1);
    if (name == "compact_intseq" || name == "compact_realseq") {
        openSequence(name == "compact_intseq");
    } else if (name.starts_with("wrap_")) {
        openInside();
    } else if (name == "deferred_string") {
        m_isDeferredText = true;
        openInside();
    } else {
        m_stream.skipItems(1);
        m_closers.push_back(Closer::Attributes);
        m_description = "a vector of an unknown kind";
    }
}

/// The state is a pair: the vector itself, and what is known of it.
void RVector::openInside()
{
    const RItem state = m_stream.item();
    if (state.type != RType::Pairlist) {
        throw FileDamage(damaged);
    }
    m_stream.skipItems((state.hasAttributes ? 1 : 0) + (state.hasTag ? 1 : 0));
    m_closers.push_back(Closer::WrapperEnd);
    open(m_stream.item());
}

/// The state holds the length, the first element and the step.
void RVector::openSequence(bool isInteger)
{
    const RItem state = m_stream.item();
    if (state.type != RType::Real || m_stream.length(8) != 3) {
        throw FileDamage(damaged);
    }
    const double length = m_stream.real();
    m_next = m_stream.real();
    m_step = m_stream.real();
    if (state.hasAttributes) {
        m_stream.skipItems(1);
    }
    constexpr double longest = 0x1p52;
    const double last = m_next + m_step * length;
    if (!(length >= 0) || length > longest || (isInteger && !(std::abs(last) <= 0x1p32))) {
        throw FileDamage(damaged);
    }
    m_isSequence = true;
    m_stored = isInteger ? RType::Integer : RType::Real;
    m_kind = m_isDeferredText ? Kind::Text : isInteger ? Kind::Integer : Kind::Real;
    m_description = m_isDeferredText ? "a character vector"
        : isInteger                  ? "an integer vector"
                                     : "a numeric vector";
    m_length = static_cast<std::int64_t>(length);
    m_left = m_length;
    m_closers.push_back(Closer::Attributes);
}

double RVector::nextOfSequence()
{
    const double number = m_next + m_step * static_cast<double>(m_length - m_left);
    --m_left;
    return number;
}

void RVector::numbers(std::span<char> target)
{
    const std::size_t width = widthOf(m_kind);
    if (!m_isSequence) {
        m_stream.numbers(target, width);
        m_left -= static_cast<std::int64_t>(target.size() / width);
        return;
    }
    for (std::size_t at = 0; at < target.size(); at += width) {
        const double number = nextOfSequence();
        const std::uint64_t bits = width == sizeof(double)
            ? std::bit_cast<std::uint64_t>(number)
            : static_cast<std::uint32_t>(static_cast<std::int64_t>(number));
        for (std::size_t byte = 0; byte < width; ++byte) {
            target[at + byte] = static_cast<char>(bits >> 8 * (width - 1 - byte));
        }
    }
}

std::optional<std::string_view> RVector::text()
{
    if (m_stored == RType::Text) {
        --m_left;
        const RItem one = m_stream.item();
        return m_stream.text(one);
    }
    if (m_stored == RType::Raw) {
        --m_left;
        std::array<char, 1> byte{};
        m_stream.bytes(byte);
        constexpr std::string_view digits = "0123456789abcdef";
        const auto number = static_cast<unsigned char>(byte[0]);
        m_text = {digits[number >> 4], digits[number & 15]};
        return m_text;
    }
    if (m_stored == RType::Complex) {
        --m_left;
        const double realPart = m_stream.real();
        const double imaginaryPart = m_stream.real();
        if (rformat::isMissing(realPart) || rformat::isMissing(imaginaryPart)) {
            return std::nullopt;
        }
        m_text = rformat::formatComplex(realPart, imaginaryPart);
        return m_text;
    }
    return numberAsText();
}

/// As R's as.character() does it.
std::optional<std::string_view> RVector::numberAsText()
{
    if (m_stored == RType::Real) {
        const double number = m_isSequence ? nextOfSequence() : (--m_left, m_stream.real());
        if (rformat::isMissing(number)) {
            return std::nullopt;
        }
        m_text = rformat::asCharacter(number);
        return m_text;
    }
    const auto number =
        m_isSequence ? static_cast<std::int32_t>(nextOfSequence()) : (--m_left, m_stream.integer());
    if (number == missingIntegerOfR) {
        return std::nullopt;
    }
    m_text = m_stored == RType::Logical ? (number == 0 ? "FALSE" : "TRUE") : std::to_string(number);
    return m_text;
}

void RVector::skip()
{
    if (!m_isSequence) {
        switch (m_stored) {
        case RType::Text:
            m_stream.skipItems(m_left);
            break;
        case RType::Complex:
            m_stream.skipNumbers(m_left * 2, 8);
            break;
        case RType::Raw:
            m_stream.skipNumbers(m_left, 1);
            break;
        default:
            m_stream.skipNumbers(m_left, m_stored == RType::Real ? 8 : 4);
        }
    }
    m_left = 0;
}

void RVector::close(RAttributes* attributes)
{
    for (; !m_closers.empty(); m_closers.pop_back()) {
        if (m_closers.back() == Closer::WrapperEnd) {
            m_stream.skipItems(1);
        }
        readAttributes(m_stream, attributes);
    }
}
