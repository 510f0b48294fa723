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
    return suffix->reader(path, options);
}

bool isDatasetFile(const QString& path)
{
    const filekinds::Suffix* suffix = filekinds::suffixOf(path);
    return suffix != nullptr && suffix->reader != nullptr;
}
