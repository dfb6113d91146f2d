// The call window's pages and states beside committed pictures.

#include "ComparedPicture.h"
#include "Ink.h"
#include "PictureSetting.h"

#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceListView.h"
#include "ui/ContactFixture.h"
#include "ui/RowPainter.h"
#include "ui/VoipWidget.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

using SetUp = std::function<void(CVoipWidget &)>;

/// The name of a picture, and how the window comes to look like it.
struct Page
{
    const char *name;
    SetUp setUp;
};

QString uid(const char *name)
{
    return QLatin1String(name);
}

SetUp call(CVoipWidget::VoipType type, bool bMine)
{
    return [=](CVoipWidget &w) {
        w.setVoipCallInfo({uid("ann"), uid("bob"), uid("cat"), uid("dan")}, type, bMine, false);
    };
}

// The clock stands still at a time of its own.
SetUp connected(const SetUp &first)
{
    return [=](CVoipWidget &w) {
        first(w);
        w.setVoipCallStatus(true);
        w.findChild<QTimer *>(QStringLiteral("m_callTimeTimer"))->stop();
        w.findChild<QLabel *>(QStringLiteral("currentPlayTimeLabel"))->setText(QStringLiteral("00:01:25"));
    };
}

SetUp clicked(const SetUp &first, const QList<const char *> &buttons)
{
    return [=](CVoipWidget &w) {
        first(w);
        for (const char *button : buttons) {
            QMetaObject::invokeMethod(w.findChild<QWidget *>(QLatin1String(button)), "clicked");
        }
    };
}

SetUp dropped(const SetUp &first)
{
    return [=](CVoipWidget &w) {
        first(w);
        w.setVoipCallStatus(false);
    };
}

SetUp withSurface(const SetUp &first)
{
    return [=](CVoipWidget &w) {
        auto *pSurface = new QWidget;
        pSurface->setAutoFillBackground(true);
        pSurface->setPalette(QPalette(QColor(0x20, 0x24, 0x2a)));
        w.addVoipWidget(pSurface);
        first(w);
    };
}

SetUp withStatuses(const SetUp &first)
{
    return [=](CVoipWidget &w) {
        first(w);
        w.setConferenceCreator(uid("ann"));
        w.updateConferenceListStatus({uid("ann"), uid("bob")});
        w.setaddConfFailedList({uid("cat")});
    };
}

const QList<Page> &pages()
{
    const SetUp voice = call(CVoipWidget::Voice, true);
    const SetUp video = withSurface(call(CVoipWidget::Video, true));
    const SetUp mine = withStatuses(call(CVoipWidget::Conference, true));
    const SetUp joined = withStatuses(call(CVoipWidget::Conference, false));
    static const QList<Page> all{
        {"voice-outgoing", voice},
        {"voice-incoming", call(CVoipWidget::Voice, false)},
        {"voice-connected", connected(voice)},
        {"voice-muted", clicked(connected(voice), {"btnMic", "btnSpeaker"})},
        {"voice-dropped", dropped(connected(voice))},
        {"voice-full-screen", clicked(connected(voice), {"btnChangeWindow"})},
        {"voice-long-name", [](CVoipWidget &w) { w.setVoipCallInfo({uid("long")}, CVoipWidget::Voice, true, false); }},
        {"video-outgoing", video},
        {"video-connected", connected(video)},
        {"video-long-name", [](CVoipWidget &w) { w.setVoipCallInfo({uid("long")}, CVoipWidget::Video, true, false); }},
        {"conference-mine", mine},
        {"conference-mine-connected", connected(mine)},
        {"conference-mute-all", clicked(connected(mine), {"btnMuteAll"})},
        {"conference-joined", joined},
        {"conference-joined-connected", connected(joined)},
        {"conference-empty", [](CVoipWidget &w) { w.setVoipCallInfo({}, CVoipWidget::Conference, true, false); }},
    };
    return all;
}

} // namespace

class tst_CallWindowPictures : public QObject
{
    Q_OBJECT

private:
    /// The window with that page on the screen.
    QImage picture(const SetUp &setUp)
    {
        CVoipWidget window;
        window.move(200, 200);
        setUp(window);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window, cPatienceMs)) {
            return {};
        }
        // The second of two: rows are at their places once they have been painted.
        ComparedPicture::of(&window);
        QCoreApplication::processEvents();
        return ComparedPicture::of(&window);
    }

    QImage picture(const char *name)
    {
        for (const Page &page : pages()) {
            if (qstrcmp(page.name, name) == 0) {
                return picture(page.setUp);
            }
        }
        return {};
    }

    std::unique_ptr<ContactFixture> m_pContacts;

private slots:
    void initTestCase()
    {
        const QString strMissing = PictureSetting::prepare();
        QVERIFY2(strMissing.isEmpty(), qPrintable(strMissing));
    }

    void init()
    {
        m_pContacts = std::make_unique<ContactFixture>();
        PictureSetting::addContacts(*m_pContacts);
    }

    void cleanup() { m_pContacts.reset(); }

    void pageLooksAsCommitted_data()
    {
        QTest::addColumn<bool>("committed");
        for (const Page &page : pages()) {
            QTest::newRow(page.name) << true;
        }
    }

    void pageLooksAsCommitted()
    {
        const char *name = QTest::currentDataTag();
        const QImage found = picture(name);
        QCOMPARE(found.size(), QSize(523, 403) * qApp->devicePixelRatio());
        const QString strComplaint = ComparedPicture::complaint(uid(name), found);
        QVERIFY2(strComplaint.isEmpty(), qPrintable(strComplaint));
    }

    void oneGlyphIsADifference_data()
    {
        QTest::addColumn<QByteArray>("button");
        for (const char *button : {"btnMic", "btnSpeaker"}) {
            QTest::newRow(button) << QByteArray(button);
        }
    }

    void oneGlyphIsADifference()
    {
        QFETCH(QByteArray, button);
        const SetUp voice = connected(call(CVoipWidget::Voice, true));
        const QImage changed = picture(clicked(voice, {button.constData()}));
        QVERIFY(ComparedPicture::differingPixels(changed, picture(voice)) > 12);
    }

    void glyphsOfAMemberStandAtTheHeightOfTheName()
    {
        CVoipWidget window;
        withStatuses(call(CVoipWidget::Conference, true))(window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));
        auto *pList = window.findChild<CConferenceListView *>();
        const QImage picture = pList->viewport()->grab().toImage();
        const QModelIndex ann = pList->model()->index(0, 0);
        QVERIFY(ann.data(ROLE_IS_CREATOR).toBool());
        // Above the line below the row.
        const QRect row = pList->visualRect(ann).adjusted(0, 0, 0, -2);
        const auto column = [&row](int iLeft, int iWidth) {
            return QRect(row.left() + iLeft, row.top(), iWidth, row.height());
        };
        const int iNameWidth =
            QFontMetrics(RowPainter::textFont()).horizontalAdvance(ann.data(ROLE_DISPLAY_NAME).toString());
        const QRect name = column(52, iNameWidth);
        for (const QRect &glyph :
             {column(52 + iNameWidth + 16, 22), column(ann.data(ROLE_MUTE_RECT).toRect().left(), 18),
              column(ann.data(ROLE_REMOVE_RECT).toRect().left(), 18)}) {
            QVERIFY(!Ink::within(picture, glyph).isEmpty());
            const qreal dBelow = Ink::below(picture, glyph, name);
            QVERIFY2(qAbs(dBelow) <= 1.25, qPrintable(QString::number(dBelow)));
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallWindowPictures, Widgets)

#include "tst_CallWindowPictures.moc"
