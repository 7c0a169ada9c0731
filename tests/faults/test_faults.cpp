#include "answer_table.h"
#include "catalogue_file.h"
#include "faulty_calls.h"
#include "files.h"
#include "personality.h"
#include "row.h"
#include "settings_text.h"
#include "text_file.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

// What is left of files, and what is told, when a call of the system fails or the program is killed
// there. The variable FAULTS says that every call has its turn, not a few.

namespace {

const bool tryAll = qEnvironmentVariableIsSet("FAULTS");
const int faults[] = {ENOSPC, EDQUOT, EIO, EINTR, EACCES, EROFS, writeLess, killHere};

/// Adds a record of its own to the catalogue.
bool saveRecord(const QString &path, const QString &name)
{
    CatalogueFile file(path);
    CompilerCatalogue catalogue = file.load();
    CompilerRecord record;
    record.Family = "Family";
    record.Name = name;
    catalogue.compilers << record;
    return file.save(catalogue) == CatalogueFile::Result::Saved;
}

bool saveNewRecord(const QString &path)
{
    return saveRecord(path, "new - C");
}

bool saveSettings(const QString &path)
{
    Answers answers;
    answers.substituteHeaders = QString(5000, 'x');
    return platform::writeTextFile(path, settingsText("Product:\nkov\n\n", answers));
}

bool savePersonality(const QString &path)
{
    Personality personality;
    for (int i = 0; i < 20'000; ++i)
        personality.facts.macros.known << Macro {"M" + QByteArray::number(i), "1"};
    return platform::writeFile(path, personalityText(personality));
}

QByteArray catalogueOf(int records)
{
    CompilerCatalogue catalogue;
    for (int i = 0; i < records; ++i) {
        CompilerRecord record;
        record.Family = "Family";
        record.Name = QString("old %1 - C").arg(i);
        catalogue.compilers << record;
    }
    return catalogueText(catalogue);
}

/// What has come of some tries.
struct Tries
{
    int all = 0, destroyed = 0, untold = 0, wrong = 0, left = 0;

    void print(const char *name) const
    {
        std::printf("%-36s %5d tries: %d destroyed, %d untold, %d wrong, %d left something\n", name,
                    all, destroyed, untold, wrong, left);
        std::fflush(stdout);
    }
    bool areFine() const { return all > 0 && destroyed + untold + wrong + left == 0; }
};

/// How a process of its own has ended in which something was done.
struct Outcome
{
    int status = 0; ///< as waitpid() gives it
    bool hasFailed = false;

    bool succeeded() const { return WIFEXITED(status) && WEXITSTATUS(status) == 0; }
};

/// Does \a action, which tells whether it has succeeded, in a process of its own with \a fault.
template <typename Action>
Outcome inChild(const Fault &fault, const Action &action)
{
    int ends[2];
    if (pipe(ends) != 0)
        qFatal("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        beginFault(&fault);
        const bool succeeded = action();
        bool hasFailed;
        endFault(&hasFailed);
        if (write(ends[1], &hasFailed, 1) != 1)
            _exit(2);
        _exit(succeeded ? 0 : 1);
    }
    Outcome outcome;
    waitpid(child, &outcome.status, 0);
    close(ends[1]);
    char byte = 1; // a killed process tells nothing
    outcome.hasFailed = read(ends[0], &byte, 1) != 1 || byte != 0;
    close(ends[0]);
    return outcome;
}

} // namespace

class TestFaults : public QObject
{
    Q_OBJECT

private:
    using Save = bool (*)(const QString &path);

    /// Saves with each of the calls failing in turn with \a error.
    static void trySaves(Save save, const QByteArray &old, const QByteArray &expected, int error,
                         Tries &tries)
    {
        for (int call = 1;; call += tryAll ? 1 : 3) {
            const QTemporaryDir folder;
            const QString path = folder.filePath("file");
            writeTestFile(path, old);
            const Outcome outcome = inChild({call, error}, [&] { return save(path); });
            if (!outcome.hasFailed)
                return;
            const QByteArray content = readTestFile(path);
            ++tries.all;
            tries.destroyed += content != old && content != expected;
            tries.untold += outcome.succeeded() && content != expected;
            // The next save goes well and cleans up.
            const bool isSaved = save(path) && readTestFile(path) == expected;
            tries.left += !isSaved || QDir(folder.path()).entryList(QDir::Files).size() != 1;
        }
    }

