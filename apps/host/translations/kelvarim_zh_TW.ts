<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
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
        <translation>視訊</translation>
    </message>
    <message>
        <source>with sound only</source>
        <translation>語音</translation>
    </message>
    <message>
        <source>the client gives the plug-in the card of %1</source>
        <translation>用戶端把 %1 的名片交給外掛</translation>
    </message>
    <message>
        <source>the client tells the plug-in that the user is %1</source>
        <translation>用戶端告知外掛：使用者%1</translation>
    </message>
    <message>
        <source>signed in</source>
        <translation>已登入</translation>
    </message>
    <message>
        <source>signed out</source>
        <translation>已登出</translation>
    </message>
    <message>
        <source>the plug-in asks who %1 is: %2</source>
        <translation>外掛詢問 %1 是誰：%2</translation>
    </message>
    <message>
        <source>here is the record</source>
        <translation>已給出資料</translation>
    </message>
    <message>
        <source>there is no record</source>
        <translation>沒有資料</translation>
    </message>
    <message>
        <source>the plug-in asks for the cards of %1</source>
        <translation>外掛請求 %1 的名片</translation>
    </message>
    <message>
        <source>the plug-in asks to show the signature card of %1 at %2, %3</source>
        <translation>外掛請求在 %2, %3 處顯示 %1 的簽名卡</translation>
    </message>
    <message>
        <source>the plug-in asks whether %1 is a contact: %2</source>
        <translation>外掛詢問 %1 是否為聯絡人：%2</translation>
    </message>
    <message>
        <source>the plug-in asks to take away the prompt of the call with %1</source>
        <translation>外掛請求撤下與 %1 通話的提示</translation>
    </message>
    <message>
        <source>the client asks the plug-in to call %2 %1</source>
        <translation>用戶端請外掛呼叫 %2（%1）</translation>
    </message>
    <message>
        <source>the plug-in reports the end of the call with %2: %3; %4, %5, %6 s</source>
        <translation>外掛報告與 %2 的通話結束：%3；%4，%5，%6 秒</translation>
    </message>
    <message>
        <source>called by this side</source>
        <translation>本方呼叫</translation>
    </message>
    <message>
        <source>called by the other side</source>
        <translation>對方呼叫</translation>
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
        <translation>用戶端詢問是否有通話：%1</translation>
    </message>
    <message>
        <source>the client asks whether the call has a picture: %1</source>
        <translation>用戶端詢問是否為視訊通話：%1</translation>
    </message>
    <message>
        <source>the plug-in asks to hide the signature card</source>
        <translation>外掛請求隱藏簽名卡</translation>
    </message>
    <message>
        <source>the plug-in reports that %1 %2, %3</source>
        <translation>外掛報告：%1 %2（%3）</translation>
    </message>
    <message>
        <source>invites to a conference</source>
        <translation>邀請加入會議</translation>
    </message>
    <message>
        <source>calls</source>
        <translation>來電</translation>
    </message>
    <message>
        <source>the client tells the plug-in that the user %1 the call</source>
        <translation>用戶端告知外掛：使用者%1來電</translation>
    </message>
    <message>
        <source>takes</source>
        <translation>接聽</translation>
    </message>
    <message>
        <source>rejects</source>
        <translation>拒絕</translation>
    </message>
    <message>
        <source>the client asks the plug-in to start a conference with %1</source>
        <translation>用戶端請外掛與 %1 開會</translation>
    </message>
    <message>
        <source>the plug-in asks to pick people for a conference, to begin with %1</source>
        <translation>外掛請求為新會議選人，已有 %1</translation>
    </message>
    <message>
        <source>the plug-in asks whom to add to the conference of %1: %2</source>
        <translation>外掛詢問向 %1 的會議加入誰：%2</translation>
    </message>
    <message>
        <source>the client asks for the conference centre</source>
        <translation>用戶端請求顯示會議中心</translation>
    </message>
    <message>
        <source>the client tells the plug-in that it quits</source>
        <translation>用戶端告知外掛：即將結束</translation>
    </message>
    <message>
        <source>a command that is not in the contract, with %1 bytes of payload</source>
        <translation>約定之外的命令，資料 %1 位元組</translation>
    </message>
</context>
<context>
    <name>HappeningsModel</name>
    <message>
        <source>client → plug-in</source>
        <translation>用戶端 → 外掛</translation>
    </message>
    <message>
        <source>plug-in → client</source>
        <translation>外掛 → 用戶端</translation>
    </message>
    <message>
        <source>plug-in → call process</source>
        <translation>外掛 → 通話程序</translation>
    </message>
    <message>
        <source>call process → plug-in</source>
        <translation>通話程序 → 外掛</translation>
    </message>
    <message>
        <source>call process</source>
        <translation>通話程序</translation>
    </message>
    <message>
        <source>event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>wire</source>
        <translation>線路</translation>
    </message>
    <message>
        <source>error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>類別</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>發生了什麼</translation>
    </message>
</context>
<context>
    <name>HappeningsPanel</name>
    <message>
        <source>What happens</source>
        <translation>即時動態</translation>
    </message>
    <message>
        <source>Let new lines wait until this is pressed again</source>
        <translation>新記錄先等待，再按一次才顯示</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Copy the selected lines, or all that are shown when none is selected</source>
        <translation>複製選取的記錄；未選取時複製顯示的全部記錄</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Take all lines away</source>
        <translation>清除全部記錄</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>Show only lines with this text</source>
        <translation>只顯示包含此文字的記錄</translation>
    </message>
    <message>
        <source>Events between client and plug-in</source>
        <translation>用戶端與外掛之間的事件</translation>
    </message>
    <message>
        <source>Show events</source>
        <translation>顯示事件</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Lines between plug-in and call process</source>
        <translation>外掛與通話程序之間的線路記錄</translation>
    </message>
    <message>
        <source>Show wire lines</source>
        <translation>顯示線路記錄</translation>
    </message>
    <message>
        <source>Wire lines</source>
        <translation>線路</translation>
    </message>
    <message>
        <source>Whatever does not follow the contract</source>
        <translation>一切不合約定的內容</translation>
    </message>
    <message>
        <source>Show errors</source>
        <translation>顯示錯誤</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Keep the newest line in sight</source>
        <translation>始終顯示最新記錄</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>跟隨</translation>
    </message>
    <message>
        <source>Lines of what happens</source>
        <translation>即時動態記錄</translation>
    </message>
    <message>
        <source>The line in full</source>
        <translation>完整記錄</translation>
    </message>
    <message>
        <source>Choose a line to read it in full</source>
        <translation>選擇一條記錄以檢視全文</translation>
    </message>
    <message>
        <source>Copy all lines shown</source>
        <translation>複製顯示的全部記錄</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n 條</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 lines</source>
        <translation>%2 條中的 %1 條</translation>
    </message>
    <message>
        <source>paused, %1 waiting</source>
        <translation>已暫停，%1 條等待</translation>
    </message>
    <message>
        <source>the oldest %1 were dropped</source>
        <translation>已捨棄最早的 %1 條</translation>
    </message>
