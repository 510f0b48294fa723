#pragma once

#include <QString>
#include <QStringList>

/// Through what a command acts. Names come as they were typed, in their order; the target looks
/// them up. A function that cannot do what it is asked throws ParseError with the reason.
class CommandTarget
{
public:
    virtual void clearLibraryFilter() = 0;
    virtual void clearDatasetFilter() = 0;
    /// Shows only these variables.
    virtual void keepVariables(const QStringList& names) = 0;
    virtual void dropVariables(const QStringList& names) = 0;
    /// @param frequencyN  count distinct subjects, too
    virtual void frequencyTable(const QStringList& names, bool frequencyN) = 0;
    /// @param condition  normalised, without "where"
    virtual void applyLibraryFilter(const QString& condition) = 0;
    /// @param condition  normalised, without "if"
    virtual void addDatasetFilter(const QString& condition) = 0;

protected:
    ~CommandTarget() = default;  // never deleted through this interface
};
