#include "data/FilePath.h"

#include "data/values/Texts.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <sys/stat.h>

namespace filepath {

namespace {

constexpr char16_t firstStray = 0xDC80;
constexpr char16_t lastStray = 0xDCFF;

bool isStray(QStringView path, qsizetype at)
{
    const char16_t unit = path[at].unicode();
    return unit >= firstStray && unit <= lastStray
        && (at == 0 || !QChar::isHighSurrogate(path[at - 1].unicode()));
}

}  // namespace

QString fromBytes(std::string_view bytes)
{
    if (texts::isUtf8(bytes)) {
        return QFile::decodeName(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
    }
    QString path;
    while (!bytes.empty()) {
        std::size_t valid = bytes.size();
        while (valid > 0 && !texts::isUtf8(bytes.substr(0, valid))) {
            --valid;
        }
        path += QString::fromUtf8(bytes.data(), static_cast<qsizetype>(valid));
        bytes.remove_prefix(valid);
        if (!bytes.empty()) {
            path +=
                QChar(static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(bytes.front())));
            bytes.remove_prefix(1);
        }
    }
    return path;
}

std::string toBytes(const QString& path)
{
    std::string bytes;
    qsizetype start = 0;
    for (qsizetype at = 0; at <= path.size(); ++at) {
        if (at < path.size() && !isStray(path, at)) {
            continue;
        }
        bytes += QFile::encodeName(path.mid(start, at - start)).toStdString();
        if (at < path.size()) {
            bytes += static_cast<char>(path[at].unicode() - 0xDC00);
        }
        start = at + 1;
    }
    return bytes;
}

QString fromUrl(const QUrl& url)
{
    const QByteArray bytes =
        QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    const std::string_view path(bytes.data(), static_cast<std::size_t>(bytes.size()));
    return texts::isUtf8(path) ? url.toLocalFile() : fromBytes(path);
}

bool isText(const QString& path)
{
    for (qsizetype at = 0; at < path.size(); ++at) {
        if (isStray(path, at)) {
            return false;
        }
    }
    return true;
}

FileState stateOf(const QString& path)
{
    if (isText(path)) {
        const QFileInfo file(path);
        return {file.exists(), file.lastModified(), file.size()};
    }
    struct stat status
    { };
    if (::stat(toBytes(path).c_str(), &status) != 0) {
        return {};
    }
    return {true, QDateTime::fromSecsSinceEpoch(status.st_mtime), status.st_size};
}

QString shown(QString path)
{
    for (qsizetype at = 0; at < path.size(); ++at) {
        if (isStray(path, at)) {
            path[at] = QChar::ReplacementCharacter;
        }
    }
    return path;
}

std::string displayName(const QString& path)
{
    return shown(QFileInfo(path).fileName()).toStdString();
}

std::string baseName(const QString& path)
{
    const std::string name = displayName(path);
    return name.substr(0, name.rfind('.'));
}

}  // namespace filepath
