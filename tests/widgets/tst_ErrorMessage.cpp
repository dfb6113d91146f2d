// The dialog itself: its window, its buttons, its moving, and what a new language does. The form and the modes have
// tests of their own.

#include "fakes/Patience.h"
#include "widgets/Brackets.h"
#include "widgets/ShownDialog.h"

#include <QApplication>
#include <QDir>
#include <QLayout>
#include <QSignalSpy>

using namespace ShownDialog;

namespace {

/// Gives the dialog its size and place without showing it, so that no window manager has a say.
void place(ErrorMessage &dialog)
{
    dialog.layout()->activate();
    dialog.setGeometry(200, 150, 288, 158);
}

void drag(QWidget *pWidget, const QPoint &to)
{
    QMouseEvent move(QEvent::MouseMove, to, pWidget->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(pWidget, &move);
}

} // namespace

class tst_ErrorMessage : public QObject
{
    Q_OBJECT

private slots:
    void dialogIsFramelessModalAndOnTop()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        const Qt::WindowFlags flags = dialog.windowFlags();
        QCOMPARE(flags & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Dialog));
        QVERIFY(flags.testFlag(Qt::FramelessWindowHint));
        QVERIFY(flags.testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(dialog.hasMouseTracking());
        bool modal = false;
        QSize size;
        whenShown(dialog, [&] {
            modal = QApplication::activeModalWidget() == &dialog;
            size = dialog.size();
        });
        dialog.getMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
        QVERIFY(modal);
        QCOMPARE(size, QSize(288, 158));
    }

    void windowHasTheClientsIcon()
    {
        const QString strFolder = QStringLiteral("Resources/Images/SysTrayIcon");
        QVERIFY(QDir().mkpath(strFolder));
        QImage green(16, 16, QImage::Format_RGB32);
        green.fill(Qt::green);
        QVERIFY(green.save(strFolder + QStringLiteral("/MiniToTaskBar.png")));
        const ErrorMessage dialog(QString(), QString(), nullptr);
        QCOMPARE(dialog.windowIcon().pixmap(16, 16).toImage().convertToFormat(QImage::Format_RGB32), green);
    }

    void closingDoesNotCountForQuit()
    {
        const QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
        ErrorMessage dialog(QString(), QString(), nullptr);
        whenShown(dialog, [&] { click(dialog, "closeBtn"); });
        dialog.getMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
        QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
        QCOMPARE(lastClosed.count(), 0);
    }

