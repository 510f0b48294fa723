#pragma once

#include <QLabel>

/// A label that may get less room than its text needs: it shows the beginning, and all of it as a
/// tool tip. A text of any length so leaves the window the size that the user gave it.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString shownText() const;
};
