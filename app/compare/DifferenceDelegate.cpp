#include "app/compare/DifferenceDelegate.h"

#include "analysis/comparison/TextDifference.h"
#include "app/look/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <iterator>

namespace {

using Cell = DifferenceModel::Cell;
using Line = DifferenceModel::Line;

QBrush groundOf(const Cell& cell, const QPalette& palette)
{
    const theme::DifferenceColours colours = theme::differenceColours(palette);
    switch (cell.line) {
    case Line::BaseOnly:
        return colours.baseOnly;
    case Line::CompareOnly:
        return colours.compareOnly;
    default:
        return cell.isUnequal
            ? QBrush(colours.ground)
            : palette.brush(cell.isOddGroup ? QPalette::AlternateBase : QPalette::Base);
    }
}

QColor textOf(const Cell& cell, const QPalette& palette)
{
    const bool showsDifference = cell.line == Line::Difference || cell.line == Line::Percent;
    if (cell.isUnequal && showsDifference) {
        return theme::differenceColours(palette).difference;
    }
    const bool repeats =
        cell.line == Line::Compare && !cell.isUnequal && (cell.isLeading || !showsDifference);
    const bool isDimmed = repeats || (showsDifference && !cell.isUnequal);
    return palette.color(isDimmed ? QPalette::PlaceholderText : QPalette::Text);
}

/// The lines between the columns, and a stronger one below the rows of an observation.
void drawLines(QPainter* painter, const QStyleOptionViewItem& option, const Cell& cell)
{
    const bool isDark = theme::isDark(option.palette);
    const QColor strong = option.palette.color(isDark ? QPalette::Light : QPalette::Mid);
    QColor faint = strong;
    faint.setAlphaF(isDark ? 0.55F : 0.4F);
    const QRect& rect = option.rect;
    painter->setPen(faint);
    painter->drawLine(rect.topRight(), rect.bottomRight());
    if (cell.endsGroup) {
        painter->setPen(strong);
        painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    }
}

/// A small triangle in the upper left corner.
void drawMark(QPainter* painter, const QStyleOptionViewItem& option)
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QPointF corner = option.rect.topLeft();
    const qreal size = std::max(5.0, option.rect.height() / 3.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(isSelected ? option.palette.color(QPalette::HighlightedText)
                                 : theme::differenceColours(option.palette).mark);
    const std::array points{corner, corner + QPointF(size, 0), corner + QPointF(0, size)};
    painter->drawPolygon(points.data(), static_cast<int>(points.size()));
    painter->restore();
}

/// What would break the line, as a sign of its own that is as long.
QString onOneLine(QString text)
{
    constexpr QChar arrowOfReturn(0x21B5);
    constexpr QChar arrowOfTabulator(0x2192);
    text.replace(u'\n', arrowOfReturn);
    text.replace(u'\r', arrowOfReturn);
    text.replace(u'\t', arrowOfTabulator);
    return text;
}

struct Letters
{
    QString text;
    QList<QTextLayout::FormatRange> ranges;
};

/// The text with the ranges of bytes set off.
Letters lettersOf(const std::string& text, const std::vector<comparison::TextRange>& ranges,
                  const QTextCharFormat& format)
{
    Letters letters{onOneLine(QString::fromStdString(text)), {}};
    const auto units = [&text](std::size_t bytes) {
        return static_cast<int>(
            QString::fromUtf8(text.data(), static_cast<qsizetype>(bytes)).size());
    };
    for (const comparison::TextRange& range : ranges) {
        const int begin = units(range.begin);
        letters.ranges.push_back({begin, units(range.end) - begin, format});
    }
    return letters;
}

void cutFront(Letters& letters, int count)
{
    constexpr QChar dots(0x2026);
    letters.text = dots + letters.text.sliced(count);
    for (QTextLayout::FormatRange& range : letters.ranges) {
        range.start -= count - 1;
    }
}

/// Leaves out the beginning that both texts share where what differs would be out of sight.
void bringIntoSight(Letters& letters, int firstDifference, int width, const QFontMetrics& metrics)
{
    constexpr int kept = 6;  // letters before what differs, to be read along with it
    const int atLeast = width - 4 * metrics.averageCharWidth();
    if (firstDifference > kept + 1
        && metrics.horizontalAdvance(letters.text.first(firstDifference)) > atLeast) {
        cutFront(letters, firstDifference - kept);
    }
}

void layOut(QTextLayout& layout, const Letters& letters)
{
    layout.setText(letters.text);
    layout.setFormats(letters.ranges);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

/// Puts dots in the place of what goes beyond the width.
void cutEnd(QTextLayout& layout, Letters letters, int width, const QFontMetrics& metrics)
{
    if (layout.lineCount() == 0 || layout.lineAt(0).naturalTextWidth() <= width) {
        return;
    }
    constexpr QChar dots(0x2026);
    const int end = layout.lineAt(0).xToCursor(width - metrics.horizontalAdvance(dots),
                                               QTextLine::CursorOnCharacter);
    letters.text = letters.text.first(std::min<qsizetype>(end, letters.text.size())) + dots;
    letters.ranges.removeIf([end](const auto& range) { return range.start >= end; });
    for (QTextLayout::FormatRange& range : letters.ranges) {
        range.length = std::min(range.length, end - range.start);
    }
    layout.clearLayout();
    layOut(layout, letters);
}

}  // namespace

DifferenceDelegate::DifferenceDelegate(const DifferenceModel& model, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
{ }

void DifferenceDelegate::initStyleOption(QStyleOptionViewItem* option,
                                         const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = onOneLine(option->text);
}

void DifferenceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const
{
    const Cell cell = m_model.cell(index);
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.backgroundBrush = groundOf(cell, option.palette);
    item.palette.setColor(QPalette::Text, textOf(cell, option.palette));
    const bool hasLetters =
        cell.isUnequal && cell.isText && (cell.line == Line::Base || cell.line == Line::Compare);
    if (hasLetters) {
        paintLetters(painter, item, index);
    } else {
        const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    }
    drawLines(painter, option, cell);
    if (cell.isUnequal && (cell.line == Line::Base || cell.line == Line::Compare)) {
        drawMark(painter, option);
    }
}

void DifferenceDelegate::paintLetters(QPainter* painter, QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    const QRect room = style->subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget);
    option.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    QTextCharFormat differs;
    differs.setFontUnderline(true);
    if (!isSelected) {
        differs.setBackground(theme::differenceColours(option.palette).letters);
    }
    const comparison::ValueTexts texts = m_model.texts(index);
    const auto [base, compare] = comparison::textDifference(texts.base, texts.compare);
    const bool isBase = m_model.cell(index).line == Line::Base;
    Letters letters =
        isBase ? lettersOf(texts.base, base, differs) : lettersOf(texts.compare, compare, differs);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option) + 1;
    const int width = room.width() - 2 * margin;
    // The beginning is cut at one place in both texts, which share all of it.
    const std::size_t shared =
        std::min(base.empty() ? texts.base.size() : base.front().begin,
                 compare.empty() ? texts.compare.size() : compare.front().begin);
    const QString beginning = QString::fromUtf8(texts.base.data(), static_cast<qsizetype>(shared));
    bringIntoSight(letters, static_cast<int>(beginning.size()), width, option.fontMetrics);
    QTextLayout layout(QString(), option.font);
    layOut(layout, letters);
    cutEnd(layout, letters, width, option.fontMetrics);
    painter->save();
    painter->setClipRect(room);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    const qreal top = room.top() + (room.height() - layout.boundingRect().height()) / 2;
    layout.draw(painter, QPointF(room.left() + margin, top));
    painter->restore();
}
