#include "app/dialogs/ChooseDatasetsDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ChooseDatasetsDialog::ChooseDatasetsDialog(const QString& fileName, const QStringList& names,
                                           QWidget* parent)
    : QDialog(parent)
    , m_list(new QListWidget(this))
{
    setWindowTitle(tr("Open Datasets"));
    setModal(true);
    constexpr QSize comfortable(380, 420);
    resize(comfortable);
    auto* label = new QLabel(tr("%1 holds several &datasets. Which are to be opened?")
                                 .arg(QString(fileName).replace(u'&', QStringLiteral("&&"))),
                             this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setBuddy(m_list);
    m_list->addItems(names);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setCurrentRow(0);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* open = buttons->addButton(tr("Open"), QDialogButtonBox::AcceptRole);
    QPushButton* all = buttons->addButton(tr("Select All"), QDialogButtonBox::ActionRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(all, &QPushButton::clicked, m_list, &QListWidget::selectAll);
    connect(m_list, &QListWidget::itemSelectionChanged, open,
            [this, open] { open->setEnabled(!chosen().isEmpty()); });
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    m_list->setFocus();
}

QStringList ChooseDatasetsDialog::chosen() const
{
    QStringList names;
    for (int row = 0; row < m_list->count(); ++row) {
        const QListWidgetItem* item = m_list->item(row);
        if (item->isSelected()) {
            names << item->text();
        }
    }
    return names;
}
