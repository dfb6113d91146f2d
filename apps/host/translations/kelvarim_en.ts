<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>EventSentences</name>
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
    <message>
        <source>%1 lines</source>
        <translation>%1 lines</translation>
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
</TS>
