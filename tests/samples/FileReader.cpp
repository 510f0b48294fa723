#include "FileReader.h"

#include "samples/WriteOptions.h"

#include <readstat.h>

#include <memory>
#include <stdexcept>

namespace {

int onMetadata(readstat_metadata_t* metadata, void* context)
{
    const auto* const name = readstat_get_table_name(metadata);
    const auto* const label = readstat_get_file_label(metadata);
    auto& table = *static_cast<samples::Table*>(context);
    table.name = name != nullptr ? name : "";
    table.label = label != nullptr ? label : "";
    return READSTAT_HANDLER_OK;
}

int onVariable(int, readstat_variable_t* variable, const char*, void* context)
{
    const auto* const label = readstat_variable_get_label(variable);
    const auto* const format = readstat_variable_get_format(variable);
    const auto typeClass = readstat_variable_get_type_class(variable);
    static_cast<samples::Table*>(context)->columns.push_back(
        {.name = readstat_variable_get_name(variable),
         .label = label != nullptr ? label : "",
         .format = format != nullptr ? format : "",
         .character = typeClass == READSTAT_TYPE_CLASS_STRING,
         .length = 0});
    return READSTAT_HANDLER_OK;
}

int onValue(int row, readstat_variable_t* variable, readstat_value_t value, void* context)
{
    auto& table = *static_cast<samples::Table*>(context);
    if (static_cast<std::size_t>(row) == table.rows.size()) {
        table.rows.emplace_back();
    }
    auto& cells = table.rows.at(static_cast<std::size_t>(row));
    if (readstat_value_type_class(value) == READSTAT_TYPE_CLASS_STRING) {
        const auto* const text = readstat_string_value(value);
        cells.emplace_back(std::string(text != nullptr ? text : ""));
    } else if (readstat_value_is_missing(value, variable) != 0) {
        cells.emplace_back(samples::missing);
    } else {
        cells.emplace_back(readstat_double_value(value));
    }
    return READSTAT_HANDLER_OK;
}

}  // namespace

samples::Table readBack(const std::filesystem::path& path)
{
    const std::unique_ptr<readstat_parser_t, decltype(&readstat_parser_free)> parser(
        readstat_parser_init(), &readstat_parser_free);
    readstat_set_metadata_handler(parser.get(), onMetadata);
    readstat_set_variable_handler(parser.get(), onVariable);
    readstat_set_value_handler(parser.get(), onValue);
    const auto parse = [&] {
        switch (samples::kindOfFile(path)) {
        case samples::FileKind::Transport:
            return readstat_parse_xport;
        case samples::FileKind::Sas:
            return readstat_parse_sas7bdat;
        case samples::FileKind::Spss:
            return readstat_parse_sav;
        case samples::FileKind::Stata:
            break;
        }
        return readstat_parse_dta;
    }();
    samples::Table table;
    if (const auto error = parse(parser.get(), path.c_str(), &table); error != READSTAT_OK) {
        throw std::runtime_error(path.string() + ": " + readstat_error_message(error));
    }
    return table;
}

std::vector<std::string> cellTexts(const samples::Table& table)
{
    std::vector<std::string> texts;
    for (const auto& row : table.rows) {
        for (const auto& cell : row) {
            const auto* const text = std::get_if<std::string>(&cell);
            texts.push_back(text != nullptr ? *text : std::to_string(std::get<double>(cell)));
        }
    }
    return texts;
}
