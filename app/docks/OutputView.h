#pragma once

#include <QWidget>

#include <functional>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class UserPrompts;

/// What the Output dock holds: the listings that were made, one below the other, to be searched,
/// copied and saved.
class OutputView : public QWidget
{
    Q_OBJECT

public:
    /// @param prompts  outlives the view
    explicit OutputView(UserPrompts& prompts, QWidget* parent = nullptr);

    /// Adds a listing below the others and shows its beginning.
    /// @param fileName  what a file of it would be called, with its suffix
    void add(const QString& listing, const QString& fileName);
    [[nodiscard]] QString text() const;

signals:
    /// The user wants back to the grid.
    void signalLeft();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createText();
    void createControls();
    /// What a key does here; nothing where it means nothing special.
    [[nodiscard]] std::function<void()> commandOf(const QKeyEvent& key, bool isInWanted);
    void startFind();
    /// Goes to the next place of what is looked for, and on from the other end.
    void find(bool forwards);
    void copy();
    void save();
    void clear();
    void showWhatIsThere();

    UserPrompts& m_prompts;
    QPlainTextEdit* m_text;
    QLineEdit* m_wanted;
    QLabel* m_found;
    QPushButton* m_copy;
    QPushButton* m_save;
    QPushButton* m_clear;
    QString m_fileName;
};
