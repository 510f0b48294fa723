#include "grid/filter/ConditionCompiler.h"

#include "grid/filter/DateScale.h"
#include "grid/filter/NumberTests.h"
#include "grid/filter/TextTests.h"
#include "grid/filter/VariableNames.h"

#include <fmt/format.h>

#include <optional>

namespace {

using Kind = LiteralValue::Kind;

Failure typesDiffer()
{
    return {"The variable types do not match."};
}

RowTestPointer negatedIf(bool negated, RowTestPointer test)
{
    return negated ? rowtests::negation(std::move(test)) : std::move(test);
}

NumberColumn numberColumn(const StatDataset& dataset, int variable)
{
    return {CellColumn(dataset, variable), missingnumbers::markOf(dataset, variable)};
}

TextColumn textColumn(const StatDataset& dataset, int variable)
{
    return {CellColumn(dataset, variable), &dataset.textPool()};
}

/// Compares with the missing value, below which there is nothing.
RowTestPointer compareWithMissing(CompareOp op, RowTestPointer isMissing)
{
    switch (op) {
    case CompareOp::Equal:
    case CompareOp::LessOrEqual:
        return isMissing;
    case CompareOp::NotEqual:
    case CompareOp::Greater:
        return rowtests::negation(std::move(isMissing));
    case CompareOp::GreaterOrEqual:
        return rowtests::constant(true);
    case CompareOp::Less:
    case CompareOp::Contains:
        break;
    }
    return rowtests::constant(false);
}

}  // namespace

Result<RowTestPointer> ConditionCompiler::compile(const Condition& condition) const
{
    return std::visit([this](const auto& node) { return compile(node); }, condition.node);
}

Result<RowTestPointer> ConditionCompiler::compile(const CompareTerm& term) const
{
    const Result<int> variable = variableNamed(term.variable);
    if (!variable) {
        return Failure{variable.error()};
    }
    const Result<LiteralValue> value = valueOf(term.value);
    if (!value) {
        return Failure{value.error()};
    }
    return m_dataset.isNumeric(variable.value())
        ? compareNumber(variable.value(), term.op, value.value())
        : compareText(variable.value(), term.op, value.value());
}

Result<RowTestPointer> ConditionCompiler::compile(const IndexTerm& term) const
{
    const Result<int> variable = variableNamed(term.variable);
    if (!variable) {
        return Failure{variable.error()};
    }
    const Result<LiteralValue> needle = valueOf(term.needle);
    const Result<LiteralValue> place = valueOf(term.value);
    if (!needle || !place) {
        return Failure{needle ? place.error() : needle.error()};
    }
    if (m_dataset.isNumeric(variable.value()) || needle.value().kind != Kind::Text
        || place.value().kind == Kind::Text || term.op == CompareOp::Contains) {
        return typesDiffer();
    }
    if (place.value().kind == Kind::Missing) {
        return compareWithMissing(term.op, rowtests::constant(false));
    }
    return texttests::compareIndex(textColumn(m_dataset, variable.value()), needle.value().text,
                                   term.op, place.value().number);
}

Result<RowTestPointer> ConditionCompiler::compile(const InTerm& term) const
{
    const Result<int> variable = variableNamed(term.variable);
    if (!variable) {
        return Failure{variable.error()};
    }
    std::vector<LiteralValue> values;
    for (const Literal& literal : term.values) {
        Result<LiteralValue> value = valueOf(literal);
        if (!value) {
            return Failure{value.error()};
        }
        values.push_back(std::move(value.value()));
    }
    Result<RowTestPointer> test = m_dataset.isNumeric(variable.value())
        ? numberIsIn(variable.value(), values)
        : textIsIn(variable.value(), values);
    return test ? negatedIf(term.negated, std::move(test.value())) : std::move(test);
}

Result<RowTestPointer> ConditionCompiler::compile(const NullTerm& term) const
{
    const Result<int> variable = variableNamed(term.variable);
    if (!variable) {
        return Failure{variable.error()};
    }
    return negatedIf(term.negated, isMissing(variable.value()));
}

