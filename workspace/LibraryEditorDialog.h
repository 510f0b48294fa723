#pragma once

#include "workspace/Library.h"
#include "workspace/LibraryPrompts.h"

#include <QDialog>
#include <QStringList>

class QBoxLayout;
class QCheckBox;
class QFormLayout;
class QLineEdit;
class QPushButton;

/// Edits one library, a new one or one that is registered. It does not touch the store.
class LibraryEditorDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param library    with no id and no folder for a new one
    /// @param otherDirs  the folders of all other libraries, which this one cannot have
    LibraryEditorDialog(Library library, QStringList otherDirs, LibraryPrompts prompts,
                        QWidget* parent = nullptr);

    /// The library as it was given, with what has been edited.
    [[nodiscard]] Library library() const;

    void accept() override;

private:
    void createFields(QFormLayout& form);
    [[nodiscard]] QBoxLayout* createDirectoryRow();
    [[nodiscard]] QBoxLayout* createColorRow();
    void browse();
    void chooseColor();
    void setColor(const QString& color);

    Library m_library;
    QStringList m_otherDirs;
    LibraryPrompts m_prompts;
    QLineEdit* m_directory;
    QLineEdit* m_name;
    QLineEdit* m_alias;
    QLineEdit* m_filter;
    QCheckBox* m_watches;
    QCheckBox* m_opens;
    QPushButton* m_color;
    QPushButton* m_noColor;
};
