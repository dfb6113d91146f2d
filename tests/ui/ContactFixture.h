#pragma once

// A host context with one signed-in user and a few contacts, for the tests of the windows. Sets the shared context
// while it lives and takes it away at its end.

#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/FriendData.h"
#include "model/LoginData.h"

#include <QFont>

#include <optional>

class ContactFixture
{
public:
    ContactFixture()
    {
        m_login.m_strUid = QStringLiteral("me");
        m_login.m_strDomain = QStringLiteral("kelvar.im");
        m_data.setLoginData(&m_login);
    }
    Q_DISABLE_COPY_MOVE(ContactFixture)

    /// The user jid of `strUid` in the user's own domain.
    static QString jid(const QString &strUid) { return strUid + QStringLiteral("@kelvar.im"); }

    /// A card with these names and this picture.
    static VcardInfo card(const QString &strNick, const QString &strAlternative, const QString &strPhoto = {})
    {
        VcardInfo vcard;
        vcard.m_strNickName = strNick;
        vcard.m_strAlternativeName = strAlternative;
        vcard.m_strPhotoPath = strPhoto;
        return vcard;
    }

    /// Puts a contact into the shared friend map, with the name that the user gave it.
    void addContact(const QString &strUid, const VcardInfo &vcard, const QString &strFriendName = {})
    {
        FriendData contact(jid(strUid));
        contact.setVcardInfo(vcard);
        contact.setMySetFriendName(strFriendName);
        QMap<QString, FriendData> contacts = m_data.getFriendDataMap();
        contacts.insert(jid(strUid), contact);
        m_data.setFriendDataMap(contacts);
    }

    /// Hands out `font` as the client's icon font.
    void setIconFont(const QFont &font)
    {
        m_iconFont = font;
        m_data.setIconFont(&m_iconFont);
    }

    /// Takes the context away as a host does that ends.
    void takeAway() { m_given.reset(); }

private:
    LoginData m_login;
    QFont m_iconFont;
    CommonData m_data;
    std::optional<GivenContext> m_given{m_data};
};
