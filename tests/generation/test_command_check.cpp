#include "generation/command_check.h"

#include <QTest>

class TestCommandCheck : public QObject
{
    Q_OBJECT

private slots:
    void takesTheProgramsWord_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("word");
        QTest::newRow("bare") << "cc"
                              << "cc";
        QTest::newRow("with options") << "cc -m32 \"x\""
                                      << "cc";
        QTest::newRow("leading space") << " cc"
                                       << "";
        QTest::newRow("quoted") << "\"C:\\a b\\cc\" -m32"
                                << "C:\\a b\\cc";
        QTest::newRow("no closing quote") << "\"C:\\a b\\cc -m32"
                                          << "C:\\a b\\cc -m32";
        QTest::newRow("quote only") << "\""
                                    << "";
    }
    void takesTheProgramsWord()
    {
        QFETCH(QString, line);
        QTEST(commandWord(line), "word");
    }
};

QTEST_APPLESS_MAIN(TestCommandCheck)
#include "test_command_check.moc"
