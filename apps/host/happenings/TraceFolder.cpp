#include "happenings/TraceFolder.h"

#include <QFile>

TraceFolder::TraceFolder()
{
    if (qEnvironmentVariableIsEmpty(cVariable) && m_folder.isValid()) {
        qputenv(cVariable, QFile::encodeName(m_folder.filePath(QStringLiteral("wire.txt"))));
    }
}

QString TraceFolder::file()
{
    const QString file = QFile::decodeName(qgetenv(cVariable));
    // Standard error cannot be followed.
    return file == QLatin1String("-") ? QString() : file;
}
