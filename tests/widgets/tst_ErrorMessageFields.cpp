// What the message dialog's fields let in and give back: the reply of several lines and the name. The tag has a test of
// its own.

#include "fakes/Patience.h"
#include "widgets/LineEditEx.h"
#include "widgets/ShownDialog.h"
#include "widgets/TextEditEx.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

using namespace ShownDialog;

class tst_ErrorMessageFields : public QObject
{
    Q_OBJECT

private:
    static CTextEditEx *reply(const ErrorMessage &dialog) { return part<CTextEditEx>(dialog, "AutoReplytextEdit"); }

private slots:
    void replyIsGivenBackTrimmed()
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

    void replyIsHeldToTwoHundredColumns_data()
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

    void replyIsHeldToTwoHundredColumns()
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

    void longReplyIsCutBeforeItIsShown()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        whenShown(dialog, [] {});
        // The cursor stands at the start, so the text loses its end.
        QCOMPARE(dialog.lineEditShow(QStringLiteral("Title"), QStringLiteral("ab") + chinese(150)),
                 QStringLiteral("ab") + chinese(99));
    }

    void hugePasteIntoTheReplyIsCut_data()
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

    void hugePasteIntoTheReplyIsCut()
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

    void nameStartsEmptyFocusedAndAcceptable()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        bool bFocused = false;
        whenShown(dialog, [&] {
            auto *pField = part<CLineEditEx>(dialog, "lineEdit");
            bFocused = QTest::qWaitForWindowActive(&dialog, cPatienceMs) && pField->getLineEdit()->hasFocus();
            click(dialog, "acceptBtn");
            QVERIFY(!dialog.isVisible());
        });
        QVERIFY(dialog.modifyShow(QStringLiteral("Title")).isEmpty());
        QVERIFY(bFocused);
        QVERIFY(dialog.m_bAccepted);
    }

    void blankNameCannotBeAccepted()
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

    void nameIsGivenBack()
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

    void nameAskedTwiceStartsEmptyAgain()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        QLineEdit *pField = part<CLineEditEx>(dialog, "lineEdit")->getLineEdit();
        whenShown(dialog, [&] {
            QTest::keyClicks(pField, QStringLiteral("first"));
            click(dialog, "acceptBtn");
        });
        QCOMPARE(dialog.modifyShow(QStringLiteral("Title")), QStringLiteral("first"));
        QList<bool> enabled;
        whenShown(dialog, [&] {
            enabled << button(dialog, "acceptBtn")->isEnabled();
            for (const int key : {int(Qt::Key_A), int(Qt::Key_Backspace), int(Qt::Key_B)}) {
                QTest::keyClick(pField, Qt::Key(key));
                enabled << button(dialog, "acceptBtn")->isEnabled();
            }
            click(dialog, "closeBtn");
        });
        QCOMPARE(dialog.modifyShow(QStringLiteral("Title")), QStringLiteral("b"));
        // Emptying the field takes back that an empty name can be accepted at first.
        QCOMPARE(enabled, (QList<bool>{false, true, false, true}));
        QVERIFY(!dialog.m_bAccepted);
    }

    void nameTakesAPaste()
    {
        ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
        whenShown(dialog, [&] { paste(part<CLineEditEx>(dialog, "lineEdit")->getLineEdit(), QStringLiteral("abc")); });
        QCOMPARE(dialog.modifyShow(QStringLiteral("Title")), QStringLiteral("abc"));
        QGuiApplication::clipboard()->clear();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ErrorMessageFields, Widgets)

#include "tst_ErrorMessageFields.moc"
