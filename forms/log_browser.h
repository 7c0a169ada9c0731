#pragma once

#include <QTextBrowser>

/// A read-only text that grows at its end. Everything is shown literally, never as markup.
class LogBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit LogBrowser(QWidget *parent = nullptr);

    /// Replaces the whole text.
    void setText(const QString &text);
    /// The same for a short text whose lines break at spaces only.
    void setReview(const QString &text);
    /// Adds \a text as a new paragraph, or in the last one when that is still empty, so that text
    /// that ends with a line feed leaves no empty line before what is appended next.
    void append(const QString &text);
    /// Adds output as it comes: to the line that the last write() has begun, or as append() does
    /// where that had an end.
    void write(const QString &output);

private:
    void insertAtEnd(const QString &text);

    bool m_lineIsUnfinished = false;
};
