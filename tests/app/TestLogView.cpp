#include "app/log/LogModel.h"
#include "app/log/LogView.h"

#include <spdlog/logger.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include <thread>

class TestLogView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void messagesArriveWithTimeAndLevel();
    void messagesOfOtherThreadsArrive();
    void viewThatHasGoneHearsNothing();
    void levelDecidesWhatIsShown();
    void oldestMessagesGoWhenThereIsNoRoom();
    void copyTakesTheSelectionOrAll();
    void endIsFollowedUnlessTheUserScrolledUp();

private:
    [[nodiscard]] QTableView* table() const { return m_view->findChild<QTableView*>("tableLog"); }
    [[nodiscard]] QStringList shown() const;
    void log(int count);

    std::shared_ptr<spdlog::logger> m_logger;
    std::unique_ptr<LogView> m_view;
    std::unique_ptr<QAbstractItemModelTester> m_modelTester;
    std::unique_ptr<QAbstractItemModelTester> m_filterTester;
};

void TestLogView::init()
{
    m_logger = std::make_shared<spdlog::logger>("test");
    m_logger->set_level(spdlog::level::trace);
    m_view = std::make_unique<LogView>(m_logger);
    m_view->resize(500, 240);
    m_view->show();
    m_modelTester = std::make_unique<QAbstractItemModelTester>(
        m_view->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_filterTester = std::make_unique<QAbstractItemModelTester>(
        table()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
}

void TestLogView::cleanup()
{
    m_filterTester.reset();
    m_modelTester.reset();
    m_view.reset();
    QVERIFY(m_logger->sinks().empty());
}

/// The messages in the table from top to bottom.
QStringList TestLogView::shown() const
{
    QStringList texts;
    for (int row = 0; row < table()->model()->rowCount(); ++row) {
        texts << table()->model()->index(row, LogModel::Message).data().toString();
    }
    return texts;
}

/// Logs "message 1" and so on and waits until they have arrived.
void TestLogView::log(int count)
{
    const int before = m_view->model()->rowCount();
    for (int number = 1; number <= count; ++number) {
        m_logger->info("message {}", number);
    }
    QTRY_COMPARE(m_view->model()->rowCount(), before + count);
}

void TestLogView::messagesArriveWithTimeAndLevel()
{
    const QTime before = QTime::currentTime();
    m_logger->warn("Größe\n{}", 42);
    QTRY_COMPARE(shown(), QStringList({"Größe 42"}));

    const QAbstractItemModel* model = table()->model();
    QCOMPARE(model->index(0, LogModel::Level).data().toString(), "Warning");
    QCOMPARE(model->index(0, LogModel::Message).data(Qt::ToolTipRole).toString(), "Größe\n42");
    const QTime time =
        QTime::fromString(model->index(0, LogModel::Time).data().toString(), "HH:mm:ss.zzz");
    QVERIFY(time.isValid());
    // Midnight may pass in between.
    const int later = before.msecsTo(time);
    QVERIFY2((later >= 0 && later < 60'000) || later < -86'000'000,
             qPrintable(QString::number(later)));
}

void TestLogView::messagesOfOtherThreadsArrive()
{
    std::thread other([this] {
        for (int number = 0; number < 100; ++number) {
            m_logger->info("other {}", number);
        }
    });
    other.join();

    QCOMPARE(shown().size(), 0);
    QTRY_COMPARE(shown().size(), 100);
    QCOMPARE(shown().constLast(), "other 99");
}

void TestLogView::viewThatHasGoneHearsNothing()
{
    m_logger->info("on its way");
    m_filterTester.reset();
    m_modelTester.reset();
    m_view.reset();
    m_logger->info("too late");
    QCoreApplication::sendPostedEvents();

    m_view = std::make_unique<LogView>(m_logger);
    m_logger->info("new");
    QTRY_COMPARE(shown(), QStringList({"new"}));
}

void TestLogView::levelDecidesWhatIsShown()
{
    using namespace spdlog::level;
    const QStringList all{"trace", "debug", "info", "warn", "err", "critical"};
    for (const level_enum level : {trace, debug, info, warn, err, critical}) {
        m_logger->log(level, all.at(level).toStdString());
    }
    QTRY_COMPARE(shown(), all);
    auto* lowest = m_view->findChild<QComboBox*>("comboBoxLogLevel");
    for (const auto& [entry, from] : {std::pair(1, 2), {2, 3}, {3, 4}, {0, 0}, {3, 4}}) {
        lowest->setCurrentIndex(entry);
        QCOMPARE(shown(), all.mid(from));
    }
    // What comes later is measured by the same level.
    m_logger->warn("late");
    m_logger->error("later");
    QTRY_COMPARE(shown(), all.mid(4) + QStringList("later"));
}

void TestLogView::oldestMessagesGoWhenThereIsNoRoom()
{
    LogModel model(20);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (int number = 1; number <= 20; ++number) {
        model.append({QDateTime(), spdlog::level::info, QString::number(number)});
    }
    QCOMPARE(model.rowCount(), 20);

    model.append({QDateTime(), spdlog::level::info, "21"});

    QCOMPARE(model.rowCount(), 19);
    QCOMPARE(model.index(0, LogModel::Message).data().toString(), "3");
    QCOMPARE(model.index(18, LogModel::Message).data().toString(), "21");
}

void TestLogView::copyTakesTheSelectionOrAll()
{
    log(3);
    const auto copied = [this] {
        m_view->findChild<QPushButton*>("buttonCopyLog")->click();
        QStringList texts;
        for (const QString& line : QGuiApplication::clipboard()->text().split('\n')) {
            texts << line.section('\t', 1);
        }
        return texts;
    };
    QCOMPARE(copied(),
             QStringList({"Information\tmessage 1", "Information\tmessage 2",
                          "Information\tmessage 3", ""}));

    table()->selectRow(1);
    QCOMPARE(copied(), QStringList({"Information\tmessage 2", ""}));

    QGuiApplication::clipboard()->clear();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    table()->setFocus();
    QTest::keySequence(table(), QKeySequence::Copy);
    QVERIFY(QGuiApplication::clipboard()->text().endsWith("\tmessage 2\n"));
    m_view->findChild<QPushButton*>("buttonClearLog")->click();
    QCOMPARE(shown(), QStringList());
}

void TestLogView::endIsFollowedUnlessTheUserScrolledUp()
{
    QScrollBar* bar = table()->verticalScrollBar();
    log(100);
    QVERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());

    bar->setValue(10);
    log(5);
    QCOMPARE(bar->value(), 10);

    bar->setValue(bar->maximum());
    log(5);
    QTRY_COMPARE(bar->value(), bar->maximum());
}

QTEST_MAIN(TestLogView)
#include "TestLogView.moc"
