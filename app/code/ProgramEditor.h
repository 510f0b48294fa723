#pragma once

#include <QPlainTextEdit>

class ProgramHighlighter;

/// The editor for a SAS program.
class ProgramEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ProgramEditor(QWidget* parent = nullptr);

signals:
    /// The user wants back to the grid. The tabulator key, which leaves other fields, writes here.
    void signalLeft();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setTabulators();

    ProgramHighlighter* m_highlighter;
};
