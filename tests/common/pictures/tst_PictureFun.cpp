#include "common/AppPaths.h"
#include "common/PictureFun.h"
#include "common/pictures/PictureFolders.h"
#include "fakes/BuiltInAvatar.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/SystemSetData.h"

#include <QtTest>

#include <optional>

namespace {

const QString cDefaultHead = QStringLiteral("Resources/images/FriendDetail/defaultHead.png");

} // namespace

class tst_PictureFun : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_settings = SystemSetData();
        m_settings.m_strUserName = QStringLiteral("me");
        m_settings.m_strUserFolder = QDir::current().absoluteFilePath(QStringLiteral("data/me"));
        m_context.setSystemSetData(&m_settings);
        m_given.emplace(m_context);
        QVERIFY(QDir().mkpath(m_settings.m_strUserFolder));
    }
    void cleanup() { m_given.reset(); }

    void firstBytesTellTheKind_data()
    {
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<int>("kind");
        QTest::newRow("bitmap of that size") << QByteArray("424DE652") << 1;
        QTest::newRow("bitmap of another size") << QByteArray("424D3600") << 0;
        QTest::newRow("jpeg with marker E0") << QByteArray("FFD8FFE0") << 2;
        QTest::newRow("jpeg with marker E1") << QByteArray("FFD8FFE1") << 0;
        QTest::newRow("gif") << QByteArray("47494638") << 3;
        QTest::newRow("png") << QByteArray("89504E47") << 4;
        QTest::newRow("longer") << QByteArray("89504E470D0A1A0A00") << 4;
        QTest::newRow("three bytes of a png") << QByteArray("89504E") << 0;
        QTest::newRow("nothing") << QByteArray() << 0;
        QTest::newRow("not at the start") << QByteArray("0089504E47") << 0;
        QTest::newRow("text") << QByteArray("74657874") << 0;
    }
    void firstBytesTellTheKind()
    {
        QFETCH(QByteArray, hex);
        QTEST(PictureFun::getFileType(QByteArray::fromHex(hex)), "kind");
    }

    void kindHasItsSuffix_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("below") << -1 << "";
        QTest::newRow("unknown") << 0 << "";
        QTest::newRow("bmp") << 1 << "bmp";
        QTest::newRow("jpg") << 2 << "jpg";
        QTest::newRow("gif") << 3 << "gif";
        QTest::newRow("png") << 4 << "png";
        QTest::newRow("jpeg") << 5 << "jpeg";
        QTest::newRow("beyond") << 6 << "";
    }
    void kindHasItsSuffix()
    {
        QFETCH(int, kind);
        QTEST(PictureFun::getSuffixOfType(kind), "suffix");
    }

    void savingAPictureWritesNothing_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("result");
        const QByteArray png = QByteArray::fromHex("89504E470D0A1A0A");
        QTest::newRow("known") << png << "head"
                               << "";
        QTest::newRow("four bytes") << png.left(4) << "head"
                                    << "";
        QTest::newRow("three bytes") << png.left(3) << "head" << cDefaultHead;
        QTest::newRow("no bytes") << QByteArray() << "head" << cDefaultHead;
        QTest::newRow("no name") << png << "" << cDefaultHead;
        QTest::newRow("unknown") << QByteArray("text") << "head" << cDefaultHead;
    }
    void savingAPictureWritesNothing()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, name);
        QTEST(PictureFun::saveByteArrayToLocalFile(data, name), "result");
        QVERIFY(QDir(strAPP_DOCUMENT_IM_FILES_PATH()).isEmpty());
    }

    void savingAPictureMakesTheFolder()
    {
        QDir(strAPP_DOCUMENT_IM_FILES_PATH()).removeRecursively();
        PictureFun::saveByteArrayToLocalFile("abc", QStringLiteral("head"));
        QVERIFY(!QFileInfo::exists(strAPP_DOCUMENT_IM_FILES_PATH()));
        PictureFun::saveByteArrayToLocalFile("text", QStringLiteral("head"));
        QVERIFY(QFileInfo(strAPP_DOCUMENT_IM_FILES_PATH()).isDir());
    }

    void headImageHasItsPath_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("path");
        const QString folder = QDir::current().absoluteFilePath(QStringLiteral("data/me/designHeadImage/"));
        QTest::newRow("no name") << "" << 0 << "x" << cDefaultHead;
        QTest::newRow("no last text") << "a.png" << 1 << "" << cDefaultHead;
        QTest::newRow("kind 1") << "a.png" << 1 << "x" << folder + "hfa.png";
        QTest::newRow("kind 1 without suffix") << "a" << 1 << "x" << folder + "hfa.jpg";
        QTest::newRow("kind 2") << "a.png" << 2 << "x" << folder + "hsa.png";
        QTest::newRow("kind 3") << "a.png" << 3 << "x"
                                << "";
        QTest::newRow("kind -1") << "3" << -1 << "x"
                                 << "";
        QTest::newRow("avatar 3") << "3.png" << 0 << "x"
                                  << "Resources/SystemAvatar/3.png";
        QTest::newRow("avatar 3 without suffix") << "3" << 0 << "x"
                                                 << "Resources/SystemAvatar/3.jpg";
        QTest::newRow("avatar 1") << "1.png" << 0 << "x"
                                  << "Resources/SystemAvatar/1.png";
        QTest::newRow("avatar 20") << "20.a.png" << 0 << "x"
                                   << "Resources/SystemAvatar/20.a.png";
        QTest::newRow("avatar 0") << "0.png" << 0 << "x" << folder + "0.png";
        QTest::newRow("avatar 21") << "21.png" << 0 << "x" << folder + "21.png";
        QTest::newRow("no number") << "face.png" << 0 << "x" << folder + "face.png";
        QTest::newRow("no number without suffix") << "face" << 0 << "x" << folder + "face.jpg";
    }
    void headImageHasItsPath()
    {
        QFETCH(QString, name);
        QFETCH(int, kind);
        QFETCH(QString, last);
        QTEST(PictureFun::savePhotoToLocalFile(name, kind, QStringLiteral("unused"), last), "path");
        QFETCH(QString, path);
        QCOMPARE(PictureFun::savePhotoToLocalFile(name, kind, QString(), last), path);
    }

    void systemAvatarOfAnyNameIsFound()
    {
        const BuiltInAvatar avatar(QStringLiteral("tst_PictureFun.jpg"));
        QCOMPARE(PictureFun::savePhotoToLocalFile("tst_PictureFun", 0, {}, "x"),
                 QStringLiteral("Resources/SystemAvatar/tst_PictureFun.jpg"));
    }

    void headImageFolderIsThatOfTheUser_data()
    {
        QTest::addColumn<QString>("userFolder");
        QTest::addColumn<QString>("folder");
        const QString strOwn = QDir::current().absoluteFilePath(QStringLiteral("data/me"));
        const QString strDocuments = strAPP_DOCUMENT_IM_FILES_PATH() + "/me/designHeadImage/";
        QTest::newRow("set") << strOwn << strOwn + "/designHeadImage/";
        QTest::newRow("set with a slash") << strOwn + "/" << strOwn + "/designHeadImage/";
        QTest::newRow("not set") << "" << strDocuments;
        QTest::newRow("missing") << strOwn + "/none" << strDocuments;
    }
    void headImageFolderIsThatOfTheUser()
    {
        QFETCH(QString, userFolder);
        m_settings.m_strUserFolder = userFolder;
        QTEST(PictureFolders::headImages(), "folder");
    }

    void headImageFolderWithoutSettings()
    {
        m_given.reset();
        QCOMPARE(PictureFolders::headImages(), strAPP_DOCUMENT_IM_FILES_PATH() + "/designHeadImage/");
    }

private:
    CommonData m_context;
    std::optional<GivenContext> m_given;
    SystemSetData m_settings;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PictureFun, Guiless)
#include "tst_PictureFun.moc"
