#pragma once

// Names and suffixes of picture files, as save dialogs and file lists need them. GUI thread.
//

#include <QString>
#include <QStringList>

class PictureNames
{
public:
    /// The suffix of the file, without the ".", when it can be read as a picture. A file that cannot be read as one has
    /// the suffix of the kind of picture that its first bytes tell, or its own when they tell none.
    static QString getImageType(const QString &strPath);

    /// The suffixes of pictures that the client handles.
    static QStringList GetPictureSuffix();

    /// The filter text of a save dialog for a picture of that suffix, its own type in front; another suffix gives the
    /// filter of "png".
    static QString getPicSaveSuffixes(const QString &strSuffix);
};
