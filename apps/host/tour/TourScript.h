#pragma once

#include "screen/WindowProbe.h"
#include "tour/Tour.h"
#include "tour/TourStage.h"

#include "wire/Commands.h"
#include "wire/Notifications.h"

/// The words in which the tour's steps are written: actions as a person does them, by real buttons, and checks of what
/// must then be seen. The stage's parts must outlive what is made here. GUI thread.
class TourScript
{
public:
    explicit TourScript(const TourStage &stage) : m_stage(stage) {}

    using Action = std::function<bool()>;
    using Window = std::function<QWidget *()>;

    // Actions: clicks on real buttons with the real mouse.
    Action pressContact(const char *strUid, const char *strButton) const;

    /// Rests the mouse on it, whether it can be pressed or not.
    Action hoverContact(const char *strUid, const char *strButton) const;
    Action pressMain(const char *strButton) const;
    Action pressSettings(const QString &strButton) const;
    Action pressCallWindow(const char *strButton) const;
    Action pressPrompt(const char *strButton) const;
    Action pressBox(const char *strButton) const;
    Action pressPicker(const char *strButton) const;
    Action pressCentre(const char *strButton) const;

    /// Turns the check marks of these people (user ids) in the picker.
    Action pick(const QStringList &uids) const;

    /// Clicks on a member's button in the call window, by the role that holds its rectangle.
    Action pressMember(const char *strUid, int rectRole) const;
    Action doubleClickMember(const char *strUid) const;

    // Actions on the newest record, in the conference centre's list, of a conference that this user (id) created.
    Action pressRecord(const char *strUid, int rectRole) const;
    Action rightPressRecord(const char *strUid) const;
    Action hoverRecord(const char *strUid) const;
    Action hoverRecordHead(const char *strUid) const;

    /// Moves over the head of a member on the centre's detail page.
    Action hoverDetailHead(const char *strUid) const;

    /// Chooses from the menu that is open.
    Action choose(const char *strText) const;

    /// Takes the mouse out of the way.
    Action leave() const;

    /// Clicks into an edit field of the main window, and behind what stands in it types the text with the real
    /// keyboard: small Latin letters, digits, spaces.
    Action typeInto(const char *strEdit, const QString &strText) const;

    // Windows, for pictures.
    Window mainWindow() const;
    Window prompt() const;
    static Window callWindow();
    static Window messageBox();
    static Window picker();
    static Window centre();
    static Window menu();

    // Checks of the lines between plug-in and call process.
    TourCheck command(Wire::Command command, const QString &strPart = QString()) const;
    TourCheck order(Wire::Command first, Wire::Command second) const;
    TourCheck code(Wire::Code code, const char *strMeaning) const;
    TourCheck happened(const QString &strWords) const;

    // Checks of the events between plug-in and host.
    TourCheck told(int iMsgId, const QString &strPart = QString()) const;
    TourCheck asked(int iMsgId, const QString &strPart = QString()) const;

    // Checks of what the person sees.
    TourCheck record(int iResult, bool bCaller, bool bConnected) const;
    TourCheck mainSays(const char *strPart, const QString &strText) const;
    TourCheck mainShows(const char *strPart, bool bShown) const;
    static TourCheck tipSays(const QString &strText);
    static TourCheck shows(const char *strPart, const QString &strText);
    static TourCheck clockRuns();
    static TourCheck windowGone();
    static TourCheck boxSays(const QString &strText);
    static TourCheck boxGone();
    TourCheck prompted(const QString &strName) const;
    TourCheck promptGone() const;
    static TourCheck pickerSays(const char *strPart, const QString &strText);
    static TourCheck pickerGone();

    // Checks of the member list in the call window. The status is that of the list's rows.
    static TourCheck member(const char *strUid, const char *strName, int iStatus);
    static TourCheck memberGone(const char *strUid, const char *strName);
    static TourCheck memberCount(int iCount);

    // Checks of the conference centre and of what the client shows for it.
    static TourCheck centreShows(const char *strPart, const QString &strText);
    static TourCheck centreGone();
    static TourCheck recordCount(int iCount);

    /// The place of that role in the record's row is shown.
    static TourCheck recordHas(const char *strUid, int rectRole, const QString &strWords);
    static TourCheck detailCount(int iCount);
    static TourCheck menuOffers(const QStringList &texts);
    TourCheck card(const char *strPart, const QString &strText) const;
    TourCheck cardGone() const;

    // Checks of the call process itself.
    TourCheck processes(int iCount) const;

private:
    using Finder = std::function<WindowProbe::Spot()>;

    Action click(const Finder &where, Qt::MouseButton button = Qt::LeftButton, int iTimes = 1) const;
    Action hover(const Finder &where) const;

    TourStage m_stage;
};
