#include "app/dialogs/DialogPrompts.h"

#include "app/dialogs/ChooseDatasetsDialog.h"
#include "app/dialogs/DataFilterDialog.h"
#include "workspace/OptionsDialog.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>

namespace {

/// A message box that shows its texts as they are: file names, commands and what comes over the
/// network may contain what looks like markup.
class PlainBox : public QMessageBox
{
public:
    PlainBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
             QWidget* parent)
        : QMessageBox(icon, title, text, buttons, parent)
    {
        setTextFormat(Qt::PlainText);
        makeRoomForTitle();
    }
    PlainBox(Icon icon, const QString& title, const QString& text, QWidget* parent)
        : PlainBox(icon, title, text, Ok, parent)
    { }

private:
    /// A box as narrow as a short text would cut the title.
    void makeRoomForTitle()
    {
        constexpr int pixels = 320;
        if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
            grid->addItem(new QSpacerItem(pixels, 0), grid->rowCount(), 0, 1, grid->columnCount());
        }
    }
};

}  // namespace

DialogPrompts::DialogPrompts(QWidget* parent)
    : m_parent(parent)
{ }

/// A dialog that is open asks and tells in its own name, or the box could stand behind it.
QWidget* DialogPrompts::parent() const
{
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog == nullptr ? m_parent : dialog;
}

bool DialogPrompts::confirm(const QString& title, const QString& question)
{
    PlainBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No,
                 m_parent);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void DialogPrompts::warn(const QString& title, const QString& text, const QString& reason)
{
    PlainBox box(QMessageBox::Warning, title, text, parent());
    box.setInformativeText(reason);
    box.exec();
}

void DialogPrompts::critical(const QString& title, const QString& text)
{
    PlainBox(QMessageBox::Critical, title, text, m_parent).exec();
}

void DialogPrompts::inform(const QString& title, const QString& text)
{
    PlainBox(QMessageBox::Information, title, text, m_parent).exec();
}

bool DialogPrompts::offerToOpen(const QString& title, const QString& text)
{
    PlainBox box(QMessageBox::Information, title, text, QMessageBox::Open | QMessageBox::Ok,
                 m_parent);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    return box.exec() == QMessageBox::Open;
}

QStringList DialogPrompts::chooseFiles(const QString& title, const QString& folder,
                                       const QString& filters, const QString& filter)
{
    QString selected = filter;
    return QFileDialog::getOpenFileNames(m_parent, title, folder, filters, &selected);
}

QString DialogPrompts::chooseFolder(const QString& title, const QString& folder)
{
    return QFileDialog::getExistingDirectory(parent(), title, folder);
}

QColor DialogPrompts::chooseColor(const QString& title, const QColor& color)
{
    return QColorDialog::getColor(color, parent(), title);
}

QStringList DialogPrompts::chooseDatasets(const QString& fileName, const QStringList& names)
{
    ChooseDatasetsDialog dialog(fileName, names, m_parent);
    return dialog.exec() == QDialog::Accepted ? dialog.chosen() : QStringList();
}

QString DialogPrompts::chooseSaveFile(const QString& title, const QString& path,
                                      const QString& filters)
{
    return QFileDialog::getSaveFileName(m_parent, title, path, filters);
}

UserPrompts::Unsaved DialogPrompts::askToSave(const QString& title, const QString& question)
{
    PlainBox box(QMessageBox::Warning, title, question,
                 QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_parent);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return Unsaved::Save;
    case QMessageBox::Discard:
        return Unsaved::Discard;
    default:
        return Unsaved::Cancel;
    }
}

std::optional<QString> DialogPrompts::askText(const QString& title, const QString& label,
                                              const QString& text)
{
    QInputDialog dialog(m_parent);
    dialog.setWindowTitle(title);
    dialog.setLabelText(label);
    dialog.setTextValue(text);
    constexpr int pixels = 400;  // room for the title and for a longer text
    dialog.resize(pixels, dialog.sizeHint().height());
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.textValue()) : std::nullopt;
}

std::optional<QString> DialogPrompts::editDataFilter(const QString& condition)
{
    DataFilterDialog dialog(condition, m_parent);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.condition()) : std::nullopt;
}

QString DialogPrompts::editOptions(const QString& uniqueVarName)
{
    OptionsDialog dialog(uniqueVarName, m_parent);
    return dialog.exec() == QDialog::Accepted ? dialog.uniqueVarName() : uniqueVarName;
}
