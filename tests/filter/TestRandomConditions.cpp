#include "data/InMemoryDataset.h"
#include "tests/filter/Selecting.h"

#include <QDate>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <random>

// Random conditions select from random data what a naive reading, row by row, selects.
namespace {

constexpr double missing = ScriptedDataset::missing;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double smallestInteger = -2147483648.0;

/// How a variable counts: what stands for 1960-01-01, and how much more for a day.
struct Scale
{
    double epoch;
    double perDay;

    [[nodiscard]] double stored(double days, double seconds) const
    {
        return epoch + perDay * days + perDay * seconds / 86400;
    }
};

struct Origin
{
    const char* test;
    SourceKind kind;
    bool isBuilt;  ///< an InMemoryDataset: a missing number is minus infinity, a text may be null
    std::vector<std::string> dates;  ///< formats
    Scale dateScale;
    std::vector<std::string> dateTimes;
    Scale dateTimeScale;
    const char* time;  ///< empty: such a variable holds plain numbers
};

/// A number, nothing where it is missing and so below every number; or a text without blanks at its
/// end, beside which there is no number.
using Value = std::pair<std::optional<double>, std::string>;
using Row = std::vector<Value>;

/// A condition with its meaning, a tree of functions.
struct Meant
{
    std::string text;
    std::function<bool(const Row&)> holds;
    bool isOr = false;
};

struct Operator
{
    std::string text;
    std::string holdsFor;  ///< some of "<=>"

    [[nodiscard]] bool compares(const Value& one, const Value& other) const
    {
        const char order = one < other ? '<' : one == other ? '=' : '>';
        return holdsFor.find(order) != std::string::npos;
    }
};

const std::vector<Operator> operators{
    {"=", "="},   {"eQ", "="}, {"^=", "<>"}, {"~=", "<>"}, {"Ne", "<>"}, {"<", "<"},   {"lt", "<"},
    {"<=", "<="}, {">", ">"},  {"LE", "<="}, {">=", "=>"}, {"gt", ">"},  {"gE", "=>"},
};

/// The place of a text in another, in characters from 1; 0 where it does not stand.
int placeOf(const std::string& part, const std::string& text)
{
    return int(QString::fromStdString(text).indexOf(QString::fromStdString(part))) + 1;
}

// The columns; before them a number, and two texts at the end.
constexpr std::size_t whole = 1;
constexpr std::size_t date = 2;
constexpr std::size_t dateTime = 3;
constexpr std::size_t clockTime = 4;
constexpr std::size_t firstText = 5;
const std::vector<std::string> names{"Num", "Whole", "Day", "Moment", "Clock", "Str", "Term"};

/// A small dataset and conditions on it.
class RandomStudy
{
public:
    RandomStudy(const Origin& origin, unsigned seed)
        : m_origin(origin)
        , m_random(seed)
        , m_keepsBlanks(chance(3))
    {
        const std::vector<std::string> formats{
            "", "", oneOf(origin.dates), oneOf(origin.dateTimes), origin.time, "", ""};
        const TypeCode narrow = chance(2) ? TypeCode::Int32 : TypeCode::Int8;
        auto scripted = std::make_unique<FormattedDataset>(origin.kind);
        InMemoryDatasetBuilder builder;
        for (std::size_t column = 0; column < names.size(); ++column) {
            const TypeCode type = column >= firstText ? TypeCode::Character : TypeCode::Double;
            builder.addVariable({.name = names[column], .format = formats[column], .type = type});
            scripted->variable(names[column], column == whole ? narrow : type, formats[column]);
        }
        m_rows.resize(oneOf<std::size_t>({0, 1, 63, 64, 65, 150}));
        scripted->rows(int(m_rows.size()), [&](int row, int column) -> ScriptedDataset::Value {
            Row& values = m_rows[std::size_t(row)];
            if (column < int(firstText)) {
                return addNumber(values, std::size_t(column), builder);
            }
            return addText(values, builder);
        });
        m_dataset = std::move(scripted);
        if (origin.isBuilt) {
            m_dataset = builder.build();
        }
    }

    [[nodiscard]] const StatDataset& dataset() const { return *m_dataset; }

    [[nodiscard]] std::vector<int> rowsWhere(const Meant& condition) const
    {
        std::vector<int> rows;
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            if (condition.holds(m_rows[row])) {
                rows.push_back(int(row) + 1);
            }
        }
        return rows;
    }

    Meant condition(int depth)
    {
        if (depth == 0 || chance(4)) {
            return oneTerm();
        }
        const bool isOr = chance(2);
        std::string text;
        std::vector<Meant> operands;
        for (auto n = 2 + m_random() % 2; n > 0; --n) {
            Meant operand = condition(depth - 1);
            const bool isClosed = chance(4) || (operand.isOr && !isOr);
            const auto joint = isOr ? word({" or ", " OR ", "|"}) : word({" and ", " And ", "&"});
            text +=
                (text.empty() ? "" : joint) + (isClosed ? '(' + operand.text + ')' : operand.text);
            operands.push_back(std::move(operand));
        }
        const auto holds = [isOr, operands](const Row& row) {
            const auto held = [&](const Meant& operand) { return operand.holds(row); };
            return isOr ? std::any_of(operands.begin(), operands.end(), held)
                        : std::all_of(operands.begin(), operands.end(), held);
        };
        return {text, holds, isOr};
    }

private:
    using Literal = std::pair<std::string, Value>;

