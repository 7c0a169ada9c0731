#include "progress.h"

#include "row.h"

#include <atomic>
#include <vector>

class TestProgress : public QObject
{
    Q_OBJECT

private:
    QString m_said;
    std::atomic<bool> m_isWriting = false;
    std::atomic<bool> m_overlaps = false;
    Progress m_progress {[this](const QString &text) {
        if (m_isWriting.exchange(true))
            m_overlaps = true;
        std::this_thread::yield();
        m_said += text;
        m_isWriting = false;
    }};

private slots:
    void init() { m_said.clear(); }

    void letsTheLineOfAStepGrow()
    {
        QString state;
        m_progress.grow();
        {
            const ProgressStep step(m_progress, "Looking ...", [&state] { return state; });
            for (const char *next : {"", "120", "240", "240", "240", "360"}) {
                state = next;
                m_progress.grow();
            }
            m_progress.say("Found 2.");
            m_progress.grow();
        }
        m_progress.say("Next.\u3000\u202e\x1b[2J");
        for (int i = 0; i < 2; ++i) {
            const ProgressStep step(m_progress, "Step ...", [] { return QString("7"); });
            m_progress.grow();
        }
        QCOMPARE(m_said,
                 "Looking ... ... 120 ... 240 ... ... 360\nFound 2.\nNext.\u3000\\u202E\\u001B[2J\n"
                 "Step ... 7\nStep ... 7\n");
    }

    void keepsTheLinesOfSeveralThreadsWhole()
    {
        {
            std::vector<std::jthread> threads(4);
            for (std::jthread &thread : threads) {
                thread = std::jthread([this] {
                    for (int i = 0; i < 500; ++i) {
                        m_progress.begin("Step ...", [] { return QString("7"); });
                        m_progress.grow();
                        m_progress.say("Found.");
                    }
                });
            }
        }
        QVERIFY(!m_overlaps);
        QCOMPARE(m_said.count("Step ..."), 2000);
        m_said.remove("Found.\n").remove(QRegularExpression("Step \\.\\.\\.( (7|\\.\\.\\.))*\n"));
        QCOMPARE(m_said, QString());
    }
};

QTEST_APPLESS_MAIN(TestProgress)
#include "test_progress.moc"
