#include "tests/support/TemporaryFolder.h"
#include "tests/translations/TranslationFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include <ostream>
#include <set>
#include <tuple>

namespace {

const QString sourceFolder = QStringLiteral(QUORLANE_SOURCE_FOLDER);

std::vector<TranslatedText> readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read " + path.toStdString());
    }
    return translationfile::read(file.readAll());
}

QStringList shippedFiles()
{
    const QDir folder(sourceFolder + "/i18n");
    QStringList paths;
    for (const QString& name : folder.entryList({"*.ts"}, QDir::Files, QDir::Name)) {
        paths << folder.filePath(name);
    }
    return paths;
}

/// The texts of the sources that a translation does not know, as tools/translations finds them.
QStringList textsLackingIn(const QString& path)
{
    using Key = std::tuple<QString, QString, QString>;
    const TemporaryFolder temporary;
    const QString folder = QString::fromStdString(temporary.path().string());
    const QString updated = folder + '/' + QFileInfo(path).fileName();
    if (!QFile::copy(path, updated)
        || !QFile::setPermissions(updated, QFile::ReadOwner | QFile::WriteOwner)) {
        throw std::runtime_error("cannot copy " + path.toStdString());
    }
    QProcess tool;
    tool.start(sourceFolder + "/tools/translations", {"--folder", folder});
    if (!tool.waitForFinished() || tool.exitStatus() != QProcess::NormalExit
        || tool.exitCode() != 0) {
        throw std::runtime_error("tools/translations: " + tool.errorString().toStdString()
                                 + tool.readAllStandardError().toStdString());
    }
    std::set<Key> known;
    for (const TranslatedText& text : readFile(path)) {
        known.emplace(text.context, text.source, text.comment);
    }
    QStringList lacking;
    for (const TranslatedText& text : readFile(updated)) {
        if (!known.contains({text.context, text.source, text.comment})) {
            lacking << text.name();
        }
    }
    return lacking;
}

struct Case
{
    const char* name;
    const char* source;
    const char* translation;  ///< the element as the file has it
    const char* faults;
};

std::ostream& operator<<(std::ostream& stream, const Case& row)
{
    return stream << row.name;
}

class TranslationFaults : public testing::TestWithParam<Case>
{ };

TEST_P(TranslationFaults, AreFound)
{
    const QString ts = QStringLiteral("<TS version=\"2.1\"><context><name>Window</name><message>"
                                      "<source>%1</source>%2</message></context></TS>")
                           .arg(GetParam().source, GetParam().translation);
    const auto texts = translationfile::read(ts.toUtf8());
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].name().toStdString(), std::string("Window: ") + GetParam().source);
    EXPECT_EQ(translationfile::faultsOf(texts[0]).join("; ").toStdString(), GetParam().faults);
}

constexpr Case cases[]{
    {"Good", "Open", "<translation>Öffnen</translation>", ""},
    {"Unfinished", "Open", "<translation type=\"unfinished\">Auf</translation>", "is unfinished"},
    {"New", "Open", "<translation type=\"unfinished\"></translation>",
     "is unfinished; has an empty translation"},
    {"Gone", "Open", "<translation type=\"vanished\">Auf</translation>", "is vanished"},
    {"Empty", "Open", "<translation></translation>", "has an empty translation"},
    {"Blank", "Open", "<translation> </translation>", "has an empty translation"},
    {"NoElement", "Open", "", "has no translation"},
    {"PlaceholdersInAnotherOrder", "%1 of %2", "<translation>%2: %1</translation>", ""},
    {"PlaceholderLacking", "%1 of %2", "<translation>%1 von</translation>",
     "has other placeholders"},
    {"PlaceholderInvented", "Row %1", "<translation>Zeile %1 %2</translation>",
     "has other placeholders"},
    {"Keys", "Hide\tAlt+H", "<translation>Ausblenden\tAlt+H</translation>", ""},
    {"TabLost", "Hide\tH", "<translation>Ausblenden H</translation>", "shows other keys"},
    {"OtherKeys", "Hide\tH", "<translation>Ausblenden\tA</translation>", "shows other keys"},
    {"FileTypes", "A (*.a *.b);; C (*.c)", "<translation>X (*.a *.b);; Y (*.c)</translation>", ""},
    {"FileTypeLost", "A (*.a);; C (*.c)", "<translation>X (*.a)</translation>",
     "selects other files"},
    {"FileTypeChanged", "A (*.rds)", "<translation>A (*.rda)</translation>", "selects other files"},
    {"Plural", "%n rows",
     "<translation><numerusform>eine Zeile</numerusform><numerusform>%n Zeilen</numerusform>"
     "</translation>",
     ""},
    {"PluralFormEmpty", "%n rows",
     "<translation><numerusform></numerusform><numerusform>%n Zeilen</numerusform></translation>",
     "has an empty translation"},
    {"PluralWithoutNumber", "%n rows",
     "<translation><numerusform>eine Zeile</numerusform><numerusform>Zeilen</numerusform>"
     "</translation>",
     "does not tell the number"},
};

INSTANTIATE_TEST_SUITE_P(Each, TranslationFaults, testing::ValuesIn(cases),
                         [](const auto& row) { return row.param.name; });

TEST(TranslationFile, ThatIsCutOffIsRefused)
{
    EXPECT_THROW(static_cast<void>(translationfile::read("<TS><context><name>Window</name>")),
                 std::runtime_error);
}

TEST(TranslationFile, ThatLacksTextsIsFoundOut)
{
    const TemporaryFolder folder;
    const QString path = QString::fromStdString(folder.file("quorlane_de_DE.ts").string());
    QFile file(path);
    const QByteArray content =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS>"
        "<TS version=\"2.1\" language=\"de_DE\"><context><name>MainMenus</name><message>"
        "<source>&amp;File</source><translation>Datei</translation></message></context></TS>";
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    const QStringList lacking = textsLackingIn(path);
    EXPECT_TRUE(lacking.contains("MainMenus: &Edit"));
    EXPECT_TRUE(lacking.contains("ShortcutList: Global"));
    EXPECT_FALSE(lacking.contains("MainMenus: &File"));
}

TEST(ShippedTranslations, AreWithoutFaults)
{
    const QStringList files = shippedFiles();
    EXPECT_GE(files.size(), 2);
    for (const QString& file : files) {
        const auto texts = readFile(file);
        EXPECT_FALSE(texts.empty());
        for (const TranslatedText& text : texts) {
            const QStringList faults = translationfile::faultsOf(text);
            EXPECT_TRUE(faults.isEmpty())
                << file.toStdString() << ": \"" << text.name().toStdString() << "\" "
                << faults.join("; ").toStdString();
        }
    }
}

TEST(ShippedTranslations, HoldEveryTextOfTheSources)
{
    for (const QString& file : shippedFiles()) {
        const QStringList lacking = textsLackingIn(file);
        EXPECT_TRUE(lacking.isEmpty())
            << file.toStdString() << " lacks, so run tools/translations:\n"
            << lacking.join('\n').toStdString();
    }
}

}  // namespace
