#pragma once

#include "analysis/comparison/CompareReport.h"

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QTimer>

class CompareOptionsPanel;
class DatasetWindow;
class NamePicker;
class QComboBox;
class QLabel;
class QPushButton;
class Settings;

/// Asks which two of the open datasets are to be compared, and how.
class CompareDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param settings  outlive the dialog
    explicit CompareDialog(Settings& settings, QWidget* parent = nullptr);

    /// The datasets to choose from. What is chosen stays.
    void setDatasets(const QList<DatasetWindow*>& windows);
    /// Null leaves a side as it is.
    void choose(DatasetWindow* base, DatasetWindow* compare);
    /// Null where nothing is chosen.
    [[nodiscard]] DatasetWindow* base() const;
    [[nodiscard]] DatasetWindow* compare() const;

    /// What is asked for. A failure says what is wrong with it.
    [[nodiscard]] Result<comparison::Request> request() const;
    [[nodiscard]] Result<comparison::ReportOptions> reportOptions() const;
    [[nodiscard]] bool filtersCount() const;

    /// Says at the foot why nothing was done.
    void tell(const QString& text);
    void rememberOptions() const;

signals:
    void signalOpenRequested(bool isBase);
    void signalCompareRequested();
    void signalProgramRequested();

private:
    void createSide(QComboBox& side, const QString& name) const;
    void createVariables();
    void createLayout();
    [[nodiscard]] QWidget* createButtons();
    [[nodiscard]] DatasetWindow* chosen(const QComboBox& side) const;
    void swapSides();
    /// Brings what depends on the datasets up to date.
    void followSides();
    void showVariables(const DatasetWindow& base, const DatasetWindow& compare);
    void proposeKeys();
    void showKeys();
    [[nodiscard]] QString keysText() const;

    QList<QPointer<DatasetWindow>> m_windows;
    QComboBox* m_base;
    QComboBox* m_compare;
    QLabel* m_about;
    NamePicker* m_id;
    QLabel* m_keys;
    QPushButton* m_propose;
    NamePicker* m_var;
    CompareOptionsPanel* m_options;
    QLabel* m_problem;
    QPushButton* m_run = nullptr;
    QPushButton* m_program = nullptr;
    QTimer m_keysTimer;  ///< counting takes its time on large datasets
    QString m_proposed;  ///< what was proposed last
};
