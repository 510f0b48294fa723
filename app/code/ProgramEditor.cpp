#include "app/code/ProgramEditor.h"

#include "app/code/ProgramHighlighter.h"

#include <QEvent>
#include <QFontDatabase>
#include <QKeyEvent>

ProgramEditor::ProgramEditor(QWidget* parent)
    : QPlainTextEdit(parent)
    , m_highlighter(new ProgramHighlighter(document(), palette()))
{
    setObjectName(QStringLiteral("programEditor"));
    setAccessibleName(tr("SAS program"));
    setPlaceholderText(tr("Statements for the active dataset: where, if, keep, drop, by"));
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(NoWrap);
    setFrameShape(QFrame::NoFrame);
    setTabulators();
}

void ProgramEditor::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        m_highlighter->setPalette(palette());
    } else if (event->type() == QEvent::FontChange) {
        setTabulators();
    }
}

void ProgramEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        emit signalLeft();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void ProgramEditor::setTabulators()
{
    constexpr int columns = 4;
    setTabStopDistance(columns * QFontMetricsF(font()).horizontalAdvance(u' '));
}
