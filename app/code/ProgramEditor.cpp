#include "app/code/ProgramEditor.h"

#include "app/code/ProgramHighlighter.h"

#include <QFontDatabase>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QTextCursor>
#include <QToolTip>

#include <algorithm>

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
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int position, int, int added) { forgetMarks(position, added); });
}

void ProgramEditor::setMarks(const std::vector<programrunner::Mark>& marks)
{
    QList<QTextEdit::ExtraSelection> selections;
    const programrunner::Mark* wrong = nullptr;
    for (const programrunner::Mark& mark : marks) {
        QTextEdit::ExtraSelection selection;
        selection.cursor = QTextCursor(document());
        selection.cursor.setPosition(static_cast<int>(mark.statement.start));
        selection.cursor.setPosition(static_cast<int>(mark.statement.end), QTextCursor::KeepAnchor);
        selection.format.setUnderlineStyle(mark.isWrong ? QTextCharFormat::WaveUnderline
                                                        : QTextCharFormat::DotLine);
        selection.format.setUnderlineColor(mark.isWrong ? QColor(Qt::red)
                                                        : palette().color(QPalette::Text));
        selection.format.setToolTip(mark.message);
        selections << selection;
        wrong = wrong == nullptr && mark.isWrong ? &mark : wrong;
    }
    setExtraSelections(selections);
    if (wrong != nullptr) {
        QTextCursor cursor = textCursor();
        cursor.setPosition(static_cast<int>(wrong->statement.start));
        setTextCursor(cursor);
        ensureCursorVisible();
    }
}

/// Takes the marks away that a change has met.
void ProgramEditor::forgetMarks(int position, int length)
{
    QList<QTextEdit::ExtraSelection> kept = extraSelections();
    if (kept.isEmpty()) {
        return;
    }
    kept.removeIf([=](const QTextEdit::ExtraSelection& mark) {
        return mark.cursor.selectionStart() <= position + length
            && position <= mark.cursor.selectionEnd();
    });
    setExtraSelections(kept);
}

bool ProgramEditor::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QPlainTextEdit::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const int position = cursorForPosition(viewport()->mapFromGlobal(help->globalPos())).position();
    const QList<QTextEdit::ExtraSelection> marks = extraSelections();
    const auto found = std::find_if(marks.begin(), marks.end(), [position](const auto& mark) {
        return mark.cursor.selectionStart() <= position && position <= mark.cursor.selectionEnd();
    });
    QToolTip::showText(help->globalPos(),
                       found == marks.end() ? QString() : found->format.toolTip(), this);
    return true;
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
