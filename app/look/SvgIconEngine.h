#pragma once

#include <QByteArray>
#include <QIconEngine>
#include <QPixmap>
#include <QString>

/// Paints a drawing at any size, in the colours of the palette in force.
class SvgIconEngine : public QIconEngine
{
public:
    /// @param name  tells the drawing from others in the cache of pixmaps
    /// @param svg   the drawing as SVG, in the colours of the light look
    SvgIconEngine(QString name, QByteArray svg);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine* clone() const override { return new SvgIconEngine(*this); }
    [[nodiscard]] QString key() const override;

private:
    QString m_name;
    QByteArray m_svg;
};
