// File names that come from the network: names of head pictures and service icons, suffixes, account and colour of the
// watermark. A path may be told as it is made up; nothing is written, changed or removed outside of the folder that the
// function keeps.

#include "common/BuiltInPictures.h"
#include "common/PictureFun.h"
#include "common/pictures/FileIcons.h"
#include "common/pictures/HeadImages.h"
#include "common/pictures/ImagePath.h"
#include "common/pictures/WaterMark.h"
#include "fakes/GivenContext.h"
#include "fakes/PictureFiles.h"
#include "model/CServiceNumData.h"
#include "model/CommonData.h"
#include "model/LoginData.h"
#include "model/SysUIData.h"
#include "model/SystemSetData.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QPixmap>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <optional>

class tst_ForeignPaths : public QObject
{
    Q_OBJECT

private slots:
    /// A user's folder inside a folder with files that somebody might be after.
    void init()
    {
        m_pWorld = std::make_unique<QTemporaryDir>(QDir::current().absoluteFilePath(QStringLiteral("XXXXXX")));
        m_settings.m_strUserFolder = m_pWorld->filePath(QStringLiteral("files/me"));
        m_settings.m_strHeadImageFolder = m_settings.m_strUserFolder + QStringLiteral("/designHeadImage/");
        m_login.m_strUid = QStringLiteral("me");
        m_skin = SysUIData();
        m_context.setSystemSetData(&m_settings);
        m_context.setLoginData(&m_login);
        m_context.setSkinData(&m_skin);
        m_given.emplace(m_context);
        QVERIFY(QDir().mkpath(m_settings.m_strHeadImageFolder + "folder"));
        QVERIFY(QDir().mkpath(m_settings.m_strUserFolder + "/waterMark/me_folder"));
        const QStringList folders{QDir::currentPath(), m_pWorld->path(), m_pWorld->filePath(QStringLiteral("files")),
                                  m_settings.m_strUserFolder};
        for (const QString &folder : folders) {
            for (const char *name : {"victim", "victim.png", "victim.jpg", "victim.jpeg"}) {
                QFile file(folder + '/' + name);
                QVERIFY(file.open(QIODevice::WriteOnly) && file.write("whole") == 5);
            }
        }
        m_before = outside();
        QVERIFY(m_before.size() >= 16);
    }

    void cleanup()
    {
        const QMap<QString, QByteArray> after = outside();
        QCOMPARE(after.keys(), m_before.keys());
        QCOMPARE(after, m_before);
        m_given.reset();
        m_pWorld.reset();
    }

    void headPictureStaysInItsFolder_data() { addNames(); }

    void headPictureStaysInItsFolder()
    {
        QFETCH(QString, name);
        QPixmap picture(10, 10);
        picture.fill(Qt::red);
        for (const QString &jid : {name, name + QStringLiteral("@kelvar.im")}) {
            for (const char *suffix : {"png", "jpg", "jpeg"}) {
                HeadImages::getFormattedImage({}, jid, picture, QSize(5, 5), QString::fromLatin1(suffix));
            }
        }
    }

    void suffixOfAHeadPictureStaysInItsFolder_data() { addNames(); }

    void suffixOfAHeadPictureStaysInItsFolder()
    {
        QFETCH(QString, name);
        QPixmap picture(10, 10);
        picture.fill(Qt::red);
        HeadImages::getFormattedImage({}, QStringLiteral("ann@kelvar.im"), picture, QSize(5, 5), name);
        HeadImages::getFormattedImage({}, QStringLiteral("ann@kelvar.im"), picture, QSize(5, 5), "/" + name);
    }

    void photoNameIsTurnedIntoAPathOnly_data() { addNames(); }

    void photoNameIsTurnedIntoAPathOnly()
    {
        QFETCH(QString, name);
        for (const int kind : {0, 1, 2, 3}) {
            PictureFun::savePhotoToLocalFile(name, kind, {}, QStringLiteral("x"));
        }
        PictureFun::saveByteArrayToLocalFile(QByteArray("\x89PNG and more"), name);
        // The contract fixes how the path is put together.
        QVERIFY(PictureFun::savePhotoToLocalFile(name, 1, {}, QStringLiteral("x"))
                    .startsWith(m_settings.m_strHeadImageFolder + QStringLiteral("hf") + name));
    }

