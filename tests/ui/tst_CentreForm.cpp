// The conference centre's form: names, sizes, texts, styles, signals and slots.

#include "CentreTest.h"

#include "common/pictures/IconFont.h"
#include "fakes/Patience.h"
#include "widgets/BaseFormEx.h"
#include "widgets/IconButtonEx.h"

#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QPushButton>
#include <QTranslator>

Q_DECLARE_METATYPE(QMargins)

namespace {

/// A language of the window's own words in capitals.
class Capitals : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *pContext, const char *pText, const char *, int) const override
    {
        return qstrcmp(pContext, "CVoiceConferenceWidget") == 0 ? QString::fromUtf8(pText).toUpper() : QString();
    }
};

} // namespace

class tst_CentreForm : public CentreTest
{
    Q_OBJECT

private slots:
    void windowIsFramelessAndFixed()
    {
        open({});
        QCOMPARE(m_pWindow->windowTitle(), QStringLiteral("会议详情"));
        QVERIFY(m_pWindow->windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(m_pWindow->testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(m_pWindow->hasMouseTracking());
        QCOMPARE(m_pWindow->minimumSize(), QSize(523, 403));
        QCOMPARE(m_pWindow->maximumSize(), QSize(523, 403));
        QCOMPARE(m_pWindow->objectName(), QStringLiteral("CVoiceConferenceWidget"));
        expectPage(0);
    }

    void partsHaveTheirNamesAndSizes_data()
    {
        QTest::addColumn<QString>("parent");
        QTest::addColumn<QSize>("size");
        const QSize any(-1, -1);
        QTest::newRow("widget") << "CVoiceConferenceWidget" << any;
        QTest::newRow("titleWidget") << "widget" << QSize(-1, 36);
        QTest::newRow("lblVoipTipMsg") << "titleWidget" << any;
        QTest::newRow("btnClose") << "titleWidget" << QSize(24, 24);
        QTest::newRow("buttonWidget") << "widget" << QSize(-1, 42);
        QTest::newRow("backBtn") << "buttonWidget" << QSize(44, 20);
        QTest::newRow("creatConferenceBtn") << "buttonWidget" << QSize(124, 30);
        QTest::newRow("contentStackedWidget") << "widget" << any;
        QTest::newRow("conferenceListWidget") << "contentStackedWidget" << any;
        QTest::newRow("listTitleWidget") << "conferenceListWidget" << QSize(-1, 36);
        QTest::newRow("label") << "listTitleWidget" << any;
        QTest::newRow("voiceConferenceListWidget") << "conferenceListWidget" << any;
        QTest::newRow("listView") << "voiceConferenceListWidget" << any;
        QTest::newRow("conferenceDetaileWidget") << "contentStackedWidget" << any;
    }

    void partsHaveTheirNamesAndSizes()
    {
        QFETCH(QString, parent);
        QFETCH(QSize, size);
        open({});
        auto *const pParent =
            parent == m_pWindow->objectName() ? m_pWindow.get() : m_pWindow->findChild<QWidget *>(parent);
        QVERIFY(pParent);
        const auto *pPart =
            pParent->findChild<QWidget *>(QLatin1String(QTest::currentDataTag()), Qt::FindDirectChildrenOnly);
        QVERIFY(pPart);
        if (size.height() >= 0) {
            QCOMPARE(pPart->minimumHeight(), size.height());
            QCOMPARE(pPart->maximumHeight(), size.height());
        }
        if (size.width() >= 0) {
            QCOMPARE(pPart->minimumWidth(), size.width());
            QCOMPARE(pPart->maximumWidth(), size.width());
        }
    }

    void layoutsHaveTheirMargins_data()
    {
        QTest::addColumn<QString>("owner");
        QTest::addColumn<QMargins>("margins");
        QTest::newRow("verticalLayout") << "CVoiceConferenceWidget" << QMargins();
        QTest::newRow("verticalLayout_2") << "widget" << QMargins(3, 3, 3, 3);
        QTest::newRow("horizontalLayout_12") << "titleWidget" << QMargins();
        QTest::newRow("horizontalLayout_13") << "titleWidget" << QMargins(20, 0, 10, 0);
        QTest::newRow("horizontalLayout_2") << "buttonWidget" << QMargins(10, 0, 10, 0);
        QTest::newRow("verticalLayout_3") << "conferenceListWidget" << QMargins(0, 0, 0, 10);
        QTest::newRow("horizontalLayout") << "listTitleWidget" << QMargins(20, 0, 0, 0);
        QTest::newRow("verticalLayout_4") << "voiceConferenceListWidget" << QMargins();
        QTest::newRow("verticalLayout_5") << "conferenceDetaileWidget" << QMargins(0, 0, 0, 10);
    }

    void layoutsHaveTheirMargins()
    {
        QFETCH(QString, owner);
        QFETCH(QMargins, margins);
        open({});
        auto *const pOwner =
            owner == m_pWindow->objectName() ? m_pWindow.get() : m_pWindow->findChild<QWidget *>(owner);
        const auto *pLayout = pOwner->findChild<QLayout *>(QLatin1String(QTest::currentDataTag()));
        QVERIFY(pLayout);
        QCOMPARE(pLayout->parentWidget(), pOwner);
        QCOMPARE(pLayout->contentsMargins(), margins);
        QCOMPARE(pLayout->spacing(), 0);
    }

    void buttonsTakeNoFocus()
    {
        open({});
        QCOMPARE(part<QWidget>("btnClose")->focusPolicy(), Qt::NoFocus);
        for (const char *pName : {"backBtn", "creatConferenceBtn"}) {
            const auto *pButton = part<QPushButton>(pName);
            QCOMPARE(pButton->focusPolicy(), Qt::NoFocus);
            QVERIFY(!pButton->autoDefault());
            QVERIFY(!pButton->isDefault());
            QVERIFY(pButton->isFlat());
            QCOMPARE(pButton->font().family(), QStringLiteral("微软雅黑"));
            QCOMPARE(pButton->font().pixelSize(), 12);
        }
        QCOMPARE(list()->frameShape(), QFrame::NoFrame);
        QCOMPARE(list()->editTriggers(), QAbstractItemView::NoEditTriggers);
        QVERIFY(part<CBaseFormEx>("widget"));
        QVERIFY(part<CIconButtonEx>("btnClose"));
        QCOMPARE(part<QWidget>("btnClose")->toolTip(), QStringLiteral("close"));
    }

    void titleBarIsAsTheFormSaysIt()
    {
        open({});
        QVERIFY(part<QWidget>("titleWidget")->testAttribute(Qt::WA_SetCursor));
        QCOMPARE(part<QWidget>("titleWidget")->cursor().shape(), Qt::ArrowCursor);
        CIconButtonEx red;
        red.setIconFont(QString(QChar(0xE62C)), 8, 3);
        const auto *pExpected = red.findChild<QPushButton *>();
        const auto *pClose = part<QWidget>("btnClose")->findChild<QPushButton *>();
        QCOMPARE(pClose->text(), pExpected->text());
        QCOMPARE(pClose->font(), pExpected->font());
        QCOMPARE(pClose->styleSheet(), pExpected->styleSheet());
        QCOMPARE(pClose->parentWidget()->styleSheet(), pExpected->parentWidget()->styleSheet());
        QVERIFY(pClose->autoDefault());
        QVERIFY(pClose->isFlat());
    }

    void createButtonShowsAGreyMicrophone()
    {
        open({});
        const auto *pButton = part<QPushButton>("creatConferenceBtn");
        const qreal dRatio = m_pWindow->devicePixelRatioF();
        const QPixmap expected = IconFont::getIconFontPixmap(QString(QChar(0xE64D)), QColor(0x7c, 0x7c, 0x7c),
                                                             QSize(30, 30) * dRatio, qRound(16 * dRatio));
        QCOMPARE(pButton->icon().pixmap(expected.size()).toImage().convertToFormat(QImage::Format_ARGB32),
                 expected.toImage().convertToFormat(QImage::Format_ARGB32));
    }

    void textsAndStyles()
    {
        open({});
        QCOMPARE(part<QPushButton>("backBtn")->text(), QStringLiteral("返回"));
        QCOMPARE(part<QPushButton>("creatConferenceBtn")->text(), QStringLiteral("发起语音会议"));
        QVERIFY(!part<QPushButton>("creatConferenceBtn")->icon().isNull());
        QCOMPARE(part<QPushButton>("creatConferenceBtn")->iconSize(), QSize(30, 30));
        QCOMPARE(part<QLabel>("label")->text(), QStringLiteral("会议记录"));
        QCOMPARE(part<QLabel>("lblVoipTipMsg")->text(), QStringLiteral("语音会议"));
        QCOMPARE(part<QLabel>("lblVoipTipMsg")->styleSheet(),
                 QStringLiteral("QLabel#lblVoipTipMsg{ color: #313131; font:14px 微软雅黑; }"));
        QCOMPARE(part<QWidget>("titleWidget")->styleSheet(),
                 QStringLiteral("QWidget#titleWidget{ background-color: #f1f4f4;}"));
        QCOMPARE(part<QPushButton>("backBtn")->styleSheet(),
                 QStringLiteral("QPushButton#backBtn{border:none;"
                                "border-image:url(Resources/images/CommonCtrls/kvim_common_back_normal.png);}"
                                "QPushButton#backBtn:hover{border:none;"
                                "border-image:url(Resources/images/CommonCtrls/kvim_common_back_press.png);}"
                                "QPushButton#backBtn:press{border:none;"
                                "border-image:url(Resources/images/CommonCtrls/kvim_common_back_press.png);}"));
        const QString strCreate = part<QPushButton>("creatConferenceBtn")->styleSheet().remove(QLatin1Char('\n'));
        const QString strRules = QStringLiteral("{border-radius: 2px;color:#ffffff;background-color:#27c341;}");
        QString strExpected;
        for (const char *pState : {":!checked", ":checked", ":!checked:hover", ":hover:pressed"}) {
            strExpected += QStringLiteral("QPushButton#creatConferenceBtn") + QLatin1String(pState) + strRules;
        }
        QCOMPARE(strCreate, strExpected);
    }

    void tipFollowsTheLanguage()
    {
        open({QStringLiteral("7")});
        const auto tip = [this] { return part<CIconButtonEx>("btnClose")->toolTip(); };
        const QString strTitle = part<QLabel>("lblVoipTipMsg")->text();
        QCOMPARE(tip(), QStringLiteral("close"));
        {
            Capitals language;
            QVERIFY(QCoreApplication::installTranslator(&language));
            QTRY_COMPARE_WITH_TIMEOUT(tip(), QStringLiteral("CLOSE"), cPatienceMs);
            QCOMPARE(part<QLabel>("lblVoipTipMsg")->text(), strTitle);
            QCOMPARE(ids(), QStringList("7"));
        }
        QTRY_COMPARE_WITH_TIMEOUT(tip(), QStringLiteral("close"), cPatienceMs);
    }

    void signalsAndSlotsInOrder()
    {
        const QMetaObject &meta = CVoiceConferenceWidget::staticMetaObject;
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        QCOMPARE(methods,
                 QStringList({"signal_VoiceConfWidgetClose()", "signal_DeleteConfInfoData(QString)", "slot_close()",
                              "slot_ShowConfDetail(QString)", "slot_BackToConfListPage()", "slot_CreatConferencePage()",
                              "slot_ReCallConf(QString)", "slot_DeleteConfInfo(QString)"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CentreForm, Widgets)
#include "tst_CentreForm.moc"
