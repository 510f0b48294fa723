#include "analysis/panels/CellPane.h"

#include "analysis/panels/CellText.h"
#include "data/StatDataset.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QVBoxLayout>

CellPane::CellPane(QWidget* parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_text(new QPlainTextEdit(this))
{
    m_title->setObjectName(QStringLiteral("cellTitle"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setWordWrap(true);
    m_text->setObjectName(QStringLiteral("cellText"));
    m_text->setReadOnly(true);
    m_text->setAccessibleName(tr("Cell"));
    m_text->setPlaceholderText(tr("No cell is current."));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_title);
    layout->addWidget(m_text);
    setFocusProxy(m_text);
    showCell(nullptr, -1, -1);
}

void CellPane::showCell(const StatDataset* dataset, int observation, int variable)
{
    const bool isAny = dataset != nullptr && observation >= 0;
    m_title->setVisible(isAny);
    if (!isAny) {
        showText(QString());
        m_text->setPlaceholderText(tr("No cell is current."));
        return;
    }
    const auto name = QString::fromStdString(dataset->names()[static_cast<std::size_t>(variable)]);
    m_title->setText(tr("%1, observation %2").arg(name).arg(observation + 1));
    showText(celltext::whole(*dataset, observation, variable));
    m_text->setPlaceholderText(tr("The text is empty."));
}

/// Blanks are drawn as signs where some would go unseen, and all of them then: at the ends of the
/// text or of a line, side by side, or as other characters.
void CellPane::showText(const QString& text)
{
    static const QRegularExpression unseen(QStringLiteral("^[ \\t]|[ \\t]$|[ \\t]{2}|\\t|\\x{A0}"),
                                           QRegularExpression::MultilineOption);
    QTextOption option = m_text->document()->defaultTextOption();
    QTextOption::Flags flags = option.flags();
    flags.setFlag(QTextOption::ShowTabsAndSpaces, unseen.match(text).hasMatch());
    option.setFlags(flags);
    m_text->document()->setDefaultTextOption(option);
    if (m_text->toPlainText() != text) {
        m_text->setPlainText(text);
    }
}
