#pragma once

#include <iconv.h>
#include <string>
#include <string_view>

/// Turns texts of a file's character set into UTF-8. What cannot be converted becomes U+FFFD; a
/// last character that the field's width cut through is dropped.
class TextDecoder
{
public:
    /// UTF-8 where the bytes are valid UTF-8, else Windows-1252: for files that declare nothing.
    TextDecoder() = default;
    /// The character set of that name, as iconv knows it. Of one that iconv does not know only the
    /// ASCII letters can be converted. An empty name is the same as no name.
    explicit TextDecoder(const std::string& encoding);
    ~TextDecoder();
    TextDecoder(TextDecoder&& other) noexcept;
    TextDecoder& operator=(TextDecoder&& other) noexcept;

    /// Whether a text converts to itself, so that nothing needs to be done.
    [[nodiscard]] static bool isUnchanged(std::string_view raw);
    [[nodiscard]] std::string decode(std::string_view raw) const;

private:
    enum class Kind
    {
        Guess,
        Utf8,
        Iconv,
        AsciiOnly
    };

    Kind m_kind = Kind::Guess;
    iconv_t m_converter = noConverter();

    static iconv_t noConverter();
};
