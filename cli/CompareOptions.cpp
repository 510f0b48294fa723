#include "cli/Compare.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <CLI/CLI.hpp>
#include <map>

namespace cli {

namespace {

using comparison::Method;
using comparison::ReportOptions;
using comparison::Request;

std::string lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

double numberOf(const std::string& option, const std::string& text)
{
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end) {
        throw CLI::ValidationError(option, text + " is no number");
    }
    return number;
}

Method methodNamed(const std::string& option, const std::string& name)
{
    static const std::map<std::string, Method> methods{
        {"exact", Method::Exact},
        {"absolute", Method::Absolute},
        {"relative", Method::Relative},
        {"percent", Method::Percent},
    };
    const auto found = methods.find(lowered(name));
    if (found == methods.end()) {
        throw CLI::ValidationError(option,
                                   name + " is none of exact, absolute, relative and percent");
    }
    return found->second;
}

/// "relative", or "relative(0.5)" with a delta.
void setMethod(Request& request, const std::string& text)
{
    const std::size_t open = text.find('(');
    request.method = methodNamed("--method", text.substr(0, open));
    if (open != std::string::npos) {
        if (!text.ends_with(')')) {
            throw CLI::ValidationError("--method", text + " lacks its closing bracket");
        }
        request.delta = numberOf("--method", text.substr(open + 1, text.size() - open - 2));
    }
}

/// "AVAL=0.001", or "AVAL=0.001:absolute".
comparison::VariableCriterion criterionOf(const std::string& text)
{
    const std::size_t equals = text.rfind('=');
    if (equals == std::string::npos || equals == 0) {
        throw CLI::ValidationError("--criterion-for", text + " is not VARIABLE=NUMBER[:METHOD]");
    }
    const std::string rest = text.substr(equals + 1);
    const std::size_t colon = rest.find(':');
    comparison::VariableCriterion criterion{text.substr(0, equals),
                                            numberOf("--criterion-for", rest.substr(0, colon))};
    if (colon != std::string::npos) {
        criterion.method = methodNamed("--criterion-for", rest.substr(colon + 1));
    }
    return criterion;
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
                request.variableCriteria.push_back(criterionOf(text));
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
    command->add_flag("--strict", options.strict);
    addEquality(*command, options.request);
    addReport(*command, options.report);
    return command;
}

}  // namespace cli
