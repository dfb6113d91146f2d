// The plug-in's windows as a screen reader walks them, in every language of the client: what can be pressed or chosen
// has a name in that language, no glyph and no key is read out, and each row of the lists says all that it shows.

#include "client/HostLanguage.h"

#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceInfoListView.h"
#include "ui/ConferenceListView.h"
#include "ui/ContactFixture.h"
#include "ui/VoiceConferenceWidget.h"
#include "ui/VoipWidget.h"
#include "widgets/ErrorMessage.h"

#include <QAccessible>
#include <QRegularExpression>
#include <QTest>

#include <functional>

class tst_ScreenReader : public QObject
{
    Q_OBJECT

private:
    using Visit = std::function<void(QAccessibleInterface &)>;

    static void walk(QAccessibleInterface *pPart, const Visit &visit)
    {
        if (pPart == nullptr || pPart->state().invisible) {
            return;
        }
        visit(*pPart);
        for (int i = 0; i < pPart->childCount(); ++i) {
            walk(pPart->child(i), visit);
        }
    }
    static QString nameOf(const QAccessibleInterface &part) { return part.text(QAccessible::Name); }
    static bool isPressedOrChosen(QAccessible::Role role)
    {
        static const QList<QAccessible::Role> roles{
            QAccessible::Button,       QAccessible::PushButton, QAccessible::CheckBox, QAccessible::RadioButton,
            QAccessible::EditableText, QAccessible::ComboBox,   QAccessible::Slider,   QAccessible::List,
            QAccessible::ListItem,     QAccessible::Table,      QAccessible::Cell};
        return roles.contains(role);
    }
    /// Reads the window; `iLeast` is how many parts at least can be pressed or chosen in it.
    static void readWindow(QWidget &window, int iLeast)
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));
        QCoreApplication::processEvents();
        const bool bEnglish = QLatin1String(QTest::currentDataTag()) == QLatin1String("en");
        static const QRegularExpression privateUse(QStringLiteral("[\uE000-\uF8FF]"));
        static const QRegularExpression chinese(QStringLiteral("[\u4e00-\u9fa5]"));
        int iFound = 0;
        QStringList faults;
        walk(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface &part) {
            const QString strName = nameOf(part);
            const QString strWhere =
                QStringLiteral("%1 %2 '%3'")
                    .arg(part.role())
                    .arg(part.object() != nullptr ? part.object()->objectName() : QString(), strName);
            if (strName.contains(privateUse)) {
                faults.append(QStringLiteral("a glyph: ") + strWhere);
            }
            if (!isPressedOrChosen(part.role())) {
                return;
            }
            ++iFound;
            if (strName.trimmed().isEmpty()) {
                faults.append(QStringLiteral("no name: ") + strWhere);
            } else if (strName.contains(chinese) == bEnglish) {
                faults.append(QStringLiteral("other language: ") + strWhere);
            }
        });
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY2(iFound >= iLeast, qPrintable(QString::number(iFound)));
    }
    /// The rows of a list as they are read out.
    static QStringList rowsOf(QWidget *pList)
    {
        QStringList rows;
        walk(QAccessible::queryAccessibleInterface(pList), [&](QAccessibleInterface &part) {
            if (part.role() == QAccessible::ListItem) {
                rows.append(nameOf(part));
            }
        });
        return rows;
    }
    static void addLanguages()
    {
        QTest::addColumn<QString>("language");
        for (const HostLanguage::Choice &choice : HostLanguage::choices()) {
            QTest::newRow(qPrintable(choice.setting)) << choice.setting;
        }
    }
    static ConfInfoData record(const char *pId, bool bConnected)
    {
        ConfInfoData info;
        info.m_strConfID = QLatin1String(pId);
        info.m_strCreatUserID = cName;
        info.m_strCreatTime = QStringLiteral("2024-03-05 09:08:07");
        info.m_strCallTime = QStringLiteral("3675");
        info.m_listMember = QStringList{cName};
        info.m_bIsConnect = bConnected;
        return info;
    }

    // In both languages' letters, so that a row of it alone would pass for either.
    static inline const QString cName = QStringLiteral("1001");

    std::unique_ptr<HostLanguage> m_pLanguage;
    ContactFixture m_contacts;

