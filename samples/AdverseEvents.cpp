#include "samples/AdverseEvents.h"

#include "samples/Random.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace samples {

namespace {

using std::chrono::days;

constexpr const char* notResolved = "NOT RECOVERED/NOT RESOLVED";

Precision choosePrecision(Random& random)
{
    const double draw = random.uniform();
    return draw < 0.05 ? Precision::Year
        : draw < 0.13  ? Precision::Month
        : draw < 0.85  ? Precision::Day
                       : Precision::Minute;
}

/// The hours of the first dose are left free, so that an event of that day came after it.
Moment chooseStart(const Subject& subject, Random& random)
{
    const auto firstDay = subject.firstDoseDay();
    if (random.chance(0.06)) {
        const auto daysBefore = (firstDay - subject.consent).count();
        const auto day = firstDay - days(random.between(1, int(daysBefore)));
        return at(day, random.between(16, 21), random.between(0, 59));
    }
    const auto lastDay = std::min(subject.lastContact, dayOf(subject.lastDose) + days(20));
    const auto day = firstDay + days(random.between(0, int((lastDay - firstDay).count())));
    return at(day, random.between(12, 21), random.between(0, 59));
}

void chooseEnd(AdverseEvent& event, Random& random)
{
    constexpr std::array resolved{"RECOVERED/RESOLVED", "RECOVERED/RESOLVED", "RECOVERED/RESOLVED",
                                  "RECOVERED/RESOLVED WITH SEQUELAE"};
    constexpr std::array open{notResolved, "RECOVERING/RESOLVING", "UNKNOWN"};
    const int daysLong = random.chance(0.7) ? random.between(0, 7) : random.between(8, 60);
    const auto day = dayOf(event.start.when) + days(daysLong);
    if (day > event.subject->lastContact || random.chance(0.05)) {
        event.outcome = random.pick(open);
        return;
    }
    event.outcome = random.pick(resolved);
    event.end = {at(day, random.between(22, 23), random.between(0, 59)), choosePrecision(random)};
}

void chooseJudgement(AdverseEvent& event, Random& random)
{
    constexpr std::array relations{"NONE", "UNLIKELY", "POSSIBLE", "PROBABLE"};
    constexpr std::array actions{"DOSE NOT CHANGED", "DOSE NOT CHANGED", "DOSE NOT CHANGED",
                                 "DRUG INTERRUPTED", "DOSE REDUCED"};
    const double draw = random.uniform();
    event.severity = draw < 0.6 ? 1 : draw < 0.9 ? 2 : 3;
    event.isSerious = random.chance(event.severity == 3 ? 0.35 : 0.02);
    const bool isUnderTreatment = event.start.when >= *event.subject->firstDose
        && event.start.when <= event.subject->lastDose;
    const bool isBefore = event.start.when < *event.subject->firstDose;
    event.relation = isBefore ? "NONE" : random.pick(relations);
    event.action = isUnderTreatment ? random.pick(actions) : "NOT APPLICABLE";
}

AdverseEvent makeEvent(const Subject& subject, Random& random)
{
    AdverseEvent event{.subject = &subject};
    event.term = &random.pick(eventTerms());
    event.reportedTerm = random.pick(event.term->reported);
    event.start = {chooseStart(subject, random), choosePrecision(random)};
    chooseEnd(event, random);
    chooseJudgement(event, random);
    return event;
}

/// The event that ended the treatment of a subject who left for one, or who died of one.
AdverseEvent makeLastEvent(const Subject& subject, Random& random)
{
    auto event = makeEvent(subject, random);
    event.start = {at(dayOf(subject.lastDose), random.between(4, 6), random.between(0, 59)),
                   Precision::Minute};
    event.action = "DRUG WITHDRAWN";
    event.relation = "POSSIBLE";
    event.severity = 3;
    event.outcome = notResolved;
    event.end.reset();
    if (subject.death) {
        event.term = &random.pick(fatalTerms());
        event.reportedTerm = random.pick(event.term->reported);
        event.isSerious = true;
        event.isFatal = true;
        event.outcome = "FATAL";
        event.end = {at(*subject.death, 23, 0), Precision::Day};
    }
    return event;
}

std::vector<AdverseEvent> eventsOf(const Subject& subject, Random& random)
{
    std::vector<AdverseEvent> events;
    const int count = random.chance(0.15) ? 0 : random.between(1, random.chance(0.2) ? 11 : 6);
    events.reserve(static_cast<std::size_t>(count) + 1);
    for (int i = 0; i < count; ++i) {
        events.push_back(makeEvent(subject, random));
    }
    if (subject.death || std::string_view(subject.dropOutReason) == "ADVERSE EVENT") {
        events.push_back(makeLastEvent(subject, random));
    }
    for (std::size_t i = 0; i < events.size(); ++i) {
        events[i].sponsorId = "E" + std::to_string(101 + i).substr(1);
    }
    std::ranges::stable_sort(events, {},
                             [](const AdverseEvent& event) { return event.start.when; });
    for (std::size_t i = 0; i < events.size(); ++i) {
        events[i].sequence = double(i + 1);
    }
    return events;
}

const char* imputationFlag(Precision precision)
{
    return precision == Precision::Year ? "M" : precision == Precision::Month ? "D" : "";
}

}  // namespace

AnalysisDay AdverseEvent::analysisStart() const
{
    const auto first = firstPossible(start.when, start.precision);
    const auto last = lastPossible(start.when, start.precision);
    const auto dose = subject->firstDoseDay();
    const auto ending = analysisEnd();
    const bool mayBeDose = first <= dose && dose <= last && (!ending || dose <= ending->day);
    return {mayBeDose ? dose : first, imputationFlag(start.precision)};
}

std::optional<AnalysisDay> AdverseEvent::analysisEnd() const
{
    if (!end) {
        return std::nullopt;
    }
    const auto last = lastPossible(end->when, end->precision);
    return AnalysisDay{std::min(last, subject->lastContact), imputationFlag(end->precision)};
}

bool AdverseEvent::isTreatmentEmergent() const
{
    const auto day = analysisStart().day;
    return day >= subject->firstDoseDay() && day <= dayOf(subject->lastDose) + days(30);
}

const char* AdverseEvent::severityText() const
{
    constexpr std::array texts{"MILD", "MODERATE", "SEVERE"};
    return texts.at(static_cast<std::size_t>(severity) - 1);
}

std::vector<AdverseEvent> makeAdverseEvents(std::span<const Subject> subjects, std::uint64_t seed)
{
    Random random(seed, "AE");
    std::vector<AdverseEvent> all;
    for (const auto& subject : subjects) {
        if (subject.isTreated()) {
            const auto events = eventsOf(subject, random);
            all.insert(all.end(), events.begin(), events.end());
        }
    }
    return all;
}

}  // namespace samples
