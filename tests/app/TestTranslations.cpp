#include "app/start/Translations.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

/// What "&File" of the menus becomes; empty where no translation is found, not even English.
std::string fileMenu(const QStringList& languages, const QString& folder)
{
    const auto translator = translations::load(languages, folder);
    const QString text = translator ? translator->translate("MainMenus", "&File") : QString();
    return translator && text.isEmpty() ? "&File" : text.toStdString();
}

}  // namespace

TEST(Translations, areTakenForTheFirstLanguageThatHasOne)
{
    const std::pair<QStringList, const char*> table[]{
        {{"de-DE"}, "&Datei"},
        {{"de"}, "&Datei"},
        {{"fr-FR", "de-AT"}, "&Datei"},
        {{"de-CH", "zh-CN"}, "&Datei"},
        {{"zh-CN", "de-DE"}, "文件(&F)"},
        {{"zh"}, "文件(&F)"},
        {{"zh-Hans-CN"}, "文件(&F)"},
        {{"zh-TW"}, ""},
        {{"en-GB", "de-DE"}, "&File"},
        {{"fr-FR", "en-US", "de-DE"}, "&File"},
        {{"fr-FR", "C"}, ""},
        {{}, ""},
    };
    for (const auto& [languages, text] : table) {
        EXPECT_EQ(fileMenu(languages, ":/i18n/"), text) << languages.join(' ').toStdString();
    }
}

TEST(Translations, mayLackACountryAndPassOverAFileThatIsNone)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::copy(":/i18n/quorlane_de_DE.qm", folder.filePath("quorlane_de.qm")));
    QFile broken(folder.filePath("quorlane_fr_FR.qm"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write(QByteArray(200, 'x')) == 200);
    broken.close();
    EXPECT_EQ(fileMenu({"fr-FR", "de-AT"}, folder.path()), "&Datei");
}
