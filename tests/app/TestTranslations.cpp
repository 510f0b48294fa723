#include "app/start/Translations.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDataStream>
#include <QFile>

namespace {

/// The checksum under which a source text is looked up in a translation file.
quint32 checksumOf(const QByteArray& source)
{
    quint32 sum = 0;
    for (const char byte : source) {
        sum = (sum << 4) + static_cast<uchar>(byte);
        const quint32 top = sum & 0xf0000000U;
        sum = (sum ^ (top >> 24)) & ~top;
    }
    return sum == 0 ? 1 : sum;
}

QByteArray section(quint8 tag, const QByteArray& content)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << tag << content;
    return bytes;
}

/// A compiled translation of one text, as Qt's lrelease writes it.
QByteArray translationOf(const QByteArray& context, const QByteArray& source,
                         const QString& translated)
{
    QByteArray message;
    QDataStream messageStream(&message, QIODevice::WriteOnly);
    messageStream << quint8(3) << translated << quint8(6) << source << quint8(7) << context
                  << quint8(1);
    QByteArray offset;
    QDataStream(&offset, QIODevice::WriteOnly) << checksumOf(source) << quint32(0);
    return QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd") + section(0x42, offset)
        + section(0x69, message);
}

class Translations : public testing::Test
{
protected:
    [[nodiscard]] QString path(const char* name) const
    {
        return QString::fromStdString(m_folder.file(name).string());
    }
    void add(const char* name, const QString& translated)
    {
        QFile file(path(name));
        const QByteArray content = translationOf("Startup", "Error", translated);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    /// What "Error" becomes; empty when no translation is found.
    [[nodiscard]] std::string error(const QStringList& languages) const
    {
        const auto translator =
            translations::load(languages, QString::fromStdString(m_folder.path().string()));
        return translator ? translator->translate("Startup", "Error").toStdString() : "";
    }

private:
    TemporaryFolder m_folder;
};

}  // namespace

TEST_F(Translations, AreTakenForTheFirstLanguageThatHasOne)
{
    add("quorlane_de_DE.qm", "Fehler");
    add("quorlane_fr_FR.qm", "Erreur");
    add("quorlane_da_DK.qm", "Fejl");
    EXPECT_EQ(error({"it-IT", "fr-FR", "de-DE"}), "Erreur");
    EXPECT_EQ(error({"de", "fr"}), "Fehler");
    EXPECT_EQ(error({"da-DK"}), "Fejl");
}

TEST_F(Translations, MayBeForALanguageWithoutItsCountry)
{
    add("quorlane_de.qm", "Fehler");
    EXPECT_EQ(error({"de-AT"}), "Fehler");
}

TEST_F(Translations, AreNoneWhereNoneFits)
{
    add("quorlane_de_DE.qm", "Fehler");
    EXPECT_EQ(error({"fr-FR", "C"}), "");
    EXPECT_EQ(error({}), "");
}

TEST_F(Translations, PassOverAFileThatIsNone)
{
    add("quorlane_de_DE.qm", "Fehler");
    QFile file(path("quorlane_fr_FR.qm"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(QByteArray(200, 'x')) == 200);
    file.close();
    EXPECT_EQ(error({"fr-FR", "de-DE"}), "Fehler");
}

TEST(ShippedTranslations, AreTakenByTheRuleToo)
{
    struct Row
    {
        QStringList languages;
        const char* file;  ///< the title of the File menu; null where the texts stay English
    };
    const Row rows[]{
        {{"de-DE"}, "&Datei"},
        {{"de"}, "&Datei"},
        {{"fr-FR", "de-AT"}, "&Datei"},
        {{"de-CH", "zh-CN"}, "&Datei"},
        {{"zh-CN", "de-DE"}, "文件(&F)"},
        {{"zh"}, "文件(&F)"},
        {{"zh-Hans-CN"}, "文件(&F)"},
        {{"zh-TW"}, nullptr},
        {{"fr-FR", "C"}, nullptr},
    };
    for (const Row& row : rows) {
        const auto translator = translations::load(row.languages, ":/i18n/");
        const std::string file =
            translator ? translator->translate("MainMenus", "&File").toStdString() : "";
        EXPECT_EQ(file, row.file == nullptr ? "" : row.file)
            << row.languages.join(' ').toStdString();
    }
}