</context>
<context>
    <name>Sentence</name>
    <message>
        <source>nobody</source>
        <translation>無人</translation>
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
        <translation>開啟</translation>
    </message>
    <message>
        <source>off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>the plug-in registers %1 (%2) at the call process</source>
        <translation>外掛在通話程序註冊 %1（%2）</translation>
    </message>
    <message>
        <source>the plug-in takes the registration of %1 back</source>
        <translation>外掛登出 %1</translation>
    </message>
    <message>
        <source>the plug-in asks the call process to call %1 %2</source>
        <translation>外掛請通話程序呼叫 %1（%2）</translation>
    </message>
    <message>
        <source>with picture</source>
        <translation>視訊</translation>
    </message>
    <message>
        <source>with sound only</source>
        <translation>語音</translation>
    </message>
    <message>
        <source>the plug-in asks the call process for a conference of %1 with %2</source>
        <translation>外掛請通話程序為 %1 召開會議，成員 %2</translation>
    </message>
    <message>
        <source>the plug-in asks to add %1 to the conference of %6</source>
        <translation>外掛請求把 %1 加入 %6 的會議</translation>
    </message>
    <message>
        <source>the plug-in takes the call</source>
        <translation>外掛接聽來電</translation>
    </message>
    <message>
        <source>the plug-in joins the conference</source>
        <translation>外掛加入會議</translation>
    </message>
    <message>
        <source>the plug-in rejects the call</source>
        <translation>外掛拒絕來電</translation>
    </message>
    <message>
        <source>the plug-in rejects the conference</source>
        <translation>外掛拒絕會議</translation>
    </message>
    <message>
        <source>the plug-in hangs up</source>
        <translation>外掛掛斷</translation>
    </message>
    <message>
        <source>the plug-in leaves the conference</source>
        <translation>外掛退出會議</translation>
    </message>
    <message>
        <source>the plug-in moderates the conference: %1, %2</source>
        <translation>外掛主持會議：%1，%2</translation>
    </message>
    <message>
        <source>the plug-in turns the microphone %1</source>
        <translation>外掛%1麥克風</translation>
    </message>
    <message>
        <source>the plug-in turns the speaker %1</source>
        <translation>外掛%1喇叭</translation>
    </message>
    <message>
        <source>the plug-in turns the camera %1</source>
        <translation>外掛%1攝影機</translation>
    </message>
    <message>
        <source>the plug-in sets the microphone to volume %1</source>
        <translation>外掛把麥克風音量設為 %1</translation>
    </message>
    <message>
        <source>the plug-in sets the speaker to volume %1</source>
        <translation>外掛把喇叭音量設為 %1</translation>
    </message>
    <message>
        <source>the plug-in tells the call process to quit</source>
        <translation>外掛讓通話程序結束</translation>
    </message>
    <message>
        <source>call process: %1 is calling</source>
        <translation>通話程序：%1 來電</translation>
    </message>
    <message>
        <source>call process: %1 invites to a conference, connected: %2</source>
        <translation>通話程序：%1 邀請加入會議，已接通 %2</translation>
    </message>
    <message>
        <source>call process: the call is to be rejected</source>
        <translation>通話程序：應拒絕該來電</translation>
    </message>
    <message>
        <source>call process: the caller has given up</source>
        <translation>通話程序：呼叫方已取消</translation>
    </message>
    <message>
        <source>call process: %1 has rejected</source>
        <translation>通話程序：%1 已拒絕</translation>
    </message>
    <message>
        <source>call process: a notification that leads to nothing, content %1</source>
        <translation>通話程序：不引起任何動作的通知，內容 %1</translation>
    </message>
    <message>
        <source>call process: the call has ended</source>
        <translation>通話程序：通話已結束</translation>
    </message>
    <message>
        <source>call process: the far end has hung up</source>
        <translation>通話程序：對方已掛斷</translation>
    </message>
    <message>
        <source>call process: the far end has rejected</source>
        <translation>通話程序：對方已拒絕</translation>
    </message>
    <message>
        <source>call process: connected in the conference are %2</source>
        <translation>通話程序：會議中已接通 %2</translation>
    </message>
    <message>
        <source>call process: %1 has left the conference, connected are %2</source>
        <translation>通話程序：%1 已離開會議，已接通 %2</translation>
    </message>
    <message>
        <source>call process: its flag is %1</source>
        <translation>通話程序：旗標為 %1</translation>
    </message>
    <message>
        <source>call process: the far end has answered</source>
        <translation>通話程序：對方已接聽</translation>
    </message>
    <message>
        <source>call process: the call has failed</source>
        <translation>通話程序：呼叫失敗</translation>
    </message>
    <message>
        <source>call process: the conference is made, its id is %1</source>
        <translation>通話程序：會議已建立，編號 %1</translation>
    </message>
    <message>
        <source>call process: people were added, not reached: %1</source>
        <translation>通話程序：已加入成員，未能聯絡 %1</translation>
    </message>
    <message>
        <source>call process: the far end is busy</source>
        <translation>通話程序：對方忙線中</translation>
    </message>
    <message>
        <source>call process: %1 has rejected the conference</source>
        <translation>通話程序：%1 已拒絕會議</translation>
    </message>
    <message>
        <source>call process logs: %1</source>
        <translation>通話程序日誌：%1</translation>
    </message>
    <message>
        <source>call process: the conference could not be made</source>
        <translation>通話程序：會議未能建立</translation>
    </message>
    <message>
        <source>call process notes: %1</source>
        <translation>通話程序記錄：%1</translation>
    </message>
    <message>
        <source>call process complains: %1</source>
        <translation>通話程序報錯：%1</translation>
    </message>
    <message>
        <source>a line of %1 bytes, too long to be decoded: %2</source>
        <translation>%1 位元組的一行，過長而未解讀：%2</translation>
    </message>
    <message>
        <source>no line of the protocol: %1</source>
        <translation>不合協定的一行：%1</translation>
    </message>
    <message>
        <source>the plug-in sends an unknown command: %1</source>
        <translation>外掛送出未知命令：%1</translation>
    </message>
    <message>
        <source>call process: an unknown notification, content %1</source>
        <translation>通話程序：未知通知，內容 %1</translation>
    </message>
    <message>
        <source>call process: a document that cannot be read: %1</source>
        <translation>通話程序：無法讀取的文件：%1</translation>
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
        <translation>會議成員</translation>
    </message>
