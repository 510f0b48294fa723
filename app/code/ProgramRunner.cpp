#include "app/code/ProgramRunner.h"

#include "grid/filter/CommandParser.h"
#include "grid/filter/VariableNames.h"
#include "grid/opened/LibraryFilter.h"
#include "grid/opened/OpenDataset.h"
#include "workspace/program/ProgramText.h"

#include <spdlog/spdlog.h>

#include <QCoreApplication>
#include <QMultiHash>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace programrunner {
namespace {

using InForce = CommandReading::InForce;

/// The variables by the names that generated programs give them.
class SasNames
{
public:
    explicit SasNames(const OpenDataset& opened)
        : m_opened(opened)
    { }

    /// Puts the names that the dataset has in the place of SAS names. A name of the dataset stays,
    /// and one of nothing too.
    [[nodiscard]] CommandOutcome resolve(std::vector<WrittenName>& names);

private:
    [[nodiscard]] const QMultiHash<QString, int>& all();

    const OpenDataset& m_opened;
    QMultiHash<QString, int> m_all;
};

const QMultiHash<QString, int>& SasNames::all()
{
    if (m_all.isEmpty()) {
        for (int variable = 0; variable < m_opened.dataset().variableCount(); ++variable) {
            m_all.insert(programtext::makeSasName(m_opened.nameOf(variable)), variable);
        }
    }
    return m_all;
}

CommandOutcome SasNames::resolve(std::vector<WrittenName>& names)
{
    for (WrittenName& name : names) {
        if (variablenames::find(m_opened.dataset(), name.name)) {
            continue;
        }
        QStringList meant;
        for (const int variable : all().values(name.name.toLower())) {
            meant.prepend(m_opened.nameOf(variable));
        }
        if (meant.size() > 1) {
            const QString message = QCoreApplication::translate(
                "ProgramRunner", "%1 is the SAS name of several variables: %2");
            return CommandFailure{message.arg(name.name, meant.join(u", "_s)), name.name};
        }
        name.name = meant.isEmpty() ? name.name : meant.front();
    }
    return std::nullopt;
}

/// A program as it is read and tried before any of it is run.
class Plan
{
public:
    explicit Plan(OpenDataset& opened)
        : m_opened(opened)
        , m_sasNames(opened)
    { }

    void add(const ProgramStatement& statement);
    [[nodiscard]] Report carryOut();

private:
    void mark(const ProgramStatement& statement, const QString& message, bool isWrong);
    [[nodiscard]] CommandOutcome plan(const ProgramStatement& statement);
    [[nodiscard]] CommandOutcome planBy(const ProgramStatement& statement);
    [[nodiscard]] CommandOutcome planChoice(QStringView word, std::vector<WrittenName> names);
    [[nodiscard]] CommandOutcome planWhere(const Command& command);
    [[nodiscard]] QString conditionOfAll() const;

