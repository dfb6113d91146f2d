#include "client/ContactBook.h"
#include "client/HostLanguage.h"
#include "panes/VideoCard.h"
#include "screen/ScreenPointer.h"
#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "host/panes/Deeds.h"
#include "ui/VoipWidget.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

/// The card over the empty page of a video call, beside the plug-in's call window and under the real pointer.
class tst_VideoCard : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pWindow = std::make_unique<CVoipWidget>();
        m_pCard = std::make_unique<VideoCard>(m_book);
        startCall(CVoipWidget::Video);
    }

    void cleanup()
    {
        m_pCard.reset();
        m_pWindow.reset();
    }

    void saysWhoItIsAndWhyNothingIsSeen()
    {
        QTRY_VERIFY_WITH_TIMEOUT(m_pCard->isVisible(), cPatienceMs);
        QCOMPARE(WindowProbe::text(m_pCard.get(), "lblName"), QStringLiteral("李雷"));
        QVERIFY(WindowProbe::text(m_pCard.get(), "lblWhy").contains(QStringLiteral("the call process draws none")));
        QVERIFY(!m_pCard->findChild<QLabel *>(QStringLiteral("lblHead"))->pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(QApplication::topLevelWidgets().contains(m_pCard.get()));
    }

    void standsInTheMiddleOfThePageAndGoesWithTheWindow()
    {
        QTRY_COMPARE_WITH_TIMEOUT(offset(), QPoint(), cPatienceMs);
        QVERIFY(pageOnScreen().contains(Deeds::placeOf(*m_pCard)));
        m_pWindow->move(m_pWindow->pos() + QPoint(60, 40));
        QTRY_COMPARE_WITH_TIMEOUT(offset(), QPoint(), cPatienceMs);
        m_pWindow->resize(m_pWindow->size() + QSize(80, 120));
        QTRY_COMPARE_WITH_TIMEOUT(offset(), QPoint(), cPatienceMs);
        QVERIFY(pageOnScreen().contains(Deeds::placeOf(*m_pCard)));
    }

    void mouseAndKeysAreTheCallWindows()
    {
        QTRY_VERIFY_WITH_TIMEOUT(m_pCard->isVisible(), cPatienceMs);
        QVERIFY(QTest::qWaitForWindowExposed(m_pCard.get(), cPatienceMs));
        QCOMPARE(QApplication::activeWindow(), m_pWindow.get());
        // Dragged by the card's middle, the call window moves, as soon as a busy window manager knows whose mouse it
        // is.
        const QPoint before = m_pWindow->pos();
        QVERIFY(ScreenPointer().isReady());
        QVERIFY(QTest::qWaitFor(
            [&] {
                dragCard();
                return m_pWindow->pos() != before;
            },
            cPatienceMs));
        QCOMPARE(QApplication::activeWindow(), m_pWindow.get());
        QTRY_COMPARE_WITH_TIMEOUT(offset(), QPoint(), cPatienceMs);
    }

    void goesAndComesWithTheWindow()
    {
        QTRY_VERIFY_WITH_TIMEOUT(m_pCard->isVisible(), cPatienceMs);
        m_pWindow->hide();
        QTRY_VERIFY_WITH_TIMEOUT(!m_pCard->isVisible(), cPatienceMs);
        m_pWindow->show();
        QTRY_VERIFY_WITH_TIMEOUT(m_pCard->isVisible(), cPatienceMs);
        m_pCard->leave();
        QVERIFY(!m_pCard->isVisible());
        m_pWindow->move(m_pWindow->pos() + QPoint(5, 5));
        QCoreApplication::processEvents();
        QVERIFY(!m_pCard->isVisible());
    }

    void surfaceTakesItsPlace()
    {
        QTRY_VERIFY_WITH_TIMEOUT(m_pCard->isVisible(), cPatienceMs);
        auto *surface = new QWidget;
        m_pWindow->addVoipWidget(surface);
        QTRY_VERIFY_WITH_TIMEOUT(!m_pCard->isVisible(), cPatienceMs);
        delete surface;
        QTRY_VERIFY_WITH_TIMEOUT(m_pCard->isVisible(), cPatienceMs);
    }

    void otherPagesHaveNone_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("voice") << int(CVoipWidget::Voice);
        QTest::newRow("conference") << int(CVoipWidget::Conference);
    }

    void otherPagesHaveNone()
    {
        QFETCH(int, type);
        QTRY_VERIFY_WITH_TIMEOUT(m_pCard->isVisible(), cPatienceMs);
        startCall(CVoipWidget::VoipType(type));
        QTRY_VERIFY_WITH_TIMEOUT(!m_pCard->isVisible(), cPatienceMs);
    }

    void callWindowStaysAsItIs()
    {
        QTRY_VERIFY_WITH_TIMEOUT(m_pCard->isVisible(), cPatienceMs);
        const QImage with = m_pWindow->grab().toImage();
        const int parts = m_pWindow->findChildren<QWidget *>().size();
        m_pCard->leave();
        QCoreApplication::processEvents();
        QCOMPARE(m_pWindow->grab().toImage(), with);
        QCOMPARE(m_pWindow->findChildren<QWidget *>().size(), parts);
    }

    void speaksTheClientsLanguage()
    {
        QTRY_VERIFY_WITH_TIMEOUT(m_pCard->isVisible(), cPatienceMs);
        HostLanguage language(QStringLiteral(VOIP_TRANSLATIONS));
        QVERIFY(language.use(QStringLiteral("zh_CN")));
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::text(m_pCard.get(), "lblWhy").startsWith(QStringLiteral("这里没有画面")),
                                 cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(offset(), QPoint(), cPatienceMs);
    }

    void noCallWindowIsNoCard()
    {
        VideoCard card(m_book);
        card.accompany(nullptr, QStringLiteral("30010001"));
        QVERIFY(!card.isVisible());
        QWidget other;
        other.show();
        card.accompany(&other, QStringLiteral("30010001"));
        QVERIFY(!card.isVisible());
        card.accompany(m_pWindow.get(), QStringLiteral("4711"));
        QTRY_VERIFY_WITH_TIMEOUT(card.isVisible(), cPatienceMs);
        QCOMPARE(WindowProbe::text(&card, "lblName"), QStringLiteral("4711"));
        m_pWindow.reset();
        QTRY_VERIFY_WITH_TIMEOUT(!card.isVisible(), cPatienceMs);
    }

