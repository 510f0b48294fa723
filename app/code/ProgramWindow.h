#pragma once

#include "app/code/ProgramEditor.h"

/// Shows the program of what the active grid shows; nobody types in it.
class ProgramWindow : public ProgramEditor
{
    Q_OBJECT

public:
    explicit ProgramWindow(QWidget* parent = nullptr);

    /// Shows a program; a very long one as soon as the window is seen.
    void showProgram(const QString& program);
    [[nodiscard]] QString program() const override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QString m_awaited;  ///< a program that is not laid out yet
};
