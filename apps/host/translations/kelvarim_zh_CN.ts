<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>EventWords</name>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>with picture</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>with sound only</source>
        <translation>语音</translation>
    </message>
    <message>
        <source>the client gives the plug-in the card of %1</source>
        <translation>客户端把 %1 的名片交给插件</translation>
    </message>
    <message>
        <source>the client tells the plug-in that the user is %1</source>
        <translation>客户端告知插件：用户%1</translation>
    </message>
    <message>
        <source>signed in</source>
        <translation>已登录</translation>
    </message>
    <message>
        <source>signed out</source>
        <translation>已退出</translation>
    </message>
    <message>
        <source>the plug-in asks who %1 is: %2</source>
        <translation>插件询问 %1 是谁：%2</translation>
    </message>
    <message>
        <source>here is the record</source>
        <translation>已给出资料</translation>
    </message>
    <message>
        <source>there is no record</source>
        <translation>没有资料</translation>
    </message>
    <message>
        <source>the plug-in asks for the cards of %1</source>
        <translation>插件请求 %1 的名片</translation>
    </message>
    <message>
        <source>the plug-in asks to show the signature card of %1 at %2, %3</source>
        <translation>插件请求在 %2, %3 处显示 %1 的签名卡</translation>
    </message>
    <message>
        <source>the plug-in asks whether %1 is a contact: %2</source>
        <translation>插件询问 %1 是否为联系人：%2</translation>
    </message>
    <message>
        <source>the plug-in asks to take away the prompt of the call with %1</source>
        <translation>插件请求撤下与 %1 通话的提示</translation>
    </message>
    <message>
        <source>the client asks the plug-in to call %2 %1</source>
        <translation>客户端请插件呼叫 %2（%1）</translation>
    </message>
    <message>
        <source>the plug-in reports the end of the call with %2: %3; %4, %5, %6 s</source>
        <translation>插件报告与 %2 的通话结束：%3；%4，%5，%6 秒</translation>
    </message>
    <message>
        <source>called by this side</source>
        <translation>本方呼叫</translation>
    </message>
    <message>
        <source>called by the other side</source>
        <translation>对方呼叫</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已接通</translation>
    </message>
    <message>
        <source>never connected</source>
        <translation>未接通</translation>
    </message>
    <message>
        <source>the client asks whether there is a call: %1</source>
        <translation>客户端询问是否有通话：%1</translation>
    </message>
    <message>
        <source>the client asks whether the call has a picture: %1</source>
        <translation>客户端询问是否为视频通话：%1</translation>
    </message>
    <message>
        <source>the plug-in asks to hide the signature card</source>
        <translation>插件请求隐藏签名卡</translation>
    </message>
    <message>
        <source>the plug-in reports that %1 %2, %3</source>
        <translation>插件报告：%1 %2（%3）</translation>
    </message>
    <message>
        <source>invites to a conference</source>
        <translation>邀请加入会议</translation>
    </message>
    <message>
        <source>calls</source>
        <translation>来电</translation>
    </message>
    <message>
        <source>the client tells the plug-in that the user %1 the call</source>
        <translation>客户端告知插件：用户%1来电</translation>
    </message>
    <message>
        <source>takes</source>
        <translation>接听</translation>
    </message>
    <message>
        <source>rejects</source>
        <translation>拒绝</translation>
    </message>
    <message>
        <source>the client asks the plug-in to start a conference with %1</source>
        <translation>客户端请插件与 %1 开会</translation>
    </message>
    <message>
        <source>the plug-in asks to pick people for a conference, to begin with %1</source>
        <translation>插件请求为新会议选人，已有 %1</translation>
    </message>
    <message>
        <source>the plug-in asks whom to add to the conference of %1: %2</source>
        <translation>插件询问向 %1 的会议添加谁：%2</translation>
    </message>
    <message>
        <source>the client asks for the conference centre</source>
        <translation>客户端请求显示会议中心</translation>
    </message>
    <message>
        <source>the client tells the plug-in that it quits</source>
        <translation>客户端告知插件：即将退出</translation>
    </message>
    <message>
        <source>a command that is not in the contract, with %1 bytes of payload</source>
        <translation>约定之外的命令，数据 %1 字节</translation>
    </message>
</context>
<context>
    <name>HappeningsModel</name>
    <message>
        <source>client → plug-in</source>
        <translation>客户端 → 插件</translation>
    </message>
    <message>
        <source>plug-in → client</source>
        <translation>插件 → 客户端</translation>
    </message>
    <message>
        <source>plug-in → call process</source>
        <translation>插件 → 通话进程</translation>
    </message>
    <message>
        <source>call process → plug-in</source>
        <translation>通话进程 → 插件</translation>
    </message>
    <message>
        <source>call process</source>
        <translation>通话进程</translation>
    </message>
    <message>
        <source>event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>wire</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>发生了什么</translation>
    </message>
