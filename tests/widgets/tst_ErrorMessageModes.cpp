// The modes of the message dialog: what each shows. What their fields let in has a test of its own.

#include "fakes/Patience.h"
#include "widgets/ShownDialog.h"

#include <QApplication>
#include <QSignalSpy>

using namespace ShownDialog;

namespace {

struct Mode
{
    std::function<void(ErrorMessage &)> run;
    bool bModal;
};

} // namespace

Q_DECLARE_METATYPE(Mode)

class tst_ErrorMessageModes : public QObject
{
    Q_OBJECT

private slots:
    void eachModeHasItsPageAndButtons_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("shownPage");
        QTest::addColumn<bool>("acceptShown");
        QTest::addColumn<bool>("acceptEnabled");
        QTest::addColumn<QString>("closeWord");
        const QString t = QStringLiteral("Title");
        const auto row = [](const char *name, const Mode &mode, const char *pageName, bool bShown, bool bEnabled,
                            const char *word, const char *title = "Title") {
            QTest::newRow(name) << mode << QString(title) << QString(pageName) << bShown << bEnabled << QString(word);
        };
        row("getMsgShow", {[t](ErrorMessage &d) { d.getMsgShow(t, t); }, true}, "MsgShow", false, false, "sure");
        row("chooseMsgShow", {[t](ErrorMessage &d) { d.chooseMsgShow(t, t); }, true}, "MsgShow", true, true, "No");
        row("lineEditShow", {[t](ErrorMessage &d) { d.lineEditShow(t, t); }, true}, "TextEdit", true, true, "No");
        row("modifyShow", {[t](ErrorMessage &d) { d.modifyShow(t); }, true}, "LineEdit", true, true, "No");
        row("messagelogTip", {[](ErrorMessage &d) { d.messagelogTip(); }, true}, "MsgShow", false, false, "sure",
            "tip");
        row("addLabelToFriend", {[t](ErrorMessage &d) { d.addLabelToFriend(t); }, true}, "AddLabel", true, false, "No");
        for (int iType = 0; iType <= 2; ++iType) {
            row(qPrintable(QStringLiteral("showHotKeyError %1").arg(iType)),
                {[t, iType](ErrorMessage &d) { d.showHotKeyError(t, iType); }, false}, "page_MsgAndScreen", false,
                false, "sure");
        }
    }

    void eachModeHasItsPageAndButtons()
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
        QTRY_VERIFY_WITH_TIMEOUT(bSeen && !dialog.isVisible(), cPatienceMs);
        QVERIFY(!dialog.m_bAccepted);
    }

    void messageShowsItsText()
    {
        ErrorMessage dialog(QString(), QStringLiteral("OK"), nullptr);
        part<QLabel>(dialog, "msgLabel")->hide();
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

    void messageOpensItsLinks()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        QVERIFY(!part<QLabel>(dialog, "msgLabel")->openExternalLinks());
        whenShown(dialog, [] {});
        dialog.getMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
        QVERIFY(part<QLabel>(dialog, "msgLabel")->openExternalLinks());
    }

    void questionShowsBothButtonsWithTheirWords()
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

    void questionAboutTheHistoryHasItsOwnWord()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        whenShown(dialog, [] {});
        dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("first lookupHistoryMsg then"));
        QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("readrecord"));
    }

    void questionKeepsItsWordOtherwise()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        whenShown(dialog, [] {});
        dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("lookupHistory"));
        QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("Yes"));
    }

    void tipHidesTheReply()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        whenShown(dialog, [] {});
        dialog.messagelogTip();
        QCOMPARE(text(dialog, "msgLabel"), QStringLiteral("inputkeyword"));
        QVERIFY(part<QWidget>(dialog, "AutoReplytextEdit")->isHidden());
    }

    void wideLabelBreaksItsLines_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("wraps");
        const Mode message{[](ErrorMessage &d) { d.getMsgShow(QString(), QStringLiteral("Text")); }, true};
        const Mode question{[](ErrorMessage &d) { d.chooseMsgShow(QString(), QStringLiteral("Text")); }, true};
        const Mode tip{[](ErrorMessage &d) { d.messagelogTip(); }, true};
        QTest::newRow("message, too narrow") << message << 259 << false;
        QTest::newRow("message") << message << 260 << true;
        QTest::newRow("question never") << question << 400 << false;
        QTest::newRow("tip, too narrow") << tip << 241 << false;
        QTest::newRow("tip") << tip << 242 << true;
    }

    void wideLabelBreaksItsLines()
    {
        QFETCH(Mode, mode);
        QFETCH(int, width);
        ErrorMessage dialog(QString(), QString(), nullptr);
        auto *pLabel = part<QLabel>(dialog, "msgLabel");
        pLabel->setWordWrap(false);
        pLabel->resize(width, 20);
        whenShown(dialog, [] {});
        mode.run(dialog);
        QTEST(pLabel->wordWrap(), "wraps");
    }

    void messageWithoutRoomIsWholeInItsTip_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("fits");
        QTest::newRow("nothing") << QString() << true;
        QTest::newRow("one line") << QStringLiteral("Text") << true;
        QTest::newRow("too many lines") << QStringLiteral("Text\n").repeated(12) << false;
        QTest::newRow("too long a word") << QString(80, QLatin1Char('W')) << false;
    }

    void messageWithoutRoomIsWholeInItsTip()
    {
        QFETCH(QString, message);
        QFETCH(bool, fits);
        ErrorMessage dialog(QString(), QString(), nullptr);
        whenShown(dialog, [] {});
        dialog.getMsgShow(QStringLiteral("Title"), message);
        QCOMPARE(part<QLabel>(dialog, "msgLabel")->toolTip(), fits ? QString() : message);
    }

    void dialogUsedAgainHasTheTipOfItsOwnMessage()
    {
        const QString strLong = QStringLiteral("Text\n").repeated(12);
        const QString strOther = QStringLiteral("Other\n").repeated(12);
        ErrorMessage dialog(QString(), QString(), nullptr);
        const auto *pLabel = part<QLabel>(dialog, "msgLabel");
        const auto show = [&](const QString &strMessage) {
            whenShown(dialog, [] {});
            dialog.getMsgShow(QStringLiteral("Title"), strMessage);
            return pLabel->toolTip();
        };
        QCOMPARE(show(strLong), strLong);
        QCOMPARE(show(strOther), strOther);
        QCOMPARE(show(QStringLiteral("Text")), QString());
        QCOMPARE(show(strLong), strLong);
        whenShown(dialog, [] {});
        dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
        QCOMPARE(pLabel->toolTip(), QString());
        QCOMPARE(show(strLong), strLong);
        whenShown(dialog, [] {});
        dialog.messagelogTip();
        QCOMPARE(pLabel->toolTip(), QString());
    }

    void dialogUsedAgainHasTheButtonsOfItsOwnMode()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        const QString strText = QStringLiteral("Text");
        const auto acceptShown = [&](const Mode &mode) {
            bool bShown = false;
            whenShown(dialog, [&] {
                bShown = button(dialog, "acceptBtn")->isVisible();
                QCOMPARE(inner(dialog, "acceptBtn")->isDefault(), bShown);
                QCOMPARE(inner(dialog, "closeBtn")->isDefault(), !bShown);
            });
            mode.run(dialog);
            return bShown;
        };
        const Mode message{[strText](ErrorMessage &d) { d.getMsgShow(strText, strText); }, true};
        const QList<Mode> questions{
            {[strText](ErrorMessage &d) { d.chooseMsgShow(strText, strText); }, true},
            {[strText](ErrorMessage &d) { d.lineEditShow(strText, strText); }, true},
            {[strText](ErrorMessage &d) { d.modifyShow(strText); }, true},
            {[strText](ErrorMessage &d) { d.addLabelToFriend(strText); }, true},
        };
        for (const Mode &question : questions) {
            QVERIFY(!acceptShown(message));
            QVERIFY(acceptShown(question));
        }
    }

    void hotKeyPageHasItsWords_data()
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
                                 << QStringList{"yourHotKeyUsedAndRevise", "makeSureCanBeUsed", "modifyhotkey",
                                                "period"};
    }

    void hotKeyPageHasItsWords()
    {
        QFETCH(int, type);
        ErrorMessage dialog(QString(), QString(), nullptr);
        dialog.showHotKeyError(QStringLiteral("Title"), type);
        QStringList found;
        for (const char *name : {"label_8", "label_9", "label_11", "label_10"}) {
            found << text(dialog, name);
        }
        QTEST(found, "words");
    }

    void unknownHotKeyTypeLeavesThePage()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        dialog.showHotKeyError(QStringLiteral("Title"), 3);
        QVERIFY(dialog.isVisible());
        QVERIFY(!dialog.isModal());
        QCOMPARE(page(dialog), QStringLiteral("MsgShow"));
        QCOMPARE(text(dialog, "titlelabel"), QStringLiteral("Title"));
        QVERIFY(!button(dialog, "acceptBtn")->isVisible());
        QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("sure"));
        QVERIFY(inner(dialog, "closeBtn")->isDefault());
        for (const char *name : {"label_8", "label_9", "label_11", "label_10"}) {
            QVERIFY(text(dialog, name).isEmpty());
        }
    }

    void hotKeyLinkOpensTheSettings()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        dialog.showHotKeyError(QStringLiteral("Title"), 0);
        QVERIFY(QTest::qWaitForWindowExposed(&dialog, cPatienceMs));
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
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ErrorMessageModes, Widgets)

#include "tst_ErrorMessageModes.moc"
