#include "StudyTable.h"

#include <gtest/gtest.h>

#include <chrono>
#include <regex>

namespace {

using Names = std::vector<std::string>;

/// Days from 1960 of a text that begins with a whole date; nothing for a partial one.
std::optional<double> dayNumber(const std::string& iso)
{
    using namespace std::chrono;
    if (iso.size() < 10) {
        return std::nullopt;
    }
    const year_month_day date(year(std::stoi(iso.substr(0, 4))),
                              month(static_cast<unsigned>(std::stoi(iso.substr(5, 2)))),
                              day(static_cast<unsigned>(std::stoi(iso.substr(8, 2)))));
    return (sys_days(date) - sys_days(year(1960) / 1 / 1)).count();
}

/// Whether the second moment may be at or after the first, as far as both are known.
bool mayFollow(const std::string& first, const std::string& second)
{
    const auto known = std::min(first.size(), second.size());
    return first.substr(0, known) <= second.substr(0, known);
}

double studyDayOf(double day, double reference)
{
    return day >= reference ? day - reference + 1 : day - reference;
}

class StudyDates : public testing::Test
{
protected:
    [[nodiscard]] const std::string& ofSubject(const std::string& subject,
                                               const std::string& column) const
    {
        return demographics.text(subjects.at(subject + "|"), column);
    }

