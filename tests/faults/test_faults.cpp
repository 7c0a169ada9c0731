#include "answer_table.h"
#include "catalogue_file.h"
#include "faulty_calls.h"
#include "files.h"
#include "personality.h"
#include "row.h"
#include "settings_text.h"
#include "text_file.h"

#include <cerrno>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

// What is left of files, and what is told, when a call of the system fails or the program is killed
// there. The variable FAULTS says that every call has its turn, not a few.

namespace {

const bool tryAll = qEnvironmentVariableIsSet("FAULTS");

/// Adds a record of its own to the catalogue.
bool saveRecord(const QString &path, const QString &name)
{
    CatalogueFile file(path);
    CompilerCatalogue catalogue = file.load();
    catalogue.compilers << CompilerRecord {.Name = name, .Family = "Family"};
    return file.save(catalogue) == CatalogueFile::Result::Saved;
}

bool saveNewRecord(const QString &path)
{
    return saveRecord(path, "new - C");
}

bool saveSettings(const QString &path)
{
    const Answers answers {.substituteHeaders = QString(5000, 'x')};
    return platform::writeTextFile(path, settingsText("Product:\nkov\n\n", answers));
}

bool savePersonality(const QString &path)
{
    Personality personality;
    personality.facts.macros.known.fill({"M", "1"}, 20'000);
    return platform::writeFile(path, personalityText(personality));
}

QByteArray catalogueOf(int records)
{
    CompilerCatalogue catalogue;
    for (int i = 0; i < records; ++i)
        catalogue.compilers << CompilerRecord {.Name = "old " + QString::number(i)};
    return catalogueText(catalogue);
}

/// What has come of some tries.
struct Tries
{
    int all = 0, destroyed = 0, untold = 0, wrong = 0, left = 0;

    /// Prints it. False when anything went wrong, or nothing was tried.
    bool areFine() const
    {
        std::printf("%-36s %5d tries: %d destroyed, %d untold, %d wrong, %d left something\n",
                    QTest::currentDataTag(), all, destroyed, untold, wrong, left);
        return all > 0 && destroyed + untold + wrong + left == 0;
    }
};

} // namespace

class TestFaults : public QObject
{
    Q_OBJECT

private:
    using Save = bool (*)(const QString &path);

    /// Saves with each of the calls failing in turn with \a error: all that fail alone, and a few
    /// of the others.
    static void trySaves(Save save, const QByteArray &old, const QByteArray &expected, int error,
                         Tries &tries)
    {
        for (int call = 1;; call += tryAll || error == EIO ? 1 : 3) {
            const QTemporaryDir folder;
            const QString path = folder.filePath("file");
            writeTestFile(path, old);
            const pid_t child = fork();
            if (child == 0) {
                beginFault(call, error);
                const bool isSaved = save(path);
                _exit((isSaved ? 1 : 0) + (hasFaulted() ? 2 : 0));
            }
            int status;
            waitpid(child, &status, 0);
            const int told = WIFEXITED(status) ? WEXITSTATUS(status) : 2;
            if (told < 2)
                return;
            const QByteArray content = readTestFile(path);
            ++tries.all;
            tries.destroyed += content != old && content != expected;
            tries.untold += told == 3 && content != expected;
            // The next save goes well and cleans up.
            const bool isSaved = save(path) && readTestFile(path) == expected;
            tries.left += !isSaved || QDir(folder.path()).entryList(QDir::Files).size() != 1;
        }
    }

    /// Runs the generator in \a folder, with the fault in \a program, and returns its exit status;
    /// -1 when it was killed.
    static int generate(const QTemporaryDir &folder, const QString &program, int call, int error)
    {
        QDir(folder.path()).mkdir("temporary");
        QProcess generator;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", folder.filePath("temporary"));
        environment.insert("LD_PRELOAD", FAULTY_CALLS);
        environment.insert("FAULT_PROGRAM", program);
        environment.insert("FAULT_CALL", QString::number(call));
        environment.insert("FAULT_ERROR", QString::number(error));
        environment.insert("FAULT_COUNT", folder.filePath("count"));
        generator.setProcessEnvironment(environment);
        generator.setWorkingDirectory(folder.path());
        generator.setStandardOutputFile(folder.filePath("said"));
        generator.setStandardErrorFile(folder.filePath("said"), QIODevice::Append);
        generator.start(GENERATOR, {"kov", "cmp", "tcc -nostdinc", "-o", "-c", "-D", ".o",
                                    "%c %o%e %d%j %s ", "-op", "mine.p_c"});
        generator.waitForFinished(-1);
        return generator.exitStatus() == QProcess::NormalExit ? generator.exitCode() : -1;
    }

