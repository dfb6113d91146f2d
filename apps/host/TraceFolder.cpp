#include "TraceFolder.h"

#include <QFile>

namespace {

constexpr const char *variable = "VOIPSDK_TRACE";

} // namespace

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
