#include "app/code/ProgramEditor.h"
#include "app/look/Theme.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

/// The colours and keys of the editor in the Code window.
class TestProgramEditor : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { theme::apply(false); }
    void textIsColouredByItsKind_data();
    void textIsColouredByItsKind();
    void coloursFollowTheLook();
    void escapeLeavesAndTheTabulatorWrites();
};

namespace {

/// A keyword, a text in quotes, a number and a comment.
const QString oneOfEach = "where 'x' 1 /* */";
const QString kindsOfIt = "kkkkk.qqq.n.ccccc";

/// The colour of each character, in the order of the text without its line ends; invalid where
/// nothing has coloured it.
QList<QColor> coloursOf(const ProgramEditor& editor)
{
    QList<QColor> colours;
    for (QTextBlock block = editor.document()->firstBlock(); block.isValid();
         block = block.next()) {
        const qsizetype start = colours.size();
        colours.resize(start + block.length() - 1);
        for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
            std::fill_n(colours.begin() + start + range.start, range.length,
                        range.format.foreground().color());
        }
    }
    return colours;
}

}  // namespace

void TestProgramEditor::textIsColouredByItsKind_data()
{
    // For each character its kind: k keyword, q in quotes, c comment, n number, . none of them.
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kinds");
    const auto row = [](const char* name, const QString& text, const QString& kinds) {
        QTest::newRow(name) << text << kinds;
    };
    row("statement", "where age >= 18.5;", "kkkkk........nnnn.");
    row("letter case", "KEEP a;", "kkkk...");
    row("within a name", "keeper if1 _if var12;", ".....................");
    row("library and dataset", "set a.b2;", "kkk......");
    row("doubled quotes", "if a = 'it''s'; by b;", "kk.....qqqqqqq..kk...");
    row("star at the start", "run; * if 1; keep a;", "kkk..ccccccc.kkkk...");
    row("star within", "if a * 1;", "kk.....n.");
    row("comment over lines", "by /* if\n1 */ 1;", "kk.ccccccccc.n.");
    row("quotes over lines", "if a = \"x\nif\" 1;", "kk.....qqqqq.n.");
    row("statement over lines", "if a\n* 1;", "kk....n.");
}

void TestProgramEditor::textIsColouredByItsKind()
{
    QFETCH(QString, text);
    QFETCH(QString, kinds);
    ProgramEditor editor;
    editor.setPlainText(oneOfEach);
    QMap<QChar, QColor> expected{{'.', QColor()}};
    const QList<QColor> samples = coloursOf(editor);
    for (qsizetype i = 0; i < samples.size(); ++i) {
        expected[kindsOfIt[i]] = samples[i];
    }
    QCOMPARE(QSet<QString>({expected['k'].name(), expected['q'].name(), expected['n'].name(),
                            expected['c'].name()})
                 .size(),
             4);
    editor.setPlainText(text);
    const QList<QColor> colours = coloursOf(editor);
    text.remove('\n');
    QCOMPARE(colours.size(), kinds.size());
    for (qsizetype i = 0; i < colours.size(); ++i) {
        QVERIFY2((text[i] == ' ' && kinds[i] != '.') || colours[i] == expected[kinds[i]],
                 qPrintable(QString("%1 at %2").arg(text).arg(i)));
    }
}

void TestProgramEditor::coloursFollowTheLook()
{
    ProgramEditor editor;
    editor.setPlainText(oneOfEach);
    for (const bool wasShown : {false, true}) {
        editor.setVisible(wasShown);
        theme::apply(true);
        editor.show();
        for (const qsizetype i : {0, 6, 10, 12}) {
            QVERIFY(coloursOf(editor)[i].lightness() > 130);
        }
        theme::apply(false);
        for (const qsizetype i : {0, 6, 10, 12}) {
            QTRY_VERIFY(coloursOf(editor)[i].lightness() < 100);
        }
    }
}

void TestProgramEditor::escapeLeavesAndTheTabulatorWrites()
{
    ProgramEditor editor;
    QSignalSpy left(&editor, &ProgramEditor::signalLeft);
    QTest::keyClick(&editor, Qt::Key_Tab);
    QTest::keyClicks(&editor, "run;");
    QCOMPARE(editor.toPlainText(), "\trun;");
    QCOMPARE(left.count(), 0);
    QTest::keyClick(&editor, Qt::Key_Escape);
    QCOMPARE(left.count(), 1);
}

QTEST_MAIN(TestProgramEditor)
#include "TestProgramEditor.moc"
