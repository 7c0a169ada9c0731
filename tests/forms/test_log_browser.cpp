#include "log_browser.h"
#include "row.h"

#include <QBuffer>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

class TestLogBrowser : public QObject
{
    Q_OBJECT

private slots:
    void startsParagraphsWhereTheLastHasText_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("shown");
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
        LogBrowser browser;
        browser.resize(200, 100);
        const QString text = "arm-none-eabi-gcc -mcpu=cortex-m4 -mfloat-abi=hard -DA=1 -c\n\n"
                             "-I/a/path/that/is/longer/than/the/whole/line-of-200-pixels/is -x";
        browser.setReview(text);
        browser.show();
        QCOMPARE(browser.toPlainText(), text);
        int lines = 0;
        for (QTextBlock block = browser.document()->begin(); block.isValid();
             block = block.next()) {
            const QTextLayout *layout = block.layout();
            for (int line = 0; line < layout->lineCount(); ++line, ++lines) {
                const int end =
                    layout->lineAt(line).textStart() + layout->lineAt(line).textLength();
                QVERIFY(end == block.text().size() || block.text()[end - 1] == ' ');
            }
        }
        QVERIFY2(lines >= 6, qPrintable(QString::number(lines)));
        QVERIFY(browser.horizontalScrollBar()->maximum() > 0);
        QVERIFY(browser.verticalScrollBar()->maximum() > 0);
        QCOMPARE(browser.verticalScrollBar()->value(), 0);

        const int secondLine = 4 + browser.fontMetrics().lineSpacing() * 3 / 2;
        const int position = browser.cursorForPosition({4, secondLine}).position();
        QVERIFY(position > 0 && text[position - 1] == ' ');
    }

    void savesAllThatCame_data()
    {
        QTest::addColumn<QString>("piece");
        QTest::addColumn<int>("pieces");
        QTest::addColumn<bool>("showsAll");
        row("a long line", QString("0123456789").repeated(1000), 3, true);
        row("a long text", QString("a line of a long text\n").repeated(1000), 60, true);
        row("more than can be shown", QString("\n").repeated(20'000), 100, false);
    }
    void savesAllThatCame()
    {
        QFETCH(QString, piece);
        QFETCH(int, pieces);
        QFETCH(bool, showsAll);
        LogBrowser browser;
        browser.resize(200, 100);
        browser.show();
        browser.setText("first\n");
        for (int i = 0; i < pieces; ++i)
            browser.write(piece);
        browser.append("last");
        QBuffer saved;
        QVERIFY(saved.open(QIODevice::WriteOnly) && browser.save(saved));
        const QByteArray all = "first\n" + piece.repeated(pieces).toLocal8Bit();
        QVERIFY(saved.data().startsWith(all.left(all.size() - 1)) && saved.data().endsWith("last"));
        QVERIFY(saved.size() - all.size() <= 5);
        const QString shown = browser.toPlainText();
        QVERIFY(shown.endsWith("\nlast"));
        QCOMPARE(shown.startsWith("first"), showsAll);
        QCOMPARE(shown.left(100).contains("older characters are not shown"), !showsAll);
    }

    void keepsThePlaceOfAReader()
    {
        LogBrowser browser;
        browser.resize(200, 100);
        browser.show();
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
