#include "model/CommonData.h"
#include "model/SharedContext.h"
#include "passport/PassportLoginServer.h"

#include <QNetworkCookie>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QTest>
#include <QUrl>

class tst_CoverNetworkRequest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_keeper.SetPassportAuthIDCookie("id-1");
        m_context.setPassportLoginServer(&m_keeper);
        SharedContext::setCommonData(&m_context);
    }

    void cleanup() { SharedContext::setCommonData(nullptr); }

    void headersPassAndAuthorizationDoesNot_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *pName : {"Authorization", "authorization", "AUTHORIZATION", "aUTHORIZATION"}) {
            QTest::newRow(pName) << QByteArray(pName);
        }
    }

    void headersPassAndAuthorizationDoesNot()
    {
        QFETCH(QByteArray, name);
        QNetworkRequest request(QUrl("https://im.example.org/x?y=1"));
        request.setRawHeader(name, "Basic secret");
        request.setRawHeader("X-Foo", "foo");
        const QNetworkRequest sent = m_context.CoverNetworkRequest(request);
        QVERIFY(!sent.hasRawHeader("Authorization"));
        QCOMPARE(sent.rawHeaderList().size(), 2);
        QCOMPARE(sent.rawHeader("X-Foo"), QByteArray("foo"));
        QCOMPARE(sent.rawHeader("Cookie"), QByteArray("imAuthId=id-1"));
        QCOMPARE(sent.url(), QUrl("https://im.example.org/x?y=1"));
    }

    void aHeaderWhoseNameOnlyContainsItPasses()
    {
        QNetworkRequest request;
        request.setRawHeader("Proxy-Authorization", "p");
        request.setRawHeader("Authorization-Info", "i");
        const QNetworkRequest sent = m_context.CoverNetworkRequest(request);
        QCOMPARE(sent.rawHeader("Proxy-Authorization"), QByteArray("p"));
        QCOMPARE(sent.rawHeader("Authorization-Info"), QByteArray("i"));
    }

    void theIdIsTheOneCookie()
    {
        QNetworkRequest request(QUrl("https://im.example.org/"));
        request.setHeader(QNetworkRequest::CookieHeader,
                          QVariant::fromValue(QList<QNetworkCookie>({QNetworkCookie("other", "1")})));
        const QNetworkRequest sent = m_context.CoverNetworkRequest(request);
        const QVariant cookie = sent.header(QNetworkRequest::CookieHeader);
        QCOMPARE(cookie.userType(), qMetaTypeId<QNetworkCookie>());
        QCOMPARE(cookie.value<QNetworkCookie>(), QNetworkCookie("imAuthId", "id-1"));
        QCOMPARE(sent.rawHeader("Cookie"), QByteArray("imAuthId=id-1"));
    }

    void aRawCookieHeaderIsReplaced_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("Cookie") << QByteArray("Cookie");
        QTest::newRow("cookie") << QByteArray("cookie");
    }

    void aRawCookieHeaderIsReplaced()
    {
        QFETCH(QByteArray, name);
        QNetworkRequest request;
        request.setRawHeader(name, "imAuthId=stolen; other=1");
        const QNetworkRequest sent = m_context.CoverNetworkRequest(request);
        QCOMPARE(sent.rawHeaderList().size(), 1);
        QCOMPARE(sent.rawHeader("Cookie"), QByteArray("imAuthId=id-1"));
    }

    void eachRequestCarriesTheIdOfItsMoment()
    {
        m_keeper.SetPassportAuthIDCookie("id-2");
        QCOMPARE(m_context.CoverNetworkRequest(QNetworkRequest()).rawHeader("Cookie"), QByteArray("imAuthId=id-2"));
        m_keeper.UserCookieExpire();
        m_keeper.SetPassportAuthIDCookie("");
        QCOMPARE(m_context.CoverNetworkRequest(QNetworkRequest()).rawHeader("Cookie"), QByteArray("imAuthId=id-2"));
    }

    void theGivenRequestIsNotChanged()
    {
        QNetworkRequest request(QUrl("https://im.example.org/"));
        request.setRawHeader("Authorization", "Basic secret");
        const QNetworkRequest before = request;
        m_context.CoverNetworkRequest(request);
        QCOMPARE(request, before);
    }

    void attributesAndSslSettingsAreNotCarriedOver()
    {
        QNetworkRequest request(QUrl("https://im.example.org/"));
        request.setAttribute(QNetworkRequest::User, 5);
        request.setPriority(QNetworkRequest::HighPriority);
        QSslConfiguration ssl = request.sslConfiguration();
        ssl.setPeerVerifyDepth(7);
        request.setSslConfiguration(ssl);
        const QNetworkRequest sent = m_context.CoverNetworkRequest(request);
        QVERIFY(!sent.attribute(QNetworkRequest::User).isValid());
        QCOMPARE(sent.priority(), QNetworkRequest::NormalPriority);
        QVERIFY(sent.sslConfiguration().peerVerifyDepth() != 7);
    }

    void aLineBreakInTheIdDoesNotReachTheHeader()
    {
        m_keeper.SetPassportAuthIDCookie("id\r\nX-Evil: 1\n2\r3");
        const QNetworkRequest sent = m_context.CoverNetworkRequest(QNetworkRequest());
        QCOMPARE(sent.rawHeader("Cookie"), QByteArray("imAuthId=idX-Evil: 123"));
    }

    void theIdIsWrittenInLatin1()
    {
        m_keeper.SetPassportAuthIDCookie(QString::fromUtf8("é张"));
        const QNetworkRequest sent = m_context.CoverNetworkRequest(QNetworkRequest());
        QCOMPARE(sent.rawHeader("Cookie"), QByteArray("imAuthId=\xe9?"));
    }

    void withoutAPassportServerTheIdIsEmpty()
    {
        m_context.setPassportLoginServer(nullptr);
        const QNetworkRequest sent = m_context.CoverNetworkRequest(QNetworkRequest(QUrl("https://im.example.org/")));
        QCOMPARE(sent.rawHeader("Cookie"), QByteArray("imAuthId="));
        QCOMPARE(sent.url(), QUrl("https://im.example.org/"));
    }

    void theFrontDecoratesThroughTheContext()
    {
        QCOMPARE(SharedContext::CoverNetworkRequest(QNetworkRequest()).rawHeader("Cookie"),
                 QByteArray("imAuthId=id-1"));
    }

    void withoutAContextTheIdIsEmptyAndAuthorizationStaysBehind()
    {
        SharedContext::setCommonData(nullptr);
        QNetworkRequest request(QUrl("https://im.example.org/"));
        request.setRawHeader("authorization", "Basic secret");
        const QNetworkRequest sent = SharedContext::CoverNetworkRequest(request);
        QCOMPARE(sent.rawHeaderList(), QList<QByteArray>({"Cookie"}));
        QCOMPARE(sent.rawHeader("Cookie"), QByteArray("imAuthId="));
        QCOMPARE(sent.url(), request.url());
    }

private:
    CPassportLoginServer m_keeper;
    CommonData m_context;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CoverNetworkRequest, Guiless)
#include "tst_CoverNetworkRequest.moc"
