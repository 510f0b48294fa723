#pragma once

#include "data/readers/RVector.h"

#include <functional>

/// Where an object stands in a file: among those on top, and within a list there.
struct RPlace
{
    int object = 0;
    std::int64_t child = -1;  ///< -1 for the object on top itself

    bool operator==(const RPlace&) const = default;
};

struct RFrame
{
    RPlace place;
    std::string name;  ///< empty for the one object that a file holds
    std::int64_t rows = -1;
};

struct RContents
{
    std::vector<RFrame> frames;  ///< in the order of the file, with names that are all different
    std::string others;  ///< what there is besides: "x (a list) and y (a numeric vector)"
};

/// Finds the data frames of a file: objects on top, and elements of lists on top.
class RObjects
{
public:
    /// What is to be done with an object whose columns are to be read.
    struct Reader
    {
        /// Whether this is the one; asked of everything that may be a data frame.
        std::function<bool(const RPlace&, const std::string& name, const RItem&)> wants;
        /// Reads so many columns. Data frames among them are not found then.
        std::function<void(std::int64_t columns)> read;
        /// Told what stood behind the columns, whatever it was that was read.
        std::function<void(const RPlace&, const RAttributes&)> complete;
    };

    /// The stream outlives this.
    explicit RObjects(RStream& stream, Reader reader = {});

    /// Reads all objects.
    void read();
    [[nodiscard]] RContents contents() const { return {m_frames, others()}; }

private:
    [[nodiscard]] std::string others() const;
    void readWorkspace();
    void readObject(int object, const std::string& name);
    [[nodiscard]] RAttributes readList(const RItem& item, const RPlace& place,
                                       const std::string& name);
    void readElements(std::int64_t count, const RPlace& place);
    void nameChildren(std::size_t first, const std::string& name, const RAttributes& attributes);
    void addOther(const std::string& name, const RAttributes& attributes, const char* description);

    RStream& m_stream;
    Reader m_reader;
    std::vector<RFrame> m_frames;
    std::vector<std::string> m_others;
    std::size_t m_otherCount = 0;
};
