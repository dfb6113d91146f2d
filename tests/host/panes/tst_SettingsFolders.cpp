#include "screen/WindowProbe.h"

#include "host/panes/SettingsPageTest.h"
#include "model/SharedContext.h"
#include "model/SystemSetData.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QTest>
#include <QTimer>

/// The folders in the settings: what is taken, from when on, and what the page says of one that cannot be used.
class tst_SettingsFolders : public SettingsPageTest
{
    Q_OBJECT

private slots:
    void receiveFolderIsMadeWrittenAndInForce()
    {
        const QString folder = QDir::current().absoluteFilePath(QStringLiteral("received/今天"));
        type("editReceiveFolder", folder);
        QVERIFY(QDir(folder).exists());
        QCOMPARE(stored(HostSettings::userFile(), "/msgSetting/transfilepath"), folder);
        QCOMPARE(SharedContext::getSystemSetData()->m_strTransFilePath, folder);
    }

    void emptyFieldGivesTheStandardFolderBack()
    {
        const QString standard = HostSettings::receiveFolder();
        type("editReceiveFolder", QDir::current().absoluteFilePath(QStringLiteral("elsewhere")));
        QVERIFY(HostSettings::receiveFolder() != standard);
        type("editReceiveFolder", QString());
        QCOMPARE(HostSettings::receiveFolder(), standard);
        QCOMPARE(part<QLineEdit>("editReceiveFolder")->text(), standard);
    }

    void dataFolderIsForTheNextStart()
    {
        const QString inUse = SharedContext::getSystemSetData()->m_strMsgFilePath;
        const QString note = part<QLabel>("lblDataNote")->text();
        const QString folder = QDir::current().absoluteFilePath(QStringLiteral("data"));
        type("editDataFolder", folder);
        QCOMPARE(stored(HostSettings::commonFile(), "/msgSetting/msgfilepath"), folder);
        QCOMPARE(SharedContext::getSystemSetData()->m_strMsgFilePath, inUse);
        QCOMPARE(part<QLabel>("lblDataNote")->text(),
                 QStringLiteral("Takes effect at the next start; what is in the old folder stays there."));
        SystemSetData nextStart;
        nextStart.initCommonData();
        QCOMPARE(nextStart.m_strMsgFilePath, folder);
        type("editDataFolder", QString());
        QCOMPARE(part<QLabel>("lblDataNote")->text(), note);
    }

    void folderThatCannotBeUsedIsToldAndNotTaken_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("relative") << "somewhere";
        QTest::newRow("below a file") << QDir::current().absoluteFilePath(QStringLiteral("file/folder"));
    }

    void folderThatCannotBeUsedIsToldAndNotTaken()
    {
        QFETCH(QString, folder);
        QFile file(QStringLiteral("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString receive = HostSettings::receiveFolder();
        const QString data = HostSettings::dataFolder();
        for (const char *edit : {"editReceiveFolder", "editDataFolder"}) {
            type(edit, folder);
            QCOMPARE(part<QLabel>("lblFolderError")->text(), QStringLiteral("This folder cannot be used: ") + folder);
            QCOMPARE(part<QLineEdit>(edit)->text(), folder);
        }
        QCOMPARE(HostSettings::receiveFolder(), receive);
        QCOMPARE(HostSettings::dataFolder(), data);
        type("editReceiveFolder", receive);
        QVERIFY(part<QLabel>("lblFolderError")->text().isEmpty());
    }

    void folderErrorIsGoneWhenThePageOpensAgain_data()
    {
        QTest::addColumn<QByteArray>("edit");
        QTest::newRow("data") << QByteArray("editDataFolder");
        QTest::newRow("received files") << QByteArray("editReceiveFolder");
    }

    void folderErrorIsGoneWhenThePageOpensAgain()
    {
        QFETCH(QByteArray, edit);
        const QString folder = part<QLineEdit>(edit)->text();
        for (const bool bClosed : {true, false}) {
            type(edit, QStringLiteral("somewhere"));
            QVERIFY(WindowProbe::text(&page(), "lblFolderError").contains(QStringLiteral("somewhere")));
            if (bClosed) {
                QTest::keyClick(&page(), Qt::Key_Escape);
                QVERIFY(!page().isVisible());
            }
            QVERIFY(pressButton(m_pWindow.get(), "btnSettings"));
            QVERIFY(QTest::qWaitForWindowActive(&page(), cPatienceMs));
            QCOMPARE(part<QLabel>("lblFolderError")->text(), QString());
            QCOMPARE(part<QLineEdit>(edit)->text(), folder);
        }
    }

    void folderErrorGoesWithAGoodFolderAndWithTheLanguage()
    {
        type("editReceiveFolder", QStringLiteral("somewhere"));
        QVERIFY(!part<QLabel>("lblFolderError")->text().isEmpty());
        type("editReceiveFolder", QDir::current().absoluteFilePath(QStringLiteral("good")));
        QCOMPARE(part<QLabel>("lblFolderError")->text(), QString());
        type("editReceiveFolder", QStringLiteral("somewhere"));
        QVERIFY(!part<QLabel>("lblFolderError")->text().isEmpty());
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&page(), &change);
        QCOMPARE(part<QLabel>("lblFolderError")->text(), QString());
        QCOMPARE(part<QLineEdit>("editReceiveFolder")->text(),
                 QDir::current().absoluteFilePath(QStringLiteral("good")));
    }

    void browsingTakesTheFolder()
    {
        const QString folder = QDir::current().absoluteFilePath(QStringLiteral("browsed"));
        QVERIFY(QDir().mkpath(folder));
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
                timer.stop();
                dialog->setDirectory(folder);
                dialog->selectFile(folder);
                QMetaObject::invokeMethod(dialog, "accept");
            }
        });
        timer.start(10);
        QVERIFY(pressButton(&page(), "btnReceiveFolder"));
        QCOMPARE(HostSettings::receiveFolder(), folder);
        QCOMPARE(part<QLineEdit>("editReceiveFolder")->text(), folder);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SettingsFolders, Widgets)
#include "tst_SettingsFolders.moc"
