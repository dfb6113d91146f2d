<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>CUrlInfo</name>
    <message>
        <source>000000</source>
        <translation>000000</translation>
    </message>
</context>
<context>
    <name>CVoipManage</name>
    <message>
        <source>tip</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>soundfailedinsound</source>
        <translation>You are in a call already. Please end it first.</translation>
    </message>
</context>
<context>
    <name>CVoiceConferenceWidget</name>
    <message>
        <source>close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>CVoipWidget</name>
    <message>
        <source>close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>openmic</source>
        <translation>Unmute the microphone</translation>
    </message>
    <message>
        <source>closemic</source>
        <translation>Mute the microphone</translation>
    </message>
    <message>
        <source>openvioce</source>
        <translation>Sound on</translation>
    </message>
    <message>
        <source>silence</source>
        <translation>Sound off</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>tip</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>beSureToCloseCalling</source>
        <translation>Do you want to end this call?</translation>
    </message>
    <message>
        <source>fullscreen</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>tarvoPhoto</source>
        <translation>KelvarIM-</translation>
    </message>
    <message>
        <source>savepic</source>
        <translation>Save picture</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>tarvoShowName</source>
        <translation>KelvarIM</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>yesterday</translation>
    </message>
    <message>
        <source>thedaybeforeyesterday</source>
        <translation>two days ago</translation>
    </message>
    <message>
        <source>tarvoShoot</source>
        <translation>KelvarIM screenshot</translation>
    </message>
    <message>
        <source>ThemeGreen</source>
        <translation>Fresh green</translation>
    </message>
    <message>
        <source>yourPickMsgHotKeyUsedAndRevise</source>
        <translation>Another program uses the message hot key.</translation>
    </message>
    <message>
        <source>yourScreenCutHotKeyUsedAndRevise</source>
        <translation>Another program uses the capture hot key.</translation>
    </message>
    <message>
        <source>yourHotKeyUsedAndRevise</source>
        <translation>Another program uses this hot key.</translation>
    </message>
    <message>
        <source>makeSureFunction</source>
        <translation>To make it work, please </translation>
    </message>
    <message>
        <source>makeSureCanBeUsed</source>
        <translation>To be able to use it, please </translation>
    </message>
    <message>
        <source>modifyhotkey</source>
        <translation>change the hot key</translation>
    </message>
    <message>
        <source>period</source>
        <translation>.</translation>
    </message>
    <message>
        <source>close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>tip</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>lookupHistoryMsg</source>
        <translation>look up the message history</translation>
    </message>
    <message>
        <source>readrecord</source>
        <translation>History</translation>
    </message>
    <message>
        <source>inputkeyword</source>
        <translation>Please type a keyword.</translation>
    </message>
    <message>
        <source>tagsevenwords</source>
        <translation>A tag of up to 14 letters</translation>
    </message>
    <message>
        <source>tagcannotspace</source>
        <translation>A tag cannot be blank.</translation>
    </message>
    <message>
        <source>inputnarvepass</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>allSelect</source>
        <translation>Select all</translation>
    </message>
</context>
<context>
    <name>VoipManageMessageProcess</name>
    <message>
        <source>enternothandle</source>
        <translation>message not handled</translation>
    </message>
</context>
<context>
    <name>CallRecord</name>
    <message>
        <source>cancelled</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>failed</translation>
    </message>
    <message>
        <source>hung up</source>
        <translation>hung up</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>busy</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>rejected</translation>
    </message>
</context>
<context>
    <name>CallRecordModel</name>
    <message>
        <source>outgoing video</source>
        <translation>outgoing video</translation>
    </message>
    <message>
        <source>incoming video</source>
        <translation>incoming video</translation>
    </message>
    <message>
        <source>outgoing</source>
        <translation>outgoing</translation>
    </message>
    <message>
        <source>incoming</source>
        <translation>incoming</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Who</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Outcome</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>Ended at</source>
        <translation>Ended at</translation>
    </message>
