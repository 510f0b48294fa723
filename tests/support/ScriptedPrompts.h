#pragma once

#include "app/UserPrompts.h"

#include <QStringList>

/// Answers in the user's place and notes down what was asked and told. The notes live outside, as
/// the prompts themselves belong to the window under test.
class ScriptedPrompts : public UserPrompts
{
public:
    struct Script
    {
        bool confirmation = false;
        QStringList chosenFiles{};
        QStringList notes{};  ///< one line "kind|title|text|..." for each prompt, in order
    };

    explicit ScriptedPrompts(Script& script)
        : m_script(script)
    { }

    [[nodiscard]] bool confirm(const QString& title, const QString& question) override
    {
        m_script.notes << QStringList({"confirm", title, question}).join('|');
        return m_script.confirmation;
    }
    void warn(const QString& title, const QString& text, const QString& reason) override
    {
        m_script.notes << QStringList({"warn", title, text, reason}).join('|');
    }
    void inform(const QString& title, const QString& text) override
    {
        m_script.notes << QStringList({"inform", title, text}).join('|');
    }
    [[nodiscard]] QStringList chooseFiles(const QString& title, const QString& folder,
                                          const QString& filters) override
    {
        m_script.notes << QStringList({"files", title, folder, filters}).join('|');
        return m_script.chosenFiles;
    }

private:
    Script& m_script;
};
