#pragma once

#include <spdlog/common.h>

#include <QDateTime>
#include <QString>

/// One message of the log.
struct LogRecord
{
    QDateTime time;  ///< local
    spdlog::level::level_enum level = spdlog::level::info;
    QString text;
};
