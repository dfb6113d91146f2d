#include "CallWindowTest.h"

#include "fakes/ClickTarget.h"
#include "fakes/Patience.h"
#include "widgets/ErrorMessage.h"
#include "widgets/PushButtonEx.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTimer>

void CallWindowTest::startAnew()
{
    cleanup();
    init();
}

void CallWindowTest::showWindow()
{
    m_pWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get(), cPatienceMs));
}

QAbstractButton *CallWindowTest::button(const char *name) const
{
    auto *pPart = part<QWidget>(name);
    auto *pButton = qobject_cast<QAbstractButton *>(pPart);
    return pButton != nullptr ? pButton : pPart->findChild<QAbstractButton *>();
}

void CallWindowTest::startCall(CVoipWidget::VoipType type, bool bConnected)
{
    m_pWindow->setVoipCallInfo({uid("ann"), uid("bob")}, type, true, bConnected);
}

void CallWindowTest::init()
{
    m_pContacts = std::make_unique<ContactFixture>();
    m_pWindow = std::make_unique<CVoipWidget>();
    m_sent.clear();
    record();
    newRecords();
}

void CallWindowTest::cleanup()
{
    m_pWindow.reset();
    m_pContacts.reset();
}

void CallWindowTest::record()
{
    CVoipWidget *w = m_pWindow.get();
    const auto flag = [this](const char *name) {
        return [this, name](bool bOn) { m_sent.append(QLatin1String(name) + (bOn ? "+" : "-")); };
    };
    const auto number = [this](const char *name) {
        return [this, name](qlonglong i) { m_sent.append(QLatin1String(name) + QString::number(i)); };
    };
    const auto plain = [this](const char *name) { return [this, name] { m_sent.append(QLatin1String(name)); }; };
    const auto user = [this](const char *name) {
        return [this, name](const QString &strUid) { m_sent.append(QLatin1String(name) + strUid); };
    };
    connect(w, &CVoipWidget::signal_SetMicEnable, this, flag("mic"));
    connect(w, &CVoipWidget::signal_SetSpeakerEnable, this, flag("speaker"));
    connect(w, &CVoipWidget::signal_SetCameraEnable, this, flag("camera"));
    connect(w, &CVoipWidget::signal_SetMicVolume, this, number("micvolume="));
    connect(w, &CVoipWidget::signal_SetSpeakerVolume, this, number("speakervolume="));
    connect(w, &CVoipWidget::signal_HangupCurrentCall, this, plain("hangup"));
    connect(w, &CVoipWidget::signal_AddConferenceMember, this, plain("add"));
    connect(w, &CVoipWidget::signal_RemoveUser, this, user("remove "));
    connect(w, &CVoipWidget::signal_MuteUser, this, [this](const QString &strUid, bool bMute) {
        m_sent.append(QStringLiteral("mute ") + strUid + (bMute ? "+" : "-"));
    });
    connect(w, &CVoipWidget::signal_MuteAll, this, flag("muteall"));
    connect(w, &CVoipWidget::signal_ClearCallData, this, plain("clear"));
    connect(w, &CVoipWidget::signal_ReInviteConfUser, this, user("reinvite "));
}

QStringList CallWindowTest::newRecords()
{
    static const QRegularExpression prefix(QStringLiteral("^\\[DEBUG\\]\\[([^:]*):\\d+\\]: "));
    return m_log.take().replaceInStrings(prefix, QStringLiteral("\\1: "));
}

void CallWindowTest::answerQuestion(const char *name, const std::function<void()> &before)
{
    QTimer::singleShot(0, this, [name, before] {
        auto *pQuestion = qobject_cast<ErrorMessage *>(QApplication::activeModalWidget());
        QVERIFY(pQuestion != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(pQuestion, cPatienceMs));
        before();
        QTest::mouseClick(clickTarget(pQuestion->findChild<QWidget *>(QLatin1String(name))), Qt::LeftButton);
        QVERIFY(!pQuestion->isVisible());
    });
}

QStringList CallWindowTest::questionWords()
{
    const QWidget *pQuestion = QApplication::activeModalWidget();
    QStringList words;
    for (const char *name : {"titlelabel", "msgLabel"}) {
        words.append(pQuestion->findChild<QLabel *>(QLatin1String(name))->text());
    }
    for (const char *name : {"acceptBtn", "closeBtn"}) {
        words.append(pQuestion->findChild<PushButtonEx *>(QLatin1String(name))->text());
    }
    return words;
}
