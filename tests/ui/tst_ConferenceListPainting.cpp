// The picture of the conference member list: each row beside one painted by the bare numbers, and where the buttons
// answer after scrolling and changes.

#include "MemberListTest.h"

#include "common/pictures/IconFont.h"
#include "fakes/PaintedPicture.h"
#include "fakes/Patience.h"

#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

const QString cFont = QStringLiteral("微软雅黑");

void writePicture(const QString &strPath, const QColor &color)
{
    QImage image(100, 80, QImage::Format_RGB32);
    image.fill(color);
    QPainter painter(&image);
    painter.fillRect(30, 20, 40, 40, color.darker());
    painter.end();
    QVERIFY(image.save(strPath));
}

} // namespace

class tst_ConferenceListPainting : public MemberListTest
{
    Q_OBJECT

private:
    /// The glyphs of a row whose name is so wide.
    static void paintGlyphsByNumbers(QPainter &painter, const QRect &r, const QModelIndex &row, int iName)
    {
        const QRect remove(r.right() + 1 - 20 - 18, r.top() + 10, 18, 18);
        const QRect mute(remove.left() - 18 - 18, r.top() + 10, 18, 18);
        const bool bMine = row.data(Qt::UserRole + 13).toBool();
        const int iStatus = row.data(Qt::UserRole + 139).toInt();
        QFont font = IconFont::getIconFont();
        font.setPixelSize(14);
        painter.setFont(font);
        if (bMine && iStatus != 0) {
            painter.setPen(row.data(Qt::UserRole + 141).toBool() ? QColor(255, 97, 88) : QColor(158, 158, 158));
            painter.drawText(remove, QString(QChar(0xE726)), QTextOption());
        }
        if (bMine && iStatus == 1) {
            painter.setPen(row.data(Qt::UserRole + 143).toBool() ? QColor(0, 185, 31) : QColor(158, 158, 158));
            painter.drawText(mute, QString(QChar(row.data(Qt::UserRole + 144).toBool() ? 0xF64C : 0xF64D)),
                             QTextOption());
        }
        if (row.data(Qt::UserRole + 85).toBool()) {
            painter.setPen(QColor(0x7c, 0x7c, 0x7c));
            painter.drawText(QRect(r.left() + 52 + iName + 18, r.top() + 10, 18, 18), QString(QChar(0xE65C)),
                             QTextOption());
        }
    }

    /// The row by its numbers, with nothing kept from one painting to the next.
    static void paintByNumbers(QPainter &painter, const QRect &r, const QModelIndex &row)
    {
        const QPen pen = painter.pen();
        const bool bMine = row.data(Qt::UserRole + 13).toBool();
        const QRect status(bMine ? r.right() + 1 - 20 - 18 - 18 - 18 - 100 - 50 : r.right() + 1 - 50 - 20, r.top() + 10,
                           50, r.height());
        paintHeadByNumbers(painter, r.topLeft() + QPoint(20, 8), row.data(Qt::UserRole + 2).toString(), 22);

        QFont font(cFont);
        font.setPixelSize(12);
        painter.setFont(font);
        const int iRoom = status.left() - (r.left() + 42) - 10 - 18 - 2 * 18;
        const QString strWhole = row.data(Qt::UserRole + 1).toString().replace(QLatin1Char('\n'), QLatin1Char(' '));
        const int iWidth = qMin(painter.fontMetrics().horizontalAdvance(strWhole), iRoom);
        const QString strName = painter.fontMetrics().elidedText(strWhole, Qt::ElideRight, iRoom);
        QTextOption oneLine;
        oneLine.setWrapMode(QTextOption::NoWrap);
        painter.drawText(QRect(r.left() + 52, r.top() + 10, iWidth, r.height()), strName, oneLine);

        const int iStatus = row.data(Qt::UserRole + 139).toInt();
        const QStringList words{QStringLiteral("呼叫中"),   QStringLiteral("已接通"), QStringLiteral("呼叫失败"),
                                QStringLiteral("对方正忙"), QStringLiteral("已挂断"), QStringLiteral("已拒绝")};
        painter.setPen(iStatus == 1 ? QPen(QColor(0, 185, 31)) : pen);
        painter.drawText(status, words.value(iStatus, QStringLiteral("未接通")), QTextOption());

        paintGlyphsByNumbers(painter, r, row, iWidth);
        painter.fillRect(QRect(QPoint(r.left() + 20, r.bottom()), QPoint(r.right() - 20, r.bottom())),
                         QColor(224, 224, 224));
        painter.setPen(pen);
    }

