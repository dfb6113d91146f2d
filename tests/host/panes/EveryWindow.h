#pragma once

// Each window that a user of the client can have before them, made when it is asked for. Owns what it has made. GUI
// thread.

#include "client/ContactBook.h"
#include "client/HostLanguage.h"
#include "panes/DeviceBox.h"
#include "panes/MainWindow.h"
#include "panes/MemberPicker.h"
#include "panes/QuitQuestion.h"
#include "panes/VideoCard.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"

#include "fakes/Patience.h"
#include "host/history/CallRows.h"
#include "ui/ContactFixture.h"
#include "ui/VoiceConferenceWidget.h"
#include "ui/VoipWidget.h"
#include "widgets/ErrorMessage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTabWidget>
#include <QTest>

#include <functional>
#include <memory>

/// The client, signed in without a plug-in, with calls of each kind, and what the plug-in's windows show.
class EveryWindow
{
public:
    using Open = std::function<QWidget *(EveryWindow &)>;

    QWidget *main()
    {
        startClient();
        m_pSession->history().add(callRow("30010001", 2));
        m_pWindow->show();
        auto *calls = m_pWindow->findChild<QWidget *>(QStringLiteral("tableRecords"));
        calls->setFocus();
        QTest::keyClick(calls, Qt::Key_Delete);
        m_pSession->history().add(conferenceRow("30010001", "30010002", 1));
        m_pSession->history().add(missedRow("30010002"));
        m_pWindow->findChild<QAbstractButton *>(QStringLiteral("happeningsButton"))->setChecked(true);
        return m_pWindow.get();
    }

    /// With the bar that tells of a lost call service; null where it does not come.
    QWidget *lostService()
    {
        startClient();
        m_pSession->callService().setPauses({0});
        m_pSession->callService().setWanted(true);
        m_pWindow->show();
        const auto isTold = [this] { return WindowProbe::isShown(m_pWindow.get(), "btnStartService"); };
        return QTest::qWaitFor(isTold, cPatienceMs) ? m_pWindow.get() : nullptr;
    }
    QWidget *settings(int iPage)
    {
        startClient();
        m_pWindow->settingsPage().open();
        m_pWindow->settingsPage().findChild<QTabWidget *>()->setCurrentIndex(iPage);
        return &m_pWindow->settingsPage();
    }
    QWidget *prompt()
    {
        startClient();
        m_pWindow->prompt().prompt(QStringLiteral("30010002"), false, false);
        return &m_pWindow->prompt();
    }
    QWidget *quitQuestion()
    {
        startClient();
        m_pWindow->show();
        return keep(new QuitQuestion(m_pWindow.get()));
    }
    QWidget *picker()
    {
        auto *picker = new MemberPicker(m_book, MemberPicker::NewConference, QStringList(), nullptr);
        picker->findChild<QAbstractButton *>(QStringLiteral("btnMore"))->setChecked(true);
        return keep(picker);
    }
    QWidget *messageBox()
    {
        auto *box = new ErrorMessage(QString(), QString(), nullptr);
        box->setBtnText(CVoipWidget::tr("sure"), CVoipWidget::tr("cancel"));
        return keep(box);
    }
    QWidget *centre(bool bDetail)
    {
        addContact();
        ConfInfoData info;
        info.m_strConfID = QStringLiteral("c1");
        info.m_strCreatUserID = QStringLiteral("1001");
        info.m_strCreatTime = QStringLiteral("2024-03-05 09:08:07");
        info.m_strCallTime = QStringLiteral("3675");
        info.m_listMember = QStringList{QStringLiteral("1001")};
        info.m_bIsConnect = true;
        auto *centre = new CVoiceConferenceWidget;
        centre->addConferenceInfo(info);
        if (bDetail) {
            QMetaObject::invokeMethod(centre, "slot_ShowConfDetail", Q_ARG(QString, info.m_strConfID));
        }
        return keep(centre);
    }
    QWidget *callWindow(CVoipWidget::VoipType type, bool bConnected)
    {
        addContact();
        auto *window = new CVoipWidget;
        window->setVoipCallInfo({QStringLiteral("1001")}, type, true, bConnected);
        return keep(window);
    }

    /// A video call without a picture; null where its card does not come.
    QWidget *callUnderItsCard()
    {
        QWidget *window = callWindow(CVoipWidget::Video, true);
        window->show();
        m_pCard = std::make_unique<VideoCard>(m_book);
        m_pCard->accompany(window, QStringLiteral("30010001"));
        return QTest::qWaitFor([this] { return m_pCard->isVisible(); }, cPatienceMs) ? window : nullptr;
    }
    QWidget &card() { return *m_pCard; }

    /// What people, languages and devices are called, whatever the language of the window.
    QStringList properNames() const
    {
        QStringList names;
        for (const ContactBook::Entry &entry : m_book.entries()) {
            names.append(entry.shownName());
        }
        for (const HostLanguage::Choice &choice : HostLanguage::choices()) {
            names.append(choice.ownName);
        }
        // What the sound server calls its devices, as soon as it has told.
        for (const QWidget *widget : QApplication::allWidgets()) {
            const auto *box = qobject_cast<const DeviceBox *>(widget);
            for (int i = 1; box != nullptr && i < box->count(); ++i) {
                names.append(box->itemText(i));
            }
        }
        return names;
    }

private:
    void startClient()
    {
        m_pSession = std::make_unique<HostSession>(m_book);
        QString error;
        m_pSession->start(QStringLiteral("/no/module.so"), &error);
        m_pSession->setOnline(true);
        m_pWindow = std::make_unique<MainWindow>(*m_pSession, m_book);
    }
    void addContact()
    {
        m_pContacts = std::make_unique<ContactFixture>();
        m_pContacts->addContact(QStringLiteral("1001"), ContactFixture::card(QStringLiteral("1001"), {}));
    }
    QWidget *keep(QWidget *window)
    {
        m_pOther.reset(window);
        return window;
    }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<HostSession> m_pSession;
    std::unique_ptr<MainWindow> m_pWindow;
    std::unique_ptr<QWidget> m_pOther;
    std::unique_ptr<VideoCard> m_pCard;
};

Q_DECLARE_METATYPE(EveryWindow::Open)
