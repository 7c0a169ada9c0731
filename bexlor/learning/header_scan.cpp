#include "header_scan.h"

#include "directory_walk.h"

#include <QDir>
#include <algorithm>
#include <cstring>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>
#include <unordered_map>

namespace fs = std::filesystem;

namespace {

const std::size_t longestName = 63; // significant characters of an identifier, ISO C 6.4.2.1
const std::size_t longestPlainKeyword = 12;
// What lies behind that in a file, no header and no compiler needs.
const std::uintmax_t largestFile = 256 << 20;
const std::ptrdiff_t shortestRun = 4; // of printable characters in a binary file

bool isLower(char c)
{
    return c >= 'a' && c <= 'z';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return isLower(c) || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isOfName(char c)
{
    return isLetter(c) || isDigit(c);
}

struct NameHash
{
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const
    {
        return std::hash<std::string_view>()(name);
    }
};

/// From names to their uses. Most look-ups are of names that are there, and need no string made.
using NameTable = std::unordered_map<std::string, unsigned, NameHash, std::equal_to<>>;

void addUses(NameTable &names, std::string_view name, unsigned uses)
{
    const auto found = names.find(name);
    if (found != names.end())
        found->second |= uses;
    else
        names.emplace(name, uses);
}

/// Walks over the text of one file. Line feeds stand before and behind the text, so that no loop
/// needs to look for its end.
class Scanner
{
public:
    Scanner(std::string_view text, NameTable &names)
        : m_next(text.data()), m_end(text.data() + text.size()), m_names(names)
    { }

    void scanHeader()
    {
        bool lineStarts = true;
        while (m_next < m_end) {
            const char c = *m_next;
            if (c == '\n') {
                lineStarts = true;
                m_use = UsedInHeader;
                ++m_next;
            } else if (c == '#' && lineStarts) {
                scanDirective();
            } else if (isLetter(c)) {
                lineStarts = false;
                scanName();
            } else {
                lineStarts &= c == ' ' || c == '\t';
                skipOther();
            }
        }
    }

    /// Takes the names in every run of printable characters.
    void scanBinary()
    {
        const auto isPrintable = [](char c) { return c >= ' ' && c <= '~'; };
        while (m_next < m_end) {
            const char *start = std::find_if(m_next, m_end, isPrintable);
            m_next = std::find_if_not(start, m_end, isPrintable);
            if (m_next - start >= shortestRun)
                scanRun(start, m_next);
        }
    }

    /// Takes the names that options in the text define, be it a script or a program.
    void scanOptions()
    {
        while ((m_next = std::find(m_next, m_end, 'D')) < m_end) {
            const bool isFlag = (m_next[-1] == '-' || m_next[-1] == '/') && !isOfName(m_next[-2]);
            ++m_next;
            if (isFlag && *m_next == ' ')
                ++m_next;
            if (isFlag && isLetter(*m_next))
                addUses(m_names, takeWord(), DefinedByOption);
        }
    }

private:
    std::string_view takeWord()
    {
        const char *start = m_next;
        while (isOfName(*m_next))
            ++m_next;
        return {start, std::size_t(m_next - start)};
    }

    /// Passes a name and keeps it if it may be a keyword, or whatever it is when a conditional
    /// tests it.
    void scanName()
    {
        const std::string_view name = takeWord();
        const bool isKept = m_use == TestedInHeader || name.front() == '_' || isPlain(name);
        if (name.size() <= longestName && isKept)
            addUses(m_names, name, m_use);
    }

    /// Whether \a name is spelled as keywords without underscores are.
    static bool isPlain(std::string_view name)
    {
        return name.size() > 1 && name.size() <= longestPlainKeyword
            && std::all_of(name.begin(), name.end(), &isLower);
    }

    /// Passes a number, a literal, a comment, a continued line's end or a single character.
    void skipOther()
    {
        const char c = *m_next;
        if (c == '/' && m_next[1] == '/')
            skipLine();
        else if (c == '/' && m_next[1] == '*')
            skipComment();
        else if (c == '"' || c == '\'')
            skipLiteral(c);
        else if (c == '\\' && m_next[1] == '\n')
            m_next += 2;
        else if (c == '\\' && m_next[1] == '\r' && m_next[2] == '\n')
            m_next += 3;
        else if (isDigit(c))
            takeWord();
        else
            ++m_next;
    }

    /// To the line feed at the end of the line, which a backslash before it continues.
    void skipLine()
    {
        do
            m_next = std::find(m_next, m_end, '\n') + 1;
        while (m_next < m_end && isContinued(m_next - 1));
        --m_next;
    }

    static bool isContinued(const char *lineFeed)
    {
        const char *last = lineFeed - 1;
        return *last == '\\' || (*last == '\r' && last[-1] == '\\');
    }

    void skipComment()
    {
        const std::string_view rest(m_next + 2, std::size_t(m_end - m_next) - 2);
        const std::size_t end = rest.find("*/");
        m_next = end == rest.npos ? m_end : rest.data() + end + 2;
    }

    /// A literal ends at its quote or, where there is none, at the end of its line.
    void skipLiteral(char quote)
    {
        ++m_next;
        while (*m_next != quote && *m_next != '\n')
            m_next += *m_next == '\\' && m_next[1] != '\n' ? 2 : 1;
        if (*m_next == quote)
            ++m_next;
    }

    void skipBlanks()
    {
        while (*m_next == ' ' || *m_next == '\t')
            ++m_next;
    }

    void scanDirective()
    {
        ++m_next;
        skipBlanks();
        const std::string_view directive = takeWord();
        if (directive == "define") {
            // The macro's own name is no keyword; its replacement is scanned like the rest.
            skipBlanks();
            takeWord();
        } else if (directive.starts_with("if") || directive.starts_with("elif")) {
            m_use = TestedInHeader;
        } else {
            skipLine();
        }
    }

    /// The names in a run of printable characters of a binary file: those that are spelled as
    /// macros or keywords are.
    void scanRun(const char *start, const char *end)
    {
        while (start < end) {
            const char *stop = std::find_if_not(start, end, &isOfName);
            const std::string_view name(start, std::size_t(stop - start));
            if (name.size() > 1 && name.size() <= longestName && mayBeKnown(name))
                addUses(m_names, name, InBinary);
            start = stop + 1;
        }
    }

    static bool mayBeKnown(std::string_view name)
    {
        const auto isLowerOrDigit = [](char c) { return isLower(c) || isDigit(c); };
        const bool isShouted = std::none_of(name.begin(), name.end(), &isLower);
        const bool isShort = name.size() <= longestPlainKeyword
                          && std::all_of(name.begin(), name.end(), isLowerOrDigit);
        return isLetter(name.front()) && (name.front() == '_' || isShouted || isShort);
    }

    const char *m_next;
    const char *m_end;
    NameTable &m_names;
    NameUse m_use = UsedInHeader; ///< of the names on this line
};

bool isText(std::string_view content)
{
    return std::memchr(content.data(), 0, std::min<std::size_t>(content.size(), 4096)) == nullptr;
}

/// Whether \a file is called like a header, in which no options stand.
bool isNamedAsHeader(const fs::path &file)
{
    return file.extension().string().starts_with(".h");
}

/// Puts what \a file holds into \a content, between two line feeds. False when it cannot be read.
bool readBetweenLineFeeds(const fs::path &file, std::string &content)
{
    // On Windows a link has a size of its own, so that its file is asked, once it is open.
    std::ifstream stream(file, std::ios::binary | std::ios::ate);
    const std::streamoff wholeSize = stream.tellg();
    const std::streamoff size = std::clamp<std::streamoff>(wholeSize, 0, largestFile);
    stream.seekg(0);
    content.resize(std::size_t(size) + 2);
    content.front() = '\n';
    // One byte more than there are, so that a file that cannot be read shows even if it has none.
    stream.read(content.data() + 1, std::streamsize(size) + 1);
    content.resize(1 + std::size_t(stream.gcount()));
    content += '\n';
    return stream.is_open() && !stream.bad();
}

/// What one thread has found.
struct PartialScan
{
    NameTable names;
    std::vector<std::size_t> texts; ///< indices of the files that are text
    std::vector<std::size_t> unreadable;
};

/// Reads files, the one that is \a next each time, until none is left; counts them in \a read.
void scanFiles(const std::vector<WalkedFile> &files, std::atomic<std::size_t> &next,
               std::atomic<qint64> &read, PartialScan &scan)
{
    std::string content;
    for (std::size_t index; (index = next++) < files.size(); ++read) {
        if (!files[index].isRead) {
            scan.texts.push_back(index);
            continue;
        }
        if (!readBetweenLineFeeds(files[index].path, content)) {
            scan.unreadable.push_back(index);
            continue;
        }
        const std::string_view text(content.data() + 1, content.size() - 2);
        if (!isNamedAsHeader(files[index].path))
            Scanner(text, scan.names).scanOptions();
        Scanner scanner(text, scan.names);
        if (isText(text)) {
            scan.texts.push_back(index);
            scanner.scanHeader();
        } else {
            scanner.scanBinary();
        }
    }
}

/// All files, read by as many threads as there are processors.
std::vector<PartialScan> scanInParallel(const std::vector<WalkedFile> &files,
                                        std::atomic<qint64> &read)
{
    std::vector<PartialScan> scans(std::max(1u, std::thread::hardware_concurrency()));
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> threads;
    threads.reserve(scans.size());
    for (PartialScan &scan : scans)
        threads.emplace_back([&files, &next, &read, &scan] { scanFiles(files, next, read, scan); });
    threads.clear(); // waits for them
    return scans;
}

QList<ScannedName> sortedNames(const NameTable &table)
{
    QList<ScannedName> names;
    names.reserve(qsizetype(table.size()));
    for (const auto &[name, uses] : table)
        names.append({QByteArray::fromStdString(name), uses});
    std::sort(names.begin(), names.end(),
              [](const ScannedName &a, const ScannedName &b) { return a.text < b.text; });
    return names;
}

} // namespace

QList<HeaderFile> headersNear(const QStringList &directories)
{
    QStringList all = directories;
    for (const QString &directory : directories) {
        const QDir above(directory);
        for (const QString &name : above.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            all << above.filePath(name);
    }
    all.removeDuplicates();
    QList<HeaderFile> headers;
    for (const QString &directory : all) {
        for (const QString &name : QDir(directory).entryList(QDir::Files))
            headers.append({directory, name});
    }
    return headers;
}

HeaderScan scanHeaders(const QStringList &directories, ScanProgress &progress)
{
    const DirectoryWalk walk = walkDirectories(directories, progress.found);
    HeaderScan result;
    result.files = qint64(walk.files.size());
    result.remarks = walk.remarks;

    NameTable names;
    std::vector<std::size_t> texts;
    for (PartialScan &scan : scanInParallel(walk.files, progress.read)) {
        names.merge(scan.names);
        for (const auto &[name, uses] : scan.names) // those that had been there before
            addUses(names, name, uses);
        texts.insert(texts.end(), scan.texts.begin(), scan.texts.end());
        for (const std::size_t index : scan.unreadable)
            result.remarks << cannotBeRead(walk.files[index].path);
    }
    result.names = sortedNames(names);
    result.remarks.sort();
    std::sort(texts.begin(), texts.end());
    for (const std::size_t index : texts) {
        const fs::path &file = walk.files[index].path;
        result.headers.append({slashed(file.parent_path()), slashed(file.filename())});
    }
    return result;
}

QList<ScannedName> scanProgramFiles(const QStringList &files)
{
    NameTable names;
    std::string content;
    for (const QString &file : files) {
        if (!readBetweenLineFeeds(file.toStdWString(), content))
            continue;
        const std::string_view text(content.data() + 1, content.size() - 2);
        Scanner(text, names).scanOptions();
        Scanner(text, names).scanBinary();
    }
    return sortedNames(names);
}
