#include "samples/Decimal.h"
#include "samples/Findings.h"
#include "samples/Random.h"

#include <array>
#include <string_view>

namespace samples {

namespace {

/// A test in standard units. American sites report in their own, `toStandard` times smaller.
struct Test
{
    const char* code;
    const char* name;
    const char* category;
    const char* specimen;
    const char* unit;
    const char* americanUnit;
    double toStandard;
    double low;
    double high;
    int decimals;
    int americanDecimals;
};

constexpr std::array tests{
    Test{"ALT", "Alanine Aminotransferase", "CHEMISTRY", "SERUM", "U/L", "U/L", 1, 7, 45, 0, 0},
    Test{"AST", "Aspartate Aminotransferase", "CHEMISTRY", "SERUM", "U/L", "U/L", 1, 8, 40, 0, 0},
    Test{"BILI", "Bilirubin", "CHEMISTRY", "SERUM", "umol/L", "mg/dL", 17.1, 3.4, 20.5, 1, 2},
    Test{"CREAT", "Creatinine", "CHEMISTRY", "SERUM", "umol/L", "mg/dL", 88.4, 53, 106, 0, 2},
    Test{"GLUC", "Glucose", "CHEMISTRY", "SERUM", "mmol/L", "mg/dL", 0.0555, 3.9, 6.1, 2, 0},
    Test{"HGB", "Hemoglobin", "HEMATOLOGY", "BLOOD", "g/L", "g/dL", 10, 120, 170, 0, 1},
    Test{"K", "Potassium", "CHEMISTRY", "SERUM", "mmol/L", "mmol/L", 1, 3.5, 5.1, 1, 1},
    Test{"WBC", "Leukocytes", "HEMATOLOGY", "BLOOD", "10^9/L", "10^9/L", 1, 4, 10.5, 2, 2},
};

std::vector<Column> laboratoryColumns()
{
    return {
        textColumn("STUDYID", "Study Identifier"),
        textColumn("DOMAIN", "Domain Abbreviation"),
        textColumn("USUBJID", "Unique Subject Identifier"),
        numberColumn("LBSEQ", "Sequence Number"),
        textColumn("LBTESTCD", "Lab Test or Examination Short Name"),
        textColumn("LBTEST", "Lab Test or Examination Name"),
        textColumn("LBCAT", "Category for Lab Test"),
        textColumn("LBORRES", "Result or Finding in Original Units"),
        textColumn("LBORRESU", "Original Units"),
        textColumn("LBORNRLO", "Reference Range Lower Limit in Orig Unit"),
        textColumn("LBORNRHI", "Reference Range Upper Limit in Orig Unit"),
        textColumn("LBSTRESC", "Character Result/Finding in Std Format"),
        numberColumn("LBSTRESN", "Numeric Result/Finding in Standard Units"),
        textColumn("LBSTRESU", "Standard Units"),
        numberColumn("LBSTNRLO", "Reference Range Lower Limit-Std Units"),
        numberColumn("LBSTNRHI", "Reference Range Upper Limit-Std Units"),
        textColumn("LBNRIND", "Reference Range Indicator"),
        textColumn("LBSTAT", "Completion Status"),
        textColumn("LBREASND", "Reason Test Not Done"),
        textColumn("LBSPEC", "Specimen Type"),
        textColumn("LBBLFL", "Baseline Flag"),
        textColumn("LBFAST", "Fasting Status"),
        numberColumn("VISITNUM", "Visit Number"),
        textColumn("VISIT", "Visit Name"),
        numberColumn("VISITDY", "Planned Study Day of Visit"),
        textColumn("EPOCH", "Epoch"),
        textColumn("LBDTC", "Date/Time of Specimen Collection"),
        numberColumn("LBDY", "Study Day of Specimen Collection"),
    };
}

/// A result as the laboratory wrote it and as the study reports it.
struct Result
{
    std::string original;
    std::string standard;
    double number = missing;
    const char* indicator = "";
};

struct Units
{
    const char* name;
    double toStandard;
    int decimals;
};

Units unitsOf(const Test& test, const Subject& subject)
{
    const bool isAmerican = std::string_view(subject.site->country) == "USA";
    return isAmerican ? Units{test.americanUnit, test.toStandard, test.americanDecimals}
                      : Units{test.unit, 1, test.decimals};
}

Result makeResult(const Test& test, const Units& units, double value)
{
    const bool isBelowLimit = value < test.low / 3;
    const double told = isBelowLimit ? test.low / 3 : value;
    Result result;
    result.original = decimalText(told / units.toStandard, units.decimals);
    result.standard = decimalText(decimalValue(result.original) * units.toStandard, test.decimals);
    if (isBelowLimit) {
        result.original.insert(0, "<");
        result.standard.insert(0, "<");
        result.indicator = "LOW";
        return result;
    }
    result.number = decimalValue(result.standard);
    result.indicator = result.number < test.low ? "LOW"
        : result.number > test.high             ? "HIGH"
                                                : "NORMAL";
    return result;
}

class LaboratoryWriter
{
public:
    LaboratoryWriter(Table& table, const Subject& subject, Random& random)
        : m_table(table)
        , m_subject(subject)
        , m_random(random)
    {
        for (std::size_t i = 0; i < tests.size(); ++i) {
            const auto& test = tests.at(i);
            const double spread = test.high - test.low;
            m_usual.at(i) = m_random.normal((test.low + test.high) / 2, spread / 5);
        }
    }

