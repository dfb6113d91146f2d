#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "client/EndSignals.h"
#include "client/HostLanguage.h"
#include "client/HostPictures.h"
#include "client/PrivateTemp.h"
#include "client/SingleInstance.h"
#include "client/WindowFont.h"
#include "happenings/DebugChannel.h"
#include "panes/MainWindow.h"
#include "session/HostSession.h"
#include "tour/TourHand.h"
#include "tour/TourPeople.h"
#include "tour/TourSteps.h"
#include "tour/TourWatch.h"
#include "traffic/TraceFolder.h"

#include "common/log/QtWarningFilter.h"
#include "robots/StandIn.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <QTimer>

#include <cstdlib>
#include <memory>
#include <sys/stat.h>

namespace {

// Robots of the call process do all twice as fast while the tour runs. What the tour does to a call in between must be
// done before they go on, on a busy machine too.
constexpr const char *cTourSpeed = "2";
// Leaves room for the call window beside the client's.
constexpr QPoint cTourCorner(20, 20);
// Exit code for bad arguments.
constexpr int cBadArguments = 2;
// Exit code of a client that was ended by a signal.
constexpr int cEndedFromOutside = 130;
// Log, store and settings tell who calls whom, the log also what this client signs in with: nobody else reads them.
constexpr mode_t cOwnerOnly = 077;

struct Options
{
    QString tourFolder; ///< null: no tour
    QString user;
    bool isUserNamed = false;
    ContactBook::World world = ContactBook::World::Robots;
    WindowPlace::Side side = WindowPlace::Side::Whole;

    /// A text file of the tour's; where several clients go through one, of this client's.
    QString tourFile(const char *strName) const
    {
        const QString of = world == ContactBook::World::People ? QLatin1Char('-') + user : QString();
        return QStringLiteral("%1/%2%3.txt").arg(tourFolder, QLatin1String(strName), of);
    }
};

int complain(int iExitCode, const QString &strWords)
{
    QTextStream(stderr) << strWords << '\n';
    return iExitCode;
}

/// Ends the program itself for what is no side.
WindowPlace::Side sideOf(const QString &strHalf, bool bNamed)
{
    const bool left = strHalf == QLatin1String("left");
    if (bNamed && !left && strHalf != QLatin1String("right")) {
        std::exit(complain(cBadArguments, QStringLiteral("--side is left or right, not %1").arg(strHalf)));
    }
    return !bNamed ? WindowPlace::Side::Whole : left ? WindowPlace::Side::Left : WindowPlace::Side::Right;
}

/// Ends the program itself for --help and for bad arguments.
Options readOptions(const QCoreApplication &app)
{
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("KelvarIM demo: a client with the voice and video call plug-in"));
    options.addHelpOption();
    const QCommandLineOption tour(QStringLiteral("tour"),
                                  QStringLiteral("Runs the guided tour; pictures and traces go to this folder."),
                                  QStringLiteral("folder"));
    const QCommandLineOption user(QStringLiteral("user"),
                                  QStringLiteral("Signs in as this contact, with a temporary folder and a call process "
                                                 "of its own."),
                                  QStringLiteral("ID"), QString::fromLatin1(ContactBook::cOwnId));
    const QCommandLineOption real(QStringLiteral("real"), QStringLiteral("The contacts are people, whom a call process "
                                                                         "for real calls reaches, and an echo."));
    const QCommandLineOption side(QStringLiteral("side"),
                                  QStringLiteral("Keeps to this half of the screen, left or right, beside another "
                                                 "client."),
                                  QStringLiteral("half"));
    options.addOptions({tour, user, real, side});
    options.process(app);
    Options read;
    read.tourFolder = options.isSet(tour) ? QDir(options.value(tour)).absolutePath() : QString();
    read.user = options.value(user);
    read.isUserNamed = options.isSet(user);
    read.world = options.isSet(real) ? ContactBook::World::People : ContactBook::World::Robots;
    read.side = sideOf(options.value(side), options.isSet(side));
    if (!ContactBook::users().contains(read.user)) {
        std::exit(complain(cBadArguments, QStringLiteral("no contact %1; there are %2")
                                              .arg(read.user, ContactBook::users().join(QStringLiteral(", ")))));
    }
    if (options.isSet(tour) && options.isSet(user) != options.isSet(real)) {
        std::exit(complain(cBadArguments, QStringLiteral("the tour chooses its user itself, but for that of real "
                                                         "calls, which has several clients")));
    }
    return read;
}

/// Whether this client goes on: it is the first one of its user. If not, the exit code is set.
bool isFirst(SingleInstance &instance, bool bTour, int *iExitCode)
{
    const SingleInstance::Outcome outcome = instance.claim(!bTour);
    if (outcome == SingleInstance::Second) {
        *iExitCode = complain(EXIT_SUCCESS, QStringLiteral("This user's client runs already, as process %1; its window "
                                                           "has come to the front")
                                                .arg(instance.other()));
    } else if (outcome == SingleInstance::Silent) {
        *iExitCode = complain(
            EXIT_FAILURE,
            QStringLiteral("This user's client runs already, as process %1; end it first").arg(instance.other()));
    }
    return outcome == SingleInstance::First;
}

