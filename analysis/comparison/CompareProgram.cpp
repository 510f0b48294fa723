#include "analysis/comparison/CompareProgram.h"

#include "analysis/comparison/ComparedTexts.h"
#include "grid/filter/VariableNames.h"

#include <fmt/format.h>

#include <QString>

#include <algorithm>

namespace comparison {

namespace {

std::string quoted(const std::string& path)
{
    std::string text = "'";
    for (const char letter : path) {
        text += letter == '\'' ? "''" : std::string(1, letter);
    }
    return text + '\'';
}

/// Variables as SAS reads them.
std::string listed(const std::vector<std::string>& names)
{
    std::string list;
    for (const std::string& name : names) {
        list += ' ' + variablenames::written(QString::fromStdString(name)).toStdString();
    }
    return list;
}

bool isAmong(const std::vector<std::string>& names, const std::string& name)
{
    const QString wanted = QString::fromStdString(name);
    return std::any_of(names.begin(), names.end(), [&](const std::string& other) {
        return wanted.compare(QString::fromStdString(other), Qt::CaseInsensitive) == 0;
    });
}

class Program
{
public:
    Program(const Request& request, const ReportOptions& options)
        : m_request(request)
        , m_options(options)
    { }

    void read(const ProgramSource& source, const std::string& name);
    void compare();
    [[nodiscard]] std::string text() const { return fmt::format("{}\n", fmt::join(m_lines, "\n")); }

private:
    void import(const ProgramSource& source, const std::string& name);
    void add(std::string line) { m_lines.push_back(std::move(line)); }
    void compareOthers(const Method* method);
    void addStep(const Method* method, const double* criterion, const std::vector<std::string>& var,
                 const std::vector<std::string>& with);
    [[nodiscard]] std::string statement(const Method* method, const double* criterion) const;
    [[nodiscard]] std::string options() const;

