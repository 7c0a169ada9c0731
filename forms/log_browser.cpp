#include "forms/log_browser.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

LogBrowser::LogBrowser(QWidget *parent) : QTextBrowser(parent) { }

void LogBrowser::setText(const QString &text)
{
    setPlainText(text);
}

void LogBrowser::append(const QString &text)
{
    const bool lastParagraphIsEmpty = document()->lastBlock().length() <= 1;
    continueLine(lastParagraphIsEmpty ? text : QLatin1Char('\n') + text);
}

void LogBrowser::continueLine(const QString &text)
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
