#include "analysis/panels/TableText.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <vector>

namespace {

QString copied(const std::vector<int>& rows, const std::vector<int>& columns)
{
    return tabletext::text({rows, columns, [](int row, int column) {
                                return row == 9 ? QString() : QString("%1%2").arg(row).arg(column);
                            }});
}

TEST(TableText, separatesCellsByTabsAndRowsByLineFeeds)
{
    EXPECT_EQ(copied({0}, {0}), QString("00"));
    EXPECT_EQ(copied({0, 3}, {2, 1}), QString("02\t01\n32\t31"));
    EXPECT_EQ(copied({0, 9, 1}, {5, 6}), QString("05\t06\n\t\n15\t16"));
    EXPECT_EQ(copied({}, {1}), QString());
    EXPECT_EQ(copied({1}, {}), QString());
}

TEST(TableText, keepsTheTableWholeWhateverTheCellsHold)
{
    const std::vector<int> rows{0, 1};
    const std::vector<int> columns{0};
    const auto text = [](int row, int) {
        return row == 0 ? QString("two\nlines\tand a tab\r") : QString("x");
    };
    EXPECT_EQ(tabletext::text({rows, columns, text}), QString("two lines and a tab \nx"));
    EXPECT_EQ(tabletext::line({"A", "A", "B\tC"}), QString("A\tA\tB C"));
    EXPECT_EQ(tabletext::line({}), QString());
}

}  // namespace
