#pragma once

#include "data/readers/FileReader.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// What is wrong with a file, as a sentence for its user that does not name it.
class FileDamage : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Takes one packed stream apart, step by step.
class Unpacker
{
public:
    /// Where the packed bytes lie and where the others go; both are moved on.
    struct Step
    {
        std::span<const char> from;
        std::span<char> to;
    };

    virtual ~Unpacker() = default;
    /// Unpacks as much as there is, or as there is room for. True at the end of the stream.
    /// Throws FileDamage.
    virtual bool unpack(Step& step) = 0;
    /// Gets ready for another stream behind the one that ended.
    virtual void restart() = 0;
    /// How many bytes one packed byte may stand for; 0 where there is no telling.
    [[nodiscard]] virtual std::int64_t mostBytesOfOne() const { return 0; }
    /// Whether the check sum at the end of the stream was not that of its bytes.
    [[nodiscard]] virtual bool hasWrongCheckSum() const { return false; }
};

/// The bytes of a file, one after the other, unpacked where its first bytes tell that they are
/// packed by gzip, bzip2 or xz. Streams that follow one another are one.
class UnpackedFile
{
public:
    /// The file outlives this. Throws FileDamage for another way of packing that it recognises.
    explicit UnpackedFile(const FileReader& file);

    /// Fills the buffer; returns how many bytes there were, less than asked for only at the end.
    /// Throws FileDamage.
    [[nodiscard]] std::size_t read(std::span<char> buffer);

    /// "gzip", "bzip2", "xz"; empty for a file that is not packed.
    [[nodiscard]] const std::string& packing() const { return m_packing; }
    /// No more bytes than that can still come; the largest number where there is no telling.
    [[nodiscard]] std::int64_t mostBytesLeft() const;
    /// Whether what came until now does not agree with a check sum of the file.
    [[nodiscard]] bool hasWrongCheckSum() const { return m_hasWrongCheckSum; }

    /// What is told how many bytes of the file have been read, and how many there are.
    void setProgress(std::function<void(std::int64_t, std::int64_t)> progress)
    {
        m_progress = std::move(progress);
    }

private:
    void choose();
    void refill();
    [[nodiscard]] std::size_t readPlain(std::span<char> buffer);
    [[nodiscard]] std::size_t readPacked(std::span<char> buffer);
    [[nodiscard]] bool beginNextStream();

    const FileReader& m_file;
    std::unique_ptr<Unpacker> m_unpacker;
    std::string m_packing;
    std::string m_magic;
    std::vector<char> m_packed;
    std::span<const char> m_waiting;  ///< of m_packed
    std::int64_t m_position = 0;  ///< in the file, behind m_packed
    bool m_isAtEnd = false;
    bool m_hasWrongCheckSum = false;
    std::function<void(std::int64_t, std::int64_t)> m_progress;
};
