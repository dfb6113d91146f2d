// What the call window shows of the other side: the contact's names and picture, and the card that comes later.

#include "CallWindowTest.h"

#include "fakes/PaintedPicture.h"

#include <QDir>
#include <QTest>

class tst_VoipWidgetPeer : public CallWindowTest
{
    Q_OBJECT

private slots:
    void unknownContactLeavesTheNameAsItWas()
    {
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        m_pWindow->setVoipCallInfo({QStringLiteral("stranger")}, CVoipWidget::Voice, true, false);

        QCOMPARE(text("lblUserName"), QStringLiteral("Ann(Annie)"));
    }

    void oneOfTheTwoNamesIsEnough()
    {
        m_pContacts->addContact(QStringLiteral("ann"), ContactFixture::card(QStringLiteral("Ann"), {}));
        m_pContacts->addContact(QStringLiteral("bob"), ContactFixture::card({}, QStringLiteral("Bobby")));
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        QCOMPARE(text("lblUserName"), QStringLiteral("Ann()"));
        m_pWindow->setVoipCallInfo({QStringLiteral("bob")}, CVoipWidget::Voice, true, false);
        QCOMPARE(text("lblUserName"), QStringLiteral("(Bobby)"));
    }

    void percentSignsInNamesStayAsTheyAre()
    {
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("%2"), QStringLiteral("%1")));
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Video, true, false);
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("与%2(%1)(ann)通话中"));
    }

    void cardOfThePeerRefreshesNameAndTip()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Video, true, false);
        m_pWindow->setVoipCallStatus(true);

        m_pWindow->updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                                  ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        QCOMPARE(text("lblUserName"), QStringLiteral("Ann(Annie)"));
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("与Ann(Annie)(ann)通话中"));
        QCOMPARE(text("lblStatus"), QStringLiteral("已接通"));
    }

    void voiceCallKeepsItsTipWhenTheCardComes()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        m_pWindow->updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                                  ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        QCOMPARE(text("lblUserName"), QStringLiteral("Ann(Annie)"));
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("语音通话"));
    }

    void videoCallWithAnUnknownContactShowsTheUidAlone()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Video, true, false);
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("与(ann)通话中"));
    }

    void cardAfterTheCallChangesNothing()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        m_pWindow->close();

        m_pWindow->updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                                  ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        QCOMPARE(text("lblUserName"), QString());
        QCOMPARE(text("lblVoipTipMsg"), QString());
        QVERIFY(part<QLabel>("lblPhotoIcon")->pixmap(Qt::ReturnByValue).isNull());
    }

    void cardOfAnotherJidChangesNothing()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);
        const QString strStatus = text("lblStatus");
        const qint64 iHead = part<QLabel>("lblPhotoIcon")->pixmap(Qt::ReturnByValue).cacheKey();

        const VcardInfo card = ContactFixture::card(QStringLiteral("Bob"), QStringLiteral("Bobby"));
        m_pWindow->updateUserInfo(ContactFixture::jid(QStringLiteral("bob")), card);
        // A bare uid is not the peer's jid either.
        m_pWindow->updateUserInfo(QStringLiteral("ann"), card);

        QCOMPARE(text("lblUserName"), QString());
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("语音通话"));
        QCOMPARE(text("lblStatus"), strStatus);
        QCOMPARE(part<QLabel>("lblPhotoIcon")->pixmap(Qt::ReturnByValue).cacheKey(), iHead);
    }

    void cardInAConferenceGoesToTheMemberList()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Conference, true, false);

        m_pWindow->updateUserInfo(ContactFixture::jid(QStringLiteral("ann")),
                                  ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));

        QCOMPARE(rows()->index(0, 0).data(ROLE_DISPLAY_NAME).toString(), QStringLiteral("Ann"));
        QCOMPARE(text("lblUserName"), QString());
    }

    void typeOfCallIsKeptWhenTheCallIsCleared()
    {
        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Conference, true, false);
        m_pWindow->close();
        m_pWindow->addConferenceMember(QStringLiteral("bob"));

        m_pWindow->updateUserInfo(ContactFixture::jid(QStringLiteral("bob")),
                                  ContactFixture::card(QStringLiteral("Bob"), {}));

        QCOMPARE(rows()->index(0, 0).data(ROLE_DISPLAY_NAME).toString(), QStringLiteral("Bob"));
    }

    void photoOfTheContactIsShownRound()
    {
        const QString strPhoto = QDir::current().absoluteFilePath(QStringLiteral("ann.png"));
        QImage photo(40, 40, QImage::Format_RGB32);
        photo.fill(Qt::red);
        QVERIFY(photo.save(strPhoto));
        m_pContacts->addContact(QStringLiteral("ann"), ContactFixture::card(QStringLiteral("Ann"), {}, strPhoto));

        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        const QPixmap head = part<QLabel>("lblPhotoIcon")->pixmap(Qt::ReturnByValue);
        QCOMPARE(pixelsOf(head), pixelsOf(roundByNumbers(QPixmap(strPhoto), qRound(100 * head.devicePixelRatio()))));
    }

    void missingPhotoGivesTheDefaultHead()
    {
        const QString strDefault = QStringLiteral("Resources/images/FriendDetail/defaultHead.png");
        QVERIFY(QDir().mkpath(QFileInfo(strDefault).path()));
        QImage head(40, 40, QImage::Format_RGB32);
        head.fill(Qt::blue);
        QVERIFY(head.save(strDefault));
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("Ann"), {}, QStringLiteral("no/such/photo.png")));

        m_pWindow->setVoipCallInfo({QStringLiteral("ann")}, CVoipWidget::Voice, true, false);

        const QPixmap shown = part<QLabel>("lblPhotoIcon")->pixmap(Qt::ReturnByValue);
        QCOMPARE(pixelsOf(shown),
                 pixelsOf(roundByNumbers(QPixmap(strDefault), qRound(100 * shown.devicePixelRatio()))));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetPeer, Widgets)

#include "tst_VoipWidgetPeer.moc"
