#include "workspace/OptionsDialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

class TestOptionsDialog : public QObject
{
    Q_OBJECT

private slots:
    void givesTheEditedNameBack();
    void labelLeadsToTheField();
    void returnAcceptsAndEscapeRejects();
};

void TestOptionsDialog::givesTheEditedNameBack()
{
    OptionsDialog dialog("USUBJID");
    auto* field = dialog.findChild<QLineEdit*>("uniqueVarName");
    QCOMPARE(field->text(), "USUBJID");
    field->setText("  PATID\t");
    QCOMPARE(dialog.uniqueVarName(), "PATID");
    field->setText("   ");
    QCOMPARE(dialog.uniqueVarName(), "USUBJID");
}

void TestOptionsDialog::labelLeadsToTheField()
{
    const OptionsDialog dialog("USUBJID");
    const auto* label = dialog.findChild<QLabel*>();
    QVERIFY(label != nullptr && label->buddy() != nullptr);
    QCOMPARE(label->buddy()->objectName(), "uniqueVarName");
    QVERIFY(!label->buddy()->accessibleName().isEmpty());
}

void TestOptionsDialog::returnAcceptsAndEscapeRejects()
{
    OptionsDialog dialog("USUBJID");
    dialog.open();
    // The name is selected at first, so that typing replaces it.
    QTest::keyClicks(dialog.findChild<QLineEdit*>("uniqueVarName"), "ID");
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
    QCOMPARE(dialog.uniqueVarName(), "ID");
    dialog.open();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
}

QTEST_MAIN(TestOptionsDialog)
#include "TestOptionsDialog.moc"
