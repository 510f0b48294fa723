#include "data/values/WrittenJson.h"

#include <fmt/format.h>

#include <cmath>
#include <nlohmann/json.hpp>

std::string jsonText(std::string_view text)
{
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string jsonTexts(const std::vector<std::string>& texts)
{
    std::string out;
    for (const std::string& text : texts) {
        out += out.empty() ? "" : ",";
        out += jsonText(text);
    }
    return out;
}

std::string jsonNumber(double number)
{
    if (std::isnan(number)) {
        return "null";
    }
    if (std::isinf(number)) {
        return number > 0 ? "\"Infinity\"" : "\"-Infinity\"";  // JSON has no infinite numbers
    }
    return fmt::format("{:.17g}", number);
}
