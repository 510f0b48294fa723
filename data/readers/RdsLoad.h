#pragma once

#include "data/readers/RdsDoc.h"
#include "data/readers/RFrameLoad.h"
#include "data/readers/RObjects.h"

/// One load of an R data file.
///
/// What an object is stands behind its values in the file, and what it is called may stand behind
/// all objects. So the load takes the first likely object for the one that is wanted and reads the
/// file once; only where that turns out wrong it reads the file again, knowing then what it holds.
class RdsLoad
{
public:
    /// The dataset outlives the load.
    explicit RdsLoad(RdsDoc& dataset)
        : m_dataset(dataset)
    { }

    /// Fills the dataset. Throws FileDamage.
    void read(const FileReader& file);
    /// See RdsDoc::memberNamesOf().
    [[nodiscard]] static Result<std::vector<std::string>> memberNamesOf(const QString& path);

private:
    using Wants = decltype(RObjects::Reader::wants);

    [[nodiscard]] RContents readLikely(const FileReader& file);
    [[nodiscard]] RContents readOnce(const FileReader& file, const Wants& wants, std::int64_t rows);
    [[nodiscard]] const RFrame& chosenOf(const std::vector<RFrame>& frames) const;
    void describeFile(const RStream& stream, const UnpackedFile& unpacked);

    RdsDoc& m_dataset;
    std::optional<RPlace> m_read;  ///< what the dataset holds, if it is a data frame in good order
};
