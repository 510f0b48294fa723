#include "grid/opened/EngineMessages.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <optional>

namespace enginemessages {
namespace {

// A test looks through the engines for messages that are missing here.
constexpr std::array messages{
    // Commands and conditions
    QT_TRANSLATE_NOOP("EngineMessages", "unknown command"),
    QT_TRANSLATE_NOOP("EngineMessages", "command must start with identifier"),
    QT_TRANSLATE_NOOP("EngineMessages", "table needs variable(s)"),
    QT_TRANSLATE_NOOP("EngineMessages", "clear must follow library|dataset"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect 'filter'"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect variable name"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect variable"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect ')'"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect ','"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect '(' after in"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect variable name or a function"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect string literal"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect operator"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect value"),
    QT_TRANSLATE_NOOP("EngineMessages", "expect null"),
    QT_TRANSLATE_NOOP("EngineMessages", "too many parentheses"),
    QT_TRANSLATE_NOOP("EngineMessages", "unexpected trailing text"),
    QT_TRANSLATE_NOOP("EngineMessages", "unknown character in input"),
    QT_TRANSLATE_NOOP("EngineMessages", "unterminated string literal"),
    QT_TRANSLATE_NOOP("EngineMessages", "The variable types do not match."),
    QT_TRANSLATE_NOOP("EngineMessages", "There is no variable named %1 in the data set %2"),
    QT_TRANSLATE_NOOP("EngineMessages", "There is no variable named %1"),
    QT_TRANSLATE_NOOP("EngineMessages", "The number %1 is out of range"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1 is not a valid date"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1 is not a valid time"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1 is not a valid date-time"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "%1 does not count days or seconds and cannot be compared with a date or time"),
    QT_TRANSLATE_NOOP("EngineMessages", "This is no such filter: %1"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Library Filter supports one level only. Please clear library filter first."),
    QT_TRANSLATE_NOOP("EngineMessages", "No dataset is open that this could act on."),
    // Comparisons
    QT_TRANSLATE_NOOP("EngineMessages",
                      "The ID variable %1 is numeric in one data set and character in the other"),
    QT_TRANSLATE_NOOP("EngineMessages", "None of the ID variables is in the data set %1"),
    QT_TRANSLATE_NOOP("EngineMessages", "There are more WITH than VAR variables"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "%1 has a criterion, but is no numeric variable that is compared"),
    QT_TRANSLATE_NOOP("EngineMessages", "The criterion is no number"),
    QT_TRANSLATE_NOOP("EngineMessages", "The delta of RELATIVE lies between 0 and 1, not %1"),
    QT_TRANSLATE_NOOP("EngineMessages", "The method %1 takes no delta"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1 is no number"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1 is none of exact, absolute, relative and percent"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1 is not VARIABLE=NUMBER[:METHOD]"),
    // Filters made from values
    QT_TRANSLATE_NOOP("EngineMessages",
                      "A text with both kinds of quotes cannot be written in a filter: %1"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "A text with invalid characters cannot be written in a filter"),
    QT_TRANSLATE_NOOP("EngineMessages", "There is no value to filter by"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1 holds numbers, which contain no text"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "The variable %1 cannot be filtered: its name is more than letters, digits and _"),
    QT_TRANSLATE_NOOP("EngineMessages", "An infinite number cannot be written in a filter"),
    // Files
    QT_TRANSLATE_NOOP("EngineMessages", "Not a regular file"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Its suffix belongs to no kind of data file that can be opened"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "A file of this kind holds one dataset only; it has none named %1"),
    QT_TRANSLATE_NOOP("EngineMessages", "There is not enough memory to hold it"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Its header promises %1 observations, but it is too short to hold them"),
    QT_TRANSLATE_NOOP("EngineMessages", "It has %1 observations; at most %2 can be shown"),
    QT_TRANSLATE_NOOP("EngineMessages", "The counts in its header are damaged"),
    QT_TRANSLATE_NOOP("EngineMessages", "It describes more variables than its header counts"),
    QT_TRANSLATE_NOOP("EngineMessages", "Its header is damaged"),
    QT_TRANSLATE_NOOP("EngineMessages", "Its long strings are damaged"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Its header names an unknown compression (%1); it was read as uncompressed"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is no SAS transport file"),
    QT_TRANSLATE_NOOP("EngineMessages", "It holds no data set"),
    QT_TRANSLATE_NOOP("EngineMessages", "It has no data set named %1; it has %2"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "It promises %1 variables, but it is too short to describe them"),
    QT_TRANSLATE_NOOP("EngineMessages", "The record that starts a data set is damaged"),
    QT_TRANSLATE_NOOP("EngineMessages", "The record that counts the variables is damaged"),
    QT_TRANSLATE_NOOP("EngineMessages", "The record that starts the observations is missing"),
    QT_TRANSLATE_NOOP("EngineMessages", "The record that counts the long labels is damaged"),
    // R data files
    QT_TRANSLATE_NOOP("EngineMessages", "It is cut short"),
    QT_TRANSLATE_NOOP("EngineMessages", "The objects in it are damaged"),
    QT_TRANSLATE_NOOP("EngineMessages", "Its packed data are damaged"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is packed by %1, which cannot be read"),
    QT_TRANSLATE_NOOP("EngineMessages", "It cannot be read"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is no file that R's saveRDS or save wrote"),
    QT_TRANSLATE_NOOP("EngineMessages", "It was saved by an R older than 1.4, or by none"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Its objects are serialised in version %1, which is unknown"),
    QT_TRANSLATE_NOOP("EngineMessages", "It has more variables than can be shown"),
    QT_TRANSLATE_NOOP("EngineMessages", "It holds no data frame, but %1"),
    QT_TRANSLATE_NOOP("EngineMessages", "It holds no data frame, and nothing else"),
    QT_TRANSLATE_NOOP("EngineMessages", "It holds no data frame named %1"),
    QT_TRANSLATE_NOOP("EngineMessages", "The values of %1 are not shown: it holds %2"),
    QT_TRANSLATE_NOOP("EngineMessages", "The names of its rows are not shown"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Its check sum is wrong: some of its values may be damaged"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "To unpack it takes more memory than its writer ever asks for"),
    QT_TRANSLATE_NOOP("EngineMessages", "a data frame"),
    QT_TRANSLATE_NOOP("EngineMessages", "date-times in parts (POSIXlt)"),
    QT_TRANSLATE_NOOP("EngineMessages", "a matrix"),
    QT_TRANSLATE_NOOP("EngineMessages", "a list"),
    QT_TRANSLATE_NOOP("EngineMessages", "an expression"),
    QT_TRANSLATE_NOOP("EngineMessages", "a function"),
    QT_TRANSLATE_NOOP("EngineMessages", "a symbol"),
    QT_TRANSLATE_NOOP("EngineMessages", "a call"),
    QT_TRANSLATE_NOOP("EngineMessages", "a pairlist"),
    QT_TRANSLATE_NOOP("EngineMessages", "an environment"),
    QT_TRANSLATE_NOOP("EngineMessages", "an S4 object"),
    QT_TRANSLATE_NOOP("EngineMessages", "an object of another kind"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is empty"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is cut short, or the sizes in its header are damaged"),
    QT_TRANSLATE_NOOP("EngineMessages", "There is not enough memory for what its header promises"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Its header promises %1 pages, but it is too short to hold them"),
    QT_TRANSLATE_NOOP("EngineMessages", "The description of its variables is missing"),
    QT_TRANSLATE_NOOP("EngineMessages", "It counts %1 variables, but describes %2"),
    QT_TRANSLATE_NOOP("EngineMessages", "It counts %1 deleted observations, but marks %2"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is cut short within an observation"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is cut short within observation %1"),
    QT_TRANSLATE_NOOP("EngineMessages", "Its header counts %1 observations, but it holds %2"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "It does not end with a whole record: observations at its end may be missing"),
    QT_TRANSLATE_NOOP("EngineMessages", "Variable %1 has an impossible length, %2"),
    QT_TRANSLATE_NOOP("EngineMessages", "It has no variables"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1 of its long texts are missing; their cells are empty"),
    // CSV files
    QT_TRANSLATE_NOOP("EngineMessages", "It cannot be read to its end"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is no text file"),
    QT_TRANSLATE_NOOP("EngineMessages", "The quote that begins a value in line %1 is never closed"),
    QT_TRANSLATE_NOOP("EngineMessages", "Its first line names more than %1 variables"),
    QT_TRANSLATE_NOOP("EngineMessages", "It has more than %1 rows, the most that can be shown"),
    QT_TRANSLATE_NOOP("EngineMessages", "Far more values are missing in its lines than there are"),
    QT_TRANSLATE_NOOP("EngineMessages", "The file is empty"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Lines with fewer values than variables, filled up with missing ones: %1"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Lines with more values than variables, whose last values are left out: %1"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "There are letters behind the closing quote of a value; "
                      "they are taken for a part of it"),
    QT_TRANSLATE_NOOP("EngineMessages", "There are NUL bytes in the file, which are left out"),
    // Dataset-JSON files
    QT_TRANSLATE_NOOP("EngineMessages", "It is no JSON file"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "It is no Dataset-JSON file: it starts with a list in place of its attributes"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is no Dataset-JSON file: it describes no columns"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is no valid JSON"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "It is no valid JSON: its rows are not separated by commas"),
    QT_TRANSLATE_NOOP("EngineMessages", "Its attributes are no valid JSON"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is cut short"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is cut short: its compressed data have no end"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is damaged: its compressed data cannot be unpacked"),
    QT_TRANSLATE_NOOP("EngineMessages", "It holds a value that is too long or too deep to be read"),
    QT_TRANSLATE_NOOP("EngineMessages", "It describes %1 variables; at most %2 can be shown"),
    QT_TRANSLATE_NOOP("EngineMessages", "Line %1 is damaged: %2"),
    QT_TRANSLATE_NOOP("EngineMessages", "Observation %1 is damaged: %2"),
    QT_TRANSLATE_NOOP("EngineMessages", "it is no valid JSON"),
    QT_TRANSLATE_NOOP("EngineMessages", "a text in it has no end"),
    QT_TRANSLATE_NOOP("EngineMessages", "a text in it holds a control character"),
    QT_TRANSLATE_NOOP("EngineMessages", "a text in it has an escape that does not exist"),
    QT_TRANSLATE_NOOP("EngineMessages", "a number in it is wrong"),
    QT_TRANSLATE_NOOP("EngineMessages", "It goes on behind its end, which is left out"),
    QT_TRANSLATE_NOOP("EngineMessages", "It holds rows more than once; the first ones are shown"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "Its attribute %1 stands there more than once; the last one holds"),
    QT_TRANSLATE_NOOP("EngineMessages", "It holds a further dataset, %1, which is left out"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "%1 characters of its attributes are not valid and are shown as �"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1: the data type is none of Dataset-JSON; read as texts"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "It names %1 of its variables not at all; the first is called %2"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "%1: what is no number is shown as missing (%2, first in row %3)"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "%1: what is no whole date or time is shown as missing (%2, first in row %3)"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "%1: a list or an object stands for a value (%2, first in row %3)"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "%1: NaN is no number in JSON and is shown as missing (%2, first in row %3)"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "%1: numbers of more digits than can be reckoned with are shown as the file "
                      "has them (%2, first in row %3)"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "%1: numbers too large to be reckoned with count as infinite (%2, first in row %3)"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "%1: offsets from UTC are passed over (%2, first in row %3)"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "Rows with too few values are filled up with missing ones (%1, first in row %2)"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "Of rows with too many values the last ones are left out (%1, first in row %2)"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "Rows that are neither a list nor an object are shown as missing (%1, first in row %2)"),
    QT_TRANSLATE_NOOP(
        "EngineMessages",
        "Values of rows under names that no variable has are left out (%1, first in row %2)"),
    QT_TRANSLATE_NOOP("EngineMessages", "Invalid characters are shown as � (%1, first in row %2)"),
    QT_TRANSLATE_NOOP("EngineMessages", "The folder cannot be listed: %1"),
    // Joins of supplemental qualifiers
    QT_TRANSLATE_NOOP("EngineMessages",
                      "It has both USUBJID and APID; one of them is to name the subject"),
    QT_TRANSLATE_NOOP("EngineMessages", "It has neither USUBJID nor APID"),
    QT_TRANSLATE_NOOP("EngineMessages", "It is no SUPP-- dataset, as it lacks %1"),
    QT_TRANSLATE_NOOP("EngineMessages", "None of its rows belongs to %1; RDOMAIN is %2"),
    QT_TRANSLATE_NOOP("EngineMessages", "QNAM %1 is also a variable of %2; it is joined as %3"),
    QT_TRANSLATE_NOOP("EngineMessages", "QNAM %1 has several labels: %2"),
    QT_TRANSLATE_NOOP("EngineMessages", "QNAM is blank"),
    QT_TRANSLATE_NOOP("EngineMessages", "QVAL is blank"),
    QT_TRANSLATE_NOOP("EngineMessages",
                      "RDOMAIN is %1, which is not the domain of the observations"),
    QT_TRANSLATE_NOOP("EngineMessages", "It names no subject"),
    QT_TRANSLATE_NOOP("EngineMessages", "IDVARVAL has no IDVAR"),
    QT_TRANSLATE_NOOP("EngineMessages", "IDVARVAL is blank"),
    QT_TRANSLATE_NOOP("EngineMessages", "%1 is numeric, and IDVARVAL is no number"),
    QT_TRANSLATE_NOOP("EngineMessages", "No observation belongs to this subject"),
    QT_TRANSLATE_NOOP("EngineMessages", "The subject has no observation with this %1"),
    QT_TRANSLATE_NOOP("EngineMessages", "Row %1 of %2 has another value: %3"),
    // The format library, ReadStat 1.1
    QT_TRANSLATE_NOOP("EngineMessages", "Unable to read from file"),
    QT_TRANSLATE_NOOP("EngineMessages", "Unable to allocate memory"),
    QT_TRANSLATE_NOOP("EngineMessages", "Unable to seek within file"),
    QT_TRANSLATE_NOOP("EngineMessages", "Invalid file, or file has unsupported features"),
    QT_TRANSLATE_NOOP("EngineMessages", "File has unsupported compression scheme"),
    QT_TRANSLATE_NOOP("EngineMessages", "File has an unsupported character set"),
    QT_TRANSLATE_NOOP("EngineMessages", "File did not contain the expected number of columns"),
    QT_TRANSLATE_NOOP("EngineMessages", "File did not contain the expected number of rows"),
    QT_TRANSLATE_NOOP("EngineMessages", "A row in the file was not the expected length"),
    QT_TRANSLATE_NOOP("EngineMessages", "Unable to convert string to the requested encoding"),
    QT_TRANSLATE_NOOP("EngineMessages", "The file's timestamp string is invalid"),
};

/// What stands at the places of a pattern in a message that was made by it.
std::optional<QStringList> argumentsOf(const QString& message, const QString& pattern)
{
    static const QRegularExpression place(QStringLiteral("%[1-9]"));
    const QStringList fixed = pattern.split(place);
    if (!message.startsWith(fixed.constFirst()) || !message.endsWith(fixed.constLast())) {
        return std::nullopt;
    }
    QStringList arguments;
    qsizetype at = fixed.constFirst().size();
    for (qsizetype i = 1; i < fixed.size(); ++i) {
        const bool isLast = i == fixed.size() - 1;
        const qsizetype end =
            isLast ? message.size() - fixed[i].size() : message.indexOf(fixed[i], at);
        if (end < at) {
            return std::nullopt;
        }
        arguments << message.mid(at, end - at);
        at = end + fixed[i].size();
    }
    return at == message.size() ? std::optional(arguments) : std::nullopt;
}

std::optional<QString> translationOf(const QString& message)
{
    for (const char* pattern : messages) {
        if (auto arguments = argumentsOf(message, QString::fromUtf8(pattern))) {
            for (QString& argument : *arguments) {
                argument = translationOf(argument).value_or(argument);  // the reason within
            }
            // All at once: an argument may hold what looks like a place.
            const QString text = QCoreApplication::translate("EngineMessages", pattern);
            switch (arguments->size()) {
            case 0:
                return text;
            case 1:
                return text.arg(arguments->at(0));
            case 2:
                return text.arg(arguments->at(0), arguments->at(1));
            default:
                return text.arg(arguments->at(0), arguments->at(1), arguments->at(2));
            }
        }
    }
    return std::nullopt;
}

}  // namespace

QString translated(const QString& message)
{
    const QString afterName = QStringLiteral(": ");
    for (qsizetype start = 0; start >= 0;) {
        if (const auto translation = translationOf(message.mid(start))) {
            return message.left(start) + *translation;
        }
        const qsizetype next = message.indexOf(afterName, start);
        start = next < 0 ? -1 : next + afterName.size();
    }
    return message;
}

}  // namespace enginemessages