</context>
<context>
    <name>CConfDetailMemberTableView</name>
    <message>
        <source>Members of the conference</source>
        <translation>會議成員</translation>
    </message>
</context>
<context>
    <name>CConferenceInfoListView</name>
    <message>
        <source>Past conferences</source>
        <translation>會議記錄</translation>
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
        <translation>呼叫失敗</translation>
    </message>
    <message>
        <source>对方正忙</source>
        <translation>對方忙線中</translation>
    </message>
    <message>
        <source>已挂断</source>
        <translation>已掛斷</translation>
    </message>
    <message>
        <source>已拒绝</source>
        <translation>已拒絕</translation>
    </message>
    <message>
        <source>未接通</source>
        <translation>未接通</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小時</translation>
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
        <translation>已靜音</translation>
    </message>
    <message>
        <source>created the conference</source>
        <translation>會議發起人</translation>
    </message>
    <message>
        <source>called by you</source>
        <translation>由您發起</translation>
    </message>
    <message>
        <source>called by another</source>
        <translation>由他人發起</translation>
    </message>
    <message>
        <source>取消静音</source>
        <translation>取消靜音</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>移出会议</source>
        <translation>移出會議</translation>
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
        <translation>正在通話中，請先結束目前的通話</translation>
    </message>
</context>
<context>
    <name>CVoiceConferenceWidget</name>
    <message>
        <source>close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Back to the past conferences</source>
        <translation>返回會議記錄</translation>
    </message>
    <message>
        <source>Start a voice conference</source>
        <translation>發起語音會議</translation>
    </message>
</context>
<context>
    <name>CVoipWidget</name>
    <message>
        <source>close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>openmic</source>
        <translation>開啟麥克風</translation>
    </message>
    <message>
        <source>closemic</source>
        <translation>關閉麥克風</translation>
    </message>
    <message>
        <source>openvioce</source>
        <translation>開啟聲音</translation>
    </message>
    <message>
        <source>silence</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>確定</translation>
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
        <translation>確定要結束目前的通話嗎？</translation>
    </message>
    <message>
        <source>fullscreen</source>
        <translation>全螢幕</translation>
    </message>
    <message>
        <source>restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>tarvoPhoto</source>
        <translation>KelvarIM圖片</translation>
    </message>
    <message>
        <source>savepic</source>
        <translation>儲存圖片</translation>
    </message>
    <message>
        <source>邀请成员</source>
        <translation>邀請成員</translation>
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
        <translation>掛斷</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1：%2，最大為 %3</translation>
    </message>
    <message>
        <source>Switch the camera off</source>
        <translation>關閉攝影機</translation>
    </message>
    <message>
        <source>Switch the camera on</source>
        <translation>開啟攝影機</translation>
    </message>
    <message>
        <source>Unmute all members</source>
        <translation>取消全體靜音</translation>
    </message>
    <message>
        <source>Mute all members</source>
        <translation>全體靜音</translation>
    </message>
    <message>
        <source>Microphone volume</source>
        <translation>麥克風音量</translation>
    </message>
    <message>
        <source>Speaker volume</source>
        <translation>喇叭音量</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>回复内容(100字以内)：</source>
        <translation>回覆內容(100字以內)：</translation>
    </message>
    <message>
        <source>组名：</source>
        <translation>群組名稱：</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>確定</translation>
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
        <translation>KelvarIM螢幕擷取</translation>
    </message>
    <message>
        <source>ThemeGreen</source>
        <translation>清新綠</translation>
    </message>
    <message>
        <source>yourPickMsgHotKeyUsedAndRevise</source>
        <translation>擷取訊息的快速鍵已被其他程式佔用，</translation>
    </message>
    <message>
        <source>yourScreenCutHotKeyUsedAndRevise</source>
        <translation>螢幕擷取的快速鍵已被其他程式佔用，</translation>
    </message>
    <message>
        <source>yourHotKeyUsedAndRevise</source>
        <translation>您設定的快速鍵已被其他程式佔用，</translation>
    </message>
    <message>
        <source>makeSureFunction</source>
        <translation>為確保功能正常使用，請</translation>
    </message>
    <message>
        <source>makeSureCanBeUsed</source>
        <translation>為確保快速鍵可用，請</translation>
    </message>
    <message>
        <source>modifyhotkey</source>
        <translation>修改快速鍵</translation>
    </message>
    <message>
        <source>period</source>
        <translation>。</translation>
    </message>
    <message>
        <source>close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>tip</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>lookupHistoryMsg</source>
        <translation>查看歷史訊息</translation>
    </message>
    <message>
        <source>readrecord</source>
        <translation>查看記錄</translation>
    </message>
    <message>
        <source>inputkeyword</source>
        <translation>請輸入關鍵字</translation>
    </message>
    <message>
        <source>tagsevenwords</source>
        <translation>標籤最多7個字</translation>
    </message>
    <message>
        <source>tagcannotspace</source>
        <translation>標籤不能為空</translation>
    </message>
    <message>
        <source>inputnarvepass</source>
        <translation>請輸入密碼</translation>
    </message>
    <message>
        <source>cut</source>
        <translation>剪下</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>allSelect</source>
        <translation>全選</translation>
    </message>
