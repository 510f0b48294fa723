#pragma once

#include <QComboBox>

class LongLineEdit;

/// A box that shows a text in force and takes lines that change it; its list holds those that were
/// submitted, the last one first.
///
/// A text that differs from the one in force is marked, and goes when the box is left.
class HistoryComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// @param title  what the box is for; shown while it is empty
    explicit HistoryComboBox(const QString& title, QWidget* parent = nullptr);

    /// Shows what is in force, in the place of what was typed.
    void showInForce(const QString& text);
    [[nodiscard]] const QString& inForce() const { return m_inForce; }
    /// Puts a line at the top of the list.
    void remember(const QString& line);
    /// Whether a line stands in the list.
    [[nodiscard]] bool remembers(const QString& line) const;

signals:
    /// @param isEdited  whether the line was made from the text in force, and not typed or taken
    ///                  from the list in its place
    void signalSubmitted(QString line, bool isEdited);
    /// What is in force is to go.
    void signalCleared();
    /// The user wants back to where they came from.
    void signalLeft();
    /// The box has lost the focus and shows what is in force.
    void signalRestored();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void connectLine();
    void onTextChanged(const QString& text);

    LongLineEdit* m_line;
    QString m_inForce;
    bool m_isTyped = false;  ///< the change being told is the user's
    bool m_wasAllSelected = false;  ///< before that change
    bool m_isReplaced = false;  ///< nothing of the text in force is left
};
