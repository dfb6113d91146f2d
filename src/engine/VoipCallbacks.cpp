#include "engine/VoipCallbacks.h"

#include "engine/VoipManage.h"

#include <QDebug>

void voipCallback(int iCode, QString result)
{
    qDebug().noquote().nospace() << "void sdkResultCallback(, iCode: " << iCode << "result: " << result;
    CVoipManage::instance()->callbackMessage(iCode, result);
}

void voipLogCallback(QString url, QString value)
{
    qDebug().noquote().nospace() << "void sdkCloudTrackCallback(, url:  " << url << "value: " << value;
    CVoipManage::instance()->voipLogPrint(url, value);
}
