<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>EventWords</name>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>with picture</source>
        <translation>with picture</translation>
    </message>
    <message>
        <source>with sound only</source>
        <translation>with sound only</translation>
    </message>
    <message>
        <source>the client gives the plug-in the card of %1</source>
        <translation>the client gives the plug-in the card of %1</translation>
    </message>
    <message>
        <source>the client tells the plug-in that the user is %1</source>
        <translation>the client tells the plug-in that the user is %1</translation>
    </message>
    <message>
        <source>signed in</source>
        <translation>signed in</translation>
    </message>
    <message>
        <source>signed out</source>
        <translation>signed out</translation>
    </message>
    <message>
        <source>the plug-in asks who %1 is: %2</source>
        <translation>the plug-in asks who %1 is: %2</translation>
    </message>
    <message>
        <source>here is the record</source>
        <translation>here is the record</translation>
    </message>
    <message>
        <source>there is no record</source>
        <translation>there is no record</translation>
    </message>
    <message>
        <source>the plug-in asks for the cards of %1</source>
        <translation>the plug-in asks for the cards of %1</translation>
    </message>
    <message>
        <source>the plug-in asks to show the signature card of %1 at %2, %3</source>
        <translation>the plug-in asks to show the signature card of %1 at %2, %3</translation>
    </message>
    <message>
        <source>the plug-in asks whether %1 is a contact: %2</source>
        <translation>the plug-in asks whether %1 is a contact: %2</translation>
    </message>
    <message>
        <source>the plug-in asks to take away the prompt of the call with %1</source>
        <translation>the plug-in asks to take away the prompt of the call with %1</translation>
    </message>
    <message>
        <source>the client asks the plug-in to call %2 %1</source>
        <translation>the client asks the plug-in to call %2 %1</translation>
    </message>
    <message>
        <source>the plug-in reports the end of the call with %2: %3; %4, %5, %6 s</source>
        <translation>the plug-in reports the end of the call with %2: %3; %4, %5, %6 s</translation>
    </message>
    <message>
        <source>called by this side</source>
        <translation>called by this side</translation>
    </message>
    <message>
        <source>called by the other side</source>
        <translation>called by the other side</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connected</translation>
    </message>
    <message>
        <source>never connected</source>
        <translation>never connected</translation>
    </message>
    <message>
        <source>the client asks whether there is a call: %1</source>
        <translation>the client asks whether there is a call: %1</translation>
    </message>
    <message>
        <source>the client asks whether the call has a picture: %1</source>
        <translation>the client asks whether the call has a picture: %1</translation>
    </message>
    <message>
        <source>the plug-in asks to hide the signature card</source>
        <translation>the plug-in asks to hide the signature card</translation>
    </message>
    <message>
        <source>the plug-in reports that %1 %2, %3</source>
        <translation>the plug-in reports that %1 %2, %3</translation>
    </message>
    <message>
        <source>invites to a conference</source>
        <translation>invites to a conference</translation>
    </message>
    <message>
        <source>calls</source>
        <translation>calls</translation>
    </message>
    <message>
        <source>the client tells the plug-in that the user %1 the call</source>
        <translation>the client tells the plug-in that the user %1 the call</translation>
    </message>
    <message>
        <source>takes</source>
        <translation>takes</translation>
    </message>
    <message>
        <source>rejects</source>
        <translation>rejects</translation>
    </message>
    <message>
        <source>the client asks the plug-in to start a conference with %1</source>
        <translation>the client asks the plug-in to start a conference with %1</translation>
    </message>
    <message>
        <source>the plug-in asks to pick people for a conference, to begin with %1</source>
        <translation>the plug-in asks to pick people for a conference, to begin with %1</translation>
    </message>
    <message>
        <source>the plug-in asks whom to add to the conference of %1: %2</source>
        <translation>the plug-in asks whom to add to the conference of %1: %2</translation>
    </message>
    <message>
        <source>the client asks for the conference centre</source>
        <translation>the client asks for the conference centre</translation>
    </message>
    <message>
        <source>the client tells the plug-in that it quits</source>
        <translation>the client tells the plug-in that it quits</translation>
    </message>
    <message>
        <source>a command that is not in the contract, with %1 bytes of payload</source>
        <translation>a command that is not in the contract, with %1 bytes of payload</translation>
    </message>
</context>
<context>
    <name>HappeningsModel</name>
    <message>
        <source>client → plug-in</source>
        <translation>client → plug-in</translation>
    </message>
    <message>
        <source>plug-in → client</source>
        <translation>plug-in → client</translation>
    </message>
    <message>
        <source>plug-in → call process</source>
        <translation>plug-in → call process</translation>
    </message>
    <message>
        <source>call process → plug-in</source>
        <translation>call process → plug-in</translation>
    </message>
    <message>
        <source>call process</source>
        <translation>call process</translation>
    </message>
    <message>
        <source>event</source>
        <translation>event</translation>
    </message>
    <message>
        <source>wire</source>
        <translation>wire</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>What happened</translation>
    </message>
