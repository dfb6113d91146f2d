#include "common/pictures/PictureFile.h"
#include "ui/HeadCache.h"

#include <QDateTime>
#include <QFile>
#include <QTest>

#include <sys/stat.h>

namespace {

int s_iDrawn = 0;

QPixmap drawTest(const QString &strPath, int iSide)
{
    ++s_iDrawn;
    // Not by the path: Qt keeps such a picture by its modification time alone.
    const QPixmap picture = readPictureFile(strPath);
    return picture.isNull() ? picture : picture.scaled(iSide, iSide);
}

void writePicture(const QString &strPath, const QColor &color, int iSide = 8)
{
    QPixmap picture(iSide, iSide);
    picture.fill(color);
    QVERIFY(picture.save(strPath));
}

void setModified(const QString &strPath, const QDateTime &time)
{
    QFile file(strPath);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

struct stat stateOf(const QString &strPath)
{
    struct stat state = {};
    stat(QFile::encodeName(strPath).constData(), &state);
    return state;
}

bool isSameTime(const timespec &one, const timespec &other)
{
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

} // namespace

class tst_HeadCache : public QObject
{
    Q_OBJECT

private:
    const QString m_strPath = QStringLiteral("head.bmp");

    static QColor middle(const QPixmap &picture)
    {
        return picture.toImage().pixelColor(picture.width() / 2, picture.height() / 2);
    }

private slots:
    void init() { s_iDrawn = 0; }
    void cleanup() { QFile::remove(m_strPath); }

    void pictureIsDrawnOnce()
    {
        writePicture(m_strPath, Qt::red);
        HeadCache cache(&drawTest);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(middle(cache.picture(m_strPath, 22, 1.0)), QColor(Qt::red));
        }
        QCOMPARE(s_iDrawn, 1);
    }

    void eachSizeIsDrawnByItself()
    {
        writePicture(m_strPath, Qt::red);
        HeadCache cache(&drawTest);
        QCOMPARE(cache.picture(m_strPath, 22, 1.0).size(), QSize(22, 22));
        QCOMPARE(cache.picture(m_strPath, 40, 1.0).size(), QSize(40, 40));
        const QPixmap dense = cache.picture(m_strPath, 22, 2.0);
        QCOMPARE(dense.size(), QSize(44, 44));
        QCOMPARE(dense.devicePixelRatioF(), 2.0);
        QCOMPARE(cache.picture(m_strPath, 22, 1.0).size(), QSize(22, 22));
        QCOMPARE(s_iDrawn, 3);
    }

    void fileOfAnotherSizeShowsAtOnce()
    {
        writePicture(m_strPath, Qt::red);
        HeadCache cache(&drawTest);
        cache.picture(m_strPath, 22, 1.0);
        writePicture(m_strPath, Qt::blue, 300);
        QCOMPARE(middle(cache.picture(m_strPath, 22, 1.0)), QColor(Qt::blue));
    }

    void fileOfTheSameSizeShowsByItsTime()
    {
        writePicture(m_strPath, Qt::red);
        const qint64 iSize = QFile(m_strPath).size();
        HeadCache cache(&drawTest);
        cache.picture(m_strPath, 22, 1.0);
        writePicture(m_strPath, Qt::blue);
        QCOMPARE(QFile(m_strPath).size(), iSize);
        setModified(m_strPath, QDateTime::currentDateTimeUtc().addSecs(5));
        QCOMPARE(middle(cache.picture(m_strPath, 22, 1.0)), QColor(Qt::blue));
    }

    // As a copy that keeps the file's times leaves it.
    void fileOfTheSameSizeAndTimeShowsByItsChange()
    {
        const QDateTime time(QDate(2024, 5, 3), QTime(9, 8, 7), Qt::UTC);
        writePicture(m_strPath, Qt::red);
        setModified(m_strPath, time);
        const struct stat before = stateOf(m_strPath);
        HeadCache cache(&drawTest);
        cache.picture(m_strPath, 22, 1.0);
        // The file system's clock ticks every few milliseconds.
        do {
            writePicture(m_strPath, Qt::blue);
            setModified(m_strPath, time);
        } while (isSameTime(stateOf(m_strPath).st_ctim, before.st_ctim));
        QVERIFY(isSameTime(stateOf(m_strPath).st_mtim, before.st_mtim));
        QCOMPARE(stateOf(m_strPath).st_size, before.st_size);
        QCOMPARE(middle(cache.picture(m_strPath, 22, 1.0)), QColor(Qt::blue));
    }

    void fileThatComesAndGoesIsFollowed()
    {
        HeadCache cache(&drawTest);
        QVERIFY(cache.picture(m_strPath, 22, 1.0).isNull());
        writePicture(m_strPath, Qt::red);
        QVERIFY(!cache.picture(m_strPath, 22, 1.0).isNull());
        QVERIFY(QFile::remove(m_strPath));
        QVERIFY(cache.picture(m_strPath, 22, 1.0).isNull());
        QCOMPARE(s_iDrawn, 1);
    }

    void fileThatHoldsNoPictureIsReadOnce()
    {
        QFile file(m_strPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        file.close();
        HeadCache cache(&drawTest);
        QVERIFY(cache.picture(m_strPath, 22, 1.0).isNull());
        QVERIFY(cache.picture(m_strPath, 22, 1.0).isNull());
        QCOMPARE(s_iDrawn, 1);
    }

    void emptyPathAndFolderHaveNoPicture()
    {
        HeadCache cache(&drawTest);
        QVERIFY(cache.picture(QString(), 22, 1.0).isNull());
        QVERIFY(cache.picture(QStringLiteral("."), 22, 1.0).isNull());
        QCOMPARE(s_iDrawn, 0);
    }

    void pictureOfTheProgramIsDrawnOnce()
    {
        // Qt's own widgets carry it.
        const QString strPath = QStringLiteral(":/qt-project.org/styles/commonstyle/images/filelink-32.png");
        HeadCache cache(&drawTest);
        QCOMPARE(cache.picture(strPath, 22, 1.0).size(), QSize(22, 22));
        QCOMPARE(cache.picture(strPath, 22, 1.0).size(), QSize(22, 22));
        QVERIFY(cache.picture(QStringLiteral(":/no/such/picture.png"), 22, 1.0).isNull());
        QCOMPARE(s_iDrawn, 2);
    }

    void cacheOfManyPicturesStartsAnew()
    {
        writePicture(m_strPath, Qt::red);
        HeadCache cache(&drawTest);
        // Pictures of four million bytes: the fifth has no room beside the others.
        for (int iSide = 1000; iSide < 1005; ++iSide) {
            cache.picture(m_strPath, iSide, 1.0);
        }
        QCOMPARE(s_iDrawn, 5);
        cache.picture(m_strPath, 1004, 1.0);
        QCOMPARE(s_iDrawn, 5);
        cache.picture(m_strPath, 1000, 1.0);
        QCOMPARE(s_iDrawn, 6);
    }

    void cacheOfManyHeadsWithoutAPictureStartsAnew()
    {
        HeadCache cache(&drawTest);
        for (int iHead = 0; iHead < 4096; ++iHead) {
            cache.picture(QStringLiteral(":/no/%1").arg(iHead), 22, 1.0);
        }
        cache.picture(QStringLiteral(":/no/0"), 22, 1.0);
        QCOMPARE(s_iDrawn, 4096);
        cache.picture(QStringLiteral(":/no/4096"), 22, 1.0);
        cache.picture(QStringLiteral(":/no/0"), 22, 1.0);
        QCOMPARE(s_iDrawn, 4098);
    }

    void pictureThatIsDrawnAgainTakesThePlaceOfTheFirst()
    {
        const QString strOther = QStringLiteral(":/no/such/picture.png");
        HeadCache cache(&drawTest);
        cache.picture(strOther, 22, 1.0);
        // Five times four million bytes, of which one is kept.
        for (int iRound = 0; iRound < 5; ++iRound) {
            writePicture(m_strPath, Qt::red, 8 + iRound);
            cache.picture(m_strPath, 1000, 1.0);
        }
        QCOMPARE(s_iDrawn, 6);
        cache.picture(strOther, 22, 1.0);
        QCOMPARE(s_iDrawn, 6);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HeadCache, Widgets)

#include "tst_HeadCache.moc"