</context>
<context>
    <name>CallsPane</name>
    <message>
        <source>Calls</source>
        <translation>Calls</translation>
    </message>
    <message>
        <source>Past conferences: look at them, call them again, delete them</source>
        <translation>Past conferences: look at them, call them again, delete them</translation>
    </message>
    <message>
        <source>Conference ce&amp;ntre</source>
        <translation>Conference ce&amp;ntre</translation>
    </message>
    <message>
        <source>Double click or Enter calls again</source>
        <translation>Double click or Enter calls again</translation>
    </message>
    <message>
        <source>Enter calls again</source>
        <translation>Enter calls again</translation>
    </message>
    <message>
        <source>No calls yet</source>
        <translation>No calls yet</translation>
    </message>
</context>
<context>
    <name>ContactPane</name>
    <message>
        <source>Contacts</source>
        <translation>Contacts</translation>
    </message>
    <message>
        <source>Search the contacts (Ctrl+F)</source>
        <translation>Search the contacts (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search the contacts</source>
        <translation>Search the contacts</translation>
    </message>
    <message>
        <source>Search by name, number or initials</source>
        <translation>Search by name, number or initials</translation>
    </message>
    <message>
        <source>No contact matches</source>
        <translation>No contact matches</translation>
    </message>
    <message>
        <source>Number to call</source>
        <translation>Number to call</translation>
    </message>
    <message>
        <source>Call another number</source>
        <translation>Call another number</translation>
    </message>
    <message>
        <source>&amp;Call</source>
        <translation>&amp;Call</translation>
    </message>
    <message>
        <source>Call several people together</source>
        <translation>Call several people together</translation>
    </message>
    <message>
        <source>Con&amp;ference...</source>
        <translation>Con&amp;ference...</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Clear the search</translation>
    </message>
</context>
<context>
    <name>ContactRow</name>
    <message>
        <source>not a contact</source>
        <translation>not a contact</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Call %1</translation>
    </message>
    <message>
        <source>Call %1 by video</source>
        <translation>Call %1 by video</translation>
    </message>
</context>
<context>
    <name>HostSession</name>
    <message>
        <source>not a plug-in of this client</source>
        <translation>not a plug-in of this client</translation>
    </message>
</context>
<context>
    <name>HostSkins</name>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grey</translation>
    </message>
</context>
<context>
    <name>HostStore</name>
    <message>
        <source>%1 is the store of an older client. It stays as it is; what it holds is not shown here.</source>
        <translation>%1 is the store of an older client. It stays as it is; what it holds is not shown here.</translation>
    </message>
    <message>
        <source>The local store %1 cannot be opened. Nothing of this session will be kept.</source>
        <translation>The local store %1 cannot be opened. Nothing of this session will be kept.</translation>
    </message>
    <message>
        <source>The local store %1 cannot be written to. Nothing of this session will be kept.</source>
        <translation>The local store %1 cannot be written to. Nothing of this session will be kept.</translation>
    </message>
    <message>
        <source>The local store %1 is in use by another program. Nothing of this session will be kept.</source>
        <translation>The local store %1 is in use by another program. Nothing of this session will be kept.</translation>
    </message>
    <message>
        <source>The local store %1 is damaged and cannot be moved aside. Nothing of this session will be kept.</source>
        <translation>The local store %1 is damaged and cannot be moved aside. Nothing of this session will be kept.</translation>
    </message>
    <message>
        <source>The local store was damaged. The file is kept as %1; a new one has been started.</source>
        <translation>The local store was damaged. The file is kept as %1; a new one has been started.</translation>
    </message>
</context>
<context>
    <name>IncomingPrompt</name>
    <message>
        <source>Incoming call</source>
        <translation>Incoming call</translation>
    </message>
    <message>
        <source>&amp;Reject</source>
        <translation>&amp;Reject</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Accept</translation>
    </message>
    <message>
        <source>invites you to a conference</source>
        <translation>invites you to a conference</translation>
    </message>
    <message>
        <source>video call</source>
        <translation>video call</translation>
    </message>
    <message>
        <source>is calling you</source>
        <translation>is calling you</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>KelvarIM demo</source>
        <translation>KelvarIM demo</translation>
    </message>
    <message>
        <source>Ring, language, colour and folders</source>
        <translation>Ring, language, colour and folders</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Settings</translation>
    </message>
    <message>
        <source>Sign in to calls, or out of them</source>
        <translation>Sign in to calls, or out of them</translation>
    </message>
    <message>
        <source>%1 is calling</source>
        <translation>%1 is calling</translation>
    </message>
    <message>
        <source>Call of %1 accepted</source>
        <translation>Call of %1 accepted</translation>
    </message>
    <message>
        <source>Call of %1 rejected</source>
        <translation>Call of %1 rejected</translation>
    </message>
    <message>
        <source>Calling %1</source>
        <translation>Calling %1</translation>
    </message>
    <message numerus="yes">
        <source>Starting a conference with %n other(s)</source>
        <translation>
            <numerusform>Starting a conference with %n other person</numerusform>
            <numerusform>Starting a conference with %n others</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Online</source>
        <translation>&amp;Online</translation>
    </message>
    <message>
        <source>&amp;Offline</source>
        <translation>&amp;Offline</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Signed in as %1</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>Signed out</translation>
    </message>
    <message>
        <source>Call with %1: %2 after %3</source>
        <translation>Call with %1: %2 after %3</translation>
    </message>
    <message>
        <source>Call with %1: %2</source>
        <translation>Call with %1: %2</translation>
    </message>
</context>
<context>
    <name>MemberPicker</name>
    <message>
        <source>People</source>
        <translation>People</translation>
    </message>
    <message>
        <source>Text passed on to the call process</source>
        <translation>Text passed on to the call process</translation>
    </message>
    <message>
        <source>Passed on to the call process</source>
        <translation>Passed on to the call process</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Flag</translation>
    </message>
    <message>
        <source>New conference</source>
        <translation>New conference</translation>
    </message>
    <message>
        <source>Invite to the conference</source>
        <translation>Invite to the conference</translation>
    </message>
    <message>
        <source>Already in the conference: %1</source>
        <translation>Already in the conference: %1</translation>
    </message>
    <message>
        <source>Whom to call together?</source>
        <translation>Whom to call together?</translation>
    </message>
    <message>
        <source>Asked for a conference with: %1</source>
        <translation>Asked for a conference with: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Invite (%1)</source>
        <translation>Invite (%1)</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Invite</translation>
    </message>
</context>
<context>
    <name>Presence</name>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>away</source>
        <translation>away</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>busy</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Calls</translation>
    </message>
    <message>
        <source>Keep the &amp;ring of incoming calls silent</source>
        <translation>Keep the &amp;ring of incoming calls silent</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Folders</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>&amp;Data</translation>
    </message>
    <message>
        <source>An empty field means the standard folder</source>
        <translation>An empty field means the standard folder</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>Data folder</translation>
    </message>
    <message>
        <source>Choose: Data folder</source>
        <translation>Choose: Data folder</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>Received &amp;files</source>
        <translation>Received &amp;files</translation>
    </message>
    <message>
        <source>Folder for received files</source>
        <translation>Folder for received files</translation>
    </message>
    <message>
        <source>Choose: Folder for received files</source>
        <translation>Choose: Folder for received files</translation>
    </message>
    <message>
        <source>These settings are kept in</source>
        <translation>These settings are kept in</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Takes effect at the next start; what is in the old folder stays there.</source>
        <translation>Takes effect at the next start; what is in the old folder stays there.</translation>
    </message>
    <message>
        <source>Holds the settings, the conference records and the log of each user.</source>
        <translation>Holds the settings, the conference records and the log of each user.</translation>
    </message>
    <message>
        <source>This folder cannot be used: %1</source>
        <translation>This folder cannot be used: %1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
</context>
<context>
    <name>SignatureCard</name>
    <message>
        <source>(no signature)</source>
        <translation>(no signature)</translation>
    </message>
</context>
</TS>
