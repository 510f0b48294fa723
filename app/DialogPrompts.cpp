#include "app/DialogPrompts.h"

#include <QFileDialog>
#include <QMessageBox>

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
    box.exec();
}

QStringList DialogPrompts::chooseFiles(const QString& title, const QString& folder,
                                       const QString& filters)
{
    return QFileDialog::getOpenFileNames(m_parent, title, folder, filters);
}
