#include "workspace/OptionsDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>

OptionsDialog::OptionsDialog(const QString& uniqueVarName, QWidget* parent)
    : QDialog(parent)
    , m_before(uniqueVarName)
    , m_uniqueVarName(new QLineEdit(uniqueVarName, this))
{
    setWindowTitle(tr("Options"));
    m_uniqueVarName->setObjectName(QStringLiteral("uniqueVarName"));
    m_uniqueVarName->setAccessibleName(tr("Unique variable name"));
    m_uniqueVarName->setToolTip(tr("The variable that identifies a subject"));
    m_uniqueVarName->setMinimumWidth(240);
    m_uniqueVarName->selectAll();

    auto* layout = new QFormLayout(this);
    // The form makes the field the buddy of its label.
    layout->addRow(tr("Unique Variable Name:"), m_uniqueVarName);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QString OptionsDialog::uniqueVarName() const
{
    const QString edited = m_uniqueVarName->text().trimmed();
    return edited.isEmpty() ? m_before : edited;
}
