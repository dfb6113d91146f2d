// Plays the host from the outside: nothing of the plug-in but the contract's headers is linked here.

#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"
#include "plugin/PluginInterface.h"

#include <QApplication>
#include <QFile>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPluginLoader>
#include <QProcess>
#include <QTest>

namespace {

const QString moduleFile = QStringLiteral(VOIP_MODULE_FILE);

// The program that stands where the call process belongs adds a line here at each start.
int startedCallProcesses()
{
    QFile marks(QStringLiteral("started-call-processes"));
    return marks.open(QIODevice::ReadOnly) ? marks.readAll().count('\n') : 0;
}

} // namespace

class tst_PluginModule : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void metadataIsReadWithoutLoading();
    void exportsTheTwoEntryPointsOnly();
    void rootObjectAnswersTheIdentityQuestions();
    void rootObjectIsOneForAllLoaders();
    void loadedButNeverSpokenToStartsNothing();
    void commandForAnotherPluginStartsNothing();
    void firstRecognisedCommandEvenAQueryCreatesTheManager();

private:
    PluginInterface *m_plugin = nullptr;
    QPluginLoader m_loader{moduleFile};
    QLocalServer m_callServer;
};

void tst_PluginModule::initTestCase()
{
    QVERIFY2(m_callServer.listen(QStringLiteral("VoipSDK")), qPrintable(m_callServer.errorString()));
}

void tst_PluginModule::metadataIsReadWithoutLoading()
{
    const QJsonObject metadata = m_loader.metaData();
    QVERIFY(!m_loader.isLoaded());
    QCOMPARE(metadata.value(QStringLiteral("IID")).toString(), QStringLiteral("kelvarim/1.0"));
    QCOMPARE(metadata.value(QStringLiteral("className")).toString(), QStringLiteral("VoipManagePlugin"));
    QVERIFY(metadata.value(QStringLiteral("debug")).isBool());
    QCOMPARE(metadata.value(QStringLiteral("debug")).toBool(), false);
    QCOMPARE(metadata.value(QStringLiteral("version")).toInt() & ~0xff, QT_VERSION & ~0xff);
    QVERIFY(metadata.value(QStringLiteral("MetaData")).toObject().isEmpty());
}

void tst_PluginModule::exportsTheTwoEntryPointsOnly()
{
    QProcess names;
    names.start(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"),
                                       QStringLiteral("--format=just-symbols"), moduleFile});
    QVERIFY2(names.waitForFinished(), qPrintable(names.errorString()));
    QCOMPARE(names.exitCode(), 0);
    QStringList exported =
        QString::fromLatin1(names.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    exported.sort();
    QCOMPARE(exported, (QStringList{QStringLiteral("qt_plugin_instance"), QStringLiteral("qt_plugin_query_metadata")}));
}

void tst_PluginModule::rootObjectAnswersTheIdentityQuestions()
{
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
    m_plugin = qobject_cast<PluginInterface *>(m_loader.instance());
    QVERIFY(m_plugin != nullptr);
    QVERIFY(m_loader.instance()->parent() == nullptr);
    QCOMPARE(m_loader.instance()->qt_metacast("kelvarim/1.0"), static_cast<void *>(m_plugin));
    QCOMPARE(m_plugin->getPluginName(), QStringLiteral("FileManagePlugin"));
    QCOMPARE(m_plugin->getPluginId(), voipPluginId());
    QCOMPARE(m_plugin->getWindowHandle(nullptr), qint64(0));
    QVERIFY(m_plugin->attachplugin(QString(), MSG_EXIT_VOIP, QString()));
    QVERIFY(m_plugin->disattachplugin(QString(), MSG_EXIT_VOIP, QString()));
    QVERIFY(m_plugin->getRecListByMsgId(QString(), MSG_EXIT_VOIP).isEmpty());
    QVERIFY(m_plugin->getReceiveEventHandle() != nullptr);
}

void tst_PluginModule::rootObjectIsOneForAllLoaders()
{
    QPluginLoader second(moduleFile);
    QCOMPARE(second.instance(), m_loader.instance());
}

void tst_PluginModule::loadedButNeverSpokenToStartsNothing()
{
    m_plugin->setSendEventHandle(this);
    m_plugin->setCommonData(nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(startedCallProcesses(), 0);
    QVERIFY(!m_callServer.hasPendingConnections());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PluginModule::commandForAnotherPluginStartsNothing()
{
    BaseEvent event(MSG_IS_EXIST_CALL, sessionPluginId(), contactPluginId(), false, "payload");
    QCoreApplication::sendEvent(m_plugin->getReceiveEventHandle(), &event);
    QCOMPARE(event.data, QByteArray("payload"));
    QCoreApplication::processEvents();
    QVERIFY(!m_callServer.hasPendingConnections());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PluginModule::firstRecognisedCommandEvenAQueryCreatesTheManager()
{
    for (int i = 0; i < 2; ++i) {
        BaseEvent event(MSG_IS_EXIST_CALL, sessionPluginId(), voipPluginId(), false, "payload");
        QCoreApplication::sendEvent(m_plugin->getReceiveEventHandle(), &event);
        QCOMPARE(event.data, packPayload(false));
    }
    QTRY_VERIFY(m_callServer.hasPendingConnections());
    QVERIFY(!QApplication::topLevelWidgets().isEmpty());
    // One start in all: neither loading nor the second query brought one.
    QTRY_COMPARE(startedCallProcesses(), 1);
}

QTEST_MAIN(tst_PluginModule)
#include "tst_PluginModule.moc"