</context>
<context>
    <name>HappeningsPanel</name>
    <message>
        <source>What happens</source>
        <translation>What happens</translation>
    </message>
    <message>
        <source>Let new lines wait until this is pressed again</source>
        <translation>Let new lines wait until this is pressed again</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Copy the selected lines, or all that are shown when none is selected</source>
        <translation>Copy the selected lines, or all that are shown when none is selected</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Take all lines away</source>
        <translation>Take all lines away</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show only lines with this text</source>
        <translation>Show only lines with this text</translation>
    </message>
    <message>
        <source>Events between client and plug-in</source>
        <translation>Events between client and plug-in</translation>
    </message>
    <message>
        <source>Show events</source>
        <translation>Show events</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>Lines between plug-in and call process</source>
        <translation>Lines between plug-in and call process</translation>
    </message>
    <message>
        <source>Show wire lines</source>
        <translation>Show wire lines</translation>
    </message>
    <message>
        <source>Wire lines</source>
        <translation>Wire lines</translation>
    </message>
    <message>
        <source>Whatever does not follow the contract</source>
        <translation>Whatever does not follow the contract</translation>
    </message>
    <message>
        <source>Show errors</source>
        <translation>Show errors</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errors</translation>
    </message>
    <message>
        <source>Keep the newest line in sight</source>
        <translation>Keep the newest line in sight</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Follow</translation>
    </message>
    <message>
        <source>Lines of what happens</source>
        <translation>Lines of what happens</translation>
    </message>
    <message>
        <source>The line in full</source>
        <translation>The line in full</translation>
    </message>
    <message>
        <source>Choose a line to read it in full</source>
        <translation>Choose a line to read it in full</translation>
    </message>
    <message>
        <source>Copy all lines shown</source>
        <translation>Copy all lines shown</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n line</numerusform>
            <numerusform>%n lines</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 lines</source>
        <translation>%1 of %2 lines</translation>
    </message>
    <message>
        <source>paused, %1 waiting</source>
        <translation>paused, %1 waiting</translation>
    </message>
    <message>
        <source>the oldest %1 were dropped</source>
        <translation>the oldest %1 were dropped</translation>
    </message>
</context>
<context>
    <name>Sentence</name>
    <message>
        <source>nobody</source>
        <translation>nobody</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>ShownText</name>
    <message>
        <source>(%1 in all)</source>
        <translation>(%1 in all)</translation>
    </message>
