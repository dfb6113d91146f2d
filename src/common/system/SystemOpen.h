#pragma once

// What the client hands to the system: files and folders to open, mails to write; and the machine's own address. Main
// thread.

#include <QString>

class QStringList;

class SystemOpen
{
public:
    /// The first IPv4 address of the first interface that is up, runs, can broadcast and multicast and is no loopback;
    /// empty without one.
    static QString getLocalIPAddress();

    /// Opens the system's mail program with a letter to the recipients. Where there is none, opens the web office
    /// system with the login parameter, provided that it has an address.
    static void sendMail(const QStringList &listRecipient);

    /// Starts the command "open" with the file. False for a file that cannot be read.
    static bool openLocalFile(QString strPath);

    /// Starts the command "open" with the folder of the path, its part before the first place of the file name. False
    /// when that folder does not exist. The folder is not quoted, deliberately: one with a blank in its name is taken
    /// apart by the command.
    static bool openLocalDir(QString strPath);

    /// Opens a file by the system's desktop: 0 when there is no such file, 1 when that fails, 2 when it succeeds.
    static int openMacLocalFile(QString strPath);

    /// The parameter of the web office system's address, as the login left it.
    static QString getSOALoginInfo() { return m_strSOALoginInfo; }

    /// Sets that parameter.
    static void setSOALoginInfo(const QString &strInfo) { m_strSOALoginInfo = strInfo; }

    /// The parameter itself; empty until it is set.
    static QString m_strSOALoginInfo;
};
