#include "log_browser.h"
#include "row.h"

#include <QScrollBar>
#include <QTest>

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
