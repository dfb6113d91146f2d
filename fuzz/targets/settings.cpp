#include "FuzzTargets.h"

#include "common/AccountMap.h"
#include "common/AppInfo.h"
#include "common/AppPaths.h"
#include "common/CSettingsManager.h"
#include "common/CUrlInfo.h"
#include "common/settings/ConfigFile.h"
#include "model/SystemSetData.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSettings>

#include <iterator>

namespace {

// Every getter of an address. An input asks some of them, the numbers in its first bytes.
#define URL_ASK_Plain
#define URL_ASK_Cached
#define URL_ASK_SignIn
#define URL_ASK_Arg QStringLiteral("%1 %2")
#define URL_GETTER(name, key, endpoint, path, form) [] { return CUrlInfo::name(URL_ASK_##form); },
constexpr QString (*cGetters[])() = {
#include "common/CUrlInfo.def"
};
constexpr int cAskedGetters = 8;

/// Writes `bytes` as the file `path` with its folder.
void writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    requirePromise(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the file can be written");
}

/// A name that no earlier input had, since Qt takes a file of equal size and time for the one that it knows.
QString freshName()
{
    static int s_number = 0;
    return QString::number(++s_number);
}

void readValues(const QByteArray &bytes)
{
    const QString path = QDir::current().absoluteFilePath(freshName() + QLatin1String(".ini"));
    writeFile(path, bytes);
    ConfigFile::getConfigValue(path, QLatin1String(SystemSetData::cCloseVoiceKey)).toString();
    AccountMap::getUIDByAccountNo(path, QStringLiteral("anna"));
    ConfigFile::changeConfigValue(path, QLatin1String(SystemSetData::cTransFilePathKey),
                                  QString::fromUtf8(bytes.left(40)));
    QFile::remove(path);
}

void translate(const QByteArray &bytes)
{
    const QString source = QDir::current().absoluteFilePath(freshName() + QLatin1String(".ini"));
    const QString target = source + QLatin1String(".new");
    writeFile(source, bytes);
    ConfigFile::translateIniToUtf8Code(source, target);
    QFile::remove(source);
    QFile::remove(target);
}

void readUser(const QByteArray &bytes)
{
    SystemSetData settings;
    settings.m_strMsgFilePath = QDir::currentPath();
    const QString name = freshName();
    const QString path = QDir::currentPath() + QLatin1Char('/') + name + QLatin1String("/newConfig.ini");
    writeFile(path, bytes);
    settings.initData(name);
    requirePromise(settings.m_strUserConfigPath == path, "the user's settings stand in the user's folder");
    requirePromise(settings.m_strSnapHide == QLatin1String("0") || settings.m_strSnapHide == QLatin1String("1"),
                   "this setting is 0 or 1");
    QDir(QFileInfo(path).path()).removeRecursively();
}

void readCommon(const QByteArray &bytes)
{
    const QString path = strAPP_INFO_FILE_PATH();
    writeFile(path, bytes);
    // The folder that the file names is made: none but one below the working directory may be.
    const QString folder = ConfigFile::getConfigValue(path, QLatin1String(SystemSetData::cMsgFilePathKey)).toString();
    if (folder.isEmpty()) {
        SystemSetData settings;
        settings.initCommonData();
    }
    AppInfo::getApplicationLanguage();
    QFile::remove(path);
}

void readAddresses(const QByteArray &bytes)
{
    const QString path = QCoreApplication::applicationDirPath() + QLatin1String("/allurl.ini");
    writeFile(path, bytes);
    QSettings *pSettings = CSettingsManager::instance()->getUrlSettings();
    pSettings->sync();
    CUrlInfo::getSOAUrl(QString::fromUtf8(bytes.left(20)));
    QMap<QString, QString> domains;
    CUrlInfo::getSipPhoneRegDomain(domains);
    requirePromise(!domains.isEmpty(), "there is always a host");
    constexpr auto count = int(std::size(cGetters));
    for (const char byte : bytes.left(cAskedGetters)) {
        cGetters[uchar(byte) % count]();
    }
    QFile::remove(path);
}

constexpr void (*cReaders[])(const QByteArray &bytes) = {readValues, translate, readUser, readCommon, readAddresses};

} // namespace

// The first byte says which of the readers gets the rest as a file.
void FuzzTargets::settings(const QByteArray &input)
{
    if (!input.isEmpty()) {
        cReaders[uchar(input.at(0)) % std::size(cReaders)](input.mid(1));
    }
}
