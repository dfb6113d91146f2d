#include "fakes/Patience.h"
#include "widgets/BareWindow.h"
#include "widgets/HotLabel.h"

#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

class tst_HotLabel : public QObject
{
    Q_OBJECT

private:
    // Knows the label's key in the context that all dialogs share, and nothing else.
    class Words : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *sourceText, const char *, int) const override
        {
            const bool bOwn = qstrcmp(context, "QObject") == 0 && qstrcmp(sourceText, "modifyhotkey") == 0;
            return bOwn ? QStringLiteral("修改热键") : QString();
        }
    };

    BareWindow m_window;
    HotLabel *m_pLabel = nullptr;

    QPoint middle() const { return m_pLabel->geometry().center(); }

private slots:
    void init()
    {
        m_pLabel = new HotLabel(&m_window);
        m_pLabel->setText(QStringLiteral("from the form"));
        m_window.showAround(m_pLabel, QRect(50, 40, 120, 20), QSize(200, 100));
    }

    void cleanup() { m_window.takeAway(m_pLabel); }

    void wordsBecomeALinkUnderTheMouse()
    {
        QCOMPARE(m_pLabel->text(), QStringLiteral("from the form"));
        m_window.moveTo(middle());
        QTRY_COMPARE_WITH_TIMEOUT(m_pLabel->text(), QStringLiteral("<a href=\"#\">modifyhotkey</a>"), cPatienceMs);
        m_window.moveOut();
        QTRY_COMPARE_WITH_TIMEOUT(m_pLabel->text(), QStringLiteral("modifyhotkey"), cPatienceMs);
    }

    void wordsAreTranslatedInTheSharedContext()
    {
        Words words;
        QVERIFY(QCoreApplication::installTranslator(&words));
        m_window.moveTo(middle());
        QTRY_COMPARE_WITH_TIMEOUT(m_pLabel->text(), QStringLiteral("<a href=\"#\">修改热键</a>"), cPatienceMs);
        m_window.moveOut();
        QTRY_COMPARE_WITH_TIMEOUT(m_pLabel->text(), QStringLiteral("修改热键"), cPatienceMs);
        QCoreApplication::removeTranslator(&words);
    }

    void leftReleaseSendsTheShownText()
    {
        QSignalSpy clicked(m_pLabel, &HotLabel::signal_clickNameLabel);
        m_window.moveTo(middle());
        QTest::mousePress(m_window.windowHandle(), Qt::LeftButton, {}, middle());
        QCOMPARE(clicked.count(), 0);
        QTest::mouseRelease(m_window.windowHandle(), Qt::LeftButton, {}, middle());
        QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, cPatienceMs);
        QCOMPARE(clicked.first().first().toString(), QStringLiteral("<a href=\"#\">modifyhotkey</a>"));
    }

    void otherButtonsSendNothing_data()
    {
        QTest::addColumn<int>("button");
        QTest::newRow("right") << int(Qt::RightButton);
        QTest::newRow("middle") << int(Qt::MiddleButton);
    }

    void otherButtonsSendNothing()
    {
        QFETCH(int, button);
        const QSignalSpy clicked(m_pLabel, &HotLabel::signal_clickNameLabel);
        QTest::mouseClick(m_pLabel, Qt::MouseButton(button));
        QCOMPARE(clicked.count(), 0);
    }

    void releaseOfALinkStillReachesTheLabel()
    {
        QSignalSpy activated(m_pLabel, &QLabel::linkActivated);
        m_window.moveTo(middle());
        QTRY_VERIFY_WITH_TIMEOUT(m_pLabel->text().startsWith(QLatin1String("<a ")), cPatienceMs);
        const QPoint onTheWords = m_pLabel->geometry().topLeft() + QPoint(10, m_pLabel->height() / 2);
        m_window.moveTo(onTheWords);
        QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {}, onTheWords);
        QTRY_COMPARE_WITH_TIMEOUT(activated.count(), 1, cPatienceMs);
        QCOMPARE(activated.first().first().toString(), QStringLiteral("#"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HotLabel, Widgets)

#include "tst_HotLabel.moc"
