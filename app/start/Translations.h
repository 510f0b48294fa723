#pragma once

#include <QStringList>
#include <QTranslator>

#include <memory>

/// The texts of the user interface in other languages: "quorlane_de_DE.qm" and so on.
namespace translations {

/// Loads the first translation there is for one of the languages.
/// @param uiLanguages  as QLocale::uiLanguages() lists them, the preferred one first
/// @return             null when there is none, and the texts stay English, as they do with that
/// for
///                     English, which has none
[[nodiscard]] std::unique_ptr<QTranslator> load(const QStringList& uiLanguages,
                                                const QString& folder);

/// Loads what the toolkit says by itself, on buttons and in file dialogs, in the language of such a
/// translation; null where the system does not have it.
[[nodiscard]] std::unique_ptr<QTranslator> loadToolkit(const QTranslator& translation);

}  // namespace translations
