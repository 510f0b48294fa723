#include "grid/LibraryFilter.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

/// A grid whose dataset has one variable and whose every filter begins with its name.
class FakeGrid final : public LibraryFilter::Grid
{
public:
    explicit FakeGrid(QString variable)
        : m_variable(std::move(variable))
    { }

    Result<std::size_t> takeLibraryFilter(const QString& condition) override
    {
        if (!condition.startsWith(m_variable)) {
            return Failure{"There is no such variable"};
        }
        filter = condition;
        return std::size_t{1};
    }
    void dropLibraryFilter() override { filter.clear(); }
    [[nodiscard]] QString ownLibraryFilterText() const override { return "where " + filter; }
    void showLibraryFilter(const QString& reason) override
    {
        problem = reason;
        ++shown;
    }

    QString filter;
    QString problem;
    int shown = 0;

private:
    QString m_variable;
};

class LibraryFilterTest : public testing::Test
{
protected:
    LibraryFilterTest()
    {
        m_filter.join(m_ages);
        m_filter.join(m_sexes);
        m_filter.join(m_moreAges);
    }

    LibraryFilter m_filter;
    FakeGrid m_ages{"AGE"};
    FakeGrid m_sexes{"SEX"};
    FakeGrid m_moreAges{"AGE"};
};

TEST_F(LibraryFilterTest, filtersWhateverItCan)
{
    ASSERT_TRUE(m_filter.apply("AGE > 5", m_ages).ok());
    EXPECT_EQ(m_filter.text(), QString("where AGE > 5"));
    EXPECT_EQ(m_ages.filter, QString("AGE > 5"));
    EXPECT_EQ(m_moreAges.filter, QString("AGE > 5"));
    EXPECT_EQ(m_sexes.filter, QString());
    EXPECT_EQ(m_sexes.problem, QString("There is no such variable"));
    EXPECT_EQ(m_ages.problem, QString());
    EXPECT_EQ(m_ages.shown, 1);
    EXPECT_EQ(m_sexes.shown, 1);
}

TEST_F(LibraryFilterTest, changesNothingWhereTheAskingGridFails)
{
    const Result<std::size_t> result = m_filter.apply("AGE > 5", m_sexes);
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error(), "There is no such variable");
    EXPECT_EQ(m_filter.text(), QString());
    EXPECT_EQ(m_ages.filter, QString());
    EXPECT_EQ(m_ages.shown, 0);
}

TEST_F(LibraryFilterTest, hasOneLevel)
{
    ASSERT_TRUE(m_filter.apply("AGE > 5", m_ages).ok());
    const Result<std::size_t> second = m_filter.apply("SEX = 1", m_sexes);
    ASSERT_FALSE(second.ok());
    EXPECT_EQ(second.error(),
              "Library Filter supports one level only. Please clear library filter first.");
    EXPECT_EQ(m_filter.text(), QString("where AGE > 5"));

    m_filter.clear();
    EXPECT_EQ(m_filter.text(), QString());
    EXPECT_EQ(m_moreAges.filter, QString());
    EXPECT_EQ(m_sexes.problem, QString());
    EXPECT_TRUE(m_filter.apply("SEX = 1", m_sexes).ok());
    EXPECT_FALSE(m_ages.problem.isEmpty());
}

TEST_F(LibraryFilterTest, holdsForGridsThatJoinLaterAndForgetsThoseThatLeave)
{
    ASSERT_TRUE(m_filter.apply("AGE > 5", m_ages).ok());
    FakeGrid late("AGE");
    late.filter = "AGE = 1";  // which came with its file
    m_filter.join(late);
    EXPECT_EQ(late.filter, QString("AGE > 5"));
    EXPECT_EQ(late.shown, 1);

    m_filter.leave(late);
    m_filter.clear();
    EXPECT_EQ(late.filter, QString("AGE > 5"));
    EXPECT_EQ(late.shown, 1);
}

TEST_F(LibraryFilterTest, isRestoredEvenWhereItFiltersNothing)
{
    EXPECT_TRUE(m_filter.restore("where RACE  =  -1").value());
    EXPECT_EQ(m_filter.text(), QString("where RACE = -1"));
    EXPECT_FALSE(m_ages.problem.isEmpty());
    EXPECT_FALSE(m_filter.restore("where AGE > 5").value());
    EXPECT_EQ(m_filter.text(), QString("where RACE = -1")) << "one that is in force stays";

    m_filter.clear();
    EXPECT_TRUE(m_filter.restore("WHERE AGE > 5").value());
    EXPECT_EQ(m_ages.filter, QString("AGE > 5"));
    m_filter.clear();
    EXPECT_FALSE(m_filter.restore(QString()).value());
    EXPECT_EQ(m_filter.text(), QString());
}

TEST_F(LibraryFilterTest, textThatSaysNoFilterIsRefused)
{
    for (const char* text : {"if AGE > 5", "AGE > 5", "where", "where AGE >", "wherever AGE > 5"}) {
        EXPECT_FALSE(m_filter.restore(text).ok()) << text;
        EXPECT_EQ(m_filter.text(), QString()) << text;
    }
}

}  // namespace
