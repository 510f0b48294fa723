#pragma once

#include <QDialog>

class LongLineEdit;

/// Edits the condition of the dataset filter.
class DataFilterDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param condition  the one in force, without "if"
    explicit DataFilterDialog(const QString& condition, QWidget* parent = nullptr);

    [[nodiscard]] QString condition() const;

private:
    LongLineEdit* m_condition;
};
