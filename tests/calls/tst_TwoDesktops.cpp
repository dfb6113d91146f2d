// Two people at two desktops: the client's module and its call process at both ends, the exchange between them, and
// what each one's loudspeaker gets. On this machine's loopback, and where this machine allows it on three machines with
// a network between them.

#include "calls/peers/Desktop.h"
#include "calls/sound/SoundBox.h"

#include "fakes/Patience.h"

#include <QSet>
#include <QtTest>

#include <functional>

class tst_TwoDesktops : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_sound.start({cCaller, cCalled})); }

    void callIsHeardAtBothEnds_data()
    {
        QTest::addColumn<bool>("ownNetwork");
        QTest::newRow("on the loopback") << false;
        TestNetwork network;
        if (network.start()) {
            QTest::newRow("on a network of three machines") << true;
        } else {
            qInfo("on the loopback alone, this machine makes no networks: %s", qPrintable(network.refusal()));
        }
    }

    void callIsHeardAtBothEnds()
    {
        QFETCH(bool, ownNetwork);
        TestNetwork network;
        QVERIFY2(!ownNetwork || network.start(), qPrintable(network.refusal()));
        TestExchange exchange(network.exchange());
        QVERIFY(exchange.start());
        Desktop caller(exchange, network.caller(), cCaller);
        Desktop called(exchange, network.called(), cCalled);
        QVERIFY(m_sound.speak(cCaller, cCallersHz) && m_sound.speak(cCalled, cCalledsHz));
        QVERIFY(m_sound.listen(cCaller) && m_sound.listen(cCalled));
        QVERIFY2(caller.start() && called.start(), caller.said() + called.said());
        QCOMPARE((QSet<QByteArray>{Desktop::networkOf("self"), caller.network(), called.network()}.size()),
                 ownNetwork ? 3 : 1);

        for (const auto &[one, other] : {std::pair(&caller, &called), std::pair(&called, &caller)}) {
            talk(*one, *other);
            caller.tell(QStringLiteral("hang up"));
            endedAtBoth(*one, *other);
            if (QTest::currentTestFailed()) {
                return;
            }
        }
        QVERIFY(caller.quit());
        QVERIFY(called.quit());
    }

private:
    /// One calls, the other accepts, and each hears the other and not himself.
    void talk(Desktop &one, Desktop &other)
    {
        one.tell(QStringLiteral("call ") + other.id());
        QVERIFY2(other.says(QStringLiteral("rings ") + one.id()), one.said() + other.said());
        other.tell(QStringLiteral("accept"));
        for (Desktop *desktop : {&one, &other}) {
            QVERIFY2(desktop->says(QStringLiteral("shows 已接通")), desktop->said());
        }
        QVERIFY2(comes([this] { return hearsAlone(cCaller, cCalledsHz, cCallersHz); }), heard(cCaller));
        QVERIFY2(comes([this] { return hearsAlone(cCalled, cCallersHz, cCalledsHz); }), heard(cCalled));
    }

    /// Both clients have told their hosts, and nothing is heard any more.
    void endedAtBoth(Desktop &one, Desktop &other)
    {
        QVERIFY2(one.says(QStringLiteral("finished %1 24 connected").arg(other.id())), one.said());
        QVERIFY2(other.says(QStringLiteral("finished %1 24 connected").arg(one.id())), other.said());
        QVERIFY2(comes([this] { return hears(cCaller, cCalledsHz) < cSilence; }), heard(cCaller));
        QVERIFY2(comes([this] { return hears(cCalled, cCallersHz) < cSilence; }), heard(cCalled));
    }

    /// Whether it is so once: what is heard may falter on a busy machine, and is not asked again.
    static bool comes(const std::function<bool()> &isSo) { return QTest::qWaitFor(isSo, cPatienceMs); }
    double hears(const QString &id, int hertz) const { return m_sound.heard(id, hertz); }
    bool hearsAlone(const QString &id, int hertz, int otherHertz) const
    {
        return hears(id, hertz) > cLoud && hears(id, otherHertz) < cSilence;
    }
    /// For a failure's message.
    QByteArray heard(const QString &id) const
    {
        return QByteArray::number(hears(id, cCallersHz)) + " and " + QByteArray::number(hears(id, cCalledsHz));
    }

    static const QString cCaller;
    static const QString cCalled;
    static constexpr int cCallersHz = 440;
    static constexpr int cCalledsHz = 660;
    static constexpr double cLoud = 2000;
    static constexpr double cSilence = 120;

    SoundBox m_sound;
};

const QString tst_TwoDesktops::cCaller = QStringLiteral("30010000");
const QString tst_TwoDesktops::cCalled = QStringLiteral("30010001");

#include "support/TestProgram.h"
VOIP_TEST(tst_TwoDesktops, Guiless)
#include "tst_TwoDesktops.moc"
