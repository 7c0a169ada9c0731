#include "well_known_names.h"

#include "facts.h"

#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

// Directives, names that only the preprocessor itself may use, and C++'s words for operators.
const char *const specialWords =
    "defined _Pragma __pragma __VA_ARGS__ __VA_OPT__ __FUNCTION__ __PRETTY_FUNCTION__ __func__ "
    "and and_eq bitand bitor compl not not_eq or or_eq xor xor_eq true false __building_module "
    "__is_identifier __is_target_arch __is_target_environment __is_target_os __is_target_vendor";

QList<QByteArray> words(const QByteArray &text)
{
    return text.simplified().split(' ');
}

QSet<QByteArray> setOf(const QList<QByteArray> &list)
{
    return {list.begin(), list.end()};
}

/// The words of the lines of a list, but for those that begin with "#".
QList<QByteArray> wordsOfFile(const QString &name)
{
    QFile file(u":/well_known_names/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the list %s is not compiled in", qPrintable(name));
    QList<QByteArray> found;
    for (const QByteArray &line : file.readAll().trimmed().split('\n')) {
        if (!line.startsWith('#'))
            found << words(line);
    }
    return found;
}

} // namespace

QList<QByteArray> wellKnownMacros()
{
    return wordsOfFile(u"known_macros.txt"_s);
}

QList<QByteArray> wellKnownKeywords(bool isCpp)
{
    QList<QByteArray> keywords = wordsOfFile(u"known_keywords.txt"_s);
    // Only C++ has base classes, and in C clang does not come to an end with this.
    if (isCpp)
        keywords << "__super";
    return keywords;
}

bool isStandardKeyword(const QByteArray &name, bool isCpp)
{
    static const QSet<QByteArray> c = setOf(wordsOfFile(u"c_keywords.txt"_s));
    static const QSet<QByteArray> cpp = setOf(wordsOfFile(u"cpp_keywords.txt"_s));
    return (isCpp ? cpp : c).contains(name);
}

bool isSpecialName(const QByteArray &name)
{
    static const QSet<QByteArray> special = setOf(words(specialWords));
    return special.contains(name) || isBuiltIntoThePreprocessor(name) || name.startsWith("calyx_")
        || name.startsWith("CALYX_");
}
