#include "samples/WriteOptions.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>
#include <string>

namespace samples {

namespace {

[[noreturn]] void refuse(const std::filesystem::path& path, const std::string& what)
{
    throw std::runtime_error(path.string() + ": " + what);
}

std::string lowerSuffix(const std::filesystem::path& path)
{
    auto suffix = path.extension().string();
    std::ranges::transform(suffix, suffix.begin(), [](unsigned char letter) {
        return static_cast<char>(std::tolower(letter));
    });
    return suffix;
}

void checkRelease(const std::filesystem::path& path, FileKind kind, int release)
{
    switch (kind) {
    case FileKind::Transport:
        if (release != 5 && release != 8) {
            refuse(path, "a transport file has version 5 or 8");
        }
        break;
    case FileKind::Stata:
        // No program ever wrote 116.
        if (release < 111 || release > 119 || release == 116) {
            refuse(path, "a Stata file has release 111 to 115 or 117 to 119");
        }
        break;
    case FileKind::Sas:
    case FileKind::Spss:
        if (release != 0) {
            refuse(path, "this kind of file has no release to choose");
        }
        break;
    }
}

void checkCompression(const std::filesystem::path& path, FileKind kind, Compression compression)
{
    if (compression == Compression::Rows && kind != FileKind::Sas && kind != FileKind::Spss) {
        refuse(path, "row compression is for SAS7BDAT and SPSS files");
    }
    if (compression == Compression::Zlib && kind != FileKind::Spss) {
        refuse(path, "zlib compression is for SPSS files");
    }
}

void checkEncoding(const std::filesystem::path& path, FileKind kind, const WriteOptions& options)
{
    const bool alwaysUtf8 =
        kind == FileKind::Spss || (kind == FileKind::Stata && options.release >= 118);
    if (options.encoding != TextEncoding::Utf8 && alwaysUtf8) {
        refuse(path, "texts of this kind of file are UTF-8");
    }
}

}  // namespace

FileKind kindOfFile(const std::filesystem::path& path)
{
    const auto suffix = lowerSuffix(path);
    if (suffix == ".xpt") {
        return FileKind::Transport;
    }
    if (suffix == ".sas7bdat") {
        return FileKind::Sas;
    }
    if (suffix == ".sav" || suffix == ".zsav") {
        return FileKind::Spss;
    }
    if (suffix == ".dta") {
        return FileKind::Stata;
    }
    refuse(path, "the suffix is none of .xpt, .sas7bdat, .sav, .zsav, .dta");
}

WriteOptions checkedOptions(const std::filesystem::path& path, WriteOptions options)
{
    const auto kind = kindOfFile(path);
    if (options.release == 0 && kind == FileKind::Transport) {
        options.release = 5;
    }
    if (options.release == 0 && kind == FileKind::Stata) {
        options.release = 118;
    }
    if (lowerSuffix(path) == ".zsav" && options.compression == Compression::None) {
        options.compression = Compression::Zlib;
    }
    checkRelease(path, kind, options.release);
    checkCompression(path, kind, options.compression);
    checkEncoding(path, kind, options);
    if (kind == FileKind::Stata && options.release < 118) {
        options.encoding = TextEncoding::Windows1252;
    }
    return options;
}

}  // namespace samples
