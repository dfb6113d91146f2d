#pragma once

#include <QString>
#include <QStringList>

/// Makes text from outside fit to be shown: shortened, on one line, and without what would reorder or hide the text
/// around it. No state.
namespace ShownText {

/// At most `iLimit` characters of `strText`. Control characters and those that change the direction of writing or break
/// the line show as their code ("\u202E"). A text that was cut ends in "… (1048576 in all)", with its whole length.
QString plain(const QString &strText, int iLimit);

/// The same for a text of which only the begin is at hand; `iLength` is how long it is in truth.
QString plain(const QString &strText, int iLimit, qint64 iLength);

} // namespace ShownText

/// Masks what nobody who looks over a shoulder should read: the values of keys such as "cookie", "password" or "token",
/// whatever the text's form, the registration value of a user, and the secrets it has learned.
class SecretMask
{
public:
    /// Masks `strSecret` wherever it stands from now on. A text of fewer than four characters is not learned, as it
    /// would be found everywhere.
    void learn(const QString &strSecret);

    /// The text with "••••••" for every secret. Where the end of a secret cannot be told too much is masked, never too
    /// little.
    QString masked(const QString &strText) const;

private:
    QStringList m_secrets;
};
