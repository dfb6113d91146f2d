// Where the call window comes up beside a client that keeps to a half of the screen. Its place is the screen's, not the
// one that Qt knows of.

#include "panes/CallWindowSide.h"

#include "fakes/Patience.h"
#include "ui/VoipWidget.h"

#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>

Q_DECLARE_METATYPE(WindowPlace::Side)

class tst_CallWindowSide : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pCall = std::make_unique<CVoipWidget>();
        m_pCall->setVoipCallInfo({QStringLiteral("30010001")}, CVoipWidget::Voice, true, true);
        m_pCall->move(cElsewhere);
    }

    void cleanup() { m_pCall.reset(); }

    void comesUpAtTheFootOfItsHalf_data()
    {
        QTest::addColumn<WindowPlace::Side>("side");
        QTest::newRow("left") << WindowPlace::Side::Left;
        QTest::newRow("right") << WindowPlace::Side::Right;
    }

    void comesUpAtTheFootOfItsHalf()
    {
        QFETCH(WindowPlace::Side, side);
        const CallWindowSide keeps(side);
        const QRect half = WindowPlace::part(QGuiApplication::primaryScreen()->availableGeometry(), side);
        const auto isAtItsFoot = [&] {
            const QRect place = onScreen(*m_pCall);
            return half.contains(place) && place.bottom() == half.bottom() &&
                   qAbs(place.center().x() - half.center().x()) <= 1;
        };
        m_pCall->show();
        QTRY_VERIFY_WITH_TIMEOUT(isAtItsFoot(), cPatienceMs);
        // Where the user puts it it stays until the next call.
        m_pCall->move(cElsewhere);
        QTRY_COMPARE_WITH_TIMEOUT(onScreen(*m_pCall).topLeft(), cElsewhere, cPatienceMs);
        m_pCall->hide();
        m_pCall->show();
        QTRY_VERIFY_WITH_TIMEOUT(isAtItsFoot(), cPatienceMs);
    }

    void otherWindowsComeUpWhereTheyWouldHave()
    {
        const CallWindowSide keeps(WindowPlace::Side::Right);
        QWidget other(nullptr, Qt::FramelessWindowHint);
        other.setGeometry(QRect(cElsewhere, QSize(200, 100)));
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other, cPatienceMs));
        QTRY_COMPARE_WITH_TIMEOUT(onScreen(other).topLeft(), cElsewhere, cPatienceMs);
    }

    void clientOfTheWholeScreenLeavesItAlone()
    {
        const CallWindowSide keeps(WindowPlace::Side::Whole);
        m_pCall->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pCall.get(), cPatienceMs));
        QTRY_COMPARE_WITH_TIMEOUT(onScreen(*m_pCall).topLeft(), cElsewhere, cPatienceMs);
    }

private:
    static constexpr QPoint cElsewhere{300, 40};

    /// Where the X server has the window's inside; nothing while it is hidden.
    static QRect onScreen(const QWidget &window)
    {
        QProcess xdotool;
        xdotool.start(QStringLiteral("xdotool"), {QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"),
                                                  QString::number(window.winId())});
        xdotool.waitForFinished(cPatienceMs);
        const QString said = QString::fromLatin1(xdotool.readAll());
        const auto number = [&said](const char *strName) {
            const QRegularExpression form(QStringLiteral("^%1=(-?\\d+)$").arg(QLatin1String(strName)),
                                          QRegularExpression::MultilineOption);
            return form.match(said).captured(1).toInt();
        };
        return QRect(number("X"), number("Y"), number("WIDTH"), number("HEIGHT"));
    }

    std::unique_ptr<CVoipWidget> m_pCall;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallWindowSide, Widgets)
#include "tst_CallWindowSide.moc"
