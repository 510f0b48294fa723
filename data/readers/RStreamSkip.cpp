#include "data/readers/RStream.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

// Passing over items needs only to know how many more items belong to each, not which: a count
// takes the place of recursion. Compiled code alone is laid out otherwise.

namespace {

constexpr const char* damaged = "The objects in it are damaged";
constexpr std::size_t deepest = 1 << 20;  ///< levels of compiled code

/// Whether nothing belongs to an item but its type.
bool isBare(RType type)
{
    constexpr std::array bare{RType::BaseEnvironment,
                              RType::EmptyEnvironment,
                              RType::BaseNamespace,
                              RType::MissingArgument,
                              RType::UnboundValue,
                              RType::GlobalEnvironment,
                              RType::Null};
    return std::find(bare.begin(), bare.end(), type) != bare.end();
}

void addItems(std::int64_t& count, std::int64_t more)
{
    if (count > std::numeric_limits<std::int64_t>::max() - more) {
        throw FileDamage(damaged);
    }
    count += more;
}

}  // namespace

void RStream::skipItems(std::int64_t count)
{
    WaitingList waiting{{Waiting::What::Items, count}};
    skip(waiting);
}

void RStream::skipRest(const RItem& item)
{
    WaitingList waiting{{Waiting::What::Items, 0}};
    skipOne(item, waiting);
    skip(waiting);
}

void RStream::skip(WaitingList& waiting)
{
    while (!waiting.empty()) {
        if (waiting.back().count == 0) {
            waiting.pop_back();
            continue;
        }
        --waiting.back().count;
        switch (waiting.back().what) {
        case Waiting::What::Items:
            skipOne(item(), waiting);
            break;
        case Waiting::What::Constants: {
            const std::int32_t type = integer();
            if (static_cast<RType>(type) == RType::Bytecode) {
                skipCode(waiting);
            } else {
                skipCall(type, waiting);
            }
            break;
        }
        case Waiting::What::Code:
            skipCall(integer(), waiting);
            break;
        }
        if (waiting.size() > deepest) {
            throw FileDamage(damaged);
        }
    }
}

/// Passes over what holds its values itself; false for an item of another kind.
bool RStream::skipValues(RType type)
{
    switch (type) {
    case RType::Special:
    case RType::Builtin:
        (void)view(static_cast<std::size_t>(length(1)));
        return true;
    case RType::Logical:
    case RType::Integer:
        skipNumbers(length(4), 4);
        return true;
    case RType::Real:
        skipNumbers(length(8), 8);
        return true;
    case RType::Complex:
        skipNumbers(length(16) * 2, 8);
        return true;
    case RType::Raw:
        skipNumbers(length(1), 1);
        return true;
    case RType::Text:
        skipTexts(length(4));
        return true;
    case RType::S4:
        return true;  // all of it are its attributes
    default:
        return false;
    }
}

/// Passes over the beginning of what later items refer to by its number.
/// @return  how many items belong to it; nothing for an item of another kind
std::optional<std::int64_t> RStream::skipReferenced(const RItem& item)
{
    const std::int64_t attributes = item.hasAttributes ? 1 : 0;
    switch (item.type) {
    case RType::Symbol: {
        const RItem name = this->item();
        m_references.emplace_back(text(name).value_or(std::string_view()));
        return 0;
    }
    case RType::Persistent:
    case RType::Package:
    case RType::Namespace:
        m_references.emplace_back();
        (void)integer();
        return length(4);
    case RType::Environment:
        m_references.emplace_back();
        (void)integer();  // whether it is locked
        return 4;
    case RType::Pointer:
    case RType::WeakReference:
        m_references.emplace_back();
        return attributes + (item.type == RType::Pointer ? 2 : 0);
    default:
        return std::nullopt;
    }
}

void RStream::skipOne(const RItem& item, WaitingList& waiting)
{
    if (isBare(item.type)) {
        return;
    }
    // Some read on before the items that belong to them, in the order of the file.
    std::int64_t more = item.hasAttributes ? 1 : 0;
    if (const std::optional<std::int64_t> known = skipReferenced(item)) {
        addItems(waiting.back().count, *known);
        return;
    }
    switch (item.type) {
    case RType::Pairlist:
    case RType::Call:
    case RType::Closure:
    case RType::Promise:
    case RType::Dots:
        more += item.hasTag ? 3 : 2;
        break;
    case RType::Char:
        skipText(item);
        return;
    case RType::List:
    case RType::Expression:
        more += length(4);
        break;
    case RType::Bytecode:
        waiting.back().count += more;
        (void)integer();  // how many of its parts are shared
        skipCode(waiting);
        return;
    case RType::Altrep:
        more = 3;
        break;
    case RType::Reference:
        if (item.flags >> 8 == 0) {
            (void)integer();
        }
        return;
    default:
        if (!skipValues(item.type)) {
            throw FileDamage(damaged);
        }
    }
    addItems(waiting.back().count, more);
}

/// The instructions, a vector of integers, and the constants behind them.
void RStream::skipCode(WaitingList& waiting)
{
    const RItem code = item();
    if (code.type != RType::Integer) {
        throw FileDamage(damaged);
    }
    skipNumbers(length(4), 4);
    waiting.push_back({Waiting::What::Constants, length(4)});
}

void RStream::skipCall(std::int32_t type, WaitingList& waiting)
{
    if (static_cast<RType>(type) == RType::BytecodeReference) {
        (void)integer();
        return;
    }
    if (static_cast<RType>(type) == RType::BytecodeDefinition) {
        (void)integer();  // the number by which it is referred to
        type = integer();
    }
    switch (static_cast<RType>(type)) {
    case RType::AttributedPairlist:
    case RType::AttributedCall:
        waiting.push_back({Waiting::What::Code, 2});
        waiting.push_back({Waiting::What::Items, 2});  // attributes and tag
        return;
    case RType::Pairlist:
    case RType::Call:
        waiting.push_back({Waiting::What::Code, 2});
        waiting.push_back({Waiting::What::Items, 1});  // tag
        return;
    default:
        waiting.push_back({Waiting::What::Items, 1});
    }
}

void RStream::skipTexts(std::int64_t count)
{
    for (; count > 0; --count) {
        const RItem one = item();
        if (one.type != RType::Char) {
            throw FileDamage(damaged);
        }
        skipText(one);
    }
}

void RStream::skipText(const RItem& item)
{
    if (m_form == Form::Ascii || item.hasAttributes) {
        (void)text(item);
        return;
    }
    const std::int32_t size = integer();
    if (size < -1) {
        throw FileDamage(damaged);
    }
    skipBytes(size);
}

void RStream::skipNumbers(std::int64_t count, std::int64_t width)
{
    if (m_form != Form::Ascii) {
        skipBytes(count * width);
        return;
    }
    for (; count > 0; --count) {
        (void)word();
    }
}
