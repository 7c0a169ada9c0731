#include "bexlor/compiler.h"

#include <QDir>
#include <QTemporaryDir>
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

    void makesRelativePathsAbsolute_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("absolute"); // "@" stands for the current folder
        QTest::newRow("file") << "first.h"
                              << "@/first.h";
        QTest::newRow("behind a letter") << "-Iinc dir"
                                         << "-I@/inc dir";
        QTest::newRow("behind a sign") << "--sysroot=inc dir"
                                       << "--sysroot=@/inc dir";
        QTest::newRow("no file") << "-Inowhere"
                                 << "-Inowhere";
        QTest::newRow("an option") << "-O2"
                                   << "-O2";
        QTest::newRow("absolute") << "/usr"
                                  << "/usr";
    }
    void makesRelativePathsAbsolute()
    {
        QFETCH(QString, word);
        QFETCH(QString, absolute);
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir("inc dir");
        QVERIFY(QFile(folder.filePath("first.h")).open(QIODevice::WriteOnly));
        QDir::setCurrent(folder.path());
        const QString made = withAbsolutePath(word);
        QCOMPARE(made, absolute.replace("@", QDir::currentPath()));
        QDir::setCurrent(QDir::rootPath());
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
        Compiler compiler;
        compiler.command = QStringList {"cc", "-m32"};
        compiler.outputFlag = outputFlag;
        compiler.objectFlag = "-c";
        compiler.defineFlag = "-D";
        compiler.order = order;
        compiler.defines = QStringList {"A", "B=1 2"};
        QTEST(compileCommand(compiler, "in.c", "out.o").join('|') + '|', "command");
    }
};

QTEST_APPLESS_MAIN(TestCompiler)
#include "test_compiler.moc"
