#include "grid/filter/ConditionCompiler.h"

#include "grid/filter/NumberPredicates.h"
#include "grid/filter/ParseError.h"
#include "grid/filter/TextPredicates.h"
#include "grid/filter/VariableNames.h"

#include <fmt/format.h>

#include <optional>

namespace {

using Kind = LiteralValue::Kind;

[[noreturn]] void refuseTypes(qsizetype position)
{
    throw ParseError("The variable types do not match.", position);
}

RowPredicatePointer negatedIf(bool negated, RowPredicatePointer predicate)
{
    return negated ? rowpredicates::negation(std::move(predicate)) : std::move(predicate);
}

NumberColumn numberColumn(const StatDataset& dataset, int variable)
{
    return {CellColumn(dataset, variable), dataset.missingMark(variable)};
}

TextColumn textColumn(const StatDataset& dataset, int variable)
{
    return {CellColumn(dataset, variable), &dataset.textPool()};
}

/// Compares with the missing value, below which there is nothing.
RowPredicatePointer compareWithMissing(CompareOp op, RowPredicatePointer isMissing)
{
    switch (op) {
    case CompareOp::Equal:
    case CompareOp::LessOrEqual:
        return isMissing;
    case CompareOp::NotEqual:
    case CompareOp::Greater:
        return rowpredicates::negation(std::move(isMissing));
    case CompareOp::GreaterOrEqual:
        return rowpredicates::constant(true);
    case CompareOp::Less:
    case CompareOp::Contains:
        break;
    }
    return rowpredicates::constant(false);
}

}  // namespace

RowPredicatePointer ConditionCompiler::compile(const Condition& condition) const
{
    return std::visit([this](const auto& node) { return compile(node); }, condition.node);
}

RowPredicatePointer ConditionCompiler::compile(const CompareTerm& term) const
{
    const int variable = variablenames::require(m_dataset, term.variable);
    const LiteralValue value = valueOf(term.value);
    return m_dataset.isNumeric(variable) ? compareNumber(variable, term.op, value)
                                         : compareText(variable, term.op, value);
}

RowPredicatePointer ConditionCompiler::compile(const IndexTerm& term) const
{
    const int variable = variablenames::require(m_dataset, term.variable);
    const LiteralValue needle = valueOf(term.needle);
    const LiteralValue place = valueOf(term.value);
    if (m_dataset.isNumeric(variable) || needle.kind != Kind::Text || place.kind == Kind::Text
        || term.op == CompareOp::Contains) {
        refuseTypes(term.variable.position);
    }
    if (place.kind == Kind::Missing) {
        return compareWithMissing(term.op, rowpredicates::constant(false));
    }
    return textpredicates::compareIndex(textColumn(m_dataset, variable), needle.text, term.op,
                                        place.number);
}

RowPredicatePointer ConditionCompiler::compile(const InTerm& term) const
{
    const int variable = variablenames::require(m_dataset, term.variable);
    std::vector<LiteralValue> values;
    for (const Literal& literal : term.values) {
        values.push_back(valueOf(literal));
    }
    RowPredicatePointer predicate =
        m_dataset.isNumeric(variable) ? numberIsIn(variable, values) : textIsIn(variable, values);
    return negatedIf(term.negated, std::move(predicate));
}

RowPredicatePointer ConditionCompiler::compile(const NullTerm& term) const
{
    const int variable = variablenames::require(m_dataset, term.variable);
    return negatedIf(term.negated, isMissing(variable));
}

RowPredicatePointer ConditionCompiler::compile(const Junction& junction) const
{
    std::vector<RowPredicatePointer> predicates;
    for (const Condition& operand : junction.operands) {
        predicates.push_back(compile(operand));
    }
    return junction.isAnd ? rowpredicates::conjunction(std::move(predicates))
                          : rowpredicates::disjunction(std::move(predicates));
}

RowPredicatePointer ConditionCompiler::compareNumber(int variable, CompareOp op,
                                                     const LiteralValue& value) const
{
    if (value.kind == Kind::Text || op == CompareOp::Contains) {
        refuseTypes(value.position);
    }
    if (value.kind == Kind::Missing) {
        return compareWithMissing(op, isMissing(variable));
    }
    const double number = storedCount(variable, value);
    return numberpredicates::compare(numberColumn(m_dataset, variable), op, number);
}

RowPredicatePointer ConditionCompiler::compareText(int variable, CompareOp op,
                                                   const LiteralValue& value) const
{
    if (value.kind != Kind::Text) {
        refuseTypes(value.position);
    }
    return textpredicates::compare(textColumn(m_dataset, variable), op, value.text);
}

RowPredicatePointer ConditionCompiler::numberIsIn(int variable,
                                                  const std::vector<LiteralValue>& values) const
{
    std::vector<double> numbers;
    bool hasMissing = false;
    for (const LiteralValue& value : values) {
        if (value.kind == Kind::Text) {
            refuseTypes(value.position);
        }
        if (value.kind == Kind::Missing) {
            hasMissing = true;
            continue;
        }
        const double number = storedCount(variable, value);
        numbers.push_back(number);
    }
    std::vector<RowPredicatePointer> predicates;
    predicates.push_back(
        numberpredicates::isOneOf(numberColumn(m_dataset, variable), std::move(numbers)));
    if (hasMissing) {
        predicates.push_back(isMissing(variable));
    }
    return rowpredicates::disjunction(std::move(predicates));
}

RowPredicatePointer ConditionCompiler::textIsIn(int variable,
                                                const std::vector<LiteralValue>& values) const
{
    std::vector<std::string> texts;
    for (const LiteralValue& value : values) {
        if (value.kind != Kind::Text) {
            refuseTypes(value.position);
        }
        texts.push_back(value.text);
    }
    return textpredicates::isOneOf(textColumn(m_dataset, variable), std::move(texts));
}

RowPredicatePointer ConditionCompiler::isMissing(int variable) const
{
    if (m_dataset.isNumeric(variable)) {
        return numberpredicates::isMissing(numberColumn(m_dataset, variable));
    }
    std::vector<std::string> texts{{}};
    if (const std::string_view text = m_dataset.missingText(variable); !text.empty()) {
        texts.emplace_back(text);
    }
    return textpredicates::isOneOf(textColumn(m_dataset, variable), std::move(texts));
}

double ConditionCompiler::storedCount(int variable, const LiteralValue& value) const
{
    const std::optional<double> count =
        m_dataset.dateScale(variable).storedCount(value.content(), value.number);
    if (!count) {
        throw ParseError(
            fmt::format(
                "{} does not count days or seconds and cannot be compared with a date or time",
                m_dataset.names()[static_cast<std::size_t>(variable)]),
            value.position);
    }
    return *count;
}
