#include "names.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>
#include <unordered_set>
#include <vector>

using namespace Qt::StringLiterals;

namespace fs = std::filesystem;

namespace {

const std::size_t longestName = 63; // significant characters of an identifier, ISO C 6.4.2.1
const std::size_t longestPlainKeyword = 12;
const std::size_t firstBuffer = 1 << 20; // most files are smaller by far
const std::size_t largestText = 64 * firstBuffer;
const std::size_t shortestRun = 4; // of printable characters in a binary file

enum CharacterClass : unsigned char { Other = 0, Lower = 1, Upper = 2, Digit = 4, Underscore = 8 };

constexpr std::array<unsigned char, 256> makeClasses()
{
    std::array<unsigned char, 256> classes {};
    for (int c = 'a'; c <= 'z'; ++c)
        classes[c] = Lower;
    for (int c = 'A'; c <= 'Z'; ++c)
        classes[c] = Upper;
    for (int c = '0'; c <= '9'; ++c)
        classes[c] = Digit;
    classes['_'] = Underscore;
    return classes;
}

constexpr std::array<unsigned char, 256> classes = makeClasses();

unsigned char classOf(char c)
{
    return classes[static_cast<unsigned char>(c)];
}

const std::size_t wordSize = 8;

/// The first eight bytes at \a text, which must be readable.
std::uint64_t wordAt(const char *text)
{
    std::uint64_t word;
    std::memcpy(&word, text, wordSize);
    return word;
}

/// The first \a length bytes at \a text, at most eight, with zeros behind them.
std::uint64_t startOf(const char *text, std::size_t length)
{
    std::uint64_t word = 0;
    if (length >= wordSize)
        return wordAt(text);
    if constexpr (std::endian::native == std::endian::little)
        word = wordAt(text) & ((std::uint64_t(1) << (8 * length)) - 1);
    else
        std::memcpy(&word, text, length);
    return word;
}

/// A hash table from names to their uses, made for many look-ups of few names.
class NameTable
{
public:
    NameTable() : m_slots(1 << 16) { }

    /// Adds \a uses to those of \a name. Eight bytes from its start on must be readable.
    void add(std::string_view name, unsigned uses)
    {
        add(startOf(name.data(), name.size()), name, uses);
    }

    void add(const NameTable &other)
    {
        for (const Slot &slot : other.m_slots) {
            if (slot.length)
                add(slot.start, other.text(slot), slot.uses);
        }
    }

    template <typename Function>
    void forEach(Function function) const
    {
        for (const Slot &slot : m_slots) {
            if (slot.length)
                function(text(slot), unsigned(slot.uses));
        }
    }

private:
    struct Slot
    {
        std::uint64_t start = 0;    ///< the name's first eight bytes
        std::uint32_t position = 0; ///< of the whole name in the characters
        unsigned short length = 0;  ///< 0: empty
        unsigned char uses = 0;
    };

    void add(std::uint64_t start, std::string_view name, unsigned uses)
    {
        std::size_t place = placeOf(start, name);
        while (m_slots[place].length) {
            Slot &slot = m_slots[place];
            if (slot.start == start && slot.length == name.size()
                && (name.size() <= wordSize
                    || std::memcmp(&m_characters[slot.position], name.data(), name.size()) == 0)) {
                slot.uses |= static_cast<unsigned char>(uses);
                return;
            }
            place = (place + 1) & (m_slots.size() - 1);
        }
        m_slots[place] = {start, static_cast<std::uint32_t>(m_characters.size()),
                          static_cast<unsigned short>(name.size()),
                          static_cast<unsigned char>(uses)};
        m_characters.insert(m_characters.end(), name.begin(), name.end());
        if (++m_count * 2 > m_slots.size())
            grow();
    }

    std::string_view text(const Slot &slot) const
    {
        return {&m_characters[slot.position], slot.length};
    }