private:
    void dragCard() const
    {
        const QPoint start = Deeds::placeOf(*m_pCard).center();
        ScreenPointer pointer;
        pointer.moveTo(start);
        pointer.press(Qt::LeftButton);
        for (int i = 1; i <= 5; ++i) {
            pointer.moveTo(start + QPoint(4 * i, 2 * i));
            QTest::qWait(20);
        }
        pointer.release(Qt::LeftButton);
        QTest::qWait(20);
    }

    void startCall(CVoipWidget::VoipType type)
    {
        const QString uid = QStringLiteral("30010001");
        m_pWindow->setVoipCallInfo({uid}, type, true, true);
        m_pWindow->show();
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        if (type == CVoipWidget::Video) {
            m_pCard->accompany(m_pWindow.get(), uid);
        }
    }
    QRect pageOnScreen() const
    {
        const auto *page = m_pWindow->findChild<QWidget *>(QStringLiteral("playFramWidget"));
        return {page->mapToGlobal(QPoint()), page->size()};
    }
    /// How far the card is from the middle of the page, but for half a pixel; far while it is not shown.
    QPoint offset() const
    {
        const QPoint away = pageOnScreen().center() - Deeds::placeOf(*m_pCard).center();
        return !m_pCard->isVisible() ? QPoint(9999, 9999) : away / 2;
    }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<CVoipWidget> m_pWindow;
    std::unique_ptr<VideoCard> m_pCard;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VideoCard, Widgets)
#include "tst_VideoCard.moc"
