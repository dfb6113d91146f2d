#include "common/CServerSettings.h"

#include <QtTest>

class tst_CServerSettings : public QObject
{
    Q_OBJECT

private slots:
    void freshSettingsHaveTheirDefaults()
    {
        const CServerSettings settings;
        QCOMPARE(settings.getSupportVoIPFlag(), true);
        QCOMPARE(settings.getFileTransferMaxSize(), qint64(0));
        QCOMPARE(settings.getMaxMucRoomSize(), qint64(0));
        QCOMPARE(settings.getCanModifyPassword(), false);
    }

    void valuesAreKept()
    {
        CServerSettings settings;
        settings.setSupportVoIPFlag(false);
        settings.setFileTransferMaxSize(Q_INT64_C(5000000000));
        settings.setMaxMucRoomSize(-1);
        settings.setCanModifyPassword(true);
        QCOMPARE(settings.getSupportVoIPFlag(), false);
        QCOMPARE(settings.getFileTransferMaxSize(), Q_INT64_C(5000000000));
        QCOMPARE(settings.getMaxMucRoomSize(), qint64(-1));
        QCOMPARE(settings.getCanModifyPassword(), true);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CServerSettings, Guiless)
#include "tst_CServerSettings.moc"
