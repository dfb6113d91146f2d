// The dialog itself: its window and form, its buttons, its moving, and what a new language does. The modes have a test
// of their own.

#include "ShownDialog.h"

#include "widgets/BaseFormEx.h"
#include "widgets/HotLabel.h"
#include "widgets/IconButtonEx.h"
#include "widgets/LineEditEx.h"
#include "widgets/TextEditEx.h"

#include <QApplication>
#include <QLayout>
#include <QSignalSpy>
#include <QTranslator>

Q_DECLARE_METATYPE(QMargins)

using namespace ShownDialog;

namespace {

/// Whether `pWidget` is one of the kit's composed widgets or a part of one; their layouts share names with the form's.
bool isWithinAKitWidget(const QWidget *pWidget)
{
    for (; pWidget != nullptr; pWidget = pWidget->parentWidget()) {
        if (qobject_cast<const PushButtonEx *>(pWidget) != nullptr ||
            qobject_cast<const CLineEditEx *>(pWidget) != nullptr ||
            qobject_cast<const CIconButtonEx *>(pWidget) != nullptr)
            return true;
    }
    return false;
}

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
    void dialogIsFramelessModalAndOnTop();
    void closingDoesNotCountForQuit();
    void pagesStandInTheirOrder();
    void layoutsHaveTheirMargins_data();
    void layoutsHaveTheirMargins();
    void partsHaveTheirSizes_data();
    void partsHaveTheirSizes();
    void formHasItsTexts();
    void formIsMadeOfTheKitsWidgets();
    void sheetIsTheClients();
    void buttonsTakeNoFocusAndAreNotAutoDefault();
    void acceptButtonStartsDisabledWithTheConstructorsWord();
    void buttonTextsAreSet();
    void focusMovesBetweenTheButtons();
    void pressMakesAButtonTheDefault_data();
    void pressMakesAButtonTheDefault();
    void answerIsReadFromTheFlag_data();
    void answerIsReadFromTheFlag();
    void keyboardAnswers_data();
    void keyboardAnswers();
    void skinIsTakenWithoutAnEffect();
    void languageChangeFlipsTheQuestionToTheHotKeyPage();
    void languageChangeRefillsTheHotKeyPage_data();
    void languageChangeRefillsTheHotKeyPage();
    void dialogFollowsTheMouse();
    void otherButtonsDoNotMoveTheDialog();
    void otherButtonsReleaseDoesNotEndTheMove();
    void lastRowAndColumnDoNotMoveTheDialog_data();
    void lastRowAndColumnDoNotMoveTheDialog();
};

void tst_ErrorMessage::dialogIsFramelessModalAndOnTop()
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

void tst_ErrorMessage::closingDoesNotCountForQuit()
{
    const QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
    ErrorMessage dialog(QString(), QString(), nullptr);
    whenShown(dialog, [&] { click(dialog, "closeBtn"); });
    dialog.getMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
    QCOMPARE(lastClosed.count(), 0);
}

void tst_ErrorMessage::pagesStandInTheirOrder()
{
    const ErrorMessage dialog(QString(), QString(), nullptr);
    const auto *pStack = part<QStackedWidget>(dialog, "stackedWidget");
    QStringList names;
    for (int i = 0; i < pStack->count(); ++i)
        names << pStack->widget(i)->objectName();
    QCOMPARE(names, (QStringList{"MsgShow", "TextEdit", "LineEdit", "AddLabel", "page_MsgAndScreen"}));
    QCOMPARE(pStack->currentIndex(), 0);
    QVERIFY(part<QWidget>(dialog, "AddLabel")->layout() == nullptr);
}

void tst_ErrorMessage::layoutsHaveTheirMargins_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<int>("spacing");
    const auto row = [](const char *name, const QMargins &margins, int iSpacing) {
        QTest::newRow(name) << QByteArray(name) << margins << iSpacing;
    };
    row("verticalLayout", {}, 0);
    row("backWidgetLayout", {3, 3, 3, 3}, 0);
    row("horizontalLayout", {10, 0, 5, 0}, 0);
    row("horizontalLayout_3", {20, 5, 20, 0}, 0);
    row("verticalLayout_2", {20, 0, 20, 10}, 0);
    row("horizontalLayout_5", {15, 10, 15, 25}, 2);
    row("verticalLayout_3", {5, 10, 5, 10}, 0);
    row("verticalLayout_8", {}, 0);
    row("horizontalLayout_7", {}, 0);
    row("horizontalLayout_2", {0, 0, 10, 0}, 10);
}

void tst_ErrorMessage::layoutsHaveTheirMargins()
{
    QFETCH(QByteArray, name);
    const ErrorMessage dialog(QString(), QString(), nullptr);
    const QLayout *pFound = nullptr;
    for (const QLayout *pLayout : dialog.findChildren<QLayout *>(QLatin1String(name))) {
        if (!isWithinAKitWidget(pLayout->parentWidget()))
            pFound = pLayout;
    }
    QVERIFY(pFound != nullptr);
    QTEST(pFound->contentsMargins(), "margins");
    QTEST(pFound->spacing(), "spacing");
}

