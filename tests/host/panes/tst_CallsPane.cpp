#include "client/ContactBook.h"
#include "fakes/Patience.h"
#include "panes/CallsPane.h"
#include "screen/WindowProbe.h"

#include <QSignalSpy>
#include <QTableView>
#include <QTest>

/// The records of calls, by the mouse and by the keyboard.
class tst_CallsPane : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pPane.reset();
        m_pModel = std::make_unique<CallRecordModel>(m_book);
        m_pPane = std::make_unique<CallsPane>();
        m_pPane->setModel(m_pModel.get());
        m_pPane->resize(640, 400);
        m_pPane->show();
        m_pPane->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pPane.get(), cPatienceMs));
        m_pTable = m_pPane->findChild<QTableView *>();
    }

    void withoutRecordsItSaysSo()
    {
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblNoCalls"), QStringLiteral("No calls yet"));
        add("30010001", false);
        QVERIFY(!WindowProbe::isShown(m_pPane.get(), "lblNoCalls"));
        QVERIFY(m_pTable->isVisible());
    }

    void doubleClickCallsAgain()
    {
        add("30010001", true);
        add("30010002", false);
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        QTest::mouseClick(m_pTable->viewport(), Qt::LeftButton, Qt::NoModifier, middle(1));
        QTest::mouseDClick(m_pTable->viewport(), Qt::LeftButton, Qt::NoModifier, middle(1));
        QCOMPARE(called.count(), 1);
        QCOMPARE(called.at(0), (QList<QVariant>{QStringLiteral("30010001"), true}));
    }

    void enterCallsTheChosenRecordAgain()
    {
        add("30010001", false);
        add("30010002", false);
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        m_pTable->setFocus();
        QTest::keyClick(m_pTable, Qt::Key_Down);
        QTest::keyClick(m_pTable, Qt::Key_Return);
        QCOMPARE(called.count(), 1);
        QCOMPARE(called.at(0), (QList<QVariant>{QStringLiteral("30010001"), false}));
    }

    void focusChoosesTheNewestRecord()
    {
        add("30010001", false);
        add("30010002", false);
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        m_pTable->setFocus();
        QTest::keyClick(m_pTable, Qt::Key_Enter);
        QCOMPARE(called.value(0), (QList<QVariant>{QStringLiteral("30010002"), false}));
    }

    void clickAloneCallsNobody()
    {
        add("30010001", false);
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        QTest::mouseClick(m_pTable->viewport(), Qt::LeftButton, Qt::NoModifier, middle(0));
        QCOMPARE(called.count(), 0);
    }

    void tabLeavesTheTable()
    {
        add("30010001", false);
        m_pTable->setFocus();
        QTest::keyClick(m_pTable, Qt::Key_Tab);
        QCOMPARE(m_pPane->focusWidget()->objectName(), QStringLiteral("btnCentre"));
    }

private:
    void add(const char *strUid, bool bVideo)
    {
        CallRecord record;
        record.uid = QLatin1String(strUid);
        record.video = bVideo;
        m_pModel->add(record);
    }
    QPoint middle(int iRow) const { return m_pTable->visualRect(m_pModel->index(iRow, 2)).center(); }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<CallRecordModel> m_pModel;
    std::unique_ptr<CallsPane> m_pPane;
    QTableView *m_pTable = nullptr;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallsPane, Widgets)
#include "tst_CallsPane.moc"
