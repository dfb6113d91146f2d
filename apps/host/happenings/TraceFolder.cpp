#include "happenings/TraceFolder.h"

#include <QFile>

TraceFolder::TraceFolder()
{
    if (qEnvironmentVariableIsEmpty(variable) && m_folder.isValid()) {
        qputenv(variable, QFile::encodeName(m_folder.filePath(QStringLiteral("wire.txt"))));
    }
}

QString TraceFolder::file()
{
    const QString file = QFile::decodeName(qgetenv(variable));
    // Standard error cannot be followed.
    return file == QLatin1String("-") ? QString() : file;
}
