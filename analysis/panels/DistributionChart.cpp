#include "analysis/panels/DistributionChart.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <limits>

namespace {

constexpr int margin = 8;

QColor fillColour(const QPalette& palette)
{
    QColor colour = palette.color(QPalette::Highlight);
    colour.setAlphaF(0.8F);
    return colour;
}

}  // namespace

DistributionChart::DistributionChart(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("chartStatistics"));
    setAccessibleName(tr("Distribution"));
    setMinimumHeight(60);
}

void DistributionChart::setContents(Contents contents)
{
    m_contents = std::move(contents);
    m_low = std::numeric_limits<double>::infinity();
    m_high = -m_low;
    for (const Distribution& sample : m_contents.drawn) {
        if (sample.count > 0) {
            m_low = std::min(m_low, sample.minimum);
            m_high = std::max(m_high, sample.maximum);
        }
    }
    if (!m_contents.isGrouped && !m_contents.drawn.empty()) {
        const Distribution& whole = m_contents.drawn.front();
        if (!whole.bars.empty()) {
            m_low = whole.firstEdge;
            m_high = whole.firstEdge + whole.barWidth * static_cast<double>(whole.bars.size());
        }
    }
    updateGeometry();
    update();
}

QSize DistributionChart::sizeHint() const
{
    const auto lines = m_contents.isGrouped ? static_cast<int>(m_contents.drawn.size()) : 5;
    return {160, (lines + 3) * lineHeight()};
}

QSize DistributionChart::minimumSizeHint() const
{
    return {100, 4 * lineHeight()};
}

int DistributionChart::lineHeight() const
{
    return fontMetrics().height() + 4;
}

/// What is drawn and what is left out.
QString DistributionChart::heading() const
{
    std::size_t leftOut = 0;
    for (const Distribution& sample : m_contents.drawn) {
        leftOut += sample.leftOut;
    }
    QStringList texts{m_contents.title};
    if (m_contents.groupCount > m_contents.drawn.size()) {
        texts << tr("The first %1 of %2 groups.")
                     .arg(m_contents.drawn.size())
                     .arg(m_contents.groupCount);
    }
    if (leftOut > 0) {
        texts << tr("Missing, not drawn: %1").arg(leftOut);
    }
    return texts.join(QStringLiteral("   "));
}

// Places

QRectF DistributionChart::plot() const
{
    const int left = m_contents.isGrouped ? labelWidth() + margin : 0;
    return QRectF(rect()).adjusted(margin + left, margin + lineHeight(), -margin,
                                   -margin - lineHeight());
}

int DistributionChart::labelWidth() const
{
    int width = 0;
    for (const Distribution& sample : m_contents.drawn) {
        width =
            std::max(width, fontMetrics().horizontalAdvance(QString::fromStdString(sample.label)));
    }
    return std::min(width, this->width() / 3);
}

/// Halves first: the whole range may be more than a number can say.
double DistributionChart::place(double value) const
{
    const QRectF room = plot();
    const double range = m_high / 2 - m_low / 2;
    const double share = range > 0 ? (value / 2 - m_low / 2) / range : 0.5;
    return room.left() + share * room.width();
}

QRectF DistributionChart::barPlace(std::size_t bar) const
{
    const Distribution& whole = m_contents.drawn.front();
    const QRectF room = plot();
    const std::size_t largest = *std::max_element(whole.bars.begin(), whole.bars.end());
    const double left = place(whole.firstEdge + static_cast<double>(bar) * whole.barWidth);
    const double right = place(whole.firstEdge + static_cast<double>(bar + 1) * whole.barWidth);
    const double height = whole.bars[bar] == 0
        ? 0
        : std::max(1.0,
                   room.height() * static_cast<double>(whole.bars[bar])
                       / static_cast<double>(largest));
    return {left + 0.5, room.bottom() - height, right - left - 1, height};
}

QRectF DistributionChart::rowPlace(std::size_t row) const
{
    const QRectF room = plot();
    const double height = room.height() / static_cast<double>(m_contents.drawn.size());
    return {room.left(), room.top() + static_cast<double>(row) * height, room.width(), height};
}

// Painting

