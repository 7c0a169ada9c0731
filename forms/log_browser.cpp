#include "log_browser.h"

#include "space_layout.h"

#include <QScrollBar>
#include <QTemporaryFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The toolkit lays a paragraph out anew with all that is added to it, and looks at every paragraph
// again and again: neither may take long. A paragraph is a line of the text until there are many,
// and then several lines together.
const qsizetype longestParagraph = 4000;
const qsizetype mostLinesTogether = 100;
const int mostOfOneLine = 10'000;
const int mostAtOnce = 1000;

// What is shown: characters, and pixels. And what is left of it when it becomes more.
const int mostCharacters = 64'000'000;
const int greatestHeight = 18'000'000;
const int charactersLeft = 40'000;
const int linesLeft = 10'000;

// A longer text is kept in a file.
const int longestInMemory = 1'000'000;

// A page without an end is laid out as one of 2^23 pixels, behind which the toolkit does not come
// to an end. It counts in 64ths of a pixel, which leaves less than 2^25 of them for a page with
// one.
const int pageHeight = 30'000'000;

/// \a text with paragraphs in the place of its line ends, if the last paragraph so far is \a last.
/// Where \a joinsLines is set, lines share a paragraph until it is long enough.
QString inParagraphs(const QString &text, const QString &last, bool joinsLines)
{
    qsizetype ofParagraph = last.size();
    qsizetype lines = last.count(QChar::LineSeparator) + 1;
    qsizetype ofLine = last.size() - 1 - last.lastIndexOf(QChar::LineSeparator);
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        const bool endsLine = character == u'\n';
        const bool breaksLine =
            !endsLine && ofLine >= longestParagraph && !character.isLowSurrogate();
        const bool isFull = ofParagraph >= longestParagraph || lines >= mostLinesTogether;
        if (breaksLine || (endsLine && (!joinsLines || isFull))) {
            result += QChar::ParagraphSeparator;
            ofParagraph = ofLine = 0;
            lines = 1;
        } else if (endsLine) {
            result += QChar::LineSeparator;
            ofLine = 0;
            ++lines;
        }
        if (!endsLine) {
            result += character;
            ++ofParagraph;
            ++ofLine;
        }
    }
    return result;
}

/// The first of the paragraphs of \a document that are left when it holds too much.
QTextBlock firstLeft(const QTextDocument &document)
{
    QTextBlock first = document.lastBlock();
    int lines = first.layout()->lineCount();
    for (QTextBlock block = first.previous(); block.isValid(); block = block.previous()) {
        lines += block.layout()->lineCount();
        if (lines > linesLeft || document.characterCount() - block.position() > charactersLeft)
            break;
        first = block;
    }
    return first;
}

bool writeAll(QIODevice &device, const QByteArray &bytes)
{
    return device.write(bytes) == bytes.size();
}

} // namespace

LogBrowser::LogBrowser(QWidget *parent) : QTextBrowser(parent) { }

LogBrowser::~LogBrowser() = default;

void LogBrowser::setText(const QString &text)
{
    m_lineIsUnfinished = false;
    m_text.clear();
    m_kept.reset();
    m_hidden = 0;
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    document()->setDocumentLayout(nullptr); // the toolkit's own, which stays quick
    clear();
    insertAtEnd(text);
    verticalScrollBar()->setValue(0);
}

void LogBrowser::setReview(const QString &text)
{
    setText(QString());
    document()->setDocumentLayout(new SpaceLayout(document()));
    keep(text);
    setPlainText(text);
}

void LogBrowser::append(const QString &text)
{
    m_lineIsUnfinished = false;
    const QString last = document()->lastBlock().text();
    const bool lastLineIsEmpty = last.isEmpty() || last.endsWith(QChar::LineSeparator);
    insertAtEnd(lastLineIsEmpty ? text : u'\n' + text);
}

void LogBrowser::write(const QString &output)
{
    if (output.isEmpty())
        return;
    if (m_lineIsUnfinished)
        insertAtEnd(output);
    else
        append(output);
    m_lineIsUnfinished = !output.endsWith(u'\n');
}

void LogBrowser::insertAtEnd(const QString &text)
{
    keep(text);
    // A review's layout lays all out anew with each text that comes.
    if (qobject_cast<SpaceLayout *>(document()->documentLayout()))
        document()->setDocumentLayout(nullptr);
    // A reader who has scrolled back keeps the place; at the end the text scrolls along.
    QScrollBar *scrollBar = verticalScrollBar();
    const bool atEnd = scrollBar->value() == scrollBar->maximum();
    if (document()->characterCount() > mostCharacters || scrollBar->maximum() > greatestHeight)
        showEndOnly();
    // The toolkit forgets it when it lays all out anew, as it does when the scroll bar comes.
    if (document()->pageSize().height() != pageHeight)
        document()->setPageSize(QSizeF(document()->pageSize().width(), pageHeight));
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    const bool joinsLines =
        document()->blockCount() > mostOfOneLine || text.count(u'\n') > mostAtOnce;
    end.insertText(inParagraphs(text, document()->lastBlock().text(), joinsLines));
    if (atEnd)
        scrollBar->setValue(scrollBar->maximum());
}

void LogBrowser::keep(const QString &text)
{
    if (!m_kept && m_text.size() + text.size() > longestInMemory) {
        m_kept = std::make_unique<QTemporaryFile>();
        const QString before = std::exchange(m_text, {});
        if (m_kept->open())
            keep(before);
    }
    if (!m_kept)
        m_text += text;
    else if (m_kept->isOpen() && !writeAll(*m_kept, text.toLocal8Bit()))
        m_kept->close();
}

void LogBrowser::showEndOnly()
{
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.setPosition(firstLeft(*document()).position(), QTextCursor::KeepAnchor);
    m_hidden += end.selectionStart();
    const QString rest = end.selectedText();
    // Without the scroll bar, and with it again, all would be laid out once more.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    clear();
    const bool isKept = !m_kept || m_kept->isOpen();
    QTextCursor(document())
        .insertText(
            u"[%1 million older characters are not shown; %2]\n"_s
                .arg(double(m_hidden) / 1e6, 0, 'f', 1)
                .arg(isKept ? "a saved log has them."_L1 : "there was no room to keep them."_L1)
            + rest);
}

bool LogBrowser::save(QIODevice &device) const
{
    if (!m_kept)
        return writeAll(device, m_text.toLocal8Bit());
    if (!m_kept->isOpen() || !m_kept->flush())
        return writeAll(device, toPlainText().toLocal8Bit());
    QFile file(m_kept->fileName());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const qint64 piece = 1'000'000;
    while (!file.atEnd()) {
        if (!writeAll(device, file.read(piece)))
            return false;
    }
    return true;
}
