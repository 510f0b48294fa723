#include "workspace/OptionsDialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

class TestOptionsDialog : public QObject
{
    Q_OBJECT

private slots:
    void givesTheEditedNameBack_data();
    void givesTheEditedNameBack();
    void labelLeadsToTheField();
    void returnAcceptsAndEscapeRejects();
};

void TestOptionsDialog::givesTheEditedNameBack_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("another name") << "SUBJID"
                                  << "SUBJID";
    QTest::newRow("blanks round it") << "  PATID\t"
                                     << "PATID";
    QTest::newRow("nothing") << ""
                             << "USUBJID";
    QTest::newRow("blanks only") << "   "
                                 << "USUBJID";
}

void TestOptionsDialog::givesTheEditedNameBack()
{
    QFETCH(QString, typed);
    OptionsDialog dialog("USUBJID");
    auto* field = dialog.findChild<QLineEdit*>("uniqueVarName");
    QCOMPARE(field->text(), "USUBJID");
    QCOMPARE(dialog.uniqueVarName(), "USUBJID");

    field->setText(typed);

    QTEST(dialog.uniqueVarName(), "expected");
}

void TestOptionsDialog::labelLeadsToTheField()
{
    const OptionsDialog dialog("USUBJID");
    const auto* label = dialog.findChild<QLabel*>();
    QCOMPARE(label->text(), "Unique Variable Name:");
    QCOMPARE(label->buddy(), dialog.findChild<QLineEdit*>("uniqueVarName"));
    QVERIFY(!label->buddy()->accessibleName().isEmpty());
}

void TestOptionsDialog::returnAcceptsAndEscapeRejects()
{
    OptionsDialog dialog("USUBJID");
    dialog.open();
    QTest::keyClicks(dialog.findChild<QLineEdit*>("uniqueVarName"), "ID");
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
    // The name is selected at first, so that typing replaces it.
    QCOMPARE(dialog.uniqueVarName(), "ID");

    dialog.open();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
}

QTEST_MAIN(TestOptionsDialog)
#include "TestOptionsDialog.moc"
