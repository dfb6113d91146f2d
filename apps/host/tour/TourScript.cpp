#include "tour/TourScript.h"

#include "client/CallProcess.h"
#include "panes/MainWindow.h"
#include "panes/MemberPicker.h"
#include "screen/WindowProbe.h"
#include "tour/TourHand.h"
#include "tour/TourWatch.h"
#include "traffic/CallRecord.h"

#include "model/MemberRoles.h"

#include <QApplication>

#include <algorithm>

namespace {

WindowProbe::Row memberRow(const char *strUid)
{
    return {"listView", ROLE_USER_ID, QString::fromLatin1(strUid)};
}

/// A row of the conference centre's list: known by the creator.
WindowProbe::Row recordRow(const char *strUid)
{
    return memberRow(strUid);
}

WindowProbe::Row detailCell(const char *strUid)
{
    return {"tableView", ROLE_USER_ID, QString::fromLatin1(strUid)};
}

/// The text beside a member's name; a status that the list has no text for is its number.
QString statusWord(int iStatus)
{
    const auto *row = std::find_if(cConferenceStatusTable.begin(), cConferenceStatusTable.end(),
                                   [iStatus](const ConferenceStatusRow &entry) { return entry.iStatus == iStatus; });
    return row != cConferenceStatusTable.end() ? QString::fromUtf8(row->pText) : QString::number(iStatus);
}

} // namespace

TourScript::Action TourScript::click(const Finder &where, Qt::MouseButton button, int iTimes) const
{
    return [hand = &m_stage.hand, where, button, iTimes] {
        hand->click(where, button, iTimes);
        return true;
    };
}

TourScript::Action TourScript::hover(const Finder &where) const
{
    return [hand = &m_stage.hand, where] {
        hand->hover(where);
        return true;
    };
}

TourScript::Action TourScript::leave() const
{
    return [hand = &m_stage.hand] {
        hand->rest();
        return true;
    };
}

TourScript::Action TourScript::pressCallWindow(const char *strButton) const
{
    return click([strButton] { return WindowProbe::button(WindowProbe::callWindow(), strButton); });
}

TourScript::Action TourScript::pressPrompt(const char *strButton) const
{
    return click([window = &m_stage.window, strButton] { return WindowProbe::button(&window->prompt(), strButton); });
}

TourScript::Action TourScript::pressBox(const char *strButton) const
{
    return click([strButton] { return WindowProbe::button(WindowProbe::messageBox(), strButton); });
}

TourScript::Action TourScript::pressPicker(const char *strButton) const
{
    return click([strButton] { return WindowProbe::button(WindowProbe::memberPicker(), strButton); });
}

TourScript::Action TourScript::pressCentre(const char *strButton) const
{
    return click([strButton] { return WindowProbe::button(WindowProbe::conferenceCentre(), strButton); });
}

TourScript::Action TourScript::pick(const QStringList &uids) const
{
    return [hand = &m_stage.hand, uids] {
        for (const QString &uid : uids) {
            hand->click([uid] {
                return WindowProbe::rowMiddle(WindowProbe::memberPicker(), {"listPeople", MemberPicker::cUidRole, uid});
            });
        }
        return true;
    };
}

TourScript::Action TourScript::pressMember(const char *strUid, int rectRole) const
{
    return click(
        [strUid, rectRole] { return WindowProbe::rowPart(WindowProbe::callWindow(), memberRow(strUid), rectRole); });
}

TourScript::Action TourScript::doubleClickMember(const char *strUid) const
{
    return click([strUid] { return WindowProbe::rowMiddle(WindowProbe::callWindow(), memberRow(strUid)); },
                 Qt::LeftButton, 2);
}

TourScript::Action TourScript::pressRecord(const char *strUid, int rectRole) const
{
    return click([strUid, rectRole] {
        return WindowProbe::rowPart(WindowProbe::conferenceCentre(), recordRow(strUid), rectRole);
    });
}

TourScript::Action TourScript::rightPressRecord(const char *strUid) const
{
    return click([strUid] { return WindowProbe::rowMiddle(WindowProbe::conferenceCentre(), recordRow(strUid)); },
                 Qt::RightButton);
}

TourScript::Action TourScript::hoverRecord(const char *strUid) const
{
    return hover([strUid] { return WindowProbe::rowMiddle(WindowProbe::conferenceCentre(), recordRow(strUid)); });
}

TourScript::Action TourScript::hoverRecordHead(const char *strUid) const
{
    return hover(
        [strUid] { return WindowProbe::rowPart(WindowProbe::conferenceCentre(), recordRow(strUid), ROLE_HEAD_RECT); });
}

