#include "common/CUrlInfo.h"
#include "common/system/ClientFolder.h"

#include <QTranslator>

namespace {

class CatchAllTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "CUrlInfo") == 0 && qstrcmp(text, "000000") == 0 ? QString("rest") : QString();
    }
    bool isEmpty() const override { return false; }
};

using Domains = QMap<QString, QString>;

} // namespace

Q_DECLARE_METATYPE(Domains)

class tst_CUrlInfoSipPhone : public QObject
{
    Q_OBJECT

private slots:
    void numberRangesGoToTheirHosts_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<Domains>("domains");
        QTest::newRow("no file") << QByteArray() << Domains{{"000000", "sip.kelvar.example"}};
        QTest::newRow("no keys") << QByteArray("[sipphone]\n") << Domains{{"000000", "sip.kelvar.example"}};
        QTest::newRow("a host without ranges ends the list")
            << QByteArray("[sipphone]\ndomain0=x\ndomain1=y\nnumrange1=025\n") << Domains{{"000000", "x"}};
        QTest::newRow("ranges and no catch-all")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025,010\n") << Domains{{"025", "x"}, {"010", "x"}};
        QTest::newRow("one range") << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025\n") << Domains{{"025", "x"}};
        QTest::newRow("a catch-all after ranges")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025\ndomain1=y\ndomain2=z\nnumrange2=020\n")
            << Domains{{"025", "x"}, {"000000", "y"}};
        QTest::newRow("a gap ends the list")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025\ndomain2=z\nnumrange2=020\n") << Domains{{"025", "x"}};
        QTest::newRow("a list that starts at 1 is not found")
            << QByteArray("[sipphone]\ndomain1=x\nnumrange1=025\n") << Domains{{"000000", "sip.kelvar.example"}};
        QTest::newRow("a later pair wins") << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025,010\ndomain1=y\n"
                                                         "numrange1=010\n")
                                           << Domains{{"025", "x"}, {"010", "y"}};
        // The settings read an empty value as a list of one empty item.
        QTest::newRow("an empty value is an empty range")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=\ndomain1=y\n") << Domains{{"", "x"}, {"000000", "y"}};
        QTest::newRow("an empty item is an empty range") << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025,,010\n")
                                                         << Domains{{"", "x"}, {"025", "x"}, {"010", "x"}};
        QTest::newRow("a range in quotes is one range")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=\"025,010\"\n") << Domains{{"025,010", "x"}};
        QTest::newRow("a host with a comma is none")
            << QByteArray("[sipphone]\ndomain0=x,y\nnumrange0=025\n") << Domains{{"000000", "sip.kelvar.example"}};
    }

    void numberRangesGoToTheirHosts()
    {
        QFETCH(QByteArray, file);
        IN_A_CLIENT_WITH(file)
        Domains domains;
        CUrlInfo::getSipPhoneRegDomain(domains);
        QTEST(domains, "domains");
    }

    void twelvePairsAreRead()
    {
        QByteArray file = "[sipphone]\n";
        for (int i = 0; i < 12; ++i) {
            file += QString("domain%1=host%1\nnumrange%1=range%1\n").arg(i).toLatin1();
        }
        IN_A_CLIENT_WITH(file)
        Domains domains;
        CUrlInfo::getSipPhoneRegDomain(domains);
        QCOMPARE(domains.size(), 12);
        QCOMPARE(domains.value("range11"), QString("host11"));
    }

    void entriesOfTheMapAreKept_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<Domains>("domains");
        QTest::newRow("and count, so that no catch-all is added")
            << QByteArray() << Domains{{"021", "kept"}, {"025", "kept"}};
        QTest::newRow("unless a range has the same key") << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025,010\n")
                                                         << Domains{{"021", "kept"}, {"025", "x"}, {"010", "x"}};
    }

    void entriesOfTheMapAreKept()
    {
        QFETCH(QByteArray, file);
        IN_A_CLIENT_WITH(file)
        Domains domains{{"021", "kept"}, {"025", "kept"}};
        CUrlInfo::getSipPhoneRegDomain(domains);
        QTEST(domains, "domains");
    }

    void theCatchAllsKeyIsTranslated_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<Domains>("domains");
        QTest::newRow("built-in host") << QByteArray() << Domains{{"rest", "sip.kelvar.example"}};
        QTest::newRow("host of the file") << QByteArray("[sipphone]\ndomain0=x\n") << Domains{{"rest", "x"}};
    }

    void theCatchAllsKeyIsTranslated()
    {
        QFETCH(QByteArray, file);
        IN_A_CLIENT_WITH(file)
        CatchAllTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        Domains domains;
        CUrlInfo::getSipPhoneRegDomain(domains);
        QCoreApplication::removeTranslator(&translator);
        QTEST(domains, "domains");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CUrlInfoSipPhone, Guiless)
#include "tst_CUrlInfoSipPhone.moc"
