#include "workspace/LibraryEditorDialog.h"

#include "workspace/LibraryRegistry.h"

#include <QCheckBox>
#include <QColor>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <utility>

LibraryEditorDialog::LibraryEditorDialog(Library library, QStringList otherDirs,
                                         LibraryPrompts prompts, QWidget* parent)
    : QDialog(parent)
    , m_library(std::move(library))
    , m_otherDirs(std::move(otherDirs))
    , m_prompts(std::move(prompts))
    , m_directory(new QLineEdit(QDir::toNativeSeparators(m_library.dir), this))
    , m_name(new QLineEdit(m_library.name, this))
    , m_alias(new QLineEdit(m_library.alias, this))
    , m_filter(new QLineEdit(m_library.filter, this))
    , m_watches(new QCheckBox(tr("&Watch the folder for changes"), this))
    , m_opens(new QCheckBox(tr("&Show its files when the program starts"), this))
    , m_color(new QPushButton(tr("Choose color"), this))
    , m_noColor(new QPushButton(tr("No color"), this))
{
    setWindowTitle(m_library.dir.isEmpty() ? tr("Add Library") : tr("Edit Library"));
    auto* form = new QFormLayout(this);
    createFields(*form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void LibraryEditorDialog::createFields(QFormLayout& form)
{
    constexpr int pixels = 360;
    m_directory->setMinimumWidth(pixels);
    m_directory->setObjectName(QStringLiteral("directory"));
    m_name->setObjectName(QStringLiteral("displayName"));
    m_alias->setObjectName(QStringLiteral("alias"));
    m_filter->setObjectName(QStringLiteral("filter"));
    m_watches->setObjectName(QStringLiteral("watches"));
    m_opens->setObjectName(QStringLiteral("opens"));
    m_watches->setChecked(m_library.watchesChanges);
    m_opens->setChecked(m_library.opensItself);
    m_alias->setPlaceholderText(tr("the name that SAS programs use, such as ADAM"));
    m_filter->setPlaceholderText(tr("a condition, such as SAFFL = \"Y\""));
    m_filter->setToolTip(
        tr("Becomes the library filter when a dataset is opened from here and none is in force"));
    form.addRow(tr("Directory"), createDirectoryRow());
    form.addRow(tr("Display Name"), m_name);
    form.addRow(tr("Color"), createColorRow());
    form.addRow(tr("SAS Library"), m_alias);
    form.addRow(tr("Library Filter"), m_filter);
    form.addRow(QString(), m_watches);
    form.addRow(QString(), m_opens);
    m_directory->setAccessibleName(tr("Directory"));
    m_color->setAccessibleName(tr("Color"));
}

QBoxLayout* LibraryEditorDialog::createDirectoryRow()
{
    auto* row = new QHBoxLayout;
    auto* browse = new QPushButton(tr("Browse..."), this);
    browse->setObjectName(QStringLiteral("browse"));
    row->addWidget(m_directory);
    row->addWidget(browse);
    connect(browse, &QPushButton::clicked, this, &LibraryEditorDialog::browse);
    return row;
}

QBoxLayout* LibraryEditorDialog::createColorRow()
{
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {m_color, m_noColor}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    row->addStretch();
    m_color->setObjectName(QStringLiteral("chooseColor"));
    m_noColor->setObjectName(QStringLiteral("noColor"));
    connect(m_color, &QPushButton::clicked, this, &LibraryEditorDialog::chooseColor);
    connect(m_noColor, &QPushButton::clicked, this, [this] { setColor(QString()); });
    setColor(m_library.color);
    return row;
}

void LibraryEditorDialog::browse()
{
    const QString chosen = m_prompts.chooseFolder(tr("Select Directory"),
                                                  QDir::fromNativeSeparators(m_directory->text()));
    if (!chosen.isEmpty()) {
        m_directory->setText(QDir::toNativeSeparators(chosen));
    }
}

void LibraryEditorDialog::chooseColor()
{
    const QColor chosen = m_prompts.chooseColor(tr("Select Color"), QColor(m_library.color));
    if (chosen.isValid()) {
        setColor(chosen.name());
    }
}

void LibraryEditorDialog::setColor(const QString& color)
{
    m_library.color = color;
    const QColor shown(color);
    m_noColor->setEnabled(!color.isEmpty());
    m_color->setStyleSheet(shown.isValid() ? QStringLiteral("background-color: %1;").arg(color)
                                           : QString());
    if (shown.isValid()) {
        constexpr int readable = 140;  // of 255; a lighter ground takes dark letters
        QPalette colors = m_color->palette();
        colors.setColor(QPalette::ButtonText,
                        qGray(shown.rgb()) > readable ? Qt::black : Qt::white);
        m_color->setPalette(colors);
    } else {
        m_color->setPalette(QPalette());
    }
}

Library LibraryEditorDialog::library() const
{
    Library edited = m_library;
    const QString dir = QDir::fromNativeSeparators(m_directory->text().trimmed());
    edited.dir = dir.isEmpty() ? dir : LibraryRegistry::normalized(dir);
    edited.name = m_name->text().trimmed();
    edited.alias = m_alias->text().trimmed();
    edited.filter = m_filter->text().trimmed();
    edited.watchesChanges = m_watches->isChecked();
    edited.opensItself = m_opens->isChecked();
    if (edited.name.isEmpty()) {
        edited.name = edited.shownName();
    }
    return edited;
}

void LibraryEditorDialog::accept()
{
    const QString dir = library().dir;
    if (dir.isEmpty()) {
        m_prompts.warn(tr("Invalid Input"), tr("Directory is required."));
    } else if (std::any_of(m_otherDirs.begin(), m_otherDirs.end(), [&](const QString& other) {
                   return LibraryRegistry::normalized(other) == dir;
               })) {
        m_prompts.warn(tr("Duplicate"), tr("A library for this directory already exists."));
    } else {
        QDialog::accept();
        return;
    }
    m_directory->setFocus();
}
