#include "analysis/comparison/CompareWords.h"
#include "cli/Compare.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <CLI/CLI.hpp>
#include <map>

namespace cli {

namespace {

using comparison::ReportOptions;
using comparison::Request;

std::string lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

/// What was read of an option, whose mistakes end the program with a message.
template <typename T>
T checked(const std::string& option, const Result<T>& read)
{
    if (!read) {
        throw CLI::ValidationError(option, read.error());
    }
    return read.value();
}

/// "relative", or "relative(0.5)" with a delta.
void setMethod(Request& request, const std::string& text)
{
    const std::size_t open = text.find('(');
    request.method = checked("--method", comparison::methodNamed(text.substr(0, open)));
    if (open != std::string::npos) {
        if (!text.ends_with(')')) {
            throw CLI::ValidationError("--method", text + " lacks its closing bracket");
        }
        request.delta = checked(
            "--method", comparison::numberOf(text.substr(open + 1, text.size() - open - 2)));
    }
}

void list(ReportOptions& report, const std::string& what)
{
    using Members = std::vector<bool ReportOptions::*>;
    static const std::map<std::string, Members> lists{
        {"var", {&ReportOptions::listBaseVariables, &ReportOptions::listCompareVariables}},
        {"obs", {&ReportOptions::listBaseObservations, &ReportOptions::listCompareObservations}},
        {"base", {&ReportOptions::listBaseVariables, &ReportOptions::listBaseObservations}},
        {"comp", {&ReportOptions::listCompareVariables, &ReportOptions::listCompareObservations}},
        {"basevar", {&ReportOptions::listBaseVariables}},
        {"compvar", {&ReportOptions::listCompareVariables}},
        {"baseobs", {&ReportOptions::listBaseObservations}},
        {"compobs", {&ReportOptions::listCompareObservations}},
        {"equalvar", {&ReportOptions::listEqualVariables}},
    };
    if (what == "all") {
        report.listAll();
        return;
    }
    const auto found = lists.find(what);
    if (found == lists.end()) {
        throw CLI::ValidationError("--list",
                                   what
                                       + " is none of all, var, obs, base, comp, basevar, compvar, "
                                         "baseobs, compobs and equalvar");
    }
    for (bool ReportOptions::*const member : found->second) {
        report.*member = true;
    }
}

void addEquality(CLI::App& command, Request& request)
{
    command.add_option("--id", request.id);
    command.add_option("--var", request.var);
    command.add_option("--with", request.with);
    command.add_option_function<std::string>(
        "--method", [&request](const std::string& text) { setMethod(request, text); });
    command.add_option("--criterion", request.criterion);
    command.add_option_function<std::vector<std::string>>(
        "--criterion-for", [&request](const std::vector<std::string>& texts) {
            for (const std::string& text : texts) {
                request.variableCriteria.push_back(
                    checked("--criterion-for", comparison::criterionOf(text)));
            }
        });
    command.add_flag("--nomissbase", request.missingBaseEqualsAll);
    command.add_flag("--nomisscomp", request.missingCompareEqualsAll);
    command.add_flag_callback("--nomissing", [&request] {
        request.missingBaseEqualsAll = request.missingCompareEqualsAll = true;
    });
}

void addReport(CLI::App& command, ReportOptions& report)
{
    command.add_option_function<std::vector<std::string>>(
        "--list", [&report](const std::vector<std::string>& names) {
            for (const std::string& name : names) {
                list(report, lowered(name));
            }
        });
    command.add_flag("--brief", report.brief);
    command.add_flag_callback("--nosummary", [&report] { report.summary = false; });
    command.add_flag_callback("--novalues", [&report] { report.values = false; });
    command.add_flag("--transpose", report.transpose);
    command.add_flag("--stats", report.statistics);
    command.add_option("--fuzz", report.fuzz)->check(CLI::Range(0.0, 1.0));
    command
        .add_option_function<std::vector<std::size_t>>(
            "--maxprint",
            [&report](const std::vector<std::size_t>& limits) {
                report.maxPerVariable = limits.front();
                report.maxTotal = limits.size() > 1 ? limits[1] : report.maxTotal;
            })
        ->expected(1, 2);
    command.add_option("--linesize", report.lineSize)
        ->check(CLI::Range(ReportOptions::smallestLine, ReportOptions::largestLine));
    command.add_option("--textwidth", report.textWidth)->check(CLI::Range(8, 200));
}

}  // namespace

CLI::App* addCompare(CLI::App& app, CompareOptions& options)
{
    CLI::App* command = app.add_subcommand("compare");
    command->add_option("BASE", options.base)->required();
    command->add_option("COMPARE", options.compare)->required();
    command->add_option("--member", options.baseMember);
    command->add_option("--compare-member", options.compareMember);
    command->add_option("--where", options.where);
    command->add_flag("--propose-id", options.proposesId);
    command->add_flag("--program", options.writesProgram);
    command->add_flag("--differences", options.listsDifferences);
    command->add_flag("--strict", options.strict);
    addEquality(*command, options.request);
    addReport(*command, options.report);
    return command;
}

}  // namespace cli
