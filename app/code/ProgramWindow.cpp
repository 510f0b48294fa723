#include "app/code/ProgramWindow.h"

#include <utility>

ProgramWindow::ProgramWindow(QWidget* parent)
    : ProgramEditor(parent)
{
    setObjectName(QStringLiteral("programWindow"));
    setAccessibleName(tr("SAS program of the active dataset"));
    setPlaceholderText(tr("The program of what the active dataset shows"));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void ProgramWindow::showProgram(const QString& program)
{
    // A list of tens of thousands of values takes a while to be laid out.
    constexpr qsizetype longProgram = 50'000;
    const bool isAwaited = program.size() > longProgram && !isVisible();
    m_awaited = isAwaited ? program : QString();
    if (isAwaited) {
        clear();
    } else if (program != toPlainText()) {
        setPlainText(program);
    }
}

QString ProgramWindow::program() const
{
    return m_awaited.isEmpty() ? ProgramEditor::program() : m_awaited;
}

void ProgramWindow::showEvent(QShowEvent* event)
{
    ProgramEditor::showEvent(event);
    if (!m_awaited.isEmpty()) {
        setPlainText(std::exchange(m_awaited, QString()));
    }
}
