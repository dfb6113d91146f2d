#include "FuzzTargets.h"

#include "fakes/GivenContext.h"
#include "model/CSUtils.h"
#include "model/CServiceNumData.h"
#include "model/CommonData.h"
#include "model/SystemSetData.h"

#include <json/reader.h>

// The host reads with these classes, so their deprecation does not matter here.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

int nodesOf(const QList<ServiceMenu> &menu)
{
    int count = menu.size();
    for (const ServiceMenu &node : menu) {
        count += nodesOf(node.m_listChild);
    }
    return count;
}

QString shown(const CServiceNumData &data)
{
    return QStringList{data.m_strServiceCode,
                       data.m_strName,
                       data.m_strIconName,
                       data.m_strIconPath,
                       data.m_strVersion,
                       data.m_strMenuText,
                       data.m_channel.m_strChannelId,
                       QString::number(data.m_iSubType),
                       QString::number(data.m_iStatus),
                       QString::number(nodesOf(data.m_listMenu))}
        .join(QLatin1Char('|'));
}

bool parse(const QByteArray &input, Json::Value &root)
{
    try {
        return Json::Reader().parse(input.toStdString(), root);
    } catch (const Json::Exception &) {
        return false; // nested too deep, which the host's reader has to meet
    }
}

/// A value of a wrong type leaves by the library's error, and the record as it was.
void readTwice(const Json::Value &root, CServiceNumData &data)
{
    for (int round = 0; round < 2; ++round) {
        const QString before = shown(data);
        try {
            data.parseFromJson(root);
        } catch (const Json::Exception &) {
            requirePromise(shown(data) == before, "a record that cannot be read whole stays as it was");
        }
    }
}

void readChannel(const Json::Value &root, CServiceNumData &data)
{
    try {
        data.parseChannel(root);
        requirePromise(data.m_channel.m_iStatus == 1, "a channel that was read is a received one");
    } catch (const Json::Exception &) {
    }
}

} // namespace

void FuzzTargets::service(const QByteArray &input)
{
    static CommonData s_context;
    static SystemSetData s_settings;
    s_context.setSystemSetData(&s_settings);
    const GivenContext given(s_context);

    CServiceNumData data;
    try {
        data.parseServiceMenuFromString(QString::fromUtf8(input));
    } catch (const Json::LogicError &) {
        requirePromise(data.m_listMenu.isEmpty(), "a menu that cannot be read whole is none");
    }
    Json::Value root;
    if (!parse(input, root)) {
        return;
    }
    CServiceNumData record;
    readTwice(root, record);
    readChannel(root, record);
    CSUtils::getChannelIconPath(record.m_channel.m_strPhotoName);
}
