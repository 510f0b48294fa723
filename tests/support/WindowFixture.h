#pragma once

#include "app/window/DatasetWindow.h"
#include "app/window/MainWindow.h"
#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedDataset.h"
#include "tests/support/TemporaryServices.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>
#include <utility>

/// A main window that keeps everything in a folder of its own, to be inherited by its tests.
///
/// What stands in for the readers goes by the file's name: "ts..." is two rows of TSPARM, "bad..."
/// cannot be read, "own" is what the test fills it with, and any other is SEX and AGE with F 30,
/// M 40, F 50; "worn..." may be damaged.
class WindowFixture
{
protected:
    void startUp()
    {
        folder = std::make_unique<QTemporaryDir>();
        log = std::make_unique<LogCapture>();
        script = {};
        loaded.clear();
        urls.clear();
        isFailing = false;
        opensPages = true;
        openWindow();
    }
    /// Whatever was logged as a fault or told must have been expected and taken before.
    void shutDown()
    {
        window.reset();
        const QString lines = QString::fromStdString(log->take());
        log.reset();
        QVERIFY2(!lines.contains("warning:") && !lines.contains("error:"), qPrintable(lines));
        QCOMPARE(notes(), QStringList());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }
    void openWindow(bool readsFiles = false)
    {
        window.reset();
        MainWindowServices services = servicesOfTests();
        if (readsFiles) {
            services.load = {};
        }
        window = std::make_unique<MainWindow>(std::move(services));
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    MainWindowServices servicesOfTests()
    {
        MainWindowServices services = temporaryServices(folder->path(), script);
        services.load = [this](const QString& file, const OpenOptions&) { return load(file); };
        services.openUrl = [this](const QUrl& url) {
            urls << url.toString();
            return opensPages;
        };
        return services;
    }
    void startAgain()
    {
        window->close();
        openWindow();
    }

    [[nodiscard]] QString path(const QString& name) const { return folder->filePath(name); }
    bool open(const QString& name) { return window->openDatasetFile(path(name)); }
    void trigger(const QString& action) const { child<QAction>(action)->trigger(); }
    void submit(const QString& box, const QString& line) const
    {
        child<QComboBox>(box)->setFocus();
        child<QComboBox>(box)->setEditText(line);
        QTest::keyClick(child<QComboBox>(box)->lineEdit(), Qt::Key_Return);
    }
    /// What was asked and told since the last call.
    QStringList notes() { return std::exchange(script.notes, {}); }

    template <typename Widget>
    [[nodiscard]] Widget* child(const QString& name) const
    {
        return window->findChild<Widget*>(name);
    }
    /// What is said below a box: "message|line with its caret|suggestion", as far as shown.
    [[nodiscard]] QString told() const
    {
        QStringList texts;
        for (const auto* note : window->findChildren<QFrame*>("failureNote")) {
            for (const auto* label : note->findChildren<QLabel*>()) {
                if (label->isVisibleTo(window.get())) {
                    texts << label->text();
                }
            }
        }
        return texts.join('|');
    }
    [[nodiscard]] QDockWidget* dock(const QString& name) const
    {
        return child<QDockWidget>("dockWidget" + name);
    }
    [[nodiscard]] QString boxText(const QString& name) const
    {
        return child<QComboBox>(name)->currentText();
    }
    [[nodiscard]] QStringList status() const
    {
        QStringList texts;
        for (const char* name : {"Row", "Var", "By", "Lf", "Df"}) {
            texts << child<QLabel>(QString("labelStatusBar") + name)->text();
        }
        return texts;
    }
    [[nodiscard]] QString rows() const { return status().first(); }
    [[nodiscard]] QMdiArea& area() const { return *child<QMdiArea>("mdiArea"); }
    [[nodiscard]] QStringList titles() const
    {
        QStringList result;
        for (const QMdiSubWindow* each : area().subWindowList()) {
            result << each->windowTitle();
        }
        return result;
    }
    [[nodiscard]] DatasetWindow* datasetAt(int index) const
    {
        return qobject_cast<DatasetWindow*>(area().subWindowList().at(index));
    }
    [[nodiscard]] DatasetWindow* active() const
    {
        return qobject_cast<DatasetWindow*>(area().currentSubWindow());
    }
    [[nodiscard]] MainTableView& view() const { return *window->activeView(); }
    void activate(int index) const { area().setActiveSubWindow(datasetAt(index)); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<LogCapture> log;
    ScriptedPrompts::Script script;
    QStringList loaded;  ///< the names of the files that were read or could not be
    QStringList urls;  ///< the pages opened
    bool opensPages = true;  ///< whether there is a browser
    QString messageWhileLoading;  ///< in the status bar while the last file was read
    bool isFailing = false;  ///< whether no file can be read
    bool hasWaited = false;  ///< whether the last file was read under the wait cursor
    std::function<void(ScriptedDataset&)> fillOwn;
    std::unique_ptr<MainWindow> window;

private:
    Result<OpenedDataset> load(const QString& file)
    {
        const QString name = QFileInfo(file).fileName();
        loaded << name;
        messageWhileLoading = window->statusBar()->currentMessage();
        const QCursor* cursor = QGuiApplication::overrideCursor();
        hasWaited = cursor != nullptr && cursor->shape() == Qt::WaitCursor;
        if (isFailing || name.startsWith("bad")) {
            return Failure{"The header is damaged."};
        }
        auto dataset = std::make_unique<ScriptedDataset>();
        if (name == "own") {
            fillOwn(*dataset);
        } else if (name.startsWith("ts")) {
            dataset->variable("TSPARM", TypeCode::Character).row({"TITLE"}).row({"SPONSOR"});
        } else {
            dataset->variable("SEX", TypeCode::Character).variable("AGE", TypeCode::Double);
            dataset->row({"F", 30.0}).row({"M", 40.0}).row({"F", 50.0});
        }
        if (name.startsWith("worn")) {
            dataset->addDamageNote("Its end may be missing.");
        }
        OpenedDataset opened;
        opened.dataset = std::move(dataset);
        return opened;
    }
};