    template <typename Item>
    Item oneOf(const std::vector<Item>& items)
    {
        return items[m_random() % items.size()];
    }
    std::string word(const std::vector<std::string>& words) { return oneOf(words); }
    bool chance(unsigned oneIn) { return m_random() % oneIn == 0; }

    double addNumber(Row& row, std::size_t column, InMemoryDatasetBuilder& builder)
    {
        const double stored = chance(8) ? missing : storedNumber(column);
        const bool isMissing = std::isnan(stored) || (m_origin.isBuilt && stored == -infinity)
            || (m_origin.kind == SourceKind::R && column == whole && stored == smallestInteger);
        row.emplace_back(isMissing ? std::nullopt : std::optional(stored), "");
        builder.addNumber(stored);
        return stored;
    }

    std::string addText(Row& row, InMemoryDatasetBuilder& builder)
    {
        const std::string text = randomText() + (m_keepsBlanks ? word({"", "  "}) : "");
        if (m_origin.isBuilt && chance(8)) {
            builder.addNullText();
            row.emplace_back();
        } else {
            builder.addText(text);
            row.emplace_back(std::nullopt, withoutBlanksAtEnd(text));
        }
        return text;
    }

    double storedNumber(std::size_t column)
    {
        switch (column) {
        case 0:
            return oneOf<double>({-infinity, smallestInteger, -5.5, -1, 0, .5, 60, 1e20, infinity});
        case whole:
            return oneOf<double>({smallestInteger, -7, 0, 1, 9, 10});
        case date:
            return m_origin.dateScale.stored(oneOf<double>({-1, 0, 21915, 21916}), 0);
        case dateTime:
            return m_origin.dateTimeScale.stored(oneOf<double>({0, 21914, 21915}),
                                                 oneOf<double>({0, 1, 45000, 86399}));
        default:
            return oneOf<double>({0, 45000, 45015, 21915});
        }
    }

    std::string randomText()
    {
        std::string text = chance(8) ? "N/A" : "";
        for (auto n = text.empty() ? m_random() % 4 : 0; n > 0; --n) {
            text += word({"a", "b", "A", " a", "\u00E4", "'", "~"});
        }
        return text;
    }

    std::string quoted(const std::string& text)
    {
        const char quote = chance(2) && text.find('\'') == std::string::npos ? '\'' : '"';
        return quote + text + quote;
    }

    Meant oneTerm()
    {
        const auto column = m_random() % names.size();
        const QString name = QString::fromStdString(names[column]);
        const std::string written =
            oneOf<QString>({name, name.toLower(), name.toUpper()}).toStdString();
        switch (m_random() % 4) {
        case 0:
            return list(column, written);
        case 1:
            return nullTerm(column, written);
        case 2:
            return column < firstText ? comparison(column, written) : placeTerm(column, written);
        default:
            return comparison(column, written);
        }
    }

    Meant comparison(std::size_t column, const std::string& name)
    {
        const Operator op = oneOf(operators);
        const auto [written, other] = literal(column);
        const std::string blank = op.text.find_first_of("<=>") > 1 || chance(2) ? " " : "";
        return {name + blank + op.text + blank + written,
                [=, other = other](const Row& row) { return op.compares(row[column], other); }};
    }

    /// `contains` or `index`.
    Meant placeTerm(std::size_t column, const std::string& name)
    {
        const std::string part = word({"a", "b", "ab", " a", "a ", "\u00E4", "\u00E4a"});
        const auto place = [=](const Row& row) { return placeOf(part, row[column].second); };
        if (chance(3)) {
            return {name + " Contains" + quoted(part),
                    [=](const Row& row) { return place(row) > 0; }};
        }
        const Operator op = oneOf(operators);
        const std::string number = word({".", "0", "1", "2", "3"});
        const auto other = number == "." ? std::nullopt : std::optional(std::stod(number));
        return {"Index( " + name + ',' + quoted(part) + ") " + op.text + ' ' + number,
                [=](const Row& row) {
                    return op.compares({place(row), ""}, {other, ""});
                }};
    }

    Meant list(std::size_t column, const std::string& name)
    {
        const bool isNegated = chance(3);
        std::string text = name + (isNegated ? " Not in (" : " IN(");
        std::vector<Value> values;
        for (auto n = 1 + m_random() % 7; n > 0; --n) {
            const auto [written, value] = literal(column);
            text += written + (n > 1 ? "," : ")");
            values.push_back(value);
        }
        return {text, [=](const Row& row) {
                    const auto found = std::find(values.begin(), values.end(), row[column]);
                    return (found != values.end()) != isNegated;
                }};
    }

