#include "benchmarks/BareParses.h"

#include <csv.h>
#include <rdata/rdata.h>

#include <fstream>
#include <memory>
#include <simdjson.h>
#include <vector>
#include <zlib.h>

namespace bareparses {
namespace {

int ignoreValue(int, readstat_variable_t*, readstat_value_t, void*)
{
    return READSTAT_HANDLER_OK;
}

/// The parser of SPSS files (ReadStat 1.1.8) crashes without a variable handler.
int ignoreVariable(int, readstat_variable_t*, const char*, void*)
{
    return READSTAT_HANDLER_OK;
}

/// Goes through lists and objects, too; false where a value is wrong.
template <typename Value>
bool visit(Value&& value)
{
    using simdjson::ondemand::json_type;
    json_type type{};
    if (value.type().get(type) != simdjson::SUCCESS) {
        return false;
    }
    std::string_view text;
    double number = 0;
    bool truth = false;
    switch (type) {
    case json_type::array:
        for (auto element : value.get_array()) {
            if (!visit(element)) {
                return false;
            }
        }
        return true;
    case json_type::object:
        for (auto field : value.get_object()) {
            if (!visit(field.value())) {
                return false;
            }
        }
        return true;
    case json_type::string:
        return value.get_string().get(text) == simdjson::SUCCESS;
    case json_type::number:
        return value.get_double().get(number) == simdjson::SUCCESS;
    case json_type::boolean:
        return value.get_bool().get(truth) == simdjson::SUCCESS;
    case json_type::null:
        return value.is_null().error() == simdjson::SUCCESS;
    }
    return false;
}

void ignoreField(void*, std::size_t, void*) { }
void ignoreRecord(int, void*) { }

int openPacked(const char*, void*)
{
    return 0;
}
int closePacked(void*)
{
    return 0;
}
rdata_off_t seekPacked(rdata_off_t offset, rdata_io_flags_t whence, void* file)
{
    return gzseek(static_cast<gzFile>(file), offset,
                  whence == RDATA_SEEK_SET ? SEEK_SET : SEEK_CUR);
}
ssize_t readPacked(void* target, std::size_t size, void* file)
{
    return gzread(static_cast<gzFile>(file), target, static_cast<unsigned>(size));
}
rdata_error_t ignoreProgress(long, rdata_progress_handler, void*, void*)
{
    return RDATA_OK;
}
int ignoreColumn(const char*, rdata_type_t, void*, long, void*)
{
    return 0;
}
int ignoreText(const char*, int, void*)
{
    return 0;
}

}  // namespace

std::function<bool(const std::string& path)> readStat(ReadStatParse parse)
{
    return [parse](const std::string& path) {
        const std::unique_ptr<readstat_parser_t, decltype(&readstat_parser_free)> parser(
            readstat_parser_init(), readstat_parser_free);
        readstat_set_variable_handler(parser.get(), ignoreVariable);
        readstat_set_value_handler(parser.get(), ignoreValue);
        return parse(parser.get(), path.c_str(), nullptr) == READSTAT_OK;
    };
}

bool csv(const std::string& path)
{
    constexpr std::size_t partBytes = std::size_t{256} << 10;
    std::ifstream file(path, std::ios::binary);
    std::vector<char> part(partBytes);
    csv_parser parser{};
    csv_init(&parser, 0);
    bool isRead = true;
    while (isRead && (file.read(part.data(), partBytes) || file.gcount() > 0)) {
        const auto size = static_cast<std::size_t>(file.gcount());
        isRead = csv_parse(&parser, part.data(), size, ignoreField, ignoreRecord, nullptr) == size;
    }
    csv_fini(&parser, ignoreField, ignoreRecord, nullptr);
    csv_free(&parser);
    return isRead;
}

bool r(const std::string& path)
{
    const std::unique_ptr<gzFile_s, decltype(&gzclose)> file(gzopen(path.c_str(), "rb"), gzclose);
    const std::unique_ptr<rdata_parser_t, decltype(&rdata_parser_free)> parser(rdata_parser_init(),
                                                                               rdata_parser_free);
    gzbuffer(file.get(), 1 << 18);
    rdata_set_open_handler(parser.get(), openPacked);
    rdata_set_close_handler(parser.get(), closePacked);
    rdata_set_seek_handler(parser.get(), seekPacked);
    rdata_set_read_handler(parser.get(), readPacked);
    rdata_set_update_handler(parser.get(), ignoreProgress);
    rdata_set_io_ctx(parser.get(), file.get());
    rdata_set_column_handler(parser.get(), ignoreColumn);
    rdata_set_text_value_handler(parser.get(), ignoreText);
    return rdata_parse(parser.get(), path.c_str(), nullptr) == RDATA_OK;
}

bool ndjson(const std::string& path)
{
    simdjson::padded_string text;
    simdjson::ondemand::parser parser;
    simdjson::ondemand::document_stream lines;
    if (simdjson::padded_string::load(path).get(text) != simdjson::SUCCESS
        || parser.iterate_many(text, 1 << 20).get(lines) != simdjson::SUCCESS) {
        return false;
    }
    bool isRead = true;
    for (auto line : lines) {
        simdjson::ondemand::document_reference document;
        isRead = isRead && std::move(line).get(document) == simdjson::SUCCESS && visit(document);
    }
    return isRead;
}

bool json(const std::string& path)
{
    simdjson::padded_string text;
    simdjson::ondemand::parser parser;
    simdjson::ondemand::document document;
    return simdjson::padded_string::load(path).get(text) == simdjson::SUCCESS
        && parser.iterate(text).get(document) == simdjson::SUCCESS && visit(document);
}

}  // namespace bareparses
