#include "samples/Population.h"

#include "samples/Random.h"
#include "samples/Table.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace samples {

namespace {

using std::chrono::days;
using std::chrono::minutes;

constexpr std::array sites{
    Site{"101", "DEU", "INV011", "Jürgen Weißmöller"},
    Site{"102", "DEU", "INV012", "Anneliese Grünkötter"},
    Site{"203", "FRA", "INV021", "Hélène Brévaux"},
    Site{"204", "FRA", "INV022", "Benoît d'Auzelle-Crémieux"},
    Site{"305", "GRC", "INV031", "Eléni Vrachoú"},
    Site{"406", "JPN", "INV041", "Haruka Minobe"},
    Site{"507", "POL", "INV051", "Łucja Żędzianowska"},
    Site{"608", "ESP", "INV061", "Íñigo Muñárriz"},
    Site{"709", "SWE", "INV071", "Åsa Brännlid"},
    Site{"810", "USA", "INV081", "Marcus O'Dellaway"},
};

constexpr std::array treatmentArms{
    Arm{"PBO", "Placebo", 0, 0},
    Arm{"OZQ10", "Ozelquarine 10 mg", 1, 10},
    Arm{"OZQ20", "Ozelquarine 20 mg", 2, 20},
};

constexpr Arm screenFailure{"SCRNFAIL", "Screen Failure", missing, missing};

struct PlannedVisit
{
    double number;
    const char* name;
    int day;
};

constexpr std::array treatmentVisits{
    PlannedVisit{2, "BASELINE", 1}, PlannedVisit{3, "WEEK 1", 8},    PlannedVisit{4, "WEEK 2", 15},
    PlannedVisit{5, "WEEK 4", 29},  PlannedVisit{6, "WEEK 6", 43},   PlannedVisit{7, "WEEK 8", 57},
    PlannedVisit{8, "WEEK 12", 85}, PlannedVisit{9, "WEEK 16", 113},
};

constexpr std::array dropOutReasons{
    "ADVERSE EVENT",     "ADVERSE EVENT",      "WITHDRAWAL BY SUBJECT", "WITHDRAWAL BY SUBJECT",
    "LOST TO FOLLOW-UP", "PROTOCOL VIOLATION", "LACK OF EFFICACY",      "DEATH",
};

bool is(const char* text, const char* other)
{
    return std::strcmp(text, other) == 0;
}

void chooseRace(Subject& subject, Random& random)
{
    const auto* const country = subject.site->country;
    subject.ethnicity = "NOT HISPANIC OR LATINO";
    if (is(country, "FRA")) {
        subject.race = "NOT REPORTED";  // may not be asked there
        subject.ethnicity = "NOT REPORTED";
    } else if (is(country, "JPN")) {
        subject.race = random.chance(0.97) ? "ASIAN" : "WHITE";
    } else if (is(country, "USA")) {
        constexpr std::array races{"WHITE", "WHITE", "BLACK OR AFRICAN AMERICAN", "ASIAN", "OTHER"};
        subject.race = random.pick(races);
        subject.ethnicity = random.chance(0.3) ? "HISPANIC OR LATINO" : subject.ethnicity;
    } else {
        constexpr std::array races{"ASIAN", "BLACK OR AFRICAN AMERICAN", "OTHER", "UNKNOWN"};
        subject.race = random.chance(0.88) ? "WHITE" : random.pick(races);
        subject.ethnicity =
            is(country, "ESP") && random.chance(0.6) ? "HISPANIC OR LATINO" : subject.ethnicity;
    }
}

void choosePerson(Subject& subject, Random& random)
{
    subject.sex = random.chance(0.52) ? "F" : "M";
    subject.birth = subject.consent - days(random.between(18 * 366, 80 * 365));
    subject.age = yearsBetween(subject.birth, subject.consent);
    subject.birthPrecision = is(subject.site->country, "DEU") ? Precision::Year
        : random.chance(0.08)                                 ? Precision::Month
                                                              : Precision::Day;
    const bool isMale = is(subject.sex, "M");
    subject.heightCm = static_cast<int>(random.normal(isMale ? 177 : 164, 7));
    const double bodyMass = std::max(17.5, random.normal(26.5, 4));
    const double metres = subject.heightCm / 100;
    subject.weightKg = static_cast<int>(bodyMass * metres * metres * 10) / 10.0;
    chooseRace(subject, random);
}

void addVisit(Subject& subject, const Visit& visit)
{
    subject.visits.push_back(visit);
    subject.lastContact = dayOf(visit.when);
}

/// Baseline is on the day of the first dose and before it; other visits may shift by two days.
void addTreatmentVisits(Subject& subject, int daysTreated, Random& random)
{
    const auto start = subject.firstDose.value();
    for (const auto& planned : treatmentVisits) {
        const int shift = planned.day > 1 ? random.between(-2, 2) : 0;
        const auto day = dayOf(start) + days(planned.day - 1 + shift);
        if (planned.day > 1 && (day - dayOf(start)).count() >= daysTreated) {
            break;
        }
        const auto when = planned.day == 1 ? start - minutes(random.between(20, 75))
                                           : at(day, random.between(7, 15), random.between(0, 59));
        addVisit(subject, {planned.number, planned.name, double(planned.day), "TREATMENT", when});
        if (planned.day > 8 && planned.day < 113 && random.chance(0.025)) {
            const auto extra = at(day + days(random.between(3, 5)), 10, random.between(0, 59));
            if ((dayOf(extra) - dayOf(start)).count() < daysTreated) {
                addVisit(subject,
                         {planned.number + 0.1, "UNSCHEDULED", missing, "TREATMENT", extra});
            }
        }
    }
}

void endStudy(Subject& subject, Random& random)
{
    const auto lastDay = dayOf(subject.lastDose);
    if (is(subject.dropOutReason, "DEATH")) {
        subject.death = lastDay + days(random.between(0, 6));
        subject.lastContact = *subject.death;
    } else if (is(subject.dropOutReason, "LOST TO FOLLOW-UP")) {
        subject.lastContact = lastDay + days(random.between(1, 30));
    } else {
        const auto day = lastDay + days(14 + random.between(-2, 2));
        const auto when = at(day, random.between(8, 15), random.between(0, 59));
        addVisit(subject, {10, "FOLLOW-UP", 127, "FOLLOW-UP", when});
    }
}

void treat(Subject& subject, Random& random)
{
    subject.firstDose = at(subject.consent + days(random.between(7, 21)), random.between(8, 11),
                           random.between(0, 59));
    int daysTreated = std::numeric_limits<int>::max();
    if (random.chance(0.16)) {
        subject.dropOutReason = random.pick(dropOutReasons);
        daysTreated = random.between(9, 104);
    }
    addTreatmentVisits(subject, daysTreated, random);
    const bool isCompleter = *subject.dropOutReason == '\0';
    const auto lastDay =
        isCompleter ? subject.lastContact : subject.firstDoseDay() + days(daysTreated - 1);
    subject.lastDose = at(lastDay, random.between(7, 9), random.between(0, 59));
    endStudy(subject, random);
}

Subject makeSubject(const Site& site, int numberAtSite, Random& random)
{
    Subject subject;
    subject.site = &site;
    subject.numberAtSite = site.id + std::to_string(1000 + numberAtSite).substr(1);
    subject.id = std::string(studyId) + "-" + subject.numberAtSite;
    subject.consent = makeDate(2023, 1, 9) + days(random.between(0, 360));
    choosePerson(subject, random);
    addVisit(subject,
             {1, "SCREENING", -14, "SCREENING",
              at(subject.consent, random.between(8, 15), random.between(0, 59))});
    if (random.chance(0.05)) {
        subject.arm = &screenFailure;
        subject.dropOutReason = "SCREEN FAILURE";
    } else {
        subject.arm = &random.pick(treatmentArms);
        treat(subject, random);
    }
    return subject;
}

}  // namespace

const Arm& screenFailureArm()
{
    return screenFailure;
}

double Subject::dayInStudy(Date day) const
{
    return isTreated() ? studyDay(day, firstDoseDay()) : missing;
}

std::vector<Subject> makeSubjects(std::uint64_t seed, int count)
{
    Random random(seed, "subjects");
    std::array<int, sites.size()> enrolled{};
    std::vector<Subject> subjects;
    for (int i = 0; i < count; ++i) {
        const auto site = static_cast<std::size_t>(random.between(0, int(sites.size()) - 1));
        subjects.push_back(makeSubject(sites.at(site), ++enrolled.at(site), random));
    }
    std::ranges::sort(subjects, {}, &Subject::id);
    return subjects;
}

}  // namespace samples
