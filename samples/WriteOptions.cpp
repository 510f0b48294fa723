#include "samples/WriteOptions.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <stdexcept>
#include <string>

namespace samples {

namespace {

std::string lowerSuffix(const std::filesystem::path& path)
{
    auto suffix = path.extension().string();
    std::ranges::transform(suffix, suffix.begin(), [](unsigned char letter) {
        return static_cast<char>(std::tolower(letter));
    });
    return suffix;
}

/// What the library would leave out without a word, or write as no program ever did.
bool isPossible(FileKind kind, const WriteOptions& options)
{
    const bool isUtf8 = options.encoding == TextEncoding::Utf8;
    switch (kind) {
    case FileKind::Transport:
        return (options.release == 5 || options.release == 8)
            && options.compression == Compression::None;
    case FileKind::Sas:
        return options.release == 0;
    case FileKind::Spss:
        return options.release == 0 && isUtf8;
    case FileKind::Stata:
        return options.release >= 111 && options.release <= 119 && options.release != 116
            && (isUtf8 || options.release < 118);
    case FileKind::Csv:
    case FileKind::R:
    case FileKind::DatasetJson:
    case FileKind::Ndjson:
    case FileKind::Dsjc:
        return options.release == 0 && options.compression == Compression::None && isUtf8;
    }
    return false;
}

}  // namespace

FileKind kindOfFile(const std::filesystem::path& path)
{
    static const std::map<std::string, FileKind> kinds{
        {".xpt", FileKind::Transport}, {".sas7bdat", FileKind::Sas},
        {".sav", FileKind::Spss},      {".zsav", FileKind::Spss},
        {".dta", FileKind::Stata},     {".csv", FileKind::Csv},
        {".rds", FileKind::R},         {".json", FileKind::DatasetJson},
        {".ndjson", FileKind::Ndjson}, {".dsjc", FileKind::Dsjc}};
    const auto found = kinds.find(lowerSuffix(path));
    if (found == kinds.end()) {
        throw std::runtime_error(
            path.string()
            + ": the suffix is none of .xpt, .sas7bdat, .sav, .zsav, .dta, .csv, .rds, "
              ".json, .ndjson, .dsjc");
    }
    return found->second;
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
    if (!isPossible(kind, options)) {
        throw std::runtime_error(path.string() + ": this kind of file has no such release, "
                                 + "compression or encoding");
    }
    if (kind == FileKind::Stata && options.release < 118) {
        options.encoding = TextEncoding::Windows1252;
    }
    return options;
}

}  // namespace samples
