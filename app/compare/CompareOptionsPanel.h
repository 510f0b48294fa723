#pragma once

#include "analysis/comparison/CompareReport.h"

#include <QHash>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class QSpinBox;
class Settings;

/// What counts as equal in a comparison, and what its report shows; remembered from one to the
/// next.
class CompareOptionsPanel : public QWidget
{
    Q_OBJECT

public:
    /// @param settings  outlive the panel
    explicit CompareOptionsPanel(Settings& settings, QWidget* parent = nullptr);

    /// Adds what counts as equal to a request. A failure says what cannot be read.
    [[nodiscard]] Result<comparison::Request> added(comparison::Request request) const;
    [[nodiscard]] Result<comparison::ReportOptions> reportOptions() const;
    [[nodiscard]] bool filtersCount() const;
    void remember() const;

signals:
    void signalFiltersCountChanged();

private:
    [[nodiscard]] QGroupBox* createValues();
    [[nodiscard]] QGroupBox* createReport();
    QCheckBox* addBox(QGridLayout& grid, int row, int column, const QString& name,
                      const QString& text);
    QSpinBox* addNumber(const QString& name, int smallest, int largest, int value);
    /// The line takes numbers and methods as the command line does.
    QLineEdit* addLine(const QString& name, const QString& placeholder, const QString& tip);
    void recall(QWidget* widget, const QString& name);
    void showMethod();
    [[nodiscard]] bool isChecked(const QString& name) const;
    [[nodiscard]] int number(const QString& name) const;

    Settings& m_settings;
    QHash<QString, QWidget*> m_remembered;  ///< by the names of the options
    QComboBox* m_method = nullptr;
    QLineEdit* m_criterion = nullptr;
    QLineEdit* m_delta = nullptr;
    QLineEdit* m_own = nullptr;
    QLineEdit* m_fuzz = nullptr;
};