</context>
<context>
    <name>WireWords</name>
    <message>
        <source>on</source>
        <translation>on</translation>
    </message>
    <message>
        <source>off</source>
        <translation>off</translation>
    </message>
    <message>
        <source>the plug-in registers %1 (%2) at the call process</source>
        <translation>the plug-in registers %1 (%2) at the call process</translation>
    </message>
    <message>
        <source>the plug-in takes the registration of %1 back</source>
        <translation>the plug-in takes the registration of %1 back</translation>
    </message>
    <message>
        <source>the plug-in asks the call process to call %1 %2</source>
        <translation>the plug-in asks the call process to call %1 %2</translation>
    </message>
    <message>
        <source>with picture</source>
        <translation>with picture</translation>
    </message>
    <message>
        <source>with sound only</source>
        <translation>with sound only</translation>
    </message>
    <message>
        <source>the plug-in asks the call process for a conference of %1 with %2</source>
        <translation>the plug-in asks the call process for a conference of %1 with %2</translation>
    </message>
    <message>
        <source>the plug-in asks to add %1 to the conference of %6</source>
        <translation>the plug-in asks to add %1 to the conference of %6</translation>
    </message>
    <message>
        <source>the plug-in takes the call</source>
        <translation>the plug-in takes the call</translation>
    </message>
    <message>
        <source>the plug-in joins the conference</source>
        <translation>the plug-in joins the conference</translation>
    </message>
    <message>
        <source>the plug-in rejects the call</source>
        <translation>the plug-in rejects the call</translation>
    </message>
    <message>
        <source>the plug-in rejects the conference</source>
        <translation>the plug-in rejects the conference</translation>
    </message>
    <message>
        <source>the plug-in hangs up</source>
        <translation>the plug-in hangs up</translation>
    </message>
    <message>
        <source>the plug-in leaves the conference</source>
        <translation>the plug-in leaves the conference</translation>
    </message>
    <message>
        <source>the plug-in moderates the conference: %1, %2</source>
        <translation>the plug-in moderates the conference: %1, %2</translation>
    </message>
    <message>
        <source>the plug-in turns the microphone %1</source>
        <translation>the plug-in turns the microphone %1</translation>
    </message>
    <message>
        <source>the plug-in turns the speaker %1</source>
        <translation>the plug-in turns the speaker %1</translation>
    </message>
    <message>
        <source>the plug-in turns the camera %1</source>
        <translation>the plug-in turns the camera %1</translation>
    </message>
    <message>
        <source>the plug-in sets the microphone to volume %1</source>
        <translation>the plug-in sets the microphone to volume %1</translation>
    </message>
    <message>
        <source>the plug-in sets the speaker to volume %1</source>
        <translation>the plug-in sets the speaker to volume %1</translation>
    </message>
    <message>
        <source>the plug-in tells the call process to quit</source>
        <translation>the plug-in tells the call process to quit</translation>
    </message>
    <message>
        <source>call process: %1 is calling</source>
        <translation>call process: %1 is calling</translation>
    </message>
    <message>
        <source>call process: %1 invites to a conference, connected: %2</source>
        <translation>call process: %1 invites to a conference, connected: %2</translation>
    </message>
    <message>
        <source>call process: the call is to be rejected</source>
        <translation>call process: the call is to be rejected</translation>
    </message>
    <message>
        <source>call process: the caller has given up</source>
        <translation>call process: the caller has given up</translation>
    </message>
    <message>
        <source>call process: %1 has rejected</source>
        <translation>call process: %1 has rejected</translation>
    </message>
    <message>
        <source>call process: a notification that leads to nothing, content %1</source>
        <translation>call process: a notification that leads to nothing, content %1</translation>
    </message>
    <message>
        <source>call process: the call has ended</source>
        <translation>call process: the call has ended</translation>
    </message>
    <message>
        <source>call process: the far end has hung up</source>
        <translation>call process: the far end has hung up</translation>
    </message>
    <message>
        <source>call process: the far end has rejected</source>
        <translation>call process: the far end has rejected</translation>
    </message>
    <message>
        <source>call process: connected in the conference are %2</source>
        <translation>call process: connected in the conference are %2</translation>
    </message>
    <message>
        <source>call process: %1 has left the conference, connected are %2</source>
        <translation>call process: %1 has left the conference, connected are %2</translation>
    </message>
    <message>
        <source>call process: its flag is %1</source>
        <translation>call process: its flag is %1</translation>
    </message>
    <message>
        <source>call process: the far end has answered</source>
        <translation>call process: the far end has answered</translation>
    </message>
    <message>
        <source>call process: the call has failed</source>
        <translation>call process: the call has failed</translation>
    </message>
    <message>
        <source>call process: the conference is made, its id is %1</source>
        <translation>call process: the conference is made, its id is %1</translation>
    </message>
    <message>
        <source>call process: people were added, not reached: %1</source>
        <translation>call process: people were added, not reached: %1</translation>
    </message>
    <message>
        <source>call process: the far end is busy</source>
        <translation>call process: the far end is busy</translation>
    </message>
    <message>
        <source>call process: %1 has rejected the conference</source>
        <translation>call process: %1 has rejected the conference</translation>
    </message>
    <message>
        <source>call process logs: %1</source>
        <translation>call process logs: %1</translation>
    </message>
    <message>
        <source>call process: the conference could not be made</source>
        <translation>call process: the conference could not be made</translation>
    </message>
    <message>
        <source>call process notes: %1</source>
        <translation>call process notes: %1</translation>
    </message>
    <message>
        <source>call process complains: %1</source>
        <translation>call process complains: %1</translation>
    </message>
    <message>
        <source>a line of %1 bytes, too long to be decoded: %2</source>
        <translation>a line of %1 bytes, too long to be decoded: %2</translation>
    </message>
    <message>
        <source>no line of the protocol: %1</source>
        <translation>no line of the protocol: %1</translation>
    </message>
    <message>
        <source>the plug-in sends an unknown command: %1</source>
        <translation>the plug-in sends an unknown command: %1</translation>
    </message>
    <message>
        <source>call process: an unknown notification, content %1</source>
        <translation>call process: an unknown notification, content %1</translation>
    </message>
    <message>
        <source>call process: a document that cannot be read: %1</source>
        <translation>call process: a document that cannot be read: %1</translation>
    </message>
</context>
<context>
    <name>CUrlInfo</name>
    <message>
        <source>000000</source>
        <translation>000000</translation>
    </message>
</context>
<context>
    <name>CConferenceListView</name>
    <message>
        <source>Members of the conference</source>
        <translation>Members of the conference</translation>
    </message>
</context>
<context>
    <name>CConfDetailMemberTableView</name>
    <message>
        <source>Members of the conference</source>
        <translation>Members of the conference</translation>
    </message>
</context>
<context>
    <name>CConferenceInfoListView</name>
    <message>
        <source>Past conferences</source>
        <translation>Past conferences</translation>
    </message>
