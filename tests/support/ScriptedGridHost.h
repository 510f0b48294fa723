#pragma once

#include "grid/GridHost.h"
#include "grid/LibraryFilter.h"

#include <QStringList>

/// Stands in for the window that owns grids and notes down what they tell.
class ScriptedGridHost final : public GridHost
{
public:
    [[nodiscard]] LibraryFilter& libraryFilter() override { return m_libraryFilter; }
    [[nodiscard]] QString uniqueVarName() const override { return idVariable; }
    void reportCommandError(const QString& message, const QString& command) override
    {
        notes << QStringList({"error", message, command}).join('|');
    }
    void inform(const QString& title, const QString& text) override
    {
        notes << QStringList({"inform", title, text}).join('|');
    }
    void fontSizeChanged(int points) override { notes << "font|" + QString::number(points); }
    void showMessage(const QString& text) override { notes << "message|" + text; }

    /// What was told since the last call.
    [[nodiscard]] QStringList takeNotes() { return std::exchange(notes, {}); }

    QString idVariable = "USUBJID";
    QStringList notes;

private:
    LibraryFilter m_libraryFilter;
};