    OpenDataset& m_opened;
    SasNames m_sasNames;
    QString m_where;  ///< of the program
    std::vector<ParsedCondition> m_ifs;
    std::vector<std::function<CommandOutcome()>> m_steps;
    std::vector<Mark> m_marks;
};

void Plan::mark(const ProgramStatement& statement, const QString& message, bool isWrong)
{
    m_marks.push_back({statement, message, isWrong});
    const auto level = isWrong ? spdlog::level::err : spdlog::level::warn;
    spdlog::log(level, "Line {}: {}: {}", statement.line,
                isWrong ? message.toStdString() : "this statement is passed over",
                statement.text.left(200).toStdString());
}

void Plan::add(const ProgramStatement& statement)
{
    using Kind = ProgramStatement::Kind;
    const auto text = [](const char* message) {
        return QCoreApplication::translate("ProgramRunner", message);
    };
    switch (statement.kind) {
    case Kind::PassedOver:
        return;
    case Kind::Unknown:
        mark(statement, text(QT_TRANSLATE_NOOP("ProgramRunner", "This statement is passed over.")),
             false);
        return;
    case Kind::Unclosed:
        mark(statement,
             text(QT_TRANSLATE_NOOP("ProgramRunner", "A quote or comment is not closed.")), true);
        return;
    default:
        break;
    }
    if (const CommandOutcome outcome = plan(statement)) {
        mark(statement, outcome->message, true);
    }
}

CommandOutcome Plan::plan(const ProgramStatement& statement)
{
    if (statement.kind == ProgramStatement::Kind::By) {
        return planBy(statement);
    }
    CommandOutcome outcome;
    const CommandOutcome unread = failureOf(statement.text, [&] {
        Command command = CommandParser::parse(statement.text, Dialect::FilterText);
        if (std::holds_alternative<Command::SetLibraryFilter>(command.action)) {
            outcome = planWhere(command);
        } else if (auto* narrowing = std::get_if<Command::AddDatasetFilter>(&command.action)) {
            outcome = m_opened.check(command, statement.text);
            m_ifs.push_back(std::move(narrowing->condition));
        } else if (auto* kept = std::get_if<Command::KeepVariables>(&command.action)) {
            outcome = planChoice(u"keep", std::move(kept->names));
        } else if (auto* dropped = std::get_if<Command::DropVariables>(&command.action)) {
            outcome = planChoice(u"drop", std::move(dropped->names));
        }
    });
    return unread ? unread : outcome;
}

CommandOutcome Plan::planBy(const ProgramStatement& statement)
{
    std::vector<WrittenName> names;
    for (const QString& name : statement.names) {
        names.push_back({name});
    }
    CommandOutcome outcome = m_sasNames.resolve(names);
    if (!outcome) {
        outcome = m_opened.check({Command::KeepVariables{names}, std::nullopt}, statement.text);
    }
    m_steps.emplace_back([this, names] { return m_opened.setByVariables(names); });
    return outcome;
}

/// @param word  "keep" or "drop"
CommandOutcome Plan::planChoice(QStringView word, std::vector<WrittenName> names)
{
    if (CommandOutcome outcome = m_sasNames.resolve(names)) {
        return outcome;
    }
    QString text = word.toString();
    for (const WrittenName& name : names) {
        text += u' ' + variablenames::written(name.name);
    }
    m_steps.emplace_back([this, text] { return m_opened.run(text, Dialect::FilterText); });
    return m_opened.check({Command::KeepVariables{std::move(names)}, std::nullopt}, text);
}

/// The program's one library filter takes the place of the one in force. That one passes also where
/// it cannot filter this dataset.
CommandOutcome Plan::planWhere(const Command& command)
{
    const QString text =
        u"where "_s + std::get<Command::SetLibraryFilter>(command.action).condition.text;
    if (text == m_where) {
        return std::nullopt;
    }
    if (!m_where.isEmpty()) {
        return CommandFailure{QString::fromUtf8(LibraryFilter::oneLevelOnly), text};
    }
    m_where = text;
    if (text == m_opened.libraryFilterText()) {
        return std::nullopt;
    }
    m_steps.emplace_back([this, text] {
        return m_opened.run(text, CommandReading{Dialect::FilterText, InForce::IsReplaced});
    });
    return m_opened.check(command, text);
}

/// "if a = 1 and (b = 2 or c = 3)"
QString Plan::conditionOfAll() const
{
    QStringList conditions;
    for (const ParsedCondition& condition : m_ifs) {
        const bool needsParentheses = condition.hasOuterOr && m_ifs.size() > 1;
        conditions << (needsParentheses ? u'(' + condition.text + u')' : condition.text);
    }
    return u"if "_s + conditions.join(u" and "_s);
}

Report Plan::carryOut()
{
    const bool isWrong =
        std::any_of(m_marks.begin(), m_marks.end(), [](const Mark& mark) { return mark.isWrong; });
    if (isWrong) {
        return {std::move(m_marks), false};
    }
    if (!m_ifs.empty() && conditionOfAll() != m_opened.datasetFilterText()) {
        m_steps.emplace_back([this] {
            return m_opened.run(conditionOfAll(),
                                CommandReading{Dialect::FilterText, InForce::IsReplaced});
        });
    }
    for (const auto& step : m_steps) {
        if (const CommandOutcome outcome = step()) {
            mark({ProgramStatement::Kind::Command, 1, outcome->command, {}}, outcome->message,
                 true);
            return {std::move(m_marks), false};
        }
    }
    return {std::move(m_marks), true};
}

}  // namespace

Report run(const QString& program, OpenDataset& opened)
{
    Plan plan(opened);
    for (const ProgramStatement& statement : programstatements::split(program)) {
        plan.add(statement);
    }
    return plan.carryOut();
}

}  // namespace programrunner
