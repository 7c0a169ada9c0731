#include "bisection.h"

#include "row.h"

#include <numeric>

namespace {

const ProbeLimits limits {200, 1000};

/// Lets \a compiler, which does not crash, answer for each source.
AskProbes asking(const std::function<ProbeAnswer(const QByteArray &)> &compiler)
{
    return [compiler](const QList<QByteArray> &sources) {
        QList<ProbeAnswer> answers;
        for (const QByteArray &source : sources) {
            answers << compiler(source);
            answers.last().run.ending = platform::ProgramRun::Exited;
        }
        return answers;
    };
}

/// A compiler that rejects lines with "bad" in them. It names in its errors what the row says.
struct FakeCompiler
{
    /// "all", "some" (three at most), "first", "none", "wrong" (the line behind) or "everything"
    QString names;
    int started = 0;

    ProbeAnswer operator()(const QByteArray &source)
    {
        ++started;
        ProbeAnswer answer;
        answer.run.exitCode = source.contains("bad");
        const QList<QByteArray> lines = source.split('\n');
        for (int i = 0; i < lines.size(); ++i) {
            if (lines[i].contains("bad") || names == "everything")
                answer.lines << i + (names == "wrong" ? 2 : 1);
        }
        QList<int> first(answer.lines.begin(), answer.lines.end());
        std::sort(first.begin(), first.end());
        if (names == "first" || names == "some")
            first = first.mid(0, names == "first" ? 1 : 3);
        answer.lines = QSet<int>(first.begin(), first.end());
        if (names == "none")
            answer.lines.clear();
        for (const int line : std::as_const(answer.lines))
            answer.messageCounts[line] = 1;
        return answer;
    }
};

/// Items of one or two lines each, those with a number in \a bad rejected.
QList<QByteArray> items(int count, const QList<int> &bad)
{
    QList<QByteArray> items;
    for (int i = 0; i < count; ++i) {
        const QByteArray line = (bad.contains(i) ? "bad " : "good ") + QByteArray::number(i);
        items << (i % 3 == 0 ? "\n" : "") + line + '\n';
    }
    return items;
}

} // namespace

class TestBisection : public QObject
{
    Q_OBJECT

private slots:
    void findsWhatIsAccepted_data()
    {
        // starts: at most
        const Columns<QString, QList<int>, int> row("names", "bad", "starts");
        const QList<int> few {0, 7, 8, 31, 149}, none;
        row("no errors", "all", none, 2);
        row("names all", "all", few, 6);
        row("stops after some errors", "some", few, 12);
        row("stops at its first error", "first", few, 8);
        row("names no line", "none", few, 60);
        row("names the line behind", "wrong", few, 110);
        row("names everything", "everything", few, 60);
    }
    void findsWhatIsAccepted()
    {
        QFETCH(QString, names);
        QFETCH(QList<int>, bad);
        QFETCH(int, starts);
        FakeCompiler compiler {names};
        const QList<bool> accepted = acceptedItems(
            asking(std::ref(compiler)), "prelude\nof two lines\n", items(150, bad), limits, true);
        for (int i = 0; i < accepted.size(); ++i)
            QVERIFY2(accepted[i] == !bad.contains(i), qPrintable(QString::number(i)));
        QVERIFY2(compiler.started <= starts, qPrintable(QString::number(compiler.started)));
        QCOMPARE(itemsAcceptedApart(asking(std::ref(compiler)), {}, items(150, bad), limits),
                 accepted);
    }

    void needsOneProbeForAllThatIsBad()
    {
        FakeCompiler compiler {"all"};
        const QList<QByteArray> bad = items(20, {0, 1, 2, 3, 4, 5}).first(6);
        QCOMPARE(acceptedItems(asking(std::ref(compiler)), "prelude\n", bad, limits, false),
                 QList<bool>(6, false));
        QCOMPARE(compiler.started, 1);
    }

