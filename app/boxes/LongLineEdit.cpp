#include "app/boxes/LongLineEdit.h"

#include "app/look/Icons.h"

#include <QAction>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QToolButton>

#include <algorithm>
#include <limits>

namespace {

/// From here on a text takes the style's painter longer than a blink of its cursor may take.
constexpr qsizetype longLength = 20'000;

}  // namespace

LongLineEdit::LongLineEdit(QWidget* parent)
    : QLineEdit(parent)
    , m_mark(addAction(icons::icon(QLatin1String("edit")), LeadingPosition))
{
    setMaxLength(std::numeric_limits<int>::max());
    m_mark->setVisible(false);
    m_mark->setToolTip(tr("This is not in force yet. Return runs it, Escape puts back what is."));
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& text) { chooseFont(text.size()); });
}

void LongLineEdit::setWholeText(const QString& text)
{
    if (text != this->text()) {
        chooseFont(text.size());
        setText(text);
    }
    setCursorPosition(0);
}

void LongLineEdit::setMarked(bool isMarked)
{
    if (isMarked == m_isMarked) {
        return;
    }
    m_isMarked = isMarked;
    m_mark->setVisible(isMarked);
    chooseFont(text().size());
}

/// A text that is not in force leans. Without shaping a long one is laid out in a quarter of the
/// time.
void LongLineEdit::chooseFont(qsizetype length)
{
    m_isLong = length >= longLength;
    QFont chosen;  // all that is not set here is the window's
    chosen.setItalic(m_isMarked);
    chosen.setStyleStrategy(m_isLong ? QFont::PreferNoShaping : QFont::PreferDefault);
    if (chosen.italic() != font().italic() || chosen.styleStrategy() != font().styleStrategy()) {
        setFont(chosen);
    }
}

/// While nobody edits a long text only its beginning is painted.
void LongLineEdit::paintEvent(QPaintEvent* event)
{
    if (!m_isLong || hasFocus()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, this);
    constexpr int margin = 2;  // as in other lines
    QRect room = style()
                     ->subElementRect(QStyle::SE_LineEditContents, &panel, this)
                     .marginsRemoved(textMargins())
                     .adjusted(margin, 0, -margin, 0);
    for (const auto* button : findChildren<QToolButton*>()) {
        if (button->isVisible() && button->x() > width() / 2) {
            room.setRight(std::min(room.right(), button->x() - margin));
        }
    }
    const qsizetype shown = std::min<qsizetype>(text().size(), room.width());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text().first(shown), Qt::ElideRight, room.width()));
}
