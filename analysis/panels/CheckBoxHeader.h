#pragma once

#include <QHeaderView>

class QCheckBox;

/// A horizontal header with a check box over its first column, for all rows at once.
class CheckBoxHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit CheckBoxHeader(QWidget* parent = nullptr);

    [[nodiscard]] Qt::CheckState checkState() const;
    void setCheckState(Qt::CheckState state);

signals:
    void signalCheckStateChanged(Qt::CheckState state);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    [[nodiscard]] QSize sectionSizeFromContents(int logicalIndex) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] bool takesPress(QMouseEvent& event);

    QCheckBox* m_box;
};
