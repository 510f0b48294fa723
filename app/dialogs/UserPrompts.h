#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <optional>

/// Everything that asks the user something or tells them something. Tests answer in their place.
class UserPrompts
{
public:
    /// What becomes of something that is not saved.
    enum class Unsaved
    {
        Save,
        Discard,
        Cancel,  ///< it stays
    };

    virtual ~UserPrompts() = default;

    /// Asks a question whose answers are Yes and No, No being what Return and Escape give.
    [[nodiscard]] virtual bool confirm(const QString& title, const QString& question) = 0;
    /// Tells that something failed.
    /// @param reason  why, in a sentence; may be empty
    virtual void warn(const QString& title, const QString& text, const QString& reason) = 0;
    /// Tells that the program cannot go on.
    virtual void critical(const QString& title, const QString& text) = 0;
    /// Tells something that is no failure.
    virtual void inform(const QString& title, const QString& text) = 0;
    /// Tells something that is no failure and offers to open what it speaks of, the answers being
    /// Open and OK, and OK what Return and Escape give.
    /// @return  whether the user wants it opened
    [[nodiscard]] virtual bool offerToOpen(const QString& title, const QString& text) = 0;
    /// Lets the user choose existing files.
    /// @param filters  patterns as Qt's file dialogs take them, separated by ";;"
    /// @param filter   the one of them to begin with
    /// @return         the paths; none when the user cancels
    [[nodiscard]] virtual QStringList chooseFiles(const QString& title, const QString& folder,
                                                  const QString& filters,
                                                  const QString& filter) = 0;
    /// Lets the user choose an existing folder.
    /// @param folder  the one to begin with
    /// @return        its path; empty when the user cancels
    [[nodiscard]] virtual QString chooseFolder(const QString& title, const QString& folder) = 0;
    /// Lets the user choose a colour.
    /// @param color  the one to begin with
    /// @return       an invalid one when the user cancels
    [[nodiscard]] virtual QColor chooseColor(const QString& title, const QColor& color) = 0;
    /// Lets the user choose among the datasets of a file.
    /// @return  some of the names; none when the user cancels
    [[nodiscard]] virtual QStringList chooseDatasets(const QString& fileName,
                                                     const QStringList& names) = 0;
    /// Lets the user name a file to write.
    /// @param path  what is offered
    /// @return      the path; empty when the user cancels
    [[nodiscard]] virtual QString chooseSaveFile(const QString& title, const QString& path,
                                                 const QString& filters) = 0;
    /// Asks about something that is not saved, Save being what Return gives, and Cancel Escape.
    [[nodiscard]] virtual Unsaved askToSave(const QString& title, const QString& question) = 0;
    /// Lets the user write a line of text.
    /// @param text  what is offered
    /// @return      nothing when the user cancels
    [[nodiscard]] virtual std::optional<QString> askText(const QString& title, const QString& label,
                                                         const QString& text) = 0;
    /// Lets the user edit the condition of a dataset filter.
    /// @return  nothing when the user cancels
    [[nodiscard]] virtual std::optional<QString> editDataFilter(const QString& condition) = 0;
    /// Lets the user edit the options, which are the name of the variable that identifies a
    /// subject.
    /// @return  the name as it is to be; the same one when the user cancels
    [[nodiscard]] virtual QString editOptions(const QString& uniqueVarName) = 0;
};