private slots:
    void init()
    {
        m_pLanguage = std::make_unique<HostLanguage>(QStringLiteral(VOIP_TRANSLATIONS));
        QVERIFY(m_pLanguage->use(QLatin1String(QTest::currentDataTag())));
    }

    void cleanup() { m_pLanguage.reset(); }

    void callWindowIsRead_data() { addLanguages(); }

    void callWindowIsRead()
    {
        m_contacts.addContact(cName, ContactFixture::card(cName, {}));
        for (const CVoipWidget::VoipType type : {CVoipWidget::Voice, CVoipWidget::Video, CVoipWidget::Conference}) {
            for (const bool bConnected : {false, true}) {
                // Without a reader on the bus Qt forgets no row that has gone, so each call has a window of its own.
                CVoipWidget window;
                window.setVoipCallInfo({QStringLiteral("1001")}, type, true, bConnected);
                readWindow(window, 2);
            }
        }
        // What no call shows has its name as well.
        CVoipWidget window;
        window.setVoipCallInfo({cName}, CVoipWidget::Conference, true, true);
        for (const char *pButton : {"btnCamera", "btnChangeWindow"}) {
            window.findChild<QWidget *>(pButton)->show();
        }
        readWindow(window, 10);
    }

    void centreIsRead_data() { addLanguages(); }

    void centreIsRead()
    {
        m_contacts.addContact(cName, ContactFixture::card(cName, {}));
        CVoiceConferenceWidget window;
        window.addConferenceInfo(record("c1", true));
        window.addConferenceInfo(record("c2", false));
        readWindow(window, 5);
        QMetaObject::invokeMethod(&window, "slot_ShowConfDetail", Q_ARG(QString, QStringLiteral("c1")));
        QStringList names;
        walk(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface &part) {
            if (part.role() == QAccessible::Button || part.role() == QAccessible::PushButton) {
                names.append(nameOf(part));
            }
            QVERIFY2(!nameOf(part).contains(QRegularExpression(QStringLiteral("[\uE000-\uF8FF]"))),
                     qPrintable(nameOf(part)));
        });
        names.removeAll(QString());
        QVERIFY2(names.size() == 2, qPrintable(names.join('|')));
    }

    void questionIsRead_data() { addLanguages(); }

    void questionIsRead()
    {
        ErrorMessage question(QString(), QString(), nullptr);
        question.setBtnText(CVoipWidget::tr("sure"), CVoipWidget::tr("cancel"));
        readWindow(question, 3);
    }

    void namesFollowTheLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("zh_CN") << QStringLiteral("zh_CN");
    }

    void namesFollowTheLanguage()
    {
        CVoipWidget window;
        window.setVoipCallInfo({QStringLiteral("1001")}, CVoipWidget::Conference, true, true);
        CVoiceConferenceWidget centre;
        centre.addConferenceInfo(record("c1", true));
        QVERIFY(m_pLanguage->use(QStringLiteral("en")));
        QCoreApplication::processEvents();
        QStringList names;
        for (const char *pButton : {"btnMic", "btnSpeaker", "btnMuteAll", "btnClose"}) {
            names.append(nameOf(*QAccessible::queryAccessibleInterface(
                window.findChild<QWidget *>(pButton)->findChild<QWidget *>("pushButton"))));
        }
        QCOMPARE(names, (QStringList{"Mute the microphone", "Sound off", "Mute all members", "Close"}));
        QMetaObject::invokeMethod(window.findChild<QWidget *>("btnMuteAll"), "clicked");
        QCOMPARE(nameOf(*QAccessible::queryAccessibleInterface(
                     window.findChild<QWidget *>("btnMuteAll")->findChild<QWidget *>("pushButton"))),
                 QStringLiteral("Unmute all members"));
        QCOMPARE(window.findChild<QWidget *>("listView")->accessibleName(),
                 QStringLiteral("Members of the conference"));
        QCOMPARE(centre.findChild<QWidget *>("listView")->accessibleName(), QStringLiteral("Past conferences"));
        QCOMPARE(centre.findChild<QWidget *>("backBtn")->accessibleName(),
                 QStringLiteral("Back to the past conferences"));
    }

    void rowsSayWhoAndWhat_data()
    {
        QTest::addColumn<QStringList>("members");
        QTest::addColumn<QStringList>("conferences");
        QTest::newRow("en") << QStringList{"1001, connected, muted", "1002, busy", "1003, being called",
                                           "1004, not connected, created the conference"}
                            << QStringList{"1001, not connected, 2024-03-05 09:08:07, called by another",
                                           "1001, 1 h 1 min 15 s, 2024-03-05 09:08:07, called by another"};
        QTest::newRow("zh_CN") << QStringList{"1001, 已接通, 已静音", "1002, 对方正忙", "1003, 呼叫中",
                                              "1004, 未接通, 会议发起人"}
                               << QStringList{"1001, 未接通, 2024-03-05 09:08:07, 由他人发起",
                                              "1001, 1 小时 1 分 15 秒, 2024-03-05 09:08:07, 由他人发起"};
    }

    void rowsSayWhoAndWhat()
    {
        CConferenceListView members;
        members.addUserList({"1001", "1002", "1003", "1004"});
        for (const char *pMember : {"1001", "1002", "1003", "1004"}) {
            const QString strMember = QLatin1String(pMember);
            VcardInfo card;
            card.m_strNickName = strMember;
            members.updateUserInfo(ContactFixture::jid(strMember), card);
        }
        members.updateConferenceUserStatus(QStringLiteral("1001"), ConferenceConnected);
        members.updateConferenceUserStatus(QStringLiteral("1002"), ConferenceBusy);
        members.updateConferenceUserStatus(QStringLiteral("1004"), 99);
        members.setConferenceCreator(QStringLiteral("1004"));
        members.model()->setData(members.model()->index(0, 0), true, ROLE_MUTED);
        members.show();
        QTEST(rowsOf(&members), "members");

        m_contacts.addContact(cName, ContactFixture::card(cName, {}));
        CConferenceInfoListView history;
        history.addConfInfoData(record("c1", true));
        history.addConfInfoData(record("c2", false));
        history.show();
        QStringList rows = rowsOf(&history);
        QTEST(rows, "conferences");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ScreenReader, Widgets)
#include "tst_ScreenReader.moc"
