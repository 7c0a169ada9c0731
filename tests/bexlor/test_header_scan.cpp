#include "beside_compiler.h"
#include "compiler_names.h"
#include "directory_walk.h"
#include "header_sample.h"
#include "header_scan.h"

#include "files.h"
#include "row.h"

#include <filesystem>
#include <fstream>

class TestHeaderScan : public QObject
{
    Q_OBJECT

private:
    /// The names found, each followed by the letters of its uses.
    static QStringList shown(const HeaderScan &scan)
    {
        QStringList list;
        for (const ScannedName &name : scan.names) {
            list << name.text + ':';
            for (int bit = 0; bit < 4; ++bit)
                list.last() += name.uses & (1u << bit) ? QString("TUBO"[bit]) : QString();
        }
        return list;
    }

    static HeaderScan scanned(const QStringList &directories)
    {
        ScanProgress progress;
        return scanHeaders(directories, progress);
    }

private slots:
    void findsNames_data()
    {
        const Columns<QByteArray, QStringList> row("content", "names");
        row("conditionals",
            "#ifdef A1\n # if defined(Bb) \\\n || C\n#elif D /* E */ // F\n#endif\n",
            {"A1:T", "Bb:T", "C:T", "D:T", "defined:T"});
        row("a conditional at the very start", "#if Mixed \\\r\n && Lines\n",
            {"Lines:T", "Mixed:T"});
        row("uses", "__far int *x1; Upper camelCase __at(1) y;\n", {"__at:U", "__far:U", "int:U"});
        row("a definition's body", "#define NAME(a) __attribute__((a))\n#define __OTHER 1\n",
            {"__attribute__:U"});
        row("comments and literals",
            "/* __a * __b **/ \"__c \\\" __d\" '__e' // __f \\\n __g\n__h // __i", {"__h:U"});
        row("a literal without an end", "#error don't __stop\n\"open __x\n__y\n", {"__y:U"});
        row("a continued line of a comment", "// __a \\\r\n __b\n__c", {"__c:U"});
        row("a mark within a definition", "#define A \\\n#if __b\n__c\n",
            {"__b:U", "__c:U", "if:U"});
        row("a tested call", "#if __has(x)\n#endif\n__has (x)\n", {"__has:TU", "x:T"});
        row("long names", "__" + QByteArray(62, 'a') + " abcdefghijklm #\n", {});
        row("no line feed at the end", "#if __LAST", {"__LAST:T"});
        row("an unfinished comment", "__x /* __y", {"__x:U"});
        row("binary", QByteArray("\0\1__unix__\0ab\0UPPER_2=lower\0Mixed__case\0% __x", 45),
            {"UPPER_2:B", "__unix__:B", "__x:B", "lower:B"});
    }
    void findsNames()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        writeTestFile(folder.filePath("file.h"), content);
        QTEST(shown(scanned({folder.path()})), "names");
    }

    void knowsNamesOfTheCompiler()
    {
        const QTemporaryDir folder;
        writeTestFile(folder.filePath("arm-acme-cc"),
                      "#!/bin/sh\nexec gcc '-DIN_SCRIPT' -D IN_WORD=1 x-Dnone -dD \"$@\"\n");
        writeTestFile(folder.filePath("cc.cfg"), "/DIN_CFG,-Dlower=1\n");
        writeTestFile(folder.filePath("cc.txt"), "-DNONE\n");
        Compiler compiler;
        compiler.command = (folder.filePath("arm-acme-cc") + "|-mcpu=cortex-m4|--model-large|-m51|"
                            + "-I/none|-DIN_COMMAND=none|/D|IN_NEXT")
                               .split('|');
        QStringList names;
        for (const ScannedName &name : namesOfCompiler(compiler, "Odd 3.1"))
            names << name.text;
        for (const char *name : {"IN_COMMAND", "IN_NEXT", "IN_SCRIPT", "IN_WORD", "IN_CFG", "lower",
                                 "__arm__", "_ACME", "__cortex_m4__", "__CPU_CORTEX_M4",
                                 "__CC_MODEL_LARGE", "__ARM_51__", "__CC_Odd", "m51"})
            QVERIFY2(names.contains(name), name);
        for (const char *name : {"none", "NONE", "51", "M"})
            QVERIFY2(!names.contains(name), name);
        writeTestFile(folder.filePath("build.mk"), "CC = cc -DIN_MAKEFILE\n");
        QVERIFY(shown(scanned({folder.path()})).contains("IN_MAKEFILE:O"));
    }

    void walksOverEverythingOnce()
    {
        const QTemporaryDir folder;
        writeTestFile(folder.filePath("one/a.h"), "__one\n");
        writeTestFile(folder.filePath("one/two/b.h"), "__two\n");
        const std::filesystem::path one = folder.filePath("one").toStdWString();
        std::error_code none; // not every system lets everyone make links
        std::filesystem::create_directory_symlink("..", one / "two/loop", none);
        std::filesystem::create_symlink("two/b.h", one / "link.h", none);
        std::filesystem::create_symlink("nowhere", one / "broken.h", none);
        QProcess::execute("mkfifo", {folder.filePath("one/pipe.h")});
        ScanProgress progress;
        const HeaderScan scan = scanHeaders(
            {folder.filePath("one"), folder.filePath("missing"), folder.path()}, progress);
        QCOMPARE(shown(scan), QStringList({"__one:U", "__two:U"}));
        QStringList headers;
        for (const HeaderFile &header : scan.headers)
            headers << header.directory.mid(folder.path().size()) + '/' + header.name;
        if (none)
            headers.insert(1, "/one/link.h");
        QCOMPARE(headers, QStringList({"/one/a.h", "/one/link.h", "/one/two/b.h"}));
        QCOMPARE(progress.found, scan.files);
        QCOMPARE(progress.read, scan.files);
        std::atomic<qint64> found = 0;
        int read = 0;
        for (const WalkedFile &file : walkDirectories({folder.filePath("one")}, found).files)
            read += file.isRead;
        QCOMPARE(read, 2);
        QCOMPARE(scan.remarks, QStringList {"Passed over, since it does not exist: "
                                            + folder.filePath("missing")});
    }

    void staysInBoundsAtAnyDepth()
    {
        const QTemporaryDir folder;
        // So deep that looking at the whole path of each for links would take minutes.
        writeTestFile(folder.filePath("given" + QString("/d").repeated(1000) + "/x.h"), "__deep\n");
        writeTestFile(folder.filePath("given/a.h"), "__a\n");
        writeTestFile(folder.filePath("beside/b.h"), "__b\n");
        writeTestFile(folder.filePath("given/odd\nname/c.h"), "__c\n");
        QFile::link("../beside", folder.filePath("given/beside"));
        QFile::link("../..", folder.filePath("given/up"));
        QFile::link("/proc/self", folder.filePath("given/process"));
        QFile::link("/proc/kmsg", folder.filePath("given/kmsg.h"));
        const HeaderScan scan = scanned({folder.filePath("given")});
        QCOMPARE(shown(scan), QStringList({"__a:U", "__b:U", "__deep:U"}));
        QStringList passedOver;
        for (const QString &remark : scan.remarks)
            passedOver << remark.section('/', -1);
        QCOMPARE(passedOver, QStringList({"odd\nname", "up", "kmsg.h", "process"}));
    }

    void readsFilesOfAnySize()
    {
        const QTemporaryDir folder;
        writeTestFile(folder.filePath("empty.h"), "");
        writeTestFile(folder.filePath("large.h"), QByteArray(3'000'000, '\n') + "__at_the_end");
        writeTestFile(folder.filePath("large.bin"), QByteArray(3'000'000, '\0') + "__in_a_binary");
        // A name that is no text in the usual encoding.
        const std::string oddName = folder.path().toStdString() + "/\xff.h";
        std::ofstream(oddName) << "__in_an_odd_file\n";
        for (int i = 0; i < 70; ++i)
            writeTestFile(folder.filePath(QString("many%1.h").arg(i)),
                          "__n" + QByteArray::number(i));
        // It has no first page to read.
        const bool isUnreadable = QFile::link("/proc/self/mem", folder.filePath("unreadable.h"))
                               && QDir::separator() == '/';
        const HeaderScan scan = scanned({folder.path()});
        QCOMPARE(scan.remarks.size(), isUnreadable ? 1 : 0);
        std::filesystem::remove(oddName);
        const QStringList names = shown(scan);
        for (const char *name :
             {"__n0:U", "__n69:U", "__in_a_binary:B", "__at_the_end:U", "__in_an_odd_file:U"})
            QVERIFY2(names.contains(name), name);
    }

    void samplesAllOfTheSearchPath()
    {
        const QTemporaryDir folder;
        const QStringList there {"plain.h",      "sys/a.h",       "util/b.h",
                                 "util/c.h",     "util/x/deep.h", "more/d.h",
                                 "more/sys/a.h", "string",        "avr/notes.txt"};
        for (const QString &file : there)
            writeTestFile(folder.filePath(file));
        for (int i = 0; i < 50; ++i) {
            writeTestFile(folder.filePath(QString("many/%1.h").arg(i)));
            writeTestFile(folder.filePath(QString("others/%1.h").arg(i)));
        }
        const QStringList searched {folder.path(), folder.filePath("more"), folder.filePath("no")};
        const QStringList sample = headersInTurn(searched, false);
        QCOMPARE(sample.size(), 105);
        QStringList first = sample.mid(0, 9);
        for (const char *name : {"plain.h", "d.h", "sys/a.h"})
            QVERIFY2(first.removeOne(name), qPrintable(sample.join(' ')));
        for (const char *folderBelow : {"util/", "many/", "others/"})
            QCOMPARE(first.filter(folderBelow).size(), 2);
        QCOMPARE(headersInTurn(searched, false), sample);
        QVERIFY(headersInTurn(searched, true).contains("string"));
    }

    void looksBesideCompilers_data()
    {
        // "$" stands for the folder of all; directories: those of them that are found
        const Columns<QString, QStringList, QStringList> row("program", "there", "directories");
        row("above", "bin/acc", {"include", "inc"}, {"include", "inc"});
        row("by its name", "bin/acc.EXE",
            {"acc/include", "lib/acc/include", "lib/other/include", "share/acc/include"},
            {"lib/acc/include", "share/acc/include", "acc/include"});
        row("by its target", "bin/arm-eabi-acc", {"arm-eabi/include", "lib/arm/include"},
            {"arm-eabi/include", "lib/arm/include"});
        row("around it", "acc", {"include"}, {"include"});
        row("far above", "bin/x/y/acc.exe", {"include"}, {"include"});
        row("named in its file", "bin/acc", {"a b (z)/incs/z80", "a b (z)/lib"},
            {"a b (z)/incs/z80"});
        row("nothing", "bin/acc", {"lib", "share/acc"}, {});
    }
    void looksBesideCompilers()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, there);
        QFETCH(QStringList, directories);
        const QTemporaryDir folder;
        const QString top = QDir(folder.path()).canonicalPath() + '/';
        for (const QString &directory : there)
            QDir().mkpath(top + directory);
        // Also as one that others are made from, and that is not there.
        writeTestFile(top + program, QByteArray("\0x=", 3) + top.toUtf8() + "a b (z)/incs/z80:"
                                         + top.toUtf8() + "a b (z)/lib;{B}" + top.toUtf8()
                                         + "include/inc\0" + top.toUtf8() + "include/none");
        QStringList expected;
        for (const QString &directory : directories)
            expected << top + directory;
        QCOMPARE(directoriesBeside(top + program), expected);
    }
};

QTEST_APPLESS_MAIN(TestHeaderScan)
#include "test_header_scan.moc"