</context>
<context>
    <name>ConferenceRow</name>
    <message>
        <source>呼叫中</source>
        <translation>being called</translation>
    </message>
    <message>
        <source>已接通</source>
        <translation>connected</translation>
    </message>
    <message>
        <source>呼叫失败</source>
        <translation>not reached</translation>
    </message>
    <message>
        <source>对方正忙</source>
        <translation>busy</translation>
    </message>
    <message>
        <source>已挂断</source>
        <translation>hung up</translation>
    </message>
    <message>
        <source>已拒绝</source>
        <translation>declined</translation>
    </message>
    <message>
        <source>未接通</source>
        <translation>not connected</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>muted</translation>
    </message>
    <message>
        <source>created the conference</source>
        <translation>created the conference</translation>
    </message>
    <message>
        <source>called by you</source>
        <translation>called by you</translation>
    </message>
    <message>
        <source>called by another</source>
        <translation>called by another</translation>
    </message>
    <message>
        <source>取消静音</source>
        <translation>Unmute</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>移出会议</source>
        <translation>Remove from the conference</translation>
    </message>
    <message>
        <source>再次呼叫</source>
        <translation>Call again</translation>
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
    <message>
        <source>Back to the past conferences</source>
        <translation>Back to the past conferences</translation>
    </message>
    <message>
        <source>Start a voice conference</source>
        <translation>Start a voice conference</translation>
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
    <message>
        <source>邀请成员</source>
        <translation>Invite</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>00:00</source>
        <translation>00:00</translation>
    </message>
    <message>
        <source>挂断</source>
        <translation>Hang up</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 of %3</translation>
    </message>
    <message>
        <source>Switch the camera off</source>
        <translation>Switch the camera off</translation>
    </message>
    <message>
        <source>Switch the camera on</source>
        <translation>Switch the camera on</translation>
    </message>
    <message>
        <source>Unmute all members</source>
        <translation>Unmute all members</translation>
    </message>
    <message>
        <source>Mute all members</source>
        <translation>Mute all members</translation>
    </message>
    <message>
        <source>Microphone volume</source>
        <translation>Microphone volume</translation>
    </message>
    <message>
        <source>Speaker volume</source>
        <translation>Speaker volume</translation>
    </message>
</context>
<context>
    <name>ErrorMessage</name>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>回复内容(100字以内)：</source>
        <translation>Reply (up to 200 letters):</translation>
    </message>
    <message>
        <source>组名：</source>
        <translation>Group name:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
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
    <name>CallEntry</name>
    <message>
        <source>now</source>
        <translation>now</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>missed</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>cut off</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>no answer</translation>
    </message>
</context>
<context>
    <name>CallFile</name>
    <message>
        <source>The list of calls %1 is damaged and cannot be moved aside. Calls of this session will not be kept.</source>
        <translation>The list of calls %1 is damaged and cannot be moved aside. Calls of this session will not be kept.</translation>
    </message>
    <message>
        <source>The list of calls was damaged. The file is kept as %1; a new one has been started.</source>
        <translation>The list of calls was damaged. The file is kept as %1; a new one has been started.</translation>
    </message>
    <message>
        <source>The list of calls %1 cannot be written to. Calls of this session will not be kept.</source>
        <translation>The list of calls %1 cannot be written to. Calls of this session will not be kept.</translation>
    </message>
    <message>
        <source>The list of calls %1 is in use by another program. Calls of this session will not be kept.</source>
        <translation>The list of calls %1 is in use by another program. Calls of this session will not be kept.</translation>
    </message>
    <message>
        <source>The list of calls %1 was written by a newer client and stays as it is. Calls of this session will not be kept.</source>
        <translation>The list of calls %1 was written by a newer client and stays as it is. Calls of this session will not be kept.</translation>
    </message>
    <message>
        <source>The list of calls %1 cannot be opened. Calls of this session will not be kept.</source>
        <translation>The list of calls %1 cannot be opened. Calls of this session will not be kept.</translation>
    </message>
</context>
<context>
    <name>CallHistoryModel</name>
    <message>
        <source>Conference</source>
        <translation>Conference</translation>
    </message>
    <message>
        <source>Conference: %1</source>
        <translation>Conference: %1</translation>
    </message>
    <message>
        <source>Today %1</source>
        <translation>Today %1</translation>
    </message>
    <message>
        <source>Yesterday %1</source>
        <translation>Yesterday %1</translation>
    </message>
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
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>When</source>
        <translation>When</translation>
    </message>
</context>
<context>
    <name>CallReadiness</name>
    <message>
        <source>You are in a call. End it first.</source>
        <translation>You are in a call. End it first.</translation>
    </message>
    <message>
        <source>You are signed out. Sign in first.</source>
        <translation>You are signed out. Sign in first.</translation>
    </message>
    <message>
        <source>The call service cannot be reached.</source>
        <translation>The call service cannot be reached.</translation>
    </message>
    <message>
        <source>The call service is being reached. Wait a moment.</source>
        <translation>The call service is being reached. Wait a moment.</translation>
    </message>
    <message>
        <source>The window of the lost call is still open. Hang up there first.</source>
        <translation>The window of the lost call is still open. Hang up there first.</translation>
    </message>
