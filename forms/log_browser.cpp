#include "log_browser.h"

#include "space_layout.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

namespace {

// A line is laid out anew with every read that makes it longer, so that one without end would
// freeze the window; beyond this many characters it is shown in pieces.
const int longestLine = 8'000;

} // namespace

LogBrowser::LogBrowser(QWidget *parent) : QTextBrowser(parent) { }

void LogBrowser::setText(const QString &text)
{
    m_lineIsUnfinished = false;
    document()->setDocumentLayout(nullptr); // the toolkit's own, which stays quick
    setPlainText(text);
}

void LogBrowser::setReview(const QString &text)
{
    setText(QString());
    document()->setDocumentLayout(new SpaceLayout(document()));
    setPlainText(text);
}

void LogBrowser::append(const QString &text)
{
    m_lineIsUnfinished = false;
    const bool lastParagraphIsEmpty = document()->lastBlock().length() <= 1;
    insertAtEnd(lastParagraphIsEmpty ? text : u'\n' + text);
}

void LogBrowser::write(const QString &output)
{
    if (output.isEmpty())
        return;
    if (m_lineIsUnfinished)
        insertAtEnd(output);
    else
        append(output);
    m_lineIsUnfinished = !output.endsWith(u'\n') && document()->lastBlock().length() < longestLine;
}

void LogBrowser::insertAtEnd(const QString &text)
{
    // A reader who has scrolled back keeps the place; at the end the text scrolls along.
    QScrollBar *scrollBar = verticalScrollBar();
    const bool atEnd = scrollBar->value() == scrollBar->maximum();
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(text);
    if (atEnd)
        scrollBar->setValue(scrollBar->maximum());
}
