#include "samples/Demographics.h"

#include "samples/Random.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace samples {

namespace {

std::vector<Column> demographicsColumns()
{
    return {
        textColumn("STUDYID", "Study Identifier"),
        textColumn("DOMAIN", "Domain Abbreviation"),
        textColumn("USUBJID", "Unique Subject Identifier"),
        textColumn("SUBJID", "Subject Identifier for the Study"),
        textColumn("RFSTDTC", "Subject Reference Start Date/Time"),
        textColumn("RFENDTC", "Subject Reference End Date/Time"),
        textColumn("RFXSTDTC", "Date/Time of First Study Treatment"),
        textColumn("RFXENDTC", "Date/Time of Last Study Treatment"),
        textColumn("RFICDTC", "Date/Time of Informed Consent"),
        textColumn("RFPENDTC", "Date/Time of End of Participation"),
        textColumn("DTHDTC", "Date/Time of Death"),
        textColumn("DTHFL", "Subject Death Flag"),
        textColumn("SITEID", "Study Site Identifier"),
        textColumn("INVID", "Investigator Identifier"),
        textColumn("INVNAM", "Investigator Name"),
        textColumn("BRTHDTC", "Date/Time of Birth"),
        numberColumn("AGE", "Age"),
        textColumn("AGEU", "Age Units"),
        textColumn("SEX", "Sex"),
        textColumn("RACE", "Race"),
        textColumn("ETHNIC", "Ethnicity"),
        textColumn("ARMCD", "Planned Arm Code"),
        textColumn("ARM", "Description of Planned Arm"),
        textColumn("ACTARMCD", "Actual Arm Code"),
        textColumn("ACTARM", "Description of Actual Arm"),
        textColumn("COUNTRY", "Country"),
        textColumn("DMDTC", "Date/Time of Collection"),
        numberColumn("DMDY", "Study Day of Collection"),
    };
}

Row demographicsRow(const Subject& subject)
{
    const auto& site = *subject.site;
    const auto& arm = *subject.arm;
    const bool isTreated = subject.isTreated();
    const auto start = isTreated ? isoText(*subject.firstDose, Precision::Minute) : "";
    const auto end = isTreated ? isoText(subject.lastDose, Precision::Day) : "";
    const auto consent = isoText(subject.consent, Precision::Day);
    const auto death = subject.death ? isoText(*subject.death, Precision::Day) : "";
    return {studyId,
            "DM",
            subject.id,
            subject.numberAtSite,
            start,
            end,
            start,
            end,
            consent,
            isoText(subject.lastContact, Precision::Day),
            death,
            subject.death ? "Y" : "",
            site.id,
            site.investigatorId,
            site.investigator,
            isoText(subject.birth, subject.birthPrecision),
            double(subject.age),
            "YEARS",
            subject.sex,
            subject.race,
            subject.ethnicity,
            arm.code,
            arm.name,
            arm.code,
            arm.name,
            site.country,
            consent,
            subject.dayInStudy(subject.consent)};
}

struct Origin
{
    const char* country;
    const char* language;
    std::array<const char*, 3> places;
};

constexpr std::array origins{
    Origin{"DEU", "Deutsch", {"Köln", "Görlitz", "Münster"}},
    Origin{"FRA", "Français", {"Besançon", "Saint-Étienne", "Nîmes"}},
    Origin{"GRC", "Ελληνικά", {"Θεσσαλονίκη", "Ιωάννινα", "Ηράκλειο"}},
    Origin{"JPN", "日本語", {"札幌市", "京都市", "神奈川県横浜市"}},
    Origin{"POL", "Polski", {"Łódź", "Gdańsk", "Rzeszów"}},
    Origin{"ESP", "Español", {"A Coruña", "Cádiz", "Logroño"}},
    Origin{"SWE", "Svenska", {"Malmö", "Umeå", "Växjö"}},
    Origin{"USA", "English", {"Duluth", "Boise", "Cañon City"}},
};

const Origin& originOf(const Subject& subject)
{
    return *std::ranges::find(origins, std::string_view(subject.site->country), &Origin::country);
}

void addQualifier(Table& table, const Subject& subject, const char* name, const char* label,
                  const char* value, const char* origin)
{
    const bool isDerived = std::string_view(origin) == "DERIVED";
    table.rows.push_back({studyId, "DM", subject.id, "", "", name, label, value, origin,
                          isDerived ? "CLINICAL STUDY SPONSOR" : ""});
}

}  // namespace

Table demographics(std::span<const Subject> subjects)
{
    Table table{{"DM", "Demographics", demographicsColumns()}, {}};
    for (const auto& subject : subjects) {
        table.rows.push_back(demographicsRow(subject));
    }
    fitTextLengths(table);
    return table;
}

Table demographicsQualifiers(std::span<const Subject> subjects, std::uint64_t seed)
{
    Random random(seed, "SUPPDM");
    Table table{{"SUPPDM", "Supplemental Qualifiers for DM", qualifierColumns()}, {}};
    for (const auto& subject : subjects) {
        const auto& origin = originOf(subject);
        if (random.chance(0.7)) {
            addQualifier(table, subject, "BRTHPLC", "Place of Birth", random.pick(origin.places),
                         "CRF");
        }
        addQualifier(table, subject, "ITT", "Intent-to-Treat Population Flag",
                     subject.isTreated() ? "Y" : "N", "DERIVED");
        addQualifier(table, subject, "NATLANG", "Native Language", origin.language, "CRF");
        if (std::string_view(subject.race) == "OTHER") {
            constexpr std::array races{"MIXED: \"ASIAN & WHITE\"", "MĀORI", "CRÉOLE"};
            addQualifier(table, subject, "RACEOTH", "Race, Other", random.pick(races), "CRF");
        }
        addQualifier(table, subject, "SAFETY", "Safety Population Flag",
                     subject.isTreated() ? "Y" : "N", "DERIVED");
    }
    fitTextLengths(table);
    return table;
}

std::vector<Column> qualifierColumns()
{
    return {
        textColumn("STUDYID", "Study Identifier"),
        textColumn("RDOMAIN", "Related Domain Abbreviation"),
        textColumn("USUBJID", "Unique Subject Identifier"),
        textColumn("IDVAR", "Identifying Variable"),
        textColumn("IDVARVAL", "Identifying Variable Value"),
        textColumn("QNAM", "Qualifier Variable Name"),
        textColumn("QLABEL", "Qualifier Variable Label"),
        textColumn("QVAL", "Data Value"),
        textColumn("QORIG", "Origin"),
        textColumn("QEVAL", "Evaluator"),
    };
}

}  // namespace samples
