// The icon by which the desktop shows the programs' windows, as the X server has it.

#include "fakes/Patience.h"

#include <QImage>
#include <QProcess>
#include <QTest>

#include <xcb/xcb.h>

#include <memory>

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
    /// The first picture that the window has for an icon; null for none.
    QImage iconOf(quint32 iWindow) const
    {
        const QByteArray name("_NET_WM_ICON");
        const std::unique_ptr<xcb_intern_atom_reply_t, Free> pAtom(xcb_intern_atom_reply(
            m_pServer.get(), xcb_intern_atom(m_pServer.get(), 0, quint16(name.size()), name.constData()), nullptr));
        if (!pAtom) {
            return {};
        }
        const std::unique_ptr<xcb_get_property_reply_t, Free> pIcon(xcb_get_property_reply(
            m_pServer.get(), xcb_get_property(m_pServer.get(), 0, iWindow, pAtom->atom, XCB_ATOM_CARDINAL, 0, 65536),
            nullptr));
        const int iNumbers = pIcon ? xcb_get_property_value_length(pIcon.get()) / 4 : 0;
        const auto *pNumbers = pIcon ? static_cast<const quint32 *>(xcb_get_property_value(pIcon.get())) : nullptr;
        if (iNumbers < 2 || iNumbers < 2 + int(pNumbers[0] * pNumbers[1])) {
            return {};
        }
        return QImage(reinterpret_cast<const uchar *>(pNumbers + 2), int(pNumbers[0]), int(pNumbers[1]),
                      QImage::Format_ARGB32)
            .copy();
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
        // The window manager gives one of its own to a window that has none. Qt keeps pictures premultiplied.
        const QImage wanted = QImage(QStringLiteral(VOIP_BIN_DIR "/Resources/Images/SysTrayIcon/MiniToTaskBar.png"))
                                  .convertToFormat(QImage::Format_ARGB32_Premultiplied)
                                  .convertToFormat(QImage::Format_ARGB32);
        QVERIFY(!wanted.isNull());
        QList<QImage> icons;
        for (const QByteArray &window : windows) {
            icons.append(iconOf(window.toUInt()));
        }
        process.terminate();
        QVERIFY(process.waitForFinished(cPatienceMs));
        QVERIFY(icons.contains(wanted));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WindowIcon, Guiless)
#include "tst_WindowIcon.moc"
