#include "app/boxes/FailureNote.h"

#include "grid/opened/CommandFailure.h"
#include "grid/opened/EngineMessages.h"

#include <QAccessible>
#include <QEvent>
#include <QFontDatabase>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// The line around a place, and a caret below the place.
QString withCaret(const QString& line, qsizetype position)
{
    constexpr qsizetype before = 40;
    constexpr qsizetype behind = 24;
    const qsizetype first = position > before ? position - before + 1 : 0;
    const qsizetype last = std::min(line.size(), position + behind);
    QString text = line.sliced(first, last - first);
    // Tabulators and line breaks are one letter wide like all others.
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c.isSpace(); }, u' ');
    const QString dots(QChar(0x2026));
    return (first > 0 ? dots : QString()) + text + (last < line.size() ? dots : QString()) + u'\n'
        + QString(position - first + (first > 0 ? 1 : 0), u' ') + u'^';
}

QLabel* addLabel(QWidget* note, const QString& name)
{
    auto* label = new QLabel(note);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    note->layout()->addWidget(label);
    return label;
}

}  // namespace

FailureNote::FailureNote(QWidget& box)
    : QFrame(&box)
    , m_box(box)
{
    setObjectName(QStringLiteral("failureNote"));
    hide();
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    new QVBoxLayout(this);
    m_message = addLabel(this, QStringLiteral("failureMessage"));
    m_place = addLabel(this, QStringLiteral("failurePlace"));
    m_suggestion = addLabel(this, QStringLiteral("failureSuggestion"));
    for (QLabel* label : {m_message, m_place, m_suggestion}) {
        label->setForegroundRole(QPalette::ToolTipText);
    }
    m_message->setWordWrap(true);
    m_place->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    box.installEventFilter(this);
}

void FailureNote::tell(const CommandFailure& failure)
{
    constexpr qsizetype longest = 300;
    const QString message = enginemessages::translated(failure.message);
    m_message->setText(message.left(longest));
    const bool isSomewhere = failure.position >= 0 && failure.position <= failure.command.size();
    m_place->setText(isSomewhere ? withCaret(failure.command, failure.position) : QString());
    m_place->setVisible(isSomewhere);
    m_suggestion->setText(tr("Did you mean %1?").arg(failure.suggestion));
    m_suggestion->setVisible(!failure.suggestion.isEmpty());
    setAccessibleName(message);
    if (parentWidget() != m_box.window()) {
        setParent(m_box.window());
    }
    place();
    show();
    raise();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool FailureNote::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (isVisible() && (type == QEvent::Move || type == QEvent::Resize)) {
        place();
    }
    return QFrame::eventFilter(watched, event);
}

/// Stands below the box, as wide as there is room in the window.
void FailureNote::place()
{
    constexpr int narrowest = 320;
    const QWidget* all = m_box.window();
    const QPoint below = m_box.mapTo(all, QPoint(0, m_box.height()));
    const int wanted = std::max({narrowest, m_box.width(), m_place->sizeHint().width() + 30});
    const int width = std::min(wanted, all->width());
    setFixedWidth(width);
    adjustSize();
    move(std::min(below.x(), all->width() - width), below.y());
}