    // Names differ most at their starts, their ends and in their lengths.
    std::size_t placeOf(std::uint64_t start, std::string_view name) const
    {
        const std::uint64_t end =
            name.size() > wordSize ? wordAt(name.data() + name.size() - wordSize) : 0;
        std::uint64_t mixed = (start ^ (end * 0x9e3779b97f4a7c15ull)) + name.size();
        mixed *= 0xff51afd7ed558ccdull;
        return static_cast<std::size_t>(mixed >> 32) & (m_slots.size() - 1);
    }

    void grow()
    {
        std::vector<Slot> old(m_slots.size() * 2);
        old.swap(m_slots);
        for (const Slot &slot : old) {
            if (!slot.length)
                continue;
            std::size_t place = placeOf(slot.start, text(slot));
            while (m_slots[place].length)
                place = (place + 1) & (m_slots.size() - 1);
            m_slots[place] = slot;
        }
    }

    std::vector<Slot> m_slots;
    std::vector<char> m_characters;
    std::size_t m_count = 0;
};

/// Walks over the text of one file. The text is followed by a line feed, so that no loop needs to
/// look for its end.
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
            if (classOf(c) & (Lower | Upper | Underscore)) {
                scanName(UsedInHeader);
                lineStarts = false;
            } else if (c == '\n') {
                ++m_next;
                lineStarts = true;
            } else if (c == ' ' || c == '\t') {
                ++m_next;
            } else if (c == '#' && lineStarts) {
                scanDirective();
            } else {
                lineStarts = false;
                skipOther();
            }
        }
    }

    void scanBinary()
    {
        while (m_next < m_end) {
            while (m_next < m_end && !isPrintable(*m_next))
                ++m_next;
            const char *start = m_next;
            while (m_next < m_end && isPrintable(*m_next))
                ++m_next;
            if (std::size_t(m_next - start) >= shortestRun)
                scanRun(start, m_next);
        }
    }

private:
    static bool isPrintable(char c) { return c >= ' ' && c <= '~'; }

    /// Passes a name and keeps it if it may be a keyword, or whatever it is when \a use says that
    /// a conditional tests it.
    void scanName(unsigned use)
    {
        const char *start = m_next;
        unsigned seen = 0;
        unsigned char characterClass;
        while ((characterClass = classOf(*m_next))) {
            seen |= characterClass;
            ++m_next;
        }
        const std::size_t length = std::size_t(m_next - start);
        if (length > longestName)
            return;
        const bool mayBeKeyword =
            *start == '_' || (seen == Lower && length <= longestPlainKeyword && length > 1);
        if (use == TestedInHeader || mayBeKeyword)
            m_names.add({start, length}, use | (use == UsedInHeader ? calledUse() : 0));
    }

    unsigned calledUse() const
    {
        const char *next = m_next;
        while (*next == ' ')
            ++next;
        return *next == '(' ? CalledInHeader : 0;
    }

    /// Passes a number, a literal, a comment or a single character.
    void skipOther()
    {
        const char c = *m_next;
        if (c == '/' && m_next[1] == '/') {
            skipLine();
        } else if (c == '/' && m_next[1] == '*') {
            skipComment();
        } else if (c == '"' || c == '\'') {
            skipLiteral(c);
        } else if (classOf(c)) {
            while (classOf(*m_next))
                ++m_next;
        } else {
            ++m_next;
        }
    }

    /// To the line feed at the end of the line, which a backslash before it continues.
    void skipLine()
    {
        do {
            const void *found = std::memchr(m_next, '\n', std::size_t(m_end - m_next) + 1);
            m_next = static_cast<const char *>(found) + 1;
        } while (m_next < m_end && isContinued(m_next - 1));
        --m_next;
    }

    bool isContinued(const char *lineFeed) const
    {
        const char *last = lineFeed - 1;
        return *last == '\\' || (*last == '\r' && last[-1] == '\\');
    }

    void skipComment()
    {
        m_next += 2;
        const char *const content = m_next;
        while (m_next < m_end) {
            const void *found = std::memchr(m_next, '/', std::size_t(m_end - m_next));
            if (!found) {
                m_next = m_end;
                return;
            }
            m_next = static_cast<const char *>(found) + 1;
            if (m_next - 2 >= content && m_next[-2] == '*')
                return;
        }
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

    std::string_view takeWord()
    {
        const char *start = m_next;
        while (classOf(*m_next))
            ++m_next;
        return {start, std::size_t(m_next - start)};
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
            scanCondition();
        } else {
            skipLine();
        }
    }

    void scanCondition()
    {
        while (*m_next != '\n' || isContinued(m_next)) {
            if (m_next >= m_end)
                return;
            if (classOf(*m_next) & (Lower | Upper | Underscore))
                scanName(TestedInHeader);
            else if (*m_next == '\n')
                ++m_next;
            else
                skipOther();
        }
    }

    /// The names in a run of printable characters of a binary file.
    void scanRun(const char *start, const char *end)
    {
        while (start < end) {
            unsigned seen = 0;
            const char *stop = start;
            while (stop < end && classOf(*stop))
                seen |= classOf(*stop++);
            const std::size_t length = std::size_t(stop - start);
            const bool isPlain = (seen & ~Digit) == Lower && length <= longestPlainKeyword;
            const bool isMacroLike = *start == '_' || !(seen & Lower) || isPlain;
            if (length > 1 && length <= longestName && !(classOf(*start) & Digit) && isMacroLike)
                m_names.add({start, length}, InBinary);
            start = stop + 1;
        }
    }

    const char *m_next;
    const char *m_end;
    NameTable &m_names;
};

