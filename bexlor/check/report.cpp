#include "report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What a result is called in a file for programs, and in a count.
const struct ResultName
{
    Verdict::Result result;
    QLatin1StringView key;
    QLatin1StringView text;
} resultNames[] = {
    {Verdict::Same, "same"_L1, "see the same code"_L1},
    {Verdict::Different, "different"_L1, "see different code"_L1},
    {Verdict::NotCompared, "not-compared"_L1, "are accepted, but could not be compared"_L1},
    {Verdict::RejectedByClang, "rejected-by-clang"_L1, "are rejected by clang alone"_L1},
    {Verdict::RejectedByCompiler, "rejected-by-compiler"_L1, "are rejected by the compiler"_L1},
    {Verdict::NotStarted, "not-started"_L1, "name a compiler that cannot be started"_L1},
    {Verdict::Missing, "missing"_L1, "are missing, or the directory to compile them in is"_L1},
};

qsizetype countOf(const QList<Verdict> &verdicts, Verdict::Result result)
{
    return std::count_if(verdicts.begin(), verdicts.end(),
                         [result](const Verdict &verdict) { return verdict.result == result; });
}

QString shown(const QByteArray &token)
{
    return token.isEmpty() ? u"the end"_s : u'"' + QString::fromUtf8(token) + u'"';
}

QString alignedRow(qsizetype count, const QString &text)
{
    return u"%1  %2"_s.arg(count, 7).arg(text);
}

QJsonObject json(const Verdict &verdict)
{
    const auto *name =
        std::find_if(std::begin(resultNames), std::end(resultNames),
                     [&verdict](const ResultName &row) { return row.result == verdict.result; });
    QJsonObject object {{"file"_L1, verdict.file}, {"result"_L1, name->key}};
    if (verdict.result == Verdict::Different) {
        const TokenDifference &difference = verdict.difference;
        object["difference"_L1] =
            QJsonObject {{"file"_L1, difference.file},
                         {"line"_L1, difference.line},
                         {"compiler"_L1, QString::fromUtf8(difference.ofCompiler)},
                         {"clang"_L1, QString::fromUtf8(difference.ofClang)}};
    } else if (verdict.result == Verdict::RejectedByClang) {
        object["kind"_L1] = verdict.rejection.kind;
        object["message"_L1] = verdict.rejection.message;
    } else if (!verdict.message.isEmpty()) {
        object["message"_L1] = verdict.message;
    }
    return object;
}

} // namespace

qsizetype acceptedByCompiler(const QList<Verdict> &verdicts)
{
    return verdicts.size() - countOf(verdicts, Verdict::RejectedByCompiler)
         - countOf(verdicts, Verdict::NotStarted) - countOf(verdicts, Verdict::Missing);
}

QString verdictLine(const Verdict &verdict)
{
    const QString start = verdict.file + ": "_L1;
    switch (verdict.result) {
    case Verdict::Same:
        return start + "same"_L1;
    case Verdict::NotCompared:
        return start + "accepted, not compared"_L1
             + (verdict.message.isEmpty() ? QString() : ": "_L1 + verdict.message);
    case Verdict::RejectedByCompiler:
        return start + "rejected by the compiler: "_L1 + verdict.message;
    case Verdict::NotStarted:
        return start + "cannot be started: "_L1 + verdict.message;
    case Verdict::Missing:
        return start + "missing: "_L1 + verdict.message;
    case Verdict::RejectedByClang:
        return start + verdict.rejection.kind + ": "_L1 + verdict.rejection.message;
    case Verdict::Different:
        break;
    }
    const TokenDifference &difference = verdict.difference;
    return start
         + u"different at %1:%2, where the compiler has %3 and clang has %4"_s.arg(
             difference.file, QString::number(difference.line), shown(difference.ofCompiler),
             shown(difference.ofClang));
}

QString acceptanceSentence(const QString &clangVersion, const QList<Verdict> &verdicts,
                           const QString &noun)
{
    const qsizetype all = acceptedByCompiler(verdicts);
    const qsizetype rejected = countOf(verdicts, Verdict::RejectedByClang);
    return u"%1 accepts %2 of the %3 %4 that the compiler accepts."_s.arg(
        clangVersion, QString::number(all - rejected), QString::number(all), noun);
}

QStringList summaryLines(const QString &clangVersion, const QList<Verdict> &verdicts)
{
    QStringList lines {acceptanceSentence(clangVersion, verdicts, u"sources"_s)};
    for (const ResultName &row : resultNames) {
        if (const qsizetype count = countOf(verdicts, row.result))
            lines << alignedRow(count, row.text);
    }
    if (countOf(verdicts, Verdict::RejectedByClang) == 0)
        return lines;
    lines << u"Why clang rejects them:"_s;
    for (const QString &kind : rejectionKinds()) {
        const qsizetype count =
            std::count_if(verdicts.begin(), verdicts.end(), [&kind](const Verdict &verdict) {
                return verdict.result == Verdict::RejectedByClang && verdict.rejection.kind == kind;
            });
        if (count > 0)
            lines << alignedRow(count, kind);
    }
    return lines;
}

QByteArray verdictsAsJson(const Checking &checking, const QList<Verdict> &verdicts)
{
    QJsonObject counts;
    for (const ResultName &row : resultNames)
        counts[row.key] = countOf(verdicts, row.result);
    QJsonArray files;
    for (const Verdict &verdict : verdicts)
        files << json(verdict);
    return QJsonDocument(QJsonObject {{"personality"_L1, checking.personality},
                                      {"clang"_L1, checking.clang.version},
                                      {"counts"_L1, counts},
                                      {"files"_L1, files}})
        .toJson();
}

ExitStatus exitStatus(const QList<Verdict> &verdicts)
{
    const bool isIncomplete =
        countOf(verdicts, Verdict::NotStarted) + countOf(verdicts, Verdict::Missing) > 0;
    // Nor does it tell anything of clang when the compiler has accepted nothing.
    if (isIncomplete || acceptedByCompiler(verdicts) == 0)
        return ExitStatus::Missing;
    return countOf(verdicts, Verdict::RejectedByClang) == 0 ? ExitStatus::Done : ExitStatus::Failed;
}
