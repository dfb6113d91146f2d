// calls.ini as it is read: where it is looked for, what wins, what each type takes, and how what cannot be is refused.

#include "calls/settings/CallsSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <set>
#include <sys/stat.h>

namespace {

/// Removes what the machine's own environment says about these settings.
void clearEnvironment()
{
    for (const CallsSettings::Row &row : CallsSettings::rows()) {
        if (*row.variable != '\0') {
            qunsetenv(row.variable);
        }
    }
    qunsetenv("VOIPSDK_CALLS_INI");
}

} // namespace

class tst_CallsSettings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        clearEnvironment();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_settings = {};
        m_fault.clear();
    }
    void cleanup() { clearEnvironment(); }

    void theTableHasEachSettingOnce()
    {
        QCOMPARE(CallsSettings::rows().size(), std::size_t(20));
        std::set<std::string> keys;
        std::set<std::string> variables;
        for (const CallsSettings::Row &row : CallsSettings::rows()) {
            QVERIFY2(keys.insert(std::string(row.section) + '/' + row.key).second, row.key);
            QVERIFY2(*row.variable == '\0' || variables.insert(row.variable).second, row.variable);
            QVERIFY2(*row.meaning != '\0', row.key);
        }
    }

    void withoutAFileTheDefaultsHold()
    {
        QVERIFY2(read({path("none.ini"), "/dev/null/none.ini"}), m_fault.c_str());
        QCOMPARE(m_settings.kind, std::string("robots"));
        QVERIFY(m_settings.servers.empty());
        QCOMPARE(m_settings.expires, 600);
        QCOMPARE(m_settings.retry, 1);
        QCOMPARE(m_settings.secret, std::string("registration"));
        QCOMPARE(m_settings.encryption, std::string("srtp"));
        QCOMPARE(m_settings.codecs, (std::vector<std::string>{"opus", "g722", "pcma", "pcmu"}));
        QCOMPARE(m_settings.ports.first, 20000);
        QCOMPARE(m_settings.ports.last, 29999);
        QCOMPARE(m_settings.noMedia, 15);
        QVERIFY(m_settings.echoCancelling && m_settings.noiseHandling);
        QVERIFY(m_settings.microphone.empty() && m_settings.wavIn.empty() && m_settings.wavOut.empty());
    }

    void aWholeFileIsRead()
    {
        const std::string file =
            write("calls.ini", "\xef\xbb\xbf; by the operator\r\n[process]\r\nkind = calls\r\n\r\n"
                               "[ exchange ]\n  servers=voice.example.org, 10.0.0.7:5062 [::1]:7\n"
                               "# a comment\ndomain=example.org\n[sound]\nmicrophone = Jabra = \xc3\xa9\n"
                               "echo-cancelling = off\nwav-in = ~/in.wav");
        qputenv("HOME", "/home/somebody");
        QVERIFY2(read({file}), m_fault.c_str());
        QCOMPARE(m_settings.kind, std::string("calls"));
        QCOMPARE(m_settings.servers.size(), std::size_t(3));
        QCOMPARE(m_settings.servers[0].host, std::string("voice.example.org"));
        QCOMPARE(m_settings.servers[0].port, 5061);
        QCOMPARE(m_settings.servers[1].host, std::string("10.0.0.7"));
        QCOMPARE(m_settings.servers[1].port, 5062);
        QCOMPARE(m_settings.servers[2].host, std::string("::1"));
        QCOMPARE(m_settings.servers[2].port, 7);
        QCOMPARE(m_settings.domain, std::string("example.org"));
        QCOMPARE(m_settings.microphone, std::string("Jabra = \xc3\xa9"));
        QVERIFY(!m_settings.echoCancelling);
        QCOMPARE(m_settings.wavIn, std::string("/home/somebody/in.wav"));
    }

    void aDomainIsAHost()
    {
        for (const char *domain : {"", "example.org", "10.0.0.7", "[fd00::1]"}) {
            const std::string file = write("calls.ini", QByteArray("[exchange]\ndomain = ") + domain + '\n');
            QVERIFY2(read({file}), m_fault.c_str());
            QCOMPARE(m_settings.domain, std::string(domain));
        }
        QVERIFY2(read({write("calls.ini", "[exchange]\nservers = [fd00::1], a.example")}), m_fault.c_str());
        QCOMPARE(m_settings.servers[0].written(), std::string("[fd00::1]"));
        QCOMPARE(m_settings.servers[1].written(), std::string("a.example"));
    }

    void eachKeyComesFromTheFirstFileThatHasIt()
    {
        const std::string users = write("user.ini", "[sound]\nmicrophone=mine\n");
        const std::string systems =
            write("system.ini", "[sound]\nmicrophone=ours\nspeaker=ours\n[process]\nkind=calls\n");
        const std::string besides = write("beside.ini", "[process]\nkind=robots\n[media]\nencryption=zrtp\n");
        QVERIFY2(read({users, systems, besides}), m_fault.c_str());
        QCOMPARE(m_settings.microphone, std::string("mine"));
        QCOMPARE(m_settings.speaker, std::string("ours"));
        QCOMPARE(m_settings.kind, std::string("calls"));
        QCOMPARE(m_settings.encryption, std::string("zrtp"));
    }

    void theEnvironmentWinsOverTheFiles()
    {
        const std::string file = write("calls.ini", "[process]\nkind=robots\n[sound]\nspeaker=set\n");
        qputenv("VOIPSDK_KIND", "calls");
        qputenv("VOIPSDK_SPEAKER", "");
        QVERIFY2(read({file}), m_fault.c_str());
        QCOMPARE(m_settings.kind, std::string("calls"));
        QCOMPARE(m_settings.speaker, std::string("set"));
        qputenv("VOIPSDK_KIND", "people");
        QVERIFY(!read({file}));
        QCOMPARE(m_fault, std::string("VOIPSDK_KIND: process/kind is robots or calls, not \"people\""));
    }

    void placesAreTheUsersTheSystemsAndBesideTheClient()
    {
        qputenv("XDG_CONFIG_HOME", "/home/a/.config");
        qputenv("XDG_CONFIG_DIRS", "/etc/one:/etc/two");
        QCOMPARE(
            CallsSettings::files("/opt/client"),
            (std::vector<std::string>{"/home/a/.config/kelvarim-voip/calls.ini", "/etc/one/kelvarim-voip/calls.ini",
                                      "/etc/two/kelvarim-voip/calls.ini", "/opt/client/calls.ini"}));
        qputenv("XDG_CONFIG_HOME", "");
        qunsetenv("XDG_CONFIG_DIRS");
        qputenv("HOME", "/home/a");
        QCOMPARE(CallsSettings::files("/opt/client"),
                 (std::vector<std::string>{"/home/a/.config/kelvarim-voip/calls.ini",
                                           "/etc/xdg/kelvarim-voip/calls.ini", "/opt/client/calls.ini"}));
        qputenv("VOIPSDK_CALLS_INI", "/tmp/this.ini");
        QCOMPARE(CallsSettings::files("/opt/client"), (std::vector<std::string>{"/tmp/this.ini"}));
    }

    void theOneFileThatIsNamedHasToBeThere()
    {
        qputenv("VOIPSDK_CALLS_INI", QFile::encodeName(m_folder->filePath("none.ini")));
        QVERIFY(!read(CallsSettings::files("/opt/client")));
        QCOMPARE(m_fault, path("none.ini") + ": VOIPSDK_CALLS_INI names it, and it is not there");
    }

    void whatCannotBeIsRefusedByNameAndPlace_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("fault");
        const auto row = [](const char *name, const char *text, const char *fault) {
            QTest::newRow(name) << QByteArray(text) << QByteArray(fault);
        };
        row("no line", "[process]\nkind\n", ":2: \"kind\" is neither [section] nor key = value");
        row("open section", "[process\n", ":1: no ] at the end of \"[process\"");
        row("no section", "kind=calls\n", ":1: \"kind=calls\" stands in no section");
        row("control character", "[sound]\nwav-out=/a\x01\n", ":2: a control character");
        row("unknown key", "[process]\n\nkinds=calls\n", ":3: there is no setting process/kinds");
        row("unknown section", "[proces]\nkind=calls\n", ":2: there is no setting proces/kind");
        row("other case", "[Process]\nkind=calls\n", ":2: there is no setting Process/kind");
        row("said twice", "[media]\nno-media=9\nno-media=9\n", ":3: media/no-media was said at %1:2");
        row("choice", "[process]\nkind=Calls\n", ":2: process/kind is robots or calls, not \"Calls\"");
        row("empty choice", "[process]\nkind=\n", ":2: process/kind is robots or calls, not \"\"");
        row("choices", "[media]\ncodecs=opus g729\n",
            ":2: media/codecs has opus, g722, pcma or pcmu, each once, not \"opus g729\"");
        row("choice twice", "[media]\ncodecs=opus opus\n",
            ":2: media/codecs has opus, g722, pcma or pcmu, each once, not \"opus opus\"");
        row("no choice", "[media]\ncodecs=,\n",
            ":2: media/codecs has at least one of opus, g722, pcma or pcmu, not \",\"");
        row("flag", "[sound]\nnoise-handling=maybe\n", ":2: sound/noise-handling is yes or no, not \"maybe\"");
        row("below", "[media]\nno-media=4\n", ":2: media/no-media is a number from 5 to 300, not \"4\"");
        row("above", "[media]\nno-media=301\n", ":2: media/no-media is a number from 5 to 300, not \"301\"");
        row("no number", "[media]\nno-media=+15\n", ":2: media/no-media is a number from 5 to 300, not \"+15\"");
        row("huge", "[media]\nno-media=99999999999999999999\n",
            ":2: media/no-media is a number from 5 to 300, not \"99999999999999999999\"");
        row("part of a path", "[sound]\nwav-out=heard.wav\n",
            ":2: sound/wav-out is a whole path, from / or ~/ on, not \"heard.wav\"");
        row("one port", "[media]\nports=20000\n",
            ":2: media/ports is two ports from 1024 on, the lower one first: 20000-29999, not \"20000\"");
        row("ports turned", "[media]\nports=30000-20000\n",
            ":2: media/ports is two ports from 1024 on, the lower one first: 20000-29999, not \"30000-20000\"");
        row("system's ports", "[media]\nports=80-90\n",
            ":2: media/ports is two ports from 1024 on, the lower one first: 20000-29999, not \"80-90\"");
        row("server", "[exchange]\nservers=a.example:0\n",
            ":2: exchange/servers has servers as host or host:port, and \"a.example:0\" is none, not \"a.example:0\"");
        row("address", "[exchange]\nservers=[::1\n",
            ":2: exchange/servers has servers as host or host:port, and \"[::1\" is none, not \"[::1\"");
        for (const char *domain :
             {"two words", "a@b", "fd00::1", "[fd00::1", "[name]", "sip:a", "a.example:5061", "[::1]:7", "-a"}) {
            const QByteArray text = QByteArray("[exchange]\ndomain=") + domain + '\n';
            const QByteArray fault =
                QByteArray(":2: exchange/domain is a host's name, or an address, IPv6 in brackets, not \"") + domain +
                '"';
            row(domain, text, fault);
        }
        row("uri", "[exchange]\nservers=sip:a.example\n",
            ":2: exchange/servers has servers as host or host:port, and \"sip:a.example\" is none, not "
            "\"sip:a.example\"");
    }

    void whatCannotBeIsRefusedByNameAndPlace()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, fault);
        const std::string file = write("calls.ini", text);
        m_settings.domain = "as it was";
        QVERIFY(!read({file}));
        QCOMPARE(QByteArray::fromStdString(m_fault),
                 QByteArray::fromStdString(file) + fault.replace("%1", file.c_str()));
        QCOMPARE(m_settings.domain, std::string("as it was"));
    }

    void aWeakerFileIsHeldToTheSameRules()
    {
        const std::string strong = write("strong.ini", "[process]\nkind=calls\n");
        const std::string weak = write("weak.ini", "[process]\ncolour=blue\n");
        QVERIFY(!read({strong, weak}));
        QCOMPARE(m_fault, weak + ":2: there is no setting process/colour");
    }

    void tooMuchTextIsRefused()
    {
        const std::string longText(300, 'x');
        const std::string file = write("calls.ini", QByteArray::fromStdString("[sound]\nspeaker=" + longText + "\n"));
        QVERIFY(!read({file}));
        QCOMPARE(m_fault, file + ":2: sound/speaker is at most 255 bytes of text, not \"" + longText + "\"");
        const std::string longFile = write("long.ini", QByteArray(70000, '\n'));
        QVERIFY(!read({longFile}));
        QCOMPARE(m_fault, longFile + ": longer than 64 KiB");
    }

    void whatIsNoFileIsRefusedAtOnce()
    {
        QVERIFY(!read({m_folder->path().toStdString()}));
        QCOMPARE(m_fault, m_folder->path().toStdString() + ": no file");
        // Nobody ever writes into this pipe.
        const std::string pipe = path("pipe.ini");
        QCOMPARE(::mkfifo(pipe.c_str(), 0600), 0);
        QVERIFY(!read({pipe}));
        QCOMPARE(m_fault, pipe + ": no file");
    }

    void aSecretInAFileNeedsTheFile()
    {
        QVERIFY(!read({write("calls.ini", "[account]\nsecret=file\n")}));
        QCOMPARE(m_fault, std::string("account/secret is file, and account/secret-file names none"));
        QVERIFY2(read({write("calls.ini", "[account]\nsecret=file\nsecret-file=/home/a/secrets\n")}), m_fault.c_str());
        QCOMPARE(m_settings.secretFile, std::string("/home/a/secrets"));
    }

private:
    std::string path(const char *name) const { return m_folder->filePath(name).toStdString(); }

    /// Writes a file of this text; its path.
    std::string write(const char *name, const QByteArray &text) const
    {
        QFile file(m_folder->filePath(name));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(text);
        }
        return path(name);
    }

    bool read(const std::vector<std::string> &files) { return m_settings.read(files, &m_fault); }

    std::unique_ptr<QTemporaryDir> m_folder;
    CallsSettings m_settings;
    std::string m_fault;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallsSettings, Guiless)
#include "tst_CallsSettings.moc"
