// A user's record and head picture: from the client's friend map or by a question to the host, with the file's true
// name or the default head.

#include "ContactFixture.h"

#include "fakes/FakeHost.h"
#include "fakes/PictureFiles.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ShownContact.h"

#include <QFile>
#include <QTest>

#include <memory>

class tst_ShownContact : public QObject
{
    Q_OBJECT

private:
    const QString m_strDefaultHead = QStringLiteral("Resources/images/FriendDetail/defaultHead.png");
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<FakeHost> m_pHost;

    static QString written(const QString &strName, const char *pFormat)
    {
        return PictureFiles::writeBytes(strName,
                                        PictureFiles::encoded(PictureFiles::plain(QSize(4, 4), Qt::red), pFormat));
    }

private slots:
    void init()
    {
        m_pContacts = std::make_unique<ContactFixture>();
        m_pHost = std::make_unique<FakeHost>();
        VoipManageMessageProcess::instance()->setSendEvent(m_pHost.get());
    }

    void cleanup()
    {
        VoipManageMessageProcess::instance()->setSendEvent(nullptr);
        m_pHost.reset();
        m_pContacts.reset();
    }

    void aContactComesFromTheFriendMap_data()
    {
        QTest::addColumn<QString>("user");
        QTest::newRow("user id") << "ann";
        QTest::newRow("jid") << "ann@kelvar.im";
    }

    void aContactComesFromTheFriendMap()
    {
        QFETCH(QString, user);
        const QString strHead = written(QStringLiteral("ann.png"), "PNG");
        m_pContacts->addContact(QStringLiteral("ann"), ContactFixture::card(QStringLiteral("Ann"), {}, strHead));
        const ShownContact ann = ShownContact::ofUser(user);
        QCOMPARE(ann.record.displayName(), QStringLiteral("Ann"));
        QCOMPARE(ann.strHeadPath, strHead);
        QCOMPARE(m_pHost->commands(), QList<int>());
    }

    void anyOtherUserIsAskedForAtTheHost()
    {
        FriendData eve(ContactFixture::jid(QStringLiteral("eve")));
        const QString strHead = written(QStringLiteral("eve.png"), "PNG");
        eve.setVcardInfo(ContactFixture::card(QStringLiteral("Eve"), {}, strHead));
        m_pHost->setRecord(eve.m_strJid, eve);
        const ShownContact shown = ShownContact::ofUser(QStringLiteral("eve"));
        QCOMPARE(shown.record.displayName(), QStringLiteral("Eve"));
        QCOMPARE(shown.strHeadPath, strHead);
        QCOMPARE(m_pHost->commands(), QList<int>{4157});
    }

    void anUnknownUserHasAnEmptyRecordAndTheDefaultHead()
    {
        const ShownContact nobody = ShownContact::ofUser(QStringLiteral("nobody"));
        QCOMPARE(nobody.record.m_strJid, QString());
        QCOMPARE(nobody.strHeadPath, m_strDefaultHead);
    }

    void theSignedInUserIsToldByTheId_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<bool>("me");
        QTest::newRow("own id") << "me" << true;
        QTest::newRow("own jid") << "me@kelvar.im" << false;
        QTest::newRow("another") << "ann" << false;
        QTest::newRow("none") << QString() << false;
    }

    void theSignedInUserIsToldByTheId()
    {
        QFETCH(QString, user);
        QTEST(ShownContact::ofUser(user).bIsMe, "me");
    }

    void aWronglyNamedPictureIsRenamed()
    {
        const QString strWrong = written(QStringLiteral("wrong.png"), "JPG");
        const QString strRight = QString(strWrong).replace(QLatin1String(".png"), QLatin1String(".jpg"));
        QCOMPARE(ShownContact::headPathOf(ContactFixture::card({}, {}, strWrong)), strRight);
        QVERIFY(QFile::exists(strRight));
        QVERIFY(!QFile::exists(strWrong));
    }

    void aMissingPictureGivesTheDefaultHead_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("none named") << QString();
        QTest::newRow("no such file") << "no/such/picture.png";
        QTest::newRow("empty file") << PictureFiles::writeBytes(QStringLiteral("empty.png"), {});
    }

    void aMissingPictureGivesTheDefaultHead()
    {
        QFETCH(QString, path);
        QCOMPARE(ShownContact::headPathOf(ContactFixture::card({}, {}, path)), m_strDefaultHead);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ShownContact, Widgets)

#include "tst_ShownContact.moc"
