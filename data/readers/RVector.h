#pragma once

#include "data/readers/RStream.h"

#include <array>

/// What R attaches to an object, as far as it matters here.
struct RAttributes
{
    std::vector<std::string> classes;
    std::vector<std::string> names;
    std::vector<std::optional<std::string>> levels;  ///< of a factor; a level may be missing
    std::string label;
    std::vector<std::string> variableLabels;  ///< of a data frame whose columns have none
    std::string units;  ///< of a difftime: "days"
    std::int64_t rowCount = -1;  ///< of a data frame; -1 where nothing tells
    bool hasRowNames = false;  ///< that are more than numbers
    bool hasDimensions = false;

    [[nodiscard]] bool isOfClass(std::string_view name) const;
};

/// Reads one vector of a serialisation, in whatever way R has written it down: plainly, as the
/// formula of a sequence, behind a wrapper, or as numbers that were to become texts.
///
///     vector.open(stream.item());
///     ... numbers() or text() ...
///     vector.close(&attributes);
class RVector
{
public:
    enum class Kind
    {
        None,  ///< no vector of what follows; nothing to be read but attributes
        Logical,
        Integer,
        Real,
        Text,  ///< and what is shown as text: complex numbers and raw bytes
    };

    explicit RVector(RStream& stream)
        : m_stream(stream)
    { }

    /// Reads up to the first element.
    void open(const RItem& item);
    [[nodiscard]] Kind kind() const { return m_kind; }
    /// What kind of thing it is in words, with its article: "a list".
    [[nodiscard]] const char* description() const { return m_description; }
    [[nodiscard]] std::int64_t length() const { return m_length; }
    [[nodiscard]] std::int64_t left() const { return m_left; }
    [[nodiscard]] static std::size_t widthOf(Kind kind)
    {
        return kind == Kind::Real ? sizeof(double) : sizeof(std::int32_t);
    }

    /// The next elements, big-endian, as many as the target has room for; for numbers.
    void numbers(std::span<char> target);
    /// The next element; nothing where it is missing. For texts; good until the next call.
    [[nodiscard]] std::optional<std::string_view> text();
    /// Passes over the elements that are left.
    void skip();
    /// Reads what follows the elements, which all have been read or passed over.
    /// @param attributes  gets the attributes; null to pass over them
    void close(RAttributes* attributes);

private:
    enum class Closer
    {
        Attributes,
        WrapperEnd,  ///< one more item, then the attributes
    };

    void openPlain(const RItem& item, Kind kind, const char* description, std::int64_t width);
    void openAltrep();
    void openSequence(bool isInteger);
    void openInside();
    [[nodiscard]] double nextOfSequence();
    [[nodiscard]] std::optional<std::string_view> numberAsText();

    RStream& m_stream;
    Kind m_kind = Kind::None;
    const char* m_description = "";
    std::int64_t m_length = 0;
    std::int64_t m_left = 0;
    RType m_stored = RType::Null;  ///< of the elements in the file
    bool m_isSequence = false;
    bool m_isDeferredText = false;
    double m_next = 0;  ///< of a sequence
    double m_step = 0;
    std::vector<Closer> m_closers;
    std::string m_text;
};

/// Reads the item that holds an object's attributes.
/// @param attributes  null to pass over them
void readAttributes(RStream& stream, RAttributes* attributes);
