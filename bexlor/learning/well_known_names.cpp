#include "well_known_names.h"

#include "facts.h"

#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const char *const cKeywords =
    "auto break case char const continue default do double else enum extern float for goto if int "
    "long register return short signed sizeof static struct switch typedef union unsigned void "
    "volatile while inline restrict _Alignas _Alignof _Atomic _Bool _Complex _Generic _Imaginary "
    "_Noreturn _Static_assert _Thread_local";

const char *const cppKeywords =
    "alignas alignof and and_eq asm auto bitand bitor bool break case catch char char8_t char16_t "
    "char32_t class co_await co_return co_yield compl concept const const_cast consteval constexpr "
    "constinit continue decltype default delete do double dynamic_cast else enum explicit export "
    "extern false float for friend goto if inline int long mutable namespace new noexcept not "
    "not_eq nullptr operator or or_eq private protected public register reinterpret_cast requires "
    "return short signed sizeof static static_assert static_cast struct switch template this "
    "thread_local throw true try typedef typeid typename union unsigned using virtual void "
    "volatile "
    "wchar_t while xor xor_eq";

// Directives, names that only the preprocessor itself may use, and C++'s words for operators.
const char *const specialWords =
    "defined _Pragma __pragma __VA_ARGS__ __VA_OPT__ __FUNCTION__ __PRETTY_FUNCTION__ __func__ "
    "and and_eq bitand bitor compl not not_eq or or_eq xor xor_eq true false __building_module "
    "__is_identifier __is_target_arch __is_target_environment __is_target_os __is_target_vendor";

QList<QByteArray> words(const QByteArray &text)
{
    return text.simplified().split(' ');
}

QSet<QByteArray> setOf(const char *text)
{
    const QList<QByteArray> list = words(text);
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
    static const QSet<QByteArray> c = setOf(cKeywords), cpp = setOf(cppKeywords);
    return (isCpp ? cpp : c).contains(name);
}

bool isSpecialName(const QByteArray &name)
{
    static const QSet<QByteArray> special = setOf(specialWords);
    return special.contains(name) || isBuiltIntoThePreprocessor(name) || name.startsWith("calyx_")
        || name.startsWith("CALYX_");
}
