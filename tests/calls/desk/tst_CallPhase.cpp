#include "calls/desk/CallPhase.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

class tst_CallPhase : public QObject
{
    Q_OBJECT

private slots:
    void endBecomesACode_data()
    {
        QTest::addColumn<int>("phase");
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("mediaLost");
        QTest::addColumn<int>("code");
        const auto row = [](const char *name, CallPhase phase, int status, bool mediaLost, int code) {
            QTest::newRow(name) << static_cast<int>(phase) << status << mediaLost << code;
        };
        row("busy", CallPhase::Calling, 486, false, 22);
        row("busy everywhere", CallPhase::Calling, 600, false, 22);
        row("declined", CallPhase::Calling, 603, false, 10);
        row("unknown", CallPhase::Calling, 404, false, 23);
        row("no answer", CallPhase::Calling, 408, false, 23);
        row("not there", CallPhase::Calling, 480, false, 23);
        row("no common encryption", CallPhase::Calling, 488, false, 24);
        row("server error", CallPhase::Calling, 500, false, 19);
        row("no status", CallPhase::Calling, 0, false, 19);
        row("hung up before the sound", CallPhase::Calling, 200, false, 19);
        row("cancelled", CallPhase::Ringing, 487, false, 4);
        row("ringing and anything", CallPhase::Ringing, 0, false, 4);
        row("cancelled as it was accepted", CallPhase::Accepted, 487, false, 4);
        row("accepted without common encryption", CallPhase::Accepted, 488, false, 24);
        row("hung up", CallPhase::Running, 200, false, 8);
        row("hung up with a status", CallPhase::Running, 486, false, 8);
        row("nothing heard any more", CallPhase::Running, 503, true, 9);
    }

    void endBecomesACode()
    {
        QFETCH(int, phase);
        QFETCH(int, status);
        QFETCH(bool, mediaLost);
        QFETCH(int, code);
        QCOMPARE(static_cast<int>(codeOf(static_cast<CallPhase>(phase), {status, mediaLost, {}})), code);
    }

    void theDocumentTellsEachStatusThatHasACodeOfItsOwn()
    {
        QFile file(QStringLiteral(VOIP_CALLS_DOCUMENT));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QMap<int, int> told;
        for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
            const QStringList cells = line.split(QStringLiteral(" | "));
            bool isCode = false;
            const int code = cells.value(1).toInt(&isCode);
            if (cells.size() != 3 || !isCode) {
                continue;
            }
            auto status = QRegularExpression(QStringLiteral("\\b[456]\\d\\d\\b")).globalMatch(cells.first());
            while (status.hasNext()) {
                told.insert(status.next().captured().toInt(), code);
            }
        }
        // "Anything else from 400 on".
        QCOMPARE(told.take(400), static_cast<int>(Wire::Code::CallFailed));
        QMap<int, int> known;
        for (int status = 400; status < 700; ++status) {
            const Wire::Code code = codeOf(CallPhase::Calling, {status, false, {}});
            if (code != Wire::Code::CallFailed) {
                known.insert(status, static_cast<int>(code));
            }
        }
        QCOMPARE(told, known);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallPhase, Appless)
#include "tst_CallPhase.moc"
