#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/SkinContext.h"
#include "model/Somewhere.h"

#include <QtTest>

#include <array>
#include <map>

namespace {

/// The texts of the built-in skin that are not empty, as the widgets expect them.
const std::map<int, QString> cExpected = {
    {2, "ThemeGreen"},
    {3, "ThemeGreen"},
    {5, "#33af56"},
    {7, "#33af56"},
    {8, "#33af56"},
    {10, "#eeeff1"},
    {11, "#f2f3f5"},
    {12, "#eaeaea"},
    {13, "#dddddd"},
    {14, "#e8e9eb"},
    {16, "#ffffff"},
    {17, "#ffffff"},
    {18, "#7c7c7c"},
    {19, "#ebfaeb"},
    {20, "#33af56"},
    {23, "Resources/NewThemes/ColorGreen/bg_preview.png"},
    {24, "Resources/NewThemes/ThemeGreen/nail_on.png"},
    {25, "url(images/Bubbles/bg_chat_bubble_default_left_22_3_3_9.png) 22 3 3 9 fill stretch stretch"},
    {26, "22px 3px 3px 9px"},
    {28, "url(images/Bubbles/bg_chat_bubble_default_right_22_9_3_3.png) 22 9 3 3 fill stretch stretch"},
    {29, "22px 9px 3px 3px"},
    {31, "ThemeGreen"},
    {33, "#e0e0e0"},
    {34, "#ffffff"},
    {35, "#33af56"},
    {36, "#ffffff"},
    {37, "#333333"},
    {38, "#ffffff"},
    {39, "#999999"},
    {40, "#33af56"},
    {41, "#33af56"},
    {42, "#c8c8c8"},
    {43, "#ffffff"},
    {44, "#7c7c7c"},
    {45, "#33af56"},
    {46, "#7c7c7c"},
    {47, "#e0e0e0"},
    {48, "#e6513d"},
    {49, "#c8c8c8"},
    {50, "#ffffff"},
    {51, "#e0e0e0"},
    {52, "#33af56"},
    {53, "#e0e0e0"},
    {55, "QCheckBox{color:#333333;spacing: 10px;}\tQCheckBox::indicator{width: 16px;height: 16px;}"
         "QCheckBox::indicator:unchecked{border-image: url(Resources/images/icon/btn_checkbox_normal.png);}"},
    {56, "QCheckBox::indicator:unchecked:hover{border-image: "
         "url(Resources/images/icon/btn_checkbox_normal_hover.png);}"},
    {57, "QCheckBox::indicator:checked {border-image: url(Resources/images/icon/btn_checkbox_pressed.png);}"},
    {58, "QCheckBox::indicator:checked:hover {border-image: "
         "url(Resources/images/icon/btn_checkbox_pressed_hover.png);}"},
    {59, "QCheckBox::indicator:disabled {border-image: "
         "url(Resources/images/icon/btn_checkbox_disable.png);color:#333333;}"},
    {60, "QRadioButton{font: 12px '微软雅黑';color:#333333;}QRadioButton::indicator{width: 16px;height: 16px;}"
         "QRadioButton::indicator:unchecked{border-image: url(Resources/images/icon/btn_radio_normal.png);\t}"},
    {61, "QRadioButton::indicator:unchecked:hover{border-image: url(Resources/images/icon/btn_radio_hover.png);}"},
    {62, "QRadioButton::indicator:checked{border-image: url(Resources/images/icon/btn_radio_pressed.png);}"},
    {63, "QRadioButton::indicator:checked:hover{border-image: "
         "url(Resources/images/icon/btn_radio_pressed_hover.png);}"},
    {64, "QRadioButton::indicator:disabled{border-image: "
         "url(Resources/images/icon/btn_radio_disable.png);color:#333333;}"},
};

/// The texts of a skin by their positions.
std::map<int, QString> textsOf(const SysUIData &skin)
{
#define SKIN_TEXT(position, name, value) {position, skin.name},
    return {
#include "model/SysUIData.def"
    };
#undef SKIN_TEXT
}

class Renamer : public QTranslator
{
public:
    QString translate(const char *pContext, const char *pText, const char *, int) const override
    {
        const bool bMine = qstrcmp(pContext, "QObject") == 0 && qstrcmp(pText, "ThemeGreen") == 0;
        return bMine ? QStringLiteral("Fresh green") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_SkinContext : public QObject
{
    Q_OBJECT

private slots:
    void theBuiltInSkinHasEveryDefault()
    {
        CommonData context;
        const GivenContext given(context);
        const std::map<int, QString> texts = textsOf(*SkinContext::getSkinData());
        QCOMPARE(texts.size(), size_t(62));
        for (const auto &[iPosition, strText] : texts) {
            const auto expected = cExpected.find(iPosition);
            const QString strExpected = expected == cExpected.end() ? QString() : expected->second;
            QVERIFY2(strText == strExpected, qPrintable(QString("%1: %2").arg(iPosition).arg(strText)));
        }
        for (const auto &[iPosition, strText] : cExpected) {
            QVERIFY2(texts.count(iPosition), qPrintable(QString::number(iPosition)));
        }
    }

    void theBuiltInSkinHasEightIconCodes()
    {
        const std::array<ushort, 8> expected = {0xE603, 0xF603, 0xE602, 0xF602, 0xE604, 0xF604, 0xE610, 0xF610};
        QVERIFY(SkinContext::getSkinData()->m_iconCodes == expected);
        QVERIFY(!SkinContext::getSkinData()->m_bSecondMark);
    }

    void theFirstRequestMakesTheSkinAndLaterOnesGetTheSame()
    {
        CommonData context;
        const GivenContext given(context);
        SysUIData *pSkin = SkinContext::getSkinData();
        QVERIFY(pSkin);
        QCOMPARE(context.getSkinData(), pSkin);
        QCOMPARE(SkinContext::getSkinData(), pSkin);
        QCOMPARE(pSkin->m_strSkinName, QString("ThemeGreen"));
    }

    void theHostsSkinIsTheOneInUse()
    {
        SysUIData skin;
        CommonData context;
        context.setSkinData(&skin);
        const GivenContext given(context);
        QCOMPARE(SkinContext::getSkinData(), &skin);
        QVERIFY(skin.m_strSkinName.isEmpty());
    }

    void aSecondContextGetsASkinOfItsOwn()
    {
        CommonData first;
        const GivenContext given(first);
        SysUIData changed;
        changed.m_strMainColor = "#123456";
        SkinContext::getSkinData();
        SkinContext::setSkinData(changed);
        CommonData second;
        const GivenContext alsoGiven(second);
        QCOMPARE(SkinContext::getSkinData()->m_strMainColor, QString("#33af56"));
        QVERIFY(first.getSkinData() != second.getSkinData());
        QCOMPARE(first.getSkinData()->m_strMainColor, QString("#123456"));
    }

    void withoutAContextTheSkinIsBuiltIn()
    {
        SysUIData *pSkin = SkinContext::getSkinData();
        QVERIFY(pSkin);
        QCOMPARE(SkinContext::getSkinData(), pSkin);
        QCOMPARE(textsOf(*pSkin).at(5), QString("#33af56"));
        SysUIData changed;
        changed.m_strMainColor = "#123456";
        SkinContext::setSkinData(changed);
        QCOMPARE(pSkin->m_strMainColor, QString("#33af56"));
    }

    void theShownNameIsTranslated()
    {
        Renamer renamer;
        QVERIFY(QCoreApplication::installTranslator(&renamer));
        CommonData context;
        const GivenContext given(context);
        QCOMPARE(SkinContext::getSkinData()->m_strShownName, QString("Fresh green"));
        QCOMPARE(SkinContext::getSkinData()->m_strSkinName, QString("ThemeGreen"));
        QCOMPARE(SkinContext::getSkinData()->m_strSkinFolderName, QString("ThemeGreen"));
        QCoreApplication::removeTranslator(&renamer);
    }

    void setSkinDataResetsTheCurrentObject()
    {
        SysUIData current;
        CommonData context;
        context.setSkinData(&current);
        const GivenContext given(context);
        SysUIData grey;
        grey.m_strSkinName = "ThemeGrey";
        grey.m_strShownName = "Grey";
        grey.m_strText4 = "other";
        SkinContext::setSkinData(grey);
        QCOMPARE(SkinContext::getSkinData(), &current);
        QCOMPARE(current.m_strSkinName, QString("ThemeGrey"));
        QCOMPARE(current.m_strText4, QString("Grey"));
    }

    void setSkinDataMakesNoSkin()
    {
        CommonData context;
        const GivenContext given(context);
        SkinContext::setSkinData(SysUIData());
        QVERIFY(!context.getSkinData());
    }

    void theListsAreTheContexts()
    {
        QVERIFY(!SkinContext::getSysUIDataList());
        QVERIFY(!SkinContext::getChatBubblesList());
        CommonData context;
        const GivenContext given(context);
        QVERIFY(!SkinContext::getSysUIDataList());
        QVERIFY(!SkinContext::getChatBubblesList());
        context.setListSysUIData(somewhere<QList<SysUIData>>(1));
        context.setListChatBubbles(somewhere<QList<ChatBubbles>>(2));
        QCOMPARE(SkinContext::getSysUIDataList(), somewhere<QList<SysUIData>>(1));
        QCOMPARE(SkinContext::getChatBubblesList(), somewhere<QList<ChatBubbles>>(2));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SkinContext, Guiless)
#include "tst_SkinContext.moc"