</context>
<context>
    <name>HappeningsPanel</name>
    <message>
        <source>What happens</source>
        <translation>实时动态</translation>
    </message>
    <message>
        <source>Let new lines wait until this is pressed again</source>
        <translation>新记录先等待，再按一次才显示</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Copy the selected lines, or all that are shown when none is selected</source>
        <translation>复制选中的记录；未选中时复制显示的全部记录</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Take all lines away</source>
        <translation>清除全部记录</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Show only lines with this text</source>
        <translation>只显示包含此文字的记录</translation>
    </message>
    <message>
        <source>Events between client and plug-in</source>
        <translation>客户端与插件之间的事件</translation>
    </message>
    <message>
        <source>Show events</source>
        <translation>显示事件</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Lines between plug-in and call process</source>
        <translation>插件与通话进程之间的线路记录</translation>
    </message>
    <message>
        <source>Show wire lines</source>
        <translation>显示线路记录</translation>
    </message>
    <message>
        <source>Wire lines</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>Whatever does not follow the contract</source>
        <translation>一切不合约定的内容</translation>
    </message>
    <message>
        <source>Show errors</source>
        <translation>显示错误</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Keep the newest line in sight</source>
        <translation>始终显示最新记录</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>跟随</translation>
    </message>
    <message>
        <source>Lines of what happens</source>
        <translation>实时动态记录</translation>
    </message>
    <message>
        <source>The line in full</source>
        <translation>完整记录</translation>
    </message>
    <message>
        <source>Choose a line to read it in full</source>
        <translation>选择一条记录以查看全文</translation>
    </message>
    <message>
        <source>Copy all lines shown</source>
        <translation>复制显示的全部记录</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n 条</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 lines</source>
        <translation>%2 条中的 %1 条</translation>
    </message>
    <message>
        <source>paused, %1 waiting</source>
        <translation>已暂停，%1 条等待</translation>
    </message>
    <message>
        <source>the oldest %1 were dropped</source>
        <translation>已丢弃最早的 %1 条</translation>
    </message>
</context>
<context>
    <name>Sentence</name>
    <message>
        <source>nobody</source>
        <translation>无人</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>ShownText</name>
    <message>
        <source>(%1 in all)</source>
        <translation>（共 %1）</translation>
    </message>
