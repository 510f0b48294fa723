#include "samples/Exposure.h"

#include "samples/Random.h"

#include <algorithm>
#include <array>

namespace samples {

namespace {

std::vector<Column> exposureColumns()
{
    return {
        textColumn("STUDYID", "Study Identifier"),
        textColumn("DOMAIN", "Domain Abbreviation"),
        textColumn("USUBJID", "Unique Subject Identifier"),
        numberColumn("EXSEQ", "Sequence Number"),
        textColumn("EXTRT", "Name of Treatment"),
        numberColumn("EXDOSE", "Dose"),
        textColumn("EXDOSU", "Dose Units"),
        textColumn("EXDOSFRM", "Dose Form"),
        textColumn("EXDOSFRQ", "Dosing Frequency per Interval"),
        textColumn("EXROUTE", "Route of Administration"),
        textColumn("EXADJ", "Reason for Dose Adjustment"),
        numberColumn("VISITNUM", "Visit Number"),
        textColumn("VISIT", "Visit Name"),
        textColumn("EPOCH", "Epoch"),
        textColumn("EXSTDTC", "Start Date/Time of Treatment"),
        textColumn("EXENDTC", "End Date/Time of Treatment"),
        numberColumn("EXSTDY", "Study Day of Start of Treatment"),
        numberColumn("EXENDY", "Study Day of End of Treatment"),
    };
}

// Tablets are handed out at these visits; each lasts to the day before the next.
constexpr std::array dispensingVisits{2.0, 5.0, 7.0};

void addSubject(Table& table, const Subject& subject, Random& random)
{
    std::vector<const Visit*> starts;
    for (const auto& visit : subject.visits) {
        if (std::ranges::find(dispensingVisits, visit.number) != dispensingVisits.end()) {
            starts.push_back(&visit);
        }
    }
    const bool isReduced = starts.size() > 1 && subject.arm->dose > 0 && random.chance(0.08);
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const bool isFirst = i == 0;
        const bool isLast = i + 1 == starts.size();
        const auto start = isFirst ? *subject.firstDose : starts[i]->when;
        const auto end =
            isLast ? dayOf(subject.lastDose) : dayOf(starts[i + 1]->when) - std::chrono::days(1);
        const bool isHalved = isReduced && isLast;
        table.rows.push_back({studyId, "EX", subject.id, double(i + 1),
                              subject.arm->dose > 0 ? "OZELQUARINE" : "PLACEBO",
                              isHalved ? subject.arm->dose / 2 : subject.arm->dose, "mg", "TABLET",
                              "QD", "ORAL", isHalved ? "ADVERSE EVENT" : "", starts[i]->number,
                              starts[i]->name, "TREATMENT",
                              isoText(start, isFirst ? Precision::Minute : Precision::Day),
                              isoText(end, Precision::Day), subject.dayInStudy(dayOf(start)),
                              subject.dayInStudy(end)});
    }
}

}  // namespace

Table exposure(std::span<const Subject> subjects, std::uint64_t seed)
{
    Random random(seed, "EX");
    Table table{{"EX", "Exposure", exposureColumns()}, {}};
    for (const auto& subject : subjects) {
        if (subject.isTreated()) {
            addSubject(table, subject, random);
        }
    }
    fitTextLengths(table);
    return table;
}

}  // namespace samples
