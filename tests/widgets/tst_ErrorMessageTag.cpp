// The message dialog's tag: what its field takes, the paste of its own, and how long its mode lasts.

#include "widgets/LineEditEx.h"
#include "widgets/ShownDialog.h"

using namespace ShownDialog;

class tst_ErrorMessageTag : public QObject
{
    Q_OBJECT

private:
    static CLineEditEx *tag(const ErrorMessage &dialog) { return part<CLineEditEx>(dialog, "AddLineEdit"); }

private slots:
    void tagTakesSevenWideOrFourteenNarrow_data()
    {
        QTest::addColumn<QString>("character");
        QTest::addColumn<int>("count");
        QTest::newRow("Chinese") << chinese(1) << 7;
        QTest::newRow("Latin") << QStringLiteral("x") << 14;
    }

    void tagTakesSevenWideOrFourteenNarrow()
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

    void acceptingABlankTagKeepsTheDialogOpen()
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

    void typingAfterTheErrorHidesItOnlyWhenBlank()
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

    void dialogUsedAgainShowsNoOldError()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        const auto *pError = part<QLabel>(dialog, "lblerror");
        whenShown(dialog, [&] {
            button(dialog, "acceptBtn")->setEnabled(true);
            click(dialog, "acceptBtn");
            QVERIFY(pError->isVisible());
        });
        dialog.addLabelToFriend(QStringLiteral("Title"));
        bool bSeen = true;
        whenShown(dialog, [&] { bSeen = pError->isVisible(); });
        dialog.addLabelToFriend(QStringLiteral("Title"));
        QVERIFY(!bSeen);
    }

    void pasteIntoTheTagLeavesTheLastCharacterThatFits_data()
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

    void pasteIntoTheTagLeavesTheLastCharacterThatFits()
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

    void pasteFromAButtonWorksInTagMode()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        whenShown(dialog, [&] { paste(inner(dialog, "closeBtn"), QStringLiteral("xyz")); });
        QCOMPARE(dialog.addLabelToFriend(QStringLiteral("Title")), QStringLiteral("z"));
    }

    void pasteOutsideTagModeIsConsumed()
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

    void modeAfterATagTakesNoPasteIntoTheTag()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        whenShown(dialog, [&] { QTest::keyClick(tag(dialog)->getLineEdit(), Qt::Key_T); });
        QCOMPARE(dialog.addLabelToFriend(QStringLiteral("Title")), QStringLiteral("t"));
        whenShown(dialog, [&] { paste(inner(dialog, "closeBtn"), QStringLiteral("xyz")); });
        dialog.modifyShow(QStringLiteral("Title"));
        QCOMPARE(tag(dialog)->text(), QStringLiteral("t"));
    }

    void hotKeyErrorAfterATagEndsTheTagMode_data()
    {
        QTest::addColumn<int>("type");
        for (const int iType : {0, 1, 2, 3}) {
            QTest::addRow("type %d", iType) << iType;
        }
    }

    void hotKeyErrorAfterATagEndsTheTagMode()
    {
        QFETCH(int, type);
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        whenShown(dialog, [&] { QTest::keyClick(tag(dialog)->getLineEdit(), Qt::Key_T); });
        QCOMPARE(dialog.addLabelToFriend(QStringLiteral("Title")), QStringLiteral("t"));
        dialog.showHotKeyError(QStringLiteral("Title"), type);
        paste(inner(dialog, "closeBtn"), QStringLiteral("xyz"));
        QCOMPARE(tag(dialog)->text(), QStringLiteral("t"));
        QGuiApplication::clipboard()->clear();
    }

    void newLanguageKeepsTheTagMode()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        QString strPage;
        whenShown(dialog, [&] {
            QEvent change(QEvent::LanguageChange);
            QCoreApplication::sendEvent(&dialog, &change);
            strPage = page(dialog);
            paste(inner(dialog, "closeBtn"), QStringLiteral("xyz"));
        });
        QCOMPARE(dialog.addLabelToFriend(QStringLiteral("Title")), QStringLiteral("z"));
        QCOMPARE(strPage, QStringLiteral("page_MsgAndScreen"));
        QGuiApplication::clipboard()->clear();
    }

    void escapeLeavesTheFlagOfABlankTag()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        bool bClosed = false;
        whenShown(dialog, [&] {
            button(dialog, "acceptBtn")->setEnabled(true);
            click(dialog, "acceptBtn");
            QVERIFY(dialog.isVisible());
            QTest::keyClick(&dialog, Qt::Key_Escape);
            bClosed = !dialog.isVisible();
        });
        QVERIFY(dialog.addLabelToFriend(QStringLiteral("Title")).isEmpty());
        QVERIFY(bClosed);
        QVERIFY(dialog.m_bAccepted);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ErrorMessageTag, Widgets)

#include "tst_ErrorMessageTag.moc"
