#pragma once

#include "app/UserPrompts.h"

class QWidget;

/// Asks and tells with message boxes and file dialogs.
class DialogPrompts : public UserPrompts
{
public:
    /// @param parent  outlives the prompts; the dialogs are modal to it
    explicit DialogPrompts(QWidget* parent);

    [[nodiscard]] bool confirm(const QString& title, const QString& question) override;
    void warn(const QString& title, const QString& text, const QString& reason) override;
    void inform(const QString& title, const QString& text) override;
    [[nodiscard]] QStringList chooseFiles(const QString& title, const QString& folder,
                                          const QString& filters) override;

private:
    QWidget* m_parent;
};
