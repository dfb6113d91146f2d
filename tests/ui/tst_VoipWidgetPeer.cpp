// What the call window shows of the other side: the contact's names and picture, and the card that comes later.

#include "ContactFixture.h"
#include "ShownCall.h"
#include "model/MemberRoles.h"
#include "ui/VoipWidget.h"

#include <QDir>
#include <QTest>

class tst_VoipWidgetPeer : public QObject
{
    Q_OBJECT

private slots:
    void unknownContactLeavesTheNameAsItWas()
    {
        ContactFixture contacts;
        contacts.addContact(QStringLiteral("ann"),
                            ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));
        CVoipWidget window;
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        window.setVoipCallInfo({QStringLiteral("stranger")}, CVoipWidget::Voice, true, false);

        QCOMPARE(ShownCall(window).text("lblUserName"), QStringLiteral("Ann(Annie)"));
    }

    void oneOfTheTwoNamesIsEnough()
    {
        ContactFixture contacts;
        contacts.addContact(QStringLiteral("ann"), ContactFixture::card(QStringLiteral("Ann"), {}));
        contacts.addContact(QStringLiteral("bob"), ContactFixture::card({}, QStringLiteral("Bobby")));
        CVoipWidget window;
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        QCOMPARE(ShownCall(window).text("lblUserName"), QStringLiteral("Ann()"));
        window.setVoipCallInfo({QStringLiteral("bob")}, CVoipWidget::Voice, true, false);
        QCOMPARE(ShownCall(window).text("lblUserName"), QStringLiteral("(Bobby)"));
    }

    void percentSignsInNamesStayAsTheyAre()
    {
        ContactFixture contacts;
        contacts.addContact(QStringLiteral("ann"), ContactFixture::card(QStringLiteral("%2"), QStringLiteral("%1")));
        CVoipWidget window;
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Video, true, false);
        QCOMPARE(ShownCall(window).text("lblVoipTipMsg"), QStringLiteral("与%2(%1)(ann)通话中"));
    }

    void cardOfThePeerRefreshesNameAndTip()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Video, true, false);
        window.setVoipCallStatus(true);

        window.updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                              ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        QCOMPARE(shown.text("lblUserName"), QStringLiteral("Ann(Annie)"));
        QCOMPARE(shown.text("lblVoipTipMsg"), QStringLiteral("与Ann(Annie)(ann)通话中"));
        QCOMPARE(shown.text("lblStatus"), QStringLiteral("已接通"));
    }

    void voiceCallKeepsItsTipWhenTheCardComes()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        window.updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                              ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        QCOMPARE(shown.text("lblUserName"), QStringLiteral("Ann(Annie)"));
        QCOMPARE(shown.text("lblVoipTipMsg"), QStringLiteral("语音通话"));
    }

    void videoCallWithAnUnknownContactShowsTheUidAlone()
    {
        ContactFixture contacts;
        CVoipWidget window;
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Video, true, false);
        QCOMPARE(ShownCall(window).text("lblVoipTipMsg"), QStringLiteral("与(ann)通话中"));
    }

    void cardAfterTheCallChangesNothing()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        window.close();

        window.updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                              ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        QCOMPARE(shown.text("lblUserName"), QString());
        QCOMPARE(shown.text("lblVoipTipMsg"), QString());
        QVERIFY(shown.label("lblPhotoIcon")->pixmap(Qt::ReturnByValue).isNull());
    }

    void cardOfAnotherJidChangesNothing()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        const QString strStatus = shown.text("lblStatus");
        const qint64 iHead = shown.label("lblPhotoIcon")->pixmap(Qt::ReturnByValue).cacheKey();

        const VcardInfo card = ContactFixture::card(QStringLiteral("Bob"), QStringLiteral("Bobby"));
        window.updateUserInfo(ContactFixture::jid(QStringLiteral("bob")), card);
        // A bare uid is not the peer's jid either.
        window.updateUserInfo(QStringLiteral("ann"), card);

        QCOMPARE(shown.text("lblUserName"), QString());
        QCOMPARE(shown.text("lblVoipTipMsg"), QStringLiteral("语音通话"));
        QCOMPARE(shown.text("lblStatus"), strStatus);
        QCOMPARE(shown.label("lblPhotoIcon")->pixmap(Qt::ReturnByValue).cacheKey(), iHead);
    }

    void cardInAConferenceGoesToTheMemberList()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Conference, true, false);

        window.updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                              ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        QCOMPARE(shown.rows()->index(0, 0).data(ROLE_DISPLAY_NAME).toString(), QStringLiteral("Ann"));
        QCOMPARE(shown.text("lblUserName"), QString());
    }

    void typeOfCallIsKeptWhenTheCallIsCleared()
    {
        ContactFixture contacts;
        CVoipWidget window;
        const ShownCall shown(window);
        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Conference, true, false);
        window.close();
        window.addConferenceMember(QStringLiteral("bob"));

        window.updateUserInfo(ContactFixture::jid(QStringLiteral("bob")),
                              ContactFixture::card(QStringLiteral("Bob"), {}));

        QCOMPARE(shown.rows()->index(0, 0).data(ROLE_DISPLAY_NAME).toString(), QStringLiteral("Bob"));
    }

    void photoOfTheContactIsShownRound()
    {
        const QString strPhoto = QDir::current().absoluteFilePath(QStringLiteral("ann.png"));
        QImage photo(40, 40, QImage::Format_RGB32);
        photo.fill(Qt::red);
        QVERIFY(photo.save(strPhoto));
        ContactFixture contacts;
        contacts.addContact(QStringLiteral("ann"), ContactFixture::card(QStringLiteral("Ann"), {}, strPhoto));
        CVoipWidget window;

        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        const QImage head = ShownCall(window).label("lblPhotoIcon")->pixmap(Qt::ReturnByValue).toImage();
        QCOMPARE(head.size() / head.devicePixelRatio(), QSize(100, 100));
        QCOMPARE(head.pixelColor(head.width() / 2, head.height() / 2), QColor(Qt::red));
        QCOMPARE(head.pixelColor(0, 0).alpha(), 0);
    }

    void missingPhotoGivesTheDefaultHead()
    {
        const QString strDefault = QStringLiteral("Resources/images/FriendDetail/defaultHead.png");
        QVERIFY(QDir().mkpath(QFileInfo(strDefault).path()));
        QImage head(40, 40, QImage::Format_RGB32);
        head.fill(Qt::blue);
        QVERIFY(head.save(strDefault));
        ContactFixture contacts;
        contacts.addContact(QStringLiteral("ann"),
                            ContactFixture::card(QStringLiteral("Ann"), {}, QStringLiteral("no/such/photo.png")));
        CVoipWidget window;

        window.setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        const QImage shown = ShownCall(window).label("lblPhotoIcon")->pixmap(Qt::ReturnByValue).toImage();
        QCOMPARE(shown.pixelColor(shown.width() / 2, shown.height() / 2), QColor(Qt::blue));
        QCOMPARE(shown.pixelColor(0, 0).alpha(), 0);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetPeer, Widgets)

#include "tst_VoipWidgetPeer.moc"
