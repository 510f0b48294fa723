#include "app/window/GridServices.h"

#include "app/dialogs/UserPrompts.h"
#include "grid/MainTableView.h"
#include "grid/opened/EngineMessages.h"

#include <spdlog/spdlog.h>

#include <QStatusBar>

namespace {

/// A text of any length in a few lines.
QString shortened(const QString& text)
{
    constexpr qsizetype longest = 300;
    return text.size() <= longest ? text : text.first(longest - 1) + QChar(0x2026);
}

}  // namespace

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

bool GridServices::report(const CommandOutcome& outcome)
{
    if (outcome) {
        m_prompts.warn(tr("Command"), shortened(enginemessages::translated(outcome->message)),
                       shortened(outcome->command));
    }
    return !outcome.has_value();
}

void GridServices::showMessage(const QString& text)
{
    constexpr int milliseconds = 4000;
    spdlog::info("{}", text.toStdString());
    m_statusBar.showMessage(text, milliseconds);
}
