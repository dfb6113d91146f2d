<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>EventSentences</name>
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
    <message>
        <source>%1 lines</source>
        <translation>%1 条</translation>
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
</TS>
