#include "model/Jid.h"

#include <QTest>

#include <random>

namespace {

std::string text(const QByteArray &bytes)
{
    return bytes.toStdString();
}

std::string randomBytes(std::mt19937 &random, std::size_t iMaxLength)
{
    // Separators are frequent, so that all shapes come up.
    static const std::string s_strSeparators = "@/.-aZ9";
    std::string strBytes(random() % (iMaxLength + 1), '\0');
    for (char &ch : strBytes) {
        const auto iPick = random() % 16;
        ch = iPick < s_strSeparators.size() ? s_strSeparators[iPick] : static_cast<char>(random() % 256);
    }
    return strBytes;
}

} // namespace

class tst_Jid : public QObject
{
    Q_OBJECT

private slots:
    void parsesAFullText_data()
    {
        QTest::addColumn<QByteArray>("full");
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArray>("domain");
        QTest::addColumn<QByteArray>("resource");

        QTest::newRow("all three parts") << QByteArray("a@b/c") << QByteArray("a") << QByteArray("b")
                                         << QByteArray("c");
        QTest::newRow("an @ behind the / belongs to the resource")
            << QByteArray("a@b/c@d") << QByteArray("a") << QByteArray("b") << QByteArray("c@d");
        QTest::newRow("an @ only behind the / makes no node")
            << QByteArray("b/c@d") << QByteArray() << QByteArray("b") << QByteArray("c@d");
        QTest::newRow("a second / belongs to the resource")
            << QByteArray("a@b/c/d") << QByteArray("a") << QByteArray("b") << QByteArray("c/d");
        QTest::newRow("the domain becomes lower case and the node keeps its case")
            << QByteArray("A@EXAMPLE.ORG") << QByteArray("A") << QByteArray("example.org") << QByteArray();
        QTest::newRow("the resource keeps its case")
            << QByteArray("A@X.ORG/Res") << QByteArray("A") << QByteArray("x.org") << QByteArray("Res");
        QTest::newRow("an empty resource")
            << QByteArray("a@x.org/") << QByteArray("a") << QByteArray("x.org") << QByteArray();
        QTest::newRow("an empty node") << QByteArray("@x.org") << QByteArray() << QByteArray("x.org") << QByteArray();
        QTest::newRow("bytes beyond ASCII pass")
            << QByteArray("\xe5\xbc\xa0@\xc3\x84.org/\xff") << QByteArray("\xe5\xbc\xa0") << QByteArray("\xc3\x84.org")
            << QByteArray("\xff");
        QTest::newRow("0x18 to 0x1f are allowed in a node")
            << QByteArray("a\x18\x1f@x") << QByteArray("a\x18\x1f") << QByteArray("x") << QByteArray();
        QTest::newRow("a rejected character of the resource becomes NUL")
            << QByteArray("a@x/r\x17s\x7f") << QByteArray("a") << QByteArray("x") << QByteArray("r\0s\0", 4);
        QTest::newRow("a label of 63 bytes")
            << "a@" + QByteArray(63, 'L') << QByteArray("a") << QByteArray(63, 'l') << QByteArray();
        QTest::newRow("a node of 1023 bytes")
            << QByteArray(1023, 'n') + "@x" << QByteArray(1023, 'n') << QByteArray("x") << QByteArray();
        QTest::newRow("a resource of 1023 bytes")
            << "a@x/" + QByteArray(1023, 'r') << QByteArray("a") << QByteArray("x") << QByteArray(1023, 'r');
    }

    void parsesAFullText()
    {
        QFETCH(QByteArray, full);
        const Jid jid(text(full));
        QTEST(QByteArray::fromStdString(jid.node()), "node");
        QTEST(QByteArray::fromStdString(jid.domain()), "domain");
        QTEST(QByteArray::fromStdString(jid.resource()), "resource");
        QVERIFY(jid.IsValid());
    }

    void aMalformedTextGivesAnEmptyJid_data()
    {
        QTest::addColumn<QByteArray>("full");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("second @ before the /") << QByteArray("a@b@c");
        QTest::newRow("label starts with -") << QByteArray("a@-x.org");
        QTest::newRow("label ends with -") << QByteArray("a@x-.org");
        QTest::newRow("label of a single -") << QByteArray("a@x.-");
        QTest::newRow("dot at the end") << QByteArray("a@x.org.");
        QTest::newRow("dot at the beginning") << QByteArray("a@.x.org");
        QTest::newRow("two dots in a row") << QByteArray("a@x..org");
        QTest::newRow("no domain") << QByteArray("node@");
        QTest::newRow("only a resource") << QByteArray("/res");
        QTest::newRow("underscore in the domain") << QByteArray("a@x_y");
        QTest::newRow("NUL in the domain") << QByteArray("a@x\0y", 5);
        QTest::newRow("label of 64 bytes") << "a@" + QByteArray(64, 'l');
        QTest::newRow("node of 1024 bytes") << QByteArray(1024, 'n') + "@x";
        QTest::newRow("resource of 1024 bytes") << "a@x/" + QByteArray(1024, 'r');
    }

