// The modes of the message dialog: what each shows, lets in and gives back.

#include "ShownDialog.h"

#include "common/CommonFun.h"
#include "widgets/LineEditEx.h"
#include "widgets/TextEditEx.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>

#include <memory>

using namespace ShownDialog;

namespace {

struct Mode
{
    std::function<void(ErrorMessage &)> run;
    bool bModal;
};

QString chinese(int iCount)
{
    return QString(iCount, QChar(0x4E2D));
}

} // namespace

Q_DECLARE_METATYPE(Mode)

class tst_ErrorMessageModes : public QObject
{
    Q_OBJECT

private:
    static CLineEditEx *tag(const ErrorMessage &dialog) { return part<CLineEditEx>(dialog, "AddLineEdit"); }
    static CTextEditEx *reply(const ErrorMessage &dialog) { return part<CTextEditEx>(dialog, "AutoReplytextEdit"); }
    static void paste(QWidget *pTarget, const QString &strText)
    {
        QGuiApplication::clipboard()->setText(strText);
        QTest::keyClick(pTarget, Qt::Key_V, Qt::ControlModifier);
    }

private slots:
    void eachModeHasItsPageAndButtons_data();
    void eachModeHasItsPageAndButtons();
    void messageShowsItsText();
    void messageOpensItsLinks();
    void questionShowsBothButtonsWithTheirWords();
    void questionAboutTheHistoryHasItsOwnWord();
    void questionKeepsItsWordOtherwise();
    void tipHidesTheReply();
    void replyIsGivenBackTrimmed();
    void replyIsHeldToTwoHundredColumns_data();
    void replyIsHeldToTwoHundredColumns();
    void longReplyIsCutBeforeItIsShown();
    void hugePasteIntoTheReplyIsCut_data();
    void hugePasteIntoTheReplyIsCut();
    void nameStartsEmptyFocusedAndAcceptable();
    void blankNameCannotBeAccepted();
    void nameIsGivenBack();
    void tagTakesSevenWideOrFourteenNarrow_data();
    void tagTakesSevenWideOrFourteenNarrow();
    void acceptingABlankTagKeepsTheDialogOpen();
    void typingAfterTheErrorHidesItOnlyWhenBlank();
    void pasteIntoTheTagLeavesTheLastCharacterThatFits_data();
    void pasteIntoTheTagLeavesTheLastCharacterThatFits();
    void pasteFromAButtonWorksInTagMode();
    void pasteOutsideTagModeIsConsumed();
    void hotKeyPageHasItsWords_data();
    void hotKeyPageHasItsWords();
    void unknownHotKeyTypeLeavesThePage();
    void hotKeyLinkOpensTheSettings();
};

void tst_ErrorMessageModes::eachModeHasItsPageAndButtons_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("shownPage");
    QTest::addColumn<bool>("acceptShown");
    QTest::addColumn<bool>("acceptEnabled");
    QTest::addColumn<QString>("closeWord");
    const QString t = QStringLiteral("Title");
    const auto row = [&t](const char *name, const Mode &mode, const char *pageName, bool bShown, bool bEnabled,
                          const char *word, const char *title = "Title") {
        QTest::newRow(name) << mode << QString(title) << QString(pageName) << bShown << bEnabled << QString(word);
    };
    row("getMsgShow", {[t](ErrorMessage &d) { d.getMsgShow(t, t); }, true}, "MsgShow", false, false, "sure");
    row("chooseMsgShow", {[t](ErrorMessage &d) { d.chooseMsgShow(t, t); }, true}, "MsgShow", true, true, "No");
    row("lineEditShow", {[t](ErrorMessage &d) { d.lineEditShow(t, t); }, true}, "TextEdit", true, true, "No");
    row("modifyShow", {[t](ErrorMessage &d) { d.modifyShow(t); }, true}, "LineEdit", true, true, "No");
    row("messagelogTip", {[](ErrorMessage &d) { d.messagelogTip(); }, true}, "MsgShow", false, false, "sure", "tip");
    row("addLabelToFriend", {[t](ErrorMessage &d) { d.addLabelToFriend(t); }, true}, "AddLabel", true, false, "No");
    for (int iType = 0; iType <= 2; ++iType)
        row(qPrintable(QStringLiteral("showHotKeyError %1").arg(iType)),
            {[t, iType](ErrorMessage &d) { d.showHotKeyError(t, iType); }, false}, "page_MsgAndScreen", false, false,
            "sure");
}

