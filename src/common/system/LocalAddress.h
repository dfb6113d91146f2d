#pragma once

// Which of a machine's network interfaces gives its own address. Apart from the machine's own interfaces, which no test
// can choose. Any thread; no state.

#include <QAbstractSocket>
#include <QHostAddress>
#include <QNetworkInterface>

namespace LocalAddress {

/// Whether the interface is valid, up, runs, can broadcast and multicast and is no loopback.
template <typename Interface>
bool isFit(const Interface &interface)
{
    const QNetworkInterface::InterfaceFlags wanted = QNetworkInterface::IsUp | QNetworkInterface::IsRunning |
                                                     QNetworkInterface::CanBroadcast | QNetworkInterface::CanMulticast;
    const QNetworkInterface::InterfaceFlags flags = interface.flags();
    return interface.isValid() && (flags & wanted) == wanted && !flags.testFlag(QNetworkInterface::IsLoopBack);
}

/// The first IPv4 address of the first fit interface that has one; empty without one. The interfaces come as
/// QNetworkInterface names their parts.
template <typename Interfaces>
QString firstFit(const Interfaces &interfaces)
{
    for (const auto &interface : interfaces) {
        if (!isFit(interface)) {
            continue;
        }
        const QList<QNetworkAddressEntry> listEntry = interface.addressEntries();
        for (const QNetworkAddressEntry &entry : listEntry) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol) {
                return entry.ip().toString();
            }
        }
    }
    return {};
}

} // namespace LocalAddress
