#include "app/dialogs/DataFilterDialog.h"

#include "app/boxes/LongLineEdit.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

DataFilterDialog::DataFilterDialog(const QString& condition, QWidget* parent)
    : QDialog(parent)
    , m_condition(new LongLineEdit(this))
{
    constexpr int comfortableWidth = 520;
    setWindowTitle(tr("Data Filter"));
    setModal(true);
    resize(comfortableWidth, sizeHint().height());
    auto* label = new QLabel(tr("Show the rows &where:"), this);
    label->setBuddy(m_condition);
    m_condition->setWholeText(condition);
    m_condition->setClearButtonEnabled(true);
    m_condition->setPlaceholderText(tr("AGE > 60 and SEX = \"F\""));
    m_condition->selectAll();

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Apply"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_condition);
    layout->addWidget(buttons);
}

QString DataFilterDialog::condition() const
{
    return m_condition->text();
}
