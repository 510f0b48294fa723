#include "data/readers/Unpackers.h"

#define ZLIB_CONST  // zlib only reads what it is given to unpack
#include <algorithm>
#include <bzlib.h>
#include <limits>
#include <lzma.h>
#include <new>
#include <string_view>
#include <zlib.h>

namespace unpackers {
namespace {

constexpr const char* damaged = "Its packed data are damaged";

/// As much of a span as a library takes at once.
unsigned int portionOf(std::size_t bytes)
{
    return static_cast<unsigned int>(std::min<std::size_t>(bytes, std::numeric_limits<int>::max()));
}

class Gzip final : public Unpacker
{
public:
    Gzip()
    {
        constexpr int gzipHeader = 16;
        if (inflateInit2(&m_stream, MAX_WBITS + gzipHeader) != Z_OK) {
            throw std::bad_alloc();
        }
    }
    ~Gzip() override { inflateEnd(&m_stream); }
    Gzip(const Gzip&) = delete;
    Gzip& operator=(const Gzip&) = delete;

    bool unpack(Step& step) override
    {
        m_stream.next_in = reinterpret_cast<const Bytef*>(step.from.data());
        m_stream.avail_in = portionOf(step.from.size());
        m_stream.next_out = reinterpret_cast<Bytef*>(step.to.data());
        m_stream.avail_out = portionOf(step.to.size());
        const auto in = m_stream.avail_in;
        const auto out = m_stream.avail_out;
        const int result = inflate(&m_stream, Z_NO_FLUSH);
        step.from = step.from.subspan(in - m_stream.avail_in);
        step.to = step.to.subspan(out - m_stream.avail_out);
        if (result == Z_DATA_ERROR && isAtCheckSum()) {
            m_hasWrongCheckSum = true;
            return true;
        }
        if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR) {
            throw FileDamage(damaged);
        }
        return result == Z_STREAM_END;
    }
    void restart() override { inflateReset(&m_stream); }
    [[nodiscard]] std::int64_t mostBytesOfOne() const override
    {
        return 1032;  // deflate's longest match, 258 bytes, in two bits
    }
    [[nodiscard]] bool hasWrongCheckSum() const override { return m_hasWrongCheckSum; }

private:
    /// All bytes have come then, and only what stands behind them is wrong.
    [[nodiscard]] bool isAtCheckSum() const
    {
        const std::string_view what = m_stream.msg == nullptr ? "" : m_stream.msg;
        return what == "incorrect data check" || what == "incorrect length check";
    }

    z_stream m_stream{};
    bool m_hasWrongCheckSum = false;
};

class Bzip2 final : public Unpacker
{
public:
    Bzip2() { begin(); }
    ~Bzip2() override { BZ2_bzDecompressEnd(&m_stream); }
    Bzip2(const Bzip2&) = delete;
    Bzip2& operator=(const Bzip2&) = delete;

    bool unpack(Step& step) override
    {
        m_stream.next_in = const_cast<char*>(step.from.data());  // the library only reads there
        m_stream.avail_in = portionOf(step.from.size());
        m_stream.next_out = step.to.data();
        m_stream.avail_out = portionOf(step.to.size());
        const auto in = m_stream.avail_in;
        const auto out = m_stream.avail_out;
        const int result = BZ2_bzDecompress(&m_stream);
        step.from = step.from.subspan(in - m_stream.avail_in);
        step.to = step.to.subspan(out - m_stream.avail_out);
        if (result == BZ_MEM_ERROR) {
            throw std::bad_alloc();
        }
        if (result != BZ_OK && result != BZ_STREAM_END) {
            throw FileDamage(damaged);
        }
        return result == BZ_STREAM_END;
    }
    void restart() override
    {
        BZ2_bzDecompressEnd(&m_stream);
        begin();
    }

private:
    void begin()
    {
        m_stream = {};
        if (BZ2_bzDecompressInit(&m_stream, 0, 0) != BZ_OK) {
            throw std::bad_alloc();
        }
    }

    bz_stream m_stream{};
};

class Xz final : public Unpacker
{
public:
    Xz() { restart(); }
    ~Xz() override { lzma_end(&m_stream); }
    Xz(const Xz&) = delete;
    Xz& operator=(const Xz&) = delete;

    bool unpack(Step& step) override
    {
        m_stream.next_in = reinterpret_cast<const std::uint8_t*>(step.from.data());
        m_stream.avail_in = step.from.size();
        m_stream.next_out = reinterpret_cast<std::uint8_t*>(step.to.data());
        m_stream.avail_out = step.to.size();
        const lzma_ret result = lzma_code(&m_stream, LZMA_RUN);
        step.from = step.from.last(m_stream.avail_in);
        step.to = step.to.last(m_stream.avail_out);
        if (result == LZMA_MEM_ERROR) {
            throw std::bad_alloc();
        }
        if (result == LZMA_MEMLIMIT_ERROR) {
            throw FileDamage("To unpack it takes more memory than its writer ever asks for");
        }
        if (result != LZMA_OK && result != LZMA_STREAM_END && result != LZMA_BUF_ERROR) {
            throw FileDamage(damaged);
        }
        return result == LZMA_STREAM_END;
    }
    void restart() override
    {
        constexpr std::uint64_t mostMemory = std::uint64_t{256} << 20;  // level 9 takes 65 MiB
        if (lzma_stream_decoder(&m_stream, mostMemory, 0) != LZMA_OK) {
            throw std::bad_alloc();
        }
    }

private:
    lzma_stream m_stream = LZMA_STREAM_INIT;
};

}  // namespace

std::unique_ptr<Unpacker> gzip()
{
    return std::make_unique<Gzip>();
}

std::unique_ptr<Unpacker> bzip2()
{
    return std::make_unique<Bzip2>();
}

std::unique_ptr<Unpacker> xz()
{
    return std::make_unique<Xz>();
}

}  // namespace unpackers
