#include "app/code/ProgramRunner.h"

#include "grid/filter/CommandParser.h"
#include "grid/opened/LibraryFilter.h"
#include "grid/opened/OpenDataset.h"

#include <spdlog/spdlog.h>

#include <QCoreApplication>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace programrunner {
namespace {

using InForce = CommandReading::InForce;

/// A program as it is read and tried before any of it is run.
class Plan
{
public:
    explicit Plan(OpenDataset& opened)
        : m_opened(opened)
        , m_where(opened.libraryFilterText())
    { }

    void add(const ProgramStatement& statement);
    [[nodiscard]] Report carryOut();

private:
    void mark(const ProgramStatement& statement, const QString& message, bool isWrong);
    [[nodiscard]] CommandOutcome plan(const ProgramStatement& statement);
    [[nodiscard]] CommandOutcome planBy(const ProgramStatement& statement);
    [[nodiscard]] CommandOutcome planWhere(const ParsedCondition& condition);
    void planIf(ParsedCondition condition);
    [[nodiscard]] QString conditionOfAll() const;

    OpenDataset& m_opened;
    QString m_where;  ///< that is in force or will be
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
        outcome = m_opened.check(command, statement.text);
        if (outcome) {
            return;
        }
        if (const auto* where = std::get_if<Command::SetLibraryFilter>(&command.action)) {
            outcome = planWhere(where->condition);
        } else if (auto* narrowing = std::get_if<Command::AddDatasetFilter>(&command.action)) {
            m_ifs.push_back(std::move(narrowing->condition));
        } else {
            m_steps.emplace_back(
                [this, text = statement.text] { return m_opened.run(text, Dialect::FilterText); });
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
    CommandOutcome outcome =
        m_opened.check({Command::KeepVariables{names}, std::nullopt}, statement.text);
    m_steps.emplace_back([this, names] { return m_opened.setByVariables(names); });
    return outcome;
}

/// There is one library filter only.
CommandOutcome Plan::planWhere(const ParsedCondition& condition)
{
    const QString text = u"where "_s + condition.text;
    if (text == m_where) {
        return std::nullopt;
    }
    if (!m_where.isEmpty()) {
        return CommandFailure{QString::fromUtf8(LibraryFilter::oneLevelOnly), text};
    }
    m_where = text;
    m_steps.emplace_back([this, text] { return m_opened.run(text, Dialect::FilterText); });
    return std::nullopt;
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
