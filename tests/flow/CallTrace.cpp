#include "flow/CallTrace.h"

#include "fakes/FakeCallProcess.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

QList<QByteArray> CallTrace::texts(char direction) const
{
    QFile file(m_strFile);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QList<QByteArray> texts;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const int blank = line.indexOf(' ');
        if (blank > 0 && line.mid(blank + 1, 1) == QByteArray(1, direction)) {
            texts.append(line.mid(blank + 3));
        }
    }
    return texts;
}

QStringList CallTrace::commands() const
{
    QStringList shown;
    for (const QByteArray &line : texts('<')) {
        shown.append(FakeCallProcess::shown(line + '\n'));
    }
    return shown;
}

QStringList CallTrace::commandNames() const
{
    QStringList names;
    for (const QByteArray &line : texts('<')) {
        names.append(QJsonDocument::fromJson(line).object().value(QStringLiteral("messagetype")).toString());
    }
    return names;
}

QList<int> CallTrace::codes() const
{
    QList<int> codes;
    for (const QByteArray &line : texts('>')) {
        codes.append(QJsonDocument::fromJson(line).object().value(QStringLiteral("resultCode")).toInt(-1));
    }
    return codes;
}

qint64 CallTrace::processId() const
{
    static const QByteArray s_started = "started, process ";
    qint64 id = 0;
    for (const QByteArray &line : texts('=')) {
        if (line.startsWith(s_started)) {
            id = line.mid(s_started.size()).toLongLong();
        }
    }
    return id;
}