bool isText(std::string_view content)
{
    return std::memchr(content.data(), 0, std::min<std::size_t>(content.size(), 4096)) == nullptr;
}

/// \a path with slashes, also where its bytes are no text.
QString toQString(const fs::path &path)
{
    return QFileInfo(path).filePath();
}

/// \a directory without links in its last part, of whatever kind the system has.
fs::path withoutLinks(const fs::path &directory)
{
    const QFileInfo info(directory);
    const QFileInfo target(info.isJunction() ? QFileInfo(info.junctionTarget()) : info);
    return target.filesystemCanonicalFilePath().make_preferred();
}

/// The files below some directories, found before any of them is read.
class Walk
{
public:
    struct File
    {
        fs::path path; ///< where it was seen, which may be a link
        bool isRead;   ///< not when another way to it has been found before

        bool operator<(const File &other) const { return path < other.path; }
    };

    std::vector<File> files;
    QStringList remarks;

    /// \a directory must not have a link in its path.
    void walk(const fs::path &directory)
    {
        if (!isNew(directory))
            return;
        std::vector<fs::path> directories;
        const std::size_t firstFile = files.size();
        std::error_code error;
        for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
             entry.increment(error)) {
            std::error_code ignored;
            if (entry->is_directory(ignored)) {
                directories.push_back(withoutLinks(entry->path()));
            } else if (entry->is_regular_file(ignored)) {
                const bool isRead =
                    !entry->is_symlink(ignored) || isNew(fs::canonical(entry->path(), ignored));
                files.push_back({entry->path(), isRead});
            }
        }
        if (error)
            remark(directory);
        // Which of two ways to one file or directory is taken must not depend on the file system.
        std::sort(files.begin() + std::ptrdiff_t(firstFile), files.end());
        std::sort(directories.begin(), directories.end());
        for (const fs::path &next : directories)
            walk(next);
    }

    void remark(const fs::path &path)
    {
        remarks << u"Passed over, since it cannot be read: %1"_s.arg(toQString(path));
    }

private:
    bool isNew(const fs::path &path) { return m_visited.insert(path.native()).second; }

    std::unordered_set<fs::path::string_type> m_visited;
};

/// What one thread has found.
struct Share
{
    NameTable names;
    std::vector<std::size_t> texts; ///< indices of the files that are text
    std::vector<std::size_t> unreadable;
};

/// A file's content in a buffer, with a line feed before and behind it.
class Content
{
public:
    Content() { m_stream.pubsetbuf(nullptr, 0); }

    bool open(const fs::path &file)
    {
        m_stream.close();
        m_size = 0;
        return m_stream.open(file, std::ios::in | std::ios::binary);
    }