    QImage pictureByNumbers() const
    {
        const QWidget *const pPort = m_pList->viewport();
        return paintedLike(*pPort, [&](QPainter &painter) {
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            for (int iRow = 0; iRow < rowCount(); ++iRow) {
                if (row(iRow).intersects(pPort->rect())) {
                    paintByNumbers(painter, row(iRow), index(iRow));
                }
            }
        });
    }

    void compareWithNumbers(const char *pName)
    {
        // First the picture: for it the rows move to their places.
        const QImage actual = picture();
        comparePictures(actual, pictureByNumbers(), pName);
    }

    /// A row of each status from 0 to 6, its name the status' number. Fills the list's height but for a strip.
    void addStatuses()
    {
        for (int iStatus = 0; iStatus <= 6; ++iStatus) {
            const QString strUid = QString::number(iStatus);
            m_pContacts->addContact(strUid, ContactFixture::card(QStringLiteral("成员 member ") + strUid, {}));
            m_pList->addUser(strUid);
            m_pList->updateConferenceUserStatus(strUid, iStatus);
        }
    }

private slots:
    void everyStatusAtTheCallersSide()
    {
        addStatuses();
        m_pList->setConferenceCreator(QStringLiteral("2"));
        showList();
        compareWithNumbers("members-caller");
    }

    void everyStatusAtAMembersSide()
    {
        m_pList->setIsCallByMe(false);
        addStatuses();
        m_pList->setConferenceCreator(QStringLiteral("1"));
        showList();
        compareWithNumbers("members-invited");
    }

    void mutedRowsAndButtonsUnderTheCursor()
    {
        showMembers(6);
        for (const int iRow : {1, 3}) {
            setData(iRow, ROLE_MUTED, true);
        }
        for (const int iRow : {2, 3, 4}) {
            setData(iRow, ROLE_MUTE_HOVER, true);
        }
        for (const int iRow : {4, 5}) {
            setData(iRow, ROLE_REMOVE_HOVER, true);
        }
        compareWithNumbers("members-hover");
    }