void tst_ErrorMessage::partsHaveTheirSizes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QSize>("least");
    QTest::addColumn<QSize>("most");
    constexpr int cFree = 16777215;
    const auto row = [](const char *name, const QSize &least, const QSize &most) {
        QTest::newRow(name) << QByteArray(name) << least << most;
    };
    row("backWidget", {288, 158}, {288, 158});
    row("titleWidget", {0, 35}, {cFree, 35});
    row("titlelabel", {60, 0}, {cFree, cFree});
    row("btnClose", {24, 24}, {24, 24});
    row("AutoReplytextEdit", {0, 45}, {cFree, 45});
    row("label_group", {0, 30}, {cFree, 30});
    row("lineEdit", {0, 30}, {cFree, 30});
    row("AddLineEdit", {236, 30}, {236, 30});
    row("bottomWidget", {0, 50}, {cFree, 50});
    row("acceptBtn", {70, 30}, {70, 30});
    row("closeBtn", {70, 30}, {70, 30});
}

void tst_ErrorMessage::partsHaveTheirSizes()
{
    QFETCH(QByteArray, name);
    const ErrorMessage dialog(QString(), QString(), nullptr);
    QWidget *pPart = dialog.findChild<QWidget *>(QLatin1String(name));
    QVERIFY(pPart != nullptr);
    // The inner edits have the same name as the page's field.
    if (name == "lineEdit")
        pPart = dialog.findChild<QWidget *>(QStringLiteral("LineEdit"))
                    ->findChild<CLineEditEx *>(QStringLiteral("lineEdit"));
    QTEST(pPart->minimumSize(), "least");
    QTEST(pPart->maximumSize(), "most");
}

void tst_ErrorMessage::formHasItsTexts()
{
    const ErrorMessage dialog(QString(), QStringLiteral("close word"), nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("提示"));
    QCOMPARE(text(dialog, "autoReplyLabel"), QStringLiteral("回复内容(100字以内)："));
    QCOMPARE(text(dialog, "label_group"), QStringLiteral("组名："));
    const auto *pTitle = part<QLabel>(dialog, "titlelabel");
    QCOMPARE(pTitle->styleSheet(), QStringLiteral("font: 12px \"微软雅黑\";"));
    const auto *pMessage = part<QLabel>(dialog, "msgLabel");
    QCOMPARE(pMessage->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(pMessage->frameShape(), QFrame::NoFrame);
    QVERIFY(pMessage->wordWrap());
}

void tst_ErrorMessage::formIsMadeOfTheKitsWidgets()
{
    const ErrorMessage dialog(QString(), QString(), nullptr);
    QVERIFY(part<CBaseFormEx>(dialog, "backWidget") != nullptr);
    QVERIFY(part<CTextEditEx>(dialog, "AutoReplytextEdit") != nullptr);
    QVERIFY(part<CLineEditEx>(dialog, "lineEdit") != nullptr);
    QVERIFY(part<CLineEditEx>(dialog, "AddLineEdit") != nullptr);
    QVERIFY(part<HotLabel>(dialog, "label_11") != nullptr);
    QVERIFY(button(dialog, "acceptBtn") != nullptr);
    QVERIFY(button(dialog, "closeBtn") != nullptr);
    const auto *pCross = part<CIconButtonEx>(dialog, "btnClose")->findChild<QPushButton *>();
    QCOMPARE(pCross->text(), QString(QChar(0xE62C)));
    QCOMPARE(pCross->font().pixelSize(), 8);
    QVERIFY(!pCross->isFlat());
    QVERIFY(part<QWidget>(dialog, "lblerror")->y() >= part<QWidget>(dialog, "AddLineEdit")->geometry().bottom());
}

void tst_ErrorMessage::sheetIsTheClients()
{
    const ErrorMessage dialog(QString(), QString(), nullptr);
    QCOMPARE(dialog.styleSheet(),
             QStringLiteral("QLabel{font-family:'微软雅黑';}QLabel{font-size:12px;color:#585858;}"
                            "QLabel#titlelabel{font-size:14px;color:#000000;}"
                            "QLabel#msgLabel{font-size:12px;color:#585858;}"
                            "QLabel#autoReplyLabel{font-size:12px;color:#585858;}"
                            "QLabel#label_11{font-size:12px;color:#2AB0FF;}"
                            "QLabel#label_11:hover{font-size:12px;color:#0066FF;text-decoration:underline;}"
                            "a:link{font-size:12px;color:#2AB0FF;}"
                            "a:hover{font-size:12px;color:#2AB0FF;text - decoration: underline;}"));
}

void tst_ErrorMessage::buttonsTakeNoFocusAndAreNotAutoDefault()
{
    const ErrorMessage dialog(QString(), QString(), nullptr);
    for (const char *name : {"acceptBtn", "closeBtn", "btnClose"}) {
        const auto *pButton = part<QWidget>(dialog, name);
        QCOMPARE(pButton->focusPolicy(), Qt::NoFocus);
        QVERIFY(!pButton->findChild<QPushButton *>()->autoDefault());
    }
}

void tst_ErrorMessage::acceptButtonStartsDisabledWithTheConstructorsWord()
{
    const ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    QVERIFY(!button(dialog, "acceptBtn")->isEnabled());
    QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("Yes"));
    QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("No"));
    QVERIFY(!dialog.m_bAccepted);
    QCOMPARE(part<QWidget>(dialog, "btnClose")->toolTip(), QStringLiteral("close"));
}

