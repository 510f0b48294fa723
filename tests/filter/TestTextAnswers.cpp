#include "data/cells/TextPool.h"
#include "data/cells/ValueKey.h"
#include "grid/filter/TextAnswers.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Keys = std::vector<std::uint64_t>;

TEST(TextAnswers, askOnceForEachDistinctText)
{
    TextPool pool;
    const std::uint64_t odd = valuekey::of(pool.intern("odd"));
    const std::uint64_t even = valuekey::of(pool.intern("even"));
    std::string asked;
    TextAnswers answers([&](std::string_view text) {
        asked.append(text).append(";");
        return text == "odd" || text.empty();
    });

    EXPECT_EQ(answers.word(Keys{even, odd, even, odd, odd}), 0b11010U);
    EXPECT_EQ(answers.word(Keys{odd, valuekey::of(nullptr), even}), 0b011U);
    EXPECT_EQ(asked, "even;odd;;");
}

TEST(TextAnswers, stayRightWhereThereAreTooManyTextsToRemember)
{
    TextPool pool;
    Keys keys;
    for (int i = 0; i < 64 * 1100; ++i) {
        keys.push_back(valuekey::of(pool.intern(std::to_string(i))));
    }
    int asked = 0;
    TextAnswers answers([&](std::string_view text) {
        ++asked;
        return text.ends_with('7');
    });
    for (int pass = 0; pass < 4; ++pass) {
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const std::size_t text = pass == 0 ? i : keys.size() - 1 - i;
            ASSERT_EQ(answers.word({&keys[text], 1}), text % 10 == 7 ? 1U : 0U) << "text " << text;
        }
    }
    EXPECT_LT(asked, 85000) << "later on most of them are known, and then all";
}

}  // namespace