</context>
<context>
    <name>WireWords</name>
    <message>
        <source>on</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>the plug-in registers %1 (%2) at the call process</source>
        <translation>插件在通话进程注册 %1（%2）</translation>
    </message>
    <message>
        <source>the plug-in takes the registration of %1 back</source>
        <translation>插件注销 %1</translation>
    </message>
    <message>
        <source>the plug-in asks the call process to call %1 %2</source>
        <translation>插件请通话进程呼叫 %1（%2）</translation>
    </message>
    <message>
        <source>with picture</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>with sound only</source>
        <translation>语音</translation>
    </message>
    <message>
        <source>the plug-in asks the call process for a conference of %1 with %2</source>
        <translation>插件请通话进程为 %1 召开会议，成员 %2</translation>
    </message>
    <message>
        <source>the plug-in asks to add %1 to the conference of %6</source>
        <translation>插件请求把 %1 加入 %6 的会议</translation>
    </message>
    <message>
        <source>the plug-in takes the call</source>
        <translation>插件接听来电</translation>
    </message>
    <message>
        <source>the plug-in joins the conference</source>
        <translation>插件加入会议</translation>
    </message>
    <message>
        <source>the plug-in rejects the call</source>
        <translation>插件拒绝来电</translation>
    </message>
    <message>
        <source>the plug-in rejects the conference</source>
        <translation>插件拒绝会议</translation>
    </message>
    <message>
        <source>the plug-in hangs up</source>
        <translation>插件挂断</translation>
    </message>
    <message>
        <source>the plug-in leaves the conference</source>
        <translation>插件退出会议</translation>
    </message>
    <message>
        <source>the plug-in moderates the conference: %1, %2</source>
        <translation>插件主持会议：%1，%2</translation>
    </message>
    <message>
        <source>the plug-in turns the microphone %1</source>
        <translation>插件%1麦克风</translation>
    </message>
    <message>
        <source>the plug-in turns the speaker %1</source>
        <translation>插件%1扬声器</translation>
    </message>
    <message>
        <source>the plug-in turns the camera %1</source>
        <translation>插件%1摄像头</translation>
    </message>
    <message>
        <source>the plug-in sets the microphone to volume %1</source>
        <translation>插件把麦克风音量设为 %1</translation>
    </message>
    <message>
        <source>the plug-in sets the speaker to volume %1</source>
        <translation>插件把扬声器音量设为 %1</translation>
    </message>
    <message>
        <source>the plug-in tells the call process to quit</source>
        <translation>插件让通话进程退出</translation>
    </message>
    <message>
        <source>call process: %1 is calling</source>
        <translation>通话进程：%1 来电</translation>
    </message>
    <message>
        <source>call process: %1 invites to a conference, connected: %2</source>
        <translation>通话进程：%1 邀请加入会议，已接通 %2</translation>
    </message>
    <message>
        <source>call process: the call is to be rejected</source>
        <translation>通话进程：应拒绝该来电</translation>
    </message>
    <message>
        <source>call process: the caller has given up</source>
        <translation>通话进程：呼叫方已取消</translation>
    </message>
    <message>
        <source>call process: %1 has rejected</source>
        <translation>通话进程：%1 已拒绝</translation>
    </message>
    <message>
        <source>call process: a notification that leads to nothing, content %1</source>
        <translation>通话进程：不引起任何动作的通知，内容 %1</translation>
    </message>
    <message>
        <source>call process: the call has ended</source>
        <translation>通话进程：通话已结束</translation>
    </message>
    <message>
        <source>call process: the far end has hung up</source>
        <translation>通话进程：对方已挂断</translation>
    </message>
    <message>
        <source>call process: the far end has rejected</source>
        <translation>通话进程：对方已拒绝</translation>
    </message>
    <message>
        <source>call process: connected in the conference are %2</source>
        <translation>通话进程：会议中已接通 %2</translation>
    </message>
    <message>
        <source>call process: %1 has left the conference, connected are %2</source>
        <translation>通话进程：%1 已离开会议，已接通 %2</translation>
    </message>
    <message>
        <source>call process: its flag is %1</source>
        <translation>通话进程：标志为 %1</translation>
    </message>
    <message>
        <source>call process: the far end has answered</source>
        <translation>通话进程：对方已接听</translation>
    </message>
    <message>
        <source>call process: the call has failed</source>
        <translation>通话进程：呼叫失败</translation>
    </message>
    <message>
        <source>call process: the conference is made, its id is %1</source>
        <translation>通话进程：会议已创建，编号 %1</translation>
    </message>
    <message>
        <source>call process: people were added, not reached: %1</source>
        <translation>通话进程：已添加成员，未能联系 %1</translation>
    </message>
    <message>
        <source>call process: the far end is busy</source>
        <translation>通话进程：对方正忙</translation>
    </message>
    <message>
        <source>call process: %1 has rejected the conference</source>
        <translation>通话进程：%1 已拒绝会议</translation>
    </message>
    <message>
        <source>call process logs: %1</source>
        <translation>通话进程日志：%1</translation>
    </message>
    <message>
        <source>call process: the conference could not be made</source>
        <translation>通话进程：会议未能创建</translation>
    </message>
    <message>
        <source>call process notes: %1</source>
        <translation>通话进程记录：%1</translation>
    </message>
    <message>
        <source>call process complains: %1</source>
        <translation>通话进程报错：%1</translation>
    </message>
    <message>
        <source>a line of %1 bytes, too long to be decoded: %2</source>
        <translation>%1 字节的一行，过长而未解读：%2</translation>
    </message>
    <message>
        <source>no line of the protocol: %1</source>
        <translation>不合协议的一行：%1</translation>
    </message>
    <message>
        <source>the plug-in sends an unknown command: %1</source>
        <translation>插件发送未知命令：%1</translation>
    </message>
    <message>
        <source>call process: an unknown notification, content %1</source>
        <translation>通话进程：未知通知，内容 %1</translation>
    </message>
    <message>
        <source>call process: a document that cannot be read: %1</source>
        <translation>通话进程：无法读取的文档：%1</translation>
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
        <translation>会议成员</translation>
    </message>
</context>
<context>
    <name>CConfDetailMemberTableView</name>
    <message>
        <source>Members of the conference</source>
        <translation>会议成员</translation>
    </message>
</context>
<context>
    <name>CConferenceInfoListView</name>
    <message>
        <source>Past conferences</source>
        <translation>会议记录</translation>
    </message>
</context>
<context>
    <name>ConferenceRow</name>
    <message>
        <source>呼叫中</source>
        <translation>呼叫中</translation>
    </message>
    <message>
        <source>已接通</source>
        <translation>已接通</translation>
    </message>
    <message>
        <source>呼叫失败</source>
        <translation>呼叫失败</translation>
    </message>
    <message>
        <source>对方正忙</source>
        <translation>对方正忙</translation>
    </message>
    <message>
        <source>已挂断</source>
        <translation>已挂断</translation>
    </message>
    <message>
        <source>已拒绝</source>
        <translation>已拒绝</translation>
    </message>
    <message>
        <source>未接通</source>
        <translation>未接通</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>muted</source>
        <translation>已静音</translation>
    </message>
    <message>
        <source>created the conference</source>
        <translation>会议发起人</translation>
    </message>
    <message>
        <source>called by you</source>
        <translation>由您发起</translation>
    </message>
    <message>
        <source>called by another</source>
        <translation>由他人发起</translation>
    </message>
    <message>
        <source>取消静音</source>
        <translation>取消静音</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>移出会议</source>
        <translation>移出会议</translation>
    </message>
    <message>
        <source>再次呼叫</source>
        <translation>再次呼叫</translation>
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
    <message>
        <source>Back to the past conferences</source>
        <translation>返回会议记录</translation>
    </message>
    <message>
        <source>Start a voice conference</source>
        <translation>发起语音会议</translation>
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
    <message>
        <source>邀请成员</source>
        <translation>邀请成员</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>00:00</source>
        <translation>00:00</translation>
    </message>
    <message>
        <source>挂断</source>
        <translation>挂断</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1：%2，最大为 %3</translation>
    </message>
    <message>
        <source>Switch the camera off</source>
        <translation>关闭摄像头</translation>
    </message>
    <message>
        <source>Switch the camera on</source>
        <translation>打开摄像头</translation>
    </message>
    <message>
        <source>Unmute all members</source>
        <translation>取消全体静音</translation>
    </message>
    <message>
        <source>Mute all members</source>
        <translation>全体静音</translation>
    </message>
    <message>
        <source>Microphone volume</source>
        <translation>麦克风音量</translation>
    </message>
    <message>
        <source>Speaker volume</source>
        <translation>扬声器音量</translation>
    </message>
