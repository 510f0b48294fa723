#pragma once

#include "app/log/LogModel.h"

#include <spdlog/logger.h>
#include <spdlog/sinks/base_sink.h>

#include <QObject>

#include <memory>
#include <mutex>

/// Announces what is logged, from whatever thread, by a signal. Connect to it with a queued
/// connection: a receiver that logs would otherwise wait for itself.
class LogSink : public QObject, public spdlog::sinks::base_sink<std::mutex>
{
    Q_OBJECT

public:
    LogSink() = default;

signals:
    void signalLogged(const LogRecord& record);

protected:
    void sink_it_(const spdlog::details::log_msg& message) override;  // NOLINT: spdlog's name
    void flush_() override { }  // NOLINT(readability-identifier-naming): spdlog's name
};

/// A sink that is one of a logger's for as long as this object lives. To be made and destroyed
/// while no other thread logs: spdlog 1.10 does not guard a logger's list of sinks.
class LogSinkAttachment
{
public:
    explicit LogSinkAttachment(std::shared_ptr<spdlog::logger> logger);
    ~LogSinkAttachment();
    LogSinkAttachment(const LogSinkAttachment&) = delete;
    LogSinkAttachment& operator=(const LogSinkAttachment&) = delete;

    [[nodiscard]] const LogSink* sink() const { return m_sink.get(); }

private:
    std::shared_ptr<spdlog::logger> m_logger;
    std::shared_ptr<LogSink> m_sink;
};