/// Loads the words of the user's language; for the tour, which knows the windows by their English words, those.
void speak(HostLanguage &language, bool bTour)
{
    if (!language.use(bTour ? QStringLiteral("en") : HostSettings::language())) {
        QTextStream(stderr) << "No translations in " << HostCatalogue::folder() << '\n';
    }
}

/// Makes the folder and tells the call process, by the environment that it inherits, how the tour wants it.
QString prepareTour(const Options &options)
{
    QString traceFile = options.tourFile("wire");
    QDir().mkpath(options.tourFolder);
    QFile::remove(traceFile);
    qputenv(TraceFolder::cVariable, QFile::encodeName(traceFile));
    qputenv(StandIn::cSpeedVariable, cTourSpeed);
    return traceFile;
}

int runTour(HostSession &session, MainWindow &window, SingleInstance &instance, const Options &options,
            const QString &strTraceFile)
{
    QApplication::setQuitOnLastWindowClosed(false);
    TourHand hand;
    if (!hand.isReady()) {
        QTextStream(stderr) << "The tour needs an X server whose pointer it can move\n";
        return EXIT_FAILURE;
    }
    hand.rest();
    if (options.side == WindowPlace::Side::Whole) {
        window.move(cTourCorner);
    }
    window.show();
    const CallProcess process(strTraceFile);
    TourWatch watch(session, strTraceFile);
    const TourStage stage{session, window, watch, hand, process, instance};
    Tour tour(watch, hand,
              options.world == ContactBook::World::People ? TourPeople::steps(stage, options.user, options.tourFolder)
                                                          : tourSteps(stage),
              options.tourFolder);
    QObject::connect(&tour, &Tour::finished, qApp, [](bool bOk) { QCoreApplication::exit(bOk ? 0 : 1); });
    tour.start();
    const int status = QApplication::exec();
    session.quit();
    // A tour that was cut short must not leave the detached call process behind.
    process.kill();
    return status;
}

int runByHand(HostSession &session, MainWindow &window)
{
    window.show();
    // After the window is up: the plug-in's start may take a second. It starts the call process, which has to find the
    // devices in its environment.
    QTimer::singleShot(0, &session, [&session] { session.sound().start([&session] { session.setOnline(true); }); });
    const int status = QApplication::exec();
    // Where a signal has ended it, the window has not been closed.
    window.rememberPlace();
    session.quit();
    return status;
}

/// The client from signing in on. The tour's trace file is empty without a tour.
int runClient(const Options &options, SingleInstance &instance, HostLanguage &language, const QString &strTraceFile)
{
    ContactBook book(HostSession::loginDomain(), options.user, options.world);
    HostSession session(book);
    QString error;
    if (!session.start(QCoreApplication::applicationDirPath() + QStringLiteral("/libVoipManage.so"), &error)) {
        return complain(EXIT_FAILURE, error);
    }
    QObject::connect(&session.settings(), &HostSettings::languageChanged, &language, &HostLanguage::use);
    MainWindow window(session, book, options.side);
    QObject::connect(&instance, &SingleInstance::frontWanted, &window, &MainWindow::comeToFront);
    return options.tourFolder.isNull() ? runByHand(session, window)
                                       : runTour(session, window, instance, options, strTraceFile);
}

} // namespace

int main(int argc, char **argv)
{
    ::umask(cOwnerOnly);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication app(argc, argv);
    const QtWarningFilter filter;
    const Options options = readOptions(app);
    const QString &folder = options.tourFolder;
    QString error;
    if (!PrivateTemp::use(options.user, options.isUserNamed, &error)) {
        return complain(EXIT_FAILURE, error);
    }
    SingleInstance instance(options.user);
    int exitCode = 0;
    if (!isFirst(instance, !folder.isNull(), &exitCode)) {
        return exitCode;
    }
    QString traceFile;
    std::unique_ptr<DebugChannel> debug;
    if (!folder.isNull()) {
        traceFile = prepareTour(options);
        debug = std::make_unique<DebugChannel>(options.tourFile("debug"));
    }
    const TraceFolder traces;
    // Ring and resources are found relative to the working directory.
    QDir::setCurrent(QCoreApplication::applicationDirPath());

    const EndSignals endSignals;
    QObject::connect(&endSignals, &EndSignals::endRequested, &app, [] { QCoreApplication::exit(cEndedFromOutside); });

    QApplication::setWindowIcon(QIcon(HostPictures::windowIcon()));
    WindowFont::substituteMissing();
    HostLanguage language(HostCatalogue::folder());
    speak(language, !folder.isNull());
    return runClient(options, instance, language, traceFile);
}
