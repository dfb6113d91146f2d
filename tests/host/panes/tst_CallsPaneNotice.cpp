#include "screen/WindowProbe.h"

#include "host/history/CallRows.h"
#include "host/panes/CallsPaneTest.h"
#include "host/panes/PressButton.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

/// What the user has still to be told of: calls that were missed, and how the last ones ended.
class tst_CallsPaneNotice : public CallsPaneTest
{
    Q_OBJECT

private slots:
    void missedAreCountedUntilTheUserTurnsToThem_data()
    {
        QTest::addColumn<QByteArray>("way");
        for (const char *way :
             {"press the count", "press Seen", "filter", "click into the list", "Tab into the list"}) {
            QTest::newRow(way) << QByteArray(way);
        }
    }

    void missedAreCountedUntilTheUserTurnsToThem()
    {
        QFETCH(QByteArray, way);
        m_pHistory->add(missedRow("30010002", 2));
        m_pHistory->add(callRow("30010001", 1));
        m_pHistory->add(missedRow("30010004"));
        QCoreApplication::processEvents();
        QCOMPARE(WindowProbe::text(m_pPane.get(), "btnMissed"), QStringLiteral("2 missed"));
        const QString notice = WindowProbe::text(m_pPane.get(), "lblCallNotice");
        QVERIFY2(notice.startsWith(QStringLiteral("Missed call from Tom Baker")), qPrintable(notice));
        QVERIFY(m_pTable->model()->index(0, 0).data(Qt::FontRole).value<QFont>().bold());
        if (way == "press the count") {
            QVERIFY(pressButton(m_pPane.get(), "btnMissed"));
            QCOMPARE(m_pTable->model()->rowCount(), 2);
            QVERIFY(m_pTable->hasFocus());
        } else if (way == "press Seen") {
            QVERIFY(pressButton(m_pPane.get(), "btnSeen"));
        } else if (way == "filter") {
            QVERIFY(pressButton(m_pPane.get(), "btnFilterMissed"));
            QCOMPARE(m_pTable->model()->rowCount(), 2);
        } else if (way == "click into the list") {
            QTest::mouseClick(m_pTable->viewport(), Qt::LeftButton, Qt::NoModifier, middle(1));
            QCOMPARE(m_pTable->currentIndex().row(), 1);
        } else {
            m_pPane->findChild<QWidget *>(QStringLiteral("btnFilterAll"))->setFocus();
            QTest::keyClick(m_pPane->focusWidget(), Qt::Key_Tab);
        }
        QVERIFY(!WindowProbe::isShown(m_pPane.get(), "btnMissed"));
        QVERIFY(!WindowProbe::isShown(m_pPane.get(), "callNotice"));
        QVERIFY(!m_pTable->model()->index(0, 0).data(Qt::FontRole).isValid());
    }

    void noticeSaysWhoDidWhat_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<bool>("caller");
        QTest::addColumn<bool>("connected");
        QTest::addColumn<QString>("words");
        QTest::newRow("busy") << int(resultBusy) << true << false << QStringLiteral("Maria Silva was busy");
        QTest::newRow("rejected") << int(resultRejected) << true << false
                                  << QStringLiteral("Maria Silva rejected the call");
        QTest::newRow("failed") << int(resultFailed) << true << false
                                << QStringLiteral("The call with Maria Silva failed");
        QTest::newRow("no answer") << int(outcomeNoAnswer) << true << false
                                   << QStringLiteral("Maria Silva did not answer");
        QTest::newRow("hung up") << int(resultHungUp) << true << true
                                 << QStringLiteral("Maria Silva hung up after 0:10");
        QTest::newRow("given up") << int(resultHungUp) << true << false
                                  << QStringLiteral("Maria Silva gave up the call");
        QTest::newRow("missed") << int(outcomeMissed) << false << false
                                << QStringLiteral("Missed call from Maria Silva");
        QTest::newRow("cut off") << int(outcomeCutOff) << true << false
                                 << QStringLiteral("The call with Maria Silva was cut off");
    }

    void noticeSaysWhoDidWhat()
    {
        QFETCH(QString, words);
        CallEntry call = callRow("30010002");
        call.seen = false;
        call.seconds = 10;
        QFETCH(int, outcome);
        QFETCH(bool, caller);
        QFETCH(bool, connected);
        call.outcome = outcome;
        call.caller = caller;
        call.connected = connected;
        m_pHistory->add(call);
        const QString notice = WindowProbe::text(m_pPane.get(), "lblCallNotice");
        QVERIFY2(notice.startsWith(words), qPrintable(notice));
        // The notice stays; what it tells is called again by its button.
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        QVERIFY(pressButton(m_pPane.get(), "btnCallAgain"));
        QCOMPARE(called.value(0), (QList<QVariant>{QStringLiteral("30010002"), false}));
        QVERIFY(!WindowProbe::isShown(m_pPane.get(), "callNotice"));
    }

    void noticeOfManyCountsTheRest()
    {
        for (int i = 0; i < 7; ++i) {
            m_pHistory->add(missedRow("30010002", 10 - i));
        }
        const QStringList lines = WindowProbe::text(m_pPane.get(), "lblCallNotice").split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.last(), QStringLiteral("and 4 more"));
    }

    void obstacleStandsInTheTips()
    {
        m_pHistory->add(missedRow("30010002"));
        m_pPane->setObstacle(QStringLiteral("No."));
        auto *again = m_pPane->findChild<QPushButton *>(QStringLiteral("btnCallAgain"));
        QVERIFY(!again->isEnabled());
        QCOMPARE(again->toolTip(), QStringLiteral("No."));
        QCOMPARE(again->accessibleDescription(), QStringLiteral("No."));
        m_pPane->setObstacle(QString());
        QVERIFY(again->isEnabled());
        QVERIFY(again->toolTip() != QStringLiteral("No."));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallsPaneNotice, Widgets)
#include "tst_CallsPaneNotice.moc"
