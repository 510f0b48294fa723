#include "app/window/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int widestInLetters = 60;

}  // namespace

QSize ElidedLabel::minimumSizeHint() const
{
    const QMargins margins = contentsMargins();
    const int dots = fontMetrics().horizontalAdvance(QStringLiteral("DF: ..."));
    return {std::min(dots + margins.left() + margins.right(), sizeHint().width()),
            QLabel::minimumSizeHint().height()};
}

QSize ElidedLabel::sizeHint() const
{
    const QSize whole = QLabel::sizeHint();
    return {std::min(whole.width(), widestInLetters * fontMetrics().averageCharWidth()),
            whole.height()};
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const bool isCut = shownText() != text();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), isCut ? text() : QString(),
                           this);
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