void tst_ErrorMessageModes::eachModeHasItsPageAndButtons()
{
    QFETCH(Mode, mode);
    QFETCH(QString, title);
    QFETCH(QString, shownPage);
    QFETCH(bool, acceptShown);
    QFETCH(bool, acceptEnabled);
    QFETCH(QString, closeWord);
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    bool bSeen = false;
    const auto look = [&] {
        bSeen = true;
        QCOMPARE(text(dialog, "titlelabel"), title);
        QCOMPARE(page(dialog), shownPage);
        QCOMPARE(button(dialog, "acceptBtn")->isVisible(), acceptShown);
        QCOMPARE(button(dialog, "acceptBtn")->isEnabled(), acceptEnabled);
        QCOMPARE(inner(dialog, "acceptBtn")->isDefault(), acceptShown);
        QCOMPARE(inner(dialog, "closeBtn")->isDefault(), !acceptShown);
        QCOMPARE(button(dialog, "closeBtn")->text(), closeWord);
        QCOMPARE(QApplication::activeModalWidget() == &dialog, mode.bModal);
    };
    whenShown(dialog, look);
    mode.run(dialog);
    QCOMPARE(bSeen, mode.bModal);
    QTRY_VERIFY(bSeen && !dialog.isVisible());
    QVERIFY(!dialog.m_bAccepted);
}

void tst_ErrorMessageModes::messageShowsItsText()
{
    ErrorMessage dialog(QString(), QStringLiteral("OK"), nullptr);
    bool bSeen = false;
    whenShown(dialog, [&] {
        bSeen = part<QLabel>(dialog, "msgLabel")->isVisible();
        QCOMPARE(text(dialog, "msgLabel"), QStringLiteral("Text"));
        click(dialog, "closeBtn");
        QVERIFY(!dialog.isVisible());
    });
    dialog.getMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
    QVERIFY(bSeen);
}

void tst_ErrorMessageModes::messageOpensItsLinks()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    QVERIFY(!part<QLabel>(dialog, "msgLabel")->openExternalLinks());
    whenShown(dialog, [] {});
    dialog.getMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
    QVERIFY(part<QLabel>(dialog, "msgLabel")->openExternalLinks());
}

void tst_ErrorMessageModes::questionShowsBothButtonsWithTheirWords()
{
    ErrorMessage dialog(QString(), QStringLiteral("OK"), nullptr);
    dialog.setBtnText(QStringLiteral("Yes"), QStringLiteral("No"));
    bool bSeen = false;
    whenShown(dialog, [&] {
        bSeen = true;
        QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("Yes"));
        QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("No"));
        QCOMPARE(text(dialog, "msgLabel"), QStringLiteral("Text"));
    });
    QVERIFY(!dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("Text")));
    QVERIFY(bSeen);
}

void tst_ErrorMessageModes::questionAboutTheHistoryHasItsOwnWord()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [] {});
    dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("first lookupHistoryMsg then"));
    QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("readrecord"));
}

void tst_ErrorMessageModes::questionKeepsItsWordOtherwise()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [] {});
    dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("lookupHistory"));
    QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("Yes"));
}

void tst_ErrorMessageModes::tipHidesTheReply()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    whenShown(dialog, [] {});
    dialog.messagelogTip();
    QCOMPARE(text(dialog, "msgLabel"), QStringLiteral("inputkeyword"));
    QVERIFY(reply(dialog)->isHidden());
}

void tst_ErrorMessageModes::replyIsGivenBackTrimmed()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [&] {
        QCOMPARE(reply(dialog)->toPlainText(), QStringLiteral("  start"));
        reply(dialog)->moveCursor(QTextCursor::End);
        QTest::keyClicks(reply(dialog), QStringLiteral(" end "));
        QTest::keyClick(reply(dialog), Qt::Key_Return);
        click(dialog, "acceptBtn");
    });
    QCOMPARE(dialog.lineEditShow(QStringLiteral("Title"), QStringLiteral("  start")), QStringLiteral("start end"));
    QVERIFY(dialog.m_bAccepted);
}

