#pragma once

// A person's card: names, photo, company data. A plain value that is copied freely; the host fills it from the server
// or the store and publishes it through CommonData. May be used on any thread but for setPhotoName, which reads the
// shared settings and belongs to the GUI thread.

#include <QMetaType>
#include <QString>

class VcardInfo
{
public:
    /// The number by which the person's account is known to people.
    QString m_strAccountNo;
    /// The nick name; the second step of the shown name.
    QString m_strNickName;
    /// The person's own motto.
    QString m_strSignature;
    /// The birthday, as the server writes it.
    QString m_strBirthday;
    /// The sex, as the server writes it.
    QString m_strSex;
    /// True when the picture is a built-in one, false for a user's own file.
    bool m_bSystemAvatar = true;
    /// The photo's name, as setPhotoName received it.
    QString m_strPhotoName;
    /// The path of the photo that the windows load.
    QString m_strPhotoPath;
    /// The department.
    QString m_strDepartment;
    /// The version of the whole card; -1: never received.
    int m_iFullVersion = -1;
    /// The version of the small card, which goes out with a request for it; -1: never received.
    int m_iSmallVersion = -1;
    /// The department with all those above it.
    QString m_strFullDepartment;
    /// The profession.
    QString m_strProfession;
    /// A further phone number.
    QString m_strOtherPhone;
    /// The mobile numbers without repeats, as setDisPlayMobile built them.
    QString m_strDisplayMobile;
    /// The extension number of the desk phone.
    QString m_strExtensionNumber;
    /// The mail address.
    QString m_strMail;
    /// The name of the person's leader.
    QString m_strLeaderName;
    /// The user id of the person's leader.
    QString m_strLeaderUid;
    /// The place of work.
    QString m_strWorkLocation;
    /// True for an employee of the company.
    bool m_bEmployee = true;
    /// A further name; the third step of the shown name.
    QString m_strAlternativeName;
    /// True for an administrator.
    bool m_bAdmin = false;
    /// The code of the person's company.
    QString m_strCompanyCode;

    /// Stores the blank-separated mobile numbers without repeats. A number that already stands inside the text kept so
    /// far counts as a repeat, also as a part of a longer one. An empty text is stored as it is.
    void setDisPlayMobile(const QString &strMobile);

    /// Stores the photo's name and derives path and system avatar flag from it: the built-in default for an empty name,
    /// a built-in picture when the application has one of that name, else a file of the user's head image folder. A
    /// name without "." stands for a ".jpg".
    void setPhotoName(const QString &strName);
};

Q_DECLARE_METATYPE(VcardInfo)
