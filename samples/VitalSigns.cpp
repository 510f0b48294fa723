#include "samples/Decimal.h"
#include "samples/Findings.h"
#include "samples/Random.h"

#include <array>
#include <string_view>

namespace samples {

namespace {

struct Sign
{
    const char* code;
    const char* name;
    const char* unit;
    const char* position;
    const char* location;
    double mean;
    double deviation;
    int decimals;
};

constexpr std::array signs{
    Sign{"SYSBP", "Systolic Blood Pressure", "mmHg", "SITTING", "ARM", 128, 13, 0},
    Sign{"DIABP", "Diastolic Blood Pressure", "mmHg", "SITTING", "ARM", 79, 8, 0},
    Sign{"PULSE", "Pulse Rate", "beats/min", "SITTING", "RADIAL ARTERY", 71, 9, 0},
    Sign{"TEMP", "Temperature", "C", "", "EAR", 36.6, 0.35, 1},
    Sign{"WEIGHT", "Weight", "kg", "", "", 0, 0.9, 1},
    Sign{"HEIGHT", "Height", "cm", "", "", 0, 0, 0},
};

std::vector<Column> vitalSignsColumns()
{
    return {
        textColumn("STUDYID", "Study Identifier"),
        textColumn("DOMAIN", "Domain Abbreviation"),
        textColumn("USUBJID", "Unique Subject Identifier"),
        numberColumn("VSSEQ", "Sequence Number"),
        textColumn("VSTESTCD", "Vital Signs Test Short Name"),
        textColumn("VSTEST", "Vital Signs Test Name"),
        textColumn("VSPOS", "Vital Signs Position of Subject"),
        textColumn("VSORRES", "Result or Finding in Original Units"),
        textColumn("VSORRESU", "Original Units"),
        textColumn("VSSTRESC", "Character Result/Finding in Std Format"),
        numberColumn("VSSTRESN", "Numeric Result/Finding in Standard Units"),
        textColumn("VSSTRESU", "Standard Units"),
        textColumn("VSSTAT", "Completion Status"),
        textColumn("VSREASND", "Reason Not Performed"),
        textColumn("VSLOC", "Location of Vital Signs Measurement"),
        textColumn("VSBLFL", "Baseline Flag"),
        numberColumn("VISITNUM", "Visit Number"),
        textColumn("VISIT", "Visit Name"),
        numberColumn("VISITDY", "Planned Study Day of Visit"),
        textColumn("EPOCH", "Epoch"),
        textColumn("VSDTC", "Date/Time of Measurements"),
        numberColumn("VSDY", "Study Day of Vital Signs"),
    };
}

bool is(const Sign& sign, std::string_view code)
{
    return sign.code == code;
}

// Weight and height are the subject's own; weight drifts after baseline.
double measure(const Sign& sign, const Subject& subject, const Visit& visit, Random& random)
{
    if (is(sign, "HEIGHT")) {
        return subject.heightCm;
    }
    if (is(sign, "WEIGHT")) {
        return subject.weightKg + (visit.number > 2 ? random.normal(0, sign.deviation) : 0);
    }
    const double effect = is(sign, "SYSBP") && visit.number > 2 ? subject.arm->dose / -2.5 : 0;
    return random.normal(sign.mean, sign.deviation) + effect;
}

void addSign(Table& table, const Subject& subject, const Visit& visit, const Sign& sign,
             double sequence, Random& random)
{
    const bool isBody = is(sign, "WEIGHT") || is(sign, "HEIGHT");
    const bool isDone = isBody || !random.chance(0.015);
    const double value = measure(sign, subject, visit, random);
    const auto standard = isDone ? decimalText(value, sign.decimals) : "";
    const bool isFahrenheit = is(sign, "TEMP") && std::string_view(subject.site->country) == "USA";
    const auto original = isDone && isFahrenheit ? decimalText(value * 1.8 + 32, 1) : standard;
    const auto* const originalUnit = isFahrenheit ? "F" : sign.unit;
    const bool isBaseline = isDone && visit.number == (is(sign, "HEIGHT") ? 1 : 2);
    const auto precision = random.chance(0.5) ? Precision::Minute : Precision::Day;
    table.rows.push_back({studyId,
                          "VS",
                          subject.id,
                          sequence,
                          sign.code,
                          sign.name,
                          sign.position,
                          original,
                          isDone ? originalUnit : "",
                          standard,
                          isDone ? decimalValue(standard) : missing,
                          isDone ? sign.unit : "",
                          isDone ? "" : "NOT DONE",
                          isDone ? "" : "EQUIPMENT FAILURE",
                          sign.location,
                          isBaseline && subject.isTreated() ? "Y" : "",
                          visit.number,
                          visit.name,
                          visit.plannedDay,
                          visit.epoch,
                          isoText(visit.when, precision),
                          subject.dayInStudy(dayOf(visit.when))});
}

}  // namespace

Table vitalSigns(std::span<const Subject> subjects, std::uint64_t seed)
{
    Random random(seed, "VS");
    Table table{{"VS", "Vital Signs", vitalSignsColumns()}, {}};
    for (const auto& subject : subjects) {
        double sequence = 0;
        for (const auto& visit : subject.visits) {
            for (const auto& sign : signs) {
                if (!is(sign, "HEIGHT") || visit.number == 1) {
                    addSign(table, subject, visit, sign, ++sequence, random);
                }
            }
        }
    }
    fitTextLengths(table);
    return table;
}

}  // namespace samples
