#include "FuzzApplication.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QtPlugin>

#include <cstdio>

Q_IMPORT_PLUGIN(FuzzMicrophone)

namespace {

void makeFolder(const QString &path, const char *variable)
{
    if (!QDir().mkpath(path) || !qputenv(variable, QFile::encodeName(path))) {
        qFatal("no folder for %s", variable);
    }
}

/// The plug-ins that the code under test needs, without those that would look for sound servers.
void linkPlugins(const QString &folder)
{
    const QString installed = QLibraryInfo::location(QLibraryInfo::PluginsPath);
    for (const char *kind : {"/platforms", "/imageformats", "/sqldrivers"}) {
        if (!QFile::link(installed + kind, folder + kind)) {
            qFatal("no plug-ins %s", kind);
        }
    }
    QCoreApplication::setLibraryPaths({folder});
}

} // namespace

FuzzApplication::FuzzApplication(const QString &folder) : m_box(folder + QLatin1String("/fuzz-XXXXXX"))
{
    makeFolder(m_box.filePath("tmp"), "TMPDIR");
    makeFolder(m_box.filePath("home"), "HOME");
    makeFolder(m_box.filePath("home/.config"), "XDG_CONFIG_HOME");
    makeFolder(m_box.filePath("home/.local/share"), "XDG_DATA_HOME");
    makeFolder(m_box.filePath("home/.cache"), "XDG_CACHE_HOME");
    makeFolder(m_box.filePath("plugins"), "QT_PLUGIN_PATH");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("PULSE_SERVER", "unix:/nonexistent");
    linkPlugins(m_box.filePath("plugins"));
    if (!QDir::setCurrent(m_box.filePath("tmp"))) {
        qFatal("no working directory");
    }
    silenceQt();
    static int s_count = 1;
    static char s_name[] = "fuzz";
    static char *s_arguments[] = {s_name, nullptr};
    m_application = std::make_unique<QApplication>(s_count, s_arguments);
    QCoreApplication::setLibraryPaths({m_box.filePath("plugins")});
}

FuzzApplication::~FuzzApplication()
{
    m_application.reset();
    qInstallMessageHandler(nullptr);
    QDir::setCurrent(QDir::rootPath());
}

void FuzzApplication::silenceQt()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg) {
            std::fprintf(stderr, "%s\n", qPrintable(text));
        }
    });
}
