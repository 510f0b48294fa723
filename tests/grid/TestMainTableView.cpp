#include "grid/GridEmptiness.h"
#include "tests/support/GridFixture.h"

#include <QAbstractButton>
#include <QPainter>
#include <QProxyStyle>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStyleOptionHeader>

/// What a grid looks like: texts, places and sizes.
class TestMainTableView : public QObject
{
    Q_OBJECT

private slots:
    void cellsAreAlignedByType();
    void headersShowNamesOrLabelsAndHintAtTheOther();
    void titlesStandAsTheirCellsAndMarkTheCurrentOne();
    void emptyGridTellsWhyAndHowToFillIt();
    void worksWithoutCornerButton();
    void filterScrollsToTheCurrentCellOrToWhatIsLeft();
    void columnsFitTheirContentsWithinReason();
    void lettersGrowInAllRowsAndStopShrinkingBelowSix();
};

void TestMainTableView::cellsAreAlignedByType()
{
    const GridFixture grid([](ScriptedDataset& dataset) {
        GridFixture::fill(dataset);
        dataset.row({"J\xC3\xBCrgen ", "M", 27.5, "X-1"});
    });
    const QModelIndex text = grid.view->model()->index(6, GridFixture::Usubjid);
    const QModelIndex number = grid.view->model()->index(6, GridFixture::Age);
    QCOMPARE(text.data().toString(), QString::fromUtf8("J\xC3\xBCrgen"));
    QCOMPARE(text.data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(number.data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
    for (const int role : {Qt::ToolTipRole, Qt::ForegroundRole, Qt::FontRole, Qt::EditRole}) {
        QVERIFY(!text.data(role).isValid());
    }
}

void TestMainTableView::headersShowNamesOrLabelsAndHintAtTheOther()
{
    const GridFixture grid;
    MainTableModel& model = *grid.view->tableModel();
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const auto headers = [&](int role) {
        QStringList texts;
        for (int section = 0; section < model.columnCount(); ++section) {
            texts << model.headerData(section, Qt::Horizontal, role).toString();
        }
        return texts.join('|');
    };
    grid.view->setHeaderMode(HeaderMode::VariableNames);
    QCOMPARE(resets.count(), 0);
    QCOMPARE(headers(Qt::DisplayRole), "USUBJID|SEX|AGE|SITE");
    QCOMPARE(headers(Qt::ToolTipRole), "Subject|Sex as recorded at the visit||");
    QVERIFY(!model.headerData(0, Qt::Vertical, Qt::ToolTipRole).isValid());

    grid.view->fitColumns();
    const int width = grid.view->columnWidth(GridFixture::Sex);
    grid.view->setHeaderMode(HeaderMode::VariableLabels);
    QVERIFY(grid.view->columnWidth(GridFixture::Sex) > width);
    QCOMPARE(headers(Qt::DisplayRole), "Subject|Sex as recorded at the visit||");
    QCOMPARE(headers(Qt::ToolTipRole), "USUBJID|SEX|AGE|SITE");
    const int labelWidth = grid.view->columnWidth(GridFixture::Sex);
    grid.view->setHeaderMode(HeaderMode::VariableNames);
    QCOMPARE(grid.view->columnWidth(GridFixture::Sex), width);
    grid.view->cmdRunCommand("drop SEX");
    grid.view->setHeaderMode(HeaderMode::VariableLabels);
    grid.view->cmdUnhidecolumns();
    QCOMPARE(grid.view->columnWidth(GridFixture::Sex), labelWidth);
}

namespace {

/// Notes down how the titles of headers are drawn.
class TitleStyle : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
        if (element == CE_HeaderLabel && header != nullptr) {
            const bool isRight = header->textAlignment.testFlag(Qt::AlignRight);
            titles[header->text] =
                QString(isRight ? "right" : "left") + (painter->font().bold() ? " bold" : "");
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    mutable QMap<QString, QString> titles;
};

}  // namespace

void TestMainTableView::titlesStandAsTheirCellsAndMarkTheCurrentOne()
{
    TitleStyle style;
    GridFixture grid;
    grid.view->horizontalHeader()->setStyle(&style);
    grid.view->verticalHeader()->setStyle(&style);
    QVERIFY(grid.activate());
    grid.goTo(3, GridFixture::Sex);
    grid.view->cmdRunCommand("if AGE >= 34");
    grid.goTo(3, GridFixture::Age);
    (void)grid.view->grab();
    QCOMPARE(style.titles.value("SEX") + '|' + style.titles.value("AGE"), "left|right bold");
    QCOMPARE(style.titles.value("1") + '|' + style.titles.value("4"), "right|right bold");
    grid.view->onHeaderClicked(GridFixture::Site);
    (void)grid.view->grab();
    QCOMPARE(style.titles.value("4"), "right bold");
    grid.view->cmdHideColumn();
    (void)grid.view->grab();
    QCOMPARE(style.titles.value("SITE"), "left bold");
    grid.view->cmdRunCommand("if AGE > 90");
    grid.view->onHeaderClicked(GridFixture::Sex);
    (void)grid.view->grab();
    QCOMPARE(style.titles.value("SEX"), "left bold");
    grid.view.reset();
}

void TestMainTableView::emptyGridTellsWhyAndHowToFillIt()
{
    GridFixture grid;
    QVERIFY(grid.activate());
    const auto isWritten = [&] {
        const QImage image = grid.view->viewport()->grab().toImage();
        const QRgb ground = image.pixel(0, image.height() - 1);
        for (int x = 0; x < image.width(); ++x) {
            for (int y = image.height() / 2 - 10; y < image.height() / 2 + 10; ++y) {
                if (image.pixel(x, y) != ground) {
                    return true;
                }
            }
        }
        return false;
    };
    const auto told = [&] { return gridemptiness::text(grid.opened()); };
    const QString none = "No row meets the filters.";
    const QString dataset = "\nZ takes the last step of the dataset filter back, C clears it.";
    const QString library = "\nAlt+C clears the library filter.";
    grid.view->resize(500, 500);  // the rows end above the middle
    QCOMPARE(told(), "");
    QVERIFY(!isWritten());
    grid.view->cmdRunCommand("if AGE > 50");
    grid.view->cmdRunCommand("where AGE < 40");
    QCOMPARE(told(), none + dataset + library);
    QVERIFY(isWritten());
    grid.view->cmdRunCommand("if AGE > 90");
    QCOMPARE(told(), none + dataset);
    grid.view->run(GridCommand::ClearLibraryFilter);
    grid.view->cmdRunCommand("where AGE > 90");
    QCOMPARE(told(), none + dataset + library);  // only both bring rows back
    grid.view->run(GridCommand::ClearDatasetFilter);
    QCOMPARE(told(), none + library);
    grid.view->run(GridCommand::ClearLibraryFilter);
    grid.view->cmdRunCommand("drop USUBJID SEX AGE SITE");
    QCOMPARE(told(), "All variables are hidden.\nU shows them again.");
    QVERIFY(isWritten());
}

void TestMainTableView::worksWithoutCornerButton()
{
    GridFixture grid;
    QWidget elsewhere;
    auto* corner = grid.view->findChild<QAbstractButton*>();
    corner->setParent(&elsewhere);  // not deleted, as Qt's view keeps using it
    const auto putBack = qScopeGuard([&] { corner->setParent(grid.view.get()); });
    grid.view->connectCornerButton();
    QCOMPARE(grid.log.take(), std::string("warning: Corner button not found\n"));
    grid.view->onHeaderClicked(GridFixture::Site);
    QCOMPARE(grid.shown().count(' '), 5);
}

void TestMainTableView::filterScrollsToTheCurrentCellOrToWhatIsLeft()
{
    GridFixture grid([](ScriptedDataset& dataset) {
        dataset.variable("N", TypeCode::Double).variable("ODD", TypeCode::Double);
        dataset.rows(30'000, [](int row, int column) {
            return ScriptedDataset::Value(column == 0 ? double(row) : double(row % 2));
        });
    });
    MainTableView& view = *grid.view;
    view.resize(400, 300);
    view.show();
    view.scrollToBottom();
    QCOMPARE(view.rowAt(view.viewport()->height() - 2), 29'999);
    view.cmdRunCommand("if N in (7, 9000)");
    QCOMPARE(view.rowAt(0), 7);
    QCOMPARE(view.rowAt(view.rowHeight(7) + 1), 9'000);
    view.cmdRunCommand("cdf");

    grid.goTo(20'001, 1);
    const auto isInSight = [&] {
        return view.viewport()->rect().contains(view.visualRect(view.currentIndex()));
    };
    view.run(GridCommand::FilterAgain);
    QCOMPARE(view.shownRowCount(), 15'000);
    QCOMPARE(grid.currentNumber(), 20'002);
    QVERIFY(isInSight());
    view.run(GridCommand::ClearDatasetFilter);  // with a new row header
    QCOMPARE(grid.currentNumber(), 20'002);
    QVERIFY(isInSight());
    const int y = view.visualRect(view.currentIndex()).center().y();
    QCOMPARE(view.verticalHeader()->logicalIndexAt(y), 20'001);
    QVERIFY(view.verticalHeader()->isVisible());
    QCOMPARE(view.verticalHeader()->defaultAlignment(), Qt::AlignRight | Qt::AlignVCenter);

    view.cmdRunCommand("if N < 10");
    QCOMPARE(grid.currentNumber(), 10);
    QVERIFY(isInSight());
}

void TestMainTableView::columnsFitTheirContentsWithinReason()
{
    GridFixture grid([](ScriptedDataset& dataset) {
        dataset.variable("LONG", TypeCode::Character).variable("N", TypeCode::Double);
        dataset.rows(20'000, [](int row, int column) -> ScriptedDataset::Value {
            return column == 1 ? ScriptedDataset::Value(row * 10'000.0) : std::string(500, 'W');
        });
    });
    MainTableView& view = *grid.view;
    view.fitColumns();
    QCOMPARE(view.columnWidth(0), 400);
    QVERIFY2(view.horizontalHeader()->maximumSectionSize() > 400, "the user may make it wider");
    const QString widest = view.model()->index(19'999, 1).data().toString();
    QVERIFY(view.columnWidth(1) > view.fontMetrics().horizontalAdvance(widest));
    QVERIFY(view.columnWidth(1) < 200);
}

void TestMainTableView::lettersGrowInAllRowsAndStopShrinkingBelowSix()
{
    GridFixture grid;
    MainTableView& view = *grid.view;
    const int rowHeight = view.rowHeight(0);
    view.cmdRunCommand("if AGE = 34");
    view.setFontSize(20);
    view.stepFontSize(2);
    QCOMPARE(grid.notes.take(), QStringList("font|22"));
    view.cmdRunCommand("cdf");
    QVERIFY(view.rowHeight(0) > rowHeight);
    QCOMPARE(view.rowHeight(1), view.rowHeight(0));
    const int width = view.columnWidth(GridFixture::Usubjid);
    for (int i = 0; i < 20; ++i) {
        view.stepFontSize(-1);
    }
    QCOMPARE(view.fontSize(), 5);
    const QStringList told = grid.notes.take();
    QCOMPARE(told.last(), "font|5");
    QCOMPARE(told.count("font|5"), 1);
    QVERIFY(view.columnWidth(GridFixture::Usubjid) < width);
}

QTEST_MAIN(TestMainTableView)
#include "TestMainTableView.moc"
