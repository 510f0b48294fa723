#include "data/readers/FileDataset.h"

#include "data/FilePath.h"
#include "data/readers/DistinctNames.h"
#include "data/readers/FileReader.h"

#include <fmt/format.h>
#include <spdlog/spdlog.h>

#include <exception>
#include <new>

int FileDataset::loadFrom(const QString& path,
                          const std::function<std::string(const FileReader&)>& read)
{
    beginLoad();
    std::string why;
    try {
        FileReader file;
        why = file.open(filepath::toBytes(path)) ? read(file) : file.error();
    } catch (const std::bad_alloc&) {
        why = "There is not enough memory to hold it";
    } catch (const std::exception& error) {
        why = error.what();
    }
    if (!why.empty()) {
        return failLoad(path, failedLoad, why);
    }
    completeLoad(path);
    return 0;
}

void FileDataset::tellProgress(std::int64_t done, std::int64_t all)
{
    const int percent = all > 0 ? static_cast<int>(done * 100 / all) : 100;
    if (m_progress && percent > m_percent) {
        m_percent = percent;
        m_progress(percent);
    }
}

void FileDataset::beginLoad()
{
    reset();
    m_loadError.clear();
    m_percent = 0;
}

int FileDataset::failLoad(const QString& path, int code, const std::string& why)
{
    m_loadError = fmt::format("{}: {}", filepath::displayName(path), why);
    return code;
}

void FileDataset::completeLoad(const QString& path)
{
    for (const std::size_t variable : makeDistinct(m_names)) {
        spdlog::warn("{}: variable {} has the name of an earlier one and is called {}",
                     filepath::displayName(path), variable + 1, m_names[variable]);
    }
    resizeBits();
}
