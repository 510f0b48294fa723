#pragma once

#include "app/dialogs/UserPrompts.h"

#include <QStringList>

#include <functional>

/// Answers in the user's place and notes down what was asked and told. The notes live outside, as
/// the prompts themselves belong to the window under test.
class ScriptedPrompts : public UserPrompts
{
public:
    struct Script
    {
        bool confirmation = false;
        bool opening = false;
        std::function<void()> whileAsked{};  ///< what happens while a question is open
        QStringList chosenFiles{};
        QString chosenFolder{};
        QColor chosenColor{};
        QStringList chosenDatasets{};
        std::optional<QString> dataFilter{};  ///< once; then the user cancels
        QString savePath{};
        std::optional<QString> text{};  ///< the user cancels without
        Unsaved unsaved = Unsaved::Cancel;
        QString uniqueVarName{};  ///< kept as it is when empty
        QStringList notes{};  ///< one line "kind|title|text|..." for each prompt, in order
    };

    explicit ScriptedPrompts(Script& script)
        : m_script(script)
    { }

    [[nodiscard]] bool confirm(const QString& title, const QString& question) override
    {
        m_script.notes << QStringList({"confirm", title, question}).join('|');
        if (m_script.whileAsked) {
            m_script.whileAsked();
        }
        return m_script.confirmation;
    }
    void warn(const QString& title, const QString& text, const QString& reason) override
    {
        m_script.notes << QStringList({"warn", title, text, reason}).join('|');
    }
    void critical(const QString& title, const QString& text) override
    {
        m_script.notes << QStringList({"critical", title, text}).join('|');
    }
    void inform(const QString& title, const QString& text) override
    {
        m_script.notes << QStringList({"inform", title, text}).join('|');
    }
    [[nodiscard]] bool offerToOpen(const QString& title, const QString& text) override
    {
        m_script.notes << QStringList({"offer", title, text}).join('|');
        return m_script.opening;
    }
    [[nodiscard]] QStringList chooseFiles(const QString& title, const QString& folder,
                                          const QString& filters, const QString& filter) override
    {
        m_script.notes << QStringList({"files", title, folder, filters, filter}).join('|');
        return m_script.chosenFiles;
    }
    [[nodiscard]] QString chooseFolder(const QString& title, const QString& start) override
    {
        m_script.notes << QStringList({"folder", title, start}).join('|');
        return m_script.chosenFolder;
    }
    [[nodiscard]] QColor chooseColor(const QString& title, const QColor& color) override
    {
        m_script.notes << QStringList({"color", title, color.name()}).join('|');
        return m_script.chosenColor;
    }
    [[nodiscard]] QStringList chooseDatasets(const QString& fileName,
                                             const QStringList& names) override
    {
        m_script.notes << QStringList({"datasets", fileName, names.join(' ')}).join('|');
        return m_script.chosenDatasets;
    }
    [[nodiscard]] QString chooseSaveFile(const QString& title, const QString& path,
                                         const QString& filters) override
    {
        m_script.notes << QStringList({"save", title, path, filters}).join('|');
        return m_script.savePath;
    }
    [[nodiscard]] Unsaved askToSave(const QString& title, const QString& question) override
    {
        m_script.notes << QStringList({"unsaved", title, question}).join('|');
        return m_script.unsaved;
    }
    [[nodiscard]] std::optional<QString> askText(const QString& title, const QString& label,
                                                 const QString& text) override
    {
        m_script.notes << QStringList({"text", title, label, text}).join('|');
        return m_script.text;
    }
    [[nodiscard]] std::optional<QString> editDataFilter(const QString& condition) override
    {
        m_script.notes << QStringList({"data filter", condition}).join('|');
        return std::exchange(m_script.dataFilter, std::nullopt);
    }
    [[nodiscard]] QString editOptions(const QString& uniqueVarName) override
    {
        m_script.notes << QStringList({"options", uniqueVarName}).join('|');
        return m_script.uniqueVarName.isEmpty() ? uniqueVarName : m_script.uniqueVarName;
    }

private:
    Script& m_script;
};