void DistributionChart::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Text));
    const QRectF line(margin, margin / 2.0, width() - 2 * margin, lineHeight());
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(heading(), Qt::ElideRight, int(line.width())));
    if (m_contents.drawn.empty() || !(m_low <= m_high)) {
        return;
    }
    drawAxis(painter);
    if (m_contents.isGrouped) {
        drawBoxes(painter);
    } else {
        drawBars(painter);
    }
}

void DistributionChart::drawAxis(QPainter& painter) const
{
    const QRectF room = plot();
    painter.drawLine(room.bottomLeft(), room.bottomRight());
    const QRectF texts(room.left(), room.bottom() + 2, room.width(), lineHeight());
    painter.drawText(texts, Qt::AlignLeft | Qt::AlignTop, m_contents.textOf(m_low));
    painter.drawText(texts, Qt::AlignRight | Qt::AlignTop, m_contents.textOf(m_high));
}

void DistributionChart::drawBars(QPainter& painter) const
{
    for (std::size_t bar = 0; bar < m_contents.drawn.front().bars.size(); ++bar) {
        painter.fillRect(barPlace(bar), fillColour(palette()));
    }
}

void DistributionChart::drawBoxes(QPainter& painter) const
{
    const int labels = labelWidth();
    for (std::size_t row = 0; row < m_contents.drawn.size(); ++row) {
        const Distribution& sample = m_contents.drawn[row];
        const QRectF line = rowPlace(row);
        const QString label =
            fontMetrics().elidedText(QString::fromStdString(sample.label), Qt::ElideRight, labels);
        painter.drawText(QRectF(margin, line.top(), labels, line.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, label);
        if (sample.count > 0) {
            drawBox(painter, sample, line);
        }
    }
}

void DistributionChart::drawBox(QPainter& painter, const Distribution& sample,
                                const QRectF& row) const
{
    const double middle = row.center().y();
    const double half = std::min(row.height() * 0.35, 9.0);
    const double left = place(sample.lowerQuartile);
    const double right = place(sample.upperQuartile);
    const double median = place(sample.median);
    painter.drawLine(QPointF(place(sample.minimum), middle), QPointF(left, middle));
    painter.drawLine(QPointF(right, middle), QPointF(place(sample.maximum), middle));
    for (const double end : {place(sample.minimum), place(sample.maximum)}) {
        painter.drawLine(QPointF(end, middle - half / 2), QPointF(end, middle + half / 2));
    }
    const QRectF box(left, middle - half, right - left, 2 * half);
    painter.fillRect(box, fillColour(palette()));
    painter.drawRect(box);
    painter.fillRect(QRectF(median - 1, middle - half, 2, 2 * half),
                     palette().color(QPalette::Text));
}

// Tool tips

QString DistributionChart::textUnder(const QPointF& position) const
{
    if (m_contents.drawn.empty() || !(m_low <= m_high)) {
        return {};
    }
    if (m_contents.isGrouped) {
        for (std::size_t row = 0; row < m_contents.drawn.size(); ++row) {
            const Distribution& sample = m_contents.drawn[row];
            const QRectF line = rowPlace(row);
            if (position.y() >= line.top() && position.y() < line.bottom() && sample.count > 0) {
                const auto& text = m_contents.textOf;
                return tr("%1: minimum %2, quartiles %3 and %5, median %4, maximum %6")
                    .arg(QString::fromStdString(sample.label), text(sample.minimum),
                         text(sample.lowerQuartile), text(sample.median),
                         text(sample.upperQuartile), text(sample.maximum));
            }
        }
        return {};
    }
    const Distribution& whole = m_contents.drawn.front();
    for (std::size_t bar = 0; bar < whole.bars.size(); ++bar) {
        const QRectF area = barPlace(bar);
        if (position.x() >= area.left() && position.x() < area.right()) {
            const double low = whole.firstEdge + static_cast<double>(bar) * whole.barWidth;
            return tr("From %1 to below %2: %3")
                .arg(m_contents.textOf(low), m_contents.textOf(low + whole.barWidth))
                .arg(whole.bars[bar]);
        }
    }
    return {};
}

bool DistributionChart::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), textUnder(help->pos()), this);
        return true;
    }
    return QWidget::event(event);
}
