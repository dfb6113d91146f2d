<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
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
    <message>
        <source>%1 lines</source>
        <translation>%1 條</translation>
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
</TS>
