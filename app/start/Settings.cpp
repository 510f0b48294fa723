#include "app/start/Settings.h"

#include <QSettings>

#include <algorithm>

namespace {

// No smaller or larger letters are read from the store, which anyone may have edited.
constexpr int smallestFont = 6;
constexpr int largestFont = 72;

// What the buttons say in English, whatever the user's language.
constexpr QLatin1StringView nameMode("Var Name");
constexpr QLatin1StringView labelMode("Var Label");

}  // namespace

QByteArray Settings::geometry() const
{
    return m_store.value(u"geometry").toByteArray();
}

QByteArray Settings::state() const
{
    return m_store.value(u"state").toByteArray();
}

void Settings::setGeometryAndState(const QByteArray& geometry, const QByteArray& state)
{
    m_store.setValue(u"geometry", geometry);
    m_store.setValue(u"state", state);
}

bool Settings::darkMode() const
{
    return m_store.value(u"darkMode", false).toBool();
}

void Settings::setDarkMode(bool isDark)
{
    m_store.setValue(u"darkMode", isDark);
}

int Settings::fontSize() const
{
    const int points = m_store.value(u"fontSize", 0).toInt();
    return points <= 0 ? 0 : std::clamp(points, smallestFont, largestFont);
}

void Settings::setFontSize(int points)
{
    m_store.setValue(u"fontSize", points);
}

QString Settings::lastLayout() const
{
    return m_store.value(u"lastLayout", QStringLiteral("30:70:0")).toString();
}

void Settings::setLastLayout(const QString& layout)
{
    m_store.setValue(u"lastLayout", layout);
}

bool Settings::headersShowLabels() const
{
    return m_store.value(u"columnHeaderMode").toString() == labelMode;
}

void Settings::setHeadersShowLabels(bool areLabels)
{
    m_store.setValue(u"columnHeaderMode", QString(areLabels ? labelMode : nameMode));
}

QString Settings::lastFolder() const
{
    return m_store.value(u"lastFolder").toString();
}

void Settings::setLastFolder(const QString& folder)
{
    m_store.setValue(u"lastFolder", folder);
}

QStringList Settings::recentFiles() const
{
    return m_store.value(u"recentFiles").toStringList();
}

void Settings::setRecentFiles(const QStringList& paths)
{
    m_store.setValue(u"recentFiles", paths);
}

QVariant Settings::compareOption(const QString& name, const QVariant& fallback) const
{
    const QVariant value = m_store.value(QLatin1String("compare/") + name, fallback);
    // Some stores keep texts only.
    return value.canConvert(fallback.metaType()) ? value : fallback;
}

void Settings::setCompareOption(const QString& name, const QVariant& value)
{
    m_store.setValue(QLatin1String("compare/") + name, value);
}
