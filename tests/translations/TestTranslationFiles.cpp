#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

const QString sourceFolder = QStringLiteral(QUORLANE_SOURCE_FOLDER);

/// What a .ts file says of one text.
struct Text
{
    QString source;
    QString state;  ///< "unfinished" and so on; empty once it is translated
    QStringList translations;  ///< one, or one for each plural form of the language
};

std::vector<Text> read(const QByteArray& ts)
{
    QXmlStreamReader xml(ts);
    std::vector<Text> texts;
    bool plural = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"message") {
            plural = xml.attributes().hasAttribute("numerus");
            texts.emplace_back();
        } else if (xml.name() == u"source") {
            texts.back().source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            texts.back().state = xml.attributes().value("type").toString();
            texts.back().translations
                << (plural ? QStringList() : QStringList(xml.readElementText()));
        } else if (xml.name() == u"numerusform") {
            texts.back().translations << xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

QStringList matches(const QString& text, const char* pattern)
{
    QStringList found;
    auto match = QRegularExpression(pattern).globalMatch(text);
    while (match.hasNext()) {
        found << match.next().captured();
    }
    found.sort();
    return found;
}

/// What would go wrong for a user who reads the translation.
QStringList faultsOf(const Text& text)
{
    QStringList faults(text.state.isEmpty() ? QStringList() : QStringList("is " + text.state));
    for (const QString& translation : text.translations) {
        if (translation.trimmed().isEmpty()) {
            faults << "is empty";
            continue;
        }
        if (matches(text.source, "%L?[1-9]") != matches(translation, "%L?[1-9]")) {
            faults << "has other placeholders";
        }
        if (text.source.section('\t', 1) != translation.section('\t', 1)) {
            faults << "shows other keys";
        }
        if (matches(text.source, R"(\(\*[^)]*\)|;;)")
            != matches(translation, R"(\(\*[^)]*\)|;;)")) {
            faults << "selects other files";
        }
    }
    // A form for one or two may say the number in words; the last is for any number.
    if (text.source.contains("%n")
        && !text.translations.value(text.translations.size() - 1).contains("%n")) {
        faults << "does not tell the number";
    }
    return faults;
}

/// The faults of the translations in a folder, which is brought up to date with the sources first:
/// a text that a translation lacks is unfinished then.
QStringList faultsIn(const QString& folder)
{
    QProcess tool;
    tool.start(sourceFolder + "/tools/translations", {"--folder", folder});
    EXPECT_TRUE(tool.waitForFinished());
    EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
    QStringList faults;
    for (const QFileInfo& entry : QDir(folder).entryInfoList({"*.ts"})) {
        QFile file(entry.filePath());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const Text& text : read(file.readAll())) {
            for (const QString& fault : faultsOf(text)) {
                faults << entry.fileName() + ": \"" + text.source + "\" " + fault;
            }
        }
    }
    return faults;
}

TEST(Translations, areCompleteAndKeepWhatIsNoLanguage)
{
    const QTemporaryDir folder;
    const QDir shipped(sourceFolder + "/i18n");
    const QStringList names = shipped.entryList({"*.ts"});
    EXPECT_GE(names.size(), 2);
    for (const QString& name : names) {
        QFile::copy(shipped.filePath(name), folder.filePath(name));
        QFile::setPermissions(folder.filePath(name), QFile::ReadOwner | QFile::WriteOwner);
    }
    const QStringList faults = faultsIn(folder.path());
    EXPECT_TRUE(faults.isEmpty()) << "after tools/translations:\n"
                                  << faults.join('\n').toStdString();
}

/// The messages that a source of an engine gives, their places as "%1" and so on.
QStringList messagesOf(const QString& source)
{
    // A text behind one of these, in one or several pieces.
    static const QRegularExpression message(
        R"rx((?:ParseError\(|Failure\{|refuse\(|DamageNote\(|m_refusal = |variable\(|fail\(|damage = |isCut \? |_back\(|)rx"
        R"rx((?:take|copy|literal)\([\w:]+, |return)\s*(?:fmt::format\(\s*)?)rx"
        R"rx(((?:"(?:[^"\\]|\\.)*"\s*)+))rx");
    static const QRegularExpression seam(R"("\s*")");
    static const QRegularExpression fileName(R"(^\{\}: )");
    QStringList messages;
    for (auto match = message.globalMatch(source); match.hasNext();) {
        QString text = match.next().captured(1).trimmed().replace(seam, QString());
        text = text.mid(1, text.size() - 2).remove(fileName);
        static const QRegularExpression argument(R"(\{\d?\})");
        for (int place = 1; text.contains(argument); ++place) {
            const QRegularExpressionMatch next = argument.match(text);
            text.replace(next.capturedStart(), next.capturedLength(), "%" + QString::number(place));
        }
        text.replace(R"(\xEF\xBF\xBD)", QChar(QChar::ReplacementCharacter));
        text += text.endsWith(u' ') ? "%1" : "";  // what is appended
        // Without a blank they are words and names; of the one its three kinds are told apart.
        if (text.contains(u' ') && text != "%1 is not a valid %2") {
            messages << text;
        }
    }
    return messages;
}

TEST(Translations, haveWhatEnginesSay)
{
    QFile file(sourceFolder + "/i18n/quorlane_de_DE.ts");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList known;
    for (const Text& text : read(file.readAll())) {
        known << text.source;
    }
    int count = 0;
    for (const char* folder : {"/data/readers", "/grid/filter", "/grid/opened"}) {
        for (const QFileInfo& entry : QDir(sourceFolder + folder).entryInfoList({"*.cpp"})) {
            QFile source(entry.filePath());
            ASSERT_TRUE(source.open(QIODevice::ReadOnly));
            for (const QString& message : messagesOf(QString::fromUtf8(source.readAll()))) {
                EXPECT_TRUE(known.contains(message) || known.contains("%1: " + message))
                    << entry.fileName().toStdString() << ": " << message.toStdString();
                ++count;
            }
        }
    }
    EXPECT_GT(count, 30);
}

}  // namespace