    void serviceIconIsTurnedIntoAPathOnly_data() { addNames(); }

    void serviceIconIsTurnedIntoAPathOnly()
    {
        QFETCH(QString, name);
        CServiceNumData service;
        service.setServiceIconName(name);
        // A name that stands among the system's own pictures, as ".." does, leads there.
        QVERIFY(service.m_strIconPath.startsWith(m_settings.m_strHeadImageFolder + name) ||
                service.m_strIconPath == strSYSTEM_AVATAR_PATH + name);
    }

    void iconOfAFileStaysInItsFolder_data() { addNames(); }

    void iconOfAFileStaysInItsFolder()
    {
        QFETCH(QString, name);
        for (const QString &file : {name, QStringLiteral("report.") + name}) {
            FileIcons::getFileIcon(file);
            FileIcons::getFileIconPath(file, 48);
            FileIcons::getFileImg(file, true, false);
            FileIcons::getFileImg(file, false, true);
        }
    }

    void waterMarkStaysInItsFolder_data() { addNames(); }

    void waterMarkStaysInItsFolder()
    {
        QFETCH(QString, name);
        QString user = name;
        QString id = name;
        QString path;
        m_login.m_strUid = QStringLiteral("folder/../") + name;
        WaterMark::generateWaterMark(user, id, path);
        m_login.m_strUid = QStringLiteral("me");
        m_skin.m_strWaterMarkColor = QStringLiteral("folder/../") + name;
        WaterMark::generateWaterMark(user, id, path);
    }

private:
    static void addNames()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("one folder up") << QStringLiteral("../victim");
        QTest::newRow("two folders up") << QStringLiteral("../../victim");
        QTest::newRow("with a suffix") << QStringLiteral("../../victim.png");
        QTest::newRow("through a folder") << QStringLiteral("folder/../../../victim");
        QTest::newRow("behind a dot") << QStringLiteral("x.png/../../../victim");
        QTest::newRow("dots in the suffix") << QStringLiteral("x./../../victim");
        QTest::newRow("two dots") << QStringLiteral("..");
        QTest::newRow("backslashes") << QStringLiteral("..\\..\\victim.png");
        QTest::newRow("absolute") << QDir::current().absoluteFilePath(QStringLiteral("victim.png"));
        QTest::newRow("url") << QStringLiteral("file:///tmp/victim.png");
        QTest::newRow("null character") << QStringLiteral("x") + QChar(0) + QStringLiteral("/../../victim.png");
        QTest::newRow("escaped") << QStringLiteral("%2e%2e%2fvictim.png");
    }

    /// Everything outside of the folders that the functions may write to: each file with its bytes, each folder.

    QMap<QString, QByteArray> outside() const
    {
        // The box of this test: working directory, home and temporary directory.
        const QString box = QDir::cleanPath(QDir::currentPath() + QStringLiteral("/.."));
        const QStringList own{m_settings.m_strHeadImageFolder,
                              m_settings.m_strUserFolder + QStringLiteral("/waterMark"),
                              QStandardPaths::writableLocation(QStandardPaths::DataLocation),
                              QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)};
        QMap<QString, QByteArray> found;
        QDirIterator walk(box, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString path = walk.next();
            const bool isOwn = std::any_of(own.begin(), own.end(), [&](const QString &folder) {
                return path.startsWith(QDir::cleanPath(folder));
            });
            QFile file(path);
            if (!isOwn && QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)) {
                found.insert(path, file.readAll());
            }
        }
        return found;
    }

    std::unique_ptr<QTemporaryDir> m_pWorld;
    QMap<QString, QByteArray> m_before;
    SystemSetData m_settings;
    LoginData m_login;
    SysUIData m_skin;
    CommonData m_context;
    std::optional<GivenContext> m_given;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ForeignPaths, Widgets)
#include "tst_ForeignPaths.moc"