    void aMalformedTextGivesAnEmptyJid()
    {
        QFETCH(QByteArray, full);
        const Jid jid(text(full));
        QVERIFY(jid.IsEmpty());
        QVERIFY(!jid.IsValid());
        QCOMPARE(jid.Str(), std::string());
    }

    void aMalformedNodeGivesAnEmptyJid_data()
    {
        QTest::addColumn<char>("rejected");
        for (int i = 0; i <= 0x17; ++i) {
            QTest::addRow("0x%02x", unsigned(i)) << char(i);
        }
        for (const char ch : std::string(" \"&'/:<>@\x7f")) {
            QTest::addRow("0x%02x", unsigned(ch)) << ch;
        }
    }

    void aMalformedNodeGivesAnEmptyJid()
    {
        QFETCH(char, rejected);
        QVERIFY(Jid(std::string("a") + rejected, "x", "r").IsEmpty());
    }

    void strJoinsTheParts()
    {
        QCOMPARE(Jid().Str(), std::string());
        QCOMPARE(Jid("", "x.org", "").Str(), std::string("x.org"));
        QCOMPARE(Jid("a", "x.org", "").Str(), std::string("a@x.org"));
        QCOMPARE(Jid("", "x.org", "r").Str(), std::string("x.org/r"));
        QCOMPARE(Jid("a", "X.org", "r").Str(), std::string("a@x.org/r"));
    }

    void bareJidDropsTheResource()
    {
        QVERIFY(Jid("a@x/r").BareJid() == Jid("a@x"));
        QVERIFY(Jid("a@x").BareJid() == Jid("a@x"));
        QVERIFY(Jid().BareJid().IsEmpty());
    }

    void anEmptyJidIsBareAndNotFull()
    {
        QVERIFY(Jid().IsBare());
        QVERIFY(Jid().IsEmpty());
        QVERIFY(!Jid().IsFull());
        QVERIFY(!Jid().IsValid());
    }

    void anEmptyResourceIsBare()
    {
        const Jid jid("a@x.org/");
        QVERIFY(jid.IsBare());
        QVERIFY(!jid.IsFull());
        QVERIFY(Jid("a@x.org/r").IsFull());
        QVERIFY(!Jid("a@x.org/r").IsBare());
    }

    void anOverlongDomainKeepsTheNode()
    {
        std::string strDomain = "x";
        while (strDomain.size() < 1024) {
            strDomain += ".x";
        }
        bool ok = false;
        QCOMPARE(Jid::PrepDomain(strDomain, &ok), std::string());
        QVERIFY(ok);

        const Jid jid("node", strDomain, "res");
        QCOMPARE(jid.node(), std::string("node"));
        QCOMPARE(jid.domain(), std::string());
        QCOMPARE(jid.resource(), std::string("res"));
        QVERIFY(!jid.IsValid());
        QVERIFY(!jid.IsEmpty());
        QVERIFY(!jid.IsBare());
        QVERIFY(!jid.IsFull());
        QCOMPARE(jid.Str(), std::string());
        QVERIFY(jid.BareJid().IsEmpty());
        QVERIFY(!Jid("node", strDomain, "").IsBare());

        const std::string strLongest = strDomain.substr(0, 1023);
        QCOMPARE(Jid("node", strLongest, "").domain(), strLongest);
        QCOMPARE(Jid::PrepDomain('x' + strLongest, &ok), std::string());
        QVERIFY(ok);
    }

    void comparesNodeThenDomainThenResource_data()
    {
        QTest::addColumn<QByteArray>("first");
        QTest::addColumn<QByteArray>("second");
        QTest::addColumn<int>("sign");
        QTest::newRow("equal") << QByteArray("a@x/r") << QByteArray("a@X/r") << 0;
        QTest::newRow("both empty") << QByteArray() << QByteArray() << 0;
        QTest::newRow("node decides first") << QByteArray("a@y/s") << QByteArray("b@x/r") << -1;
        QTest::newRow("then the domain") << QByteArray("a@x/s") << QByteArray("a@y/r") << -1;
        QTest::newRow("then the resource") << QByteArray("a@x/r") << QByteArray("a@x/s") << -1;
        QTest::newRow("the shorter first") << QByteArray("a@x") << QByteArray("aa@x") << -1;
        QTest::newRow("bytes are unsigned") << QByteArray("z@x") << QByteArray("\xc3\xa4@x") << -1;
        QTest::newRow("upper case first") << QByteArray("B@x") << QByteArray("a@x") << -1;
    }

