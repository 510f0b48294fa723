#include "data/cells/TextPool.h"

#include <gtest/gtest.h>

#include <string>
#include <unordered_map>

namespace {

TEST(TextPool, holdsEqualTextsOnce)
{
    TextPool pool;
    PooledText* first = pool.intern("MILD");
    EXPECT_EQ(pool.intern(std::string("MILD")), first);
    EXPECT_NE(pool.intern("MODERATE"), first);
    EXPECT_EQ(pool.find("MILD"), first);
    EXPECT_EQ(pool.find("SEVERE"), nullptr);
    const std::string withNul("MILD\0", 5);
    EXPECT_EQ(pool.intern(withNul)->text(), withNul);
    EXPECT_EQ(pool.intern("")->text(), "");
    EXPECT_EQ(pool.size(), 4U);
    EXPECT_EQ(first->text(), "MILD");
    EXPECT_EQ(first->bytes()[4], '\0');
}

TEST(TextPool, keepsRecordsInPlaceWhileItGrows)
{
    TextPool pool;
    std::unordered_map<std::string, PooledText*> expected;
    for (int i = 0; i < 100000; ++i) {
        const std::string text = "subject " + std::to_string(i % 70000)
            + std::string(static_cast<std::size_t>(i % 97), 'x');
        PooledText* record = pool.intern(text);
        const auto [place, isNew] = expected.emplace(text, record);
        ASSERT_EQ(place->second, record) << text;
        ASSERT_EQ(record->text(), text);
    }
    EXPECT_EQ(pool.size(), expected.size());
    const std::string huge(std::size_t{3} << 20, 'h');
    EXPECT_EQ(pool.intern(huge)->text(), huge);
}

}  // namespace
