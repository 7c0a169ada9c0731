#include "command_check.h"
#include "row.h"

#include <QTest>

class TestCommandCheck : public QObject
{
    Q_OBJECT

private slots:
    void takesTheProgramsWord_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("word");
        row("bare", "cc", "cc");
        row("with options", "cc -m32 \"x\"", "cc");
        row("leading space", " cc", "");
        row("quoted", "\"C:\\a b\\cc\" -m32", "C:\\a b\\cc");
        row("no closing quote", "\"C:\\a b\\cc -m32", "C:\\a b\\cc -m32");
        row("quote only", "\"", "");
    }
    void takesTheProgramsWord()
    {
        QFETCH(QString, line);
        QTEST(commandWord(line), "word");
    }
};

QTEST_APPLESS_MAIN(TestCommandCheck)
#include "test_command_check.moc"
