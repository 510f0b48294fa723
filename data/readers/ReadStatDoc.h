#pragma once

#include "data/StatDataset.h"

#include <QString>

#include <functional>
#include <string>
#include <utility>

/// What datasets from SAS, SPSS and Stata files share; see ReadStatLoad for how they are read.
class ReadStatDoc : public StatDataset
{
public:
    /// Reads the file, in the place of what the dataset held. Without wanted values only the header
    /// and the variables.
    /// @return the format library's error code, 0 for success; loadError() then says what is wrong.
    ///         After a failure the dataset keeps whatever had been filled.
    [[nodiscard]] virtual int load(const QString& path) = 0;

    /// Why the last load failed, as a sentence that names the file; empty after a success.
    [[nodiscard]] const std::string& loadError() const { return m_loadError; }

    /// What a load tells how much of the file it has read; see OpenOptions::progress.
    void setProgress(std::function<void(int)> progress) { m_progress = std::move(progress); }

private:
    friend class ReadStatLoad;

    std::string m_loadError;
    std::function<void(int)> m_progress;
};
