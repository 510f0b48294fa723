#include "app/compare/NamePicker.h"

#include "grid/filter/VariableNames.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

NamePicker::NamePicker(const QString& title, const QString& placeholder, QWidget* parent)
    : QWidget(parent)
    , m_text(new QLineEdit(this))
    , m_search(new QLineEdit(this))
    , m_list(new QListWidget(this))
{
    createParts(title, placeholder);
}

void NamePicker::createParts(const QString& title, const QString& placeholder)
{
    m_text->setPlaceholderText(placeholder);
    m_text->setAccessibleName(title);
    m_text->setClearButtonEnabled(true);
    m_search->setPlaceholderText(tr("Search variables"));
    m_search->setAccessibleName(tr("Search variables"));
    m_search->setClearButtonEnabled(true);
    m_list->setAccessibleName(title);
    m_list->setUniformItemSizes(true);
    connect(m_text, &QLineEdit::textChanged, this, [this] {
        showTicks();
        emit signalChanged();
    });
    connect(m_search, &QLineEdit::textChanged, this, &NamePicker::search);
    connect(m_list, &QListWidget::itemChanged, this,
            [this](const QListWidgetItem* item) { toggle(*item); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_search);
    layout->addWidget(m_list);
}

void NamePicker::setNames(const QStringList& names, const QStringList& tips)
{
    {
        const QSignalBlocker quiet(m_list);
        m_list->clear();
        for (qsizetype i = 0; i < names.size(); ++i) {
            auto* item = new QListWidgetItem(names[i], m_list);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
            item->setCheckState(Qt::Unchecked);
            item->setToolTip(tips.value(i));
        }
    }
    showTicks();
    search(m_search->text());
}

QString NamePicker::text() const
{
    return m_text->text();
}

void NamePicker::setText(const QString& text)
{
    m_text->setText(text);
}

QStringList NamePicker::typed() const
{
    QStringList names;
    for (const WrittenName& name : variablenames::split(m_text->text())) {
        names << name.name;
    }
    return names;
}

void NamePicker::showTicks()
{
    const QSignalBlocker quiet(m_list);
    QStringList names;
    for (const QString& name : typed()) {
        names << name.section(u'=', 0, 0).toCaseFolded();
    }
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem& item = *m_list->item(row);
        item.setCheckState(names.contains(item.text().toCaseFolded()) ? Qt::Checked
                                                                      : Qt::Unchecked);
    }
}

void NamePicker::toggle(const QListWidgetItem& item)
{
    QStringList names;
    bool isThere = false;
    for (const QString& name : typed()) {
        const bool isItem = name.section(u'=', 0, 0).compare(item.text(), Qt::CaseInsensitive) == 0;
        isThere = isThere || isItem;
        if (!isItem || item.checkState() == Qt::Checked) {
            names << (name.contains(u'=') ? name : variablenames::written(name));
        }
    }
    if (!isThere && item.checkState() == Qt::Checked) {
        names << variablenames::written(item.text());
    }
    m_text->setText(names.join(u' '));
}

void NamePicker::search(const QString& text)
{
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem& item = *m_list->item(row);
        item.setHidden(!item.text().contains(text, Qt::CaseInsensitive)
                       && !item.toolTip().contains(text, Qt::CaseInsensitive));
    }
}
