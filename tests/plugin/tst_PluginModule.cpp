// Plays the host from the outside: nothing of the plug-in but the contract's headers is linked here.

#include "fakes/Patience.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"
#include "plugin/PluginInterface.h"

#include <QApplication>
#include <QFile>
#include <QJsonObject>
#include <QLibrary>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPluginLoader>
#include <QProcess>
#include <QTest>
#include <QtPlugin>

#include <cerrno>
#include <unistd.h>

namespace {

const QString cModuleFile = QStringLiteral(VOIP_MODULE_FILE);

// The program that stands where the call process belongs adds a line to a file at each start. Everything started from
// here inherits the writing end of a pipe, so that the pipe's end is reached once all that was started has run.
class CallProcessStarts
{
public:
    CallProcessStarts() { openPipe(); }
    ~CallProcessStarts() { closeEnds(); }
    Q_DISABLE_COPY(CallProcessStarts)

    int count()
    {
        ::close(m_ends[1]);
        m_ends[1] = -1;
        char byte = 0;
        while (::read(m_ends[0], &byte, 1) < 0 && errno == EINTR) {
        }
        closeEnds();
        openPipe();
        QFile marks(QStringLiteral("started-call-processes"));
        return marks.open(QIODevice::ReadOnly) ? marks.readAll().count('\n') : 0;
    }

private:
    void openPipe()
    {
        if (::pipe(m_ends) != 0) {
            qFatal("no pipe could be opened");
        }
    }
    void closeEnds()
    {
        for (const int end : m_ends) {
            if (end >= 0) {
                ::close(end);
            }
        }
    }

    int m_ends[2] = {-1, -1};
};

} // namespace

class tst_PluginModule : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY2(m_callServer.listen(QStringLiteral("VoipSDK")), qPrintable(m_callServer.errorString()));
        m_metadata = m_loader.metaData();
        m_bLoadedForMetadata = m_loader.isLoaded();
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        m_plugin = qobject_cast<PluginInterface *>(m_loader.instance());
        QVERIFY(m_plugin != nullptr);
    }

    void metadataIsReadWithoutLoading()
    {
        QVERIFY(!m_bLoadedForMetadata);
        QCOMPARE(m_metadata.value(QStringLiteral("IID")).toString(), QStringLiteral("kelvarim/1.0"));
        QCOMPARE(m_metadata.value(QStringLiteral("className")).toString(), QStringLiteral("VoipManagePlugin"));
        QCOMPARE(m_metadata.value(QStringLiteral("debug")), QJsonValue(false));
        QCOMPARE(m_metadata.value(QStringLiteral("version")).toInt() & ~0xff, QT_VERSION & ~0xff);
        // This moc leaves the key out where there is nothing below it, others write the empty object.
        const QJsonValue further = m_metadata.value(QStringLiteral("MetaData"));
        QVERIFY(further.isUndefined() || further == QJsonValue(QJsonObject()));
    }

    void exportsTheTwoEntryPointsOnly()
    {
        QProcess names;
        names.start(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"),
                                           QStringLiteral("--format=just-symbols"), cModuleFile});
        QVERIFY2(names.waitForFinished(cPatienceMs), qPrintable(names.errorString()));
        QCOMPARE(names.exitCode(), 0);
        QStringList exported =
            QString::fromLatin1(names.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        exported.sort();
        QCOMPARE(exported,
                 (QStringList{QStringLiteral("qt_plugin_instance"), QStringLiteral("qt_plugin_query_metadata")}));
    }

    void rootObjectAnswersTheIdentityQuestions()
    {
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

    void rootObjectIsMadeOnTheFirstCallOnly()
    {
        // A second QPluginLoader would not ask again: all loaders of one file share the object that the first was
        // given.
        QLibrary library(cModuleFile);
        const auto instance = reinterpret_cast<QtPluginInstanceFunction>(library.resolve("qt_plugin_instance"));
        QVERIFY(instance != nullptr);
        QCOMPARE(instance(), m_loader.instance());
        QCOMPARE(instance(), m_loader.instance());
    }

    void loadedButNeverSpokenToStartsNothing()
    {
        m_plugin->setSendEventHandle(this);
        m_plugin->setCommonData(nullptr);
        QCoreApplication::processEvents();
        QCOMPARE(m_starts.count(), 0);
        QVERIFY(!m_callServer.hasPendingConnections());
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void commandForAnotherPluginStartsNothing()
    {
        BaseEvent event(MSG_IS_EXIST_CALL, sessionPluginId(), contactPluginId(), false, "payload");
        QCoreApplication::sendEvent(m_plugin->getReceiveEventHandle(), &event);
        QCOMPARE(event.data, QByteArray("payload"));
        QCoreApplication::processEvents();
        QCOMPARE(m_starts.count(), 0);
        QVERIFY(!m_callServer.hasPendingConnections());
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void firstRecognisedCommandEvenAQueryCreatesTheManager()
    {
        for (int i = 0; i < 2; ++i) {
            BaseEvent event(MSG_IS_EXIST_CALL, sessionPluginId(), voipPluginId(), false, "payload");
            QCoreApplication::sendEvent(m_plugin->getReceiveEventHandle(), &event);
            QCOMPARE(event.data, packPayload(false));
        }
        QTRY_VERIFY_WITH_TIMEOUT(m_callServer.hasPendingConnections(), cPatienceMs);
        QVERIFY(!QApplication::topLevelWidgets().isEmpty());
        // One start in all: neither loading nor the second query brought one.
        QCOMPARE(m_starts.count(), 1);
    }

private:
    PluginInterface *m_plugin = nullptr;
    QPluginLoader m_loader{cModuleFile};
    QJsonObject m_metadata;
    bool m_bLoadedForMetadata = true;
    CallProcessStarts m_starts;
    QLocalServer m_callServer;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PluginModule, Widgets)
#include "tst_PluginModule.moc"
