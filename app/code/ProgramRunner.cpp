#include "app/code/ProgramRunner.h"

#include "app/window/GridServices.h"
#include "workspace/program/ProgramStatements.h"

#include <spdlog/spdlog.h>

namespace programrunner {
namespace {

bool setByVariables(const ProgramStatement& statement, OpenDataset& opened, GridServices& services)
{
    std::vector<WrittenName> names;
    for (const QString& name : statement.names) {
        names.push_back({name});
    }
    CommandOutcome outcome = opened.setByVariables(names);
    if (outcome) {
        outcome->command = statement.text;
    }
    return services.report(outcome);
}

/// @return  whether the program may go on
bool runStatement(const ProgramStatement& statement, OpenDataset& opened, GridServices& services)
{
    using Kind = ProgramStatement::Kind;
    switch (statement.kind) {
    case Kind::Command:
        return services.report(opened.run(statement.text, Dialect::FilterText));
    case Kind::By:
        return setByVariables(statement, opened, services);
    case Kind::PassedOver:
        return true;
    case Kind::Unknown:
        spdlog::warn("Line {}: this statement is passed over: {}", statement.line,
                     statement.text.toStdString());
        return true;
    case Kind::Unclosed:
        spdlog::warn("Line {}: a quote or comment is not closed: {}", statement.line,
                     statement.text.toStdString());
        return true;
    }
    return true;
}

}  // namespace

void run(const QString& program, OpenDataset& opened, GridServices& services)
{
    for (const ProgramStatement& statement : programstatements::split(program)) {
        if (!runStatement(statement, opened, services)) {
            spdlog::error("Line {}: the program has stopped here: {}", statement.line,
                          statement.text.toStdString());
            return;
        }
    }
}

}  // namespace programrunner
