#pragma once

#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/spdlog.h>

#include <memory>
#include <sstream>
#include <string>
#include <utility>

/// Takes what is logged while it lives: one line "level: text" for each message.
class LogCapture
{
public:
    LogCapture()
        : m_previous(spdlog::default_logger())
    {
        auto sink = std::make_shared<spdlog::sinks::ostream_sink_mt>(m_lines);
        sink->set_pattern("%l: %v");
        spdlog::set_default_logger(std::make_shared<spdlog::logger>("test", std::move(sink)));
    }
    ~LogCapture() { spdlog::set_default_logger(m_previous); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// What was logged since the last call.
    [[nodiscard]] std::string take() { return std::exchange(m_lines, std::ostringstream()).str(); }

private:
    std::ostringstream m_lines;
    std::shared_ptr<spdlog::logger> m_previous;
};
