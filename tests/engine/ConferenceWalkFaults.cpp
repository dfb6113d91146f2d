// What must hold on a walk around conferences.

#include "engine/ConferenceWalk.h"

#include <QHash>

namespace {

QString quoted(QString text)
{
    return "'" + text.replace("'", "''") + "'";
}

} // namespace

void ConferenceWalk::noteEnd(const CallData &ended)
{
    ++ends;
    ++m_conf;
    m_confs.clear();
    m_connected.clear();
    m_sentByHost.clear();
    if (!ended.bIsConf || m_records.contains(ended.confId)) {
        return;
    }
    QString members;
    for (const QString &id : ended.memberList) {
        members += id + ',';
    }
    m_records[ended.confId] = QStringList{quoted(ended.confId),
                                          quoted(ended.bIsCaller ? "me" : ended.peerId),
                                          quoted(ended.createTime.toString("yyyy-MM-dd hh:mm:ss")),
                                          ended.connectTime.isNull() ? "'0'" : "any",
                                          quoted(members),
                                          QString::number(ended.bIsConnected)};
}

QString ConferenceWalk::listFault()
{
    const QStringList &members = call().memberList;
    QHash<QString, int> counts;
    for (const QString &id : members) {
        if (++counts[id] > qMax(1, m_sentByHost.count(id))) {
            return id + " stands too often in " + members.join(' ');
        }
    }
    if (call().connectedList != m_connected) {
        return "connected are " + call().connectedList.join(' ') + " instead of " + m_connected.join(' ');
    }
    QStringList shown;
    for (const QString &row : engine.members()) {
        shown << row.section(' ', 0, 0);
    }
    if (engine.count() != m_records.size()) {
        return QString("%1 records instead of %2").arg(engine.count()).arg(m_records.size());
    }
    return leak(members, "the member list") + leak({call().peerId}, "the peer") + leak(shown, "the window");
}

/// Whoever a document named belongs to a conference that this side was in since the last end.
QString ConferenceWalk::leak(const QStringList &ids, const char *where) const
{
    for (const QString &id : ids) {
        if (id == "zoe" || (id.contains(':') && !m_confs.contains(id.section(':', 0, 0)))) {
            return id + " has come into " + where;
        }
    }
    return {};
}

QString ConferenceWalk::endFault()
{
    const QString state = engine.state();
    if (state != "idle") {
        return "after the end: " + state;
    }
    if (engine.callText() != "0|0|0|0||||||") {
        return "left behind: " + engine.callText();
    }
    if (engine.manager->m_pVoipWidget->isVisible() || !engine.members().isEmpty()) {
        return "the window has not forgotten the call";
    }
    return {};
}

QString ConferenceWalk::recordFault() const
{
    const QList<QStringList> rows = engine.rows();
    const QList<QStringList> expected = m_records.values();
    for (int i = 0; i < expected.size(); ++i) {
        QStringList row = rows.value(i);
        if (row.size() == 6 && expected.at(i).at(3) == "any") {
            row[3] = "any";
        }
        if (row != expected.at(i)) {
            return row.join(' ') + " instead of " + expected.at(i).join(' ');
        }
    }
    return {};
}
