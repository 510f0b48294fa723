#include "app/log/LogSink.h"

#include <algorithm>
#include <chrono>
#include <utility>

void LogSink::sink_it_(const spdlog::details::log_msg& message)
{
    const auto sinceEpoch =
        std::chrono::duration_cast<std::chrono::milliseconds>(message.time.time_since_epoch());
    const auto size = static_cast<qsizetype>(message.payload.size());
    emit signalLogged({QDateTime::fromMSecsSinceEpoch(sinceEpoch.count()), message.level,
                       QString::fromUtf8(message.payload.data(), size)});
}

LogSinkAttachment::LogSinkAttachment(std::shared_ptr<spdlog::logger> logger)
    : m_logger(std::move(logger))
    , m_sink(std::make_shared<LogSink>())
{
    m_logger->sinks().push_back(m_sink);
}

LogSinkAttachment::~LogSinkAttachment()
{
    std::erase(m_logger->sinks(), m_sink);
}