void tst_ErrorMessageModes::replyIsHeldToTwoHundredColumns_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<int>("position");
    const QString x199(199, QLatin1Char('x'));
    const QString x200(200, QLatin1Char('x'));
    QTest::newRow("the two hundredth column") << x199 << 199 << "y" << x199 + "y" << 200;
    QTest::newRow("one column too many") << x200 << 200 << "y" << x200 << 200;
    QTest::newRow("in the middle, where it was typed") << x200 << 100 << "y" << x200 << 100;
    QTest::newRow("a wide character into one column") << x199 << 199 << chinese(1) << x199 << 199;
    QTest::newRow("a hundred Chinese and one") << chinese(100) << 100 << chinese(1) << chinese(100) << 100;
}

void tst_ErrorMessageModes::replyIsHeldToTwoHundredColumns()
{
    QFETCH(QString, start);
    QFETCH(int, cursor);
    QFETCH(QString, typed);
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    int iPosition = -1;
    whenShown(dialog, [&] {
        QTextCursor place = reply(dialog)->textCursor();
        place.setPosition(cursor);
        reply(dialog)->setTextCursor(place);
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, typed);
        QCoreApplication::sendEvent(reply(dialog), &press);
        iPosition = reply(dialog)->textCursor().position();
    });
    const QString strKept = dialog.lineEditShow(QStringLiteral("Title"), start);
    QTEST(strKept, "kept");
    QTEST(iPosition, "position");
}

void tst_ErrorMessageModes::longReplyIsCutBeforeItIsShown()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [] {});
    // The cursor stands at the start, so the text loses its end.
    QCOMPARE(dialog.lineEditShow(QStringLiteral("Title"), QStringLiteral("ab") + chinese(150)),
             QStringLiteral("ab") + chinese(99));
}

void tst_ErrorMessageModes::hugePasteIntoTheReplyIsCut_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("kept");
    constexpr int cSize = 10 * 1024 * 1024;
    const QString latin(cSize, QLatin1Char('x'));
    QTest::newRow("Latin") << QString() << "text/plain" << latin << latin.left(200);
    QTest::newRow("Chinese") << QString() << "text/plain" << chinese(cSize / 2) << chinese(100);
    QTest::newRow("behind a text") << "0123456789"
                                   << "text/plain" << latin << "0123456789" + latin.left(190);
    QTest::newRow("HTML") << QString() << "text/html" << latin << latin.left(200);
    QTest::newRow("lines") << QString() << "text/plain" << QStringLiteral("x\n").repeated(cSize / 2)
                           << QStringLiteral("x\n").repeated(100).trimmed();
}

void tst_ErrorMessageModes::hugePasteIntoTheReplyIsCut()
{
    QFETCH(QString, start);
    QFETCH(QString, format);
    QFETCH(QString, pasted);
    auto data = std::make_unique<QMimeData>();
    data->setData(format, pasted.toUtf8());
    QGuiApplication::clipboard()->setMimeData(data.release());
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [&] {
        reply(dialog)->moveCursor(QTextCursor::End);
        QTest::keySequence(reply(dialog), QKeySequence::Paste);
    });
    const QString strKept = dialog.lineEditShow(QStringLiteral("Title"), start);
    QTEST(strKept, "kept");
    QGuiApplication::clipboard()->clear();
}

void tst_ErrorMessageModes::nameStartsEmptyFocusedAndAcceptable()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    bool bFocused = false;
    whenShown(dialog, [&] {
        auto *pField = part<CLineEditEx>(dialog, "lineEdit");
        bFocused = QTest::qWaitForWindowActive(&dialog) && pField->getLineEdit()->hasFocus();
        click(dialog, "acceptBtn");
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY(dialog.modifyShow(QStringLiteral("Title")).isEmpty());
    QVERIFY(bFocused);
    QVERIFY(dialog.m_bAccepted);
}

void tst_ErrorMessageModes::blankNameCannotBeAccepted()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    QList<bool> enabled;
    whenShown(dialog, [&] {
        QLineEdit *pField = part<CLineEditEx>(dialog, "lineEdit")->getLineEdit();
        for (const int key : {int(Qt::Key_Space), int(Qt::Key_A), int(Qt::Key_Backspace)}) {
            QTest::keyClick(pField, Qt::Key(key));
            enabled << button(dialog, "acceptBtn")->isEnabled();
        }
        click(dialog, "acceptBtn");
        QVERIFY(dialog.isVisible());
    });
    QCOMPARE(dialog.modifyShow(QStringLiteral("Title")), QStringLiteral(" "));
    QCOMPARE(enabled, (QList<bool>{false, true, false}));
    QVERIFY(!dialog.m_bAccepted);
}

