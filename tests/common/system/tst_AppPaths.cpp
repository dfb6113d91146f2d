#include "common/AppPaths.h"
#include "fakes/FileBytes.h"

#include <QDir>
#include <QtTest>

class tst_AppPaths : public QObject
{
    Q_OBJECT

    static bool setDocumentsFolder(const QByteArray &folder)
    {
        const QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
        return QDir().mkpath(config) &&
               writeFile(config + QStringLiteral("/user-dirs.dirs"), "XDG_DOCUMENTS_DIR=\"" + folder + "\"\n");
    }

private slots:
    void foldersLieInTheDocumentsFolder()
    {
        const QString documents = QDir::homePath() + QStringLiteral("/Documents");
        QCOMPARE(strSYSTEM_DOCUMENTS_LOCATION(), documents);
        QCOMPARE(strAPP_DOCUMENT_IM_PATH(), documents + "/KelvarIm");
        QCOMPARE(strAPP_DOCUMENT_IM_FILES_PATH(), documents + "/KelvarImFiles");
        QCOMPARE(strAPP_VERSION_FILE_PATH(), documents + "/KelvarIm/Version.ini");
        QCOMPARE(strAPP_INFO_FILE_PATH(), documents + "/KelvarIm/newMacIMInfo.ini");
    }

    void askingForAFolderMakesNone()
    {
        strAPP_VERSION_FILE_PATH();
        strAPP_DOCUMENT_IM_FILES_PATH();
        QVERIFY(QDir(QDir::homePath()).isEmpty());
        QVERIFY(QDir(QStringLiteral(".")).isEmpty());
    }

    void slashesAreEvened_data()
    {
        QTest::addColumn<QByteArray>("folder");
        QTest::addColumn<QString>("path");
        QTest::newRow("single slashes stay") << QByteArray("/a/b") << "/a/b";
        QTest::newRow("a doubled slash becomes one") << QByteArray("/a//b") << "/a/b";
        QTest::newRow("a tripled slash becomes two") << QByteArray("/a///b") << "/a//b";
        QTest::newRow("four slashes become two") << QByteArray("/a////b") << "/a//b";
        QTest::newRow("a backslash becomes a slash") << QByteArray("/a\\b") << "/a/b";
        QTest::newRow("backslashes are turned before slashes are evened") << QByteArray("/a\\\\b/\\c") << "/a/b/c";
    }
    void slashesAreEvened()
    {
        QFETCH(QByteArray, folder);
        QFETCH(QString, path);
        QVERIFY(setDocumentsFolder(folder));
        QCOMPARE(strSYSTEM_DOCUMENTS_LOCATION(), path);
        QCOMPARE(strAPP_DOCUMENT_IM_PATH(), path + "/KelvarIm");
    }

    void everyCallLooksAnew()
    {
        QVERIFY(setDocumentsFolder("/first"));
        QCOMPARE(strAPP_DOCUMENT_IM_FILES_PATH(), QStringLiteral("/first/KelvarImFiles"));
        QVERIFY(setDocumentsFolder("/second"));
        QCOMPARE(strAPP_DOCUMENT_IM_FILES_PATH(), QStringLiteral("/second/KelvarImFiles"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_AppPaths, Guiless)
#include "tst_AppPaths.moc"
