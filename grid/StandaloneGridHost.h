#pragma once

#include "grid/GridHost.h"
#include "grid/LibraryFilter.h"

/// The host of a grid that nobody owns a window for: its library filter is the grid's alone, and
/// what it would tell goes to the log.
class StandaloneGridHost final : public GridHost
{
public:
    [[nodiscard]] LibraryFilter& libraryFilter() override { return m_libraryFilter; }
    [[nodiscard]] QString uniqueVarName() const override;
    void reportCommandError(const QString& message, const QString& command) override;
    void inform(const QString& title, const QString& text) override;
    void fontSizeChanged(int /*points*/) override { }
    void showMessage(const QString& text) override;

private:
    LibraryFilter m_libraryFilter;
};
