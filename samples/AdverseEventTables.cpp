#include "samples/AdverseEvents.h"
#include "samples/Demographics.h"
#include "samples/Random.h"

namespace samples {

namespace {

std::vector<Column> eventColumns()
{
    return {
        textColumn("STUDYID", "Study Identifier"),
        textColumn("DOMAIN", "Domain Abbreviation"),
        textColumn("USUBJID", "Unique Subject Identifier"),
        numberColumn("AESEQ", "Sequence Number"),
        textColumn("AESPID", "Sponsor-Defined Identifier"),
        textColumn("AETERM", "Reported Term for the Adverse Event"),
        textColumn("AEDECOD", "Dictionary-Derived Term"),
        textColumn("AEBODSYS", "Body System or Organ Class"),
        textColumn("AESEV", "Severity/Intensity"),
        textColumn("AESER", "Serious Event"),
        textColumn("AEACN", "Action Taken with Study Treatment"),
        textColumn("AEREL", "Causality"),
        textColumn("AEOUT", "Outcome of Adverse Event"),
        textColumn("AESDTH", "Results in Death"),
        textColumn("AESHOSP", "Requires or Prolongs Hospitalization"),
        textColumn("AESMIE", "Other Medically Important Serious Event"),
        textColumn("EPOCH", "Epoch"),
        textColumn("AESTDTC", "Start Date/Time of Adverse Event"),
        textColumn("AEENDTC", "End Date/Time of Adverse Event"),
        numberColumn("AESTDY", "Study Day of Start of Adverse Event"),
        numberColumn("AEENDY", "Study Day of End of Adverse Event"),
        textColumn("AEENRF", "End Relative to Reference Period"),
    };
}

const char* epochOf(const AdverseEvent& event)
{
    if (event.start.precision < Precision::Day) {
        return "";
    }
    if (event.start.when < *event.subject->firstDose) {
        return "SCREENING";
    }
    const bool isTreated = dayOf(event.start.when) <= dayOf(event.subject->lastDose);
    return isTreated ? "TREATMENT" : "FOLLOW-UP";
}

double reportedStudyDay(const Subject& subject, const ReportedMoment& moment)
{
    return moment.precision < Precision::Day ? missing : subject.dayInStudy(dayOf(moment.when));
}

Row eventRow(const AdverseEvent& event)
{
    const auto& subject = *event.subject;
    const auto seriousness = [&](bool holds) { return !event.isSerious ? "" : holds ? "Y" : "N"; };
    const bool isHospital = event.isSerious && static_cast<int>(event.sequence) % 3 != 0;
    return {studyId,
            "AE",
            subject.id,
            event.sequence,
            event.sponsorId,
            event.reportedTerm,
            event.term->decoded,
            event.term->bodySystem,
            event.severityText(),
            event.isSerious ? "Y" : "N",
            event.action,
            event.relation,
            event.outcome,
            seriousness(event.isFatal),
            seriousness(isHospital),
            seriousness(!isHospital && !event.isFatal),
            epochOf(event),
            isoText(event.start.when, event.start.precision),
            event.end ? isoText(event.end->when, event.end->precision) : "",
            reportedStudyDay(subject, event.start),
            event.end ? reportedStudyDay(subject, *event.end) : missing,
            event.end ? "" : "AFTER"};
}

std::string makeComment(Random& random)
{
    constexpr std::size_t limit = 200;  // bytes of a text in version 5 transport files
    std::string comment = random.pick(commentSentences());
    for (int wanted = random.between(0, 5); wanted > 0; --wanted) {
        const std::string sentence = random.pick(commentSentences());
        const bool isRepeated = comment.find(sentence) != std::string::npos;
        if (!isRepeated && comment.size() + 1 + sentence.size() <= limit) {
            comment += " " + sentence;
        }
    }
    return comment;
}

class QualifierRows
{
public:
    QualifierRows(Table& table, const AdverseEvent& event)
        : m_table(table)
        , m_event(event)
    { }

    void addBySequence(const char* name, const char* label, std::string value, const char* origin,
                       const char* evaluator)
    {
        const auto sequence = std::to_string(static_cast<int>(m_event.sequence));
        add("AESEQ", sequence, name, label, std::move(value), origin, evaluator);
    }

    void addBySponsorId(const char* name, const char* label, std::string value, const char* origin,
                        const char* evaluator)
    {
        add("AESPID", m_event.sponsorId, name, label, std::move(value), origin, evaluator);
    }

private:
    void add(const char* idVariable, const std::string& idValue, const char* name,
             const char* label, std::string value, const char* origin, const char* evaluator)
    {
        m_table.rows.push_back({studyId, "AE", m_event.subject->id, idVariable, idValue, name,
                                label, std::move(value), origin, evaluator});
    }

    Table& m_table;
    const AdverseEvent& m_event;
};

}  // namespace

Table adverseEvents(std::span<const AdverseEvent> events)
{
    Table table{{"AE", "Adverse Events", eventColumns()}, {}};
    for (const auto& event : events) {
        table.rows.push_back(eventRow(event));
    }
    fitTextLengths(table);
    return table;
}

// The page was entered under the sponsor's number, and so were a few late comments: one qualifier
// of the set then comes under two identifying variables.
Table adverseEventQualifiers(std::span<const AdverseEvent> events, std::uint64_t seed)
{
    constexpr const char* comment = "Investigator's Comment";
    Random random(seed, "SUPPAE");
    Table table{{"SUPPAE", "Supplemental Qualifiers for AE", qualifierColumns()}, {}};
    for (const auto& event : events) {
        QualifierRows rows(table, event);
        rows.addBySequence("AETRTEM", "Treatment Emergent Flag",
                           event.isTreatmentEmergent() ? "Y" : "N", "DERIVED",
                           "CLINICAL STUDY SPONSOR");
        if (random.chance(0.35)) {
            rows.addBySequence("AECOMM", comment, makeComment(random), "CRF", "INVESTIGATOR");
        } else if (random.chance(0.05)) {
            rows.addBySponsorId("AECOMM", comment, makeComment(random), "CRF", "INVESTIGATOR");
        }
        if (random.chance(0.6)) {
            rows.addBySponsorId("AECRFPG", "CRF Page of the Event",
                                std::to_string(random.between(41, 63)), "CRF", "");
        }
    }
    fitTextLengths(table);
    return table;
}

}  // namespace samples
