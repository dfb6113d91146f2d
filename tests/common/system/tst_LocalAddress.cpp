#include "common/system/LocalAddress.h"

#include <QTest>

namespace {

using Flags = QNetworkInterface::InterfaceFlags;

const Flags FIT = QNetworkInterface::IsUp | QNetworkInterface::IsRunning | QNetworkInterface::CanBroadcast |
                  QNetworkInterface::CanMulticast;

// An interface as the system would name it.
class Interface
{
public:
    Interface(Flags flags, const QStringList &addresses, bool valid = true) : m_flags(flags), m_valid(valid)
    {
        for (const QString &address : addresses) {
            QNetworkAddressEntry entry;
            entry.setIp(QHostAddress(address));
            m_entries.append(entry);
        }
    }

    bool isValid() const { return m_valid; }
    Flags flags() const { return m_flags; }
    QList<QNetworkAddressEntry> addressEntries() const { return m_entries; }

private:
    Flags m_flags;
    bool m_valid;
    QList<QNetworkAddressEntry> m_entries;
};

using Machine = QVector<Interface>;

} // namespace

Q_DECLARE_METATYPE(Machine)

class tst_LocalAddress : public QObject
{
    Q_OBJECT

private slots:
    void theFirstAddressOfTheFirstFitInterfaceCounts_data()
    {
        QTest::addColumn<Machine>("machine");
        QTest::addColumn<QString>("address");
        const Interface next(FIT, {"192.0.2.9"});
        const auto row = [&next](const char *name, const Interface &first, const QString &address) {
            QTest::newRow(name) << Machine{first, next} << address;
        };
        const QStringList own{"192.0.2.1"};
        row("fit", Interface(FIT, own), "192.0.2.1");
        row("more flags than needed", Interface(FIT | QNetworkInterface::IsPointToPoint, own), "192.0.2.1");
        row("several addresses", Interface(FIT, {"192.0.2.1", "192.0.2.2"}), "192.0.2.1");
        row("IPv6 before IPv4", Interface(FIT, {"fd00::2", "192.0.2.1"}), "192.0.2.1");
        row("IPv6 alone", Interface(FIT, {"fd00::2", "fe80::1"}), "192.0.2.9");
        row("no address", Interface(FIT, {}), "192.0.2.9");
        row("not valid", Interface(FIT, own, false), "192.0.2.9");
        row("loopback", Interface(FIT | QNetworkInterface::IsLoopBack, own), "192.0.2.9");
        row("down", Interface(FIT & ~Flags(QNetworkInterface::IsUp), own), "192.0.2.9");
        row("not running", Interface(FIT & ~Flags(QNetworkInterface::IsRunning), own), "192.0.2.9");
        row("no broadcast", Interface(FIT & ~Flags(QNetworkInterface::CanBroadcast), own), "192.0.2.9");
        row("no multicast", Interface(FIT & ~Flags(QNetworkInterface::CanMulticast), own), "192.0.2.9");
        QTest::newRow("loopback and nothing else")
            << Machine{Interface(FIT | QNetworkInterface::IsLoopBack, {"127.0.0.1"})} << QString();
        QTest::newRow("no interface") << Machine() << QString();
    }

    void theFirstAddressOfTheFirstFitInterfaceCounts()
    {
        QFETCH(Machine, machine);
        QTEST(LocalAddress::firstFit(machine), "address");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LocalAddress, Guiless)
#include "tst_LocalAddress.moc"
