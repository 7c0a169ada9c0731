#include "header_sample.h"

#include "file_names.h"
#include "header_scan.h"

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

bool isIncludedAlone(const QString &name, bool isCpp)
{
    return isHeader(name, isCpp) || (isCpp && !name.contains(u'.'));
}

/// One of each of \a lists in turn, as long as they last.
QStringList inTurn(const QList<QStringList> &lists)
{
    qsizetype longest = 0;
    for (const QStringList &list : lists)
        longest = std::max(longest, list.size());
    QStringList all;
    for (qsizetype turn = 0; turn < longest; ++turn) {
        for (const QStringList &list : lists)
            all << list.mid(turn, 1);
    }
    return all;
}

QStringList shuffledInTurn(QList<QStringList> lists)
{
    std::minstd_rand random;
    std::shuffle(lists.begin(), lists.end(), random);
    for (QStringList &list : lists)
        std::shuffle(list.begin(), list.end(), random);
    return inTurn(lists);
}

} // namespace

QStringList headersInTurn(const QStringList &directories, bool isCpp)
{
    QList<QStringList> searched, below;
    QString directory;
    for (const HeaderFile &header : headersNear(directories)) {
        if (!isIncludedAlone(header.name, isCpp))
            continue;
        const bool isSearched = directories.contains(header.directory);
        QList<QStringList> &lists = isSearched ? searched : below;
        if (header.directory != directory)
            lists << QStringList();
        directory = header.directory;
        lists.last() << (isSearched ? header.name
                                    : directory.section(u'/', -1) + u'/' + header.name);
    }
    QStringList names = inTurn({shuffledInTurn(searched), shuffledInTurn(below)});
    names.removeDuplicates();
    return names;
}