</context>
<context>
    <name>VoipManageMessageProcess</name>
    <message>
        <source>enternothandle</source>
        <translation>未處理的訊息</translation>
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
        <translation>失敗</translation>
    </message>
    <message>
        <source>hung up</source>
        <translation>已掛斷</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>忙線</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>已拒絕</translation>
    </message>
</context>
<context>
    <name>CallEntry</name>
    <message>
        <source>now</source>
        <translation>通話中</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>未接</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>中斷</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>無人接聽</translation>
    </message>
</context>
<context>
    <name>CallFile</name>
    <message>
        <source>The list of calls %1 is damaged and cannot be moved aside. Calls of this session will not be kept.</source>
        <translation>通話記錄 %1 已損壞，且無法移走。本次工作階段的通話將不會儲存。</translation>
    </message>
    <message>
        <source>The list of calls was damaged. The file is kept as %1; a new one has been started.</source>
        <translation>通話記錄已損壞。該檔案保留為 %1，並已新建一個。</translation>
    </message>
    <message>
        <source>The list of calls %1 cannot be written to. Calls of this session will not be kept.</source>
        <translation>通話記錄 %1 無法寫入。本次工作階段的通話將不會儲存。</translation>
    </message>
    <message>
        <source>The list of calls %1 is in use by another program. Calls of this session will not be kept.</source>
        <translation>通話記錄 %1 正被另一個程式使用。本次工作階段的通話將不會儲存。</translation>
    </message>
    <message>
        <source>The list of calls %1 was written by a newer client and stays as it is. Calls of this session will not be kept.</source>
        <translation>通話記錄 %1 由較新版本的用戶端寫入，將保持原樣。本次工作階段的通話將不會儲存。</translation>
    </message>
    <message>
        <source>The list of calls %1 cannot be opened. Calls of this session will not be kept.</source>
        <translation>通話記錄 %1 無法開啟。本次工作階段的通話將不會儲存。</translation>
    </message>
</context>
<context>
    <name>CallHistoryModel</name>
    <message>
        <source>Conference</source>
        <translation>會議</translation>
    </message>
    <message>
        <source>Conference: %1</source>
        <translation>會議：%1</translation>
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
        <translation>撥出視訊</translation>
    </message>
    <message>
        <source>incoming video</source>
        <translation>撥入視訊</translation>
    </message>
    <message>
        <source>outgoing</source>
        <translation>撥出</translation>
    </message>
    <message>
        <source>incoming</source>
        <translation>撥入</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>對方</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>通話</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>時長</translation>
    </message>
    <message>
        <source>When</source>
        <translation>時間</translation>
    </message>
</context>
<context>
    <name>CallReadiness</name>
    <message>
        <source>You are in a call. End it first.</source>
        <translation>您正在通話中，請先結束通話。</translation>
    </message>
    <message>
        <source>You are signed out. Sign in first.</source>
        <translation>您已離線，請先上線。</translation>
    </message>
    <message>
        <source>The call service cannot be reached.</source>
        <translation>無法連線到通話服務。</translation>
    </message>
    <message>
        <source>The call service is being reached. Wait a moment.</source>
        <translation>正在連線到通話服務，請稍候。</translation>
    </message>
    <message>
        <source>The window of the lost call is still open. Hang up there first.</source>
        <translation>中斷的通話的視窗仍然開著，請先在其中掛斷。</translation>
    </message>
</context>
<context>
    <name>CallSentences</name>
    <message>
        <source>Your conference ended after %1</source>
        <translation>您的會議在 %1 後結束</translation>
    </message>
    <message>
        <source>Nobody joined your conference</source>
        <translation>無人加入您的會議</translation>
    </message>
    <message>
        <source>Your conference was cancelled</source>
        <translation>您的會議已取消</translation>
    </message>
    <message>
        <source>Your conference was cut off</source>
        <translation>您的會議已中斷</translation>
    </message>
    <message>
        <source>Your conference could not be held</source>
        <translation>您的會議未能進行</translation>
    </message>
    <message>
        <source>%1 gave up the call</source>
        <translation>%1 放棄了通話</translation>
    </message>
    <message>
        <source>Missed an invitation to a conference from %1</source>
        <translation>未接 %1 的會議邀請</translation>
    </message>
    <message>
        <source>Missed call from %1</source>
        <translation>%1 的未接來電</translation>
    </message>
    <message>
        <source>The conference of %1 was cut off</source>
        <translation>%1 的會議已中斷</translation>
    </message>
    <message>
        <source>The call with %1 was cut off</source>
        <translation>與 %1 的通話已中斷</translation>
    </message>
    <message>
        <source>%1 did not answer</source>
        <translation>%1 未接聽</translation>
    </message>
    <message>
        <source>The call with %1 was cancelled</source>
        <translation>與 %1 的通話已取消</translation>
    </message>
    <message>
        <source>The conference of %1 ended after %2</source>
        <translation>%1 的會議在 %2 後結束</translation>
    </message>
    <message>
        <source>%1 hung up after %2</source>
        <translation>%1 在 %2 後掛斷</translation>
    </message>
    <message>
        <source>%1 was busy</source>
        <translation>%1 忙線中</translation>
    </message>
    <message>
        <source>%1 rejected the call</source>
        <translation>%1 拒絕了通話</translation>
    </message>
    <message>
        <source>The conference of %1 failed</source>
        <translation>%1 的會議失敗</translation>
    </message>
    <message>
        <source>The call with %1 failed</source>
        <translation>與 %1 的通話失敗</translation>
    </message>
    <message>
        <source>Call with %1: %2 after %3</source>
        <translation>與 %1 的通話：%3 後%2</translation>
    </message>
    <message>
        <source>Call with %1: %2</source>
        <translation>與 %1 的通話：%2</translation>
    </message>
</context>
<context>
    <name>CallStatusLine</name>
    <message>
        <source>%1 is calling</source>
        <translation>%1 來電</translation>
    </message>
    <message>
        <source>In a call with %1</source>
        <translation>正在與 %1 通話</translation>
    </message>
    <message>
        <source>The conference was not started</source>
        <translation>會議未發起</translation>
    </message>
    <message>
        <source>The call of %1 was not placed</source>
        <translation>未能撥打 %1</translation>
    </message>
