#include "cli/Commands.h"
#include "cli/Selection.h"
#include "grid/filter/CommandParser.h"
#include "grid/filter/CompiledCondition.h"
#include "grid/filter/ParseError.h"
#include "workspace/program/ProgramText.h"

#include <fmt/format.h>

#include <algorithm>

namespace cli {

namespace {

/// The statement of a condition as programs write it, "where a = 1"; empty without one.
/// @param option  what the user calls it, for the failure
template <typename Filter>
Result<QString> statementOf(const StatDataset& dataset, const std::optional<std::string>& condition,
                            std::string_view option, const QString& word)
{
    if (!condition) {
        return QString();
    }
    try {
        const Command command = CommandParser::parse(
            word + u' ' + QString::fromStdString(*condition), Dialect::FilterText);
        if (command.trailingText) {
            throw ParseError(ParseError::trailingText, *command.trailingText);
        }
        const ParsedCondition& parsed = std::get<Filter>(command.action).condition;
        static_cast<void>(CompiledCondition(parsed, dataset));
        return word + u' ' + parsed.text;
    } catch (const ParseError& error) {
        const std::string meant = error.suggestion().empty()
            ? std::string()
            : fmt::format(" (did you mean {}?)", error.suggestion());
        return Failure{fmt::format("{}: {}{}", option, error.what(), meant)};
    }
}

QStringList namesOf(const StatDataset& dataset, const std::vector<int>& variables)
{
    QStringList names;
    for (const int variable : variables) {
        names << QString::fromStdString(dataset.names()[static_cast<std::size_t>(variable)]);
    }
    return names;
}

}  // namespace

Result<bool> printCode(const StatDataset& dataset, const QString& file, const CodeRequest& request,
                       OutputFormat format)
{
    const auto where = statementOf<Command::SetLibraryFilter>(dataset, request.where, "--where",
                                                              QStringLiteral("where"));
    const auto narrowing = statementOf<Command::AddDatasetFilter>(dataset, request.narrowing,
                                                                  "--if", QStringLiteral("if"));
    const Result<std::vector<int>> by = variablesNamed(dataset, request.by);
    Result<std::vector<int>> kept = variablesNamed(dataset, request.keep);
    if (!where || !narrowing) {
        return where ? Failure{narrowing.error()} : Failure{where.error()};
    }
    if (!by || !kept) {
        return by ? Failure{kept.error()} : Failure{by.error()};
    }
    std::vector<int>& variables = kept.value();
    std::sort(variables.begin(), variables.end());
    variables.erase(std::unique(variables.begin(), variables.end()), variables.end());
    programtext::View view{file};
    view.datasetName = QString::fromStdString(dataset.datasetName());
    view.libraryFilter = where.value();
    view.datasetFilter = narrowing.value();
    view.byVariables = namesOf(dataset, by.value());
    view.shownVariables = namesOf(dataset, variables);
    view.variableCount = dataset.variableCount();
    const std::string program = programtext::of(view).toStdString();
    print(format == OutputFormat::Json ? fmt::format("{{\"program\":{}}}\n", jsonText(program))
                                       : program + '\n');
    return true;
}

}  // namespace cli
