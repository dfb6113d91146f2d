#pragma once

// The icon font and the default head where the program finds them: below the working directory, which is the test's
// own.

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Copies the files from the folder of the resources. True when all are there.
inline bool placeShippedFiles()
{
    const QString strResources = QStringLiteral(VOIP_RESOURCES "/");
    bool bPlaced = true;
    for (const char *pFile : {"BaseConfig/kelvarimiconfont.ttf", "images/FriendDetail/defaultHead.png"}) {
        const QString strFile = QStringLiteral("Resources/") + QLatin1String(pFile);
        bPlaced = bPlaced && QDir().mkpath(QFileInfo(strFile).path()) &&
                  QFile::copy(strResources + QLatin1String(pFile), strFile);
    }
    return bPlaced;
}