</context>
<context>
    <name>CallsPane</name>
    <message>
        <source>Calls</source>
        <translation>通話</translation>
    </message>
    <message>
        <source>Show the missed calls</source>
        <translation>顯示未接來電</translation>
    </message>
    <message>
        <source>Past conferences: look at them, call them again, delete them</source>
        <translation>以往的會議：檢視、再次呼叫、刪除</translation>
    </message>
    <message>
        <source>Conference ce&amp;ntre</source>
        <translation>會議中心(&amp;N)</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>再次撥打</translation>
    </message>
    <message>
        <source>I have seen it: take this away</source>
        <translation>我已看到，不再顯示</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Search the calls</source>
        <translation>搜尋通話</translation>
    </message>
    <message>
        <source>All calls</source>
        <translation>全部通話</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Missed calls alone</source>
        <translation>僅未接來電</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>未接</translation>
    </message>
    <message>
        <source>Conferences alone</source>
        <translation>僅會議</translation>
    </message>
    <message>
        <source>Conferences</source>
        <translation>會議</translation>
    </message>
    <message>
        <source>Double click or Enter calls again, Delete deletes</source>
        <translation>按兩下或按 Enter 再次撥打，按 Delete 刪除</translation>
    </message>
    <message>
        <source>Enter calls again, Delete deletes, Ctrl+Z brings back</source>
        <translation>按 Enter 再次撥打，按 Delete 刪除，按 Ctrl+Z 復原</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>No calls yet</source>
        <translation>還沒有通話</translation>
    </message>
    <message>
        <source>No call matches</source>
        <translation>沒有符合的通話</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>還有 %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missed</source>
        <translation>
            <numerusform>%n 個未接</numerusform>
        </translation>
    </message>
    <message>
        <source>Call who stands in the first line</source>
        <translation>撥打第一行中的人</translation>
    </message>
    <message numerus="yes">
        <source>%n call(s) deleted</source>
        <translation>
            <numerusform>已刪除 %n 個通話</numerusform>
        </translation>
    </message>
    <message>
        <source>Call together again...</source>
        <translation>再次發起會議...</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>撥打</translation>
    </message>
    <message>
        <source>Call by video</source>
        <translation>視訊撥打</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜尋</translation>
    </message>
    <message>
        <source>Bring back what was deleted last (Ctrl+Z)</source>
        <translation>復原上一次刪除的內容（Ctrl+Z）</translation>
    </message>
    <message>
        <source>A call that is on cannot be deleted.</source>
        <translation>正在進行的通話不能刪除。</translation>
    </message>
    <message>
        <source>Search the calls by name, number, initials or outcome</source>
        <translation>按姓名、號碼、首字母或結果搜尋通話</translation>
    </message>
    <message>
        <source>No missed calls</source>
        <translation>沒有未接來電</translation>
    </message>
    <message>
        <source>No missed call matches</source>
        <translation>沒有符合的未接來電</translation>
    </message>
    <message>
        <source>No conferences</source>
        <translation>沒有會議</translation>
    </message>
    <message>
        <source>No conference matches</source>
        <translation>沒有符合的會議</translation>
    </message>
</context>
<context>
    <name>ContactPane</name>
    <message>
        <source>Contacts</source>
        <translation>聯絡人</translation>
    </message>
    <message>
        <source>Search the contacts (Ctrl+F)</source>
        <translation>搜尋聯絡人 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search the contacts</source>
        <translation>搜尋聯絡人</translation>
    </message>
    <message>
        <source>Search by name, number or initials</source>
        <translation>以姓名、號碼或拼音首字母搜尋</translation>
    </message>
    <message>
        <source>No contact matches</source>
        <translation>沒有符合的聯絡人</translation>
    </message>
    <message>
        <source>Number to call</source>
        <translation>要撥打的號碼</translation>
    </message>
    <message>
        <source>Call another number</source>
        <translation>撥打其他號碼</translation>
    </message>
    <message>
        <source>&amp;Call</source>
        <translation>呼叫(&amp;C)</translation>
    </message>
    <message>
        <source>Call several people together</source>
        <translation>同時呼叫多人</translation>
    </message>
    <message>
        <source>Con&amp;ference...</source>
        <translation>會議(&amp;F)...</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜尋</translation>
    </message>
    <message>
        <source>Call this number</source>
        <translation>撥打此號碼</translation>
    </message>
    <message>
        <source>Enter a number first</source>
        <translation>請先輸入號碼</translation>
    </message>
</context>
<context>
    <name>ContactRow</name>
    <message>
        <source>not a contact</source>
        <translation>非聯絡人</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>呼叫 %1</translation>
    </message>
    <message>
        <source>Call %1 by video</source>
        <translation>視訊呼叫 %1</translation>
    </message>
</context>
<context>
    <name>HostSession</name>
    <message>
        <source>not a plug-in of this client</source>
        <translation>不是本用戶端的外掛程式</translation>
    </message>
</context>
<context>
    <name>HostSkins</name>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅色</translation>
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
        <translation>%1 是舊版用戶端的資料庫，將保持原樣，其中的內容不在此顯示。</translation>
    </message>
    <message>
        <source>The local store %1 cannot be opened. Nothing of this session will be kept.</source>
        <translation>無法開啟本機資料庫 %1。本次工作階段的內容不會儲存。</translation>
    </message>
    <message>
        <source>The local store %1 cannot be written to. Nothing of this session will be kept.</source>
        <translation>無法寫入本機資料庫 %1。本次工作階段的內容不會儲存。</translation>
    </message>
    <message>
        <source>The local store %1 is in use by another program. Until that lets it go, nothing of this session is kept.</source>
        <translation>本機資料庫 %1 正由其他程式使用。在其釋放之前，本次工作階段的內容不會儲存。</translation>
    </message>
    <message>
        <source>The local store %1 is damaged and cannot be moved aside. Nothing of this session will be kept.</source>
        <translation>本機資料庫 %1 已損毀且無法移開。本次工作階段的內容不會儲存。</translation>
    </message>
    <message>
        <source>The local store was damaged. The file is kept as %1; a new one has been started.</source>
        <translation>本機資料庫已損毀。原檔案保留為 %1，並已新建資料庫。</translation>
    </message>
