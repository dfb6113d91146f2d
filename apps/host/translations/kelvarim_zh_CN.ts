<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
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
        <translation>提示</translation>
    </message>
    <message>
        <source>soundfailedinsound</source>
        <translation>正在通话中，请先结束当前通话</translation>
    </message>
</context>
<context>
    <name>CVoiceConferenceWidget</name>
    <message>
        <source>close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>CVoipWidget</name>
    <message>
        <source>close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>openmic</source>
        <translation>打开麦克风</translation>
    </message>
    <message>
        <source>closemic</source>
        <translation>关闭麦克风</translation>
    </message>
    <message>
        <source>openvioce</source>
        <translation>打开声音</translation>
    </message>
    <message>
        <source>silence</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>tip</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>beSureToCloseCalling</source>
        <translation>确定要结束当前通话吗？</translation>
    </message>
    <message>
        <source>fullscreen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>tarvoPhoto</source>
        <translation>KelvarIM图片</translation>
    </message>
    <message>
        <source>savepic</source>
        <translation>保存图片</translation>
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
        <translation>昨天</translation>
    </message>
    <message>
        <source>thedaybeforeyesterday</source>
        <translation>前天</translation>
    </message>
    <message>
        <source>tarvoShoot</source>
        <translation>KelvarIM截屏</translation>
    </message>
    <message>
        <source>ThemeGreen</source>
        <translation>清新绿</translation>
    </message>
    <message>
        <source>yourPickMsgHotKeyUsedAndRevise</source>
        <translation>提取消息的快捷键已被其他程序占用，</translation>
    </message>
    <message>
        <source>yourScreenCutHotKeyUsedAndRevise</source>
        <translation>截屏的快捷键已被其他程序占用，</translation>
    </message>
    <message>
        <source>yourHotKeyUsedAndRevise</source>
        <translation>您设置的快捷键已被其他程序占用，</translation>
    </message>
    <message>
        <source>makeSureFunction</source>
        <translation>为保证功能正常使用，请</translation>
    </message>
    <message>
        <source>makeSureCanBeUsed</source>
        <translation>为保证快捷键可用，请</translation>
    </message>
    <message>
        <source>modifyhotkey</source>
        <translation>修改快捷键</translation>
    </message>
    <message>
        <source>period</source>
        <translation>。</translation>
    </message>
    <message>
        <source>close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>tip</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>lookupHistoryMsg</source>
        <translation>查看历史消息</translation>
    </message>
    <message>
        <source>readrecord</source>
        <translation>查看记录</translation>
    </message>
    <message>
        <source>inputkeyword</source>
        <translation>请输入关键字</translation>
    </message>
    <message>
        <source>tagsevenwords</source>
        <translation>标签最多7个字</translation>
    </message>
    <message>
        <source>tagcannotspace</source>
        <translation>标签不能为空</translation>
    </message>
    <message>
        <source>inputnarvepass</source>
        <translation>请输入密码</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>allSelect</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>VoipManageMessageProcess</name>
    <message>
        <source>enternothandle</source>
        <translation>未处理的消息</translation>
    </message>
</context>
<context>
    <name>CallRecord</name>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>hung up</source>
        <translation>已挂断</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>忙线</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>已拒绝</translation>
    </message>
</context>
<context>
    <name>CallRecordModel</name>
    <message>
        <source>outgoing video</source>
        <translation>呼出视频</translation>
    </message>
    <message>
        <source>incoming video</source>
        <translation>呼入视频</translation>
    </message>
    <message>
        <source>outgoing</source>
        <translation>呼出</translation>
    </message>
    <message>
        <source>incoming</source>
        <translation>呼入</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>联系人</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>呼叫</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接通</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Ended at</source>
        <translation>结束时间</translation>
    </message>
