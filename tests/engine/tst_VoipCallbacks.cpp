// The entry points with the shape of a call library's callbacks.

#include "engine/VoipCallbacks.h"
#include "fakes/EngineTest.h"
#include "fakes/QtMessages.h"

#include <QTest>

class tst_VoipCallbacks : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void callbackActsAsANotification()
    {
        const QtMessages messages;
        voipCallback(0, "bert");
        QCOMPARE(messages.debugLines, QStringList{"void sdkResultCallback(, iCode: 0result: bert"});
        QCOMPARE(m_f->state(), QString("incoming bert, receive, ring"));
    }

    void logCallbackDoesNothing()
    {
        const QString before = m_f->callText();
        const QtMessages messages;
        voipLogCallback("u", "v");
        QCOMPARE(messages.debugLines, QStringList{"void sdkCloudTrackCallback(, url:  uvalue: v"});
        QCOMPARE(m_f->callText(), before);
        QCOMPARE(m_f->takeJournal(), QStringList());
    }

    void callbacksMakeTheManager_data()
    {
        QTest::addColumn<bool>("log");

        QTest::newRow("notification") << false;
        QTest::newRow("log") << true;
    }

    void callbacksMakeTheManager()
    {
        QFETCH(bool, log);
        m_f->manager.reset();
        QVERIFY(!VoipManageProbe::exists());
        const QtMessages messages;
        if (log) {
            voipLogCallback("u", "v");
        } else {
            voipCallback(17, "true");
        }
        QVERIFY(VoipManageProbe::exists());
        delete CVoipManage::instance();
        VoipManageProbe::forget();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipCallbacks, Widgets)
#include "tst_VoipCallbacks.moc"
