#include "app/open/SuppFiles.h"

#include "data/readers/DatasetFile.h"
#include "data/readers/DatasetFolder.h"

#include <QFileInfo>

#include <algorithm>
#include <functional>
#include <map>

QString JoinedFile::key() const
{
    return datasetKey(path, member);
}

namespace suppfiles {
namespace {

constexpr qsizetype domainLength = 2;
constexpr qsizetype longestSplit = 4;  // a split domain has a name of up to four letters

bool isOwn(const QString& supplement, const QString& parent)
{
    return supplement.compare(QStringLiteral("supp") + parent, Qt::CaseInsensitive) == 0;
}

QString baseOf(const QString& path)
{
    return path.section(u'/', -1).section(u'.', 0, -2);
}

/// Without those of the whole domain where the split one has its own.
void dropCommon(QList<JoinedFile>& files, const QString& parent,
                const std::function<QString(const JoinedFile&)>& nameOf)
{
    const auto own = [&](const JoinedFile& file) { return isOwn(nameOf(file), parent); };
    if (parent.size() > domainLength && std::any_of(files.begin(), files.end(), own)) {
        files.removeIf([&](const JoinedFile& file) { return !own(file); });
    }
}

QList<JoinedFile> inFile(const QString& path, const QString& member)
{
    QList<JoinedFile> files;
    if (const auto names = datasetNames(path); names && names.value().size() > 1) {
        for (const std::string& each : names.value()) {
            const QString name = QString::fromStdString(each);
            if (belongs(name, member)) {
                files << JoinedFile{path, name};
            }
        }
    }
    dropCommon(files, member, [](const JoinedFile& file) { return file.member; });
    return files;
}

}  // namespace

bool belongs(const QString& supplement, const QString& parent)
{
    if (isOwn(supplement, parent)) {
        return true;
    }
    const QString domain = supplement.sliced(std::min<qsizetype>(4, supplement.size()));
    if (parent.size() < domainLength
        || !supplement.startsWith(QStringLiteral("supp"), Qt::CaseInsensitive)) {
        return false;
    }
    const bool isSplit = parent.size() == domainLength && domain.size() <= longestSplit
        && domain.startsWith(parent, Qt::CaseInsensitive);
    const bool isWhole = domain.size() == domainLength && parent.size() <= longestSplit
        && parent.startsWith(domain, Qt::CaseInsensitive);
    return isSplit || isWhole;
}

QList<JoinedFile> beside(const QString& path, const QString& member)
{
    if (!member.isEmpty()) {
        QList<JoinedFile> files = inFile(path, member);
        if (!files.isEmpty()) {
            return files;
        }
    }
    const QFileInfo parent(path);
    const QString name = member.isEmpty() ? baseOf(path) : member;
    const auto listed = datasetfolder::list(parent.absolutePath());
    if (!listed) {
        return {};
    }
    std::map<QString, JoinedFile> byName;
    for (const datasetfolder::File& file : listed.value()) {
        const QString other = baseOf(file.path);
        if (!belongs(other, name)) {
            continue;
        }
        const bool isOfKind =
            QFileInfo(file.path).suffix().compare(parent.suffix(), Qt::CaseInsensitive) == 0;
        if (const auto [entry, isNew] = byName.try_emplace(other.toLower(), JoinedFile{file.path});
            !isNew && isOfKind) {
            entry->second.path = file.path;
        }
    }
    QList<JoinedFile> files;
    for (const auto& [lower, file] : byName) {
        files << file;
    }
    dropCommon(files, name, [](const JoinedFile& file) { return baseOf(file.path); });
    return files;
}

}  // namespace suppfiles
