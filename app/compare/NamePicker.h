#pragma once

#include <QStringList>
#include <QWidget>

class QLineEdit;
class QListWidget;
class QListWidgetItem;

/// Chooses some of many names, in the order in which they were chosen: typed as a list parted by
/// blanks, or ticked in a list that can be searched.
class NamePicker : public QWidget
{
    Q_OBJECT

public:
    /// @param title  what is chosen, for those who cannot see it
    NamePicker(const QString& title, const QString& placeholder, QWidget* parent = nullptr);

    /// What there is to choose from.
    /// @param tips  one for each name
    void setNames(const QStringList& names, const QStringList& tips);
    /// What is chosen, as it is typed.
    [[nodiscard]] QString text() const;
    void setText(const QString& text);

signals:
    void signalChanged();

private:
    void createParts(const QString& title, const QString& placeholder);
    [[nodiscard]] QStringList typed() const;
    /// Ticks in the list what is typed.
    void showTicks();
    void toggle(const QListWidgetItem& item);
    void search(const QString& text);

    QLineEdit* m_text;
    QLineEdit* m_search;
    QListWidget* m_list;
};
