#include "app/window/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int widestInLetters = 60;

/// The beginning of a text, which may be a list of tens of thousands of values.
QString beginning(const QString& text, qsizetype longest)
{
    return text.size() <= longest ? text : text.first(longest - 1) + QChar(0x2026);
}

}  // namespace

QSize ElidedLabel::minimumSizeHint() const
{
    const QMargins margins = contentsMargins();
    const int dots = fontMetrics().horizontalAdvance(QStringLiteral("DF: ..."));
    return {std::min(dots + margins.left() + margins.right(), sizeHint().width()),
            sizeHint().height()};
}

QSize ElidedLabel::sizeHint() const
{
    // QLabel would lay out the whole text.
    const QMargins margins = contentsMargins();
    constexpr int rounding = 2;  // an advance is rounded, what is elided is not
    const int whole =
        fontMetrics().horizontalAdvance(beginning(text(), qsizetype{4} * widestInLetters))
        + rounding;
    return {std::min(whole + margins.left() + margins.right(),
                     widestInLetters * fontMetrics().averageCharWidth()),
            fontMetrics().height() + margins.top() + margins.bottom()};
}

QString ElidedLabel::shownText() const
{
    const int width = contentsRect().width();
    return fontMetrics().elidedText(beginning(text(), width + 1), Qt::ElideRight, width);
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        constexpr qsizetype longestTip = 3000;
        const bool isCut = shownText() != text();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           isCut ? beginning(text(), longestTip) : QString(), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                          isEnabled(), shownText(), foregroundRole());
}