void tst_ErrorMessage::buttonTextsAreSet()
{
    ErrorMessage dialog(QString(), QStringLiteral("OK"), nullptr);
    dialog.setBtnText(QStringLiteral("Yes"), QStringLiteral("No"));
    QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("Yes"));
    QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("No"));
}

void tst_ErrorMessage::focusMovesBetweenTheButtons()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    dialog.setBtnFocus(true);
    QVERIFY(inner(dialog, "acceptBtn")->isDefault());
    QVERIFY(!inner(dialog, "closeBtn")->isDefault());
    dialog.setBtnFocus(false);
    QVERIFY(!inner(dialog, "acceptBtn")->isDefault());
    QVERIFY(inner(dialog, "closeBtn")->isDefault());
}

void tst_ErrorMessage::pressMakesAButtonTheDefault_data()
{
    QTest::addColumn<QByteArray>("pressed");
    QTest::addColumn<QByteArray>("other");
    QTest::newRow("accept button") << QByteArray("acceptBtn") << QByteArray("closeBtn");
    QTest::newRow("close button") << QByteArray("closeBtn") << QByteArray("acceptBtn");
}

void tst_ErrorMessage::pressMakesAButtonTheDefault()
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

void tst_ErrorMessage::answerIsReadFromTheFlag_data()
{
    QTest::addColumn<QByteArray>("clicked");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("accept button") << QByteArray("acceptBtn") << true;
    QTest::newRow("close button") << QByteArray("closeBtn") << false;
    QTest::newRow("cross in the title") << QByteArray("btnClose") << false;
}

void tst_ErrorMessage::answerIsReadFromTheFlag()
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

void tst_ErrorMessage::keyboardAnswers_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("Return presses the default button") << int(Qt::Key_Return) << true;
    QTest::newRow("Escape closes") << int(Qt::Key_Escape) << false;
}

void tst_ErrorMessage::keyboardAnswers()
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

void tst_ErrorMessage::skinIsTakenWithoutAnEffect()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    const QString strSheet = dialog.styleSheet();
    dialog.setSkinData(SysUIData());
    QCOMPARE(dialog.styleSheet(), strSheet);
}

void tst_ErrorMessage::languageChangeFlipsTheQuestionToTheHotKeyPage()
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
}

void tst_ErrorMessage::languageChangeRefillsTheHotKeyPage_data()
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

namespace {

/// A language whose words are the keys in angle brackets.
class Brackets : public QTranslator
{
public:
    QString translate(const char *context, const char *key, const char *, int) const override
    {
        return qstrcmp(context, "QObject") == 0 ? QLatin1Char('<') + QLatin1String(key) + QLatin1Char('>') : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void tst_ErrorMessage::languageChangeRefillsTheHotKeyPage()
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

void tst_ErrorMessage::dialogFollowsTheMouse()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    place(dialog);
    QWidget *pTitle = part<QWidget>(dialog, "titleWidget");
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

void tst_ErrorMessage::otherButtonsDoNotMoveTheDialog()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    place(dialog);
    QTest::mousePress(&dialog, Qt::RightButton, Qt::NoModifier, QPoint(10, 10));
    drag(&dialog, QPoint(40, 30));
    QCOMPARE(dialog.pos(), QPoint(200, 150));
}

void tst_ErrorMessage::otherButtonsReleaseDoesNotEndTheMove()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    place(dialog);
    QTest::mousePress(&dialog, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QTest::mouseRelease(&dialog, Qt::RightButton, Qt::NoModifier, QPoint(10, 10));
    drag(&dialog, QPoint(40, 30));
    QCOMPARE(dialog.pos(), QPoint(230, 170));
}

void tst_ErrorMessage::lastRowAndColumnDoNotMoveTheDialog_data()
{
    QTest::addColumn<QPoint>("pressed");
    QTest::addColumn<bool>("moves");
    QTest::newRow("first pixel but the corner") << QPoint(1, 0) << true;
    QTest::newRow("last column but one") << QPoint(286, 20) << true;
    QTest::newRow("last column") << QPoint(287, 20) << false;
    QTest::newRow("last row but one") << QPoint(20, 156) << true;
    QTest::newRow("last row") << QPoint(20, 157) << false;
}

void tst_ErrorMessage::lastRowAndColumnDoNotMoveTheDialog()
{
    QFETCH(QPoint, pressed);
    QFETCH(bool, moves);
    ErrorMessage dialog(QString(), QString(), nullptr);
    place(dialog);
    QTest::mousePress(&dialog, Qt::LeftButton, Qt::NoModifier, pressed);
    drag(&dialog, pressed + QPoint(30, 20));
    QCOMPARE(dialog.pos(), moves ? QPoint(230, 170) : QPoint(200, 150));
}

QTEST_MAIN(tst_ErrorMessage)

#include "tst_ErrorMessage.moc"
