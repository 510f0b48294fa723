#pragma once

#include "analysis/Distribution.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

/// Draws samples small: a histogram of a single one, a box for each of several, from the smallest
/// to the largest value with the middle half as the box and the median as a line.
class DistributionChart : public QWidget
{
    Q_OBJECT

public:
    struct Contents
    {
        QString title;
        std::vector<Distribution> drawn;
        bool isGrouped = false;
        std::size_t groupCount = 0;  ///< those included that are not drawn
        std::function<QString(double)> textOf;  ///< of a value on the axis
    };

    explicit DistributionChart(QWidget* parent = nullptr);

    void setContents(Contents contents);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] int lineHeight() const;
    [[nodiscard]] QString heading() const;
    [[nodiscard]] QRectF plot() const;
    [[nodiscard]] int labelWidth() const;
    [[nodiscard]] double place(double value) const;
    [[nodiscard]] QRectF barPlace(std::size_t bar) const;
    [[nodiscard]] QRectF rowPlace(std::size_t row) const;
    [[nodiscard]] QString textUnder(const QPointF& position) const;
    void drawAxis(QPainter& painter) const;
    void drawBars(QPainter& painter) const;
    void drawBoxes(QPainter& painter) const;
    void drawBox(QPainter& painter, const Distribution& sample, const QRectF& row) const;

    Contents m_contents;
    double m_low = 0;  ///< what the axis spans
    double m_high = 0;
};
