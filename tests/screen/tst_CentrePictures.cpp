// The conference centre's pages beside committed pictures.

#include "ComparedPicture.h"
#include "Ink.h"
#include "PictureSetting.h"

#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "ui/ContactFixture.h"
#include "ui/RealCursor.h"
#include "ui/VoiceConferenceWidget.h"

#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace {

struct Row
{
    const char *confId;
    const char *creator;
    const char *createTime;
    const char *callTime;
    bool connected;
};

// The last is the newest: it comes on top.
const Row cRows[] = {
    {"c1", "cat", "2024-03-01 18:30:00", "0", false},    {"c2", "long", "2024-03-04 08:15:42", "7384", true},
    {"c3", "nobody", "2024-03-04 10:00:00", "59", true}, {"c4", "me", "2024-03-05 09:08:07", "0", false},
    {"c5", "bob", "2024-03-05 14:00:31", "3600", true},  {"c6", "ann", "2024-03-06 16:20:05", "1511", true},
};

ConfInfoData record(const Row &row)
{
    ConfInfoData info;
    info.m_strConfID = QLatin1String(row.confId);
    info.m_strCreatUserID = QLatin1String(row.creator);
    info.m_strCreatTime = QLatin1String(row.createTime);
    info.m_strCallTime = QLatin1String(row.callTime);
    info.m_listMember = {"ann", "bob", "cat", "long", "me", "nobody", "o'brien", "ann"};
    info.m_bIsConnect = row.connected;
    return info;
}

} // namespace

class tst_CentrePictures : public QObject
{
    Q_OBJECT

private:
    QListView *list() const { return m_pWindow->findChild<QListView *>(QStringLiteral("listView")); }
    QWidget *backButton() const { return m_pWindow->findChild<QPushButton *>(QStringLiteral("backBtn")); }

    void open(bool bRecords)
    {
        m_pWindow = std::make_unique<CVoiceConferenceWidget>();
        for (const Row &row : cRows) {
            if (bRecords) {
                m_pWindow->addConferenceInfo(record(row));
            }
        }
        m_pWindow->move(200, 200);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get(), cPatienceMs));
    }

    void hover(int iRow)
    {
        QVERIFY(RealCursor::moveTo(list()->viewport(), list()->visualRect(list()->model()->index(iRow, 0)).center()));
        QCoreApplication::processEvents();
    }

    void showDetail(const QString &strConfID)
    {
        QVERIFY(QMetaObject::invokeMethod(m_pWindow.get(), "slot_ShowConfDetail", Q_ARG(QString, strConfID)));
        QCoreApplication::processEvents();
    }

    void compare(const char *pName)
    {
        // The second of two: rows are at their places once they have been painted.
        ComparedPicture::of(m_pWindow.get());
        QCoreApplication::processEvents();
        const QString strComplaint =
            ComparedPicture::complaint(QLatin1String(pName), ComparedPicture::of(m_pWindow.get()));
        QVERIFY2(strComplaint.isEmpty(), qPrintable(strComplaint));
    }

    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<CVoiceConferenceWidget> m_pWindow;

private slots:
    void initTestCase()
    {
        const QString strMissing =
            PictureSetting::prepare({QStringLiteral("images/CommonCtrls/kvim_common_back_normal.png"),
                                     QStringLiteral("images/CommonCtrls/kvim_common_back_press.png")});
        QVERIFY2(strMissing.isEmpty(), qPrintable(strMissing));
    }

    void init()
    {
        QCursor::setPos(QPoint(0, 0));
        m_pContacts = std::make_unique<ContactFixture>();
        PictureSetting::addContacts(*m_pContacts);
        m_pContacts->addContact(QStringLiteral("me"), ContactFixture::card(QStringLiteral("我"), {}));
    }

    void cleanup()
    {
        m_pWindow.reset();
        m_pContacts.reset();
    }

    void emptyList()
    {
        open(false);
        compare("centre-empty");
    }

    void listOfRecords()
    {
        open(true);
        compare("centre-list");
    }

    void rowUnderTheCursor()
    {
        open(true);
        hover(1);
        compare("centre-list-hover");
    }

    void menuOfARow()
    {
        open(true);
        const QPoint row = list()->visualRect(list()->model()->index(0, 0)).center();
        QTest::mouseClick(list()->viewport(), Qt::RightButton, Qt::NoModifier, row);
        auto *const pMenu = list()->findChild<QMenu *>();
        QVERIFY(QTest::qWaitForWindowExposed(pMenu, cPatienceMs));
        const QString strComplaint =
            ComparedPicture::complaint(QStringLiteral("centre-menu"), ComparedPicture::of(pMenu));
        QVERIFY2(strComplaint.isEmpty(), qPrintable(strComplaint));
    }

    void detail()
    {
        open(true);
        showDetail(QStringLiteral("c6"));
        QVERIFY(backButton()->isVisible());
        compare("centre-detail");
    }

    void detailOfAConferenceThatNeverConnected()
    {
        open(true);
        showDetail(QStringLiteral("c4"));
        compare("centre-detail-unconnected");
    }

    void directionStandsAtTheHeightOfItsLine()
    {
        open(true);
        const QImage picture = list()->viewport()->grab().toImage();
        for (int iRow : {0, 2}) {
            const QPoint row = list()->visualRect(list()->model()->index(iRow, 0)).topLeft();
            const QRect direction(row + QPoint(60, 30), QSize(20, 28));
            const QRect date(row + QPoint(160, 30), QSize(110, 28));
            QVERIFY(!Ink::within(picture, direction).isEmpty() && !Ink::within(picture, date).isEmpty());
            const qreal dBelow = Ink::below(picture, direction, date);
            QVERIFY2(qAbs(dBelow) <= 1, qPrintable(QString::number(dBelow)));
        }
    }

    void detailButtonFillsItsPlace()
    {
        open(true);
        hover(0);
        const QImage picture = list()->viewport()->grab().toImage();
        const QRect place = list()->model()->index(0, 0).data(ROLE_REMOVE_RECT).toRect();
        QVERIFY(!place.isEmpty());
        const QRectF ink = Ink::within(picture, place.adjusted(-4, -6, 4, 4));
        QVERIFY(QRectF(place).contains(ink));
        // A circle, not cut off.
        QVERIFY2(qAbs(ink.width() - ink.height()) <= 1,
                 qPrintable(QStringLiteral("%1 %2").arg(ink.width()).arg(ink.height())));
        QVERIFY(qAbs(ink.center().y() - QRectF(place).center().y()) <= 0.5);
    }

    void arrowOfTheBackButtonKeepsAwayFromItsText()
    {
        open(true);
        showDetail(QStringLiteral("c6"));
        const QImage picture = backButton()->grab().toImage();
        const int iDensity = qRound(picture.devicePixelRatio());
        const QRect inside = backButton()->rect().adjusted(2, 2, -2, -2);
        const auto isEmptyColumn = [&](int x) {
            for (int y = inside.top() * iDensity; y < inside.bottom() * iDensity; ++y) {
                if (Ink::isAt(picture, x, y)) {
                    return false;
                }
            }
            return true;
        };
        int x = int(Ink::within(picture, inside).left() * iDensity);
        while (!isEmptyColumn(x)) {
            ++x;
        }
        const int iArrowEnd = x;
        while (isEmptyColumn(x)) {
            ++x;
        }
        const qreal dGap = (x - iArrowEnd) / qreal(iDensity);
        QVERIFY2(dGap >= 3, qPrintable(QString::number(dGap)));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CentrePictures, Widgets)

#include "tst_CentrePictures.moc"
