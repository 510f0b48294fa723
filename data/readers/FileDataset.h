#pragma once

#include "data/StatDataset.h"

#include <QString>

#include <functional>
#include <string>
#include <utility>

class FileReader;

/// A dataset that is read from a file, whatever its kind.
class FileDataset : public StatDataset
{
public:
    /// Reads the file, in the place of what the dataset held. Without wanted values only the header
    /// and the variables.
    /// @return 0 for success, else the format library's error code, or failedLoad where it has
    ///         none; loadError() then says what is wrong. After a failure the dataset keeps
    ///         whatever had been filled.
    [[nodiscard]] virtual int load(const QString& path) = 0;

    static constexpr int failedLoad = 1;

    /// Why the last load failed, as a sentence that names the file; empty after a success.
    [[nodiscard]] const std::string& loadError() const { return m_loadError; }

    /// What a load tells how much of the file it has read; see OpenOptions::progress.
    void setProgress(std::function<void(int)> progress) { m_progress = std::move(progress); }

protected:
    /// A load whose steps are those of `read`, which fills the dataset and returns why it could
    /// not, or throws; an empty text is a success.
    [[nodiscard]] int loadFrom(const QString& path,
                               const std::function<std::string(const FileReader&)>& read);
    /// Tells how far the load is, when a percent has been added.
    void tellProgress(std::int64_t done, std::int64_t all);

private:
    friend class ReadStatLoad;

    void beginLoad();
    int failLoad(const QString& path, int code, const std::string& why);
    void completeLoad(const QString& path);

    std::string m_loadError;
    std::function<void(int)> m_progress;
    int m_percent = 0;  ///< told last
};
