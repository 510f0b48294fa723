#include "data/readers/DatasetFile.h"

#include "data/FilePath.h"
#include "data/readers/FileKinds.h"

#include <fmt/format.h>

Result<OpenedDataset> openDataset(const QString& path, const OpenOptions& options)
{
    const filekinds::Suffix* suffix = filekinds::suffixOf(path);
    if (suffix == nullptr || suffix->reader == nullptr) {
        return Failure{
            fmt::format("{}: Its suffix belongs to no kind of data file that can be opened",
                        filepath::displayName(path))};
    }
    Result<OpenedDataset> opened = suffix->reader(path, options);
    if (opened) {
        opened.value().dataset->setFallbackName(filepath::baseName(path));
    }
    return opened;
}

Result<std::vector<std::string>> datasetNames(const QString& path)
{
    const filekinds::Suffix* suffix = filekinds::suffixOf(path);
    return suffix == nullptr || suffix->lister == nullptr ? std::vector<std::string>()
                                                          : suffix->lister(path);
}

QString datasetKey(const QString& path, const QString& name)
{
    return name.isEmpty() ? path : path + QStringLiteral("::") + name;
}

bool isDatasetFile(const QString& path)
{
    const filekinds::Suffix* suffix = filekinds::suffixOf(path);
    return suffix != nullptr && suffix->reader != nullptr;
}