</context>
<context>
    <name>CallSentences</name>
    <message>
        <source>Your conference ended after %1</source>
        <translation>Your conference ended after %1</translation>
    </message>
    <message>
        <source>Nobody joined your conference</source>
        <translation>Nobody joined your conference</translation>
    </message>
    <message>
        <source>Your conference was cancelled</source>
        <translation>Your conference was cancelled</translation>
    </message>
    <message>
        <source>Your conference was cut off</source>
        <translation>Your conference was cut off</translation>
    </message>
    <message>
        <source>Your conference could not be held</source>
        <translation>Your conference could not be held</translation>
    </message>
    <message>
        <source>%1 gave up the call</source>
        <translation>%1 gave up the call</translation>
    </message>
    <message>
        <source>Missed an invitation to a conference from %1</source>
        <translation>Missed an invitation to a conference from %1</translation>
    </message>
    <message>
        <source>Missed call from %1</source>
        <translation>Missed call from %1</translation>
    </message>
    <message>
        <source>The conference of %1 was cut off</source>
        <translation>The conference of %1 was cut off</translation>
    </message>
    <message>
        <source>The call with %1 was cut off</source>
        <translation>The call with %1 was cut off</translation>
    </message>
    <message>
        <source>%1 did not answer</source>
        <translation>%1 did not answer</translation>
    </message>
    <message>
        <source>The call with %1 was cancelled</source>
        <translation>The call with %1 was cancelled</translation>
    </message>
    <message>
        <source>The conference of %1 ended after %2</source>
        <translation>The conference of %1 ended after %2</translation>
    </message>
    <message>
        <source>%1 hung up after %2</source>
        <translation>%1 hung up after %2</translation>
    </message>
    <message>
        <source>%1 was busy</source>
        <translation>%1 was busy</translation>
    </message>
    <message>
        <source>%1 rejected the call</source>
        <translation>%1 rejected the call</translation>
    </message>
    <message>
        <source>The conference of %1 failed</source>
        <translation>The conference of %1 failed</translation>
    </message>
    <message>
        <source>The call with %1 failed</source>
        <translation>The call with %1 failed</translation>
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
    <name>CallStatusLine</name>
    <message>
        <source>%1 is calling</source>
        <translation>%1 is calling</translation>
    </message>
    <message>
        <source>In a call with %1</source>
        <translation>In a call with %1</translation>
    </message>
    <message>
        <source>The conference was not started</source>
        <translation>The conference was not started</translation>
    </message>
    <message>
        <source>The call of %1 was not placed</source>
        <translation>The call of %1 was not placed</translation>
    </message>
</context>
<context>
    <name>CallsPane</name>
    <message>
        <source>Calls</source>
        <translation>Calls</translation>
    </message>
    <message>
        <source>Show the missed calls</source>
        <translation>Show the missed calls</translation>
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
        <source>Call again</source>
        <translation>Call again</translation>
    </message>
    <message>
        <source>I have seen it: take this away</source>
        <translation>I have seen it: take this away</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>Seen</translation>
    </message>
    <message>
        <source>Search the calls</source>
        <translation>Search the calls</translation>
    </message>
    <message>
        <source>All calls</source>
        <translation>All calls</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Missed calls alone</source>
        <translation>Missed calls alone</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Missed</translation>
    </message>
    <message>
        <source>Conferences alone</source>
        <translation>Conferences alone</translation>
    </message>
    <message>
        <source>Conferences</source>
        <translation>Conferences</translation>
    </message>
    <message>
        <source>Double click or Enter calls again, Delete deletes</source>
        <translation>Double click or Enter calls again, Delete deletes</translation>
    </message>
    <message>
        <source>Enter calls again, Delete deletes, Ctrl+Z brings back</source>
        <translation>Enter calls again, Delete deletes, Ctrl+Z brings back</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>No calls yet</source>
        <translation>No calls yet</translation>
    </message>
    <message>
        <source>No call matches</source>
        <translation>No call matches</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missed</source>
        <translation>
            <numerusform>%n missed</numerusform>
            <numerusform>%n missed</numerusform>
        </translation>
    </message>
    <message>
        <source>Call who stands in the first line</source>
        <translation>Call who stands in the first line</translation>
    </message>
    <message numerus="yes">
        <source>%n call(s) deleted</source>
        <translation>
            <numerusform>%n call deleted</numerusform>
            <numerusform>%n calls deleted</numerusform>
        </translation>
    </message>
    <message>
        <source>Call together again...</source>
        <translation>Call together again...</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>Call by video</source>
        <translation>Call by video</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Clear the search</translation>
    </message>
    <message>
        <source>Bring back what was deleted last (Ctrl+Z)</source>
        <translation>Bring back what was deleted last (Ctrl+Z)</translation>
    </message>
    <message>
        <source>A call that is on cannot be deleted.</source>
        <translation>A call that is on cannot be deleted.</translation>
    </message>
    <message>
        <source>Search the calls by name, number, initials or outcome</source>
        <translation>Search the calls by name, number, initials or outcome</translation>
    </message>
    <message>
        <source>No missed calls</source>
        <translation>No missed calls</translation>
    </message>
    <message>
        <source>No missed call matches</source>
        <translation>No missed call matches</translation>
    </message>
    <message>
        <source>No conferences</source>
        <translation>No conferences</translation>
    </message>
    <message>
        <source>No conference matches</source>
        <translation>No conference matches</translation>
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
    <message>
        <source>Call this number</source>
        <translation>Call this number</translation>
    </message>
    <message>
        <source>Enter a number first</source>
        <translation>Enter a number first</translation>
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
        <source>The local store %1 is in use by another program. Until that lets it go, nothing of this session is kept.</source>
        <translation>The local store %1 is in use by another program. Until that lets it go, nothing of this session is kept.</translation>
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
        <source>What client, plug-in and call process tell each other (Ctrl+Shift+H)</source>
        <translation>What client, plug-in and call process tell each other (Ctrl+Shift+H)</translation>
    </message>
    <message>
        <source>Ring, sound, keys, language, colour and folders</source>
        <translation>Ring, sound, keys, language, colour and folders</translation>
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
        <source>Open the local store once more</source>
        <translation>Open the local store once more</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Try again</translation>
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
        <source>The local store is open</source>
        <translation>The local store is open</translation>
    </message>
    <message>
        <source>N&amp;o call service</source>
        <translation>N&amp;o call service</translation>
    </message>
    <message>
        <source>C&amp;onnecting...</source>
        <translation>C&amp;onnecting...</translation>
    </message>
