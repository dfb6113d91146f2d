// The entry points with the shape of a call library's callbacks.

#include "engine/VoipCallbacks.h"
#include "fakes/EngineFixture.h"
#include "fakes/QtMessages.h"

#include <QTest>

class tst_VoipCallbacks : public QObject
{
    Q_OBJECT

private slots:
    void callbackActsAsANotification()
    {
        EngineFixture f;
        const QtMessages messages;
        voipCallback(0, "bert");
        QCOMPARE(messages.debugLines, QStringList{"void sdkResultCallback(, iCode: 0result: bert"});
        QCOMPARE(f.state(), QString("incoming bert, receive, ring"));
    }

    void logCallbackDoesNothing()
    {
        EngineFixture f;
        const QString before = f.callText();
        const QtMessages messages;
        voipLogCallback("u", "v");
        QCOMPARE(messages.debugLines, QStringList{"void sdkCloudTrackCallback(, url:  uvalue: v"});
        QCOMPARE(f.callText(), before);
        QCOMPARE(f.takeJournal(), QStringList());
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
        EngineFixture f;
        f.manager.reset();
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
