#include "plugin/PluginIds.h"

const QString &voipPluginId()
{
    static const QString id = QStringLiteral("{2EFF6261-40D8-448C-8E4C-8D52A7ABF3D1}");
    return id;
}

const QString &sessionPluginId()
{
    static const QString id = QStringLiteral("{FE9829B7-5267-D9AA-3917-514F39C709F0}");
    return id;
}

const QString &contactPluginId()
{
    static const QString id = QStringLiteral("{7123C2B9-E89C-0CC5-5B1E-9496BB7427C8}");
    return id;
}

const QString &vcardPluginId()
{
    static const QString id = QStringLiteral("{5EE3221F-AC38-4b54-9DDF-83773A91981B}");
    return id;
}

const QString &msgBoxPluginId()
{
    static const QString id = QStringLiteral("{D2421E81-FC91-45ce-BA71-7116B45D04B1}");
    return id;
}

const QString &signListPluginId()
{
    static const QString id = QStringLiteral("{77CCE3F9-79F5-C5E8-17E7-F6B7389AAA6E}");
    return id;
}
