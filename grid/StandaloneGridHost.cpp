#include "grid/StandaloneGridHost.h"

#include <spdlog/spdlog.h>

QString StandaloneGridHost::uniqueVarName() const
{
    return QStringLiteral("USUBJID");
}

void StandaloneGridHost::reportCommandError(const QString& message, const QString& command)
{
    spdlog::warn("Warning: {}: {}", message.toStdString(), command.toStdString());
}

void StandaloneGridHost::inform(const QString& title, const QString& text)
{
    spdlog::warn("Warning: {}: {}", title.toStdString(), text.toStdString());
}

void StandaloneGridHost::showMessage(const QString& text)
{
    spdlog::info("{}", text.toStdString());
}
