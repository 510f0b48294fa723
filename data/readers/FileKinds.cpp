#include "data/readers/FileKinds.h"

#include "data/FilePath.h"
#include "data/readers/CsvDoc.h"
#include "data/readers/DatasetJsonDoc.h"
#include "data/readers/DtaDoc.h"
#include "data/readers/RdsDoc.h"
#include "data/readers/SasDoc.h"
#include "data/readers/SavDoc.h"
#include "data/readers/XptDoc.h"

#include <fmt/format.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>

namespace filekinds {
namespace {

template <typename Doc>
Result<OpenedDataset> readWith(std::unique_ptr<Doc> doc, SourceKind kind, const QString& path,
                               const OpenOptions& options)
{
    doc->setSourceKind(kind);
    doc->setValuesWanted(!options.metadataOnly);
    doc->setProgress(options.progress);
    if (doc->load(path) != 0) {
        return Failure{doc->loadError()};
    }
    OpenedDataset opened;
    if constexpr (requires { doc->memberNames(); }) {
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

Result<OpenedDataset> readR(const QString& path, const OpenOptions& options)
{
    auto doc = std::make_unique<RdsDoc>();
    doc->setMember(options.member);
    return readWith(std::move(doc), SourceKind::R, path, options);
}

constexpr std::array sasSuffixes{
    Suffix{"sas7bdat", "type-sas7bdat", readSingle<SasDoc, SourceKind::Sas>},
    Suffix{"xpt", "type-xpt", readTransport, XptDoc::memberNamesOf},
};
constexpr std::array jsonSuffixes{
    Suffix{"json", "type-json", readSingle<DatasetJsonDoc, SourceKind::DatasetJson>},
    Suffix{"ndjson", "type-json", readSingle<DatasetJsonDoc, SourceKind::DatasetJson>},
    Suffix{"dsjc", "type-json", readSingle<DatasetJsonDoc, SourceKind::DatasetJson>},
    Suffix{"djsc", "type-json", readSingle<DatasetJsonDoc, SourceKind::DatasetJson>},
};
constexpr std::array rSuffixes{
    Suffix{"rds", "type-r", readR, RdsDoc::memberNamesOf},
    Suffix{"rdata", "type-r", readR, RdsDoc::memberNamesOf},
    Suffix{"rda", "type-r", readR, RdsDoc::memberNamesOf},
};
constexpr std::array spssSuffixes{
    Suffix{"sav", "type-sav", readSingle<SavDoc, SourceKind::Spss>},
};
constexpr std::array stataSuffixes{
    Suffix{"dta", "type-dta", readSingle<DtaDoc, SourceKind::Stata>},
};
constexpr std::array csvSuffixes{
    Suffix{"csv", "type-csv", readSingle<CsvDoc, SourceKind::Csv>},
};

constexpr std::array entries{
    Entry{
        FileKind::Sas, QT_TRANSLATE_NOOP("FileKinds", "Open SAS Datasets"),
        QT_TRANSLATE_NOOP("FileKinds", "SAS Data Files (*.sas7bdat);; SAS Transport Files (*.xpt)"),
        sasSuffixes},
    Entry{FileKind::DatasetJson, QT_TRANSLATE_NOOP("FileKinds", "Open Dataset-JSON Files"),
          QT_TRANSLATE_NOOP("FileKinds", "Dataset-JSON Files (*.json *.ndjson)"), jsonSuffixes},
    Entry{FileKind::R, QT_TRANSLATE_NOOP("FileKinds", "Open R Datasets"),
          QT_TRANSLATE_NOOP("FileKinds",
                            "R Data Files (*.rds);; R Data Files (*.rdata);; R Data Files (*.rda)"),
          rSuffixes},
    Entry{FileKind::Spss, QT_TRANSLATE_NOOP("FileKinds", "Open SPSS Datasets"),
          QT_TRANSLATE_NOOP("FileKinds", "SPSS Data Files (*.sav)"), spssSuffixes},
    Entry{FileKind::Stata, QT_TRANSLATE_NOOP("FileKinds", "Open Stata Datasets"),
          QT_TRANSLATE_NOOP("FileKinds", "Stata Data Files (*.dta)"), stataSuffixes},
    Entry{FileKind::Csv, QT_TRANSLATE_NOOP("FileKinds", "Open CSV Files"),
          QT_TRANSLATE_NOOP("FileKinds", "CSV (Comma delimited) (*.csv)"), csvSuffixes},
};

}  // namespace

bool Entry::isReadable() const
{
    return std::any_of(suffixes.begin(), suffixes.end(),
                       [](const Suffix& suffix) { return suffix.reader != nullptr; });
}

QString Entry::title() const
{
    return QCoreApplication::translate("FileKinds", dialogTitle);
}

QString Entry::filters() const
{
    return QCoreApplication::translate("FileKinds", dialogFilters);
}

std::span<const Entry> table()
{
    return entries;
}

const Entry& entryOf(FileKind kind)
{
    return entries.at(static_cast<std::size_t>(kind));
}

QString filtersOfAll()
{
    QStringList patterns;
    for (const Entry& entry : entries) {
        for (const Suffix& suffix : entry.suffixes) {
            patterns << QStringLiteral("*.") + QString::fromLatin1(suffix.suffix);
        }
    }
    return QCoreApplication::translate("FileKinds", "Datasets (%1)").arg(patterns.join(u' '));
}

const Suffix* suffixOf(const QString& path)
{
    for (const Entry& entry : entries) {
        for (const Suffix& suffix : entry.suffixes) {
            const QString ending = u'.' + QString::fromLatin1(suffix.suffix);
            if (path.endsWith(ending, Qt::CaseInsensitive)) {
                return &suffix;
            }
        }
    }
    return nullptr;
}

bool isOfKind(const QString& path, FileKind kind)
{
    const std::span<const Suffix> ofKind = entryOf(kind).suffixes;
    const Suffix* suffix = suffixOf(path);
    return std::any_of(ofKind.begin(), ofKind.end(),
                       [&](const Suffix& one) { return &one == suffix; });
}

}  // namespace filekinds