    /// Adds what follows in the file, as much as fits. False when it cannot be read.
    bool read()
    {
        bool succeeds = true;
        try {
            const std::streamsize count =
                m_stream.sgetn(m_buffer.data() + 1 + m_size, std::streamsize(room() - m_size));
            m_size += std::size_t(std::max<std::streamsize>(count, 0));
        } catch (const std::ios_base::failure &) {
            succeeds = false; // how some standard libraries report it
        }
        m_buffer[0] = m_buffer[m_size + 1] = '\n';
        return succeeds;
    }
    /// Adds all that follows in the file, up to what no header needs.
    void readRest()
    {
        while (isFull() && m_buffer.size() < largestText) {
            m_buffer.resize(2 * m_buffer.size());
            read();
        }
    }
    /// Goes on in the file; the last bytes, in which a name may have begun, are kept. That its
    /// first part alone is taken for a name as well does no harm, since every name is put to the
    /// compiler.
    void readNext()
    {
        const std::size_t kept = 2 * longestName;
        std::memmove(m_buffer.data() + 1, m_buffer.data() + 1 + m_size - kept, kept);
        m_size = kept;
        read();
    }

    /// Whether the file may have more.
    bool isFull() const { return m_size == room(); }
    std::string_view text() const { return {m_buffer.data() + 1, m_size}; }

private:
    std::size_t room() const { return m_buffer.size() - 2 - wordSize; }

    std::filebuf m_stream;
    std::vector<char> m_buffer = std::vector<char>(firstBuffer, '\n');
    std::size_t m_size = 0;
};

void readFiles(const std::vector<Walk::File> &files, std::atomic<std::size_t> &next, Share &share)
{
    Content content;
    for (std::size_t index; (index = next++) < files.size();) {
        const Walk::File &file = files[index];
        if (!file.isRead) {
            share.texts.push_back(index);
            continue;
        }
        if (!content.open(file.path) || !content.read()) {
            share.unreadable.push_back(index);
            continue;
        }
        if (isText(content.text())) {
            share.texts.push_back(index);
            content.readRest();
            Scanner(content.text(), share.names).scanHeader();
            continue;
        }
        Scanner(content.text(), share.names).scanBinary();
        while (content.isFull()) {
            content.readNext();
            Scanner(content.text(), share.names).scanBinary();
        }
    }
}

} // namespace

TreeNames readTree(const QStringList &directories)
{
    Walk walk;
    for (const QString &directory : directories) {
        const QDir given(directory);
        if (!given.exists())
            walk.remarks << u"Passed over, since it does not exist: %1"_s.arg(directory);
        else
            walk.walk(withoutLinks(given.filesystemPath()));
    }

    std::vector<Share> shares(std::max(1u, std::thread::hardware_concurrency()));
    std::atomic<std::size_t> next = 0;
    std::vector<std::thread> threads;
    for (std::size_t i = 1; i < shares.size(); ++i)
        threads.emplace_back([&, i] { readFiles(walk.files, next, shares[i]); });
    readFiles(walk.files, next, shares[0]);
    for (std::thread &thread : threads)
        thread.join();

    TreeNames tree;
    tree.files = qint64(walk.files.size());
    NameTable &all = shares[0].names;
    std::vector<std::size_t> texts;
    for (const Share &share : shares) {
        if (&share != &shares[0])
            all.add(share.names);
        texts.insert(texts.end(), share.texts.begin(), share.texts.end());
        for (const std::size_t index : share.unreadable)
            walk.remark(walk.files[index].path);
    }
    std::vector<std::pair<std::string_view, unsigned>> sorted;
    all.forEach(
        [&sorted](std::string_view name, unsigned uses) { sorted.emplace_back(name, uses); });
    std::sort(sorted.begin(), sorted.end());
    tree.names.reserve(qsizetype(sorted.size()));
    for (const auto &[name, uses] : sorted)
        tree.names.append({QByteArray(name.data(), qsizetype(name.size())), uses});
    std::sort(texts.begin(), texts.end());
    for (const std::size_t index : texts) {
        const fs::path &file = walk.files[index].path;
        tree.headers.append({toQString(file.parent_path()), toQString(file.filename())});
    }
    walk.remarks.sort();
    tree.remarks = walk.remarks;
    return tree;
}