    /// Runs the generator in \a folder, and returns its exit status; -1 when it was killed.
    static int generate(const QTemporaryDir &folder, const Fault &fault)
    {
        QProcess generator;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", folder.filePath("temporary"));
        environment.insert("LD_PRELOAD", FAULTY_CALLS);
        environment.insert("FAULT_PROGRAM", QFileInfo(GENERATOR).fileName());
        environment.insert("FAULT_CALL", QString::number(fault.call));
        environment.insert("FAULT_ERROR", QString::number(fault.error));
        environment.insert("FAULT_MARK", folder.filePath("mark"));
        generator.setProcessEnvironment(environment);
        generator.setWorkingDirectory(folder.path());
        generator.setProcessChannelMode(QProcess::MergedChannels);
        generator.start(GENERATOR, {"kov", "cmp", "tcc", "-o", "-c", "-D", ".o", "%c %o%e %d%j %s ",
                                    "-op", "mine.p_c"});
        generator.waitForFinished(-1);
        writeTestFile(folder.filePath("said"), generator.readAll());
        return generator.exitStatus() == QProcess::NormalExit ? generator.exitCode() : -1;
    }

    static void tryRun(const QByteArray &expected, const Fault &fault, Tries &tries,
                       bool &hasFailed)
    {
        const QByteArray old = "old\n";
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir("temporary");
        writeTestFile(folder.filePath("mine.p_c"), old);
        const int status = generate(folder, fault);
        hasFailed = QFile::exists(folder.filePath("mark"));
        const QByteArray content = readTestFile(folder.filePath("mine.p_c"));
        ++tries.all;
        tries.destroyed += content != old && status != 0 && content != expected;
        tries.wrong += status == 0 && content != expected;
        tries.untold += status > 0 && readTestFile(folder.filePath("said")).isEmpty();
        const QDir temporary(folder.filePath("temporary"));
        const auto isEmpty = [&temporary] {
            return temporary.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty();
        };
        // Whoever cleans up behind a killed generator is not waited for.
        tries.left += !QTest::qWaitFor(isEmpty, status < 0 ? patience : 0);
    }

private slots:
    void keepsFilesWhole_data()
    {
        QTest::addColumn<Save>("save");
        QTest::addColumn<QByteArray>("old");
        row("a catalogue", &saveNewRecord, catalogueOf(3));
        row("a large catalogue", &saveNewRecord, catalogueOf(300));
        row("settings", &saveSettings, QByteArray("Product:\nkovpp\n"));
        row("a large personality", &savePersonality, QByteArray("old\n"));
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
        for (const int error : faults)
            trySaves(save, old, readTestFile(path), error, tries);
        tries.print(QTest::currentDataTag());
        QVERIFY(tries.areFine());
    }

    void keepsWhatTwoWizardsSave()
    {
        const int saves = tryAll ? 200 : 10;
        const QTemporaryDir folder;
        const QString path = folder.filePath("file");
        writeTestFile(path, "");
        QList<pid_t> wizards;
        for (int wizard = 0; wizard < 2; ++wizard) {
            wizards << fork();
            if (wizards.last() != 0)
                continue;
            bool areSaved = true;
            for (int i = 0; i < saves; ++i)
                areSaved &= saveRecord(path, QString("%1 of %2 - C").arg(i).arg(wizard));
            _exit(areSaved ? 0 : 1);
        }
        for (const pid_t wizard : wizards) {
            int status;
            waitpid(wizard, &status, 0);
            QCOMPARE(status, 0);
        }
        const auto kept = CatalogueFile(path).load().compilers.size();
        std::printf("%-36s %5d saves: %d kept\n", "two wizards", 2 * saves, int(kept));
        QCOMPARE(kept, 2 * saves);
    }

    void endsRunsRightOrWithAnError()
    {
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir("temporary");
        QCOMPARE(generate(folder, {}), 0);
        const QByteArray expected = readTestFile(folder.filePath("mine.p_c"));
        Tries tries;
        const QList<int> errors =
            tryAll ? QList<int>(std::begin(faults), std::end(faults)) : QList<int> {ENOSPC};
        // Early calls are each another step; later ones repeat themselves.
        for (const int error : errors) {
            bool hasFailed = true;
            for (int call = tryAll ? 1 : 100; hasFailed && call < (tryAll ? 100'000 : 101);
                 call += 1 + call / (tryAll ? 5 : 1))
                tryRun(expected, {call, error}, tries, hasFailed);
        }
        tries.print("runs of the generator");
        QVERIFY(tries.areFine());
    }
};

QTEST_APPLESS_MAIN(TestFaults)
#include "test_faults.moc"
