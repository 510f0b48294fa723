#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <vector>

/// One statement of a SAS program.
struct ProgramStatement
{
    enum class Kind
    {
        Command,  ///< where, a subsetting if, keep or drop: the text is the grid's command
        By,  ///< the names are the variables
        PassedOver,  ///< needs nothing done: libname, data, set, run
        Unknown,  ///< nothing that is known here
        Unclosed  ///< the program ends in its quotes or comment
    };

    Kind kind = Kind::Unknown;
    int line = 1;  ///< where it starts, from 1
    QString text;  ///< without comments and the semicolon; outside quotes single blanks
    QStringList names;
    qsizetype start = 0;  ///< where it stands in the program, without the semicolon
    qsizetype end = 0;
};

/// What of a SAS program the grid can carry out.
namespace programstatements {

/// The statements of a program in their order, comments and empty ones left out. The last one needs
/// no semicolon.
[[nodiscard]] std::vector<ProgramStatement> split(QStringView program);

}  // namespace programstatements
