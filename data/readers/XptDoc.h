#pragma once

#include "data/readers/SasDataset.h"
#include "data/Result.h"

#include <string>
#include <vector>

/// One data set of a SAS transport file (.xpt), version 5 or 8. Its texts declare no encoding: they
/// are taken as UTF-8 where they are that, else as Windows-1252.
class XptDoc : public SasDataset
{
public:
    [[nodiscard]] int load(const QString& path) override;

    /// Which data set of the file to load, in any letter case; the first when empty.
    void setMember(std::string name) { m_memberName = std::move(name); }
    /// The names of all data sets of the file, in its order; known after a load. Of equal ones the
    /// later have a suffix.
    [[nodiscard]] const std::vector<std::string>& memberNames() const { return m_memberNames; }
    /// The same of a file that is not loaded. The reason of a failure names the file.
    [[nodiscard]] static Result<std::vector<std::string>> memberNamesOf(const QString& path);

private:
    class Load;

    std::string m_memberName;
    std::vector<std::string> m_memberNames;
};