void tst_ErrorMessageModes::nameIsGivenBack()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [&] {
        QLineEdit *pField = part<CLineEditEx>(dialog, "lineEdit")->getLineEdit();
        QTest::keyClicks(pField, QStringLiteral(" friends "));
        QTest::keyClick(pField, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(dialog.modifyShow(QStringLiteral("Title")), QStringLiteral(" friends "));
    QVERIFY(dialog.m_bAccepted);
}

void tst_ErrorMessageModes::tagTakesSevenWideOrFourteenNarrow_data()
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<int>("count");
    QTest::newRow("Chinese") << chinese(1) << 7;
    QTest::newRow("Latin") << QStringLiteral("x") << 14;
}

void tst_ErrorMessageModes::tagTakesSevenWideOrFourteenNarrow()
{
    QFETCH(QString, character);
    QFETCH(int, count);
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [&] {
        QCOMPARE(tag(dialog)->getLineEdit()->placeholderText(), QStringLiteral("tagsevenwords"));
        QVERIFY(!part<QLabel>(dialog, "lblerror")->isVisible());
        for (int i = 0; i < 20; ++i) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, character);
            QCoreApplication::sendEvent(tag(dialog)->getLineEdit(), &press);
        }
        click(dialog, "acceptBtn");
    });
    QCOMPARE(dialog.addLabelToFriend(QStringLiteral("Title")), character.repeated(count));
    QVERIFY(dialog.m_bAccepted);
}

void tst_ErrorMessageModes::acceptingABlankTagKeepsTheDialogOpen()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    bool bAcceptedWhileOpen = false;
    whenShown(dialog, [&] {
        QTest::keyClick(tag(dialog)->getLineEdit(), Qt::Key_Space);
        // Blanks disable the button; somebody may still use it.
        button(dialog, "acceptBtn")->setEnabled(true);
        click(dialog, "acceptBtn");
        QVERIFY(dialog.isVisible());
        bAcceptedWhileOpen = dialog.m_bAccepted;
        QVERIFY(part<QLabel>(dialog, "lblerror")->isVisible());
        QCOMPARE(text(dialog, "lblerror"), QStringLiteral("tagcannotspace"));
        QCOMPARE(part<QLabel>(dialog, "lblerror")->styleSheet(), QStringLiteral("color:red;"));
        click(dialog, "closeBtn");
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(dialog.addLabelToFriend(QStringLiteral("Title")), QStringLiteral(" "));
    QVERIFY(bAcceptedWhileOpen);
    QVERIFY(!dialog.m_bAccepted);
}

void tst_ErrorMessageModes::typingAfterTheErrorHidesItOnlyWhenBlank()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    bool bSeen = false;
    whenShown(dialog, [&] {
        QLineEdit *pField = tag(dialog)->getLineEdit();
        button(dialog, "acceptBtn")->setEnabled(true);
        click(dialog, "acceptBtn");
        QTest::keyClick(pField, Qt::Key_A);
        QVERIFY(part<QLabel>(dialog, "lblerror")->isVisible());
        QVERIFY(button(dialog, "acceptBtn")->isEnabled());
        QTest::keyClick(pField, Qt::Key_Backspace);
        QVERIFY(!part<QLabel>(dialog, "lblerror")->isVisible());
        QVERIFY(!button(dialog, "acceptBtn")->isEnabled());
        bSeen = true;
    });
    dialog.addLabelToFriend(QStringLiteral("Title"));
    QVERIFY(bSeen);
}

