// The icon by which the desktop shows the programs' windows, as the X server has it.

#include "fakes/Patience.h"

#include <QProcess>
#include <QTest>

#include <memory>
#include <xcb/xcb.h>

class tst_WindowIcon : public QObject
{
    Q_OBJECT

private:
    struct Free
    {
        void operator()(void *pReply) const { std::free(pReply); }
    };
    struct Disconnect
    {
        void operator()(xcb_connection_t *pConnection) const { xcb_disconnect(pConnection); }
    };

    /// The numbers of the visible windows of that program.
    static QList<QByteArray> windowsOf(const QString &strProgram)
    {
        QProcess search;
        search.start(QStringLiteral("xdotool"), {"search", "--onlyvisible", "--class", strProgram});
        search.waitForFinished(cPatienceMs);
        return search.readAllStandardOutput().trimmed().split('\n');
    }
    /// The width of the first picture that the window has for an icon; 0 for none.
    quint32 iconWidth(quint32 iWindow) const
    {
        const QByteArray name("_NET_WM_ICON");
        const std::unique_ptr<xcb_intern_atom_reply_t, Free> pAtom(xcb_intern_atom_reply(
            m_pServer.get(), xcb_intern_atom(m_pServer.get(), 0, quint16(name.size()), name.constData()), nullptr));
        if (!pAtom) {
            return 0;
        }
        const std::unique_ptr<xcb_get_property_reply_t, Free> pIcon(xcb_get_property_reply(
            m_pServer.get(), xcb_get_property(m_pServer.get(), 0, iWindow, pAtom->atom, XCB_ATOM_CARDINAL, 0, 1),
            nullptr));
        return pIcon && xcb_get_property_value_length(pIcon.get()) == 4
                   ? *static_cast<const quint32 *>(xcb_get_property_value(pIcon.get()))
                   : 0;
    }

    std::unique_ptr<xcb_connection_t, Disconnect> m_pServer{xcb_connect(nullptr, nullptr)};

private slots:
    void windowHasAnIcon_data()
    {
        QTest::addColumn<QString>("program");
        QTest::newRow("demo") << QStringLiteral("kelvarim-demo");
        QTest::newRow("gallery") << QStringLiteral("kelvarim-gallery");
    }

    void windowHasAnIcon()
    {
        QFETCH(QString, program);
        QProcess process;
        process.start(QStringLiteral(VOIP_BIN_DIR "/") + program, QStringList());
        QTRY_VERIFY_WITH_TIMEOUT(!windowsOf(program).first().isEmpty(), cPatienceMs);
        const QList<QByteArray> windows = windowsOf(program);
        quint32 iWidest = 0;
        for (const QByteArray &window : windows) {
            iWidest = qMax(iWidest, iconWidth(window.toUInt()));
        }
        process.terminate();
        QVERIFY(process.waitForFinished(cPatienceMs));
        QVERIFY2(iWidest >= 16, qPrintable(QString::number(iWidest)));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WindowIcon, Guiless)
#include "tst_WindowIcon.moc"