    void confirmsSuspectsAlone()
    {
        // An item that is rejected behind another one only.
        const AskProbes ask = asking([](const QByteArray &source) {
            const bool isBad = source.contains("bad");
            ProbeAnswer answer;
            answer.run.exitCode = isBad;
            answer.lines = isBad && source.contains("victim") ? QSet<int> {1, 2} : QSet<int> {1};
            return answer;
        });
        const QList<QByteArray> items {"bad\n", "victim\n", "good\n"};
        QCOMPARE(acceptedItems(ask, {}, items, limits, false), QList<bool>({false, false, true}));
        QCOMPARE(acceptedItems(ask, {}, items, limits, true), QList<bool>({false, true, true}));
    }

    void findsTheEndOfAFunction()
    {
        // What is bad is taken for the start of a function, up to a block that ends it; a block
        // elsewhere is an error.
        int started = 0;
        const AskProbes ask = asking([&started](const QByteArray &source) {
            ++started;
            ProbeAnswer answer;
            bool isAstray = false;
            const QList<QByteArray> lines = source.split('\n');
            for (int i = 0; i < lines.size() && !source.isEmpty(); ++i) {
                const bool isBlock = lines[i].startsWith('{'), isBad = lines[i].contains("bad");
                if (isAstray || isBad || isBlock)
                    answer.lines << i + 1;
                isAstray = (isAstray || isBad) && !isBlock;
            }
            answer.run.exitCode = !answer.lines.isEmpty();
            return answer;
        });
        QList<int> bad(50);
        std::iota(bad.begin(), bad.end(), 0);
        QCOMPARE(itemsAcceptedApart(ask, {}, items(52, bad), limits),
                 QList<bool>(50, false) + QList<bool>(2, true));
        QVERIFY2(started <= 6, qPrintable(QString::number(started)));
    }

    void findsFewerMessages_data()
    {
        // control: whether the compiler remarks on another definition
        const Columns<bool> row("control");
        row("remarks", true);
        row("does not mind", false);
    }
    void findsFewerMessages()
    {
        QFETCH(bool, control);
        const AskProbes ask = asking([control](const QByteArray &source) {
            const QList<QByteArray> lines = source.split('\n');
            ProbeAnswer answer;
            for (int i = 0; i < lines.size(); ++i)
                answer.messageCounts[i + 1] = control && lines[i].contains("other") ? 2 : 1;
            return answer;
        });
        const QList<QByteArray> definitions {"a\n", "b other\n", "\nc\n", "control\n"};
        const QList<QByteArray> others {"other\n", "other\n", "\nother\n", "other\n"};
        const auto fewer = itemsWithFewerMessages(ask, "prelude\n", definitions, others, limits);
        QCOMPARE(fewer.has_value(), control);
        if (fewer)
            QCOMPARE(*fewer, QList<bool>({true, false, true}));
    }

    void keepsToTheLimits()
    {
        for (const Batch &batch : batchesOf(items(500, {}), 900, limits))
            QVERIFY(!batch.isEmpty() && batch.size() <= limits.declarations / 2);
        QCOMPARE(batchesOf(items(150, {}), 0, limits).size(), 2);
        QCOMPARE(batchesOf(items(49, {}), 0, {99, 1000}).size(), 2); // one more comes behind them
        QCOMPARE(batchesOf({QByteArray(5000, 'x'), "y\n"}, 0, limits).size(), 2);
    }

    void findsWhatDrawsNoMessage_data()
    {
        // isSilent: on everything
        const Columns<QString, bool> row("names", "isSilent");
        row("names all", "all", false);
        row("stops at its first error", "first", false);
        row("says nothing", "none", true);
    }
    void findsWhatDrawsNoMessage()
    {
        QFETCH(QString, names);
        QFETCH(bool, isSilent);
        FakeCompiler compiler {names};
        const QList<int> bad {2, 3, 140};
        const auto silent = itemsWithoutMessage(asking(std::ref(compiler)), "prelude\n",
                                                items(150, bad), "bad control\nbehind\n", limits);
        QCOMPARE(silent.has_value(), !isSilent);
        for (int i = 0; silent && i < silent->size(); ++i)
            QVERIFY2((*silent)[i] == !bad.contains(i), qPrintable(QString::number(i)));
    }
};

QTEST_APPLESS_MAIN(TestBisection)
#include "test_bisection.moc"
