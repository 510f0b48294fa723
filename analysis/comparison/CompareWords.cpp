#include "analysis/comparison/CompareWords.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <charconv>

namespace comparison {

Result<double> numberOf(std::string_view text)
{
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end) {
        return Failure{fmt::format("{} is no number", text)};
    }
    return number;
}

Result<Method> methodNamed(std::string_view name)
{
    const auto isMethod = [name](Method method) {
        const std::string_view word = nameOf(method);
        return std::equal(word.begin(), word.end(), name.begin(), name.end(), [](char a, char b) {
            return a == std::toupper(static_cast<unsigned char>(b));
        });
    };
    for (const Method method :
         {Method::Exact, Method::Absolute, Method::Relative, Method::Percent}) {
        if (isMethod(method)) {
            return method;
        }
    }
    return Failure{fmt::format("{} is none of exact, absolute, relative and percent", name)};
}

Result<VariableCriterion> criterionOf(std::string_view text)
{
    const std::size_t equals = text.rfind('=');
    if (equals == std::string_view::npos || equals == 0) {
        return Failure{fmt::format("{} is not VARIABLE=NUMBER[:METHOD]", text)};
    }
    const std::string_view rest = text.substr(equals + 1);
    const std::size_t colon = rest.find(':');
    const Result<double> number = numberOf(rest.substr(0, colon));
    if (!number) {
        return Failure{number.error()};
    }
    VariableCriterion criterion{std::string(text.substr(0, equals)), number.value()};
    if (colon != std::string_view::npos) {
        const Result<Method> method = methodNamed(rest.substr(colon + 1));
        if (!method) {
            return Failure{method.error()};
        }
        criterion.method = method.value();
    }
    return criterion;
}

}  // namespace comparison
