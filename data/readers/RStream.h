#pragma once

#include "data/cells/TextDecoder.h"
#include "data/readers/UnpackedFile.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The kinds of items of a serialisation, by R's own numbers; what is missing here is no item.
enum class RType : std::uint8_t
{
    Symbol = 1,
    Pairlist = 2,
    Closure = 3,
    Environment = 4,
    Promise = 5,
    Call = 6,
    Special = 7,
    Builtin = 8,
    Char = 9,
    Logical = 10,
    Integer = 13,
    Real = 14,
    Complex = 15,
    Text = 16,
    Dots = 17,
    List = 19,
    Expression = 20,
    Bytecode = 21,
    Pointer = 22,
    WeakReference = 23,
    Raw = 24,
    S4 = 25,
    Altrep = 238,
    AttributedPairlist = 239,
    AttributedCall = 240,
    BaseEnvironment = 241,
    EmptyEnvironment = 242,
    BytecodeReference = 243,
    BytecodeDefinition = 244,
    Persistent = 247,
    Package = 248,
    Namespace = 249,
    BaseNamespace = 250,
    MissingArgument = 251,
    UnboundValue = 252,
    GlobalEnvironment = 253,
    Null = 254,
    Reference = 255,
};

/// What an item begins with.
struct RItem
{
    RType type = RType::Null;
    bool isObject = false;  ///< has a class
    bool hasAttributes = false;
    bool hasTag = false;
    std::uint32_t flags = 0;  ///< all of it as it stands
};

/// What R calls a missing integer, and a missing logical.
inline constexpr std::int32_t missingIntegerOfR = -2147483647 - 1;

/// An R serialisation, item by item, in any of its forms: big-endian ("X"), as the machine of its
/// writer has it ("B") or as text ("A"), with the texts of all character sets in UTF-8. What is not
/// wanted is passed over without recursion, however deep it lies. Every function throws FileDamage
/// where the bytes make no sense or end.
class RStream
{
public:
    /// The file outlives the stream.
    explicit RStream(UnpackedFile& file);

    /// Reads what stands before the first item.
    void begin();
    /// Whether the file holds a list of named objects, and not one object.
    [[nodiscard]] bool isWorkspace() const { return m_isWorkspace; }
    [[nodiscard]] int version() const { return m_version; }  ///< of the serialisation: 2 or 3
    [[nodiscard]] const std::string& release() const { return m_release; }  ///< of R: "4.2.2"
    /// The character set of texts that declare none; empty before version 3.
    [[nodiscard]] const std::string& encoding() const { return m_encoding; }
    enum class Form
    {
        BigEndian,
        LittleEndian,
        Ascii,
    };
    [[nodiscard]] Form form() const { return m_form; }

    [[nodiscard]] RItem item();
    [[nodiscard]] std::int32_t integer();
    [[nodiscard]] double real();
    /// The length of a vector. No more than `least` bytes an element can be there.
    [[nodiscard]] std::int64_t length(std::int64_t least);
    /// So many 4-byte integers or 8-byte reals, big-endian.
    void numbers(std::span<char> target, std::size_t width);
    /// So many single bytes.
    void bytes(std::span<char> target);
    /// The rest of an item of type Char; nothing for R's missing text. Good until the next call.
    [[nodiscard]] std::optional<std::string_view> text(const RItem& item);
    /// A symbol's name; empty for any other item.
    [[nodiscard]] std::string symbol();

    /// Passes over whole items.
    void skipItems(std::int64_t count);
    /// Passes over what follows the beginning of an item, its attributes included.
    void skipRest(const RItem& item);
    /// Passes over the numbers of a vector.
    void skipNumbers(std::int64_t count, std::int64_t width);

    /// Reads to the end of the file, for its check sums' sake.
    void finish();

private:
    /// What is yet to be passed over.
    struct Waiting
    {
        enum class What
        {
            Items,
            Constants,  ///< of compiled code
            Code,  ///< calls among those constants
        };
        What what;
        std::int64_t count;
    };
    using WaitingList = std::vector<Waiting>;

    void chooseForm();
    [[nodiscard]] bool fill(std::size_t bytes);
    void require(std::size_t bytes);
    [[nodiscard]] std::string_view view(std::size_t bytes);
    void skipBytes(std::int64_t bytes);
    [[nodiscard]] std::string_view word();
    [[nodiscard]] char asciiCharacter();
    [[nodiscard]] std::string_view asciiBytes(std::size_t count);
    [[nodiscard]] std::string_view inUtf8(std::string_view raw, std::uint32_t flags);
    [[nodiscard]] std::string_view escaped(std::string_view raw);
    void skip(WaitingList& waiting);
    [[nodiscard]] bool skipValues(RType type);
    [[nodiscard]] std::optional<std::int64_t> skipReferenced(const RItem& item);
    void skipOne(const RItem& item, WaitingList& waiting);
    void skipCode(WaitingList& waiting);
    void skipCall(std::int32_t type, WaitingList& waiting);
    void skipText(const RItem& item);
    void skipTexts(std::int64_t count);

    UnpackedFile& m_file;
    std::vector<char> m_buffer;
    std::size_t m_at = 0;
    std::size_t m_end = 0;
    std::string m_text;
    std::string m_converted;
    bool m_isWorkspace = false;
    Form m_form = Form::BigEndian;
    int m_version = 0;
    std::string m_release;
    std::string m_encoding;
    std::optional<TextDecoder> m_decoder;  ///< made for the first text that needs it
    std::string m_decoderEncoding;
    std::vector<std::string> m_references;  ///< names of symbols; empty for all else
};