    StudyTable demographics{"DM"};
    std::map<std::string, std::size_t> subjects = demographics.rowsBy(Names{"USUBJID"});
};

TEST_F(StudyDates, everyDateTimeTextIsIso8601AndSomeArePartial)
{
    const std::regex pattern(
        R"((\d{4}(-(0[1-9]|1[0-2])(-(0[1-9]|[12]\d|3[01])(T([01]\d|2[0-3]):[0-5]\d)?)?)?)?)");
    std::map<std::size_t, int> lengths;
    for (const auto& made : study().tables()) {
        const StudyTable table(made.name);
        for (const auto& column : made.columns) {
            if (!column.name.ends_with("DTC")) {
                continue;
            }
            for (std::size_t row = 0; row < table.rowCount(); ++row) {
                const auto& text = table.text(row, column.name);
                ASSERT_TRUE(std::regex_match(text, pattern)) << column.name << " " << text;
                ++lengths[text.size()];
            }
        }
    }
    for (const std::size_t length : {0, 4, 7, 10, 16}) {
        EXPECT_GT(lengths[length], 20) << length;
    }
}

TEST_F(StudyDates, aSubjectsMilestonesFollowEachOther)
{
    int deaths = 0;
    for (std::size_t row = 0; row < demographics.rowCount(); ++row) {
        SCOPED_TRACE(demographics.text(row, "USUBJID"));
        const auto& consent = demographics.text(row, "RFICDTC");
        const auto& start = demographics.text(row, "RFXSTDTC");
        const auto& end = demographics.text(row, "RFXENDTC");
        const auto& last = demographics.text(row, "RFPENDTC");
        const auto& death = demographics.text(row, "DTHDTC");
        ASSERT_EQ(start.empty(), demographics.text(row, "ARMCD") == "SCRNFAIL");
        ASSERT_EQ(death.empty(), demographics.text(row, "DTHFL").empty());
        ASSERT_LE(*dayNumber(consent), *dayNumber(last));
        if (!start.empty()) {
            ASSERT_LT(*dayNumber(consent), *dayNumber(start));
            ASSERT_LT(*dayNumber(start), *dayNumber(end));
            ASSERT_LE(*dayNumber(end), *dayNumber(last));
        }
        if (!death.empty()) {
            ASSERT_EQ(death, last);
            ++deaths;
        }
        const double age =
            (*dayNumber(consent) - demographics.number(row, "AGE") * 365.25) / 365.25 + 1960;
        EXPECT_NEAR(age, std::stod(demographics.text(row, "BRTHDTC").substr(0, 4)) + 0.5, 1.6);
    }
    EXPECT_GT(deaths, 0);
}

TEST_F(StudyDates, adverseEventsLieWithinTheStudy)
{
    const StudyTable events("AE");
    int beforeTreatment = 0;
    for (std::size_t row = 0; row < events.rowCount(); ++row) {
        const auto& subject = events.text(row, "USUBJID");
        const auto& start = events.text(row, "AESTDTC");
        const auto& end = events.text(row, "AEENDTC");
        SCOPED_TRACE(subject + " " + start + " " + end);
        ASSERT_TRUE(mayFollow(ofSubject(subject, "RFICDTC"), start));
        ASSERT_TRUE(mayFollow(start, ofSubject(subject, "RFPENDTC")));
        ASSERT_EQ(end.empty(), events.text(row, "AEENRF") == "AFTER");
        if (!end.empty()) {
            ASSERT_TRUE(mayFollow(start, end));
            ASSERT_TRUE(mayFollow(end, ofSubject(subject, "RFPENDTC")));
        }
        if (events.text(row, "AEOUT") == "FATAL") {
            ASSERT_EQ(end, ofSubject(subject, "DTHDTC"));
            ASSERT_EQ(events.text(row, "AESDTH"), "Y");
        }
        beforeTreatment += mayFollow(ofSubject(subject, "RFSTDTC"), start) ? 0 : 1;
    }
    EXPECT_GT(beforeTreatment, 0);
    EXPECT_LT(beforeTreatment, static_cast<int>(events.rowCount()) / 10);
}

TEST_F(StudyDates, studyDaysCountFromTheFirstDose)
{
    struct Case
    {
        const char* table;
        const char* date;
        const char* day;
    };
    const Case cases[] = {{"DM", "DMDTC", "DMDY"},     {"AE", "AESTDTC", "AESTDY"},
                          {"AE", "AEENDTC", "AEENDY"}, {"EX", "EXSTDTC", "EXSTDY"},
                          {"EX", "EXENDTC", "EXENDY"}, {"LB", "LBDTC", "LBDY"},
                          {"VS", "VSDTC", "VSDY"}};
    for (const auto& [name, date, day] : cases) {
        const StudyTable table(name);
        for (std::size_t row = 0; row < table.rowCount(); ++row) {
            const auto reference = dayNumber(ofSubject(table.text(row, "USUBJID"), "RFSTDTC"));
            const auto when = dayNumber(table.text(row, date));
            const double told = table.number(row, day);
            ASSERT_EQ(std::isnan(told), !reference || !when) << name << " row " << row;
            if (reference && when) {
                ASSERT_EQ(told, studyDayOf(*when, *reference)) << name << " row " << row;
            }
        }
    }
}

TEST_F(StudyDates, exposureCoversTheTreatmentWithoutGaps)
{
    const StudyTable exposure("EX");
    std::string subject;
    double nextDay = 0;
    for (std::size_t row = 0; row < exposure.rowCount(); ++row) {
        const double start = *dayNumber(exposure.text(row, "EXSTDTC"));
        if (exposure.text(row, "USUBJID") != subject) {
            subject = exposure.text(row, "USUBJID");
            EXPECT_EQ(exposure.text(row, "EXSTDTC"), ofSubject(subject, "RFXSTDTC"));
        } else {
            EXPECT_EQ(start, nextDay) << subject;
        }
        const auto& end = exposure.text(row, "EXENDTC");
        ASSERT_LE(start, *dayNumber(end)) << subject;
        nextDay = *dayNumber(end) + 1;
        const bool isLast =
            row + 1 == exposure.rowCount() || exposure.text(row + 1, "USUBJID") != subject;
        if (isLast) {
            EXPECT_EQ(end, ofSubject(subject, "RFXENDTC"));
        }
    }
}

TEST_F(StudyDates, analysisDatesOfSubjectsAreThoseOfDemographics)
{
    const StudyTable analysis("ADSL");
    for (std::size_t row = 0; row < analysis.rowCount(); ++row) {
        const auto& subject = analysis.text(row, "USUBJID");
        const auto& start = ofSubject(subject, "RFXSTDTC");
        ASSERT_EQ(start.empty(), std::isnan(analysis.number(row, "TRTSDT"))) << subject;
        if (start.empty()) {
            continue;
        }
        const double day = *dayNumber(start);
        const double minutes = std::stod(start.substr(11, 2)) * 60 + std::stod(start.substr(14));
        EXPECT_EQ(analysis.number(row, "TRTSDT"), day);
        EXPECT_EQ(analysis.number(row, "TRTSTM"), minutes * 60);
        EXPECT_EQ(analysis.number(row, "TRTSDTM"), day * 86400 + minutes * 60);
        EXPECT_EQ(analysis.number(row, "TRTEDT"), *dayNumber(ofSubject(subject, "RFXENDTC")));
        EXPECT_EQ(analysis.number(row, "TRTDURD"),
                  analysis.number(row, "TRTEDT") - analysis.number(row, "TRTSDT") + 1);
    }
}

void expectTreatmentEmergence(const StudyTable& analysis, std::size_t row, const std::string& told)
{
    const double start = analysis.number(row, "ASTDT");
    const bool isEmergent =
        start >= analysis.number(row, "TRTSDT") && start <= analysis.number(row, "TRTEDT") + 30;
    EXPECT_EQ(analysis.text(row, "TRTEMFL"), isEmergent ? "Y" : "");
    EXPECT_EQ(told, isEmergent ? "Y" : "N");
}

TEST_F(StudyDates, analysisEventsAgreeWithWhatWasReported)
{
    const StudyTable analysis("ADAE");
    const StudyTable supplemental("SUPPAE");
    const auto qualifiers = supplemental.rowsBy(Names{"USUBJID", "IDVARVAL", "QNAM"});
    for (std::size_t row = 0; row < analysis.rowCount(); ++row) {
        const auto id = analysis.key(row, Names{"USUBJID", "AESEQ"});
        SCOPED_TRACE(id);
        const auto& startText = analysis.text(row, "AESTDTC");
        const double start = analysis.number(row, "ASTDT");
        const double end = analysis.number(row, "AENDT");
        ASSERT_EQ(dayNumber(startText).value_or(start), start);
        ASSERT_EQ(analysis.text(row, "ASTDTF").empty(), startText.size() >= 10);
        ASSERT_EQ(std::isnan(analysis.number(row, "ASTDTM")), startText.size() < 16);
        ASSERT_EQ(std::isnan(end), analysis.text(row, "AEENDTC").empty());
        if (!std::isnan(end)) {
            ASSERT_LE(start, end);
            ASSERT_EQ(analysis.number(row, "ADURN"), end - start + 1);
            ASSERT_EQ(dayNumber(analysis.text(row, "AEENDTC")).value_or(end), end);
        }
        expectTreatmentEmergence(analysis, row,
                                 supplemental.text(qualifiers.at(id + "AETRTEM|"), "QVAL"));
    }
}

}  // namespace
