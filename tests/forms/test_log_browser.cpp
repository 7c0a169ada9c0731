#include "log_browser.h"
#include "row.h"
#include "space_layout.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

namespace {

/// A small one that is shown.
struct ShownBrowser : LogBrowser
{
    ShownBrowser()
    {
        resize(200, 100);
        show();
    }
};

} // namespace

class TestLogBrowser : public QObject
{
    Q_OBJECT

private slots:
    void startsParagraphsWhereTheLastHasText_data()
    {
        const Columns<QString, QString, QString> row("first", "second", "shown");
        row("text after text", "one", "two", "one\ntwo");
        row("text after a line feed", "one\n", "two", "one\ntwo");
        row("text after an empty line", "one\n\n", "two", "one\n\ntwo");
        row("a heading with line feeds", "one\n", "\n\ntwo\n", "one\n\n\ntwo\n");
        row("the first text", "", "two", "two");
        row("markup", "<b>one</b>", "&lt;<i>", "<b>one</b>\n&lt;<i>");
    }
    void startsParagraphsWhereTheLastHasText()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        LogBrowser browser;
        browser.setText(first);
        browser.append(second);
        QTEST(browser.toPlainText(), "shown");
    }

    void breaksAReviewAtSpacesOnly()
    {
        ShownBrowser browser;
        const QString text = "arm-none-eabi-gcc -mcpu=cortex-m4 -mfloat-abi=hard -DA=1 -c\n\n"
                             "-I/a/path/that/is/longer/than/the/whole/line-of-200-pixels/is -x";
        browser.setText("what was there before");
        browser.setReview(text);
        QCOMPARE(browser.toPlainText(), text);
        QBuffer saved;
        QVERIFY(saved.open(QIODevice::WriteOnly) && browser.save(saved));
        QCOMPARE(saved.data(), text.toLocal8Bit());
        int lines = 0;
        for (QTextBlock block = browser.document()->begin(); block.isValid();
             block = block.next()) {
            for (int line = 0; line < block.layout()->lineCount(); ++line, ++lines) {
                const QTextLine broken = block.layout()->lineAt(line);
                const int end = broken.textStart() + broken.textLength();
                QVERIFY(end == block.text().size() || block.text()[end - 1] == ' ');
                const QPointF start = block.layout()->position() + broken.rect().topLeft();
                const QPoint pointer(0, int(start.y() + broken.height() / 2));
                QCOMPARE(browser.cursorForPosition(pointer).position(),
                         block.position() + broken.textStart());
            }
        }
        QVERIFY2(lines >= 6, qPrintable(QString::number(lines)));
        QVERIFY(browser.horizontalScrollBar()->maximum() > 0);
        QVERIFY(browser.verticalScrollBar()->maximum() > 0);
        QCOMPARE(browser.verticalScrollBar()->value(), 0);

        const QBitmap image = QBitmap::fromPixmap(browser.viewport()->grab());
        QVERIFY(QRegion(image).boundingRect().height() > 50);

        // What a run writes behind it may have no end.
        browser.write("output\n");
        QVERIFY(browser.toPlainText().startsWith(text + "\noutput"));
        QVERIFY(!qobject_cast<SpaceLayout *>(browser.document()->documentLayout()));
    }

    void savesAllThatCame_data()
    {
        const Columns<QString, int, QString> row("piece", "pieces", "remark");
        const QString manyLines = QString("\n").repeated(20'000);
        row("a long line", QString("0123456789").repeated(1000), 3, "");
        row("a long text", QString("a line of a long text\n").repeated(1000), 60, "");
        row("more than can be shown", manyLines, 100, "a saved log has them");
        row("without room for a file", manyLines, 100, "there was no room");
    }
    void savesAllThatCame()
    {
        QFETCH(QString, piece);
        QFETCH(int, pieces);
        QFETCH(QString, remark);
        const bool hasRoom = !remark.endsWith("no room");
        const QTemporaryDir folder;
        const QString name = QCoreApplication::applicationName(); // temporary files are called so
        if (!hasRoom)
            QCoreApplication::setApplicationName(folder.filePath("none/test"));
        ShownBrowser browser;
        browser.setText("first\n");
        for (int i = 0; i < pieces; ++i)
            browser.write(piece);
        browser.append("last");
        QCoreApplication::setApplicationName(name);
        QBuffer saved, closed;
        QVERIFY(saved.open(QIODevice::WriteOnly) && browser.save(saved) && !browser.save(closed));
        const QString shown = browser.toPlainText();
        QVERIFY(shown.endsWith("\nlast"));
        QCOMPARE(shown.startsWith("first"), remark.isEmpty());
        QVERIFY(shown.left(100).contains(remark));
        const QByteArray all =
            hasRoom ? "first\n" + piece.repeated(pieces).toLocal8Bit() : shown.toLocal8Bit();
        QVERIFY(saved.data().startsWith(all.chopped(1)) && saved.data().endsWith("last"));
        QVERIFY(saved.size() - all.size() <= 5);
    }

    void keepsThePlaceOfAReader()
    {
        ShownBrowser browser;
        browser.setText(QString("line\n").repeated(100));
        QScrollBar *scrollBar = browser.verticalScrollBar();
        scrollBar->setValue(scrollBar->maximum());
        browser.append(QString("line\n").repeated(100));
        QCOMPARE(scrollBar->value(), scrollBar->maximum());
        scrollBar->setValue(10);
        browser.append(QString("line\n").repeated(100));
        QCOMPARE(scrollBar->value(), 10);
    }
};

QTEST_MAIN(TestLogBrowser)
#include "test_log_browser.moc"
