#include "common/AppPaths.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

QString strSYSTEM_DOCUMENTS_LOCATION()
{
    const QString strWritable = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QString strPath = strWritable;
    if (strPath.isEmpty()) {
        // Has a value on the other desktop platform only; the code is common to both.
        const QSettings folders(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\"
                                               "Explorer\\User Shell Folders"),
                                QSettings::NativeFormat);
        strPath = folders.value(QStringLiteral("Personal")).toString();
    }
    if (strPath.isEmpty()) {
        strPath = QFileInfo(strWritable).absoluteFilePath();
    }
    strPath.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // Deliberately one pass, "///" becomes "//": the client's other modules find the same folders by this rule.
    strPath.replace(QLatin1String("//"), QLatin1String("/"));
    return strPath;
}

QString strAPP_DOCUMENT_IM_PATH()
{
    return strSYSTEM_DOCUMENTS_LOCATION() + QStringLiteral("/KelvarIm");
}

QString strAPP_DOCUMENT_IM_FILES_PATH()
{
    return strSYSTEM_DOCUMENTS_LOCATION() + QStringLiteral("/KelvarImFiles");
}

QString strAPP_VERSION_FILE_PATH()
{
    return strAPP_DOCUMENT_IM_PATH() + QStringLiteral("/Version.ini");
}

QString strAPP_INFO_FILE_PATH()
{
    return strAPP_DOCUMENT_IM_PATH() + QStringLiteral("/newMacIMInfo.ini");
}
