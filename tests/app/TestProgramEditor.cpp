#include "app/code/ProgramEditor.h"
#include "app/look/Theme.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

namespace {

/// The colour of a character, invalid where nothing has coloured it.
QColor colourAt(const QTextBlock& block, int position)
{
    for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
        if (position >= range.start && position < range.start + range.length) {
            return range.format.foreground().color();
        }
    }
    return {};
}

}  // namespace

class TestProgramEditor : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { theme::apply(false); }
    void eachKindHasItsColour();
    void textIsColouredByItsKind_data();
    void textIsColouredByItsKind();
    void commentIsColouredAnewWhenItsStartGoes();
    void coloursFollowTheLook_data();
    void coloursFollowTheLook();
    void escapeLeavesAndTheTabulatorWrites();

private:
    /// The colours of a keyword, a text in quotes, a comment and a number.
    [[nodiscard]] static QMap<QChar, QColor> colours();
};

QMap<QChar, QColor> TestProgramEditor::colours()
{
    ProgramEditor editor;
    editor.setPlainText("where 'x' 1 /* */");
    const QTextBlock block = editor.document()->firstBlock();
    return {{'k', colourAt(block, 0)},
            {'q', colourAt(block, 6)},
            {'n', colourAt(block, 10)},
            {'c', colourAt(block, 12)},
            {'.', QColor()}};
}

void TestProgramEditor::eachKindHasItsColour()
{
    QSet<QRgb> different;
    for (const QChar kind : {'k', 'q', 'n', 'c'}) {
        QVERIFY(colours().value(kind).isValid());
        different.insert(colours().value(kind).rgb());
    }
    QCOMPARE(different.size(), 4);
}

void TestProgramEditor::textIsColouredByItsKind_data()
{
    // Below each character its kind: k keyword, q in quotes, c comment, n number, . none of them.
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("statement") << QStringList{"where age >= 18.5;",  //
                                              "kkkkk........nnnn."};
    QTest::newRow("letter case") << QStringList{"KEEP a;",  //
                                                "kkkk..."};
    QTest::newRow("keyword within a name") << QStringList{"keeper if1 _if;",  //
                                                          "..............."};
    QTest::newRow("digits within a name") << QStringList{"var12 = 3;",  //
                                                         "........n."};
    QTest::newRow("library and dataset") << QStringList{"set a.b2;",  //
                                                        "kkk......"};
    QTest::newRow("doubled quotes") << QStringList{"if a = 'it''s'; by b;",  //
                                                   "kk.....qqqqqqq..kk..."};
    QTest::newRow("star at the start") << QStringList{"run; * if 1; keep a;",  //
                                                      "kkk..ccccccc.kkkk..."};
    QTest::newRow("star within") << QStringList{"if a * 1;",  //
                                                "kk.....n."};
    QTest::newRow("comment over lines") << QStringList{"by /* if",  //
                                                       "kk.ccccc",  //
                                                       "1 */ 1;",  //
                                                       "cccc.n."};
    QTest::newRow("quotes over lines") << QStringList{"if a = \"x",  //
                                                      "kk.....qq",  //
                                                      "if\" 1;",  //
                                                      "qqq.n."};
    QTest::newRow("statement over lines") << QStringList{"if a",  //
                                                         "kk..",  //
                                                         "* 1;",  //
                                                         "..n."};
}

void TestProgramEditor::textIsColouredByItsKind()
{
    QFETCH(QStringList, lines);
    const QMap<QChar, QColor> expected = colours();
    ProgramEditor editor;
    QStringList text;
    for (qsizetype line = 0; line < lines.size(); line += 2) {
        text << lines.at(line);
    }
    editor.setPlainText(text.join('\n'));

    QTextBlock block = editor.document()->firstBlock();
    for (qsizetype line = 0; line < lines.size(); line += 2, block = block.next()) {
        const QString kinds = lines.at(line + 1);
        QCOMPARE(kinds.size(), block.text().size());
        for (int position = 0; position < kinds.size(); ++position) {
            if (block.text().at(position) != ' ' || kinds.at(position) == '.') {
                QVERIFY2(colourAt(block, position) == expected.value(kinds.at(position)),
                         qPrintable(QStringLiteral("%1 at %2").arg(block.text()).arg(position)));
            }
        }
    }
}

void TestProgramEditor::commentIsColouredAnewWhenItsStartGoes()
{
    const QMap<QChar, QColor> expected = colours();
    ProgramEditor editor;
    editor.setPlainText("/*\nwhere a = 1;");
    const QTextBlock second = editor.document()->lastBlock();
    QCOMPARE(colourAt(second, 0), expected.value('c'));

    QTextCursor cursor(editor.document());
    cursor.setPosition(2, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();

    QCOMPARE(colourAt(second, 0), expected.value('k'));
}

void TestProgramEditor::coloursFollowTheLook_data()
{
    QTest::addColumn<bool>("shownBefore");
    QTest::newRow("shown") << true;
    QTest::newRow("hidden meanwhile") << false;
}

void TestProgramEditor::coloursFollowTheLook()
{
    QFETCH(bool, shownBefore);
    ProgramEditor editor;
    editor.setPlainText("where 'x' 1 /* */");
    editor.setVisible(shownBefore);
    const QTextBlock block = editor.document()->firstBlock();
    const QList<int> positions{0, 6, 10, 12};
    for (const int position : positions) {
        const QColor colour = colourAt(block, position);
        QVERIFY2(colour.isValid() && colour.lightness() < 100, qPrintable(colour.name()));
    }

    theme::apply(true);
    editor.show();

    for (const int position : positions) {
        const QColor colour = colourAt(block, position);
        QVERIFY2(colour.lightness() > 130, qPrintable(colour.name()));
    }
    theme::apply(false);
    QTRY_VERIFY(colourAt(block, 0).lightness() < 100);
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
