#include "widgets/ErrorMessage.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <functional>

class tst_ErrorMessage : public QObject
{
    Q_OBJECT

private:
    // Runs `act` once the dialog is on the screen; the show operations return only when it is closed.
    static void whenShown(ErrorMessage &dialog, const std::function<void()> &act)
    {
        QTimer::singleShot(0, &dialog, [&dialog, act] {
            if (QTest::qWaitForWindowExposed(&dialog))
                act();
            if (dialog.isVisible())
                dialog.close();
        });
    }
    static QPushButton *button(ErrorMessage &dialog, const char *name)
    {
        return dialog.findChild<QPushButton *>(QLatin1String(name));
    }
    static void click(ErrorMessage &dialog, const char *name)
    {
        QTest::mouseClick(button(dialog, name), Qt::LeftButton);
    }

private slots:
    void messageShowsOneButton();
    void questionShowsBothButtonsWithTheirWords();
    void answerIsReadFromTheFlag_data();
    void answerIsReadFromTheFlag();
    void keyboardAnswers_data();
    void keyboardAnswers();
    void questionAboutTheHistoryHasItsOwnWord();
    void acceptButtonStartsDisabledWithTheConstructorsWord();
    void focusMovesBetweenTheButtons();
    void textsAreNeverRichText();
    void dialogIsFramelessModalAndOnTop();
    void closingDoesNotCountForQuit();
};

void tst_ErrorMessage::messageShowsOneButton()
{
    ErrorMessage dialog(QString(), QStringLiteral("OK"), nullptr);
    bool seen = false;
    whenShown(dialog, [&] {
        seen = true;
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("titlelabel"))->text(), QStringLiteral("Title"));
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("msgLabel"))->text(), QStringLiteral("Text"));
        QVERIFY(!button(dialog, "acceptBtn")->isVisible());
        QVERIFY(button(dialog, "closeBtn")->isDefault());
        QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("sure"));
        click(dialog, "closeBtn");
        QVERIFY(!dialog.isVisible());
    });
    dialog.getMsgShow(QStringLiteral("Title"), QStringLiteral("Text"));
    QVERIFY(seen);
    QVERIFY(!dialog.m_bAccepted);
}

void tst_ErrorMessage::questionShowsBothButtonsWithTheirWords()
{
    ErrorMessage dialog(QString(), QStringLiteral("OK"), nullptr);
    dialog.setBtnText(QStringLiteral("Yes"), QStringLiteral("No"));
    bool seen = false;
    whenShown(dialog, [&] {
        seen = true;
        QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("Yes"));
        QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("No"));
        QVERIFY(button(dialog, "acceptBtn")->isVisible());
        QVERIFY(button(dialog, "acceptBtn")->isEnabled());
        QVERIFY(button(dialog, "acceptBtn")->isDefault());
        QVERIFY(!button(dialog, "closeBtn")->isDefault());
    });
    QVERIFY(!dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("Text")));
    QVERIFY(seen);
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
        click(dialog, clicked.constData());
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

void tst_ErrorMessage::questionAboutTheHistoryHasItsOwnWord()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    whenShown(dialog, [&] { QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("readrecord")); });
    dialog.chooseMsgShow(QStringLiteral("Title"), QStringLiteral("first lookupHistoryMsg then"));
}

void tst_ErrorMessage::acceptButtonStartsDisabledWithTheConstructorsWord()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    QVERIFY(!button(dialog, "acceptBtn")->isEnabled());
    QCOMPARE(button(dialog, "acceptBtn")->text(), QStringLiteral("Yes"));
    QCOMPARE(button(dialog, "closeBtn")->text(), QStringLiteral("No"));
    QVERIFY(!dialog.m_bAccepted);
    QCOMPARE(button(dialog, "btnClose")->toolTip(), QStringLiteral("close"));
}

void tst_ErrorMessage::focusMovesBetweenTheButtons()
{
    ErrorMessage dialog(QStringLiteral("Yes"), QStringLiteral("No"), nullptr);
    dialog.setBtnFocus(true);
    QVERIFY(button(dialog, "acceptBtn")->isDefault());
    QVERIFY(!button(dialog, "closeBtn")->isDefault());
    dialog.setBtnFocus(false);
    QVERIFY(!button(dialog, "acceptBtn")->isDefault());
    QVERIFY(button(dialog, "closeBtn")->isDefault());
}

void tst_ErrorMessage::textsAreNeverRichText()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 2);
    for (const QLabel *pLabel : labels)
        QCOMPARE(pLabel->textFormat(), Qt::PlainText);
}

void tst_ErrorMessage::dialogIsFramelessModalAndOnTop()
{
    ErrorMessage dialog(QString(), QString(), nullptr);
    const Qt::WindowFlags flags = dialog.windowFlags();
    QCOMPARE(flags & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Dialog));
    QVERIFY(flags.testFlag(Qt::FramelessWindowHint));
    QVERIFY(flags.testFlag(Qt::WindowStaysOnTopHint));
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

QTEST_MAIN(tst_ErrorMessage)

#include "tst_ErrorMessage.moc"