</context>
<context>
    <name>MemberPicker</name>
    <message>
        <source>People</source>
        <translation>People</translation>
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
        <source>&amp;Invite (%1)</source>
        <translation>&amp;Invite (%1)</translation>
    </message>
    <message>
        <source>&amp;Invite</source>
        <translation>&amp;Invite</translation>
    </message>
    <message>
        <source>Down and Enter lead into the list, Escape shows everybody again</source>
        <translation>Down and Enter lead into the list, Escape shows everybody again</translation>
    </message>
    <message>
        <source>Filter the people</source>
        <translation>Filter the people</translation>
    </message>
    <message>
        <source>Filter by name, number or initials</source>
        <translation>Filter by name, number or initials</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Clear the filter</translation>
    </message>
    <message>
        <source>Nobody matches</source>
        <translation>Nobody matches</translation>
    </message>
    <message>
        <source>Somebody who is no contact; several numbers with a space or a comma between them</source>
        <translation>Somebody who is no contact; several numbers with a space or a comma between them</translation>
    </message>
    <message>
        <source>Another number</source>
        <translation>Another number</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>Enter a number first</source>
        <translation>Enter a number first</translation>
    </message>
    <message>
        <source>Put it on the list</source>
        <translation>Put it on the list</translation>
    </message>
    <message>
        <source>%1 is your own number.</source>
        <translation>%1 is your own number.</translation>
    </message>
    <message>
        <source>%1 is in the conference already.</source>
        <translation>%1 is in the conference already.</translation>
    </message>
    <message>
        <source>For the call process; the robots make nothing of it</source>
        <translation>For the call process; the robots make nothing of it</translation>
    </message>
    <message>
        <source>A text that the call process gets with the request for the conference. It may take it as a title, say; neither client nor plug-in reads it.</source>
        <translation>A text that the call process gets with the request for the conference. It may take it as a title, say; neither client nor plug-in reads it.</translation>
    </message>
    <message>
        <source>Text for the call process</source>
        <translation>Text for the call process</translation>
    </message>
    <message>
        <source>Text, such as a title</source>
        <translation>Text, such as a title</translation>
    </message>
    <message>
        <source>A yes or no that the call process gets with the request for the conference. What it means is the call process's affair; neither client nor plug-in reads it.</source>
        <translation>A yes or no that the call process gets with the request for the conference. What it means is the call process's affair; neither client nor plug-in reads it.</translation>
    </message>
    <message>
        <source>Flag for the call process</source>
        <translation>Flag for the call process</translation>
    </message>
    <message>
        <source>&amp;Flag (yes or no)</source>
        <translation>&amp;Flag (yes or no)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>&amp;More</translation>
    </message>
    <message>
        <source>What the call process can be told with the request</source>
        <translation>What the call process can be told with the request</translation>
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
        <source>Holds the settings, the calls, the conference records and the log of each user.</source>
        <translation>Holds the settings, the calls, the conference records and the log of each user.</translation>
    </message>
    <message>
        <source>This folder cannot be used: %1</source>
        <translation>This folder cannot be used: %1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>Nothing was changed: %1 cannot be written to.</source>
        <translation>Nothing was changed: %1 cannot be written to.</translation>
    </message>
    <message>
        <source>Pages of the settings</source>
        <translation>Pages of the settings</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>&amp;Sound</source>
        <translation>&amp;Sound</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Keyboard</translation>
    </message>
</context>
<context>
    <name>SignatureCard</name>
    <message>
        <source>(no signature)</source>
        <translation>(no signature)</translation>
    </message>
