#include "app/window/GridServices.h"

#include "app/dialogs/UserPrompts.h"
#include "grid/MainTableView.h"
#include "grid/WaitCursor.h"

#include <spdlog/spdlog.h>

#include <QStatusBar>

GridServices::GridServices(UserPrompts& prompts, QStatusBar& statusBar)
    : m_prompts(prompts)
    , m_statusBar(statusBar)
{ }

void GridServices::serve(MainTableView& grid)
{
    connect(&grid, &MainTableView::signalCommandFailed, this, &GridServices::report);
    connect(&grid, &MainTableView::signalInform, this,
            [this](const QString& title, const QString& text) { m_prompts.inform(title, text); });
    connect(&grid, &MainTableView::signalMessage, this, &GridServices::showMessage);
    connect(&grid, &MainTableView::signalFontSizeChanged, this,
            &GridServices::signalFontSizeChanged);
}

bool GridServices::run(OpenDataset* opened, const QString& command)
{
    const auto outcome = [&] {
        const WaitCursor waitCursor;
        return opened == nullptr ? m_datasets.libraryFilter.run(command)
                                 : opened->run(command, Dialect::Command);
    }();
    return report(outcome);
}

bool GridServices::report(const CommandOutcome& outcome)
{
    if (outcome) {
        m_prompts.warn(tr("Command"), outcome->message, outcome->command);
    }
    return !outcome.has_value();
}

void GridServices::showMessage(const QString& text)
{
    constexpr int milliseconds = 4000;
    spdlog::info("{}", text.toStdString());
    m_statusBar.showMessage(text, milliseconds);
}
