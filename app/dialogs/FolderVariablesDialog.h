#pragma once

#include "analysis/FolderVariables.h"
#include "app/docks/FolderScanner.h"

#include <QDialog>
#include <QTimer>

class FolderVariablesFilter;
class FolderVariablesModel;
class PanelTable;
class QBoxLayout;
class QCheckBox;
class QLabel;
class QLineEdit;
class QModelIndex;

/// The variables of all datasets of a folder, to be searched, sorted and compared. It reads the
/// files one by one once it is shown, and can be used and closed meanwhile.
class FolderVariablesDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param name  what the user calls the folder
    FolderVariablesDialog(const QString& name, const QString& folder, QWidget* parent = nullptr);

signals:
    /// The user wants to see a variable in its dataset.
    /// @param member  empty for a file's only dataset
    void signalVariableRequested(QString path, QString member, QString variable);

private:
    void createTable();
    [[nodiscard]] QBoxLayout* createSearchRow();
    void begin(const FolderScanner::Listing& listing);
    void readNext();
    void showContents();
    void showCount();
    void request(const QModelIndex& index);

    FolderVariablesModel* m_model;
    FolderVariablesFilter* m_filter;
    PanelTable* m_table = nullptr;
    QLineEdit* m_search;
    QCheckBox* m_onlyDifferent;
    QLabel* m_count;
    QLabel* m_problems;
    FolderScanner m_scanner;
    QTimer m_reading;
    std::vector<QString> m_paths;
    std::size_t m_next = 0;  ///< of the paths, to be read
    foldervariables::Contents m_contents;
};