    void formsOwnConnectionClosesToo()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        QVERIFY(
            QObject::disconnect(button(dialog, "closeBtn"), SIGNAL(clicked()), &dialog, SLOT(slot_clickedCloseBtn())));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog, cPatienceMs));
        dialog.m_bAccepted = true;
        click(dialog, "closeBtn");
        QVERIFY(!dialog.isVisible());
        QVERIFY(dialog.m_bAccepted);
    }

    void acceptButtonStartsDisabledWithTheConstructorsWord()
    {
        const ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        QVERIFY(!button(dialog, "acceptBtn")->isEnabled());
        QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("Yes"));
        QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("No"));
        QVERIFY(!dialog.m_bAccepted);
        QCOMPARE(part<QWidget>(dialog, "btnClose")->toolTip(), QStringLiteral("close"));
    }

    void buttonTextsAreSet()
    {
        ErrorMessage dialog(QString(), QStringLiteral("OK"), nullptr);
        dialog.setBtnText(QStringLiteral("Yes"), QStringLiteral("No"));
        QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("Yes"));
        QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("No"));
    }

    void focusMovesBetweenTheButtons()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        dialog.setBtnFocus(true);
        QVERIFY(inner(dialog, "acceptBtn")->isDefault());
        QVERIFY(!inner(dialog, "closeBtn")->isDefault());
        dialog.setBtnFocus(false);
        QVERIFY(!inner(dialog, "acceptBtn")->isDefault());
        QVERIFY(inner(dialog, "closeBtn")->isDefault());
    }

    void pressMakesAButtonTheDefault_data()
    {
        QTest::addColumn<QByteArray>("pressed");
        QTest::addColumn<QByteArray>("other");
        QTest::newRow("accept button") << QByteArray("acceptBtn") << QByteArray("closeBtn");
        QTest::newRow("close button") << QByteArray("closeBtn") << QByteArray("acceptBtn");
    }

    void pressMakesAButtonTheDefault()
    {
        QFETCH(QByteArray, pressed);
        QFETCH(QByteArray, other);
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        bool bSeen = false;
        whenShown(dialog, [&] {
            dialog.setBtnFocus(other == "acceptBtn");
            QWidget *pTarget = clickTarget(button(dialog, pressed));
            QTest::mousePress(pTarget, Qt::LeftButton);
            QVERIFY(inner(dialog, pressed)->isDefault());
            QVERIFY(!inner(dialog, other)->isDefault());
            QVERIFY(inner(dialog, pressed)->isDown());
            QTest::mouseRelease(pTarget, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
            bSeen = dialog.isVisible();
        });
        dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
        QVERIFY(bSeen);
    }

    void answerIsReadFromTheFlag_data()
    {
        QTest::addColumn<QByteArray>("clicked");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("accept button") << QByteArray("acceptBtn") << true;
        QTest::newRow("close button") << QByteArray("closeBtn") << false;
        QTest::newRow("cross in the title") << QByteArray("btnClose") << false;
    }

    void answerIsReadFromTheFlag()
    {
        QFETCH(QByteArray, clicked);
        QFETCH(bool, accepted);
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        whenShown(dialog, [&] {
            click(dialog, clicked);
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("Text")), accepted);
        QCOMPARE(dialog.m_bAccepted, accepted);
    }

    void keyboardAnswers_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("Return presses the default button") << int(Qt::Key_Return) << true;
        QTest::newRow("Escape closes") << int(Qt::Key_Escape) << false;
    }

    void keyboardAnswers()
    {
        QFETCH(int, key);
        QFETCH(bool, accepted);
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        whenShown(dialog, [&] {
            QTest::keyClick(&dialog, Qt::Key(key));
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("Text")), accepted);
    }

    void skinIsTakenWithoutAnEffect()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        const QString strSheet = dialog.styleSheet();
        dialog.setSkinData(SysUIData());
        QCOMPARE(dialog.styleSheet(), strSheet);
    }

    void languageChangeFlipsTheQuestionToTheHotKeyPage()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        QString strBefore;
        QString strAfter;
        QString strTitle = QStringLiteral("?");
        whenShown(dialog, [&] {
            strBefore = page(dialog);
            QEvent change(QEvent::LanguageChange);
            QCoreApplication::sendEvent(&dialog, &change);
            strAfter = page(dialog);
            strTitle = text(dialog, "titlelabel");
        });
        dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
        QCOMPARE(strBefore, QStringLiteral("MsgShow"));
        QCOMPARE(strAfter, QStringLiteral("page_MsgAndScreen"));
        QVERIFY(strTitle.isEmpty());
        QCOMPARE(text(dialog, "label_8"), QStringLiteral("yourPickMsgHotKeyUsedAndRevise"));
        // The form's own words are back as well.
        QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("确定"));
        QCOMPARE(part<QWidget>(dialog, "btnClose")->toolTip(), QStringLiteral("关闭"));
    }

    void languageChangeRefillsTheHotKeyPage_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("used");
        QTest::addColumn<QString>("period");
        QTest::newRow("message picking") << 0 << "<yourPickMsgHotKeyUsedAndRevise>"
                                         << "<period>";
        QTest::newRow("screen capture keeps its full stop") << 1 << "<yourScreenCutHotKeyUsedAndRevise>"
                                                            << "period";
        QTest::newRow("another") << 2 << "<yourHotKeyUsedAndRevise>"
                                 << "<period>";
        QTest::newRow("no known type") << 5 << ""
                                       << "";
    }

    void languageChangeRefillsTheHotKeyPage()
    {
        QFETCH(int, type);
        ErrorMessage dialog(QString(), QString(), nullptr);
        dialog.showHotKeyError(QStringLiteral("Title"), type);
        Brackets brackets;
        QVERIFY(QCoreApplication::installTranslator(&brackets));
        QCoreApplication::sendPostedEvents();
        QTEST(text(dialog, "label_8"), "used");
        QTEST(text(dialog, "label_10"), "period");
        QCOMPARE(page(dialog), QStringLiteral("page_MsgAndScreen"));
        QCOMPARE(text(dialog, "titlelabel"), QStringLiteral("Title"));
        QCoreApplication::removeTranslator(&brackets);
    }

    void dialogFollowsTheMouse()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        place(dialog);
        auto *pTitle = part<QWidget>(dialog, "titleWidget");
        QTest::mousePress(pTitle, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        drag(pTitle, QPoint(40, 30));
        QCOMPARE(dialog.pos(), QPoint(230, 170));
        // No edge of the screen holds it back.
        drag(pTitle, QPoint(-990, 10));
        QCOMPARE(dialog.pos(), QPoint(-770, 170));
        QTest::mouseRelease(pTitle, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        drag(pTitle, QPoint(90, 90));
        QCOMPARE(dialog.pos(), QPoint(-770, 170));
    }

    void cursorAtTheOffsetMovesNothing()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        place(dialog);
        const QPoint offset(10, 12);
        QTest::mousePress(&dialog, Qt::LeftButton, Qt::NoModifier, offset);
        const auto moveTo = [&dialog](const QPoint &global) {
            QMouseEvent move(QEvent::MouseMove, QPoint(), global, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&dialog, &move);
        };
        moveTo(offset);
        QCOMPARE(dialog.pos(), QPoint(200, 150));
        moveTo(offset + QPoint(1, 0));
        QCOMPARE(dialog.pos(), QPoint(1, 0));
    }

    void otherButtonsDoNotMoveTheDialog()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        place(dialog);
        QTest::mousePress(&dialog, Qt::RightButton, Qt::NoModifier, QPoint(10, 10));
        drag(&dialog, QPoint(40, 30));
        QCOMPARE(dialog.pos(), QPoint(200, 150));
    }

    void otherButtonsReleaseDoesNotEndTheMove()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        place(dialog);
        QTest::mousePress(&dialog, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        QTest::mouseRelease(&dialog, Qt::RightButton, Qt::NoModifier, QPoint(10, 10));
        drag(&dialog, QPoint(40, 30));
        QCOMPARE(dialog.pos(), QPoint(230, 170));
    }

    void lastRowAndColumnDoNotMoveTheDialog_data()
    {
        QTest::addColumn<QPoint>("pressed");
        QTest::addColumn<bool>("moves");
        QTest::newRow("the corner, which is no offset at all") << QPoint(0, 0) << false;
        QTest::newRow("first pixel but the corner") << QPoint(1, 0) << true;
        QTest::newRow("last column but one") << QPoint(286, 20) << true;
        QTest::newRow("last column") << QPoint(287, 20) << false;
        QTest::newRow("last row but one") << QPoint(20, 156) << true;
        QTest::newRow("last row") << QPoint(20, 157) << false;
    }

    void lastRowAndColumnDoNotMoveTheDialog()
    {
        QFETCH(QPoint, pressed);
        QFETCH(bool, moves);
        ErrorMessage dialog(QString(), QString(), nullptr);
        place(dialog);
        // Not by QTest::mousePress, for which the corner means the middle.
        QMouseEvent press(QEvent::MouseButtonPress, pressed, dialog.mapToGlobal(pressed), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &press);
        drag(&dialog, pressed + QPoint(30, 20));
        QCOMPARE(dialog.pos(), moves ? QPoint(230, 170) : QPoint(200, 150));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ErrorMessage, Widgets)

#include "tst_ErrorMessage.moc"
