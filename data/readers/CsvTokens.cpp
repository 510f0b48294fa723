#include "data/readers/CsvTokens.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

namespace {

/// How much room the library adds at a time to the field it puts together.
constexpr std::size_t fieldRoom = std::size_t{64} << 10;

/// Blanks belong to the field that they stand in; the library would cut them.
int nothingIsBlank(unsigned char)
{
    return 0;
}

}  // namespace

CsvTokens::CsvTokens(char delimiter, Quotes quotes, CsvSink& sink)
    : m_sink(sink)
{
    // Blank lines are reported, so that the lines can be counted.
    const int strictness = quotes == Quotes::Strict ? CSV_STRICT : 0;
    csv_init(&m_parser, static_cast<unsigned char>(CSV_REPALL_NL | CSV_STRICT_FINI | strictness));
    csv_set_delim(&m_parser, static_cast<unsigned char>(delimiter));
    csv_set_space_func(&m_parser, nothingIsBlank);
    csv_set_blk_size(&m_parser, fieldRoom);
}

CsvTokens::~CsvTokens()
{
    csv_free(&m_parser);
}

bool CsvTokens::add(std::string_view part)
{
    const std::size_t taken =
        csv_parse(&m_parser, part.data(), part.size(), onField, onRecord, this);
    check();
    return taken == part.size();
}

bool CsvTokens::finish()
{
    const bool closed = csv_fini(&m_parser, onField, onRecord, this) == 0;
    check();
    return closed;
}

void CsvTokens::check()
{
    if (m_thrown) {
        std::rethrow_exception(std::exchange(m_thrown, nullptr));
    }
    if (csv_error(&m_parser) == CSV_ENOMEM || csv_error(&m_parser) == CSV_ETOOBIG) {
        throw std::bad_alloc();
    }
}

/// Calls the sink unless it has thrown before.
template <typename Call>
void CsvTokens::hand(Call call) noexcept
{
    if (m_thrown) {
        return;
    }
    try {
        call();
    } catch (...) {
        m_thrown = std::current_exception();
    }
}

void CsvTokens::onField(void* text, std::size_t size, void* context) noexcept
{
    auto* self = static_cast<CsvTokens*>(context);
    const std::string_view field(static_cast<const char*>(text), size);
    self->m_hasFields = true;
    self->m_follows = false;
    self->hand([&] { self->m_sink.field(field); });
    if (field.find('\n') != std::string_view::npos) {
        self->m_line += std::ranges::count(field, '\n');
    }
}

void CsvTokens::onRecord(int end, void* context) noexcept
{
    auto* self = static_cast<CsvTokens*>(context);
    if (self->m_hasFields) {
        self->hand([&] { self->m_sink.endRecord(); });
    }
    self->m_hasFields = false;
    self->countLineEnd(end);
}

void CsvTokens::countLineEnd(int end)
{
    const bool isSecondHalf = end == '\n' && m_follows;
    m_follows = end == '\r';
    if (!isSecondHalf) {
        ++m_line;
    }
    m_recordLine = m_line;
}
