#include "cli/Help.h"

#include <algorithm>
#include <array>
#include <utility>

namespace cli {

namespace {

constexpr std::string_view program = R"(Usage: quorlane-cli COMMAND FILE [OPTION...]

Shows SAS data sets, SAS transport files, SPSS and Stata data files without a window.

Commands:
  contents   describe the dataset and its variables, or those of a folder
  rows       print the observations
  freq       count the values of variables
  stats      summarise a numeric variable
  find       list the cells that show a text
  compare    compare two datasets, or those of two folders
  supp       join a dataset with its supplemental qualifiers (SUPP--)
  code       write the SAS program of a view

Options:
  --help     print this text, or that of a command: quorlane-cli rows --help
  --version  print the version

Exit codes: 0 done, 1 datasets differ (compare), 2 not done, with the reason on standard error.
)";

constexpr std::string_view contents = R"(Usage: quorlane-cli contents FILE [OPTION...]
       quorlane-cli contents FOLDER [OPTION...]

Describes the dataset and its variables. Of a folder it lists the variables of all datasets and says
in what those of one name differ: type, length, format, label.

)";

constexpr std::string_view rows = R"(Usage: quorlane-cli rows FILE [OPTION...]

Prints the observations with their numbers, as the grid shows them.

Options:
  --where CONDITION    only those that meet it: --where 'AGE > 65 and SEX = "F"'
  --keep VARIABLE...   only these variables, in this order
  --drop VARIABLE...   all variables but these
  --sort VARIABLE...   sort by these; a name followed by :desc in descending order
  --first NUMBER       at most so many observations
  --raw                values as they are stored, not as their formats show them
)";

constexpr std::string_view freq =
    R"(Usage: quorlane-cli freq FILE VARIABLE[*VARIABLE...] [OPTION...]

Counts the observations with each value, or with each combination of values (SEX*RACE).

Options:
  --where CONDITION    only observations that meet it
  --distinct           count subjects instead of observations
  --id VARIABLE        which variable tells subjects apart; USUBJID without it
)";

constexpr std::string_view stats = R"(Usage: quorlane-cli stats FILE VARIABLE [OPTION...]

Summarises a numeric variable: count, mean, median, minimum, maximum, range, standard deviation.

Options:
  --where CONDITION    only observations that meet it
  --by VARIABLE...     a line for each group of these
)";

constexpr std::string_view find = R"(Usage: quorlane-cli find FILE TEXT [OPTION...]

Lists the cells that show the text, in any letter case.

Options:
  --where CONDITION    only observations that meet it
)";

constexpr std::string_view compare = R"(Usage: quorlane-cli compare BASE COMPARE [OPTION...]

Compares two datasets as PROC COMPARE does, or, of two folders, the datasets of one name.

Which observations and variables:
  --id VARIABLE...     match observations by these; by position without them
  --propose-id         match them by what suggests itself: key variables, subject, sequence number
  --var VARIABLE...    compare these only
  --with VARIABLE...   the names of the --var variables in COMPARE, one for each
  --where CONDITION    only observations that meet it, in both datasets
  --compare-member NAME  as --member, for COMPARE

What is equal:
  --method METHOD      exact, absolute, relative, relative(DELTA) or percent
  --criterion NUMBER   larger differences are unequal; a negative one counts machine epsilons
  --criterion-for VARIABLE=NUMBER[:METHOD]...  a criterion of its own
  --nomissing          missing values equal anything; --nomissbase, --nomisscomp: of one side

The report:
  --list WHAT...       all, var, obs, base, comp, basevar, compvar, baseobs, compobs, equalvar
  --brief              sentences instead of the summaries
  --nosummary, --novalues  leave out the summaries, the differing values
  --transpose          differing values by observation
  --stats              statistics of the numeric variables
  --fuzz NUMBER        print smaller values as 0 and smaller differences not at all
  --maxprint N [TOTAL] differing values for each variable (50) and in total (500)
  --linesize N         80 to 256 characters (96)
  --textwidth N        characters of a text value that are shown (20)

Options:
  --program            write the SAS program of the comparison instead
  --differences        every value that differs, in json
  --strict             attributes alone make datasets different
  --format FORMAT      text (the default), json with every count, tsv with every difference
  --member NAME        which dataset of a file that holds several; the first without it
  --help               print this text

Exit codes: 0 equal, 1 different, 2 not done.
)";

constexpr std::string_view supp = R"(Usage: quorlane-cli supp FILE SUPPFILE... [OPTION...]

Joins the supplemental qualifiers of SUPP-- datasets to the observations that they belong to, and
prints these with a variable for each QNAM. What matches no observation, or conflicts, is told on
standard error.

Options:
  --problems           list what matches no observation or conflicts, in place of the observations
  --supp-member NAME...  as --member, for each SUPPFILE; without it SUPPAE of AE, or else the first
  --where CONDITION    only observations that meet it
  --keep VARIABLE...   only these variables, in this order
  --drop VARIABLE...   all variables but these
  --sort VARIABLE...   sort by these; a name followed by :desc in descending order
  --first NUMBER       at most so many observations
  --raw                values as they are stored, not as their formats show them
)";

constexpr std::string_view code = R"(Usage: quorlane-cli code FILE [OPTION...]

Writes the SAS program that makes a view of the dataset, as the Program window shows it.

Options:
  --where CONDITION    the library filter
  --if CONDITION       the dataset filter
  --by VARIABLE...     the BY variables
  --keep VARIABLE...   the variables shown
)";

constexpr std::string_view ofAll = R"(  --format FORMAT      text (the default), json or tsv
  --member NAME        which dataset of a file that holds several; the first without it
  --help               print this text
)";

}  // namespace

std::string helpOf(std::string_view command)
{
    using Text = std::pair<std::string_view, std::string_view>;
    static constexpr std::array<Text, 8> texts{{{"contents", contents},
                                                {"rows", rows},
                                                {"freq", freq},
                                                {"stats", stats},
                                                {"find", find},
                                                {"supp", supp},
                                                {"code", code},
                                                {"compare", compare}}};
    const auto* const found = std::find_if(
        texts.begin(), texts.end(), [command](const Text& text) { return text.first == command; });
    if (found == texts.end()) {
        return std::string(program);
    }
    if (command == "compare") {
        return std::string(compare);
    }
    const std::string_view title = command == "contents" ? "Options:\n" : "";
    return std::string(found->second).append(title).append(ofAll);
}

}  // namespace cli