TourScript::Action TourScript::hoverDetailHead(const char *strUid) const
{
    return hover(
        [strUid] { return WindowProbe::rowPart(WindowProbe::conferenceCentre(), detailCell(strUid), ROLE_HEAD_RECT); });
}

TourScript::Action TourScript::choose(const char *strText) const
{
    return click([strText] { return WindowProbe::menuItem(QString::fromUtf8(strText)); });
}

TourScript::Window TourScript::mainWindow() const
{
    return [window = &m_stage.window] { return window; };
}

TourScript::Window TourScript::prompt() const
{
    return [window = &m_stage.window] { return &window->prompt(); };
}

TourScript::Window TourScript::callWindow()
{
    return [] { return WindowProbe::callWindow(); };
}

TourScript::Window TourScript::messageBox()
{
    return [] { return WindowProbe::messageBox(); };
}

TourScript::Window TourScript::picker()
{
    return [] { return WindowProbe::memberPicker(); };
}

TourScript::Window TourScript::centre()
{
    return [] { return WindowProbe::conferenceCentre(); };
}

TourScript::Window TourScript::menu()
{
    return [] { return QApplication::activePopupWidget(); };
}

TourCheck TourScript::command(Wire::Command command, const QString &strPart) const
{
    const QString type = QString::fromLatin1(Wire::nameOf(command));
    const QString words = QStringLiteral("the plug-in has written \"%1\"").arg(type);
    return {strPart.isEmpty() ? words : words + QStringLiteral(" with ") + strPart,
            [watch = &m_stage.watch, type, strPart] { return watch->commanded(type, strPart); }};
}

TourCheck TourScript::order(Wire::Command first, Wire::Command second) const
{
    const QString former = QString::fromLatin1(Wire::nameOf(first));
    const QString latter = QString::fromLatin1(Wire::nameOf(second));
    return {QStringLiteral("\"%1\" came before \"%2\"").arg(former, latter),
            [watch = &m_stage.watch, former, latter] { return watch->commandedInOrder(former, latter); }};
}

TourCheck TourScript::code(Wire::Code code, const char *strMeaning) const
{
    const int number = int(code);
    return {QStringLiteral("the call process has reported code %1, %2").arg(number).arg(QString::fromUtf8(strMeaning)),
            [watch = &m_stage.watch, number] { return watch->notified(number); }};
}

TourCheck TourScript::happened(const QString &strWords) const
{
    return {QStringLiteral("the call process has noted: %1").arg(strWords),
            [watch = &m_stage.watch, strWords] { return watch->happened(strWords); }};
}

TourCheck TourScript::told(int iMsgId, const QString &strPart) const
{
    const QString words = QStringLiteral("the plug-in has told the host: %1 %2").arg(iMsgId).arg(strPart);
    return {words.trimmed(), [watch = &m_stage.watch, iMsgId, strPart] { return watch->told(iMsgId, strPart); }};
}

TourCheck TourScript::asked(int iMsgId, const QString &strPart) const
{
    const QString words = QStringLiteral("the host has told the plug-in: %1 %2").arg(iMsgId).arg(strPart);
    return {words.trimmed(), [watch = &m_stage.watch, iMsgId, strPart] { return watch->asked(iMsgId, strPart); }};
}

TourCheck TourScript::record(int iResult, bool bCaller, bool bConnected) const
{
    const QString words =
        QStringLiteral("the record of the %1 call says \"%2\", %3")
            .arg(bCaller ? QStringLiteral("outgoing") : QStringLiteral("incoming"), outcomeWord(iResult),
                 bConnected ? QStringLiteral("connected") : QStringLiteral("not connected"));
    return {words, [watch = &m_stage.watch, iResult, bCaller, bConnected] {
                return watch->recorded(iResult, bCaller, bConnected);
            }};
}

TourCheck TourScript::shows(const char *strPart, const QString &strText)
{
    return {QStringLiteral("the call window shows %1").arg(strText),
            [strPart, strText] { return WindowProbe::text(WindowProbe::callWindow(), strPart).contains(strText); }};
}

TourCheck TourScript::clockRuns()
{
    return {QStringLiteral("the call window's clock runs"), [last = QString(), shown = false]() mutable {
                // Until its first second the clock is blank or shows how long the call before lasted.
                const QString before = last;
                const bool wasShown = shown;
                last = WindowProbe::text(WindowProbe::callWindow(), "currentPlayTimeLabel");
                shown = WindowProbe::isShown(WindowProbe::callWindow(), "currentPlayTimeLabel");
                return wasShown && shown && last != before && last > QLatin1String("00:00:00");
            }};
}