</context>
<context>
    <name>CallsPane</name>
    <message>
        <source>Calls</source>
        <translation>通话记录</translation>
    </message>
    <message>
        <source>Past conferences: look at them, call them again, delete them</source>
        <translation>以往的会议：查看、再次呼叫、删除</translation>
    </message>
    <message>
        <source>Conference ce&amp;ntre</source>
        <translation>会议中心(&amp;N)</translation>
    </message>
    <message>
        <source>Double click or Enter calls again</source>
        <translation>双击或按回车键再次呼叫</translation>
    </message>
    <message>
        <source>Enter calls again</source>
        <translation>按回车键再次呼叫</translation>
    </message>
    <message>
        <source>No calls yet</source>
        <translation>还没有通话</translation>
    </message>
</context>
<context>
    <name>ContactPane</name>
    <message>
        <source>Contacts</source>
        <translation>联系人</translation>
    </message>
    <message>
        <source>Search the contacts (Ctrl+F)</source>
        <translation>搜索联系人 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search the contacts</source>
        <translation>搜索联系人</translation>
    </message>
    <message>
        <source>Search by name, number or initials</source>
        <translation>按姓名、号码或拼音首字母搜索</translation>
    </message>
    <message>
        <source>No contact matches</source>
        <translation>没有匹配的联系人</translation>
    </message>
    <message>
        <source>Number to call</source>
        <translation>要呼叫的号码</translation>
    </message>
    <message>
        <source>Call another number</source>
        <translation>呼叫其他号码</translation>
    </message>
    <message>
        <source>&amp;Call</source>
        <translation>呼叫(&amp;C)</translation>
    </message>
    <message>
        <source>Call several people together</source>
        <translation>同时呼叫多人</translation>
    </message>
    <message>
        <source>Con&amp;ference...</source>
        <translation>会议(&amp;F)...</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>ContactRow</name>
    <message>
        <source>not a contact</source>
        <translation>非联系人</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>呼叫 %1</translation>
    </message>
    <message>
        <source>Call %1 by video</source>
        <translation>视频呼叫 %1</translation>
    </message>
</context>
<context>
    <name>HostSession</name>
    <message>
        <source>not a plug-in of this client</source>
        <translation>不是本客户端的插件</translation>
    </message>
</context>
<context>
    <name>HostSkins</name>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>灰色</translation>
    </message>
</context>
<context>
    <name>HostStore</name>
    <message>
        <source>%1 is the store of an older client. It stays as it is; what it holds is not shown here.</source>
        <translation>%1 是旧版客户端的数据库，将保持原样，其中的内容不在此显示。</translation>
    </message>
    <message>
        <source>The local store %1 cannot be opened. Nothing of this session will be kept.</source>
        <translation>无法打开本地数据库 %1。本次会话的内容不会保存。</translation>
    </message>
    <message>
        <source>The local store %1 cannot be written to. Nothing of this session will be kept.</source>
        <translation>无法写入本地数据库 %1。本次会话的内容不会保存。</translation>
    </message>
    <message>
        <source>The local store %1 is in use by another program. Nothing of this session will be kept.</source>
        <translation>本地数据库 %1 正被其他程序使用。本次会话的内容不会保存。</translation>
    </message>
    <message>
        <source>The local store %1 is damaged and cannot be moved aside. Nothing of this session will be kept.</source>
        <translation>本地数据库 %1 已损坏且无法移开。本次会话的内容不会保存。</translation>
    </message>
    <message>
        <source>The local store was damaged. The file is kept as %1; a new one has been started.</source>
        <translation>本地数据库已损坏。原文件保留为 %1，并已新建数据库。</translation>
    </message>
