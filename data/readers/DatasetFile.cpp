#include "data/readers/DatasetFile.h"

#include "data/FilePath.h"
#include "data/readers/DtaDoc.h"
#include "data/readers/SasDoc.h"
#include "data/readers/SavDoc.h"
#include "data/readers/XptDoc.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace {

using Reader = Result<OpenedDataset> (*)(const QString& path, const OpenOptions& options);

template <typename Doc>
Result<OpenedDataset> readWith(std::unique_ptr<Doc> doc, SourceKind kind, const QString& path,
                               const OpenOptions& options)
{
    doc->setSourceKind(kind);
    doc->setValuesWanted(!options.metadataOnly);
    if (doc->load(path) != 0) {
        return Failure{doc->loadError()};
    }
    OpenedDataset opened;
    if constexpr (std::is_same_v<Doc, XptDoc>) {
        opened.members = doc->memberNames();
    }
    opened.dataset = std::move(doc);
    return opened;
}

/// A reader whose files hold one dataset each.
template <typename Doc, SourceKind kind>
Result<OpenedDataset> readSingle(const QString& path, const OpenOptions& options)
{
    if (!options.member.empty()) {
        return Failure{
            fmt::format("{}: A file of this kind holds one dataset only; it has none named {}",
                        filepath::displayName(path), options.member)};
    }
    return readWith(std::make_unique<Doc>(), kind, path, options);
}

Result<OpenedDataset> readTransport(const QString& path, const OpenOptions& options)
{
    auto doc = std::make_unique<XptDoc>();
    doc->setMember(options.member);
    return readWith(std::move(doc), SourceKind::Sas, path, options);
}

struct Format
{
    const char* suffix;
    Reader reader;
};

constexpr std::array formats{
    Format{".sas7bdat", readSingle<SasDoc, SourceKind::Sas>},
    Format{".xpt", readTransport},
    Format{".sav", readSingle<SavDoc, SourceKind::Spss>},
    Format{".dta", readSingle<DtaDoc, SourceKind::Stata>},
};

Reader readerOf(const QString& path)
{
    const auto* found = std::find_if(formats.begin(), formats.end(), [&](const Format& format) {
        return path.endsWith(QLatin1String(format.suffix), Qt::CaseInsensitive);
    });
    return found == formats.end() ? nullptr : found->reader;
}

}  // namespace

Result<OpenedDataset> openDataset(const QString& path, const OpenOptions& options)
{
    const Reader reader = readerOf(path);
    if (reader == nullptr) {
        return Failure{
            fmt::format("{}: Its suffix belongs to no kind of data file that can be opened",
                        filepath::displayName(path))};
    }
    return reader(path, options);
}

bool isDatasetFile(const QString& path)
{
    return readerOf(path) != nullptr;
}