TourCheck TourScript::windowGone()
{
    return {QStringLiteral("the call window is gone"), [] {
                const QWidget *window = WindowProbe::callWindow();
                return window == nullptr || !window->isVisible();
            }};
}

TourCheck TourScript::boxSays(const QString &strText)
{
    return {QStringLiteral("a message says %1").arg(strText),
            [strText] { return WindowProbe::text(WindowProbe::messageBox(), "msgLabel") == strText; }};
}

TourCheck TourScript::boxGone()
{
    return {QStringLiteral("the message is gone"), [] { return WindowProbe::messageBox() == nullptr; }};
}

TourCheck TourScript::prompted(const QString &strName) const
{
    return {QStringLiteral("the prompt says who calls: %1").arg(strName),
            [window = &m_stage.window, strName] { return WindowProbe::text(&window->prompt(), "lblName") == strName; }};
}

TourCheck TourScript::promptGone() const
{
    return {QStringLiteral("the prompt is gone"), [window = &m_stage.window] { return !window->prompt().isVisible(); }};
}

TourCheck TourScript::pickerSays(const char *strPart, const QString &strText)
{
    return {QStringLiteral("the picker says: %1").arg(strText),
            [strPart, strText] { return WindowProbe::text(WindowProbe::memberPicker(), strPart) == strText; }};
}

TourCheck TourScript::pickerGone()
{
    return {QStringLiteral("the picker is gone"), [] { return WindowProbe::memberPicker() == nullptr; }};
}

TourCheck TourScript::member(const char *strUid, const char *strName, int iStatus)
{
    return {QStringLiteral("the member list shows %1: %2").arg(QString::fromUtf8(strName), statusWord(iStatus)),
            [strUid, iStatus] {
                return WindowProbe::rowData(WindowProbe::callWindow(), memberRow(strUid), ROLE_CALL_STATUS) == iStatus;
            }};
}

TourCheck TourScript::memberGone(const char *strUid, const char *strName)
{
    return {QStringLiteral("the member list has no %1 any more").arg(QString::fromUtf8(strName)), [strUid] {
                return !WindowProbe::rowData(WindowProbe::callWindow(), memberRow(strUid), ROLE_USER_ID).isValid();
            }};
}

TourCheck TourScript::memberCount(int iCount)
{
    return shows("lblListCount", QStringLiteral("参与人员(%1)").arg(iCount));
}

TourCheck TourScript::centreShows(const char *strPart, const QString &strText)
{
    return {QStringLiteral("the conference centre shows %1").arg(strText), [strPart, strText] {
                return WindowProbe::text(WindowProbe::conferenceCentre(), strPart).contains(strText);
            }};
}

TourCheck TourScript::centreGone()
{
    return {QStringLiteral("the conference centre is gone"), [] { return WindowProbe::conferenceCentre() == nullptr; }};
}

TourCheck TourScript::recordCount(int iCount)
{
    return {QStringLiteral("the conference centre lists %1 conferences").arg(iCount), [iCount] {
                return WindowProbe::rowCount(WindowProbe::conferenceCentre(), "listView", ROLE_CONF_ID) == iCount;
            }};
}

TourCheck TourScript::recordHas(const char *strUid, int rectRole, const QString &strWords)
{
    return {QStringLiteral("the row shows %1").arg(strWords), [strUid, rectRole] {
                return !WindowProbe::rowData(WindowProbe::conferenceCentre(), recordRow(strUid), rectRole)
                            .toRect()
                            .isNull();
            }};
}

TourCheck TourScript::detailCount(int iCount)
{
    return {QStringLiteral("the detail page shows %1 people").arg(iCount), [iCount] {
                return WindowProbe::rowCount(WindowProbe::conferenceCentre(), "tableView", ROLE_USER_ID) == iCount;
            }};
}

TourCheck TourScript::menuOffers(const QStringList &texts)
{
    return {QStringLiteral("the menu offers %1").arg(texts.join(QStringLiteral(", "))),
            [texts] { return WindowProbe::menuTexts() == texts; }};
}

TourCheck TourScript::card(const char *strPart, const QString &strText) const
{
    return {QStringLiteral("the signature card says %1").arg(strText), [window = &m_stage.window, strPart, strText] {
                return WindowProbe::text(&window->signature(), strPart) == strText;
            }};
}

TourCheck TourScript::cardGone() const
{
    return {QStringLiteral("the signature card is gone"),
            [window = &m_stage.window] { return !window->signature().isVisible(); }};
}

TourCheck TourScript::processes(int iCount) const
{
    return {iCount == 0 ? QStringLiteral("no call process runs") : QStringLiteral("the call process runs"),
            [process = &m_stage.process, iCount] { return process->pids().size() == iCount; }};
}
