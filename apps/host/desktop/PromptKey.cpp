#include "desktop/PromptKey.h"

#include "client/HostSettings.h"
#include "client/SettingsFile.h"

namespace {

const QString cWantedKey = QStringLiteral("/keySetting/promptKeyOn");
const QString cSequenceKey = QStringLiteral("/keySetting/promptKey");

} // namespace

PromptKey::PromptKey(QObject *parent) : QObject(parent)
{
    connect(&m_key, &HotKey::pressed, this, &PromptKey::pressed);
}

void PromptKey::start()
{
    m_key.take(isWanted() ? key() : QKeySequence());
    emit changed();
}

bool PromptKey::isWanted()
{
    return SettingsFile::read(HostSettings::userFile(), cWantedKey) == QLatin1String("1");
}

QKeySequence PromptKey::key()
{
    const QKeySequence stored(SettingsFile::read(HostSettings::userFile(), cSequenceKey), QKeySequence::PortableText);
    return HotKey::isFit(stored) ? QKeySequence(stored[0]) : QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_I);
}

bool PromptKey::set(bool bWanted, const QKeySequence &key)
{
    const bool bKept = SettingsFile::write(HostSettings::userFile(),
                                           {{cSequenceKey, key.toString(QKeySequence::PortableText)},
                                            {cWantedKey, bWanted ? QStringLiteral("1") : QStringLiteral("0")}});
    start();
    return bKept;
}
