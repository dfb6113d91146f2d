#include "client/ContactBook.h"
#include "session/HostContext.h"

#include "model/SystemSetData.h"

#include <QFile>
#include <QTest>

class tst_HostContext : public QObject
{
    Q_OBJECT

private slots:
    void signInFillsTheContext()
    {
        HostContext context;
        context.signIn(m_book.ownUid(), QStringLiteral("example.org"), m_book);
        CommonData *data = context.data();
        QVERIFY(data->getCustomLogger() != nullptr);
        QVERIFY(data->getLogThread() != nullptr && data->getLogThread()->isRunning());
        QVERIFY(data->getNetWorkManager() != nullptr);
        QVERIFY(data->getServerSettings() != nullptr);
        QCOMPARE(data->getSystemSetData(), SystemSetData::instance());
        QCOMPARE(data->getSystemSetData()->m_strUserName, m_book.ownUid());
        QCOMPARE(data->getLoginData()->m_strUid, m_book.ownUid());
        QCOMPARE(data->getLoginData()->m_strDomain, QStringLiteral("example.org"));
        QVERIFY(!data->getLoginData()->m_strRegValue.isEmpty());
        QCOMPARE(data->getFriendDataMap().size(), m_book.friendMap().size());
        const QString jid = QStringLiteral("30010001@example.org");
        QCOMPARE(data->getPresenceDataMap({jid}).value(jid).m_iStateA, 1);
    }

    void logIsOnDiskOnceTheContextIsGone()
    {
        QString path;
        {
            HostContext context;
            context.signIn(m_book.ownUid(), QStringLiteral("example.org"), m_book);
            path = context.logFile();
            context.data()->getLogThread()->printLog(CustomLog::Info, QStringLiteral("here:1"),
                                                     QStringLiteral("words"));
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("[INFO][here:1]: words"));
        QVERIFY2(path.startsWith(SystemSetData::instance()->m_strUserFolder), qPrintable(path));
    }

    void neverSignedInEndsQuietly()
    {
        const HostContext context;
        QVERIFY(context.logFile().isEmpty());
    }

private:
    ContactBook m_book{QStringLiteral("example.org")};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HostContext, Guiless)
#include "tst_HostContext.moc"
