#include "process_tree.h"

#include "file_system.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <array>
#include <qt_windows.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// A living program keeps this file in its folder open, and no other program can open it meanwhile.
const QLatin1String lockName("in-use");

HANDLE lock = INVALID_HANDLE_VALUE;

HANDLE openLock(const QString &folder, DWORD disposition)
{
    const QString path = QDir::toNativeSeparators(folder + u'/' + lockName);
    return CreateFileW(reinterpret_cast<const wchar_t *>(path.utf16()), GENERIC_WRITE, 0, nullptr,
                       disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// Removes \a folder. The file by which it is known goes last: what a dying program still holds is
/// left for the next who comes by.
void removeFolder(const QString &folder)
{
    QDirIterator entry(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    bool isEmpty = true;
    while (entry.hasNext()) {
        const QFileInfo info(entry.next());
        if (info.fileName() == lockName)
            continue;
        isEmpty &= info.isDir() ? QDir(info.filePath()).removeRecursively()
                                : QFile::remove(info.filePath());
    }
    if (isEmpty)
        QDir(folder).removeRecursively();
}

/// Removes the folders beside \a folder, of the same name but for the letters that make it unique,
/// whose programs have been killed.
void removeAbandonedFolders(const QString &folder)
{
    const QFileInfo own(folder);
    const QString stem = own.fileName().section(u'-', 0, -2);
    const QDir parent = own.dir();
    for (const QString &name : parent.entryList({stem + "-*"_L1}, QDir::Dirs)) {
        const QString path = parent.filePath(name);
        const HANDLE abandoned = openLock(path, OPEN_EXISTING);
        if (abandoned == INVALID_HANDLE_VALUE)
            continue;
        CloseHandle(abandoned);
        removeFolder(path);
    }
}

// For programs that have been ended to be gone, in milliseconds.
const DWORD longestWait = 2000, usualWait = 10;

/// Whether a program of \a job still runs.
bool isRunning(HANDLE job)
{
    JOBOBJECT_BASIC_ACCOUNTING_INFORMATION information {};
    return QueryInformationJobObject(job, JobObjectBasicAccountingInformation, &information,
                                     sizeof information, nullptr)
        && information.ActiveProcesses > 0;
}

/// The file that the system would start for \a program. It ignores dots and spaces at the end of a
/// name, and cannot start a script that lies, without an extension, beside a program.
QString programFile(QString program)
{
    while (program.endsWith(u'.') || program.endsWith(u' '))
        program.chop(1);
    if (QFileInfo(program).suffix().isEmpty()) {
        for (const char *extension : {".exe", ".com", ".bat", ".cmd"}) {
            if (QFileInfo::exists(program + QLatin1String(extension)))
                return program + QLatin1String(extension);
        }
    }
    return program;
}

bool isBatchFile(const QString &program)
{
    const QString suffix = QFileInfo(program).suffix().toLower();
    return suffix == "bat"_L1 || suffix == "cmd"_L1;
}

QString commandInterpreter()
{
    std::array<wchar_t, MAX_PATH> folder {};
    GetSystemDirectoryW(folder.data(), UINT(folder.size()));
    return QString::fromWCharArray(folder.data()) + "\\cmd.exe"_L1;
}

// Stands for a percent sign in a command: what a variable holds is not looked through again.
const QLatin1String percentVariable("BEXLOR_PERCENT");

/// \a argument, in quotes unless it is a plain word, so that the command interpreter hands it to a
/// batch file and finds nothing in it. A quotation mark is doubled: that keeps the interpreter's
/// count of them even, and most programs that a batch file calls take two for one, if the
/// backslashes before it are doubled.
QString quotedForInterpreter(const QString &argument)
{
    static const QRegularExpression plainWord(u"^[A-Za-z0-9_.:/\\\\+-]+$"_s);
    if (plainWord.match(argument).hasMatch())
        return argument;
    QString quoted(u'"');
    int backslashes = 0;
    for (const QChar character : argument) {
        if (character == u'"')
            quoted += QString(backslashes, u'\\') + "\"\""_L1;
        else if (character == u'%')
            quoted += u'%' + percentVariable + u'%';
        else
            quoted += character;
        backslashes = character == u'\\' ? backslashes + 1 : 0;
    }
    return quoted + QString(backslashes, u'\\') + u'"';
}

} // namespace

void ProgramGuard::begin(const QString &folder)
{
    // Compilers take this over: one that lacks a library must fail, not open a window that waits.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    if (folder.isEmpty())
        return;
    removeAbandonedFolders(folder);
    lock = openLock(folder, CREATE_NEW);
}

ProgramGuard::~ProgramGuard()
{
    CloseHandle(lock);
}

void ProgramGuard::setVariable(const char *name, const QString &folder)
{
    // The C library's function would translate it into the local encoding first.
    const QString value = QDir::toNativeSeparators(asciiPath(folder));
    SetEnvironmentVariableW(QString::fromLatin1(name).toStdWString().c_str(),
                            value.toStdWString().c_str());
}

/// The job object that holds a program and all that it starts. Closing its last handle ends them,
/// and this program's handles are closed however it ends.
struct ProcessTree::System
{
    HANDLE job = nullptr;
    STARTUPINFOEXW startup {};
    std::vector<char> attributes;

    LPPROC_THREAD_ATTRIBUTE_LIST list()
    {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(attributes.data());
    }
};

ProcessTree::ProcessTree(QProcess &process)
    : m_process(process), m_system(std::make_unique<System>())
{
    m_system->job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(m_system->job, JobObjectExtendedLimitInformation, &limits,
                            sizeof limits);
    // The process is in the job from its first moment on.
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    m_system->attributes.resize(size);
    InitializeProcThreadAttributeList(m_system->list(), 1, 0, &size);
    UpdateProcThreadAttribute(m_system->list(), 0, PROC_THREAD_ATTRIBUTE_JOB_LIST, &m_system->job,
                              sizeof m_system->job, nullptr, nullptr);
    m_process.setCreateProcessArgumentsModifier(
        [system = m_system.get()](QProcess::CreateProcessArguments *arguments) {
            system->startup.StartupInfo = *arguments->startupInfo;
            system->startup.StartupInfo.cb = sizeof system->startup;
            system->startup.lpAttributeList = system->list();
            arguments->startupInfo = &system->startup.StartupInfo;
            arguments->flags |= EXTENDED_STARTUPINFO_PRESENT;
        });
}

ProcessTree::~ProcessTree()
{
    end();
    DeleteProcThreadAttributeList(m_system->list());
}

bool ProcessTree::start(const QStringList &command)
{
    const QString program = programFile(command.first());
    if (!isBatchFile(program)) {
        m_process.start(program, command.mid(1));
        return m_process.waitForStarted();
    }
    QString line = quotedForInterpreter(QDir::toNativeSeparators(program));
    for (const QString &argument : command.mid(1)) {
        // A line feed ends the interpreter's command, whatever stands around it.
        if (argument.contains(u'\n') || argument.contains(u'\r'))
            return false;
        line += u' ' + quotedForInterpreter(argument);
    }
    QProcessEnvironment environment = m_process.processEnvironment();
    environment.insert(percentVariable, u"%"_s);
    m_process.setProcessEnvironment(environment);
    // The interpreter takes the outermost quotation marks away.
    const qsizetype longestLine = 8191; // Microsoft's support article 830473
    if (line.size() > longestLine)
        return false;
    m_process.setNativeArguments("/e:on /v:off /d /s /c \""_L1 + line + u'"');
    m_process.start(commandInterpreter(), QStringList());
    return m_process.waitForStarted();
}

void ProcessTree::end()
{
    if (!m_system->job)
        return;
    // Not a status that a program would return: QProcess takes it for an end by force, as
    // elsewhere.
    TerminateJobObject(m_system->job, STATUS_CONTROL_C_EXIT);
    // It returns before they are gone, and until then they hold their files and folders.
    for (DWORD waited = 0; waited < longestWait && isRunning(m_system->job); waited += usualWait)
        Sleep(usualWait);
    CloseHandle(m_system->job);
    m_system->job = nullptr;
}

} // namespace platform
