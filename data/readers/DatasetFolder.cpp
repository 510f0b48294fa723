#include "data/readers/DatasetFolder.h"

#include "data/readers/FileKinds.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace datasetfolder {
namespace {

bool comesBefore(const File& left, const File& right)
{
    const QString leftName = left.name();
    const QString rightName = right.name();
    const int order = leftName.compare(rightName, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : leftName < rightName;
}

}  // namespace

Result<std::vector<File>> list(const QString& folder)
{
    namespace fs = std::filesystem;
    std::vector<File> files;
    std::error_code error;
    fs::directory_iterator entry(fs::path(filepath::toBytes(folder)), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const QString path = filepath::fromBytes(entry->path().native());
        std::error_code isGone;
        if (filekinds::suffixOf(path) != nullptr && entry->is_regular_file(isGone)) {
            files.push_back({path, filepath::stateOf(path)});
        }
    }
    if (error) {
        return Failure{fmt::format("{}: The folder cannot be listed: {}",
                                   filepath::shown(folder).toStdString(), error.message())};
    }
    std::sort(files.begin(), files.end(), comesBefore);
    return files;
}

}  // namespace datasetfolder
