#include "samples/BigTable.h"

#include "samples/Random.h"
#include "samples/TableWriter.h"

#include <cmath>

namespace samples {

namespace {

using Texts = std::vector<std::string>;

/// Every word of one list with every word of the next.
Texts combine(const Texts& first, const Texts& second)
{
    Texts texts;
    for (const auto& left : first) {
        for (const auto& right : second) {
            texts.push_back(left);
            texts.back().append(" ").append(right);
        }
    }
    return texts;
}

Texts numbered(const std::string& word, int count)
{
    Texts texts;
    for (int i = 1; i <= count; ++i) {
        texts.push_back(word + std::to_string(1000 + i).substr(1));
    }
    return texts;
}

const Texts investigators{"Müller, Jörg", "Grünkötter, A.", "Brévaux, H.",  "Muñárriz, Í.",
                          "Brännlid, Å.", "Straßner, Ö.",   "Crémieux, B.", "Dellaway, M."};
const Texts severities{"MILD", "MODERATE", "SEVERE"};
const Texts races{"WHITE", "ASIAN", "BLACK OR AFRICAN AMERICAN", "OTHER", "NOT REPORTED"};
const Texts sexes{"F", "M"};
const Texts comments{"see page 2", "entered late", "queried & answered", "second reading"};
const Texts sites = numbered("Site ", 40);
const Texts countries = numbered("C", 40);
const Texts visits = numbered("WEEK ", 40);
const Texts tests = combine({"Serum", "Plasma", "Urine", "Blood"}, numbered("analyte ", 10));
const Texts bodySystems =
    combine({"Upper", "Lower", "Inner", "Outer"}, numbered("body system ", 10));
const Texts terms =
    combine(combine({"acute", "chronic", "mild", "recurrent", "sudden"}, numbered("type ", 20)),
            numbered("finding of site ", 100));

/// The rows one after another, from one stream of random values.
class RowMaker
{
public:
    const Row& next()
    {
        ++m_row;
        m_cells.clear();
        addTexts();
        addNumbers();
        return m_cells;
    }

private:
    void addTexts();
    void addNumbers();
    void text(const Texts& texts, double share = 0.95)
    {
        m_cells.emplace_back(m_random.chance(share) ? m_random.pick(texts) : std::string());
    }
    void number(double value) { m_cells.emplace_back(m_random.chance(0.05) ? missing : value); }
    /// Around the mean, with one decimal.
    [[nodiscard]] double decimal(double mean, double deviation)
    {
        return std::round(m_random.normal(mean, deviation) * 10) / 10;
    }

    Row m_cells;
    Random m_random{1, "big table"};
    long m_row = 0;
    long m_subject = 0;
};

void RowMaker::addTexts()
{
    // About one row in fifty goes on with the subject of the row before.
    m_subject += m_row == 1 || !m_random.chance(0.02) ? 1 : 0;
    m_cells.emplace_back("QLN-101-" + std::to_string(100'000'000 + m_subject).substr(1));
    for (const auto* const texts : {&sites, &countries, &investigators, &sexes, &races, &terms,
                                    &bodySystems, &severities, &visits, &tests}) {
        text(*texts);
    }
    text(comments, 0.01);
}

void RowMaker::addNumbers()
{
    constexpr double firstDay = 23011;  // 1 January 2023
    constexpr double secondsADay = 86400;
    const double day = firstDay + m_random.between(0, 729);
    const double base = decimal(50, 12);
    const double value = std::round(m_random.uniform() * 1e6) / 1e4;
    number(double(m_row));
    number(m_random.between(18, 90));
    number(m_random.between(1, 40));
    number(10.0 * m_random.between(0, 4));
    number(decimal(171, 9));
    number(decimal(77, 13));
    number(base);
    number(value);
    number(value - base);
    number(m_random.uniform());
    number(m_random.between(-14, 400));
    number(day);
    number(day * secondsADay + m_random.between(0, 86399));
}

}  // namespace

TableShape bigTableShape()
{
    return {"BIG",
            "Benchmark Table",
            {
                textColumn("USUBJID", "Unique Subject Identifier", 20),
                textColumn("SITEID", "Study Site Identifier", 8),
                textColumn("COUNTRY", "Country", 4),
                textColumn("INVNAM", "Investigator Name", 20),
                textColumn("SEX", "Sex", 1),
                textColumn("RACE", "Race", 25),
                textColumn("TERM", "Reported Term", 50),
                textColumn("BODSYS", "Body System", 24),
                textColumn("SEV", "Severity", 8),
                textColumn("VISIT", "Visit Name", 12),
                textColumn("TEST", "Test Name", 20),
                textColumn("COMMENT", "Comment", 40),
                numberColumn("SEQ", "Sequence Number"),
                numberColumn("AGE", "Age", "", 3),
                numberColumn("VISITNUM", "Visit Number"),
                numberColumn("DOSE", "Dose (mg)"),
                numberColumn("HEIGHT", "Height (cm)", "", 5, 1),
                numberColumn("WEIGHT", "Weight (kg)", "", 5, 1),
                numberColumn("BASE", "Baseline Value", "", 8, 1),
                numberColumn("AVAL", "Analysis Value", "BEST", 12),
                numberColumn("CHG", "Change from Baseline", "", 10, 4),
                numberColumn("SCORE", "Score"),
                numberColumn("ADY", "Analysis Relative Day"),
                numberColumn("ADT", "Analysis Date", "DATE", 9),
                numberColumn("ADTM", "Analysis Datetime", "DATETIME", 20),
            }};
}

void writeBigTable(const std::filesystem::path& path, long rowCount, const WriteOptions& options)
{
    RowMaker maker;
    writeRows(
        path, bigTableShape(), rowCount, [&]() -> const Row& { return maker.next(); }, options);
}

}  // namespace samples
