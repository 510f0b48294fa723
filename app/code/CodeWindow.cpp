#include "app/code/CodeWindow.h"

#include "app/code/ProgramRunner.h"
#include "app/code/ProgramWindow.h"
#include "app/dialogs/FileSaving.h"
#include "app/dialogs/UserPrompts.h"
#include "app/start/Settings.h"
#include "app/window/DatasetWindow.h"
#include "app/window/GridServices.h"
#include "app/window/PlainTitle.h"
#include "grid/MainTableView.h"
#include "grid/WaitCursor.h"
#include "workspace/program/ProgramText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTabBar>

#include <algorithm>

namespace {

constexpr const char* pathProperty = "programPath";
constexpr const char* nameProperty = "programName";

QString filePatterns()
{
    return CodeWindow::tr("SAS Programs (*.sas);; All Files (*)");
}

}  // namespace

CodeWindow::CodeWindow(GridServices& services, UserPrompts& prompts, Settings& settings,
                       QWidget* parent)
    : QTabWidget(parent)
    , m_services(services)
    , m_prompts(prompts)
    , m_settings(settings)
    , m_generated(new ProgramWindow(this))
{
    setDocumentMode(true);
    setTabsClosable(true);
    addTab(m_generated, tr("Program"));
    for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide}) {
        tabBar()->setTabButton(0, side, nullptr);  // this one stays
    }
    connect(m_generated, &ProgramEditor::signalLeft, this, &CodeWindow::signalLeft);
    connect(this, &QTabWidget::tabCloseRequested, this, &CodeWindow::close);
}

// The program of the grid

void CodeWindow::follow(MainTableView* grid)
{
    if (m_grid != nullptr) {
        disconnect(m_grid->opened(), nullptr, this, nullptr);
    }
    const auto* window =
        grid == nullptr ? nullptr : qobject_cast<DatasetWindow*>(grid->parentWidget());
    m_grid = window == nullptr ? nullptr : grid;
    if (window != nullptr) {
        m_filePath = window->property("filePath").toString();
        m_datasetName = window->datasetName();
        m_isJoined = window->join() != nullptr;
        const OpenDataset* opened = grid->opened();
        connect(opened, &OpenDataset::signalFiltersChanged, this, &CodeWindow::generate);
        connect(opened, &OpenDataset::signalVariablesChanged, this, &CodeWindow::generate);
        connect(opened, &OpenDataset::signalByListChanged, this, &CodeWindow::generate);
    }
    generate();
}

void CodeWindow::generate()
{
    if (m_grid == nullptr) {
        m_generated->showProgram(QString());
        return;
    }
    if (m_isJoined) {
        // A program that reads the parent alone would not make what is shown.
        m_generated->showProgram(
            QStringLiteral("/* %1 is joined in the viewer; no program is written for it. */\n")
                .arg(m_datasetName));
        return;
    }
    const OpenDataset& opened = *m_grid->opened();
    programtext::View view{m_filePath};
    view.datasetName = m_datasetName;
    view.library = m_libraryOf ? m_libraryOf(m_filePath) : programtext::Library();
    view.libraryFilter = opened.libraryFilterText();
    view.datasetFilter = opened.datasetFilterText();
    for (const std::string& name : opened.byVariables()) {
        view.byVariables << QString::fromStdString(name);
    }
    const int count = opened.dataset().variableCount();
    for (int variable = 0; variable < count; ++variable) {
        if (opened.variables().isShown(variable)) {
            view.shownVariables << opened.nameOf(variable);
        }
    }
    view.variableCount = count;
    m_generated->showProgram(programtext::of(view));
}

void CodeWindow::submit()
{
    if (m_grid == nullptr) {
        return;
    }
    ProgramEditor& editor = editorAt(currentIndex());
    const programrunner::Report report = [&] {
        const WaitCursor waitCursor;
        return programrunner::run(editor.program(), *m_grid->opened());
    }();
    editor.setMarks(report.marks);
    const auto wrong = std::find_if(report.marks.begin(), report.marks.end(),
                                    [](const auto& mark) { return mark.isWrong; });
    if (wrong != report.marks.end()) {
        m_services.showMessage(
            tr("Nothing has been run. Line %1: %2").arg(wrong->statement.line).arg(wrong->message));
    } else if (!report.marks.empty()) {
        m_services.showMessage(tr("Run on %1. Statements passed over: %2")
                                   .arg(m_datasetName, QString::number(report.marks.size())));
    } else {
        m_services.showMessage(tr("Run on %1.").arg(m_datasetName));
    }
}

