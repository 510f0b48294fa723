#pragma once

#include "data/readers/FileReader.h"
#include "data/readers/Sas7bdatLayout.h"
#include "data/Result.h"

#include <cstdint>
#include <string>
#include <vector>

/// One data set of a SAS transport file, as its member and variable records describe it. Texts
/// stand as in the file, without trailing blanks.
struct XptMember
{
    struct Variable
    {
        std::string name;
        FormatRecord format;
        FormatRecord informat;
        bool isCharacter = false;
        int length = 0;  ///< bytes
    };

    std::string name;
    std::string label;
    std::int64_t start = 0;  ///< offset of its MEMBER header
    std::int64_t observations = 0;  ///< offset of its first row
    std::int64_t end = 0;  ///< offset behind its last row's padding
    std::vector<Variable> variables;
    std::int64_t rowLength = 0;  ///< bytes
    std::int64_t rowCount = 0;
    std::vector<std::int64_t> damagedTimes;  ///< offsets of times that are none
    std::string damage;  ///< why it cannot be read; the other members can
    std::vector<std::string> notes;  ///< what may be wrong with it
};

/// A SAS transport file of version 5 or 8: its members in the order of the file. The format library
/// (ReadStat 1.1.8) reads the first one only, and runs on into the next.
struct XptLayout
{
    std::int64_t libraryEnd = 0;  ///< length of the records before the first member
    std::vector<std::int64_t> damagedTimes;  ///< offsets of its times that are none
    std::vector<XptMember> members;
};

/// Reads all descriptions and counts the rows; fails on a file that is no transport file, or whose
/// records do not follow each other as they must.
[[nodiscard]] Result<XptLayout> readXptLayout(const FileReader& file);
