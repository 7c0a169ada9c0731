#pragma once

#include <QTextBrowser>
#include <memory>

class QIODevice;
class QTemporaryFile;

/// A read-only text that grows at its end, however long it becomes. Everything is shown literally,
/// never as markup. When it holds more than can be shown without delay, all but its end leaves the
/// screen, which the first line then says; save() still has it.
class LogBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit LogBrowser(QWidget *parent = nullptr);
    ~LogBrowser() override;

    /// Replaces the whole text.
    void setText(const QString &text);
    /// The same for a short text whose lines break at spaces only.
    void setReview(const QString &text);
    /// Adds \a text as a new paragraph, or in the last one when that is still empty, so that text
    /// that ends with a line feed leaves no empty line before what is appended next.
    void append(const QString &text);
    /// Adds output as it comes: to the line that the last write() has begun, or as append() does
    /// where that had an end. A line of several thousand characters is broken.
    void write(const QString &output);

    /// Writes the whole text to \a device in the local encoding. False when not all of it could be
    /// written.
    bool save(QIODevice &device) const;

private:
    void insertAtEnd(const QString &text);
    void keep(const QString &text);
    void showEndOnly();

    bool m_lineIsUnfinished = false;
    QString m_text;                         ///< the whole text as it came, while it is not long
    std::unique_ptr<QTemporaryFile> m_kept; ///< and then, in the local encoding; closed when there
                                            ///< was no room for it
    qint64 m_hidden = 0;                    ///< characters that are no longer shown
};
