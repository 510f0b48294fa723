#pragma once

#include <QDialog>

class QLineEdit;

/// Edits the options that the workspace store keeps. It neither reads nor writes the store.
class OptionsDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param uniqueVarName  the name of the variable that identifies a subject, as it is now
    explicit OptionsDialog(const QString& uniqueVarName, QWidget* parent = nullptr);

    /// The name as edited, without surrounding blanks; what it was before if nothing is left of it.
    [[nodiscard]] QString uniqueVarName() const;

private:
    QString m_before;
    QLineEdit* m_uniqueVarName;
};
