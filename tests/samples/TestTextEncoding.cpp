#include "samples/TextEncoding.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(TextEncoding, writesWindows1252)
{
    struct Case
    {
        const char* utf8;
        const char* windows1252;
    };
    constexpr Case cases[] = {
        {"", ""},
        {"plain", "plain"},
        {"Müller", "M\xFCller"},
        {"ÿ", "\xFF"},
        {"5 €", "5 \x80"},
        {"Žižek Œuvre", "\x8Ei\x9E\x65k \x8Cuvre"},
        {"“x”", "\x93x\x94"},
        {"a\xC2\xA0"
         "b",
         "a\xA0"
         "b"},
        {"Ÿ", "\x9F"},
    };
    std::string text = "left over";
    for (const auto& [utf8, windows1252] : cases) {
        samples::toWindows1252(utf8, text);
        EXPECT_EQ(text, windows1252) << utf8;
    }
}

TEST(TextEncoding, refusesWhatWindows1252Lacks)
{
    std::string text;
    for (const auto* const other :
         {"札幌", "≥ 2", "Łódź", "\xC2\x81", "\xF0\x9F\x99\x82", "cut \xC3", "\xFC"}) {
        EXPECT_THROW(samples::toWindows1252(other, text), std::runtime_error) << other;
    }
}

}  // namespace