    void oddNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("none") << QString();
        QTest::newRow("long") << QStringLiteral("mi").repeated(5000);
        QTest::newRow("long Chinese") << QStringLiteral("会议").repeated(5000);
        QTest::newRow("rich text") << "<b>bold</b><img src='x'> &amp; &x";
        QTest::newRow("line feeds") << "one\ntwo\n\nthree";
        QTest::newRow("right to left") << QStringLiteral("שלום עולם");
        QTest::newRow("long right to left") << QStringLiteral("שלום ").repeated(2000);
        QTest::newRow("emoji") << QStringLiteral("\U0001F600 Ann \U0001F600");
    }
    void oddNames()
    {
        QFETCH(QString, name);
        addContact("ann", name);
        addContact("bob", QStringLiteral("Bob"));
        m_pList->addUserList({uid("ann"), uid("bob")});
        m_pList->setConferenceCreator(uid("ann"));
        showList();
        compareWithNumbers((QByteArray("name-") + QTest::currentDataTag()).constData());
    }

    void narrowListShowsNoName()
    {
        addContact("m0", QStringLiteral("Ann"));
        addContact("m1", QStringLiteral("成员 member"));
        showMembers(2);
        m_pList->setMinimumWidth(100);
        m_pList->resize(100, 280);
        setData(0, Qt::SizeHintRole, QSize(100, 38));
        setData(1, Qt::SizeHintRole, QSize(100, 38));
        compareWithNumbers("members-narrow");
    }

    void headsAreThoseOfTheContacts()
    {
        writePicture(QStringLiteral("ann.png"), Qt::red);
        addContact("ann", QStringLiteral("Ann"), QStringLiteral("ann.png"));
        m_pList->addUserList({uid("ann"), uid("bob")});
        showList();
        compareWithNumbers("members-heads");
        QVERIFY(countPixels(picture(), QRect(row(0).left() + 20, row(0).top() + 8, 22, 22), Qt::red) > 0);
    }

    void pictureOfTheProgramIsAHeadToo()
    {
        showMembers(1);
        const QString strPath = QStringLiteral(":/qt-project.org/styles/commonstyle/images/filelink-32.png");
        QVERIFY(!QPixmap(strPath).isNull());
        setData(0, ROLE_HEAD_PATH, strPath);
        compareWithNumbers("members-resource-head");
    }

    void missingPictureLeavesItsPlaceEmpty()
    {
        showMembers(1);
        setData(0, ROLE_HEAD_PATH, QStringLiteral("nowhere.png"));
        compareWithNumbers("members-no-head");
        const QRect head(20, 8, 22, 22);
        QCOMPARE(countPixels(picture(), head, m_pList->palette().color(QPalette::Base)),
                 qRound(22 * 22 * m_pList->devicePixelRatioF() * m_pList->devicePixelRatioF()));
    }

    void changedPictureShowsAtTheNextPaint()
    {
        const QString strFile = QStringLiteral("changing.png");
        writePicture(strFile, Qt::red);
        addContact("ann", QStringLiteral("Ann"), strFile);
        m_pList->addUser(uid("ann"));
        showList();
        for (const QColor &color : {QColor(Qt::blue), QColor(Qt::green)}) {
            QVERIFY(QFile::remove(strFile));
            writePicture(strFile, color);
            compareWithNumbers("members-changed-head");
        }
    }

    void paintingGivesThePainterItsFontAndPenBack()
    {
        showMembers(1);
        QStyleOptionViewItem option;
        option.rect = row(0);
        QPixmap pixmap(523, 38);
        QPainter painter(&pixmap);
        painter.setFont(QFont(QStringLiteral("monospace"), 20));
        painter.setPen(Qt::blue);
        const QFont font = painter.font();
        m_pList->itemDelegate(index(0))->paint(&painter, option, index(0));
        QCOMPARE(painter.font(), font);
        QCOMPARE(painter.pen(), QPen(Qt::blue));
        QVERIFY(painter.testRenderHint(QPainter::SmoothPixmapTransform));
        QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
    }

    void buttonsAnswerWhereTheyStandAfterScrolling()
    {
        const QSignalSpy removed(m_pList.get(), &CConferenceListView::signal_RemoveUser);
        const QSignalSpy muted(m_pList.get(), &CConferenceListView::signal_MuteUser);
        showMembers(1000);
        m_pList->verticalScrollBar()->setValue(m_pList->verticalScrollBar()->maximum());
        picture();
        const QRect last = row(999);
        QVERIFY(m_pList->viewport()->rect().contains(last));
        QCOMPARE(place(999, ROLE_REMOVE_RECT), QRect(last.right() + 1 - 38, last.top() + 10, 18, 18));
        QCOMPARE(place(999, ROLE_MUTE_RECT), QRect(last.right() + 1 - 74, last.top() + 10, 18, 18));
        click(place(999, ROLE_REMOVE_RECT).center());
        click(place(998, ROLE_MUTE_RECT).center());
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.last().first().toString(), QStringLiteral("m999"));
        QCOMPARE(muted.count(), 1);
        QCOMPARE(muted.last().first().toString(), QStringLiteral("m998"));
        compareWithNumbers("members-scrolled");
    }

    void buttonsAnswerWhereTheyStandAfterTheSmallestScroll()
    {
        const QSignalSpy removed(m_pList.get(), &CConferenceListView::signal_RemoveUser);
        showMembers(1000);
        picture();
        m_pList->verticalScrollBar()->setValue(1);
        QCoreApplication::processEvents();
        for (int number : {2, 3, 4}) {
            QCOMPARE(place(number, ROLE_REMOVE_RECT).top(), row(number).top() + 10);
        }
        click(place(3, ROLE_REMOVE_RECT).center());
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.last().first().toString(), QStringLiteral("m3"));
    }

    void buttonsAnswerAsSoonAsAStatusBringsThem()
    {
        const QSignalSpy removed(m_pList.get(), &CConferenceListView::signal_RemoveUser);
        showMembers(2, ConferenceCalling);
        const QPoint button(row(1).right() - 30, row(1).top() + 19);
        click(button);
        QCOMPARE(removed.count(), 0);
        m_pList->updateConferenceListStatus({QStringLiteral("m1")});
        picture();
        click(button);
        QCOMPARE(removed.count(), 1);
    }

    void rowBehindARemovedOneLightsUpWhenTheMouseMoves()
    {
        connect(m_pList.get(), &CConferenceListView::signal_RemoveUser, m_pList.get(),
                &CConferenceListView::removeUser);
        showMembers(3);
        const QPoint button = place(1, ROLE_REMOVE_RECT).center();
        moveTo(button);
        QTRY_COMPARE_WITH_TIMEOUT(data(1, ROLE_REMOVE_HOVER), QVariant(true), cPatienceMs);
        click(button);
        QCOMPARE(rowCount(), 2);
        QCOMPARE(data(1, ROLE_USER_ID).toString(), QStringLiteral("m2"));
        picture();
        QCOMPARE(place(1, ROLE_REMOVE_RECT).center(), button);
        QCOMPARE(data(1, ROLE_REMOVE_HOVER), QVariant(false));
        moveTo(button + QPoint(1, 1));
        QTRY_COMPARE_WITH_TIMEOUT(data(1, ROLE_REMOVE_HOVER), QVariant(true), cPatienceMs);
        compareWithNumbers("members-removed");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceListPainting, Widgets)

#include "tst_ConferenceListPainting.moc"
