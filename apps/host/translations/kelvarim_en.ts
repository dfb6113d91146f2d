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
</TS>
