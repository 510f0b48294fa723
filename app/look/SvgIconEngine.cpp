#include "app/look/SvgIconEngine.h"

#include "app/look/Theme.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>

#include <array>

namespace {

/// A colour of the drawings and what stands for it elsewhere.
struct Ink
{
    const char* light;
    const char* dark;
    bool ground;  ///< fills an area behind strokes
};

constexpr std::array inks{
    Ink{"#3b4a54", "#c9d3d9", false},  // outlines
    Ink{"#0b7a75", "#56c7be", false},  // what the icon is about
    Ink{"#b86e00", "#f0b450", false}, Ink{"#b3261e", "#f2938c", false},
    Ink{"#2a5fb0", "#8fb8f2", false}, Ink{"#4f7a28", "#a5d06c", false},
    Ink{"#dbe8ea", "#3a4a50", true},  Ink{"#ffffff", "#1d2529", true},
};

QByteArray recoloured(QByteArray svg, const QPalette& palette, bool enabled)
{
    if (enabled && !theme::isDark(palette)) {
        return svg;
    }
    const QByteArray text =
        palette.color(QPalette::Disabled, QPalette::WindowText).name().toLatin1();
    const QByteArray window = palette.color(QPalette::Window).name().toLatin1();
    for (const Ink& ink : inks) {
        svg.replace(ink.light, enabled ? QByteArray(ink.dark) : ink.ground ? window : text);
    }
    return svg;
}

QPixmap rendered(QByteArray svg, const QSize& size)
{
    QBuffer buffer(&svg);
    QImageReader reader(&buffer, QByteArrayLiteral("svg"));
    reader.setScaledSize(size);
    reader.setBackgroundColor(Qt::transparent);
    return QPixmap::fromImage(reader.read());
}

}  // namespace

SvgIconEngine::SvgIconEngine(QString name, QByteArray svg)
    : m_name(std::move(name))
    , m_svg(std::move(svg))
{ }

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                          QIcon::State state)
{
    const qreal ratio = painter->device()->devicePixelRatio();
    painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State)
{
    if (size.isEmpty()) {
        return {};
    }
    const QPalette palette = QGuiApplication::palette();
    const bool enabled = mode != QIcon::Disabled;
    const int side = std::min(size.width(), size.height());
    const QString key = QStringLiteral("quorlane/%1/%2/%3/%4")
                            .arg(m_name)
                            .arg(side)
                            .arg(palette.cacheKey())
                            .arg(enabled);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = rendered(recoloured(m_svg, palette, enabled), QSize(side, side));
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

QString SvgIconEngine::key() const
{
    return QStringLiteral("quorlane-svg");
}
