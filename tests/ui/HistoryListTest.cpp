#include "HistoryListTest.h"

#include "RealCursor.h"
#include "ShippedFiles.h"

#include "fakes/Patience.h"
#include "plugin/EMsgId.h"
#include "plugin/VoipManageMessageProcess.h"

#include <QStandardItemModel>

void HistoryListTest::initTestCase()
{
    QVERIFY(placeShippedFiles());
}

void HistoryListTest::init()
{
    m_pContacts = std::make_unique<ContactFixture>();
    m_pHost = std::make_unique<FakeHost>();
    VoipManageMessageProcess::instance()->setSendEvent(m_pHost.get());
    m_pList = std::make_unique<HistoryList>();
}

void HistoryListTest::cleanup()
{
    m_pList.reset();
    VoipManageMessageProcess::instance()->setSendEvent(nullptr);
    m_pHost.reset();
    m_pContacts.reset();
}

ConfInfoData HistoryListTest::record(const QString &strConfID, bool bConnected, const QString &strCreator,
                                     const QString &strCallTime)
{
    ConfInfoData info;
    info.m_strConfID = strConfID;
    info.m_strCreatUserID = strCreator;
    info.m_strCreatTime = QStringLiteral("2024-03-05 09:08:07");
    info.m_strCallTime = strCallTime;
    info.m_listMember = {strCreator, QStringLiteral("me")};
    info.m_bIsConnect = bConnected;
    return info;
}

QStringList HistoryListTest::ids() const
{
    QStringList ids;
    for (int i = 0; i < m_pList->model()->rowCount(); ++i) {
        ids.append(data(i, ROLE_CONF_ID).toString());
    }
    return ids;
}

void HistoryListTest::show(const QList<ConfInfoData> &records)
{
    m_pList->addConfInfoList(records);
    m_pList->setFrameShape(QFrame::NoFrame);
    m_pList->setGeometry(200, 200, 517, 280);
    QCursor::setPos(10, 10);
    m_pList->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pList.get(), cPatienceMs));
    picture();
    takeSigns();
}

void HistoryListTest::moveTo(const QPoint &position)
{
    QVERIFY(RealCursor::moveTo(m_pList->viewport(), position));
}

void HistoryListTest::hover(int iRow)
{
    moveTo(row(iRow).center() - QPoint(1, 0));
    moveTo(row(iRow).center());
    picture();
}

void HistoryListTest::openMenu(int iRow)
{
    QCursor::setPos(m_pList->viewport()->mapToGlobal(row(iRow).center()));
    click(row(iRow).center(), Qt::RightButton);
}

QStringList HistoryListTest::entries() const
{
    QStringList texts;
    for (const QAction *pAction : m_pList->m_pMenu->actions()) {
        texts.append(pAction->text());
    }
    return texts;
}

void HistoryListTest::choose(int iEntry)
{
    CMenuEx *pMenu = m_pList->m_pMenu;
    QVERIFY(QTest::qWaitForWindowExposed(pMenu, cPatienceMs));
    const QPoint entry = pMenu->actionGeometry(pMenu->actions().at(iEntry)).center();
    QVERIFY(RealCursor::moveTo(pMenu, entry));
    QTest::mouseClick(pMenu, Qt::LeftButton, Qt::NoModifier, entry);
}

QStringList HistoryListTest::takeSigns()
{
    QStringList signs;
    for (const ReceivedEvent &event : qAsConst(m_pHost->events)) {
        if (event.msgId == MSG_CLOSE_SIGN_LIST) {
            signs.append(QStringLiteral("close"));
        }
        if (event.msgId != MSG_SHOW_SIGN_LIST) {
            continue;
        }
        PayloadReader reader = event.reader();
        QStringList fields{reader.take<QString>()};
        for (int i = 0; i < 3; ++i) {
            fields.append(QString::number(reader.take<qint32>()));
        }
        for (int i = 0; i < 2; ++i) {
            fields.append(reader.take<bool>() ? QStringLiteral("1") : QStringLiteral("0"));
        }
        signs.append(fields.join(QLatin1Char(' ')));
    }
    m_pHost->events.clear();
    return signs;
}
