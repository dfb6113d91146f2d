#include "CentreTest.h"

#include "ShippedFiles.h"

#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "plugin/VoipManageMessageProcess.h"
#include "store/DB.h"

#include <QPushButton>
#include <QStackedWidget>

void CentreTest::initTestCase()
{
    QVERIFY(placeShippedFiles());
    QVERIFY(QDir().mkpath(QStringLiteral("Resources/images/CommonCtrls")));
    for (const char *pState : {"normal", "press"}) {
        const QString strFile = QStringLiteral("images/CommonCtrls/kvim_common_back_%1.png").arg(QLatin1String(pState));
        QVERIFY(QFile::copy(QStringLiteral(VOIP_RESOURCES "/") + strFile, QStringLiteral("Resources/") + strFile));
    }
}

void CentreTest::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
    m_pContacts = std::make_unique<ContactFixture>();
    m_pContacts->addContact(QStringLiteral("ann"), ContactFixture::card(QStringLiteral("Ann"), {}));
    m_pHost = std::make_unique<FakeHost>();
    VoipManageMessageProcess::instance()->setSendEvent(m_pHost.get());
    QVERIFY(DB::initByUserName(QStringLiteral("me"), m_pFolder->path(), true));
}

void CentreTest::cleanup()
{
    m_pWindow.reset();
    DB::closeDB();
    VoipManageMessageProcess::instance()->setSendEvent(nullptr);
    m_pHost.reset();
    m_pContacts.reset();
    m_pFolder.reset();
}

QStringList CentreTest::ids() const
{
    QStringList ids;
    for (int i = 0; i < list()->model()->rowCount(); ++i) {
        ids.append(list()->model()->index(i, 0).data(ROLE_CONF_ID).toString());
    }
    return ids;
}

void CentreTest::expectPage(int iPage) const
{
    QCOMPARE(part<QStackedWidget>("contentStackedWidget")->currentIndex(), iPage);
    QCOMPARE(part<QPushButton>("backBtn")->isHidden(), iPage == 0);
    QCOMPARE(part<QPushButton>("creatConferenceBtn")->isHidden(), iPage == 1);
}

void CentreTest::call(const char *pSlot, const QString &strConfID)
{
    QVERIFY(QMetaObject::invokeMethod(m_pWindow.get(), pSlot, Q_ARG(QString, strConfID)));
}

ConfInfoData CentreTest::record(const QString &strConfID, const QStringList &members)
{
    ConfInfoData info;
    info.m_strConfID = strConfID;
    info.m_strCreatUserID = QStringLiteral("ann");
    info.m_strCreatTime = QStringLiteral("2024-03-05 09:08:07");
    info.m_strCallTime = QStringLiteral("75");
    info.m_listMember = members;
    info.m_bIsConnect = true;
    return info;
}

void CentreTest::open(const QStringList &confIds)
{
    for (const QString &strConfID : confIds) {
        QVERIFY(DBConfInfo::saveConfInfo(record(strConfID)));
    }
    m_pWindow = std::make_unique<CVoiceConferenceWidget>();
}

void CentreTest::showAt(const QPoint &corner)
{
    m_pWindow->move(corner);
    m_pWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get(), cPatienceMs));
    QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->frameGeometry().topLeft(), corner, cPatienceMs);
}
