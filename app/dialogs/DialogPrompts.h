#pragma once

#include "app/dialogs/UserPrompts.h"

class QWidget;

/// Asks and tells with message boxes and file dialogs.
class DialogPrompts : public UserPrompts
{
public:
    /// @param parent  outlives the prompts; the dialogs are modal to it, to nothing when it is null
    explicit DialogPrompts(QWidget* parent);

    [[nodiscard]] bool confirm(const QString& title, const QString& question) override;
    void warn(const QString& title, const QString& text, const QString& reason) override;
    void critical(const QString& title, const QString& text) override;
    void inform(const QString& title, const QString& text) override;
    [[nodiscard]] bool offerToOpen(const QString& title, const QString& text) override;
    [[nodiscard]] QStringList chooseFiles(const QString& title, const QString& folder,
                                          const QString& filters, const QString& filter) override;
    [[nodiscard]] QString chooseFolder(const QString& title, const QString& folder) override;
    [[nodiscard]] QColor chooseColor(const QString& title, const QColor& color) override;
    [[nodiscard]] QStringList chooseDatasets(const QString& fileName,
                                             const QStringList& names) override;
    [[nodiscard]] QString chooseSaveFile(const QString& title, const QString& path,
                                         const QString& filters) override;
    [[nodiscard]] Unsaved askToSave(const QString& title, const QString& question) override;
    [[nodiscard]] std::optional<QString> editDataFilter(const QString& condition) override;
    [[nodiscard]] std::optional<QString> askText(const QString& title, const QString& label,
                                                 const QString& text) override;
    [[nodiscard]] QString editOptions(const QString& uniqueVarName) override;

private:
    [[nodiscard]] QWidget* parent() const;
    QWidget* m_parent;
};
