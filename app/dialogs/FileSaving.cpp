#include "app/dialogs/FileSaving.h"

#include "app/dialogs/UserPrompts.h"

#include <QCoreApplication>
#include <QSaveFile>

namespace filesaving {

bool save(UserPrompts& prompts, const QString& title, const QString& path, const QString& text)
{
    QSaveFile file(path);
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0 && file.commit();
    if (!isSaved) {
        prompts.warn(
            title,
            QCoreApplication::translate("FileSaving", "Failed to save the file: %1").arg(path),
            file.errorString());
    }
    return isSaved;
}

}  // namespace filesaving
