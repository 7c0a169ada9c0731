#include "facts.h"

#include <QDir>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

QByteArray typeLike(const Facts &facts, int size, bool isFloating, bool isUnsigned)
{
    for (const Type &type : facts.types) {
        const bool typeIsFloating = type.name.contains("float") || type.name.contains("double");
        if (type.size != size || typeIsFloating != isFloating || type.name.contains('*'))
            continue;
        if (isFloating)
            return type.name;
        if (isUnsigned)
            return "unsigned " + type.name;
        return type.name == "char" ? "signed char" : type.name;
    }
    return {};
}

QList<Macro> parseMacros(const QByteArray &listing)
{
    const QByteArray directive = "#define ";
    QList<Macro> macros;
    for (const QByteArray &text : listing.split('\n')) {
        const QByteArray line = text.trimmed();
        if (!line.startsWith(directive))
            continue;
        const QByteArray definition = line.mid(directive.size());
        const qsizetype firstSpace = definition.indexOf(' ');
        const qsizetype parenthesis = definition.indexOf('(');
        const bool hasParameters = parenthesis >= 0 && (firstSpace < 0 || parenthesis < firstSpace);
        qsizetype end = firstSpace;
        if (hasParameters)
            end = definition.indexOf(')', parenthesis) + 1;
        if (end < 0)
            end = definition.size();
        macros.append({definition.left(end), definition.mid(end).trimmed()});
    }
    return macros;
}

void parseSearchPath(const QByteArray &listing, Facts &facts)
{
    const qsizetype start = listing.indexOf("#include \"...\" search starts here:");
    const qsizetype end = listing.indexOf("End of search list.", start);
    if (start < 0 || end < 0)
        return;
    QStringList *directories = &facts.quotedSearchPath;
    for (const QByteArray &line : listing.mid(start, end - start).split('\n')) {
        if (line.startsWith("#include <"))
            directories = &facts.searchPath;
        // Directories are indented, headings are not.
        if (!line.startsWith(' '))
            continue;
        const QString directory = QString::fromLocal8Bit(line.trimmed());
        const QString canonical = QDir(directory).canonicalPath();
        directories->append(canonical.isEmpty() ? directory : canonical);
    }
    facts.quotedSearchPath.removeDuplicates();
    facts.searchPath.removeDuplicates();
}

QByteArray versionLineOf(const QByteArray &banner)
{
    static const QRegularExpression version(u"[A-Za-z].*[0-9]\\.[0-9]"_s);
    for (const QByteArray &line : banner.split('\n')) {
        if (version.match(QString::fromLocal8Bit(line)).hasMatch())
            return line.simplified();
    }
    return {};
}