    void addVisits()
    {
        for (const auto& visit : m_subject.visits) {
            for (std::size_t i = 0; i < tests.size(); ++i) {
                addTest(visit, i);
            }
        }
    }

private:
    void addTest(const Visit& visit, std::size_t index)
    {
        const auto& test = tests.at(index);
        const bool isDone = !m_random.chance(0.02);
        const double value = m_random.normal(m_usual.at(index), (test.high - test.low) / 6);
        const auto units = unitsOf(test, m_subject);
        const auto result = isDone ? makeResult(test, units, value) : Result{};
        const auto limit = [&](double standard) {
            return isDone ? decimalText(standard / units.toStandard, units.decimals) : "";
        };
        constexpr std::array reasons{"SPECIMEN HEMOLYZED", "SPECIMEN LOST", "SUBJECT REFUSED",
                                     "INSUFFICIENT VOLUME"};
        const auto precision = m_random.chance(0.9) ? Precision::Minute
            : m_random.chance(0.9)                  ? Precision::Day
                                                    : Precision::Month;
        const bool isDayKnown = precision >= Precision::Day;
        m_table.rows.push_back({studyId,
                                "LB",
                                m_subject.id,
                                ++m_sequence,
                                test.code,
                                test.name,
                                test.category,
                                result.original,
                                isDone ? units.name : "",
                                limit(test.low),
                                limit(test.high),
                                result.standard,
                                result.number,
                                isDone ? test.unit : "",
                                isDone ? test.low : missing,
                                isDone ? test.high : missing,
                                result.indicator,
                                isDone ? "" : "NOT DONE",
                                isDone ? "" : m_random.pick(reasons),
                                test.specimen,
                                isDone && visit.number == 2 ? "Y" : "",
                                m_random.chance(0.85) ? "Y" : "N",
                                visit.number,
                                visit.name,
                                visit.plannedDay,
                                visit.epoch,
                                isoText(visit.when, precision),
                                isDayKnown ? m_subject.dayInStudy(dayOf(visit.when)) : missing});
    }

    Table& m_table;
    const Subject& m_subject;
    Random& m_random;
    std::array<double, tests.size()> m_usual{};
    double m_sequence = 0;
};

}  // namespace

Table laboratory(std::span<const Subject> subjects, std::uint64_t seed)
{
    Random random(seed, "LB");
    Table table{{"LB", "Laboratory Test Results", laboratoryColumns()}, {}};
    for (const auto& subject : subjects) {
        LaboratoryWriter(table, subject, random).addVisits();
    }
    fitTextLengths(table);
    return table;
}

}  // namespace samples
