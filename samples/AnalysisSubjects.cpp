#include "samples/AnalysisSubjects.h"

#include "samples/Decimal.h"

namespace samples {

namespace {

std::vector<Column> subjectColumns()
{
    return {
        textColumn("STUDYID", "Study Identifier"),
        textColumn("USUBJID", "Unique Subject Identifier"),
        textColumn("SUBJID", "Subject Identifier for the Study"),
        textColumn("SITEID", "Study Site Identifier"),
        textColumn("INVNAM", "Investigator Name"),
        textColumn("COUNTRY", "Country"),
        numberColumn("AGE", "Age", "", 3),
        textColumn("AGEU", "Age Units"),
        textColumn("AGEGR1", "Pooled Age Group 1"),
        numberColumn("AGEGR1N", "Pooled Age Group 1 (N)", "", 1),
        textColumn("SEX", "Sex"),
        textColumn("RACE", "Race"),
        textColumn("ETHNIC", "Ethnicity"),
        textColumn("SAFFL", "Safety Population Flag"),
        textColumn("ITTFL", "Intent-To-Treat Population Flag"),
        textColumn("COMPLFL", "Completers Population Flag"),
        textColumn("ARM", "Description of Planned Arm"),
        textColumn("TRT01P", "Planned Treatment for Period 01"),
        numberColumn("TRT01PN", "Planned Treatment for Period 01 (N)", "", 1),
        textColumn("TRT01A", "Actual Treatment for Period 01"),
        numberColumn("TRT01AN", "Actual Treatment for Period 01 (N)", "", 1),
        numberColumn("RFICDT", "Date of Informed Consent", "YYMMDD", 10),
        numberColumn("TRTSDT", "Date of First Exposure to Treatment", "DATE", 9),
        numberColumn("TRTSDTM", "Datetime of First Exposure to Treatment", "DATETIME", 20),
        numberColumn("TRTSTM", "Time of First Exposure to Treatment", "TIME", 8),
        numberColumn("TRTEDT", "Date of Last Exposure to Treatment", "DATE", 9),
        numberColumn("TRTEDTM", "Datetime of Last Exposure to Treatment", "DATETIME", 20),
        numberColumn("TRTDURD", "Total Treatment Duration (Days)"),
        numberColumn("EOSDT", "End of Study Date", "DATE", 9),
        textColumn("EOSSTT", "End of Study Status"),
        textColumn("DCSREAS", "Reason for Discontinuation from Study"),
        numberColumn("DTHDT", "Date of Death", "DATE", 9),
        textColumn("DTHFL", "Subject Death Flag"),
        numberColumn("HEIGHTBL", "Baseline Height (cm)", "", 5, 1),
        numberColumn("WEIGHTBL", "Baseline Weight (kg)", "", 5, 1),
        numberColumn("BMIBL", "Baseline BMI (kg/m2)", "", 8, 1),
    };
}

struct AgeGroup
{
    const char* text;
    double number;
};

AgeGroup ageGroup(int age)
{
    return age < 40 ? AgeGroup{"<40", 1} : age < 65 ? AgeGroup{"40-64", 2} : AgeGroup{">=65", 3};
}

/// What only treated subjects have.
struct Treatment
{
    const char* name = "";
    double startDay = missing;
    double start = missing;
    double startTime = missing;
    double endDay = missing;
    double end = missing;
    double duration = missing;
};

Treatment treatmentOf(const Subject& subject)
{
    if (!subject.isTreated()) {
        return {};
    }
    const auto first = *subject.firstDose;
    const auto lastDay = dayOf(subject.lastDose);
    return {.name = subject.arm->name,
            .startDay = sasDate(dayOf(first)),
            .start = sasDateTime(first),
            .startTime = sasTime(first),
            .endDay = sasDate(lastDay),
            .end = sasDateTime(subject.lastDose),
            .duration = subject.dayInStudy(lastDay)};
}

double bodyMassIndex(const Subject& subject)
{
    const double metres = subject.heightCm / 100;
    return decimalValue(decimalText(subject.weightKg / (metres * metres), 2));
}

Row subjectRow(const Subject& subject)
{
    const auto age = ageGroup(subject.age);
    const auto treatment = treatmentOf(subject);
    const bool isTreated = subject.isTreated();
    const bool isCompleter = *subject.dropOutReason == '\0';
    const auto* const flag = isTreated ? "Y" : "N";
    return {studyId,
            subject.id,
            subject.numberAtSite,
            subject.site->id,
            subject.site->investigator,
            subject.site->country,
            double(subject.age),
            "YEARS",
            age.text,
            age.number,
            subject.sex,
            subject.race,
            subject.ethnicity,
            flag,
            flag,
            isCompleter ? "Y" : "N",
            subject.arm->name,
            treatment.name,
            subject.arm->number,
            treatment.name,
            subject.arm->number,
            sasDate(subject.consent),
            treatment.startDay,
            treatment.start,
            treatment.startTime,
            treatment.endDay,
            treatment.end,
            treatment.duration,
            sasDate(subject.lastContact),
            isCompleter     ? "COMPLETED"
                : isTreated ? "DISCONTINUED"
                            : "SCREEN FAILURE",
            isTreated ? subject.dropOutReason : "",
            subject.death ? sasDate(*subject.death) : missing,
            subject.death ? "Y" : "",
            isTreated ? subject.heightCm : missing,
            isTreated ? subject.weightKg : missing,
            isTreated ? bodyMassIndex(subject) : missing};
}

}  // namespace

Table analysisSubjects(std::span<const Subject> subjects)
{
    Table table{{"ADSL", "Subject-Level Analysis Dataset", subjectColumns()}, {}};
    for (const auto& subject : subjects) {
        table.rows.push_back(subjectRow(subject));
    }
    fitTextLengths(table);
    return table;
}

}  // namespace samples
