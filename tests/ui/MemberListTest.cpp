#include "MemberListTest.h"

#include "ShippedFiles.h"

#include "fakes/Patience.h"

#include <QStandardItemModel>
#include <QTimer>
#include <QToolTip>

#include <ctime>

void MemberListTest::initTestCase()
{
    // The tests live around noon: an invitation before midnight never runs out after it.
    qputenv("TZ", "NOON" + QByteArray::number(QDateTime::currentDateTimeUtc().time().hour() - 12));
    tzset();
    QCOMPARE(QTime::currentTime().hour(), 12);
    QVERIFY(placeShippedFiles());
}

void MemberListTest::init()
{
    m_pContacts = std::make_unique<ContactFixture>();
    m_pList = std::make_unique<CConferenceListView>();
}

void MemberListTest::cleanup()
{
    m_pList.reset();
    m_pContacts.reset();
    QToolTip::hideText();
}

QTimer *MemberListTest::watchdog() const
{
    return m_pList->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
}

void MemberListTest::addContact(const char *uid, const QString &strNick, const QString &strPhoto)
{
    m_pContacts->addContact(QLatin1String(uid), ContactFixture::card(strNick, {}, strPhoto));
}

void MemberListTest::showMembers(int iRows, int iStatus)
{
    QStringList members;
    for (int i = 0; i < iRows; ++i) {
        members.append(QStringLiteral("m%1").arg(i));
    }
    m_pList->addUserList(members);
    for (const QString &strMember : members) {
        m_pList->updateConferenceUserStatus(strMember, iStatus);
    }
    showList();
}

void MemberListTest::showList()
{
    m_pList->setFrameShape(QFrame::NoFrame);
    m_pList->setSelectionMode(QAbstractItemView::NoSelection);
    m_pList->resize(523, 280);
    // A window manager that places the window moves it from under the mouse and has it painted again, some time later.
    m_pList->setWindowFlag(Qt::X11BypassWindowManagerHint);
    m_pList->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pList.get(), cPatienceMs));
    picture();
}

void MemberListTest::moveTo(const QPoint &position)
{
    QTest::mouseMove(m_pList->viewport(), position);
}

void MemberListTest::doubleClick(int iRow, Qt::MouseButton button)
{
    QTest::mouseDClick(m_pList->viewport(), button, Qt::NoModifier, row(iRow).center());
}

int countPixels(const QImage &image, const QRect &place, const QColor &color, int iEdge)
{
    const auto isIt = [&color, iEdge](const QColor &pixel) {
        return qAbs(pixel.red() - color.red()) <= iEdge && qAbs(pixel.green() - color.green()) <= iEdge &&
               qAbs(pixel.blue() - color.blue()) <= iEdge;
    };
    const qreal dRatio = image.devicePixelRatio();
    int iCount = 0;
    for (int y = qRound(place.top() * dRatio); y < qRound((place.bottom() + 1) * dRatio); ++y) {
        for (int x = qRound(place.left() * dRatio); x < qRound((place.right() + 1) * dRatio); ++x) {
            iCount += isIt(image.pixelColor(x, y)) ? 1 : 0;
        }
    }
    return iCount;
}
