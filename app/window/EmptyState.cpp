#include "app/window/EmptyState.h"

#include "app/look/Icons.h"

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QToolButton>

namespace {

constexpr int columnWidth = 460;

QLabel* createText(const QString& text, double size, bool bold)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(bold);
    label->setFont(font);
    label->setAlignment(Qt::AlignHCenter);
    label->setWordWrap(true);
    return label;
}

QToolButton* createButton(const QString& name)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMinimumHeight(button->fontMetrics().height() + 14);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return button;
}

/// The action's text as a button says it, with the keys that do the same.
QString buttonText(const QAction& action)
{
    const QString keys = action.shortcut().toString(QKeySequence::NativeText);
    const QString text = action.iconText().section(u'\t', 0, 0);
    return keys.isEmpty() ? text : EmptyState::tr("%1 (%2)").arg(text, keys);
}

void deleteWidgets(QLayout* layout)
{
    while (const QLayoutItem* item = layout->takeAt(0)) {
        // The click on one of them may be what asks for others.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
}

}  // namespace

EmptyState::EmptyState(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("emptyState"));
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setSpacing(12);
    column->addStretch();
    createTitle(column);
    m_buttons = new QGridLayout;
    m_buttons->setSpacing(6);
    column->addLayout(m_buttons);
    column->addWidget(createText(tr("… or drop files here"), 1.0, false));
    createRecent(column);
    column->addStretch();
    content->setFixedWidth(columnWidth);

    // A window may be too low for it.
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setAlignment(Qt::AlignHCenter);
    area->setWidget(content);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);

    parent->installEventFilter(this);
    setGeometry(parent->rect());
}

void EmptyState::createTitle(QVBoxLayout* column)
{
    auto* picture = new QLabel;
    picture->setPixmap(icons::application().pixmap(QSize(64, 64), devicePixelRatio()));
    picture->setAlignment(Qt::AlignHCenter);
    column->addWidget(picture);
    column->addWidget(createText(tr("Quorlane"), 1.8, true));
    column->addWidget(createText(tr("No dataset is open. Choose what to open:"), 1.0, false));
}

void EmptyState::createRecent(QVBoxLayout* column)
{
    m_recent = new QWidget;
    m_recent->setObjectName(QStringLiteral("recentFiles"));
    m_recent->hide();
    auto* layout = new QVBoxLayout(m_recent);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->addWidget(createText(tr("Opened recently"), 1.0, true));
    m_recentFiles = new QVBoxLayout;
    m_recentFiles->setSpacing(0);
    layout->addLayout(m_recentFiles);
    column->addWidget(m_recent);
}

void EmptyState::setActions(const QList<QAction*>& actions)
{
    deleteWidgets(m_buttons);
    for (QAction* action : actions) {
        QToolButton* button = createButton(QStringLiteral("buttonAction"));
        button->setDefaultAction(action);
        button->setText(buttonText(*action));
        const int number = m_buttons->count();
        m_buttons->addWidget(button, number / 2, number % 2);
    }
    orderTabs();
}

void EmptyState::setRecentFiles(const QStringList& paths)
{
    deleteWidgets(m_recentFiles);
    for (const QString& path : paths) {
        addRecentFile(path);
    }
    m_recent->setVisible(!paths.isEmpty());
    orderTabs();
}

/// The keyboard goes through the buttons as they are read, whichever were made first.
void EmptyState::orderTabs() const
{
    QWidget* previous = nullptr;
    for (const QLayout* layout :
         {static_cast<QLayout*>(m_buttons), static_cast<QLayout*>(m_recentFiles)}) {
        for (int position = 0; position < layout->count(); ++position) {
            QWidget* button = layout->itemAt(position)->widget();
            if (previous != nullptr) {
                setTabOrder(previous, button);
            }
            previous = button;
        }
    }
}

void EmptyState::addRecentFile(const QString& path)
{
    QToolButton* button = createButton(QStringLiteral("buttonRecentFile"));
    button->setAutoRaise(true);
    button->setIcon(icons::forDataset(path));
    const QFileInfo file(path);
    const QString text =
        tr("%1 (in %2)").arg(file.fileName(), QDir::toNativeSeparators(file.path()));
    const QString shown = button->fontMetrics().elidedText(text, Qt::ElideMiddle, columnWidth - 60);
    button->setText(QString(shown).replace(u'&', QStringLiteral("&&")));
    button->setToolTip(QDir::toNativeSeparators(path));
    button->setAccessibleName(text);
    connect(button, &QToolButton::clicked, this, [this, path] { emit signalOpenRequested(path); });
    m_recentFiles->addWidget(button);
}

bool EmptyState::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
    }
    return QWidget::eventFilter(watched, event);
}
