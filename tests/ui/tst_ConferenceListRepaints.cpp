// What a change in the conference member list costs: how much of it is painted anew, how often, and which files are
// opened for it.

#include "MemberListTest.h"

#include <QScrollBar>

#include <sys/inotify.h>
#include <unistd.h>

namespace {

/// The repaints of a widget and what they covered.
class Repaints : public QObject
{
public:
    /// Counts from here on, with nothing due.
    explicit Repaints(QWidget *pWidget) : m_pWidget(pWidget)
    {
        pWidget->repaint();
        pWidget->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_regions.append(static_cast<QPaintEvent *>(event)->region());
        return false;
    }
    int count() const { return m_regions.size(); }
    QRegion last() const { return m_regions.last(); }
    /// Whether anything waits to be painted: a repaint of one pixel takes along what is due.
    bool isAnyDue() const
    {
        const QRect pixel(0, 0, 1, 1);
        m_pWidget->repaint(pixel);
        return last() != QRegion(pixel);
    }

private:
    QWidget *m_pWidget;
    QList<QRegion> m_regions;
};

/// How often the files that are watched have been opened since the last look.
class OpenedFiles
{
public:
    explicit OpenedFiles(const QStringList &files) : m_iQueue(inotify_init1(IN_NONBLOCK))
    {
        for (const QString &strFile : files)
            inotify_add_watch(m_iQueue, QFile::encodeName(strFile).constData(), IN_OPEN);
    }
    ~OpenedFiles() { close(m_iQueue); }
    OpenedFiles(const OpenedFiles &) = delete;
    OpenedFiles &operator=(const OpenedFiles &) = delete;
    bool any() const
    {
        char events[4096];
        return read(m_iQueue, events, sizeof events) > 0;
    }

private:
    int m_iQueue;
};

} // namespace

class tst_ConferenceListRepaints : public MemberListTest
{
    Q_OBJECT

private slots:
    void warmRepaintOpensNoFile()
    {
        QVERIFY(
            QFile::copy(QStringLiteral("Resources/images/FriendDetail/defaultHead.png"), QStringLiteral("ann.png")));
        addContact("ann", QStringLiteral("Ann"), QStringLiteral("ann.png"));
        const OpenedFiles opened(
            {QStringLiteral("ann.png"), QStringLiteral("Resources/images/FriendDetail/defaultHead.png")});
        m_pList->addUserList({uid("ann"), uid("bob")});
        showList();
        QVERIFY(opened.any());
        picture();
        m_pList->updateConferenceUserStatus(uid("ann"), 3);
        picture();
        QVERIFY(!opened.any());
    }

    void oneStatusChangeRepaintsItsRow()
    {
        showMembers(5);
        const Repaints repaints(m_pList->viewport());
        m_pList->updateConferenceUserStatus(QStringLiteral("m2"), ConferenceHungUp);
        QTRY_COMPARE(repaints.count(), 1);
        QCOMPARE(repaints.last(), QRegion(row(2)));
        QVERIFY(!repaints.isAnyDue());
    }

    void manyStatusChangesAreOneRepaint()
    {
        showMembers(1000, ConferenceCalling);
        const Repaints repaints(m_pList->viewport());
        for (int i = 0; i < 1000; ++i)
            m_pList->updateConferenceUserStatus(QStringLiteral("m%1").arg(i), ConferenceConnected);
        QTRY_COMPARE(repaints.count(), 1);
        QVERIFY(!repaints.isAnyDue());
    }

    void newMembersAndTheirStatusesAreOneRepaint()
    {
        showMembers(20);
        const Repaints repaints(m_pList->viewport());
        for (int i = 20; i < 1000; ++i) {
            m_pList->addUser(QStringLiteral("m%1").arg(i));
            m_pList->updateConferenceUserStatus(QStringLiteral("m%1").arg(i), ConferenceConnected);
        }
        QTRY_COMPARE(repaints.count(), 1);
        QVERIFY(!repaints.isAnyDue());
    }

    void newPlaceOfAButtonAsksForNoSecondPainting()
    {
        showMembers(100);
        const Repaints repaints(m_pList->viewport());
        m_pList->verticalScrollBar()->setValue(20);
        QTRY_COMPARE(repaints.count(), 1);
        QVERIFY(!repaints.isAnyDue());
    }

    void newTimeOfAnInvitationAsksForNoPainting()
    {
        showMembers(1);
        const Repaints repaints(m_pList->viewport());
        m_pList->addUser(QStringLiteral("m0"));
        QVERIFY(!repaints.isAnyDue());
    }
};

QTEST_MAIN(tst_ConferenceListRepaints)

#include "tst_ConferenceListRepaints.moc"
