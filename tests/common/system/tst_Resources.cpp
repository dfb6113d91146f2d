#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QtTest>

namespace {

const QDir cResources(QStringLiteral(VOIP_RESOURCES_DIR));

struct Picture
{
    const char *pPath;
    int iWidth;
    int iHeight;
    bool bInStyleSheets = false;
};

/// The pictures that windows, skins and records name, below "Resources/", with their size in pixels. Heads are larger
/// than any window shows them; who is named in style sheets has a picture for screens of twice the density beside it.
constexpr Picture cPictures[] = {
    {"Html/messageTemplate/images/exe.png", 32, 32},
    {"Html/messageTemplate/images/unknown.png", 32, 32},
    {"Images/SysTrayIcon/MiniToTaskBar.png", 32, 32},
    {"NewThemes/ColorGreen/bg_preview.png", 240, 150},
    {"NewThemes/ThemeGreen/nail_on.png", 16, 16},
    {"images/Bubbles/bg_chat_bubble_default_left_22_3_3_9.png", 32, 40},
    {"images/Bubbles/bg_chat_bubble_default_right_22_9_3_3.png", 32, 40},
    {"images/CommonCtrls/bg_main.png", 64, 64},
    {"images/CommonCtrls/kvim_common_back_normal.png", 44, 20, true},
    {"images/CommonCtrls/kvim_common_back_press.png", 44, 20, true},
    {"images/CommonCtrls/kvim_customer.png", 400, 400},
    {"images/CommonCtrls/kvim_list_ic_selected.png", 15, 15, true},
    {"images/CommonCtrls/kvim_muchead_max.png", 400, 400},
    {"images/Dynamic/topic_mask.png", 120, 120},
    {"images/FriendDetail/defaultHead.png", 400, 400},
    {"images/FriendDetail/ic_portrait_server_90.png", 400, 400},
    {"images/icon/btn_checkbox_disable.png", 16, 16, true},
    {"images/icon/btn_checkbox_normal.png", 16, 16, true},
    {"images/icon/btn_checkbox_normal_hover.png", 16, 16, true},
    {"images/icon/btn_checkbox_pressed.png", 16, 16, true},
    {"images/icon/btn_checkbox_pressed_hover.png", 16, 16, true},
    {"images/icon/btn_radio_disable.png", 16, 16, true},
    {"images/icon/btn_radio_hover.png", 16, 16, true},
    {"images/icon/btn_radio_normal.png", 16, 16, true},
    {"images/icon/btn_radio_pressed.png", 16, 16, true},
    {"images/icon/btn_radio_pressed_hover.png", 16, 16, true},
    {"images/skins/bg_slider_vertical.png", 50, 152, true},
};

constexpr int cSystemAvatars = 20;

QString densePath(const QString &strPath)
{
    return strPath.chopped(4) + QStringLiteral("@2x.png");
}

QString avatar(int iNumber)
{
    return QStringLiteral("SystemAvatar/%1.jpg").arg(iNumber);
}

QImage load(const QString &strPath)
{
    return QImage(cResources.filePath(strPath)).convertToFormat(QImage::Format_ARGB32);
}

bool isOpaque(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 255) {
                return false;
            }
        }
    }
    return true;
}

/// Whether all rows of `band` are equal, so that stretching it upright shows.
bool rowsAreEqual(const QImage &image, const QRect &band)
{
    const QImage first = image.copy(band.left(), band.top(), band.width(), 1);
    for (int y = band.top(); y <= band.bottom(); ++y) {
        if (image.copy(band.left(), y, band.width(), 1) != first) {
            return false;
        }
    }
    return true;
}

} // namespace

