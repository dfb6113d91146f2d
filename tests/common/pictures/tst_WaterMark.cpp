#include "common/AppPaths.h"
#include "common/pictures/WaterMark.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/LoginData.h"
#include "model/SysUIData.h"
#include "model/SystemSetData.h"

#include <QPainter>
#include <QScreen>
#include <QTranslator>
#include <QtTest>

#include <cmath>
#include <optional>

namespace {

constexpr double cT = 0.28659218253585106;
constexpr double cCosine = 0.9613007080676148;
constexpr double cSine = 0.2755012679983567;

// Another language's word for the client's own text.
class OwnText : public QTranslator
{
public:
    QString translate(const char *pContext, const char *pSource, const char * /*pRemark*/,
                      int /*iCount*/) const override
    {
        const bool bOwn = qstrcmp(pContext, "QObject") == 0 && qstrcmp(pSource, "tarvoShoot") == 0;
        return bOwn ? QStringLiteral("a longer own text") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_WaterMark : public QObject
{
    Q_OBJECT

private:
    QString generate(QString strName, QString strId)
    {
        QString strPath;
        m_bResult = WaterMark::generateWaterMark(strName, strId, strPath);
        return strPath;
    }

    // The watermark as it is told, drawn without the helpers of the unit.
    static QImage expected(const QString &strTwo, const QColor &color, const QString &strOne = "tarvoShoot")
    {
        const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
        QPixmap canvas(int(screen.width() / cCosine), int(screen.width() * cT + screen.height()));
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        QFont font(QStringLiteral("Microsoft YaHei"));
        font.setPixelSize(14);
        painter.setFont(font);
        painter.setPen(color);
        painter.rotate(-16);
        const QFontMetrics metrics(font);
        const int w1 = metrics.horizontalAdvance(strOne);
        const int w2 = metrics.horizontalAdvance(strTwo);
        const int p = metrics.height() + 50;
        const int q = w1 + w2 + 200;
        for (int r = 0; r < std::ceil(double(canvas.height()) / p); ++r) {
            for (int c = 0; c < std::ceil(double(canvas.width()) / (w1 + w2 + 110)); ++c) {
                const double shift = r * p * cT;
                const int y = int(canvas.height() * cT + r * p);
                if (r % 2 == 0) {
                    painter.drawText(int(c * q - shift), y, strTwo);
                    painter.drawText(int(w2 + 100 + c * q - shift), y, strOne);
                } else {
                    painter.drawText(int(60 + c * q - shift), y, strOne);
                    painter.drawText(int(w1 + 160 + c * q - shift), y, strTwo);
                }
            }
        }
        painter.end();
        return canvas
            .copy(int(canvas.height() * cT * cSine) - 3, int(canvas.width() * cSine), int(3 * q * cCosine),
                  screen.height())
            .toImage()
            .convertToFormat(QImage::Format_ARGB32);
    }

private slots:
    void init()
    {
        m_settings = SystemSetData();
        m_settings.m_strUserName = QStringLiteral("me");
        m_settings.m_strUserFolder = QDir::current().absoluteFilePath(QStringLiteral("me"));
        QDir(m_settings.m_strUserFolder).removeRecursively();
        m_login.m_strUid = QStringLiteral("1001");
        m_skin = SysUIData();
        m_skin.m_strWaterMarkColor = QStringLiteral("#ff0000");
        m_context.setSystemSetData(&m_settings);
        m_context.setLoginData(&m_login);
        m_context.setSkinData(&m_skin);
        m_given.emplace(m_context);
    }
    void cleanup() { m_given.reset(); }

    void pictureIsNamedByAccountAndColour()
    {
        const QString strPath = generate("Name", "1001");
        QVERIFY(m_bResult);
        QCOMPARE(strPath, m_settings.m_strUserFolder + "/waterMark/1001_#ff0000.png");
        QVERIFY(QFileInfo(strPath).isAbsolute());
    }

    void skinWithoutColourGetsTheDefault()
    {
        m_skin.m_strWaterMarkColor.clear();
        const QString strPath = generate("Name", "1001");
        QVERIFY(strPath.endsWith("/1001_#e8e9eb.png"));
        QCOMPARE(QImage(strPath).convertToFormat(QImage::Format_ARGB32), expected("Name(1001)", "#e8e9eb"));
    }

    void textsRunOverTheAreaInTurn_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("second");
        QTest::newRow("name and id") << "Name"
                                     << "1001"
                                     << "Name(1001)";
        QTest::newRow("no id") << "Name"
                               << ""
                               << "Name";
        QTest::newRow("neither") << ""
                                 << ""
                                 << "";
        QTest::newRow("Chinese") << QString::fromUtf8("张三") << "7" << QString::fromUtf8("张三(7)");
    }
    void textsRunOverTheAreaInTurn()
    {
        QFETCH(QString, name);
        QFETCH(QString, id);
        QFETCH(QString, second);
        const QImage picture = QImage(generate(name, id)).convertToFormat(QImage::Format_ARGB32);
        QVERIFY(m_bResult);
        QCOMPARE(picture.height(), QGuiApplication::primaryScreen()->availableGeometry().height());
        QCOMPARE(picture, expected(second, Qt::red));
    }

    void ownTextIsThatOfTheLanguage()
    {
        OwnText translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        const QImage picture = QImage(generate("Name", "1001")).convertToFormat(QImage::Format_ARGB32);
        QVERIFY(QCoreApplication::removeTranslator(&translator));
        QCOMPARE(picture, expected("Name(1001)", Qt::red, "a longer own text"));
    }

    void secondCallDrawsNothing()
    {
        const QString strPath = generate("Name", "1001");
        QFile file(strPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("kept");
        file.close();
        QCOMPARE(generate("Another", "2002"), strPath);
        QVERIFY(m_bResult);
        QCOMPARE(QFileInfo(strPath).size(), qint64(4));
        m_login.m_strUid = QStringLiteral("1002");
        QVERIFY(generate("Name", "1001") != strPath);
    }

    void namesStayAsTheyAre()
    {
        QString strName = QStringLiteral("Name");
        QString strId = QStringLiteral("1001");
        QString strPath = QStringLiteral("before");
        QVERIFY(WaterMark::generateWaterMark(strName, strId, strPath));
        QCOMPARE(strName, QStringLiteral("Name"));
        QCOMPARE(strId, QStringLiteral("1001"));
    }

    void resultIsThatOfSaving()
    {
        QFile blocker(m_settings.m_strUserFolder);
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        generate("Name", "1001");
        QVERIFY(!m_bResult);
        blocker.remove();
    }

    void endlessNameGivesAPictureOfBoundedSize()
    {
        const QString strPath = generate(QString(10 * 1024 * 1024, QLatin1Char('W')), "1001");
        QVERIFY(m_bResult);
        const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
        QCOMPARE(QImage(strPath).height(), screen.height());
        QVERIFY(QImage(strPath).width() <= int(screen.width() / cCosine));
    }

    void noSettingsAndNoLoginGiveAPathBelowTheDocuments()
    {
        m_given.reset();
        const QString strPath = generate("Name", "1001");
        QVERIFY(m_bResult);
        QCOMPARE(strPath, strAPP_DOCUMENT_IM_FILES_PATH() + "/waterMark/_#e8e9eb.png");
    }

private:
    bool m_bResult = false;
    CommonData m_context;
    std::optional<GivenContext> m_given;
    SystemSetData m_settings;
    LoginData m_login;
    SysUIData m_skin;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WaterMark, Widgets)
#include "tst_WaterMark.moc"