</context>
<context>
    <name>ErrorMessage</name>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>回复内容(100字以内)：</source>
        <translation>回复内容(100字以内)：</translation>
    </message>
    <message>
        <source>组名：</source>
        <translation>组名：</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
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
    <name>CallEntry</name>
    <message>
        <source>now</source>
        <translation>通话中</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>未接</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>无人接听</translation>
    </message>
</context>
<context>
    <name>CallFile</name>
    <message>
        <source>The list of calls %1 is damaged and cannot be moved aside. Calls of this session will not be kept.</source>
        <translation>通话记录 %1 已损坏，且无法移走。本次会话的通话将不会保存。</translation>
    </message>
    <message>
        <source>The list of calls was damaged. The file is kept as %1; a new one has been started.</source>
        <translation>通话记录已损坏。该文件保留为 %1，并已新建一个。</translation>
    </message>
    <message>
        <source>The list of calls %1 cannot be written to. Calls of this session will not be kept.</source>
        <translation>通话记录 %1 无法写入。本次会话的通话将不会保存。</translation>
    </message>
    <message>
        <source>The list of calls %1 is in use by another program. Calls of this session will not be kept.</source>
        <translation>通话记录 %1 正被另一个程序使用。本次会话的通话将不会保存。</translation>
    </message>
    <message>
        <source>The list of calls %1 was written by a newer client and stays as it is. Calls of this session will not be kept.</source>
        <translation>通话记录 %1 由更新版本的客户端写入，将保持原样。本次会话的通话将不会保存。</translation>
    </message>
    <message>
        <source>The list of calls %1 cannot be opened. Calls of this session will not be kept.</source>
        <translation>通话记录 %1 无法打开。本次会话的通话将不会保存。</translation>
    </message>
</context>
<context>
    <name>CallHistoryModel</name>
    <message>
        <source>Conference</source>
        <translation>会议</translation>
    </message>
    <message>
        <source>Conference: %1</source>
        <translation>会议：%1</translation>
    </message>
    <message>
        <source>Today %1</source>
        <translation>今天 %1</translation>
    </message>
    <message>
        <source>Yesterday %1</source>
        <translation>昨天 %1</translation>
    </message>
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
        <source>Who</source>
        <translation>对方</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>通话</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>When</source>
        <translation>时间</translation>
    </message>
</context>
<context>
    <name>CallReadiness</name>
    <message>
        <source>You are in a call. End it first.</source>
        <translation>您正在通话中，请先结束通话。</translation>
    </message>
    <message>
        <source>You are signed out. Sign in first.</source>
        <translation>您已离线，请先上线。</translation>
    </message>
    <message>
        <source>The call service cannot be reached.</source>
        <translation>无法连接通话服务。</translation>
    </message>
    <message>
        <source>The call service is being reached. Wait a moment.</source>
        <translation>正在连接通话服务，请稍候。</translation>
    </message>
    <message>
        <source>The window of the lost call is still open. Hang up there first.</source>
        <translation>中断的通话的窗口仍然打开，请先在其中挂断。</translation>
    </message>
