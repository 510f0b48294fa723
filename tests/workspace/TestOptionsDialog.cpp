#include "workspace/OptionsDialog.h"

#include <QLineEdit>
#include <QTest>

class TestOptionsDialog : public QObject
{
    Q_OBJECT

private slots:
    void givesTheEditedNameBack();
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

QTEST_MAIN(TestOptionsDialog)
#include "TestOptionsDialog.moc"
