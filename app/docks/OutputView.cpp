#include "app/docks/OutputView.h"

#include "app/dialogs/FileSaving.h"
#include "app/dialogs/UserPrompts.h"
#include "app/look/Icons.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

OutputView::OutputView(UserPrompts& prompts, QWidget* parent)
    : QWidget(parent)
    , m_prompts(prompts)
    , m_text(new QPlainTextEdit(this))
    , m_wanted(new QLineEdit(this))
    , m_found(new QLabel(this))
    , m_copy(new QPushButton(tr("C&opy"), this))
    , m_save(new QPushButton(icons::icon(QStringLiteral("save")), tr("&Save..."), this))
    , m_clear(new QPushButton(icons::icon(QStringLiteral("clear")), tr("Cle&ar"), this))
{
    createText();
    createControls();
    showWhatIsThere();
}

void OutputView::createText()
{
    m_text->setObjectName(QStringLiteral("textOutput"));
    m_text->setReadOnly(true);
    // The caret shows where a search goes on, and lets text be selected by keys.
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setAccessibleName(tr("Output"));
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setUndoRedoEnabled(false);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setPlaceholderText(tr("What a comparison of datasets reports stands here."));
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->installEventFilter(this);
}

void OutputView::createControls()
{
    m_wanted->setObjectName(QStringLiteral("lineEditFindOutput"));
    m_wanted->setPlaceholderText(tr("Find in output..."));
    m_wanted->setAccessibleName(tr("Text to find"));
    m_wanted->setClearButtonEnabled(true);
    m_wanted->installEventFilter(this);
    connect(m_wanted, &QLineEdit::textChanged, m_found, &QLabel::clear);
    m_copy->setObjectName(QStringLiteral("buttonCopyOutput"));
    m_copy->setToolTip(tr("Copy what is selected, or all if nothing is"));
    m_save->setObjectName(QStringLiteral("buttonSaveOutput"));
    m_clear->setObjectName(QStringLiteral("buttonClearOutput"));
    connect(m_copy, &QPushButton::clicked, this, &OutputView::copy);
    connect(m_save, &QPushButton::clicked, this, &OutputView::save);
    connect(m_clear, &QPushButton::clicked, this, &OutputView::clear);

    auto* controls = new QHBoxLayout;
    controls->setContentsMargins(6, 4, 6, 0);
    controls->addWidget(m_wanted, 1);
    controls->addWidget(m_found);
    controls->addStretch(1);
    for (QPushButton* button : {m_copy, m_save, m_clear}) {
        controls->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(controls);
    layout->addWidget(m_text);
}

bool OutputView::eventFilter(QObject* watched, QEvent* event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::ShortcutOverride) {
        return QWidget::eventFilter(watched, event);
    }
    const std::function<void()> command =
        commandOf(*static_cast<QKeyEvent*>(event), watched == m_wanted);
    if (!command) {
        return QWidget::eventFilter(watched, event);
    }
    // The window has shortcuts on some of these keys; here they mean the listing.
    event->accept();
    if (isPress) {
        command();
    }
    return true;
}

std::function<void()> OutputView::commandOf(const QKeyEvent& key, bool isInWanted)
{
    const auto finding = [this](bool forwards) { return [this, forwards] { find(forwards); }; };
    if (key.matches(QKeySequence::Find)) {
        return [this] { startFind(); };
    }
    if (key.matches(QKeySequence::FindNext) || key.matches(QKeySequence::FindPrevious)) {
        return finding(key.matches(QKeySequence::FindNext));
    }
    if (key.matches(QKeySequence::Save)) {
        return [this] { save(); };
    }
    if (isInWanted && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
        return finding(!key.modifiers().testFlag(Qt::ShiftModifier));
    }
    if (key.key() != Qt::Key_Escape) {
        return {};
    }
    return isInWanted ? std::function<void()>([this] { m_text->setFocus(); })
                      : [this] { emit signalLeft(); };
}

void OutputView::add(const QString& listing, const QString& fileName)
{
    m_fileName = fileName;
    if (!m_text->document()->isEmpty()) {
        m_text->appendPlainText(QString());
    }
    const int first = m_text->document()->isEmpty() ? 0 : m_text->blockCount();
    m_text->appendPlainText(listing);
    const QTextBlock block = m_text->document()->findBlockByNumber(first);
    m_text->setTextCursor(QTextCursor(block));
    m_text->verticalScrollBar()->setValue(block.firstLineNumber());
    m_text->horizontalScrollBar()->setValue(0);
    m_found->clear();
    showWhatIsThere();
}

QString OutputView::text() const
{
    return m_text->toPlainText();
}

void OutputView::startFind()
{
    const QString selected = m_text->textCursor().selectedText();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) {
        m_wanted->setText(selected);
    }
    m_wanted->setFocus();
    m_wanted->selectAll();
}

void OutputView::find(bool forwards)
{
    const QString wanted = m_wanted->text();
    if (wanted.isEmpty()) {
        startFind();
        return;
    }
    const QTextDocument::FindFlags flags =
        forwards ? QTextDocument::FindFlags() : QTextDocument::FindBackward;
    m_found->clear();
    if (m_text->find(wanted, flags)) {
        return;
    }
    const QTextCursor place = m_text->textCursor();
    m_text->moveCursor(forwards ? QTextCursor::Start : QTextCursor::End);
    if (m_text->find(wanted, flags)) {
        m_found->setText(forwards ? tr("Went on from the beginning") : tr("Went on from the end"));
    } else {
        m_text->setTextCursor(place);
        m_found->setText(tr("Not found"));
    }
}

void OutputView::copy()
{
    if (m_text->textCursor().hasSelection()) {
        m_text->copy();
    } else {
        QGuiApplication::clipboard()->setText(text());
    }
}

void OutputView::save()
{
    if (m_text->document()->isEmpty()) {
        return;
    }
    const QString path = m_prompts.chooseSaveFile(
        tr("Save Output"), m_fileName, tr("Text Files (*.txt);;Listings (*.lst);;All Files (*)"));
    if (!path.isEmpty()) {
        filesaving::save(m_prompts, tr("Save Output"), path, text() + u'\n');
    }
}

void OutputView::clear()
{
    m_text->clear();
    m_found->clear();
    showWhatIsThere();
}

/// There is nothing to copy, save or clear without a listing.
void OutputView::showWhatIsThere()
{
    const bool isAny = !m_text->document()->isEmpty();
    for (QPushButton* button : {m_copy, m_save, m_clear}) {
        button->setEnabled(isAny);
    }
}
