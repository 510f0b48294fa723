#include "analysis/panels/CheckBoxHeader.h"

#include <QCheckBox>
#include <QMouseEvent>

// The box lies on the viewport, which moves it along when the table is scrolled.
CheckBoxHeader::CheckBoxHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
    , m_box(new QCheckBox(viewport()))
{
    m_box->setGeometry(5, 5, 20, 20);
    m_box->setTristate(true);
    m_box->setCheckState(Qt::Checked);
    m_box->setAccessibleName(tr("Show all variables"));
    // The header takes the presses, so that a press beside the box sorts.
    m_box->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(m_box, &QCheckBox::stateChanged, this, [this](int state) {
        emit signalCheckStateChanged(static_cast<Qt::CheckState>(state));
    });
}

Qt::CheckState CheckBoxHeader::checkState() const
{
    return m_box->checkState();
}

void CheckBoxHeader::setCheckState(Qt::CheckState state)
{
    m_box->setCheckState(state);
}

void CheckBoxHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    QHeaderView::paintSection(painter, rect, logicalIndex);
    if (logicalIndex == 0) {
        m_box->move(rect.left() + 6, rect.top() + (rect.bottom() - rect.top() - 19) / 2);
    }
}

QSize CheckBoxHeader::sectionSizeFromContents(int logicalIndex) const
{
    const QSize size = QHeaderView::sectionSizeFromContents(logicalIndex);
    return logicalIndex == 0 ? QSize(32, std::max(size.height(), 22)) : size;
}

/// Whether the press was in the box, which then takes its next state.
bool CheckBoxHeader::takesPress(QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton
        || !m_box->geometry().contains(event.position().toPoint())) {
        return false;
    }
    constexpr int states = 3;
    m_box->setCheckState(static_cast<Qt::CheckState>((m_box->checkState() + 1) % states));
    event.accept();
    return true;
}

void CheckBoxHeader::mousePressEvent(QMouseEvent* event)
{
    if (!takesPress(*event)) {
        QHeaderView::mousePressEvent(event);
    }
}

/// Two presses in quick succession are two.
void CheckBoxHeader::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!takesPress(*event)) {
        QHeaderView::mouseDoubleClickEvent(event);
    }
}
