// The gallery program's pictures beside those in the documentation.

#include "ComparedPicture.h"
#include "PictureRun.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString cPrefix = QStringLiteral("gallery-");

/// The gallery, run to its end. Its pictures do not depend on the screen, but for the watermark, so it gets none.
struct GalleryRun
{
    explicit GalleryRun(const QStringList &arguments, const QString &strScale = QStringLiteral("1"))
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), strScale);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VOIP_GALLERY), arguments);
        process.waitForFinished(-1);
        exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        error = QString::fromLocal8Bit(process.readAllStandardError());
        output = QString::fromLocal8Bit(process.readAllStandardOutput());
    }

    int exitCode = 0;
    QString error;
    QString output;
};

QStringList picturesIn(const QString &strFolder, const QString &strPattern)
{
    return QDir(strFolder).entryList({strPattern}, QDir::Files, QDir::Name);
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

} // namespace

class tst_GalleryPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const GalleryRun run({"--picture", m_folder.path()});
        QVERIFY2(run.exitCode == 0, qPrintable(run.error));
        // Of Qt's not a line, and what the common code says of the pictures that it scales.
        QVERIFY2(!run.error.contains(QStringLiteral("stylesheet")), qPrintable(run.error));
        QCOMPARE(run.output, QString());
    }

    void runWritesEveryPageAndEveryDialog()
    {
        QCOMPARE(PictureRun::files().size(), 4 + 14);
        QCOMPARE(picturesIn(m_folder.path(), "*"), sorted(PictureRun::files()));
    }

    void pictureLooksAsCommitted_data()
    {
        QTest::addColumn<QString>("name");

        for (const QString &file : PictureRun::files()) {
            const QString name = QFileInfo(file).completeBaseName();
            QTest::newRow(qPrintable(name)) << name;
        }
    }

    void pictureLooksAsCommitted()
    {
        QFETCH(QString, name);
        const QImage picture(m_folder.filePath(name + QStringLiteral(".png")));
        QVERIFY(!picture.isNull());
        const QString complaint = ComparedPicture::complaint(cPrefix + name, picture);
        QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    }

    void everyCommittedPictureIsStillMade()
    {
        QStringList expected;
        for (const QString &file : PictureRun::files()) {
            expected.append(cPrefix + file);
        }
        QCOMPARE(picturesIn(VOIP_PICTURES, cPrefix + QLatin1Char('*')), sorted(expected));
    }

    void oneGlyphIsADifference()
    {
        const QImage glyphs = ComparedPicture::committed(cPrefix + QStringLiteral("glyphs"));
        QVERIFY(!glyphs.isNull());
        QCOMPARE(ComparedPicture::differingPixels(glyphs, glyphs), 0);
        // The first glyph of 48 pixels takes the place of the one below it.
        const QRect first(310, 76, 60, 60);
        QImage other = glyphs;
        for (int y = 0; y < first.height(); ++y) {
            for (int x = first.left(); x < first.right(); ++x) {
                other.setPixel(x, first.bottom() + y, glyphs.pixel(x, first.top() + y));
            }
        }
        QVERIFY(ComparedPicture::differingPixels(glyphs, other) > 100);
    }

    void picturesOfADenseScreenHaveTwiceTheSize()
    {
        const QTemporaryDir dense;
        const GalleryRun run({"--picture", dense.path()}, QStringLiteral("2"));
        QVERIFY2(run.exitCode == 0, qPrintable(run.error));
        for (const QString &file : PictureRun::files()) {
            const QSize size = QImage(m_folder.filePath(file)).size();
            QVERIFY(!size.isEmpty());
            // Lines of text are rounded to whole pixels one by one.
            const QSize difference = QImage(dense.filePath(file)).size() - 2 * size;
            QVERIFY2(qAbs(difference.width()) <= size.width() / 20 && qAbs(difference.height()) <= size.height() / 20,
                     qPrintable(file));
        }
    }

    void onePageComesAlone()
    {
        const QTemporaryDir folder;
        const GalleryRun run({"--picture", folder.filePath("a/b"), "--page", "GLYPHS"});
        QVERIFY2(run.exitCode == 0, qPrintable(run.error));
        QCOMPARE(picturesIn(folder.filePath("a/b"), "*"), QStringList{"glyphs.png"});
    }

    void unknownPageIsRefused()
    {
        const QTemporaryDir folder;
        const GalleryRun run({"--picture", folder.path(), "--page", "menus"});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.error.contains(QStringLiteral("Widgets, Glyphs, Dialogs, Pictures")), qPrintable(run.error));
        QCOMPARE(picturesIn(folder.path(), "*"), QStringList());
    }

    void unknownLanguageIsRefused()
    {
        const QTemporaryDir folder;
        const GalleryRun run({"--picture", folder.path(), "--language", "fr"});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.error.contains(QStringLiteral("no language fr; there are zh_CN, zh_TW, en")),
                 qPrintable(run.error));
        QCOMPARE(picturesIn(folder.path(), "*"), QStringList());
    }

    void folderThatCannotBeMadeIsTold()
    {
        const GalleryRun run({"--picture", QStringLiteral(VOIP_GALLERY "/pictures")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.error.contains(QStringLiteral("cannot make the folder")), qPrintable(run.error));
    }

private:
    QTemporaryDir m_folder;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_GalleryPictures, Widgets)
#include "tst_GalleryPictures.moc"
