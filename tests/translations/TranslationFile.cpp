#include "tests/translations/TranslationFile.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <stdexcept>

namespace translationfile {
namespace {

/// The text itself, or each of its plural forms.
QStringList readTranslations(QXmlStreamReader& xml)
{
    QString text;
    QStringList forms;
    while (xml.readNext() != QXmlStreamReader::EndElement && !xml.hasError()) {
        if (xml.isStartElement()) {
            forms << xml.readElementText();
        } else {
            text += xml.text();
        }
    }
    return forms.isEmpty() ? QStringList(text) : forms;
}

TranslatedText readMessage(QXmlStreamReader& xml, const QString& context)
{
    TranslatedText text;
    text.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            text.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            text.comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            text.state = xml.attributes().value(QStringLiteral("type")).toString();
            text.translations = readTranslations(xml);
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

QStringList matches(const QString& text, const char* pattern)
{
    QStringList found;
    auto match = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (match.hasNext()) {
        found << match.next().captured();
    }
    found.sort();
    return found;
}

QStringList placeholders(const QString& text)
{
    QStringList found = matches(text, "%L?[1-9]");
    found.removeDuplicates();
    return found;
}

QString keysOf(const QString& text)
{
    return text.section(u'\t', 1);
}

QStringList faultsOf(const QString& source, const QString& translation)
{
    QStringList faults;
    if (translation.trimmed().isEmpty()) {
        return {QStringLiteral("has an empty translation")};
    }
    if (placeholders(source) != placeholders(translation)) {
        faults << QStringLiteral("has other placeholders");
    }
    if (source.count(u'\t') != translation.count(u'\t') || keysOf(source) != keysOf(translation)) {
        faults << QStringLiteral("shows other keys");
    }
    if (matches(source, R"(\(\*[^)]*\)|;;)") != matches(translation, R"(\(\*[^)]*\)|;;)")) {
        faults << QStringLiteral("selects other files");
    }
    return faults;
}

}  // namespace

std::vector<TranslatedText> read(const QByteArray& ts)
{
    QXmlStreamReader xml(ts);
    std::vector<TranslatedText> texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            texts.push_back(readMessage(xml, context));
        }
    }
    if (xml.hasError()) {
        throw std::runtime_error(xml.errorString().toStdString());
    }
    return texts;
}

QStringList faultsOf(const TranslatedText& text)
{
    QStringList faults;
    if (!text.state.isEmpty()) {
        faults << QStringLiteral("is ") + text.state;
    }
    if (text.translations.isEmpty()) {
        faults << QStringLiteral("has no translation");
    }
    for (const QString& translation : text.translations) {
        faults << faultsOf(text.source, translation);
    }
    // A form for one or two may say the number in words; the last is for any number.
    if (!text.translations.isEmpty()
        && text.source.contains(u"%n") != text.translations.last().contains(u"%n")) {
        faults << QStringLiteral("does not tell the number");
    }
    return faults;
}

}  // namespace translationfile
