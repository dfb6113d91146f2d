#pragma once

#include "TourSteps.h"

/// The words in which the tour's steps are written: actions as a person does them, by real buttons, and checks of what
/// must then be seen. The stage's parts must outlive what is made here. GUI thread.
class TourScript
{
public:
    explicit TourScript(const TourStage &stage) : m_stage(stage) {}

    using Action = std::function<bool()>;
    using Window = std::function<QWidget *()>;

    // Actions: clicks on real buttons. Each says whether what it clicks on stood there.
    Action pressContact(const char *strUid, const char *strButton) const;
    Action pressMain(const char *strButton) const;
    Action pressCallWindow(const char *strButton) const;
    Action pressPrompt(const char *strButton) const;
    Action pressBox(const char *strButton) const;

    static Action pressPicker(const char *strButton);
    /// Turns the check marks of these people (user ids) in the picker.
    static Action pick(const QStringList &uids);
    /// Clicks on a member's button in the call window, by the role that holds its rectangle.
    static Action pressMember(const char *strUid, int rectRole);
    static Action doubleClickMember(const char *strUid);

    // Windows, for pictures.
    Window mainWindow() const;
    Window prompt() const;
    static Window callWindow();
    static Window messageBox();
    static Window picker();

    // Checks of the lines between plug-in and call process.
    TourCheck command(const char *strType, const QString &strPart = QString()) const;
    TourCheck order(const char *strFirst, const char *strSecond) const;
    TourCheck code(int iCode, const char *strMeaning) const;
    TourCheck happened(const QString &strWords) const;

    // Checks of the events between plug-in and host.
    TourCheck told(int iMsgId, const QString &strPart = QString()) const;
    TourCheck asked(int iMsgId, const QString &strPart = QString()) const;

    // Checks of what the person sees.
    TourCheck record(int iResult, bool bCaller, bool bConnected) const;
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

    // Checks of the call process itself.
    TourCheck processes(int iCount) const;

private:
    TourStage m_stage;
};
