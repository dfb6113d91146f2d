#include "GalleryPages.h"
#include "GalleryUser.h"
#include "GalleryWindow.h"
#include "PictureRun.h"
#include "client/EndSignals.h"
#include "client/HostCatalogue.h"
#include "client/HostLanguage.h"
#include "client/HostPictures.h"
#include "client/WindowFont.h"

#include "common/log/QtWarningFilter.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>

namespace {

// Exit code for bad arguments.
constexpr int cBadArguments = 2;
// Exit code of a gallery that was ended by a signal.
constexpr int cEndedFromOutside = 130;
constexpr int cFontPixels = 12;

struct Options
{
    QString pictureFolder;
    QString page;
    QString language;
};

/// Whether the kit has words in that language.
bool isLanguage(const QString &strLanguage)
{
    const auto &choices = HostLanguage::choices();
    return std::any_of(choices.begin(), choices.end(),
                       [&](const HostLanguage::Choice &choice) { return choice.setting == strLanguage; });
}

QString languageNames()
{
    QStringList names;
    for (const HostLanguage::Choice &choice : HostLanguage::choices()) {
        names << choice.setting;
    }
    return names.join(QStringLiteral(", "));
}

/// Ends the program itself for --help and for arguments that it does not know.
Options readOptions(const QCoreApplication &app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("KelvarIM gallery: the kit's widgets, dialogs, glyphs and pictures"));
    parser.addHelpOption();
    const QCommandLineOption picture(QStringLiteral("picture"),
                                     QStringLiteral("Writes the pages and dialogs as PNG files to this folder."),
                                     QStringLiteral("folder"));
    const QCommandLineOption page(QStringLiteral("page"),
                                  QStringLiteral("Only this page, or this page first: %1.").arg(GalleryPages::names()),
                                  QStringLiteral("name"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Language of the kit's words: %1.").arg(languageNames()),
                                      QStringLiteral("language"), QStringLiteral("zh_CN"));
    parser.addOptions({picture, page, language});
    parser.process(app);
    return {parser.isSet(picture) ? QDir(parser.value(picture)).absolutePath() : QString(), parser.value(page),
            parser.value(language)};
}

int run(const Options &options, const GalleryPage *page, const EndSignals &endSignals)
{
    if (options.pictureFolder.isNull()) {
        GalleryWindow window(page);
        window.show();
        // The pages make pictures of windows, for which events are dealt with.
        return endSignals.isEndRequested() ? cEndedFromOutside : QApplication::exec();
    }
    // A text cursor that does not blink is in every picture or in none.
    QApplication::setCursorFlashTime(0);
    QString error;
    if (!PictureRun::write(options.pictureFolder, page, &error)) {
        QTextStream(stderr) << error << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // The same on every desktop, so that pictures can be compared.
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication app(argc, argv);
    const QtWarningFilter filter;
    const Options options = readOptions(app);
    const GalleryPage *page = GalleryPages::find(options.page);
    if (page == nullptr && !options.page.isEmpty()) {
        QTextStream(stderr) << "no page " << options.page << "; there are " << GalleryPages::names() << '\n';
        return cBadArguments;
    }
    if (!isLanguage(options.language)) {
        QTextStream(stderr) << "no language " << options.language << "; there are " << languageNames() << '\n';
        return cBadArguments;
    }
    // Resources are found relative to the working directory.
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    QApplication::setWindowIcon(QIcon(HostPictures::windowIcon()));
    WindowFont::substituteMissing();
    QFont font(WindowFont::families().constFirst());
    font.setPixelSize(cFontPixels);
    QApplication::setFont(font);
    HostCatalogue catalogue;
    catalogue.read(HostCatalogue::folder(), options.language);
    QCoreApplication::installTranslator(&catalogue);
    // So that the folder of the user goes then, too.
    const EndSignals endSignals;
    QObject::connect(&endSignals, &EndSignals::endRequested, &app, [] { QCoreApplication::exit(cEndedFromOutside); });
    const GalleryUser user;
    return run(options, page, endSignals);
}
