#pragma once

#include "app/code/ProgramRunner.h"

#include <QPlainTextEdit>

class ProgramHighlighter;

/// The editor for a SAS program.
class ProgramEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ProgramEditor(QWidget* parent = nullptr);

    /// The program, also where it is not laid out yet.
    [[nodiscard]] virtual QString program() const { return toPlainText(); }
    /// Underlines statements, with the reason as a tool tip, and goes to the first that is wrong. A
    /// mark goes as soon as its statement is changed.
    void setMarks(const std::vector<programrunner::Mark>& marks);

signals:
    /// The user wants back to the grid. The tabulator key, which leaves other fields, writes here.
    void signalLeft();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setTabulators();
    void forgetMarks(int position, int length);

    ProgramHighlighter* m_highlighter;
};
