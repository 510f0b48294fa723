#pragma once

#include "analysis/DatasetContents.h"

#include <QDialog>

class QSortFilterProxyModel;
class QStandardItemModel;
class QTableView;
class QTreeWidget;
class UserPrompts;

/// What a file says of its dataset and variables, to read, search, copy and save. It keeps all of
/// it, so that the dataset may be closed meanwhile.
class DatasetPropertiesDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param name     what the user calls the dataset
    /// @param path     of its file
    /// @param prompts  outlives the dialog
    DatasetPropertiesDialog(const StatDataset& dataset, QString name, const QString& path,
                            UserPrompts& prompts, QWidget* parent = nullptr);

private:
    [[nodiscard]] QWidget* createFields(const std::vector<contents::Section>& sections);
    [[nodiscard]] QWidget* createVariables(const StatDataset& dataset);
    [[nodiscard]] QWidget* createButtons();
    void fillVariables(const StatDataset& dataset);
    void copy();
    void save();

    UserPrompts& m_prompts;
    QString m_name;
    QString m_text;
    QString m_csv;
    QTreeWidget* m_fields;
    QTableView* m_variables;
    QStandardItemModel* m_model;
    QSortFilterProxyModel* m_shown;
};
