#include "app/DialogPrompts.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QMessageBox>

namespace {

/// Makes room for the title, which a box as narrow as a short text would cut.
void widen(const QMessageBox& box)
{
    constexpr int pixels = 320;
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->addItem(new QSpacerItem(pixels, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

}  // namespace

DialogPrompts::DialogPrompts(QWidget* parent)
    : m_parent(parent)
{ }

bool DialogPrompts::confirm(const QString& title, const QString& question)
{
    return QMessageBox::question(m_parent, title, question, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No)
        == QMessageBox::Yes;
}

void DialogPrompts::warn(const QString& title, const QString& text, const QString& reason)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, m_parent);
    // Paths and reasons come from outside and may contain what looks like markup.
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(reason);
    widen(box);
    box.exec();
}

void DialogPrompts::inform(const QString& title, const QString& text)
{
    QMessageBox::information(m_parent, title, text, QMessageBox::Ok);
}

QStringList DialogPrompts::chooseFiles(const QString& title, const QString& folder,
                                       const QString& filters)
{
    return QFileDialog::getOpenFileNames(m_parent, title, folder, filters);
}
