#include "app/docks/LibraryItem.h"

#include "app/docks/WorkspaceItem.h"
#include "app/look/Icons.h"
#include "data/readers/FileKinds.h"

#include <QApplication>
#include <QDir>
#include <QHash>
#include <QLocale>
#include <QStyle>

using namespace workspaceitem;

namespace {

/// The drawing of a file's kind; thousands of files share a handful.
QIcon iconOf(const QString& path)
{
    static QHash<const filekinds::Suffix*, QIcon> known;
    QIcon& icon = known[filekinds::suffixOf(path)];
    if (icon.isNull()) {
        icon = icons::forDataset(path);
    }
    return icon;
}

/// A dataset file. Its tip is made when it is asked for.
class FileItem : public QStandardItem
{
    Q_DECLARE_TR_FUNCTIONS(LibraryItem)

public:
    explicit FileItem(const datasetfolder::File& file)
        : QStandardItem(iconOf(file.path), filepath::shown(file.name()))
        , m_file(file)
    {
        setData(file.path, PathRole);
        setData(Dataset, KindRole);
        setEditable(false);
    }

    [[nodiscard]] const datasetfolder::File& file() const { return m_file; }
    void setFile(const datasetfolder::File& file)
    {
        m_file = file;
        emitDataChanged();
    }
    [[nodiscard]] QVariant data(int role) const override
    {
        return role == Qt::ToolTipRole ? tip() : QStandardItem::data(role);
    }

private:
    [[nodiscard]] QString tip() const
    {
        const QLocale locale;
        return tr("%1\n%2, changed %3")
            .arg(filepath::shown(QDir::toNativeSeparators(m_file.path)),
                 locale.formattedDataSize(m_file.state.size),
                 locale.toString(m_file.state.lastModified, QLocale::ShortFormat));
    }

    datasetfolder::File m_file;
};

}  // namespace

LibraryItem::LibraryItem(const Library& library)
{
    setData(LibraryFolder, KindRole);
    setLibrary(library);
}

void LibraryItem::setLibrary(const Library& library)
{
    const bool isElsewhere = library.dir != m_library.dir;
    m_library = library;
    if (isElsewhere) {
        removeRows(0, rowCount());
        showNote(tr("Reading the folder..."));
        showState(QString());
    }
    setText(library.shownName());
    setData(library.id, IdRole);
    setData(library.dir, FolderRole);
    const QColor color(library.color);
    setData(color.isValid() ? QVariant(QBrush(color)) : QVariant(), Qt::ForegroundRole);
}

void LibraryItem::showListing(const FolderScanner::Listing& listing)
{
    if (!listing) {
        removeRows(0, rowCount());
        showNote(tr("The folder cannot be listed"));
        showState(QString::fromStdString(listing.error()));
    } else if (listing.value().empty()) {
        removeRows(0, rowCount());
        showNote(tr("No datasets"));
        showState(QString());
    } else {
        showFiles(listing.value());
        showState(QString());
    }
}

void LibraryItem::showSilence()
{
    removeRows(0, rowCount());
    showNote(tr("The folder does not answer"));
    showState(tr("The folder does not answer"));
}

/// Both the items and the files stand in the order of their names, so that one pass is enough.
void LibraryItem::showFiles(const std::vector<datasetfolder::File>& files)
{
    QHash<QString, const datasetfolder::File*> byPath;
    for (const datasetfolder::File& file : files) {
        byPath.insert(file.path, &file);
    }
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (!byPath.contains(child(row)->data(PathRole).toString())) {
            removeRow(row);
        }
    }
    if (rowCount() == 0) {
        QList<QStandardItem*> items;
        for (const datasetfolder::File& file : files) {
            items << new FileItem(file);
        }
        appendRows(items);  // at once: the tree does its work once
        return;
    }
    for (int row = 0; row < static_cast<int>(files.size()); ++row) {
        const datasetfolder::File& file = files[static_cast<std::size_t>(row)];
        auto* present = static_cast<FileItem*>(child(row));
        if (present == nullptr || present->file().path != file.path) {
            insertRow(row, new FileItem(file));
        } else if (present->file() != file) {
            present->setFile(file);
        }
    }
}

void LibraryItem::showNote(const QString& text)
{
    auto* note = new QStandardItem(text);
    note->setData(Note, KindRole);
    note->setFlags(Qt::ItemIsEnabled | Qt::ItemNeverHasChildren);
    QFont font = note->font();
    font.setItalic(true);
    note->setFont(font);
    appendRow(note);
}

/// Marks a library whose folder cannot be shown.
/// @param problem  empty for none
void LibraryItem::showState(const QString& problem)
{
    setIcon(problem.isEmpty() ? icons::icon(QStringLiteral("folder"))
                              : QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning));
    const QString folder = QDir::toNativeSeparators(m_library.dir);
    setToolTip(problem.isEmpty() ? folder : folder + u'\n' + problem);
}
