#include "app/window/PropertiesWindows.h"

#include "app/dialogs/DatasetPropertiesDialog.h"
#include "app/dialogs/UserPrompts.h"
#include "app/window/DatasetWindow.h"
#include "data/readers/DatasetFile.h"
#include "grid/opened/EngineMessages.h"

PropertiesWindows::PropertiesWindows(QWidget& window, UserPrompts& prompts)
    : QObject(&window)
    , m_window(window)
    , m_prompts(prompts)
{ }

void PropertiesWindows::showOf(const DatasetWindow* window)
{
    if (window != nullptr) {
        // What is joined has no file of its own; its attributes name those it comes from.
        const QString path = window->join() == nullptr ? window->origin().filePath : QString();
        show(*window->dataset(), window->datasetName(), path);
    }
}

void PropertiesWindows::showOfFile(const QString& path, const QString& name)
{
    const auto opened = openDataset(path, {.metadataOnly = true, .member = name.toStdString()});
    if (opened) {
        const StatDataset& dataset = *opened.value().dataset;
        show(dataset, QString::fromStdString(dataset.datasetName()), path);
    } else {
        m_prompts.warn(tr("Dataset Properties"), tr("Failed to open the file: %1").arg(path),
                       enginemessages::translated(QString::fromStdString(opened.error())));
    }
}

void PropertiesWindows::show(const StatDataset& dataset, const QString& name, const QString& path)
{
    (new DatasetPropertiesDialog(dataset, name, path, m_prompts, &m_window))->show();
}