Result<RowTestPointer> ConditionCompiler::compile(const Junction& junction) const
{
    std::vector<RowTestPointer> tests;
    for (const Condition& operand : junction.operands) {
        Result<RowTestPointer> test = compile(operand);
        if (!test) {
            return test;
        }
        tests.push_back(std::move(test.value()));
    }
    return junction.isAnd ? rowtests::conjunction(std::move(tests))
                          : rowtests::disjunction(std::move(tests));
}

Result<int> ConditionCompiler::variableNamed(const QString& name) const
{
    const std::optional<int> variable = variablenames::find(m_dataset, name);
    if (!variable) {
        return Failure{fmt::format("There is no variable named {}", name.toStdString())};
    }
    return *variable;
}

Result<RowTestPointer> ConditionCompiler::compareNumber(int variable, CompareOp op,
                                                        const LiteralValue& value) const
{
    if (value.kind == Kind::Text || op == CompareOp::Contains) {
        return typesDiffer();
    }
    if (value.kind == Kind::Missing) {
        return compareWithMissing(op, isMissing(variable));
    }
    const Result<double> number = storedCount(variable, value);
    if (!number) {
        return Failure{number.error()};
    }
    return numbertests::compare(numberColumn(m_dataset, variable), op, number.value());
}

Result<RowTestPointer> ConditionCompiler::compareText(int variable, CompareOp op,
                                                      const LiteralValue& value) const
{
    // A text that is missing is blank, so the number "." is the blank text here.
    const bool isMissingNumber = value.kind == Kind::Missing && op != CompareOp::Contains;
    if (value.kind != Kind::Text && !isMissingNumber) {
        return typesDiffer();
    }
    return texttests::compare(textColumn(m_dataset, variable), op, value.text);
}

Result<RowTestPointer> ConditionCompiler::numberIsIn(int variable,
                                                     const std::vector<LiteralValue>& values) const
{
    std::vector<double> numbers;
    bool hasMissing = false;
    for (const LiteralValue& value : values) {
        if (value.kind == Kind::Text) {
            return typesDiffer();
        }
        if (value.kind == Kind::Missing) {
            hasMissing = true;
            continue;
        }
        const Result<double> number = storedCount(variable, value);
        if (!number) {
            return Failure{number.error()};
        }
        numbers.push_back(number.value());
    }
    std::vector<RowTestPointer> tests;
    tests.push_back(numbertests::isOneOf(numberColumn(m_dataset, variable), std::move(numbers)));
    if (hasMissing) {
        tests.push_back(isMissing(variable));
    }
    return rowtests::disjunction(std::move(tests));
}

Result<RowTestPointer> ConditionCompiler::textIsIn(int variable,
                                                   const std::vector<LiteralValue>& values) const
{
    std::vector<std::string> texts;
    for (const LiteralValue& value : values) {
        if (value.kind != Kind::Text && value.kind != Kind::Missing) {
            return typesDiffer();
        }
        texts.push_back(value.text);
    }
    return texttests::isOneOf(textColumn(m_dataset, variable), std::move(texts));
}

RowTestPointer ConditionCompiler::isMissing(int variable) const
{
    if (m_dataset.isNumeric(variable)) {
        return numbertests::isMissing(numberColumn(m_dataset, variable));
    }
    std::vector<std::string> texts{{}};
    if (m_dataset.sourceKind() == SourceKind::R) {
        texts.emplace_back(missingnumbers::textInR);
    }
    return texttests::isOneOf(textColumn(m_dataset, variable), std::move(texts));
}

Result<double> ConditionCompiler::storedCount(int variable, const LiteralValue& value) const
{
    const std::optional<double> count = DateScale::of(m_dataset, variable).storedCount(value);
    if (!count) {
        return Failure{fmt::format(
            "{} does not count days or seconds and cannot be compared with a date or time",
            m_dataset.names()[static_cast<std::size_t>(variable)])};
    }
    return *count;
}
