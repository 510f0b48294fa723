#include "data/cells/KeyCoder.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace {

using Keys = std::vector<std::uint64_t>;
using Codes = std::vector<std::uint32_t>;

Codes lookedUp(const KeyCoder& coder, const Keys& keys)
{
    Codes codes(keys.size());
    coder.lookUp(keys, codes.data());
    return codes;
}

TEST(KeyCoder, numbersKeysAsTheyComeAndFindsThemAgain)
{
    // From a few keys, which stay in one small table, to so many that it has grown often.
    for (const std::uint64_t distinct : {7U, 3000U, 300000U}) {
        std::mt19937_64 random(distinct);
        KeyCoder coder;
        std::map<std::uint64_t, std::uint32_t> plain;
        Keys keys(distinct + 1000);
        Codes expected;
        for (std::uint64_t& key : keys) {
            // Addresses differ in their lower bits, numbers in their upper ones.
            key = random() % distinct << (distinct == 3000 ? 48 : 4);
            expected.push_back(plain.try_emplace(key, plain.size()).first->second);
        }
        Codes codes(keys.size());
        coder.encode(keys, codes.data());
        EXPECT_EQ(codes, expected);
        EXPECT_EQ(lookedUp(coder, keys), expected);
        EXPECT_EQ(coder.keys().size(), plain.size());
        EXPECT_EQ(coder.keys()[expected.back()], keys.back());
        EXPECT_EQ(lookedUp(coder, {1, keys.front(), 3}),
                  (Codes{KeyCoder::unknown, 0, KeyCoder::unknown}));
    }
    EXPECT_EQ(lookedUp(KeyCoder(), {0, 1}), Codes(2, KeyCoder::unknown));
}

TEST(KeyCoder, tellsKeysApartWhoseHashesEndAlike)
{
    // The halves of these keys cancel each other out in the lower half of the hash.
    Keys keys;
    for (std::uint64_t i = 0; i < 100000; ++i) {
        keys.push_back((i << 32) | i);
    }
    KeyCoder coder;
    Codes codes(keys.size());
    coder.encode(keys, codes.data());
    EXPECT_EQ(coder.keys(), keys);
}

}  // namespace
