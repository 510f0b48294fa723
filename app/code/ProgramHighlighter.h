#pragma once

#include <QSyntaxHighlighter>
#include <QTextCharFormat>

class QPalette;

/// Colours keywords, texts in quotes, comments and numbers of a SAS program.
class ProgramHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// @param document  owns the highlighter
    ProgramHighlighter(QTextDocument* document, const QPalette& palette);

    /// Colours the document anew, to be read on the grounds of that palette.
    void setPalette(const QPalette& palette);

protected:
    void highlightBlock(const QString& text) override;

private:
    void setColours(bool dark);
    void highlightCode(QStringView code, int start);

    QTextCharFormat m_keyword;
    QTextCharFormat m_quoted;
    QTextCharFormat m_comment;
    QTextCharFormat m_number;
};
