#pragma once

#include <QObject>
#include <QString>

class DatasetPropertiesDialog;
class DatasetWindow;
class StatDataset;
class QWidget;
class UserPrompts;

/// Shows the properties of datasets, open ones and those of files.
class PropertiesWindows : public QObject
{
    Q_OBJECT

public:
    /// Both outlive the windows.
    PropertiesWindows(QWidget& window, UserPrompts& prompts);

    /// Does nothing for null.
    void showOf(const DatasetWindow* window);
    /// Reads what the file says of a dataset, without its values.
    /// @param name  of one dataset of a file of several; empty for the file's first or only one
    void showOfFile(const QString& path, const QString& name = {});

private:
    void show(const StatDataset& dataset, const QString& name, const QString& path);

    QWidget& m_window;
    UserPrompts& m_prompts;
};