class tst_Resources : public QObject
{
    Q_OBJECT

private slots:
    void everyNamedPictureIsThere_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QSize>("size");
        for (const Picture &picture : cPictures) {
            QTest::newRow(picture.pPath) << QString::fromLatin1(picture.pPath)
                                         << QSize(picture.iWidth, picture.iHeight);
            if (picture.bInStyleSheets) {
                const QString strDense = densePath(QString::fromLatin1(picture.pPath));
                QTest::newRow(qPrintable(strDense)) << strDense << 2 * QSize(picture.iWidth, picture.iHeight);
            }
        }
        for (int i = 1; i <= cSystemAvatars; ++i) {
            QTest::newRow(qPrintable(avatar(i))) << avatar(i) << QSize(400, 400);
        }
    }

    void everyNamedPictureIsThere()
    {
        QFETCH(QString, path);
        QFETCH(QSize, size);
        const QString strFile = cResources.filePath(path);
        QCOMPARE(QImage(strFile).size(), size);
        const QByteArray format = path.endsWith(QLatin1String(".jpg")) ? "jpeg" : "png";
        QCOMPARE(QImageReader::imageFormat(strFile), format);
    }

    /// Qt would enlarge on a dense screen what it finds no picture for.
    void styleSheetsNameWhatHasADensePicture()
    {
        static const QRegularExpression url(QStringLiteral("url\\((?:\\./)?Resources/([^)]+)\\)"));
        QStringList named;
        QDirIterator sources(QStringLiteral(VOIP_SOURCES), {"*.cpp", "*.h", "*.def", "*.ui"}, QDir::Files,
                             QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            QFile source(sources.next());
            QVERIFY(source.open(QIODevice::ReadOnly));
            QRegularExpressionMatchIterator matches = url.globalMatch(QString::fromUtf8(source.readAll()));
            while (matches.hasNext()) {
                named.append(matches.next().captured(1));
            }
        }
        named.sort();
        named.removeDuplicates();
        QStringList dense;
        for (const Picture &picture : cPictures) {
            if (picture.bInStyleSheets) {
                dense.append(QString::fromLatin1(picture.pPath));
            }
        }
        dense.sort();
        QCOMPARE(named, dense);
    }

    void everyOtherNamedFileIsThere_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("ring") << "Audio/ring.wav";
        QTest::newRow("icon font") << "BaseConfig/kelvarimiconfont.ttf";
        QTest::newRow("provinces and cities") << "BaseConfig/ProvinceWeath.xml";
        QTest::newRow("log header") << "CustomLog/LogHeader.txt";
        QTest::newRow("log template") << "CustomLog/LogTemplate.txt";
    }

    void everyOtherNamedFileIsThere()
    {
        QFETCH(QString, path);
        QVERIFY(QFileInfo(cResources.filePath(path)).size() > 0);
    }

    void headsFillTheirSquare_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("contact") << "images/FriendDetail/defaultHead.png";
        QTest::newRow("service") << "images/FriendDetail/ic_portrait_server_90.png";
        QTest::newRow("customer service") << "images/CommonCtrls/kvim_customer.png";
        QTest::newRow("room") << "images/CommonCtrls/kvim_muchead_max.png";
    }

    void headsFillTheirSquare()
    {
        QFETCH(QString, path);
        QVERIFY(isOpaque(load(path)));
    }

    void noTwoSystemAvatarsAreEqual()
    {
        for (int i = 1; i <= cSystemAvatars; ++i) {
            for (int j = i + 1; j <= cSystemAvatars; ++j) {
                QVERIFY2(load(avatar(i)) != load(avatar(j)), qPrintable(avatar(i) + " " + avatar(j)));
            }
        }
    }

    void statesOfAButtonDiffer_data()
    {
        QTest::addColumn<QStringList>("pictures");
        const QDir folder(cResources.filePath("images/icon"));
        QTest::newRow("check box") << folder.entryList({"btn_checkbox_*[!x].png"});
        QTest::newRow("check box, dense") << folder.entryList({"btn_checkbox_*@2x.png"});
        QTest::newRow("radio button") << folder.entryList({"btn_radio_*[!x].png"});
        QTest::newRow("radio button, dense") << folder.entryList({"btn_radio_*@2x.png"});
    }

    void statesOfAButtonDiffer()
    {
        QFETCH(QStringList, pictures);
        QCOMPARE(pictures.size(), 5);
        for (int i = 0; i < pictures.size(); ++i) {
            for (int j = i + 1; j < pictures.size(); ++j) {
                QVERIFY(load("images/icon/" + pictures.at(i)) != load("images/icon/" + pictures.at(j)));
            }
        }
    }

    void hoveredBackArrowDiffers()
    {
        QVERIFY(load(QStringLiteral("images/CommonCtrls/kvim_common_back_normal.png")) !=
                load(QStringLiteral("images/CommonCtrls/kvim_common_back_press.png")));
    }

    /// A bubble is stretched between the widths that its name tells: its corners and its tip lie outside of them.
    void bubbleStretchesCleanly_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QRect>("middle");
        QTest::newRow("left") << "images/Bubbles/bg_chat_bubble_default_left_22_3_3_9.png" << QRect(9, 22, 20, 15);
        QTest::newRow("right") << "images/Bubbles/bg_chat_bubble_default_right_22_9_3_3.png" << QRect(3, 22, 20, 15);
    }

    void bubbleStretchesCleanly()
    {
        QFETCH(QString, path);
        QFETCH(QRect, middle);
        const QImage bubble = load(path);
        QVERIFY(rowsAreEqual(bubble, QRect(0, middle.top(), bubble.width(), middle.height())));
        const QImage transposed = bubble.transformed(QTransform(0, 1, 1, 0, 0, 0));
        QVERIFY(rowsAreEqual(transposed, QRect(0, middle.left(), bubble.height(), middle.width())));
        QVERIFY(!rowsAreEqual(bubble, bubble.rect()));
    }

    /// The mask is made by its dark pixels, so it has to be opaque.
    void topicMaskIsDarkOnWhite()
    {
        const QImage mask = load(QStringLiteral("images/Dynamic/topic_mask.png"));
        QVERIFY(isOpaque(mask));
        QCOMPARE(mask.pixelColor(60, 60), QColor(Qt::black));
        QCOMPARE(mask.pixelColor(0, 0), QColor(Qt::white));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Resources, Widgets)
#include "tst_Resources.moc"