</context>
<context>
    <name>IncomingPrompt</name>
    <message>
        <source>Incoming call</source>
        <translation>来电</translation>
    </message>
    <message>
        <source>&amp;Reject</source>
        <translation>拒绝(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>接听(&amp;A)</translation>
    </message>
    <message>
        <source>invites you to a conference</source>
        <translation>邀请您参加会议</translation>
    </message>
    <message>
        <source>video call</source>
        <translation>视频来电</translation>
    </message>
    <message>
        <source>is calling you</source>
        <translation>来电</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>KelvarIM demo</source>
        <translation>KelvarIM 演示</translation>
    </message>
    <message>
        <source>Ring, language, colour and folders</source>
        <translation>铃声、语言、颜色和文件夹</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>设置(&amp;S)</translation>
    </message>
    <message>
        <source>Sign in to calls, or out of them</source>
        <translation>登录或退出通话</translation>
    </message>
    <message>
        <source>%1 is calling</source>
        <translation>%1 来电</translation>
    </message>
    <message>
        <source>Call of %1 accepted</source>
        <translation>已接听 %1 的来电</translation>
    </message>
    <message>
        <source>Call of %1 rejected</source>
        <translation>已拒绝 %1 的来电</translation>
    </message>
    <message>
        <source>Calling %1</source>
        <translation>正在呼叫 %1</translation>
    </message>
    <message numerus="yes">
        <source>Starting a conference with %n other(s)</source>
        <translation>
            <numerusform>正在发起与另外 %n 人的会议</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Online</source>
        <translation>在线(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Offline</source>
        <translation>离线(&amp;O)</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>已登录：%1</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>已退出登录</translation>
    </message>
    <message>
        <source>Call with %1: %2 after %3</source>
        <translation>与 %1 的通话：%2，时长 %3</translation>
    </message>
    <message>
        <source>Call with %1: %2</source>
        <translation>与 %1 的通话：%2</translation>
    </message>
</context>
<context>
    <name>MemberPicker</name>
    <message>
        <source>People</source>
        <translation>人员</translation>
    </message>
    <message>
        <source>Text passed on to the call process</source>
        <translation>传给通话进程的文字</translation>
    </message>
    <message>
        <source>Passed on to the call process</source>
        <translation>传给通话进程</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>标志</translation>
    </message>
    <message>
        <source>New conference</source>
        <translation>新会议</translation>
    </message>
    <message>
        <source>Invite to the conference</source>
        <translation>邀请参加会议</translation>
    </message>
    <message>
        <source>Already in the conference: %1</source>
        <translation>已在会议中：%1</translation>
    </message>
    <message>
        <source>Whom to call together?</source>
        <translation>同时呼叫哪些人？</translation>
    </message>
    <message>
        <source>Asked for a conference with: %1</source>
        <translation>请求与以下人员开会：%1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Invite (%1)</source>
        <translation>邀请 (%1)</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>邀请</translation>
    </message>
</context>
<context>
    <name>Presence</name>
    <message>
        <source>offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>away</source>
        <translation>离开</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>忙碌</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>通话</translation>
    </message>
    <message>
        <source>Keep the &amp;ring of incoming calls silent</source>
        <translation>来电不响铃(&amp;R)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>数据(&amp;D)</translation>
    </message>
    <message>
        <source>An empty field means the standard folder</source>
        <translation>留空则使用默认文件夹</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>数据文件夹</translation>
    </message>
    <message>
        <source>Choose: Data folder</source>
        <translation>选择：数据文件夹</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Received &amp;files</source>
        <translation>接收的文件(&amp;F)</translation>
    </message>
    <message>
        <source>Folder for received files</source>
        <translation>接收文件的文件夹</translation>
    </message>
    <message>
        <source>Choose: Folder for received files</source>
        <translation>选择：接收文件的文件夹</translation>
    </message>
    <message>
        <source>These settings are kept in</source>
        <translation>这些设置保存在</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Takes effect at the next start; what is in the old folder stays there.</source>
        <translation>下次启动时生效；旧文件夹中的内容保留在原处。</translation>
    </message>
    <message>
        <source>Holds the settings, the conference records and the log of each user.</source>
        <translation>存放每个用户的设置、会议记录和日志。</translation>
    </message>
    <message>
        <source>This folder cannot be used: %1</source>
        <translation>无法使用此文件夹：%1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
</context>
<context>
    <name>SignatureCard</name>
    <message>
        <source>(no signature)</source>
        <translation>（没有签名）</translation>
    </message>
</context>
</TS>
