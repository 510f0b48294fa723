#include "samples/AnalysisEvents.h"

namespace samples {

namespace {

std::vector<Column> eventColumns()
{
    return {
        textColumn("STUDYID", "Study Identifier"),
        textColumn("USUBJID", "Unique Subject Identifier"),
        textColumn("SUBJID", "Subject Identifier for the Study"),
        textColumn("SITEID", "Study Site Identifier"),
        textColumn("TRTA", "Actual Treatment"),
        numberColumn("TRTAN", "Actual Treatment (N)", "", 1),
        numberColumn("AGE", "Age", "", 3),
        textColumn("SEX", "Sex"),
        textColumn("RACE", "Race"),
        textColumn("SAFFL", "Safety Population Flag"),
        numberColumn("TRTSDT", "Date of First Exposure to Treatment", "DATE", 9),
        numberColumn("TRTEDT", "Date of Last Exposure to Treatment", "DATE", 9),
        numberColumn("AESEQ", "Sequence Number"),
        textColumn("AETERM", "Reported Term for the Adverse Event"),
        textColumn("AEDECOD", "Dictionary-Derived Term"),
        textColumn("AEBODSYS", "Body System or Organ Class"),
        textColumn("AESER", "Serious Event"),
        textColumn("AESEV", "Severity/Intensity"),
        numberColumn("AESEVN", "Severity/Intensity (N)", "", 1),
        textColumn("AEREL", "Causality"),
        textColumn("AEACN", "Action Taken with Study Treatment"),
        textColumn("AEOUT", "Outcome of Adverse Event"),
        textColumn("AESTDTC", "Start Date/Time of Adverse Event"),
        numberColumn("ASTDT", "Analysis Start Date", "DATE", 9),
        textColumn("ASTDTF", "Analysis Start Date Imputation Flag"),
        numberColumn("ASTTM", "Analysis Start Time", "TIME", 8),
        numberColumn("ASTDTM", "Analysis Start Datetime", "DATETIME", 20),
        textColumn("AEENDTC", "End Date/Time of Adverse Event"),
        numberColumn("AENDT", "Analysis End Date", "DATE", 9),
        textColumn("AENDTF", "Analysis End Date Imputation Flag"),
        numberColumn("ASTDY", "Analysis Start Relative Day"),
        numberColumn("AENDY", "Analysis End Relative Day"),
        numberColumn("ADURN", "AE Duration (N)", "", 8, 1),
        textColumn("ADURU", "AE Duration Units"),
        textColumn("TRTEMFL", "Treatment Emergent Analysis Flag"),
        textColumn("AOCCFL", "1st Occurrence of Any AE Flag"),
    };
}

/// The end of an event in the analysis; nothing while the event goes on.
struct Ending
{
    std::string reported;
    double day = missing;
    const char* imputed = "";
    double relativeDay = missing;
    double duration = missing;
    const char* durationUnit = "";
};

Ending endingOf(const AdverseEvent& event)
{
    const auto end = event.analysisEnd();
    if (!end) {
        return {};
    }
    return {.reported = isoText(event.end->when, event.end->precision),
            .day = sasDate(end->day),
            .imputed = end->imputed,
            .relativeDay = event.subject->dayInStudy(end->day),
            .duration = sasDate(end->day) - sasDate(event.analysisStart().day) + 1,
            .durationUnit = "DAYS"};
}

Row eventRow(const AdverseEvent& event, bool isFirst)
{
    const auto& subject = *event.subject;
    const auto start = event.analysisStart();
    const auto ending = endingOf(event);
    const bool hasTime = event.start.precision == Precision::Minute;
    return {studyId,
            subject.id,
            subject.numberAtSite,
            subject.site->id,
            subject.arm->name,
            subject.arm->number,
            double(subject.age),
            subject.sex,
            subject.race,
            "Y",
            sasDate(subject.firstDoseDay()),
            sasDate(dayOf(subject.lastDose)),
            event.sequence,
            event.reportedTerm,
            event.term->decoded,
            event.term->bodySystem,
            event.isSerious ? "Y" : "N",
            event.severityText(),
            double(event.severity),
            event.relation,
            event.action,
            event.outcome,
            isoText(event.start.when, event.start.precision),
            sasDate(start.day),
            start.imputed,
            hasTime ? sasTime(event.start.when) : missing,
            hasTime ? sasDateTime(event.start.when) : missing,
            ending.reported,
            ending.day,
            ending.imputed,
            subject.dayInStudy(start.day),
            ending.relativeDay,
            ending.duration,
            ending.durationUnit,
            event.isTreatmentEmergent() ? "Y" : "",
            isFirst ? "Y" : ""};
}

}  // namespace

Table analysisEvents(std::span<const AdverseEvent> events)
{
    Table table{{"ADAE", "Adverse Events Analysis Dataset", eventColumns()}, {}};
    const Subject* flagged = nullptr;
    for (const auto& event : events) {
        const bool isFirst = event.isTreatmentEmergent() && event.subject != flagged;
        flagged = isFirst ? event.subject : flagged;
        table.rows.push_back(eventRow(event, isFirst));
    }
    fitTextLengths(table);
    return table;
}

}  // namespace samples
