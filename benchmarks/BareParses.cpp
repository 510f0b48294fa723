#include "benchmarks/BareParses.h"

#include <csv.h>

#include <fstream>
#include <memory>
#include <vector>

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

void ignoreField(void*, std::size_t, void*) { }
void ignoreRecord(int, void*) { }

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

}  // namespace bareparses