</context>
<context>
    <name>CallSentences</name>
    <message>
        <source>Your conference ended after %1</source>
        <translation>您的会议在 %1 后结束</translation>
    </message>
    <message>
        <source>Nobody joined your conference</source>
        <translation>无人加入您的会议</translation>
    </message>
    <message>
        <source>Your conference was cancelled</source>
        <translation>您的会议已取消</translation>
    </message>
    <message>
        <source>Your conference was cut off</source>
        <translation>您的会议已中断</translation>
    </message>
    <message>
        <source>Your conference could not be held</source>
        <translation>您的会议未能进行</translation>
    </message>
    <message>
        <source>%1 gave up the call</source>
        <translation>%1 放弃了通话</translation>
    </message>
    <message>
        <source>Missed an invitation to a conference from %1</source>
        <translation>未接 %1 的会议邀请</translation>
    </message>
    <message>
        <source>Missed call from %1</source>
        <translation>%1 的未接来电</translation>
    </message>
    <message>
        <source>The conference of %1 was cut off</source>
        <translation>%1 的会议已中断</translation>
    </message>
    <message>
        <source>The call with %1 was cut off</source>
        <translation>与 %1 的通话已中断</translation>
    </message>
    <message>
        <source>%1 did not answer</source>
        <translation>%1 未接听</translation>
    </message>
    <message>
        <source>The call with %1 was cancelled</source>
        <translation>与 %1 的通话已取消</translation>
    </message>
    <message>
        <source>The conference of %1 ended after %2</source>
        <translation>%1 的会议在 %2 后结束</translation>
    </message>
    <message>
        <source>%1 hung up after %2</source>
        <translation>%1 在 %2 后挂断</translation>
    </message>
    <message>
        <source>%1 was busy</source>
        <translation>%1 正忙</translation>
    </message>
    <message>
        <source>%1 rejected the call</source>
        <translation>%1 拒绝了通话</translation>
    </message>
    <message>
        <source>The conference of %1 failed</source>
        <translation>%1 的会议失败</translation>
    </message>
    <message>
        <source>The call with %1 failed</source>
        <translation>与 %1 的通话失败</translation>
    </message>
    <message>
        <source>Call with %1: %2 after %3</source>
        <translation>与 %1 的通话：%3 后%2</translation>
    </message>
    <message>
        <source>Call with %1: %2</source>
        <translation>与 %1 的通话：%2</translation>
    </message>
</context>
<context>
    <name>CallStatusLine</name>
    <message>
        <source>%1 is calling</source>
        <translation>%1 来电</translation>
    </message>
    <message>
        <source>In a call with %1</source>
        <translation>正在与 %1 通话</translation>
    </message>
    <message>
        <source>The conference was not started</source>
        <translation>会议未发起</translation>
    </message>
    <message>
        <source>The call of %1 was not placed</source>
        <translation>未能呼叫 %1</translation>
    </message>
</context>
<context>
    <name>CallsPane</name>
    <message>
        <source>Calls</source>
        <translation>通话</translation>
    </message>
    <message>
        <source>Show the missed calls</source>
        <translation>显示未接来电</translation>
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
        <source>Call again</source>
        <translation>再次呼叫</translation>
    </message>
    <message>
        <source>I have seen it: take this away</source>
        <translation>我已看到，不再显示</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Search the calls</source>
        <translation>搜索通话</translation>
    </message>
    <message>
        <source>All calls</source>
        <translation>全部通话</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Missed calls alone</source>
        <translation>仅未接来电</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>未接</translation>
    </message>
    <message>
        <source>Conferences alone</source>
        <translation>仅会议</translation>
    </message>
    <message>
        <source>Conferences</source>
        <translation>会议</translation>
    </message>
    <message>
        <source>Double click or Enter calls again, Delete deletes</source>
        <translation>双击或按 Enter 再次呼叫，按 Delete 删除</translation>
    </message>
    <message>
        <source>Enter calls again, Delete deletes, Ctrl+Z brings back</source>
        <translation>按 Enter 再次呼叫，按 Delete 删除，按 Ctrl+Z 恢复</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>No calls yet</source>
        <translation>还没有通话</translation>
    </message>
    <message>
        <source>No call matches</source>
        <translation>没有符合的通话</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>还有 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missed</source>
        <translation>
            <numerusform>%n 个未接</numerusform>
        </translation>
    </message>
    <message>
        <source>Call who stands in the first line</source>
        <translation>呼叫第一行中的人</translation>
    </message>
    <message numerus="yes">
        <source>%n call(s) deleted</source>
        <translation>
            <numerusform>已删除 %n 个通话</numerusform>
        </translation>
    </message>
    <message>
        <source>Call together again...</source>
        <translation>再次发起会议...</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>呼叫</translation>
    </message>
    <message>
        <source>Call by video</source>
        <translation>视频呼叫</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Bring back what was deleted last (Ctrl+Z)</source>
        <translation>恢复上一次删除的内容（Ctrl+Z）</translation>
    </message>
    <message>
        <source>A call that is on cannot be deleted.</source>
        <translation>正在进行的通话不能删除。</translation>
    </message>
    <message>
        <source>Search the calls by name, number, initials or outcome</source>
        <translation>按姓名、号码、首字母或结果搜索通话</translation>
    </message>
    <message>
        <source>No missed calls</source>
        <translation>没有未接来电</translation>
    </message>
    <message>
        <source>No missed call matches</source>
        <translation>没有符合的未接来电</translation>
    </message>
    <message>
        <source>No conferences</source>
        <translation>没有会议</translation>
    </message>
    <message>
        <source>No conference matches</source>
        <translation>没有符合的会议</translation>
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
    <message>
        <source>Call this number</source>
        <translation>呼叫此号码</translation>
    </message>
    <message>
        <source>Enter a number first</source>
        <translation>请先输入号码</translation>
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
        <source>The local store %1 is in use by another program. Until that lets it go, nothing of this session is kept.</source>
        <translation>本地数据库 %1 正由其他程序使用。在其释放之前，本次会话的内容不会保存。</translation>
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
        <source>What client, plug-in and call process tell each other (Ctrl+Shift+H)</source>
        <translation>客户端、插件和通话进程之间的往来 (Ctrl+Shift+H)</translation>
    </message>
    <message>
        <source>Ring, sound, keys, language, colour and folders</source>
        <translation>铃声、声音、快捷键、语言、颜色和文件夹</translation>
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
        <source>Open the local store once more</source>
        <translation>再次打开本地数据库</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>重试(&amp;T)</translation>
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
        <source>The local store is open</source>
        <translation>本地数据库已打开</translation>
    </message>
    <message>
        <source>N&amp;o call service</source>
        <translation>无通话服务(&amp;O)</translation>
    </message>
    <message>
        <source>C&amp;onnecting...</source>
        <translation>正在连接(&amp;O)</translation>
    </message>
