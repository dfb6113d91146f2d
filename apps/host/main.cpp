#include "CallProcess.h"
#include "ContactBook.h"
#include "HostCatalogue.h"
#include "HostSession.h"
#include "MainWindow.h"
#include "TourSteps.h"
#include "TourWatch.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <QTimer>

#include <cstdlib>

namespace {

// Robots of the call process answer four times as fast while the tour runs.
constexpr const char *tourSpeed = "4";

int runTour(QApplication &app, HostSession &session, MainWindow &window, const QString &strFolder,
            const QString &strTraceFile)
{
    app.setQuitOnLastWindowClosed(false);
    const CallProcess process(strTraceFile);
    TourWatch watch(session, strTraceFile);
    Tour tour(watch, tourSteps({session, window, watch, process}), strFolder);
    QObject::connect(&tour, &Tour::finished, &app, [](bool bOk) { QCoreApplication::exit(bOk ? 0 : 1); });
    tour.start();
    const int status = QApplication::exec();
    session.quit();
    process.kill();
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("KelvarIM demo: a client with the voice and video call plug-in"));
    options.addHelpOption();
    const QCommandLineOption tour(QStringLiteral("tour"),
                                  QStringLiteral("Runs the guided tour and writes pictures to this folder."),
                                  QStringLiteral("folder"));
    options.addOption(tour);
    options.process(app);

    QString folder;
    QString traceFile;
    if (options.isSet(tour)) {
        folder = QDir(options.value(tour)).absolutePath();
        traceFile = folder + QStringLiteral("/wire.txt");
        QDir().mkpath(folder);
        QFile::remove(traceFile);
        qputenv("VOIPSDK_TRACE", QFile::encodeName(traceFile));
        qputenv("VOIPSDK_SPEED", tourSpeed);
    }
    // Ring and resources are found relative to the working directory.
    QDir::setCurrent(QCoreApplication::applicationDirPath());

    HostCatalogue catalogue;
    QCoreApplication::installTranslator(&catalogue);
    const ContactBook book(HostSession::loginDomain());
    HostSession session(book);
    QString error;
    if (!session.start(QCoreApplication::applicationDirPath() + QStringLiteral("/libVoipManage.so"), &error)) {
        QTextStream(stderr) << error << '\n';
        return EXIT_FAILURE;
    }
    MainWindow window(session, book);
    window.show();
    if (options.isSet(tour)) {
        return runTour(app, session, window, folder, traceFile);
    }
    // After the window is up: the plug-in's start may take a second.
    QTimer::singleShot(0, &session, [&session] { session.setOnline(true); });
    return QApplication::exec();
}