    /// The personality that is there, which names the folder.
    static QByteArray personalityIn(const QTemporaryDir &folder)
    {
        return readTestFile(folder.filePath("mine.p_c")).replace(folder.path().toUtf8(), "");
    }

    /// Whether the call has failed.
    static bool tryRun(const QByteArray &expected, const QString &program, int call, int error,
                       Tries &tries)
    {
        const QByteArray old = "old\n";
        const QTemporaryDir folder;
        writeTestFile(folder.filePath("mine.p_c"), old);
        const int status = generate(folder, program, call, error);
        const QByteArray count = readTestFile(folder.filePath("count"));
        if (count.isEmpty() || qFromUnaligned<int>(count.constData()) < call)
            return false;
        const QByteArray content = personalityIn(folder);
        ++tries.all;
        tries.destroyed += content != old && status != 0 && content != expected;
        tries.wrong += status == 0 && content != expected;
        tries.untold += status > 0 && readTestFile(folder.filePath("said")).isEmpty();
        const auto isEmpty = [&folder] { return QDir(folder.filePath("temporary")).isEmpty(); };
        // Whoever cleans up behind a killed generator is not waited for.
        tries.left += !QTest::qWaitFor(isEmpty, status < 0 ? patience / 10 : 0);
        return true;
    }

private slots:
    void keepsFilesWhole_data()
    {
        const Columns<Save, QByteArray> row("save", "old");
        row("a catalogue", &saveNewRecord, catalogueOf(3));
        row("a large catalogue", &saveNewRecord, catalogueOf(300));
        row("settings", &saveSettings, "Product:\nkovpp\n");
        row("a large personality", &savePersonality, "old\n");
    }
    void keepsFilesWhole()
    {
        QFETCH(Save, save);
        QFETCH(QByteArray, old);
        const QTemporaryDir folder;
        const QString path = folder.filePath("file");
        writeTestFile(path, old);
        QVERIFY(save(path));
        Tries tries;
        QList<int> errors {ENOSPC, EIO, EINTR, writeLess, killHere};
        if (tryAll)
            errors << EDQUOT << EACCES << EROFS;
        for (const int error : errors)
            trySaves(save, old, readTestFile(path), error, tries);
        QVERIFY(tries.areFine());
    }

    void keepsWhatTwoWizardsSave()
    {
        const int saves = tryAll ? 200 : 10;
        const QTemporaryDir folder;
        const QString path = folder.filePath("file");
        for (int wizard = 0; wizard < 2; ++wizard) {
            if (fork() != 0)
                continue;
            bool areSaved = true;
            for (int i = 0; i < saves; ++i)
                areSaved &= saveRecord(path, QString("%1 of %2 - C").arg(i).arg(wizard));
            _exit(areSaved ? 0 : 1);
        }
        for (int status = -1; wait(&status) > 0;)
            QCOMPARE(status, 0);
        QCOMPARE(CatalogueFile(path).load().compilers.size(), 2 * saves);
    }

    void endsRunsRightOrWithAnError_data()
    {
        const Columns<QString, int> row("program", "error");
        const QString generator = QFileInfo(GENERATOR).fileName(), compiler = "tcc";
        row("runs on a full disk", generator, ENOSPC);
        row("runs that are killed", generator, killHere);
        row("compilers on a full disk", compiler, ENOSPC);
        if (!tryAll)
            return;
        row("runs with too many files", generator, EDQUOT);
        row("runs on a broken disk", generator, EIO);
        row("runs that are interrupted", generator, EINTR);
        row("runs that may not", generator, EACCES);
        row("runs on a disk to be read", generator, EROFS);
        row("runs that write less", generator, writeLess);
        row("compilers on a broken disk", compiler, EIO);
        row("compilers that may not", compiler, EACCES);
        row("compilers that are killed", compiler, killHere);
    }
    void endsRunsRightOrWithAnError()
    {
        QFETCH(QString, program);
        QFETCH(int, error);
        const QTemporaryDir folder;
        QCOMPARE(generate(folder, program, 0, 0), 0);
        const QByteArray expected = personalityIn(folder);
        Tries tries;
        // Early calls are each another step; later ones repeat themselves.
        int call = tryAll ? 1 : 10;
        while (tryRun(expected, program, call, error, tries))
            call += tryAll ? 1 + call / 12 : call;
        QVERIFY(tries.areFine());
    }
};

QTEST_APPLESS_MAIN(TestFaults)
#include "test_faults.moc"