    void comparesNodeThenDomainThenResource()
    {
        QFETCH(QByteArray, first);
        QFETCH(QByteArray, second);
        QFETCH(int, sign);
        const auto signOf = [](int i) { return (i > 0) - (i < 0); };
        const Jid a(text(first));
        const Jid b(text(second));
        QCOMPARE(signOf(a.Compare(b)), sign);
        QCOMPARE(signOf(b.Compare(a)), -sign);
        QCOMPARE(a == b, sign == 0);
        QCOMPARE(a != b, sign != 0);
    }

    void bareEqualsIgnoresTheResource()
    {
        QVERIFY(Jid("a@x/r").BareEquals(Jid("a@x/s")));
        QVERIFY(!(Jid("a@x/r") == Jid("a@x/s")));
        QVERIFY(!Jid("a@x").BareEquals(Jid("b@x")));
        QVERIFY(!Jid("a@x").BareEquals(Jid("a@y")));
    }

    void eachCharacterIsJudgedByItsPart()
    {
        const std::string strNodeRejected = std::string(" \"&'/:<>@\x7f");
        for (int i = 0; i < 256; ++i) {
            const char ch = static_cast<char>(i);
            const bool bControl = i <= 0x17 || i == 0x7f;
            const bool bLetterOrDigit = i < 0x80 && QChar(i).isLetterOrNumber();
            bool ok = false;

            const bool bNode = !bControl && strNodeRejected.find(ch) == std::string::npos;
            QCOMPARE(int(Jid::PrepNodeAscii(ch, &ok)), bNode ? int(ch) : 0);
            QCOMPARE(ok, bNode);

            QCOMPARE(int(Jid::PrepResourceAscii(ch, &ok)), bControl ? 0 : int(ch));
            QCOMPARE(ok, !bControl);

            const bool bLabel = bLetterOrDigit || ch == '-' || i >= 0x80;
            const char expected = i < 0x80 ? QChar(i).toLower().toLatin1() : ch;
            QCOMPARE(int(Jid::PrepDomainLabelAscii(ch, &ok)), bLabel ? int(expected) : 0);
            QCOMPARE(ok, bLabel);
        }
    }

    void emptyNodeAndResourceAreValidAndAnEmptyDomainIsNot()
    {
        bool ok = false;
        QCOMPARE(Jid::PrepNode("", &ok), std::string());
        QVERIFY(ok);
        ok = false;
        QCOMPARE(Jid::PrepResource("", &ok), std::string());
        QVERIFY(ok);
        QCOMPARE(Jid::PrepDomain("", &ok), std::string());
        QVERIFY(!ok);
    }

    void aRejectedCharacterEndsTheNodeButNotTheResource()
    {
        bool ok = true;
        QCOMPARE(Jid::PrepNode("ab:c", &ok), std::string());
        QVERIFY(!ok);
        QCOMPARE(Jid::PrepResource(std::string("a\nb", 3), &ok), std::string("a\0b", 3));
        QVERIFY(ok);
    }

    void theFirstMalformedLabelEndsTheDomain()
    {
        bool ok = true;
        std::string strOut;
        Jid::PrepDomain("GOOD.b_d.next", &strOut, &ok);
        QVERIFY(!ok);
        QCOMPARE(strOut, std::string("good.b"));
        QCOMPARE(Jid::PrepDomain("GOOD.b_d.next", &ok), std::string());
        QVERIFY(!ok);
    }

    void aLabelIsAppendedInLowerCase()
    {
        const std::string strLabel = "Ab-9";
        std::string strOut = "x.";
        bool ok = false;
        Jid::PrepDomainLabel(strLabel.cbegin(), strLabel.cend(), &strOut, &ok);
        QVERIFY(ok);
        QCOMPARE(strOut, std::string("x.ab-9"));
        Jid::PrepDomainLabel(strLabel.cbegin(), strLabel.cbegin(), &strOut, &ok);
        QVERIFY(!ok);
        Jid::PrepDomainLabel(strLabel.cbegin(), strLabel.cbegin() + 3, &strOut, &ok);
        QVERIFY(!ok);
    }

    void anyBytesGiveAnEmptyJidOrOneThatItsOwnTextGivesAgain()
    {
        std::mt19937 random(20260805);
        int iValid = 0;
        for (int i = 0; i < 200000; ++i) {
            const std::string strBytes = randomBytes(random, i % 100 == 0 ? 3000 : 12);
            const Jid jid(strBytes);
            if (!jid.IsValid()) {
                continue;
            }
            ++iValid;
            QVERIFY(Jid(jid.Str()) == jid);
            QCOMPARE(Jid(jid.Str()).Compare(jid), 0);
            QVERIFY(jid.BareJid().BareEquals(jid));
            QVERIFY(jid.BareJid().IsBare());
            QVERIFY(Jid(jid.node(), jid.domain(), jid.resource()) == jid);
        }
        QVERIFY(iValid > 1000);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Jid, Appless)
#include "tst_Jid.moc"