</context>
<context>
    <name>CallServiceBar</name>
    <message>
        <source>Start the call service without waiting</source>
        <translation>Start the call service without waiting</translation>
    </message>
    <message>
        <source>Start it no&amp;w</source>
        <translation>Start it no&amp;w</translation>
    </message>
    <message>
        <source>Call service lost for a moment: it runs again, and the connection comes back by itself within a minute.</source>
        <translation>Call service lost for a moment: it runs again, and the connection comes back by itself within a minute.</translation>
    </message>
    <message>
        <source>The call service has not registered you, so nobody can call you. Sign out and in again.</source>
        <translation>The call service has not registered you, so nobody can call you. Sign out and in again.</translation>
    </message>
    <message>
        <source>It is being started again (try %1 of %2).</source>
        <translation>It is being started again (try %1 of %2).</translation>
    </message>
    <message numerus="yes">
        <source>It is started again in %n second(s) (try %1 of %2).</source>
        <translation>
            <numerusform>It is started again in %n second (try %1 of %2).</numerusform>
            <numerusform>It is started again in %n seconds (try %1 of %2).</numerusform>
        </translation>
    </message>
    <message>
        <source>The program cannot be started: %1</source>
        <translation>The program cannot be started: %1</translation>
    </message>
    <message numerus="yes">
        <source>It was started %n time(s) and did not stay.</source>
        <translation>
            <numerusform>It was started %n time and did not stay.</numerusform>
            <numerusform>It was started %n times and did not stay.</numerusform>
        </translation>
    </message>
    <message>
        <source>Call service lost, and given up. %1 Start it by the button; if that does not help, quit the client and start it again.</source>
        <translation>Call service lost, and given up. %1 Start it by the button; if that does not help, quit the client and start it again.</translation>
    </message>
    <message>
        <source>Call service lost: no calls for the moment. %1 The client itself need not be restarted.</source>
        <translation>Call service lost: no calls for the moment. %1 The client itself need not be restarted.</translation>
    </message>
    <message>
        <source>%1. Its window is still open: hang up there, and then call again.</source>
        <translation>%1. Its window is still open: hang up there, and then call again.</translation>
    </message>
</context>
<context>
    <name>QuitQuestion</name>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>A call is on.</source>
        <translation>A call is on.</translation>
    </message>
    <message>
        <source>Quitting ends it.</source>
        <translation>Quitting ends it.</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Keep the call</source>
        <translation>&amp;Keep the call</translation>
    </message>
</context>
<context>
    <name>TraceNote</name>
    <message>
        <source>it was started without a trace</source>
        <translation>it was started without a trace</translation>
    </message>
    <message>
        <source>it writes its trace to standard error</source>
        <translation>it writes its trace to standard error</translation>
    </message>
    <message>
        <source>it has not written its trace, %1</source>
        <translation>it has not written its trace, %1</translation>
    </message>
    <message>
        <source>its trace cannot be read: %1</source>
        <translation>its trace cannot be read: %1</translation>
    </message>
    <message>
        <source>Lines of the wire cannot be shown at present. The call process is %1 (process %2), and %3. End that process: the client then starts one that it can follow. Or start it yourself with %4 naming a file.</source>
        <translation>Lines of the wire cannot be shown at present. The call process is %1 (process %2), and %3. End that process: the client then starts one that it can follow. Or start it yourself with %4 naming a file.</translation>
    </message>
    <message>
        <source>another user's</source>
        <translation>another user's</translation>
    </message>
</context>
<context>
    <name>ContactBook</name>
    <message>
        <source>Answers</source>
        <translation>Answers</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Busy</translation>
    </message>
    <message>
        <source>Rejects</source>
        <translation>Rejects</translation>
    </message>
    <message>
        <source>Never answers</source>
        <translation>Never answers</translation>
    </message>
    <message>
        <source>Call fails</source>
        <translation>Call fails</translation>
    </message>
    <message>
        <source>Hangs up after 10 s</source>
        <translation>Hangs up after 10 s</translation>
    </message>
    <message>
        <source>Calls you back</source>
        <translation>Calls you back</translation>
    </message>
    <message>
        <source>Invites you</source>
        <translation>Invites you</translation>
    </message>
    <message>
        <source>Leaves and returns</source>
        <translation>Leaves and returns</translation>
    </message>
    <message>
        <source>Invites, lines crossed</source>
        <translation>Invites, lines crossed</translation>
    </message>
    <message>
        <source>Takes no calls</source>
        <translation>Takes no calls</translation>
    </message>
    <message>
        <source>You</source>
        <translation>You</translation>
    </message>
    <message>
        <source>Repeats what it hears</source>
        <translation>Repeats what it hears</translation>
    </message>
</context>
<context>
    <name>VideoCard</name>
    <message>
        <source>Video call with %1</source>
        <translation>Video call with %1</translation>
    </message>
    <message>
        <source>No picture here: the call process draws none into this window. Everything else is as in a voice call.</source>
        <translation>No picture here: the call process draws none into this window. Everything else is as in a voice call.</translation>
    </message>
