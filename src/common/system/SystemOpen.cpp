#include "common/system/SystemOpen.h"

#include "common/CUrlInfo.h"
#include "common/system/LocalAddress.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHostInfo>
#include <QNetworkInterface>
#include <QProcess>
#include <QStringList>
#include <QUrl>

namespace {

void startCommand(const QString &strCommand)
{
    QStringList listWord = QProcess::splitCommand(strCommand);
    const QString strProgram = listWord.takeFirst();
    QProcess::startDetached(strProgram, listWord);
}

} // namespace

QString SystemOpen::m_strSOALoginInfo;

QString SystemOpen::getLocalIPAddress()
{
    // Asked for its effect alone: it wakes the resolver, and the interfaces give the answer.
    QHostInfo::fromName(QHostInfo::localHostName());
    return LocalAddress::firstFit(QNetworkInterface::allInterfaces());
}

void SystemOpen::sendMail(const QStringList &listRecipient)
{
    if (QDesktopServices::openUrl(QUrl(QLatin1String("mailto:") + listRecipient.join(QLatin1Char(';'))))) {
        return;
    }
    const QString strOffice = CUrlInfo::getSOAUrl(m_strSOALoginInfo);
    if (!strOffice.isEmpty()) {
        QDesktopServices::openUrl(QUrl(strOffice));
    }
}

bool SystemOpen::openLocalFile(QString strPath)
{
    const QFileInfo info(strPath);
    if (!QFile(strPath).open(QIODevice::ReadOnly)) {
        return false;
    }
    startCommand(QLatin1String("open \"") + info.absoluteFilePath() + QLatin1Char('"'));
    return true;
}

bool SystemOpen::openLocalDir(QString strPath)
{
    const QString strFolder = strPath.left(strPath.indexOf(QFileInfo(strPath).fileName()));
    if (strFolder.isEmpty() || !QDir(strFolder).exists()) {
        return false;
    }
    startCommand(QLatin1String("open ") + strFolder);
    return true;
}

int SystemOpen::openMacLocalFile(QString strPath)
{
    if (!QFile::exists(strPath)) {
        return 0;
    }
    return QDesktopServices::openUrl(QUrl(QLatin1String("file://") + strPath)) ? 2 : 1;
}
