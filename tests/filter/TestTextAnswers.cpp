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
    for (int pass = 0; pass < 2; ++pass) {
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const bool holds = i % 10 == 7;
            ASSERT_EQ(answers.word({&keys[i], 1}), holds ? 1U : 0U) << "text " << i;
        }
    }
    EXPECT_LT(asked, 80000) << "the second time most of them are known";
}

}  // namespace