void tst_ErrorMessageModes::pasteIntoTheTagLeavesTheLastCharacterThatFits_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("left");
    const QString strPair = QString::fromUcs4(U"\U0001F600", 1);
    QTest::newRow("abc") << "abc"
                         << "c";
    QTest::newRow("fifteen Latin") << "abcdefghijklmno"
                                   << "n";
    QTest::newRow("Chinese") << chinese(7) + QStringLiteral("文") << chinese(1);
    QTest::newRow("the wide one does not fit any more") << "abcdefghijklm" + chinese(1) + "z"
                                                        << "m";
    QTest::newRow("a pair stays whole") << "a" + strPair << strPair;
    QTest::newRow("nothing") << ""
                             << "old";
    QTest::newRow("ten megabytes") << QString(10 * 1024 * 1024, QLatin1Char('x')) << "x";
}

void tst_ErrorMessageModes::pasteIntoTheTagLeavesTheLastCharacterThatFits()
{
    QFETCH(QString, pasted);
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [&] {
        QTest::keyClicks(tag(dialog)->getLineEdit(), QStringLiteral("old"));
        paste(tag(dialog)->getLineEdit(), pasted);
    });
    const QString strLeft = dialog.addLabelToFriend(QStringLiteral("Title"));
    QTEST(strLeft, "left");
    QGuiApplication::clipboard()->clear();
}

void tst_ErrorMessageModes::pasteFromAButtonWorksInTagMode()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [&] { paste(inner(dialog, "closeBtn"), QStringLiteral("xyz")); });
    QCOMPARE(dialog.addLabelToFriend(QStringLiteral("Title")), QStringLiteral("z"));
}

void tst_ErrorMessageModes::pasteOutsideTagModeIsConsumed()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [&] {
        QGuiApplication::clipboard()->setText(QStringLiteral("abc"));
        QKeyEvent press(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
        press.ignore();
        QVERIFY(QCoreApplication::sendEvent(tag(dialog)->getLineEdit(), &press));
    });
    dialog.modifyShow(QStringLiteral("Title"));
    QVERIFY(tag(dialog)->text().isEmpty());
}

void tst_ErrorMessageModes::hotKeyPageHasItsWords_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("message picking") << 0
                                     << QStringList{"yourPickMsgHotKeyUsedAndRevise", "makeSureFunction",
                                                    "modifyhotkey", "period"};
    QTest::newRow("screen capture") << 1
                                    << QStringList{"yourScreenCutHotKeyUsedAndRevise", "makeSureFunction",
                                                   "modifyhotkey", "period"};
    QTest::newRow("another") << 2
                             << QStringList{"yourHotKeyUsedAndRevise", "makeSureCanBeUsed", "modifyhotkey", "period"};
}

void tst_ErrorMessageModes::hotKeyPageHasItsWords()
{
    QFETCH(int, type);
    ErrorMessage dialog(QString(), QString(), nullptr);
    dialog.showHotKeyError(QStringLiteral("Title"), type);
    QStringList found;
    for (const char *name : {"label_8", "label_9", "label_11", "label_10"})
        found << text(dialog, name);
    QTEST(found, "words");
}

void tst_ErrorMessageModes::unknownHotKeyTypeLeavesThePage()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    dialog.showHotKeyError(QStringLiteral("Title"), 3);
    QVERIFY(dialog.isVisible());
    QVERIFY(!dialog.isModal());
    QCOMPARE(page(dialog), QStringLiteral("MsgShow"));
    QCOMPARE(text(dialog, "titlelabel"), QStringLiteral("Title"));
    for (const char *name : {"label_8", "label_9", "label_11", "label_10"})
        QVERIFY(text(dialog, name).isEmpty());
}

void tst_ErrorMessageModes::hotKeyLinkOpensTheSettings()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    dialog.showHotKeyError(QStringLiteral("Title"), 0);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QSignalSpy opened(&dialog, &ErrorMessage::signal_OpenSysSetUi);
    dialog.m_bAccepted = true;
    auto *pLink = part<QLabel>(dialog, "label_11");
    // Under the mouse the words become a link.
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(pLink, &enter);
    QCoreApplication::processEvents();
    QTest::mouseClick(pLink, Qt::LeftButton, Qt::NoModifier, QPoint(10, pLink->height() / 2));
    QCOMPARE(opened.count(), 1);
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.m_bAccepted);
}

QTEST_MAIN(tst_ErrorMessageModes)

#include "tst_ErrorMessageModes.moc"
