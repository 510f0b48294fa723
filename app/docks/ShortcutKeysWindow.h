#pragma once

#include <QTreeWidget>

/// The reference of the keyboard shortcuts, one heading for each window in which they act.
class ShortcutKeysWindow : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ShortcutKeysWindow(QWidget* parent = nullptr);

private:
    void setUp();
    void fill();
    [[nodiscard]] QTreeWidgetItem* addHeading(const QString& text);
};