</context>
<context>
    <name>DeviceBox</name>
    <message>
        <source>As the desktop has it</source>
        <translation>As the desktop has it</translation>
    </message>
    <message>
        <source>As the desktop has it (%1)</source>
        <translation>As the desktop has it (%1)</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1 (not there)</translation>
    </message>
</context>
<context>
    <name>SoundPane</name>
    <message>
        <source>&amp;Microphone</source>
        <translation>&amp;Microphone</translation>
    </message>
    <message>
        <source>Microphone of calls</source>
        <translation>Microphone of calls</translation>
    </message>
    <message>
        <source>Level of the microphone</source>
        <translation>Level of the microphone</translation>
    </message>
    <message>
        <source>S&amp;peaker</source>
        <translation>S&amp;peaker</translation>
    </message>
    <message>
        <source>Speaker of calls</source>
        <translation>Speaker of calls</translation>
    </message>
    <message>
        <source>Play a &amp;tone</source>
        <translation>Play a &amp;tone</translation>
    </message>
    <message>
        <source>The sound server does not answer. What was chosen holds, and nothing can be tried.</source>
        <translation>The sound server does not answer. What was chosen holds, and nothing can be tried.</translation>
    </message>
    <message>
        <source>There is no sound server, so there is nothing to choose from. As soon as one is there, its devices are shown.</source>
        <translation>There is no sound server, so there is nothing to choose from. As soon as one is there, its devices are shown.</translation>
    </message>
    <message>
        <source>The chosen microphone is not there. Until it is, calls take the desktop's, which the bar shows.</source>
        <translation>The chosen microphone is not there. Until it is, calls take the desktop's, which the bar shows.</translation>
    </message>
    <message>
        <source>This microphone cannot be opened.</source>
        <translation>This microphone cannot be opened.</translation>
    </message>
    <message>
        <source>Speak: the bar shows what the microphone hears.</source>
        <translation>Speak: the bar shows what the microphone hears.</translation>
    </message>
    <message>
        <source>A tone is being played.</source>
        <translation>A tone is being played.</translation>
    </message>
    <message>
        <source>The tone could not be played.</source>
        <translation>The tone could not be played.</translation>
    </message>
    <message>
        <source>The tone was played. If you have not heard it, choose another speaker, or turn this one up.</source>
        <translation>The tone was played. If you have not heard it, choose another speaker, or turn this one up.</translation>
    </message>
    <message>
        <source>The chosen speaker is not there. Until it is, calls take the desktop's.</source>
        <translation>The chosen speaker is not there. Until it is, calls take the desktop's.</translation>
    </message>
    <message>
        <source>The tone goes to the speaker above.</source>
        <translation>The tone goes to the speaker above.</translation>
    </message>
    <message>
        <source>Takes effect when the call service starts the next time, at the latest when the client does.</source>
        <translation>Takes effect when the call service starts the next time, at the latest when the client does.</translation>
    </message>
    <message>
        <source>The call service was started with this choice.</source>
        <translation>The call service was started with this choice.</translation>
    </message>
</context>
<context>
    <name>KeysPane</name>
    <message>
        <source>Ringing calls</source>
        <translation>Ringing calls</translation>
    </message>
    <message>
        <source>&amp;Use a key of the whole desktop</source>
        <translation>&amp;Use a key of the whole desktop</translation>
    </message>
    <message>
        <source>Key of the whole desktop: press the one that you want</source>
        <translation>Key of the whole desktop: press the one that you want</translation>
    </message>
    <message>
        <source>%1 is needed for typing. Press a key together with Ctrl, Alt or the Windows key, or one of F1 to F35.</source>
        <translation>%1 is needed for typing. Press a key together with Ctrl, Alt or the Windows key, or one of F1 to F35.</translation>
    </message>
    <message>
        <source>%1 goes to the prompt of a ringing call from every program. Press another key in the field to change it.</source>
        <translation>%1 goes to the prompt of a ringing call from every program. Press another key in the field to change it.</translation>
    </message>
    <message>
        <source>The desktop refuses %1: another program has it. Press another key in the field.</source>
        <translation>The desktop refuses %1: another program has it. Press another key in the field.</translation>
    </message>
    <message>
        <source>This keyboard has no %1. Press another key in the field.</source>
        <translation>This keyboard has no %1. Press another key in the field.</translation>
    </message>
    <message>
        <source>This desktop gives no program a key of its own. In its own settings you may find a way; in the client's windows Ctrl+I goes to the prompt.</source>
        <translation>This desktop gives no program a key of its own. In its own settings you may find a way; in the client's windows Ctrl+I goes to the prompt.</translation>
    </message>
    <message>
        <source>In the client's windows Ctrl+I goes to the prompt of a ringing call; this key does so from every program.</source>
        <translation>In the client's windows Ctrl+I goes to the prompt of a ringing call; this key does so from every program.</translation>
    </message>
</context>
<context>
    <name>CallNotice</name>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
</context>
<context>
    <name>WayToCall</name>
    <message>
        <source>Show the call window</source>
        <translation>Show the call window</translation>
    </message>
</context>
</TS>
