#pragma once

#include "app/window/MainWindow.h"
#include "tests/support/ScriptedPrompts.h"
#include "workspace/WorkspaceStore.h"

#include <QSettings>
#include <QString>

#include <memory>

/// The services of a main window that keeps everything in a folder and is answered by a script.
/// Both outlive the window.
inline MainWindowServices temporaryServices(const QString& folder, ScriptedPrompts::Script& script)
{
    MainWindowServices services;
    services.settings = std::make_unique<QSettings>(folder + "/settings.ini", QSettings::IniFormat);
    services.store = std::make_unique<WorkspaceStore>(StoreLocations{folder, QString()});
    services.prompts = std::make_unique<ScriptedPrompts>(script);
    services.openUrl = [](const QUrl&) { return true; };
    return services;
}
