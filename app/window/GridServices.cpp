#include "app/window/GridServices.h"

#include "app/dialogs/UserPrompts.h"
#include "grid/filter/ParseError.h"
#include "grid/MainTableView.h"

#include <spdlog/spdlog.h>

#include <QStatusBar>

#include <new>

GridServices::GridServices(UserPrompts& prompts, QStatusBar& statusBar)
    : m_prompts(prompts)
    , m_statusBar(statusBar)
{ }

void GridServices::reportCommandError(const QString& message, const QString& command)
{
    m_prompts.warn(tr("Command"), message, command);
}

void GridServices::inform(const QString& title, const QString& text)
{
    m_prompts.inform(title, text);
}

void GridServices::fontSizeChanged(int points)
{
    emit signalFontSizeChanged(points);
}

void GridServices::showMessage(const QString& text)
{
    constexpr int milliseconds = 4000;
    spdlog::info("{}", text.toStdString());
    m_statusBar.showMessage(text, milliseconds);
}

bool GridServices::runCommand(MainTableView& grid, const QString& command)
{
    return attempt(command, [&] { grid.cmdRunCommand(command); });
}

bool GridServices::runStatement(MainTableView& grid, const QString& statement)
{
    return attempt(statement, [&] { grid.runStatement(statement); });
}

bool GridServices::replaceDatasetFilter(MainTableView& grid, const QString& condition)
{
    return attempt(QStringLiteral("if ") + condition,
                   [&] { grid.replaceDatasetFilter(condition); });
}

bool GridServices::runLibraryCommand(const QString& text)
{
    const QStringList words = text.simplified().toLower().split(u' ');
    if (words.front() == u"clf"
        || (words.size() == 3 && words[0] == u"clear" && words[1] == u"library")) {
        m_libraryFilter.clear();
        return true;
    }
    if (!m_libraryFilter.text().isEmpty()) {
        reportCommandError(QStringLiteral("Library Filter supports one level only. "
                                          "Please clear library filter first."),
                           text);
        return false;
    }
    const Result<bool> restored = m_libraryFilter.restore(text);
    if (!restored) {
        reportCommandError(QString::fromStdString(restored.error()), text);
    }
    return restored.ok();
}

template <typename Command>
bool GridServices::attempt(const QString& text, Command command)
{
    try {
        command();
        return true;
    } catch (const ParseError& error) {
        reportCommandError(QString::fromUtf8(error.what()), text);
    } catch (const std::bad_alloc&) {
        reportCommandError(tr("There is not enough memory."), text);
    }
    return false;
}