    const Request& m_request;
    const ReportOptions& m_options;
    std::vector<std::string> m_lines;
};

std::string suffixOf(const std::string& path)
{
    return QString::fromStdString(path).section(u'.', -1).toLower().toStdString();
}

std::string folderOf(const std::string& path)
{
    return path.substr(0, path.find_last_of('/'));
}

/// Copies the dataset of a file into WORK, filtered and sorted.
void Program::read(const ProgramSource& source, const std::string& name)
{
    const std::string suffix = suffixOf(source.path);
    const bool isSas = suffix == "sas7bdat" || suffix == "xpt";
    if (isSas) {
        add(suffix == "xpt"
                ? fmt::format("libname {}lib xport {};", name, quoted(source.path))
                : fmt::format("libname {}lib {};", name, quoted(folderOf(source.path))));
    } else {
        import(source, name);
    }
    if (isSas || !source.filters.empty()) {
        add(fmt::format("data work.{};", name));
        add(isSas ? fmt::format("    set {}lib.{};", name, source.member)
                  : fmt::format("    set work.{};", name));
        for (const std::string& filter : source.filters) {
            add("    " + filter);
        }
        add("run;");
    }
    if (!m_request.id.empty()) {
        add(fmt::format("proc sort data=work.{};", name));
        add(fmt::format("    by{};", listed(m_request.id)));
        add("run;");
    }
    add("");
}

void Program::import(const ProgramSource& source, const std::string& name)
{
    const std::string suffix = suffixOf(source.path);
    if (suffix == "sav" || suffix == "dta" || suffix == "csv") {
        add(fmt::format("proc import datafile={} out=work.{} dbms={} replace;", quoted(source.path),
                        name, suffix));
        if (suffix == "csv") {
            add("    guessingrows=max;");
        }
        add("run;");
    } else {
        add(fmt::format("/* Read {} into work.{} here. */", source.member, name));
        if (!source.path.empty()) {
            add(fmt::format("/* Its file: {} */", source.path));
        }
    }
}

std::string Program::options() const
{
    std::string text;
    const auto flag = [&text](bool isSet, const char* word) {
        text += isSet ? std::string(" ") + word : std::string();
    };
    flag(m_request.missingBaseEqualsAll, "nomissbase");
    flag(m_request.missingCompareEqualsAll, "nomisscomp");
    flag(m_options.listBaseVariables, "listbasevar");
    flag(m_options.listCompareVariables, "listcompvar");
    flag(m_options.listBaseObservations, "listbaseobs");
    flag(m_options.listCompareObservations, "listcompobs");
    flag(m_options.listEqualVariables, "listequalvar");
    flag(m_options.brief, "briefsummary");
    flag(!m_options.summary, "nosummary");
    flag(!m_options.values, "novalues");
    flag(m_options.transpose, "transpose");
    flag(m_options.statistics, "stats");
    if (m_options.fuzz > 0) {
        text += fmt::format(" fuzz={}", m_options.fuzz);
    }
    return text + fmt::format(" maxprint=({},{})", m_options.maxPerVariable, m_options.maxTotal);
}

std::string Program::statement(const Method* method, const double* criterion) const
{
    std::string text = "proc compare base=work.base compare=work.compare";
    if (method != nullptr) {
        text += fmt::format(" method={}", nameOf(*method));
        if (*method == Method::Relative && m_request.delta) {
            text += fmt::format("({})", *m_request.delta);
        }
    }
    if (criterion != nullptr) {
        text += " criterion=" + criterionText(*criterion);
    }
    return text + options() + ';';
}

void Program::addStep(const Method* method, const double* criterion,
                      const std::vector<std::string>& var, const std::vector<std::string>& with)
{
    add(statement(method, criterion));
    if (!m_request.id.empty()) {
        add(fmt::format("    id{};", listed(m_request.id)));
    }
    if (!var.empty()) {
        add(fmt::format("    var{};", listed(var)));
    }
    if (!with.empty()) {
        add(fmt::format("    with{};", listed(with)));
    }
    add("run;");
}

/// The step of the variables that have no criterion of their own.
void Program::compareOthers(const Method* method)
{
    std::vector<std::string> own;
    own.reserve(m_request.variableCriteria.size());
    for (const VariableCriterion& criterion : m_request.variableCriteria) {
        own.push_back(criterion.variable);
    }
    std::vector<std::string> var;
    std::vector<std::string> with;
    for (std::size_t i = 0; i < m_request.var.size(); ++i) {
        if (!isAmong(own, m_request.var[i])) {
            var.push_back(m_request.var[i]);
            if (i < m_request.with.size()) {
                with.push_back(m_request.with[i]);
            }
        }
    }
    if (!own.empty() && m_request.var.empty()) {
        add(fmt::format("/* The steps behind this one compare{} once more. */", listed(own)));
    }
    if (m_request.var.empty() || !var.empty()) {
        addStep(method, m_request.criterion ? &*m_request.criterion : nullptr, var, with);
    }
}

void Program::compare()
{
    const Method* method = m_request.method ? &*m_request.method : nullptr;
    compareOthers(method);
    for (const VariableCriterion& criterion : m_request.variableCriteria) {
        add("");
        std::vector<std::string> partner;
        for (std::size_t i = 0; i < m_request.with.size(); ++i) {
            if (isAmong({criterion.variable}, m_request.var[i])) {
                partner.push_back(m_request.with[i]);
            }
        }
        const bool inherits = method != nullptr && *method != Method::Exact;
        addStep(criterion.method ? &*criterion.method
                    : inherits   ? method
                                 : nullptr,
                &criterion.criterion, {criterion.variable}, partner);
    }
}

}  // namespace

std::string programText(const ProgramSource& base, const ProgramSource& compare,
                        const Request& request, const ReportOptions& options)
{
    Program program(request, options);
    program.read(base, "base");
    program.read(compare, "compare");
    program.compare();
    return program.text();
}

}  // namespace comparison
