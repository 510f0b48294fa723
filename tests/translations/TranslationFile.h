#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// What a .ts file says of one text.
struct TranslatedText
{
    QString context;
    QString source;
    QString comment;  ///< which tells texts apart that are the same in English
    QString state;  ///< "unfinished" and so on; empty once it is translated
    QStringList translations;  ///< one, or one for each plural form of the language

    [[nodiscard]] QString name() const { return context + QStringLiteral(": ") + source; }
};

namespace translationfile {

/// @throws std::runtime_error  where it is no .ts file
[[nodiscard]] std::vector<TranslatedText> read(const QByteArray& ts);

/// What would go wrong for a user who reads the translation; empty when all is well.
/// @return  one line for each fault
[[nodiscard]] QStringList faultsOf(const TranslatedText& text);

}  // namespace translationfile
