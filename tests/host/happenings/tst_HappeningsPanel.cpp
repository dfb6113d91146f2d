#include "client/ContactBook.h"
#include "happenings/HappeningsPanel.h"
#include "session/HostSession.h"

#include "fakes/Patience.h"
#include "host/panes/PressButton.h"
#include "host/tour/Waves.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

namespace {

class PaintCount : public QObject
{
public:
    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

/// The panel beside a session whose plug-in is not loaded, used by mouse and keys.
class tst_HappeningsPanel : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(QStringLiteral("wire.txt"));
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        m_pSession = std::make_unique<HostSession>(m_book);
        m_pPanel = std::make_unique<HappeningsPanel>(*m_pSession, QStringLiteral("wire.txt"));
        m_pPanel->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pPanel.get(), cPatienceMs));
    }

    void cleanup()
    {
        m_pPanel.reset();
        m_pSession.reset();
    }

    void typedFilterShowsFewerLines()
    {
        lines(10, 20);
        QTest::keyClicks(part<QLineEdit>("editFilter"), QStringLiteral("N1"));
        QCOMPARE(shown(), 10);
        QCOMPARE(count(), QStringLiteral("10 of 20 lines"));
        QTest::keyClick(part<QLineEdit>("editFilter"), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(part<QLineEdit>("editFilter"), Qt::Key_Delete);
        QCOMPARE(shown(), 20);
        QCOMPARE(count(), QStringLiteral("20 lines"));
    }

    void boxesHideKinds()
    {
        lines(0, 2);
        hostEvent();
        QFile file(QStringLiteral("wire.txt"));
        QVERIFY(file.open(QIODevice::Append) && file.write("9 ! odd\n") > 0);
        file.close();
        m_pPanel->feed().look();
        QCOMPARE(shown(), 4);
        clickBox("boxEvents");
        QCOMPARE(shown(), 3);
        clickBox("boxWires");
        QCOMPARE(shown(), 1);
        clickBox("boxErrors");
        QCOMPARE(shown(), 0);
        part<QCheckBox>("boxEvents")->setFocus();
        QTest::keyClick(part<QCheckBox>("boxEvents"), Qt::Key_Space);
        QCOMPARE(shown(), 1);
    }

    void chosenLineIsShownInFull()
    {
        lines(0, 3);
        auto *detail = part<QPlainTextEdit>("textDetail");
        QCOMPARE(detail->toPlainText(), QString());
        clickRow(1);
        QVERIFY2(detail->toPlainText().endsWith(QStringLiteral(" · call process · wire\ncall process notes: n1\n\nn1")),
                 qPrintable(detail->toPlainText()));
        QTest::keyClick(view(), Qt::Key_Down);
        QVERIFY(detail->toPlainText().endsWith(QStringLiteral("\n\nn2")));
    }

    void markupIsPlainText()
    {
        QFile file(QStringLiteral("wire.txt"));
        const QByteArray markup = "<h1>big</h1><img src=\"x\">";
        QVERIFY(file.open(QIODevice::Append) && file.write("1 < " + markup + "\n") > 0);
        file.close();
        m_pPanel->feed().look();
        clickRow(0);
        QVERIFY(part<QPlainTextEdit>("textDetail")->toPlainText().endsWith(QString::fromLatin1("\n\n" + markup)));
        QCOMPARE(view()->visualRect(view()->model()->index(0, 0)).height(), view()->sizeHintForRow(0));
        QVERIFY(view()->sizeHintForRow(0) < 2 * view()->fontMetrics().height());
    }

    void controlCCopiesTheSelectedLines()
    {
        lines(0, 5);
        clickRow(3);
        clickRow(1, Qt::ControlModifier);
        QTest::keyClick(view(), Qt::Key_C, Qt::ControlModifier);
        const QStringList copied = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(copied, (QStringList{m_pPanel->model().line(1), m_pPanel->model().line(3)}));
        QVERIFY(copied.at(0).endsWith(QStringLiteral("\tcall process\twire\tcall process notes: n1\tn1")));
    }

    void buttonCopiesAllShownLinesWhenNoneIsSelected()
    {
        lines(10, 20);
        QTest::keyClicks(part<QLineEdit>("editFilter"), QStringLiteral("n2"));
        QVERIFY(pressButton(m_pPanel.get(), "btnCopy"));
        QStringList copied = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(copied.size(), 10);
        QCOMPARE(copied.first(), m_pPanel->model().line(10));
        clickRow(4);
        QVERIFY(pressButton(m_pPanel.get(), "btnCopy"));
        copied = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(copied, QStringList{m_pPanel->model().line(14)});
    }

    void nothingToCopyLeavesTheClipboard()
    {
        QVERIFY(pressButton(m_pPanel.get(), "btnCopy"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    }

    void newestLineStaysInSight()
    {
        lines(0, 200);
        QVERIFY(view()->verticalScrollBar()->maximum() > 0);
        QVERIFY(isAtEnd());
        lines(200, 100);
        QVERIFY(isAtEnd());
    }

    void scrollingBackStaysThereUntilTheEndIsWanted()
    {
        lines(0, 200);
        auto *follow = part<QCheckBox>("boxFollow");
        view()->setFocus();
        clickRow(199);
        QTest::keyClick(view(), Qt::Key_Home);
        QVERIFY(!follow->isChecked());
        QCOMPARE(view()->verticalScrollBar()->value(), 0);
        lines(200, 100);
        QCOMPARE(view()->verticalScrollBar()->value(), 0);
        QTest::keyClick(view(), Qt::Key_End);
        QVERIFY(follow->isChecked());
        QTest::keyClick(view(), Qt::Key_Home);
        QVERIFY(!follow->isChecked());
        clickBox("boxFollow");
        QVERIFY(follow->isChecked());
        QVERIFY(isAtEnd());
        lines(300, 10);
        QVERIFY(isAtEnd());
    }

    void placeStaysWhenTheOldestLinesGo()
    {
        lines(0, HappeningsModel::cCapacity);
        view()->verticalScrollBar()->setValue(500);
        const QString top = view()->indexAt(QPoint(200, 0)).siblingAtColumn(HappeningsModel::What).data().toString();
        QCOMPARE(top, QStringLiteral("call process notes: n500"));
        lines(HappeningsModel::cCapacity, 40);
        QCOMPARE(view()->indexAt(QPoint(200, 0)).siblingAtColumn(HappeningsModel::What).data().toString(), top);
        QCOMPARE(view()->verticalScrollBar()->value(), 460);
    }

    void pauseIsSaid()
    {
        lines(0, 2);
        QVERIFY(pressButton(m_pPanel.get(), "btnPause"));
        lines(2, 3);
        QCOMPARE(shown(), 2);
        QCOMPARE(count(), QStringLiteral("2 lines · paused, 3 waiting"));
        QVERIFY(pressButton(m_pPanel.get(), "btnPause"));
        QCOMPARE(shown(), 5);
        QCOMPARE(count(), QStringLiteral("5 lines"));
    }

    void droppedLinesAreSaid()
    {
        lines(0, HappeningsModel::cCapacity + 12);
        QCOMPARE(count(), QStringLiteral("10000 lines · the oldest 12 were dropped"));
    }

    void clearTakesAllAway()
    {
        lines(0, 3);
        clickRow(0);
        QVERIFY(pressButton(m_pPanel.get(), "btnClear"));
        QCOMPARE(shown(), 0);
        QCOMPARE(part<QPlainTextEdit>("textDetail")->toPlainText(), QString());
        QCOMPARE(count(), QStringLiteral("0 lines"));
    }

    void manyLinesCostOneRepaint()
    {
        lines(0, 100);
        QCoreApplication::processEvents();
        PaintCount paints;
        view()->viewport()->installEventFilter(&paints);
        lines(100, 1000);
        QTRY_VERIFY_WITH_TIMEOUT(paints.count > 0, cPatienceMs);
        QCoreApplication::processEvents();
        QCOMPARE(paints.count, 1);
    }

    void everythingIsReachedByTab()
    {
        lines(0, 1);
        const QStringList expected = {"editFilter",     "boxEvents",  "boxWires", "boxErrors", "boxFollow",
                                      "viewHappenings", "textDetail", "btnPause", "btnCopy",   "btnClear"};
        part<QLineEdit>("editFilter")->setFocus();
        QStringList reached;
        for (int i = 0; i < expected.size(); ++i) {
            reached << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(reached, expected);
    }

    void everyControlHasAName()
    {
        for (const char *name : {"editFilter", "boxEvents", "boxWires", "boxErrors", "boxFollow", "viewHappenings",
                                 "textDetail", "btnPause", "btnCopy", "btnClear"}) {
            QVERIFY2(!part<QWidget>(name)->accessibleName().isEmpty(), name);
        }
    }

    void languageIsTakenAnew()
    {
        lines(0, 1);
        clickRow(0);
        Waves waves;
        QVERIFY(QCoreApplication::installTranslator(&waves));
        QTRY_COMPARE_WITH_TIMEOUT(part<QPushButton>("btnClear")->text(), QStringLiteral("~Clear"), cPatienceMs);
        QCOMPARE(m_pPanel->windowTitle(), QStringLiteral("~What happens"));
        QCOMPARE(count(), QStringLiteral("~1 lines"));
        QVERIFY(
            part<QPlainTextEdit>("textDetail")->toPlainText().contains(QStringLiteral("\n~call process notes: n0\n")));
    }

private:
    void lines(int iFirst, int iCount)
    {
        QFile file(QStringLiteral("wire.txt"));
        QVERIFY(file.open(QIODevice::Append));
        for (int i = iFirst; i < iFirst + iCount; ++i) {
            file.write(QByteArray::number(i) + " = n" + QByteArray::number(i) + "\n");
        }
        file.close();
        m_pPanel->feed().look();
    }
    void hostEvent()
    {
        BaseEvent event(MSG_CLOSE_SIGN_LIST, voipPluginId(), signListPluginId(), false);
        QCoreApplication::sendEvent(&m_pSession->mailbox(), &event);
        m_pPanel->feed().look();
    }
    template <typename Widget>
    Widget *part(const char *strName)
    {
        return m_pPanel->findChild<Widget *>(QLatin1String(strName));
    }
    QTreeView *view() { return part<QTreeView>("viewHappenings"); }
    int shown() { return view()->model()->rowCount(); }
    QString count() { return part<QLabel>("lblCount")->text(); }
    void clickRow(int iRow, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QRect place = view()->visualRect(view()->model()->index(iRow, HappeningsModel::What));
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers, QPoint(place.left() + 10, place.center().y()));
    }
    void clickBox(const char *strName)
    {
        auto *box = part<QCheckBox>(strName);
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    }
    bool isAtEnd() { return view()->verticalScrollBar()->value() == view()->verticalScrollBar()->maximum(); }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<HostSession> m_pSession;
    std::unique_ptr<HappeningsPanel> m_pPanel;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HappeningsPanel, Widgets)
#include "tst_HappeningsPanel.moc"
