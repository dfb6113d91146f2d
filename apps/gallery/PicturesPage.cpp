#include "PicturesPage.h"

#include "common/Palette.h"
#include "common/pictures/HeadImages.h"
#include "common/pictures/NinePatch.h"
#include "common/pictures/WaterMark.h"
#include "robots/RobotIds.h"

#include <QGridLayout>

namespace {

const QString cAnAvatar = QStringLiteral("Resources/SystemAvatar/4.jpg");

constexpr int cAvatarCount = 20;
constexpr int cAvatarsInARow = 10;
constexpr int cAvatarSide = 56;
// Heads ship larger than anybody shows them.
constexpr int cHeadSide = 90;
// The part of the watermark that is shown, in pixels of the picture.
constexpr QRect cWaterMarkPart(0, 0, 560, 260);

struct NamedPictures
{
    const char *name;
    std::initializer_list<const char *> files;
};

const NamedPictures cNamedPictures[] = {
    {"heads",
     {"images/FriendDetail/defaultHead.png", "images/FriendDetail/ic_portrait_server_90.png",
      "images/CommonCtrls/kvim_muchead_max.png", "images/CommonCtrls/kvim_customer.png"}},
    {"mask, form, preview",
     {"images/Dynamic/topic_mask.png", "images/CommonCtrls/bg_main.png", "NewThemes/ColorGreen/bg_preview.png"}},
    {"back arrow, chosen, pinned",
     {"images/CommonCtrls/kvim_common_back_normal.png", "images/CommonCtrls/kvim_common_back_press.png",
      "images/CommonCtrls/kvim_list_ic_selected.png", "NewThemes/ThemeGreen/nail_on.png"}},
    {"file icons, task bar",
     {"Html/messageTemplate/images/exe.png", "Html/messageTemplate/images/unknown.png",
      "Images/SysTrayIcon/MiniToTaskBar.png"}},
    {"volume slider", {"images/skins/bg_slider_vertical.png"}},
};

QPixmap bubble(const char *side, const QSize &size)
{
    const QPixmap source(QStringLiteral("Resources/images/Bubbles/bg_chat_bubble_default_") + QLatin1String(side) +
                         QStringLiteral(".png"));
    return NinePatch::drawNinePatch(size, source);
}

QList<QWidget *> bubbles(const char *side)
{
    QList<QWidget *> specimens;
    for (const QSize &size : {QSize(40, 40), QSize(120, 40), QSize(120, 90), QSize(220, 60)}) {
        specimens.append(Sheet::picture(bubble(side, size)));
    }
    return specimens;
}

/// The pictures in rows of `iInARow`, close together, as one specimen.
QWidget *tiles(const QList<QPixmap> &pictures, int iInARow)
{
    auto *specimen = new QWidget;
    auto *grid = new QGridLayout(specimen);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(8);
    for (int i = 0; i < pictures.size(); ++i) {
        grid->addWidget(Sheet::picture(pictures.at(i)), i / iInARow, i % iInARow, Qt::AlignCenter);
    }
    return specimen;
}

/// The picture itself, or a head at the size of a head.
QPixmap headSized(const QPixmap &picture, qreal ratio)
{
    if (picture.width() < 4 * cHeadSide) {
        return picture;
    }
    const int pixels = qRound(cHeadSide * ratio);
    QPixmap head = picture.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    head.setDevicePixelRatio(ratio);
    return head;
}

} // namespace

PicturesPage::PicturesPage(QWidget *parent) : Sheet(parent)
{
    addHeads();
    addBubbles();
    addAvatars();
    addNamedPictures();
    addWaterMark();
}

void PicturesPage::addHeads()
{
    section(QStringLiteral("Heads"));
    QList<QPixmap> round;
    QList<QPixmap> irregular;
    for (const int side : {24, 32, 48, 64, 90}) {
        round.append(HeadImages::getRoundedImage(cAnAvatar, side));
        irregular.append(HeadImages::getIrregularPix(cAnAvatar, side));
    }
    row(QStringLiteral("getRoundedImage"), {tiles(round, round.size())});
    row(QStringLiteral("getIrregularPix"), {tiles(irregular, irregular.size())});
    row(QStringLiteral("getScaledPixmap"), {tiles({HeadImages::getScaledPixmap(cAnAvatar, QSize(90, 90)),
                                                   HeadImages::getScaledPixmap(cAnAvatar, QSize(90, 45)),
                                                   HeadImages::getScaledPixmap(cAnAvatar, QSize(45, 90))},
                                                  3)});
}

void PicturesPage::addBubbles()
{
    section(QStringLiteral("drawNinePatch"));
    row(QStringLiteral("left bubble"), bubbles("left_22_3_3_9"));
    row(QStringLiteral("right bubble"), bubbles("right_22_9_3_3"));
}

void PicturesPage::addAvatars()
{
    section(QStringLiteral("System avatars"));
    QList<QPixmap> avatars;
    for (int i = 1; i <= cAvatarCount; ++i) {
        avatars.append(
            HeadImages::getRoundedImage(QStringLiteral("Resources/SystemAvatar/%1.jpg").arg(i), cAvatarSide));
    }
    row(QStringLiteral("1 to %1").arg(cAvatarCount), {tiles(avatars, cAvatarsInARow)});
}

void PicturesPage::addNamedPictures()
{
    section(QStringLiteral("Pictures that ship beside the executable"));
    for (const NamedPictures &named : cNamedPictures) {
        QList<QPixmap> pictures;
        for (const char *file : named.files) {
            pictures.append(
                headSized(QPixmap(QStringLiteral("Resources/") + QLatin1String(file)), devicePixelRatioF()));
        }
        row(QString::fromLatin1(named.name), {tiles(pictures, pictures.size())});
    }
}

void PicturesPage::addWaterMark()
{
    section(QStringLiteral("generateWaterMark"));
    QString name = QStringLiteral("李明");
    QString id = QLatin1String(Robots::cOwnUser);
    QString path;
    const bool made = WaterMark::generateWaterMark(name, id, path);
    row(QStringLiteral("a part of it"),
        {made ? picture(QPixmap(path).copy(cWaterMarkPart)) : caption(QStringLiteral("could not be made"))});
}
