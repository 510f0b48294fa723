#pragma once

#include "samples/AdverseEventTerms.h"
#include "samples/Population.h"
#include "samples/Table.h"

#include <span>

namespace samples {

/// A moment as it was written down.
struct ReportedMoment
{
    Moment when;
    Precision precision = Precision::Day;
};

/// A day as the analysis takes it: what is not known is filled up, and the flag tells what was.
struct AnalysisDay
{
    Date day;
    const char* imputed = "";  ///< "M" month and day, "D" day
};

struct AdverseEvent
{
    const Subject* subject = nullptr;
    double sequence = 0;  ///< AESEQ, in order of start
    std::string sponsorId{};  ///< AESPID, in order of reporting
    const EventTerm* term = nullptr;
    const char* reportedTerm = "";
    int severity = 1;  ///< 1 mild to 3 severe
    bool isSerious = false;
    bool isFatal = false;
    const char* relation = "";
    const char* action = "";
    const char* outcome = "";
    ReportedMoment start{};
    std::optional<ReportedMoment> end{};  ///< none while it goes on

    /// An unknown part of the start is filled up to the first dose where that may be the day, else
    /// to the first day possible; never beyond the analysis end.
    [[nodiscard]] AnalysisDay analysisStart() const;

    /// An unknown part of the end is filled up to the last day possible or the last contact.
    [[nodiscard]] std::optional<AnalysisDay> analysisEnd() const;

    /// Began from the first dose to 30 days after the last.
    [[nodiscard]] bool isTreatmentEmergent() const;

    [[nodiscard]] const char* severityText() const;
};

/// Events in order of subject and AESEQ. They point to the subjects.
[[nodiscard]] std::vector<AdverseEvent> makeAdverseEvents(std::span<const Subject> subjects,
                                                          std::uint64_t seed);

[[nodiscard]] Table adverseEvents(std::span<const AdverseEvent> events);  ///< SDTM AE
[[nodiscard]] Table adverseEventQualifiers(std::span<const AdverseEvent> events,
                                           std::uint64_t seed);  ///< SDTM SUPPAE

}  // namespace samples
