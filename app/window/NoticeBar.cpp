#include "app/window/NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setTextFormat(Qt::PlainText);  // it may quote a file
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* sign = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    sign->setPixmap(style()
                        ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                        .pixmap(QSize(size, size), devicePixelRatio()));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(sign);
    layout->addWidget(m_text, 1);
    hide();
}

void NoticeBar::setText(const QString& text)
{
    m_text->setText(text);
    setVisible(!text.isEmpty());
}

QString NoticeBar::text() const
{
    return m_text->text();
}

QPushButton* NoticeBar::addButton(const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setFocusPolicy(Qt::TabFocus);  // a click leaves the keys with the grid
    layout()->addWidget(button);
    return button;
}