</context>
<context>
    <name>IncomingPrompt</name>
    <message>
        <source>Incoming call</source>
        <translation>來電</translation>
    </message>
    <message>
        <source>&amp;Reject</source>
        <translation>拒絕(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>接聽(&amp;A)</translation>
    </message>
    <message>
        <source>invites you to a conference</source>
        <translation>邀請您參加會議</translation>
    </message>
    <message>
        <source>video call</source>
        <translation>視訊來電</translation>
    </message>
    <message>
        <source>is calling you</source>
        <translation>來電</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>KelvarIM demo</source>
        <translation>KelvarIM 示範</translation>
    </message>
    <message>
        <source>What client, plug-in and call process tell each other (Ctrl+Shift+H)</source>
        <translation>用戶端、外掛和通話程序之間的往來 (Ctrl+Shift+H)</translation>
    </message>
    <message>
        <source>Ring, sound, keys, language, colour and folders</source>
        <translation>鈴聲、聲音、快速鍵、語言、色彩和資料夾</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>Sign in to calls, or out of them</source>
        <translation>登入或登出通話</translation>
    </message>
    <message>
        <source>Open the local store once more</source>
        <translation>再次開啟本機資料庫</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>重試(&amp;T)</translation>
    </message>
    <message>
        <source>Call of %1 accepted</source>
        <translation>已接聽 %1 的來電</translation>
    </message>
    <message>
        <source>Call of %1 rejected</source>
        <translation>已拒絕 %1 的來電</translation>
    </message>
    <message>
        <source>Calling %1</source>
        <translation>正在呼叫 %1</translation>
    </message>
    <message numerus="yes">
        <source>Starting a conference with %n other(s)</source>
        <translation>
            <numerusform>正在發起與另外 %n 人的會議</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Online</source>
        <translation>線上(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Offline</source>
        <translation>離線(&amp;O)</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>已登入：%1</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>已登出</translation>
    </message>
    <message>
        <source>The local store is open</source>
        <translation>本機資料庫已開啟</translation>
    </message>
    <message>
        <source>N&amp;o call service</source>
        <translation>無通話服務(&amp;O)</translation>
    </message>
    <message>
        <source>C&amp;onnecting...</source>
        <translation>正在連線(&amp;O)</translation>
    </message>
</context>
<context>
    <name>MemberPicker</name>
    <message>
        <source>People</source>
        <translation>人員</translation>
    </message>
    <message>
        <source>New conference</source>
        <translation>新會議</translation>
    </message>
    <message>
        <source>Invite to the conference</source>
        <translation>邀請參加會議</translation>
    </message>
    <message>
        <source>Already in the conference: %1</source>
        <translation>已在會議中：%1</translation>
    </message>
    <message>
        <source>Whom to call together?</source>
        <translation>同時呼叫哪些人？</translation>
    </message>
    <message>
        <source>Asked for a conference with: %1</source>
        <translation>請求與以下人員開會：%1</translation>
    </message>
    <message>
        <source>&amp;Invite (%1)</source>
        <translation>邀請 (%1)(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Invite</source>
        <translation>邀請(&amp;I)</translation>
    </message>
    <message>
        <source>Down and Enter lead into the list, Escape shows everybody again</source>
        <translation>按向下鍵或 Enter 進入清單，按 Esc 重新顯示所有人</translation>
    </message>
    <message>
        <source>Filter the people</source>
        <translation>篩選人員</translation>
    </message>
    <message>
        <source>Filter by name, number or initials</source>
        <translation>以姓名、號碼或拼音首字母篩選</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>清除篩選</translation>
    </message>
    <message>
        <source>Nobody matches</source>
        <translation>沒有符合的人員</translation>
    </message>
    <message>
        <source>Somebody who is no contact; several numbers with a space or a comma between them</source>
        <translation>不在聯絡人中的人；多個號碼之間用空格或逗號分隔</translation>
    </message>
    <message>
        <source>Another number</source>
        <translation>其他號碼</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>加入(&amp;A)</translation>
    </message>
    <message>
        <source>Enter a number first</source>
        <translation>請先輸入號碼</translation>
    </message>
    <message>
        <source>Put it on the list</source>
        <translation>加入清單</translation>
    </message>
    <message>
        <source>%1 is your own number.</source>
        <translation>%1 是您自己的號碼。</translation>
    </message>
    <message>
        <source>%1 is in the conference already.</source>
        <translation>%1 已在會議中。</translation>
    </message>
    <message>
        <source>For the call process; the robots make nothing of it</source>
        <translation>供通話程序使用；機器人不理會這些內容</translation>
    </message>
    <message>
        <source>A text that the call process gets with the request for the conference. It may take it as a title, say; neither client nor plug-in reads it.</source>
        <translation>隨會議請求交給通話程序的文字。通話程序可以把它當作會議標題等；用戶端和外掛都不讀取它。</translation>
    </message>
    <message>
        <source>Text for the call process</source>
        <translation>給通話程序的文字</translation>
    </message>
    <message>
        <source>Text, such as a title</source>
        <translation>文字，例如標題</translation>
    </message>
    <message>
        <source>A yes or no that the call process gets with the request for the conference. What it means is the call process's affair; neither client nor plug-in reads it.</source>
        <translation>隨會議請求交給通話程序的是或否。其含義由通話程序決定；用戶端和外掛都不讀取它。</translation>
    </message>
    <message>
        <source>Flag for the call process</source>
        <translation>給通話程序的標誌</translation>
    </message>
    <message>
        <source>&amp;Flag (yes or no)</source>
        <translation>標誌（是或否）(&amp;F)</translation>
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
        <translation>請求中還可以告訴通話行程的內容</translation>
    </message>
</context>
<context>
    <name>Presence</name>
    <message>
        <source>offline</source>
        <translation>離線</translation>
    </message>
    <message>
        <source>online</source>
        <translation>線上</translation>
    </message>
    <message>
        <source>away</source>
        <translation>離開</translation>
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
        <translation>設定</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>通話</translation>
    </message>
    <message>
        <source>Keep the &amp;ring of incoming calls silent</source>
        <translation>來電不響鈴(&amp;R)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色彩</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>資料(&amp;D)</translation>
    </message>
    <message>
        <source>An empty field means the standard folder</source>
        <translation>留空則使用預設資料夾</translation>
    </message>
    <message>
        <source>Data folder</source>
        <translation>資料儲存資料夾</translation>
    </message>
    <message>
        <source>Choose: Data folder</source>
        <translation>選擇：資料儲存資料夾</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <source>Received &amp;files</source>
        <translation>接收的檔案(&amp;F)</translation>
    </message>
    <message>
        <source>Folder for received files</source>
        <translation>接收檔案的資料夾</translation>
    </message>
    <message>
        <source>Choose: Folder for received files</source>
        <translation>選擇：接收檔案的資料夾</translation>
    </message>
    <message>
        <source>These settings are kept in</source>
        <translation>這些設定儲存在</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>Takes effect at the next start; what is in the old folder stays there.</source>
        <translation>下次啟動時生效；舊資料夾中的內容保留在原處。</translation>
    </message>
    <message>
        <source>Holds the settings, the calls, the conference records and the log of each user.</source>
        <translation>存放每位使用者的設定、通話、會議記錄和日誌。</translation>
    </message>
    <message>
        <source>This folder cannot be used: %1</source>
        <translation>無法使用此資料夾：%1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>選擇資料夾</translation>
    </message>
    <message>
        <source>Nothing was changed: %1 cannot be written to.</source>
        <translation>未作變更：無法寫入 %1。</translation>
    </message>
    <message>
        <source>Pages of the settings</source>
        <translation>設定頁面</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>一般(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Sound</source>
        <translation>聲音(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>鍵盤(&amp;K)</translation>
    </message>
</context>
<context>
    <name>SignatureCard</name>
    <message>
        <source>(no signature)</source>
        <translation>（沒有簽名）</translation>
    </message>
</context>
<context>
    <name>CallServiceBar</name>
    <message>
        <source>Start the call service without waiting</source>
        <translation>立即啟動通話服務，不再等待</translation>
    </message>
    <message>
        <source>Start it no&amp;w</source>
        <translation>立即啟動(&amp;W)</translation>
    </message>
    <message>
        <source>Call service lost for a moment: it runs again, and the connection comes back by itself within a minute.</source>
        <translation>通話服務曾中斷，現已重新執行，將在一分鐘內自動恢復連線。</translation>
    </message>
    <message>
        <source>The call service has not registered you, so nobody can call you. Sign out and in again.</source>
        <translation>通話服務沒有登記您，別人無法呼叫您。請登出後重新登入。</translation>
    </message>
    <message>
        <source>It is being started again (try %1 of %2).</source>
        <translation>正在重新啟動（第 %1 次，共 %2 次）。</translation>
    </message>
    <message numerus="yes">
        <source>It is started again in %n second(s) (try %1 of %2).</source>
        <translation>
            <numerusform>將在 %n 秒後重新啟動（第 %1 次，共 %2 次）。</numerusform>
        </translation>
    </message>
    <message>
        <source>The program cannot be started: %1</source>
        <translation>無法啟動程式：%1</translation>
    </message>
    <message numerus="yes">
        <source>It was started %n time(s) and did not stay.</source>
        <translation>
            <numerusform>已啟動 %n 次，均未能保持執行。</numerusform>
        </translation>
    </message>
    <message>
        <source>Call service lost, and given up. %1 Start it by the button; if that does not help, quit the client and start it again.</source>
        <translation>通話服務已中斷，不再自動啟動。%1請按按鈕啟動；如果無效，請結束用戶端後重新啟動。</translation>
    </message>
    <message>
        <source>Call service lost: no calls for the moment. %1 The client itself need not be restarted.</source>
        <translation>通話服務已中斷：暫時無法通話。%1不必重新啟動用戶端。</translation>
    </message>
    <message>
        <source>%1. Its window is still open: hang up there, and then call again.</source>
        <translation>%1。通話視窗仍然開著：請先在其中掛斷，再重新撥打。</translation>
    </message>
</context>
<context>
    <name>QuitQuestion</name>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>A call is on.</source>
        <translation>正在通話中。</translation>
    </message>
    <message>
        <source>Quitting ends it.</source>
        <translation>結束程式將結束通話。</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Keep the call</source>
        <translation>繼續通話(&amp;K)</translation>
    </message>
</context>
<context>
    <name>TraceNote</name>
    <message>
        <source>it was started without a trace</source>
        <translation>它啟動時沒有啟用追蹤</translation>
    </message>
    <message>
        <source>it writes its trace to standard error</source>
        <translation>它把追蹤寫到標準錯誤輸出</translation>
    </message>
    <message>
        <source>it has not written its trace, %1</source>
        <translation>它沒有寫追蹤檔 %1</translation>
    </message>
    <message>
        <source>its trace cannot be read: %1</source>
        <translation>它的追蹤檔無法讀取：%1</translation>
    </message>
    <message>
        <source>Lines of the wire cannot be shown at present. The call process is %1 (process %2), and %3. End that process: the client then starts one that it can follow. Or start it yourself with %4 naming a file.</source>
        <translation>無法顯示線路內容。通話程序是 %1（程序 %2），%3。請結束該程序，用戶端會重新啟動一個可以追蹤的；或者自行啟動，並用 %4 指定一個檔案。</translation>
    </message>
    <message>
        <source>another user's</source>
        <translation>另一使用者的程式</translation>
    </message>
</context>
<context>
    <name>ContactBook</name>
    <message>
        <source>Answers</source>
        <translation>會接聽</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>忙線中</translation>
    </message>
    <message>
        <source>Rejects</source>
        <translation>會拒接</translation>
    </message>
    <message>
        <source>Never answers</source>
        <translation>從不接聽</translation>
    </message>
    <message>
        <source>Call fails</source>
        <translation>呼叫失敗</translation>
    </message>
    <message>
        <source>Hangs up after 10 s</source>
        <translation>10 秒後掛斷</translation>
    </message>
    <message>
        <source>Calls you back</source>
        <translation>會回撥給您</translation>
    </message>
    <message>
        <source>Invites you</source>
        <translation>會邀請您開會</translation>
    </message>
    <message>
        <source>Leaves and returns</source>
        <translation>離開後再回來</translation>
    </message>
    <message>
        <source>Invites, lines crossed</source>
        <translation>邀請您時線路交叉</translation>
    </message>
    <message>
        <source>Takes no calls</source>
        <translation>不接電話</translation>
    </message>
    <message>
        <source>You</source>
        <translation>您</translation>
    </message>
    <message>
        <source>Repeats what it hears</source>
        <translation>重複聽到的話</translation>
    </message>
</context>
<context>
    <name>VideoCard</name>
    <message>
        <source>Video call with %1</source>
        <translation>與 %1 的視訊通話</translation>
    </message>
    <message>
        <source>No picture here: the call process draws none into this window. Everything else is as in a voice call.</source>
        <translation>這裡沒有畫面：通話程序沒有在此視窗中繪製。其他與語音通話相同。</translation>
    </message>
</context>
<context>
    <name>DeviceBox</name>
    <message>
        <source>As the desktop has it</source>
        <translation>依系統設定</translation>
    </message>
    <message>
        <source>As the desktop has it (%1)</source>
        <translation>依系統設定（%1）</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1（未連接）</translation>
    </message>
</context>
<context>
    <name>SoundPane</name>
    <message>
        <source>&amp;Microphone</source>
        <translation>麥克風(&amp;M)</translation>
    </message>
    <message>
        <source>Microphone of calls</source>
        <translation>通話用麥克風</translation>
    </message>
    <message>
        <source>Level of the microphone</source>
        <translation>麥克風輸入電平</translation>
    </message>
    <message>
        <source>S&amp;peaker</source>
        <translation>喇叭(&amp;P)</translation>
    </message>
    <message>
        <source>Speaker of calls</source>
        <translation>通話用喇叭</translation>
    </message>
    <message>
        <source>Play a &amp;tone</source>
        <translation>播放測試音(&amp;T)</translation>
    </message>
    <message>
        <source>The sound server does not answer. What was chosen holds, and nothing can be tried.</source>
        <translation>聲音服務沒有回應。已選擇的裝置仍然有效，但暫時無法測試。</translation>
    </message>
    <message>
        <source>There is no sound server, so there is nothing to choose from. As soon as one is there, its devices are shown.</source>
        <translation>沒有聲音服務，因此沒有可選的裝置。聲音服務啟動後，裝置會顯示在這裡。</translation>
    </message>
    <message>
        <source>The chosen microphone is not there. Until it is, calls take the desktop's, which the bar shows.</source>
        <translation>所選的麥克風未連接。連接之前，通話使用系統的麥克風，音量條顯示的也是它。</translation>
    </message>
    <message>
        <source>This microphone cannot be opened.</source>
        <translation>無法開啟此麥克風。</translation>
    </message>
    <message>
        <source>Speak: the bar shows what the microphone hears.</source>
        <translation>請說話：音量條顯示麥克風收到的聲音。</translation>
    </message>
    <message>
        <source>A tone is being played.</source>
        <translation>正在播放測試音。</translation>
    </message>
    <message>
        <source>The tone could not be played.</source>
        <translation>無法播放測試音。</translation>
    </message>
    <message>
        <source>The tone was played. If you have not heard it, choose another speaker, or turn this one up.</source>
        <translation>測試音已播放。如果沒有聽到，請選擇其他喇叭或調高音量。</translation>
    </message>
    <message>
        <source>The chosen speaker is not there. Until it is, calls take the desktop's.</source>
        <translation>所選的喇叭未連接。連接之前，通話使用系統的喇叭。</translation>
    </message>
    <message>
        <source>The tone goes to the speaker above.</source>
        <translation>測試音從上面的喇叭播放。</translation>
    </message>
    <message>
        <source>Takes effect when the call service starts the next time, at the latest when the client does.</source>
        <translation>通話服務下次啟動時生效，最遲在用戶端下次啟動時。</translation>
    </message>
    <message>
        <source>The call service was started with this choice.</source>
        <translation>通話服務正在使用此選擇。</translation>
    </message>
</context>
<context>
    <name>KeysPane</name>
    <message>
        <source>Ringing calls</source>
        <translation>來電</translation>
    </message>
    <message>
        <source>&amp;Use a key of the whole desktop</source>
        <translation>使用全域快速鍵(&amp;U)</translation>
    </message>
    <message>
        <source>Key of the whole desktop: press the one that you want</source>
        <translation>全域快速鍵：請按下想用的鍵</translation>
    </message>
    <message>
        <source>%1 is needed for typing. Press a key together with Ctrl, Alt or the Windows key, or one of F1 to F35.</source>
        <translation>打字需要 %1。請與 Ctrl、Alt 或 Windows 鍵一起按，或使用 F1 至 F35。</translation>
    </message>
    <message>
        <source>%1 goes to the prompt of a ringing call from every program. Press another key in the field to change it.</source>
        <translation>在任何程式中按 %1 都會轉到來電提示。要變更，請在輸入框中按下另一個鍵。</translation>
    </message>
    <message>
        <source>The desktop refuses %1: another program has it. Press another key in the field.</source>
        <translation>系統拒絕 %1：已被其他程式佔用。請在輸入框中按下另一個鍵。</translation>
    </message>
    <message>
        <source>This keyboard has no %1. Press another key in the field.</source>
        <translation>此鍵盤沒有 %1。請在輸入框中按下另一個鍵。</translation>
    </message>
    <message>
        <source>This desktop gives no program a key of its own. In its own settings you may find a way; in the client's windows Ctrl+I goes to the prompt.</source>
        <translation>此桌面不允許程式使用全域快速鍵。可在桌面自己的設定中另行設法；在用戶端視窗中按 Ctrl+I 可轉到來電提示。</translation>
    </message>
    <message>
        <source>In the client's windows Ctrl+I goes to the prompt of a ringing call; this key does so from every program.</source>
        <translation>在用戶端視窗中按 Ctrl+I 可轉到來電提示；此快速鍵在任何程式中都有效。</translation>
    </message>
</context>
<context>
    <name>CallNotice</name>
    <message>
        <source>Show</source>
        <translation>檢視</translation>
    </message>
</context>
<context>
    <name>WayToCall</name>
    <message>
        <source>Show the call window</source>
        <translation>顯示通話視窗</translation>
    </message>
</context>
</TS>
