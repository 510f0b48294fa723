#pragma once

#include "samples/Calendar.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace samples {

inline constexpr const char* studyId = "QLN-101";

struct Site
{
    const char* id;
    const char* country;  ///< ISO 3166, three letters
    const char* investigatorId;
    const char* investigator;
};

struct Arm
{
    const char* code;
    const char* name;
    double number;  ///< order in analyses; missing for screen failures
    double dose;  ///< mg a day
};

[[nodiscard]] const Arm& screenFailureArm();

struct Visit
{
    double number;
    const char* name;
    double plannedDay;  ///< missing for an unscheduled visit
    const char* epoch;
    Moment when;
};

/// What one subject went through; every domain is told from it. A screen failure has no first dose.
struct Subject
{
    std::string id;  ///< USUBJID
    std::string numberAtSite;  ///< SUBJID
    const Site* site = nullptr;
    const Arm* arm = nullptr;
    Date birth;
    Precision birthPrecision = Precision::Day;
    int age = 0;
    const char* sex = "";
    const char* race = "";
    const char* ethnicity = "";
    double heightCm = 0;
    double weightKg = 0;
    Date consent;
    std::optional<Moment> firstDose;
    Moment lastDose;  ///< only with a first dose
    Date lastContact;
    std::optional<Date> death;
    const char* dropOutReason = "";  ///< empty for who completed the study
    std::vector<Visit> visits;  ///< in order of time

    [[nodiscard]] bool isTreated() const { return firstDose.has_value(); }
    [[nodiscard]] Date firstDoseDay() const { return dayOf(firstDose.value()); }

    /// Day of the study relative to the first dose, missing for screen failures.
    [[nodiscard]] double dayInStudy(Date day) const;
};

/// Subjects in order of their id.
[[nodiscard]] std::vector<Subject> makeSubjects(std::uint64_t seed, int count);

}  // namespace samples
