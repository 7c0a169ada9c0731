#include "bexlor/compiler.h"

#include <QTest>

class TestCompiler : public QObject
{
    Q_OBJECT

private slots:
    void splitsTheCommand_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("bare") << "cc" << QStringList {"cc"};
        QTest::newRow("options") << "\"cc -m32 -x\"" << QStringList {"cc", "-m32", "-x"};
        QTest::newRow("path with a space") << "\"/a b/cc\"" << QStringList {"/a b/cc"};
        QTest::newRow("quoted path with options")
            << "\"/a b/cc\" -m32 \"-D x\"" << QStringList {"/a b/cc", "-m32", "-D x"};
        QTest::newRow("options with quotes")
            << "\"cc -I\"a b\" -m32\"" << QStringList {"cc", "-Ia b", "-m32"};
        QTest::newRow("unknown program") << "\"dd -m32\"" << QStringList {"dd", "-m32"};
        QTest::newRow("empty") << "" << QStringList();
    }
    void splitsTheCommand()
    {
        QFETCH(QString, command);
        const auto isProgram = [](const QString &word) {
            return word == "cc" || word == "/a b/cc";
        };
        QTEST(commandWords(command, isProgram), "words");
    }

    void ordersTheCommand_data()
    {
        QTest::addColumn<QString>("order");
        QTest::addColumn<QString>("outputFlag");
        QTest::addColumn<QString>("command"); // words, each followed by "|"
        QTest::newRow("joined flags") << "%c %o%e %d%j %s "
                                      << "-o"
                                      << "cc|-m32|-oout.o|-DA|-DB=1 2|-c|in.c|";
        QTest::newRow("flags apart") << "%c %o %e %d %j %s "
                                     << "-o"
                                     << "cc|-m32|-o|out.o|-D|A|-D|B=1 2|-c|in.c|";
        QTest::newRow("source first") << "%s %c "
                                      << "-o"
                                      << "in.c|cc|-m32|";
        QTest::newRow("no output flag") << "%c %o%e %j %s "
                                        << ""
                                        << "cc|-m32|-c|in.c|";
        QTest::newRow("output without a flag") << "%c %e %s "
                                               << ""
                                               << "cc|-m32|out.o|in.c|";
    }
    void ordersTheCommand()
    {
        QFETCH(QString, order);
        QFETCH(QString, outputFlag);
        const Compiler compiler {{"cc", "-m32"}, outputFlag, "-c", "-D", order, {"A", "B=1 2"}};
        QTEST(compileCommand(compiler, "in.c", "out.o").join('|') + '|', "command");
    }
};

QTEST_APPLESS_MAIN(TestCompiler)
#include "test_compiler.moc"
