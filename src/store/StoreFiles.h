#pragma once

// The store's files in a user's folder. Pure functions; any thread.

#include "model/StoreFileName.h"

#include <QFileInfo>
#include <QString>

namespace StoreFiles {

/// The absolute path of the store in `folder`.
inline QString current(const QString &folder)
{
    return QFileInfo(folder + QLatin1Char('/') + QLatin1String(cStoreFileName)).absoluteFilePath();
}

/// The absolute path of the file that older clients kept in `folder`. Such a file is never opened here.
inline QString older(const QString &folder)
{
    return QFileInfo(folder + QStringLiteral("/data.db")).absoluteFilePath();
}

} // namespace StoreFiles
