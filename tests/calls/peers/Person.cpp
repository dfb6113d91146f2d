#include "calls/peers/Person.h"

#include "calls/sound/SoundBox.h"

#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>

Person::Person(const TestExchange &exchange, QString id) : m_id(std::move(id))
{
    set(QStringLiteral("exchange/servers"), QStringLiteral("%1:%2").arg(exchange.host()).arg(exchange.port()));
    set(QStringLiteral("exchange/domain"), TestExchange::domain());
    set(QStringLiteral("exchange/ca-file"), exchange.caFile());
    setSound();
}

Person::Person(const QString &exchangeFolder, QString id) : m_id(std::move(id)), m_byFront(true)
{
    m_peer.setProgram(QStringLiteral(VOIP_FRONT));
    set(QStringLiteral("process/kind"), QStringLiteral("calls"));
    set(QStringLiteral("exchange/folder"), exchangeFolder);
    setSound();
}

void Person::setSound()
{
    m_peer.setSocketName(QStringLiteral("VoipSDK-") + m_id);
    set(QStringLiteral("sound/microphone"), SoundBox::microphoneOf(m_id));
    set(QStringLiteral("sound/speaker"), SoundBox::speakerOf(m_id));
    // A pure tone is what it takes away.
    set(QStringLiteral("sound/echo-cancelling"), QStringLiteral("no"));
    set(QStringLiteral("sound/noise-handling"), QStringLiteral("no"));
}

bool Person::writeSettings() const
{
    QFile file(settingsFile());
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    for (auto setting = m_settings.cbegin(); setting != m_settings.cend(); ++setting) {
        const QStringList name = setting.key().split(QLatin1Char('/'));
        file.write(QStringLiteral("[%1]\n%2 = %3\n").arg(name.at(0), name.at(1), setting.value()).toUtf8());
    }
    return true;
}

bool Person::start()
{
    if (!writeSettings()) {
        return false;
    }
    QStringList options{QStringLiteral("--socket-name"), m_peer.socketName()};
    if (m_byFront) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("VOIPSDK_KIND"));
        environment.remove(QStringLiteral("VOIPSDK_EXCHANGE_FOLDER"));
        environment.insert(QStringLiteral("VOIPSDK_CALLS_INI"), QFileInfo(settingsFile()).absoluteFilePath());
        m_peer.process().setProcessEnvironment(environment);
    } else {
        options << QStringLiteral("--settings") << settingsFile();
    }
    m_peer.start(options);
    return m_peer.connectClient();
}

bool Person::arrive()
{
    if (!start()) {
        return false;
    }
    signIn(TestExchange::secretOf(m_id));
    return hears() == QLatin1String("17 true");
}

void Person::signIn(const QString &registrationValue)
{
    say("RegeditUser", {m_id, QStringLiteral("Nick"), registrationValue, false});
}

bool Person::reaches(Person &other)
{
    call(other);
    if (other.hears() != QStringLiteral("0 ") + m_id) {
        return false;
    }
    other.say("AcceptCall");
    return other.hears() == QLatin1String("18") && hears() == QLatin1String("18");
}

QString Person::hears()
{
    QString notification = m_peer.nextNotification();
    while (isRemark(notification)) {
        notification = m_peer.nextNotification();
    }
    return notification;
}

QString Person::hasHeard()
{
    while (m_peer.isNotified()) {
        QString notification = m_peer.nextNotification();
        if (!isRemark(notification)) {
            return notification;
        }
    }
    return {};
}

bool Person::isRemark(const QString &notification)
{
    const QString remark = QStringLiteral("999 ");
    if (!notification.startsWith(remark)) {
        return false;
    }
    m_remarks << notification.mid(remark.size());
    return true;
}

bool Person::hearsAtLast(const QString &word)
{
    QString next = hears();
    while (!next.isEmpty() && next != word) {
        next = hears();
    }
    return next == word;
}
