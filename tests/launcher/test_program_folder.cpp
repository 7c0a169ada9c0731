#include "program_folder.h"

#include "files.h"
#include "row.h"

class TestProgramFolder : public QObject
{
    Q_OBJECT

private:
    static QByteArray entry(const QByteArray &name, const QByteArray &command)
    {
        return " <Compiler>\n  <Name>" + name + "</Name>\n  <Family>F</Family>\n  <ExeCommand>"
             + command + "</ExeCommand>\n </Compiler>\n\n";
    }

private slots:
    void keepsWhatTheUserHasMade()
    {
        const QTemporaryDir parent;
        const QString shipped = parent.filePath("shipped"), own = parent.filePath("own/calyx");
        const QByteArray first = "<CompilerFamily>F</CompilerFamily>\n\n" + entry("a - C", "a");
        writeTestFile(shipped + "/compilers.txt", first);
        writeTestFile(shipped + "/images/review.bmp", "1");
        writeTestFile(shipped + "/SubstituteHeaders/in/here.h", "1");
        QCOMPARE(bringUpToDate(shipped, own), QStringList());
        QCOMPARE(readTestFile(own + "/bin/compilers.txt"), first);

        writeTestFile(own + "/SubstituteHeaders/in/here.h", "mine");
        writeTestFile(own + "/TemplatePersonalities/mine.p_c", "mine");
        writeTestFile(own + "/bin/settings.txt", "mine");
        writeTestFile(own + "/bin/compilers.txt", first + entry("b - C", "mine"));
        writeTestFile(shipped + "/images/review.bmp", "2");
        writeTestFile(shipped + "/compilers.txt",
                      first + entry("b - C", "theirs") + entry("c - C", "c"));
        for (int start = 0; start < 2; ++start) {
            QCOMPARE(bringUpToDate(shipped, own), QStringList());
            const QByteArray catalogue = readTestFile(own + "/bin/compilers.txt");
            QVERIFY(catalogue.startsWith(first + entry("b - C", "mine")));
            QVERIFY(catalogue.count("<Name>c - C</Name>") == 1);
            QVERIFY(!catalogue.contains("theirs"));
            QCOMPARE(readTestFile(own + "/images/review.bmp"), "2");
            for (const char *file : {"SubstituteHeaders/in/here.h",
                                     "TemplatePersonalities/mine.p_c", "bin/settings.txt"})
                QCOMPARE(readTestFile(own + '/' + file), "mine");
        }
    }

    void worksInOneFolder()
    {
        const QTemporaryDir folder;
        writeTestFile(folder.filePath("compilers.txt"), entry("a - C", "a"));
        QCOMPARE(bringUpToDate(folder.path(), folder.path()), QStringList());
        QCOMPARE(readTestFile(folder.filePath("bin/compilers.txt")), entry("a - C", "a"));
    }

    void saysWhatFails()
    {
        const QTemporaryDir parent;
        writeTestFile(parent.filePath("shipped/compilers.txt"), entry("a - C", "a"));
        writeTestFile(parent.filePath("shipped/images/review.bmp"), "1");
        writeTestFile(parent.filePath("own")); // no folder can be made there
        const QStringList failed =
            bringUpToDate(parent.filePath("shipped"), parent.filePath("own"));
        QVERIFY(failed.contains(parent.filePath("own/images/review.bmp")));
        QVERIFY(failed.contains(parent.filePath("own/bin/compilers.txt")));
        QCOMPARE(bringUpToDate(parent.filePath("nowhere"), parent.filePath("other")),
                 QStringList {parent.filePath("other/bin/compilers.txt")});
    }
};

QTEST_APPLESS_MAIN(TestProgramFolder)
#include "test_program_folder.moc"
