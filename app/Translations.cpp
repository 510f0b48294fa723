#include "app/Translations.h"

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

}  // namespace translations