    Meant nullTerm(std::size_t column, const std::string& name)
    {
        const bool isNegated = chance(2);
        const bool isR = m_origin.kind == SourceKind::R;
        const std::string words =
            isNegated ? word({" isNotNull", " IS Not null"}) : word({" ISNULL", " is NULL"});
        return {name + words, [=](const Row& row) {
                    const auto& [number, text] = row[column];
                    const bool isNa = isR && text == "N/A";
                    return (column < firstText ? !number : text.empty() || isNa) != isNegated;
                }};
    }

    Literal literal(std::size_t column)
    {
        if (column < firstText && chance(8)) {
            return {".", {}};
        }
        if (column >= firstText) {
            const std::string text = randomText() + word({"", "", "  "});
            return {quoted(text), {std::nullopt, withoutBlanksAtEnd(text)}};
        }
        if (column >= date && chance(4)) {
            const double stored = storedNumber(column);
            return {QString::number(stored, 'g', 17).toStdString(), {stored, ""}};
        }
        if (column >= date) {
            return dateLiteral(column);
        }
        const std::string number =
            word({"0", "+1", "-1", "-5.5", "-55e-1", "60.", "6E1", ".5", "1e+20", "-1e308", "10",
                  "9", "-7", "-2147483648", "-2147483649"});
        return {number, {std::stod(number), ""}};
    }

    /// A date, a time or a date-time, as far as the column can be compared with it.
    Literal dateLiteral(std::size_t column)
    {
        const auto days = oneOf<double>({-1, 0, 21915, 21916});
        const QDate day = QDate(1960, 1, 1).addDays(qint64(days));
        const std::string dayText = QLocale::c().toString(day, u"ddMMMyyyy").toStdString();
        const auto [clock, seconds] = oneOf<std::pair<std::string, double>>(
            {{"00:00", 0}, {"12:30", 45000}, {"12:30:15", 45015}, {"0:00:01", 1}});
        const Scale& scale = column == date ? m_origin.dateScale : m_origin.dateTimeScale;
        if (column == clockTime && *m_origin.time != '\0') {
            return {quoted(clock) + word({"t", "T"}), {seconds, ""}};
        }
        if (column == dateTime && m_origin.kind == SourceKind::Stata && chance(3)) {
            return {quoted(clock) + 't', {scale.stored(0, seconds), ""}};
        }
        // In SAS data a count of days is a number like one of seconds; elsewhere it is a midnight.
        const bool isConverted = m_origin.kind != SourceKind::Sas && column != clockTime;
        if (column != clockTime && chance(2)) {
            return {quoted(dayText + ':' + clock) + word({"dt", "Dt"}),
                    {isConverted ? scale.stored(days, seconds) : days * 86400 + seconds, ""}};
        }
        return {quoted(dayText) + word({"d", "D"}),
                {isConverted ? scale.stored(days, 0) : days, ""}};
    }

    const Origin& m_origin;
    std::mt19937 m_random;
    bool m_keepsBlanks;  ///< texts may end in blanks
    std::unique_ptr<StatDataset> m_dataset;
    std::vector<Row> m_rows;
};

TEST(RandomConditions, selectWhatANaiveReadingSelects)
{
    // 137775 days from 1582-10-14 to 1960-01-01, 3653 from there to 1970-01-01.
    const Scale days{0, 1};
    const Scale seconds{0, 86400};
    const Scale spss{137775 * 86400.0, 86400};
    const std::vector<std::string> stata{"%td", "%-dD_m_Y", "%tdDD/NN/CCYY"};
    const std::vector<std::string> r{"%d%b%Y"};
    const Scale rDays{-3653, 1};
    const Scale rSeconds{-3653 * 86400.0, 86400};
    for (const Origin& origin : std::vector<Origin>{
             {"SAS", SourceKind::Sas, false, {"DATE"}, days, {"DATETIME"}, seconds, "TIME"},
             {"built", SourceKind::Sas, true, {"DATE"}, days, {"DATETIME"}, seconds, "TIME"},
             {"SPSS", SourceKind::Spss, false, {"DATE11"}, spss, {"YMDHMS"}, spss, "TIME8"},
             {"Stata", SourceKind::Stata, false, stata, days, {"%tc"}, {0, 86400e3}, ""},
             {"R", SourceKind::R, false, r, rDays, {"%d%b%Y:%H:%M:%S"}, rSeconds, ""}}) {
        int telling = 0;
        for (unsigned seed = 0; seed < 3000; ++seed) {
            RandomStudy study(origin, seed);
            const Meant condition = study.condition(2);
            const auto rows = study.rowsWhere(condition);
            ASSERT_EQ(selected(study.dataset(), condition.text), rows)
                << origin.test << ", seed " << seed << ": " << condition.text;
            const auto text = QString::fromStdString(condition.text);
            const QString written = ConditionParser::parseAll(text).text;
            ASSERT_EQ(selected(study.dataset(), written.toStdString()), rows)
                << condition.text << " is written as " << written.toStdString();
            telling += !rows.empty() && int(rows.size()) < study.dataset().observationCount();
        }
        EXPECT_GT(telling, 1000) << "most conditions select all rows or none";
    }
}

}  // namespace
