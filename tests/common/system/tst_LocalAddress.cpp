#include "common/system/LocalAddress.h"

#include <QTest>

namespace {

using Flags = QNetworkInterface::InterfaceFlags;

const Flags cFit = QNetworkInterface::IsUp | QNetworkInterface::IsRunning | QNetworkInterface::CanBroadcast |
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
        const Interface next(cFit, {"192.0.2.9"});
        const auto row = [&next](const char *name, const Interface &first, const QString &address) {
            QTest::newRow(name) << Machine{first, next} << address;
        };
        const QStringList own{"192.0.2.1"};
        row("fit", Interface(cFit, own), "192.0.2.1");
        row("more flags than needed", Interface(cFit | QNetworkInterface::IsPointToPoint, own), "192.0.2.1");
        row("several addresses", Interface(cFit, {"192.0.2.1", "192.0.2.2"}), "192.0.2.1");
        row("IPv6 before IPv4", Interface(cFit, {"fd00::2", "192.0.2.1"}), "192.0.2.1");
        row("IPv6 alone", Interface(cFit, {"fd00::2", "fe80::1"}), "192.0.2.9");
        row("no address", Interface(cFit, {}), "192.0.2.9");
        row("not valid", Interface(cFit, own, false), "192.0.2.9");
        row("loopback", Interface(cFit | QNetworkInterface::IsLoopBack, own), "192.0.2.9");
        row("down", Interface(cFit & ~Flags(QNetworkInterface::IsUp), own), "192.0.2.9");
        row("not running", Interface(cFit & ~Flags(QNetworkInterface::IsRunning), own), "192.0.2.9");
        row("no broadcast", Interface(cFit & ~Flags(QNetworkInterface::CanBroadcast), own), "192.0.2.9");
        row("no multicast", Interface(cFit & ~Flags(QNetworkInterface::CanMulticast), own), "192.0.2.9");
        QTest::newRow("loopback and nothing else")
            << Machine{Interface(cFit | QNetworkInterface::IsLoopBack, {"127.0.0.1"})} << QString();
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
