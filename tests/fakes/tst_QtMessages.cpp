// The keeper of Qt's messages: what it keeps, and what comes from threads that go on while it comes and goes.

#include "fakes/QtMessages.h"

#include <QDebug>
#include <QTest>

#include <array>
#include <atomic>
#include <thread>

class tst_QtMessages : public QObject
{
    Q_OBJECT

private slots:
    void innerAndOuterKeepTheirOwnTime()
    {
        const QtMessages outer;
        qDebug("one");
        {
            const QtMessages inner;
            qDebug("two");
            qWarning("three");
            qInfo("four");
            QCOMPARE(inner.debugLines, QStringList{"two"});
            QCOMPARE(inner.warnings, QStringList{"three"});
        }
        qCritical("five");
        QCOMPARE(outer.debugLines, QStringList({"one", "two"}));
        QCOMPARE(outer.warnings, QStringList({"three", "five"}));
    }

    void anotherThreadsMessagesAreNotKept()
    {
        const QtMessages messages;
        std::thread([] {
            qDebug("a line of another thread");
            qWarning("a warning of another thread");
        }).join();
        QCOMPARE(messages.debugLines, QStringList());
        QCOMPARE(messages.warnings, QStringList());
    }

    void otherThreadsMaySpeakWhileOnesComeAndGo()
    {
        const QtMessages outer;
        std::atomic<int> talking{2};
        const auto talk = [&talking] {
            for (int line = 0; line < 300; ++line) {
                qWarning("line %d of another thread", line);
            }
            --talking;
        };
        std::array<std::thread, 2> threads{std::thread(talk), std::thread(talk)};
        int own = 0;
        while (talking > 0) {
            const QtMessages inner;
            qWarning("own");
            ++own;
            if (inner.warnings != QStringList{"own"}) {
                break;
            }
        }
        for (std::thread &thread : threads) {
            thread.join();
        }
        QCOMPARE(outer.warnings.size(), own);
        QCOMPARE(outer.warnings.count("own"), own);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_QtMessages, Guiless)
#include "tst_QtMessages.moc"
