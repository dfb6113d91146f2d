#include "PictureSetting.h"

#include "ui/ContactFixture.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontInfo>
#include <QStyle>
#include <QStyleFactory>

namespace {

const QString cFamily = QStringLiteral("Noto Sans CJK SC");

const QString cShipped = QStringLiteral(VOIP_RESOURCES "/");

bool copied(const QString &strName)
{
    const QString strFile = QStringLiteral("Resources/") + strName;
    return QDir().mkpath(QFileInfo(strFile).path()) && QFile::copy(cShipped + strName, strFile);
}

// With the picture for dense screens that ships beside it, if one does.
bool placed(const QString &strName)
{
    const QString strDense = strName.chopped(4) + QStringLiteral("@2x.png");
    return copied(strName) && (!QFile::exists(cShipped + strDense) || copied(strDense));
}

} // namespace

QString PictureSetting::prepare(const QStringList &files)
{
    const QStringList always{QStringLiteral("BaseConfig/kelvarimiconfont.ttf"),
                             QStringLiteral("images/FriendDetail/defaultHead.png"),
                             QStringLiteral("SystemAvatar/3.jpg"), QStringLiteral("SystemAvatar/8.jpg"),
                             QStringLiteral("SystemAvatar/12.jpg")};
    for (const QString &strName : always + files) {
        if (!placed(strName)) {
            return strName + QStringLiteral(" cannot be copied");
        }
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QFont::insertSubstitution(QStringLiteral("微软雅黑"), cFamily);
    QFont font(cFamily);
    font.setPixelSize(12);
    QApplication::setFont(font);
    QCursor::setPos(QPoint(0, 0));
    return QFontInfo(font).family() == cFamily ? QString() : QStringLiteral("the package fonts-noto-cjk is missing");
}

void PictureSetting::addContacts(ContactFixture &contacts)
{
    const auto add = [&contacts](const char *uid, const QString &strNick, const char *alternative, const char *photo) {
        contacts.addContact(QLatin1String(uid),
                            ContactFixture::card(strNick, QLatin1String(alternative), QLatin1String(photo)));
    };
    add("ann", QStringLiteral("安然"), "Ann", "Resources/SystemAvatar/3.jpg");
    add("bob", QStringLiteral("包博"), "Bob", "Resources/SystemAvatar/8.jpg");
    add("cat", QStringLiteral("陈可"), "Cat", "Resources/SystemAvatar/12.jpg");
    add("long", QString(100, QChar(0x540d)), "<b>%2</b>", "");
}
