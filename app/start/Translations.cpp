#include "app/start/Translations.h"

#include <QLibraryInfo>
#include <QLocale>

namespace translations {

std::unique_ptr<QTranslator> load(const QStringList& uiLanguages, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    for (const QString& language : uiLanguages) {
        const QString baseName = QStringLiteral("quorlane_") + QLocale(language).name();
        if (translator->load(baseName, folder)) {
            return translator;
        }
    }
    return nullptr;
}

std::unique_ptr<QTranslator> loadToolkit(const QTranslator& translation)
{
    auto toolkit = std::make_unique<QTranslator>();
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const bool isThere = toolkit->load(QLocale(translation.language()), QStringLiteral("qtbase"),
                                       QStringLiteral("_"), folder);
    return isThere ? std::move(toolkit) : nullptr;
}

}  // namespace translations
