// Names that come from the network: shown as plain text, cut to their place, never interpreted.

#include "CallWindowTest.h"

#include "widgets/ElidedLabel.h"

class tst_VoipWidgetNames : public CallWindowTest
{
    Q_OBJECT

private:
    bool isInside(const char *name) const
    {
        const auto *pPart = part<QWidget>(name);
        return m_pWindow->rect().contains(QRect(pPart->mapTo(m_pWindow.get(), QPoint()), pPart->size()));
    }

private slots:
    void labelsNeverRunRichText()
    {
        const QList<QLabel *> labels = m_pWindow->findChildren<QLabel *>();
        QVERIFY(labels.size() >= 7);
        for (const QLabel *pLabel : labels) {
            QVERIFY2(pLabel->textFormat() == Qt::PlainText, qPrintable(pLabel->objectName()));
        }
    }

    void everyNameIsShownAsItIs_data()
    {
        QTest::addColumn<QString>("nick");
        QTest::newRow("10,000 characters") << QString(10000, QChar(0x4e2d));
        QTest::newRow("right to left") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627");
        QTest::newRow("direction marks") << QStringLiteral("\u202eevil\u202c\u2066x\u2069");
        QTest::newRow("emoji") << QString::fromUtf8("\xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x91\xa7 \xf0\x9f\x8e\x89");
        QTest::newRow("half a surrogate pair") << QString(QChar(0xd83d));
        QTest::newRow("line feeds") << QStringLiteral("one\ntwo\r\nthree");
        QTest::newRow("rich text") << QStringLiteral("<b>bold</b><img src='x'>");
        QTest::newRow("placeholders") << QStringLiteral("%1%2%3%n");
        QTest::newRow("ampersand") << QStringLiteral("a&b&&c");
        QTest::newRow("null character") << QString(QChar(0));
        QTest::newRow("blanks") << QStringLiteral("   ");
    }

    void everyNameIsShownAsItIs()
    {
        QFETCH(QString, nick);
        const VcardInfo vcard = ContactFixture::card(nick, uid("Annie"));
        m_pContacts->addContact(uid("ann"), vcard);
        const QString strName = nick + uid("(Annie)");

        startCall(CVoipWidget::Voice, true);
        showWindow();
        QCOMPARE(text("lblUserName"), strName);
        QVERIFY(isInside("lblUserName"));
        QVERIFY(part<QWidget>("lblUserName")->height() <= 40);

        startCall(CVoipWidget::Video, true);
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("与") + strName + QStringLiteral("(ann)通话中"));
        m_pWindow->updateUserInfo(ContactFixture::jid(uid("ann")), vcard);
        QCOMPARE(text("lblVoipTipMsg"), QStringLiteral("与") + strName + QStringLiteral("(ann)通话中"));
        m_pWindow->grab();
        QVERIFY(isInside("lblVoipTipMsg"));
        QVERIFY(isInside("btnClose"));
        QCOMPARE(part<QWidget>("titleWidget")->height(), 36);

        startCall(CVoipWidget::Conference, true);
        m_pWindow->updateUserInfo(ContactFixture::jid(uid("ann")), vcard);
        m_pWindow->grab();
        QCOMPARE(m_pWindow->size(), QSize(523, 403));
    }

    void longNamesAreCut()
    {
        m_pContacts->addContact(uid("ann"), ContactFixture::card(QString(10000, QLatin1Char('m')), uid("x\ny")));
        startCall(CVoipWidget::Voice, true);
        showWindow();
        const QString strShown = part<ElidedLabel>("lblUserName")->shownText();
        QVERIFY(strShown.endsWith(QChar(0x2026)));
        QVERIFY(strShown.size() < 60);
        startCall(CVoipWidget::Video, true);
        m_pWindow->grab();
        QVERIFY(part<ElidedLabel>("lblVoipTipMsg")->shownText().endsWith(QChar(0x2026)));
        QVERIFY(isInside("btnClose"));
    }

    void longUidsAreCut()
    {
        m_pWindow->setVoipCallInfo({QString(10000, QLatin1Char('u'))}, CVoipWidget::Video, true, false);
        showWindow();
        QVERIFY(part<ElidedLabel>("lblVoipTipMsg")->shownText().endsWith(QChar(0x2026)));
        QVERIFY(isInside("btnClose"));
    }

    void oddUidsAreHarmless_data()
    {
        QTest::addColumn<QString>("odd");
        QTest::newRow("empty") << QString();
        QTest::newRow("blank") << QStringLiteral(" ");
        QTest::newRow("at sign") << QStringLiteral("@");
        QTest::newRow("slash") << QStringLiteral("a/b");
        QTest::newRow("line feed") << QStringLiteral("a\nb");
        QTest::newRow("right to left") << QStringLiteral("\u05e9\u05dc");
    }

    void oddUidsAreHarmless()
    {
        QFETCH(QString, odd);
        for (const int iType : {0, 1, 2, -1, 3, 2147483647}) {
            m_pWindow->setVoipCallInfo({odd}, CVoipWidget::VoipType(iType), true, false);
            m_pWindow->addConferenceMember(odd);
            m_pWindow->updateConferenceUserStatus(odd, Q_INT64_C(-9000000000));
            m_pWindow->updateConferenceUserStatus(odd, 99);
            m_pWindow->updateUserInfo(odd, VcardInfo());
            m_pWindow->removeConferenceMember(odd);
            m_pWindow->grab();
        }
        QCOMPARE(m_sent, QStringList());
        QCOMPARE(m_pWindow->size(), QSize(523, 403));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetNames, Widgets)

#include "tst_VoipWidgetNames.moc"