</context>
<context>
    <name>MemberPicker</name>
    <message>
        <source>People</source>
        <translation>人员</translation>
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
        <source>&amp;Invite (%1)</source>
        <translation>邀请 (%1)(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Invite</source>
        <translation>邀请(&amp;I)</translation>
    </message>
    <message>
        <source>Down and Enter lead into the list, Escape shows everybody again</source>
        <translation>按向下键或 Enter 进入列表，按 Esc 重新显示所有人</translation>
    </message>
    <message>
        <source>Filter the people</source>
        <translation>筛选人员</translation>
    </message>
    <message>
        <source>Filter by name, number or initials</source>
        <translation>按姓名、号码或拼音首字母筛选</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>清除筛选</translation>
    </message>
    <message>
        <source>Nobody matches</source>
        <translation>没有匹配的人员</translation>
    </message>
    <message>
        <source>Somebody who is no contact; several numbers with a space or a comma between them</source>
        <translation>不在联系人中的人；多个号码之间用空格或逗号分隔</translation>
    </message>
    <message>
        <source>Another number</source>
        <translation>其他号码</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>Enter a number first</source>
        <translation>请先输入号码</translation>
    </message>
    <message>
        <source>Put it on the list</source>
        <translation>加入列表</translation>
    </message>
    <message>
        <source>%1 is your own number.</source>
        <translation>%1 是您自己的号码。</translation>
    </message>
    <message>
        <source>%1 is in the conference already.</source>
        <translation>%1 已在会议中。</translation>
    </message>
    <message>
        <source>For the call process; the robots make nothing of it</source>
        <translation>供通话进程使用；机器人不理会这些内容</translation>
    </message>
    <message>
        <source>A text that the call process gets with the request for the conference. It may take it as a title, say; neither client nor plug-in reads it.</source>
        <translation>随会议请求交给通话进程的文字。通话进程可以把它当作会议标题等；客户端和插件都不读取它。</translation>
    </message>
    <message>
        <source>Text for the call process</source>
        <translation>给通话进程的文字</translation>
    </message>
    <message>
        <source>Text, such as a title</source>
        <translation>文字，例如标题</translation>
    </message>
    <message>
        <source>A yes or no that the call process gets with the request for the conference. What it means is the call process's affair; neither client nor plug-in reads it.</source>
        <translation>随会议请求交给通话进程的是或否。其含义由通话进程决定；客户端和插件都不读取它。</translation>
    </message>
    <message>
        <source>Flag for the call process</source>
        <translation>给通话进程的标志</translation>
    </message>
    <message>
        <source>&amp;Flag (yes or no)</source>
        <translation>标志（是或否）(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>更多(&amp;M)</translation>
    </message>
    <message>
        <source>What the call process can be told with the request</source>
        <translation>请求中还可以告诉通话进程的内容</translation>
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
        <source>Holds the settings, the calls, the conference records and the log of each user.</source>
        <translation>存放每个用户的设置、通话、会议记录和日志。</translation>
    </message>
    <message>
        <source>This folder cannot be used: %1</source>
        <translation>无法使用此文件夹：%1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Nothing was changed: %1 cannot be written to.</source>
        <translation>未作更改：无法写入 %1。</translation>
    </message>
    <message>
        <source>Pages of the settings</source>
        <translation>设置页面</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>常规(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Sound</source>
        <translation>声音(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>键盘(&amp;K)</translation>
    </message>
</context>
<context>
    <name>SignatureCard</name>
    <message>
        <source>(no signature)</source>
        <translation>（没有签名）</translation>
    </message>
</context>
<context>
    <name>CallServiceBar</name>
    <message>
        <source>Start the call service without waiting</source>
        <translation>立即启动通话服务，不再等待</translation>
    </message>
    <message>
        <source>Start it no&amp;w</source>
        <translation>立即启动(&amp;W)</translation>
    </message>
    <message>
        <source>Call service lost for a moment: it runs again, and the connection comes back by itself within a minute.</source>
        <translation>通话服务曾中断，现已重新运行，将在一分钟内自动恢复连接。</translation>
    </message>
    <message>
        <source>The call service has not registered you, so nobody can call you. Sign out and in again.</source>
        <translation>通话服务没有登记您，别人无法呼叫您。请退出后重新登录。</translation>
    </message>
    <message>
        <source>It is being started again (try %1 of %2).</source>
        <translation>正在重新启动（第 %1 次，共 %2 次）。</translation>
    </message>
    <message numerus="yes">
        <source>It is started again in %n second(s) (try %1 of %2).</source>
        <translation>
            <numerusform>将在 %n 秒后重新启动（第 %1 次，共 %2 次）。</numerusform>
        </translation>
    </message>
    <message>
        <source>The program cannot be started: %1</source>
        <translation>无法启动程序：%1</translation>
    </message>
    <message numerus="yes">
        <source>It was started %n time(s) and did not stay.</source>
        <translation>
            <numerusform>已启动 %n 次，均未能保持运行。</numerusform>
        </translation>
    </message>
    <message>
        <source>Call service lost, and given up. %1 Start it by the button; if that does not help, quit the client and start it again.</source>
        <translation>通话服务已中断，不再自动启动。%1请按按钮启动；如果无效，请退出客户端后重新启动。</translation>
    </message>
    <message>
        <source>Call service lost: no calls for the moment. %1 The client itself need not be restarted.</source>
        <translation>通话服务已中断：暂时无法通话。%1无需重新启动客户端。</translation>
    </message>
    <message>
        <source>%1. Its window is still open: hang up there, and then call again.</source>
        <translation>%1。通话窗口仍然打开：请先在其中挂断，再重新呼叫。</translation>
    </message>
</context>
<context>
    <name>QuitQuestion</name>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>A call is on.</source>
        <translation>正在通话中。</translation>
    </message>
    <message>
        <source>Quitting ends it.</source>
        <translation>退出将结束通话。</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Keep the call</source>
        <translation>继续通话(&amp;K)</translation>
    </message>
</context>
<context>
    <name>TraceNote</name>
    <message>
        <source>it was started without a trace</source>
        <translation>它启动时没有启用跟踪</translation>
    </message>
    <message>
        <source>it writes its trace to standard error</source>
        <translation>它把跟踪写到标准错误输出</translation>
    </message>
    <message>
        <source>it has not written its trace, %1</source>
        <translation>它没有写跟踪文件 %1</translation>
    </message>
    <message>
        <source>its trace cannot be read: %1</source>
        <translation>它的跟踪文件无法读取：%1</translation>
    </message>
    <message>
        <source>Lines of the wire cannot be shown at present. The call process is %1 (process %2), and %3. End that process: the client then starts one that it can follow. Or start it yourself with %4 naming a file.</source>
        <translation>无法显示线路内容。通话进程是 %1（进程 %2），%3。请结束该进程，客户端会重新启动一个可以跟踪的；或者自行启动，并用 %4 指定一个文件。</translation>
    </message>
    <message>
        <source>another user's</source>
        <translation>另一用户的程序</translation>
    </message>
</context>
<context>
    <name>ContactBook</name>
    <message>
        <source>Answers</source>
        <translation>会接听</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>正忙</translation>
    </message>
    <message>
        <source>Rejects</source>
        <translation>会拒接</translation>
    </message>
    <message>
        <source>Never answers</source>
        <translation>从不接听</translation>
    </message>
    <message>
        <source>Call fails</source>
        <translation>呼叫失败</translation>
    </message>
    <message>
        <source>Hangs up after 10 s</source>
        <translation>10 秒后挂断</translation>
    </message>
    <message>
        <source>Calls you back</source>
        <translation>会回拨给您</translation>
    </message>
    <message>
        <source>Invites you</source>
        <translation>会邀请您开会</translation>
    </message>
    <message>
        <source>Leaves and returns</source>
        <translation>离开后再回来</translation>
    </message>
    <message>
        <source>Invites, lines crossed</source>
        <translation>邀请您时线路交叉</translation>
    </message>
    <message>
        <source>Takes no calls</source>
        <translation>不接电话</translation>
    </message>
    <message>
        <source>You</source>
        <translation>您</translation>
    </message>
    <message>
        <source>Repeats what it hears</source>
        <translation>重复听到的话</translation>
    </message>
</context>
<context>
    <name>VideoCard</name>
    <message>
        <source>Video call with %1</source>
        <translation>与 %1 的视频通话</translation>
    </message>
    <message>
        <source>No picture here: the call process draws none into this window. Everything else is as in a voice call.</source>
        <translation>这里没有画面：通话进程没有在此窗口中绘制。其他与语音通话相同。</translation>
    </message>
</context>
<context>
    <name>DeviceBox</name>
    <message>
        <source>As the desktop has it</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>As the desktop has it (%1)</source>
        <translation>跟随系统（%1）</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1（未连接）</translation>
    </message>
</context>
<context>
    <name>SoundPane</name>
    <message>
        <source>&amp;Microphone</source>
        <translation>麦克风(&amp;M)</translation>
    </message>
    <message>
        <source>Microphone of calls</source>
        <translation>通话用麦克风</translation>
    </message>
    <message>
        <source>Level of the microphone</source>
        <translation>麦克风输入电平</translation>
    </message>
    <message>
        <source>S&amp;peaker</source>
        <translation>扬声器(&amp;P)</translation>
    </message>
    <message>
        <source>Speaker of calls</source>
        <translation>通话用扬声器</translation>
    </message>
    <message>
        <source>Play a &amp;tone</source>
        <translation>播放测试音(&amp;T)</translation>
    </message>
    <message>
        <source>The sound server does not answer. What was chosen holds, and nothing can be tried.</source>
        <translation>声音服务没有响应。已选择的设备仍然有效，但暂时无法测试。</translation>
    </message>
    <message>
        <source>There is no sound server, so there is nothing to choose from. As soon as one is there, its devices are shown.</source>
        <translation>没有声音服务，因此没有可选的设备。声音服务启动后，设备会显示在这里。</translation>
    </message>
    <message>
        <source>The chosen microphone is not there. Until it is, calls take the desktop's, which the bar shows.</source>
        <translation>所选的麦克风未连接。连接之前，通话使用系统的麦克风，音量条显示的也是它。</translation>
    </message>
    <message>
        <source>This microphone cannot be opened.</source>
        <translation>无法打开此麦克风。</translation>
    </message>
    <message>
        <source>Speak: the bar shows what the microphone hears.</source>
        <translation>请说话：音量条显示麦克风收到的声音。</translation>
    </message>
    <message>
        <source>A tone is being played.</source>
        <translation>正在播放测试音。</translation>
    </message>
    <message>
        <source>The tone could not be played.</source>
        <translation>无法播放测试音。</translation>
    </message>
    <message>
        <source>The tone was played. If you have not heard it, choose another speaker, or turn this one up.</source>
        <translation>测试音已播放。如果没有听到，请选择其他扬声器或调高音量。</translation>
    </message>
    <message>
        <source>The chosen speaker is not there. Until it is, calls take the desktop's.</source>
        <translation>所选的扬声器未连接。连接之前，通话使用系统的扬声器。</translation>
    </message>
    <message>
        <source>The tone goes to the speaker above.</source>
        <translation>测试音从上面的扬声器播放。</translation>
    </message>
    <message>
        <source>Takes effect when the call service starts the next time, at the latest when the client does.</source>
        <translation>通话服务下次启动时生效，最迟在客户端下次启动时。</translation>
    </message>
    <message>
        <source>The call service was started with this choice.</source>
        <translation>通话服务正在使用此选择。</translation>
    </message>
</context>
<context>
    <name>KeysPane</name>
    <message>
        <source>Ringing calls</source>
        <translation>来电</translation>
    </message>
    <message>
        <source>&amp;Use a key of the whole desktop</source>
        <translation>使用全局快捷键(&amp;U)</translation>
    </message>
    <message>
        <source>Key of the whole desktop: press the one that you want</source>
        <translation>全局快捷键：请按下想用的键</translation>
    </message>
    <message>
        <source>%1 is needed for typing. Press a key together with Ctrl, Alt or the Windows key, or one of F1 to F35.</source>
        <translation>打字需要 %1。请与 Ctrl、Alt 或 Windows 键一起按，或使用 F1 至 F35。</translation>
    </message>
    <message>
        <source>%1 goes to the prompt of a ringing call from every program. Press another key in the field to change it.</source>
        <translation>在任何程序中按 %1 都会转到来电提示。要更改，请在输入框中按下另一个键。</translation>
    </message>
    <message>
        <source>The desktop refuses %1: another program has it. Press another key in the field.</source>
        <translation>系统拒绝 %1：已被其他程序占用。请在输入框中按下另一个键。</translation>
    </message>
    <message>
        <source>This keyboard has no %1. Press another key in the field.</source>
        <translation>此键盘没有 %1。请在输入框中按下另一个键。</translation>
    </message>
    <message>
        <source>This desktop gives no program a key of its own. In its own settings you may find a way; in the client's windows Ctrl+I goes to the prompt.</source>
        <translation>此桌面不允许程序使用全局快捷键。可在桌面自己的设置中另行设法；在客户端窗口中按 Ctrl+I 可转到来电提示。</translation>
    </message>
    <message>
        <source>In the client's windows Ctrl+I goes to the prompt of a ringing call; this key does so from every program.</source>
        <translation>在客户端窗口中按 Ctrl+I 可转到来电提示；此快捷键在任何程序中都有效。</translation>
    </message>
</context>
<context>
    <name>CallNotice</name>
    <message>
        <source>Show</source>
        <translation>查看</translation>
    </message>
</context>
<context>
    <name>WayToCall</name>
    <message>
        <source>Show the call window</source>
        <translation>显示通话窗口</translation>
    </message>
</context>
</TS>
