#include "tests/layering/IncludeRules.h"
#include "tests/layering/SourceTree.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string version = QUORLANE_VERSION;

bool mentions(const std::string& file, const std::string& text)
{
    return sourcetree::contentOf(file).find(text) != std::string::npos;
}

TEST(Version, StandsInCMakeAndInNoSource)
{
    EXPECT_TRUE(mentions("CMakeLists.txt", "VERSION " + version + ' '));
    for (const std::string& file : sourcetree::files({".h", ".cpp", ".in"})) {
        if (includerules::folderOf(file)) {
            EXPECT_FALSE(mentions(file, version)) << file << " repeats the version";
        }
    }
}

TEST(Version, IsToldToTheUsers)
{
    EXPECT_TRUE(mentions("CHANGELOG.md", "## " + version));
    EXPECT_TRUE(mentions("packaging/example.brindlework.Quorlane.metainfo.xml",
                         "<release version=\"" + version + '"'));
}

TEST(ProjectFiles, AreSmall)
{
    constexpr std::uintmax_t megabyte = 1'048'576;
    const auto files = sourcetree::files();
    EXPECT_GT(files.size(), 20U);
    for (const std::string& file : files) {
        EXPECT_LE(sourcetree::sizeOf(file), megabyte) << file;
    }
}

}  // namespace
