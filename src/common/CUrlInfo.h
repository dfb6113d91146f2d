#pragma once

// Every server address that the client knows: one static getter each, answered from "allurl.ini" beside the executable
// or, without an entry there, from a compiled-in default. CUrlInfo.def is the list: getter, key, endpoint, default,
// form. Any thread, once the first getter has returned, which has to be after the application object was created: the
// file's settings object is made at that call, without a lock. Owned by nobody: there is no state but the cached
// answers.

#include <QMap>
#include <QObject>
#include <QString>

/// What a getter gives. A key is section and name: "/vcard/loadurl" is "loadurl" in [vcard]. A missing key and an empty
/// value give the default, so no entry can switch an address off; a getter without a default gives the empty text, and
/// its caller has to expect it. Nothing reports a failure: a missing or unreadable file is one without entries.
///
/// Forms. Plain: looked up at each call, in memory. Cached (message history and favourites): the first answer holds for
/// the process, whatever happens to the settings. Arg: the value is a template, and the getter's text goes in for its
/// %1; without a %1 the value comes back as it is. SignIn: plain, with a default that carries the sign-in query of the
/// administration site.
///
/// Writing the file. It is read as UTF-8, once; an edit is seen at the client's next start, or after
/// CSettingsManager::instance()->getUrlSettings()->sync(). Put a value with a comma or a semicolon in double quotes: an
/// unquoted comma makes the value a list, which reads as the empty text and so gives the default, and an unquoted
/// semicolon ends the value. A backslash is written twice. Sections and names are told apart by case.
class CUrlInfo : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The getters of CUrlInfo.def. One of the form Arg takes the text for %1; an empty text takes the %1 out.
#ifndef Q_MOC_RUN // no signals or slots among them
#define URL_GETTER(name, key, endpoint, path, form) static QString name(URL_PARAMETER_##form);
#include "common/CUrlInfo.def"
#endif

    /// A link into the web office system: the template of "oaurl/theurl" with `strParameter` (the sign-in text, may be
    /// empty) for its %1, then the percent-encoded target of "oaurl/tarurl". Neither has a default: empty when the file
    /// names none.
    static QString getSOAUrl(const QString &strParameter);

    /// Adds the SIP registration host of each telephone number range to `map` (range to host). The file numbers the
    /// pairs from 0: "/sipphone/domain0" is a host, "/sipphone/numrange0" its ranges, separated by commas. The first
    /// missing host ends the list; so does a host without ranges, which serves all other numbers under the key "000000"
    /// (a text of CUrlInfo's translation). What `map` holds already is kept, unless a range of the file names the same
    /// key; a map that is still empty at the end gets the built-in host under "000000".
    static void getSipPhoneRegDomain(QMap<QString, QString> &map);
};
