#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <string>
#include <string_view>

class QUrl;

/// File names are bytes, a QString is not: a name that is no valid UTF-8 would not survive the way
/// there and back. Its stray bytes travel as lone low surrogates (U+DC80 ... U+DCFF).
namespace filepath {

[[nodiscard]] QString fromBytes(std::string_view bytes);
/// The bytes for the system's calls; QFile::encodeName() for every name without stray bytes.
[[nodiscard]] std::string toBytes(const QString& path);
/// The path of the local file that a URL names, whose stray bytes are percent-encoded.
[[nodiscard]] QString fromUrl(const QUrl& url);
/// Whether the name is text through and through, which what is kept as text must be.
[[nodiscard]] bool isText(const QString& path);

/// What the system says of a file; nothing but that it is not there where it says nothing.
struct FileState
{
    bool exists = false;
    QDateTime lastModified;
    std::int64_t size = 0;  ///< bytes

    bool operator==(const FileState&) const = default;
};
/// QFileInfo's answers for every name without stray bytes, of which it knows no file.
[[nodiscard]] FileState stateOf(const QString& path);

/// As text, its stray bytes as U+FFFD.
[[nodiscard]] QString shown(QString path);
/// The last component so shown, for messages.
[[nodiscard]] std::string displayName(const QString& path);
/// The same without its last suffix.
[[nodiscard]] std::string baseName(const QString& path);

}  // namespace filepath