// The user's programs

ProgramEditor& CodeWindow::editorAt(int tab) const
{
    return *qobject_cast<ProgramEditor*>(widget(tab));
}

ProgramEditor* CodeWindow::addEditor(const QString& path, const QString& text)
{
    auto* editor = new ProgramEditor(this);
    editor->setPlainText(text);
    editor->document()->setModified(false);
    editor->setProperty(pathProperty, path);
    if (path.isEmpty()) {
        editor->setProperty(nameProperty, tr("Untitled %1").arg(++m_untitled));
    }
    connect(editor, &ProgramEditor::signalLeft, this, &CodeWindow::signalLeft);
    connect(editor, &QPlainTextEdit::modificationChanged, this,
            [this, editor] { showTitle(*editor); });
    setCurrentIndex(addTab(editor, QString()));
    showTitle(*editor);
    return editor;
}

/// The file's name, with an asterisk while it is not saved.
void CodeWindow::showTitle(ProgramEditor& editor)
{
    const QString path = editor.property(pathProperty).toString();
    const QString name =
        path.isEmpty() ? editor.property(nameProperty).toString() : QFileInfo(path).fileName();
    editor.setProperty(nameProperty, name);
    const int tab = indexOf(&editor);
    const QString title = plainTitle(name);
    setTabText(tab, editor.document()->isModified() ? title + u'*' : title);
    setTabToolTip(tab, QDir::toNativeSeparators(path));
}

void CodeWindow::addProgram(const QString& text)
{
    ProgramEditor* editor = addEditor(QString(), text);
    editor->document()->setModified(!text.isEmpty());
    editor->setFocus();
}

void CodeWindow::openPrograms()
{
    const QString patterns = filePatterns();
    const QStringList paths =
        m_prompts.chooseFiles(tr("Open SAS Program"), m_settings.lastFolder(), patterns,
                              patterns.section(QStringLiteral(";;"), 0, 0));
    for (const QString& path : paths) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            m_prompts.warn(tr("Open SAS Program"), tr("Failed to open the file: %1").arg(path),
                           file.errorString());
            continue;
        }
        addEditor(path, QString::fromUtf8(file.readAll()))->setFocus();
    }
}

bool CodeWindow::save()
{
    ProgramEditor& editor = editorAt(currentIndex());
    const QString path = editor.property(pathProperty).toString();
    return path.isEmpty() ? saveAs() : saveTo(editor, path);
}

bool CodeWindow::saveAs()
{
    ProgramEditor& editor = editorAt(currentIndex());
    const QString path = m_prompts.chooseSaveFile(
        tr("Save SAS Program"),
        QDir(m_settings.lastFolder()).filePath(QStringLiteral("program.sas")), filePatterns());
    return !path.isEmpty() && saveTo(editor, path);
}

/// A program that was generated stays where it is; what is saved of it is a copy.
bool CodeWindow::saveTo(ProgramEditor& editor, const QString& path)
{
    if (!filesaving::save(m_prompts, tr("Save SAS Program"), path, editor.program())) {
        return false;
    }
    if (&editor != m_generated) {
        editor.setProperty(pathProperty, path);
        editor.document()->setModified(false);
        showTitle(editor);
    }
    return true;
}

bool CodeWindow::mayGo()
{
    for (int tab = 1; tab < count(); ++tab) {
        if (!mayGo(tab)) {
            return false;
        }
    }
    return true;
}

/// A program that is given up stays one that is not saved: another may keep the window open.
bool CodeWindow::mayGo(int tab)
{
    ProgramEditor& editor = editorAt(tab);
    if (!editor.document()->isModified()) {
        return true;
    }
    setCurrentIndex(tab);
    const auto answer =
        m_prompts.askToSave(tr("Save SAS Program"),
                            tr("The program %1 is not saved.\nDo you want to save it?")
                                .arg(editor.property(nameProperty).toString()));
    return answer == UserPrompts::Unsaved::Discard
        || (answer == UserPrompts::Unsaved::Save && save());
}

void CodeWindow::close(int tab)
{
    if (tab > 0 && mayGo(tab)) {
        QWidget* editor = widget(tab);
        removeTab(tab);
        editor->deleteLater();
    }
}
