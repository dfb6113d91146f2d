#include "model/SysUIData.h"

#include <QtTest>

#include <algorithm>
#include <vector>

namespace {

struct Text
{
    int iPosition;
    const char *pName;
    QString SysUIData::*pMember;
};

/// The texts of a skin as the code has them, in order.
const std::vector<Text> &texts()
{
#define SKIN_TEXT(position, name, value) {position, #name, &SysUIData::name},
    static const std::vector<Text> rows = {
#include "model/SysUIData.def"
    };
#undef SKIN_TEXT
    return rows;
}

/// A skin of which every member differs from every other, and each from that of a skin with another mark.
SysUIData markedSkin(const QString &strMark)
{
    SysUIData skin;
    for (const Text &text : texts()) {
        skin.*text.pMember = strMark + QString::number(text.iPosition);
    }
    for (size_t i = 0; i < skin.m_iconCodes.size(); ++i) {
        skin.m_iconCodes[i] = ushort(strMark.at(0).unicode() * size_t(16) + i);
    }
    skin.m_bFirstMark = true;
    skin.m_bSecondMark = true;
    return skin;
}

} // namespace

class tst_SysUIData : public QObject
{
    Q_OBJECT

private slots:
    void everyPositionHasOneText()
    {
        std::vector<int> expected;
        for (int iPosition = 2; iPosition <= 64; ++iPosition) {
            if (iPosition != 32) {
                expected.push_back(iPosition);
            }
        }
        std::vector<int> found;
        for (const Text &text : texts()) {
            found.push_back(text.iPosition);
        }
        QCOMPARE(found, expected);
        QCOMPARE(texts().size(), size_t(62));
    }

    void noTwoPositionsShareAMember()
    {
        const SysUIData skin = markedSkin("a");
        for (const Text &text : texts()) {
            QVERIFY2(skin.*text.pMember == "a" + QString::number(text.iPosition), text.pName);
        }
    }

    void widgetsFindTheirMemberAtItsPosition_data()
    {
        QTest::addColumn<int>("position");
        const auto row = [](int iPosition, const char *pName) { QTest::newRow(pName) << iPosition; };
        row(2, "m_strSkinName");
        row(3, "m_strShownName");
        row(5, "m_strMainColor");
        row(11, "m_strPanelColor");
        row(14, "m_strWaterMarkColor");
        row(23, "m_strPreviewPicture");
        row(24, "m_strPinIcon");
        row(25, "m_strLeftBubbleBorderImage");
        row(26, "m_strLeftBubbleBorderWidths");
        row(27, "m_strLeftBubbleMargin");
        row(28, "m_strRightBubbleBorderImage");
        row(29, "m_strRightBubbleBorderWidths");
        row(30, "m_strRightBubbleMargin");
        row(31, "m_strSkinFolderName");
        row(33, "m_strButtonBorderColor");
        row(34, "m_strButtonBackgroundColor");
        row(35, "m_strButtonHoverBackgroundColor");
        row(36, "m_strButtonDisabledBackgroundColor");
        row(37, "m_strButtonTextColor");
        row(38, "m_strButtonHoverTextColor");
        row(39, "m_strButtonDisabledTextColor");
        row(40, "m_strSecondButtonBackgroundColor");
        row(41, "m_strSecondButtonHoverBackgroundColor");
        row(42, "m_strSecondButtonDisabledBackgroundColor");
        row(43, "m_strSecondButtonTextColor");
        row(44, "m_strIconColor");
        row(45, "m_strIconHoverColor");
        row(46, "m_strThirdIconColor");
        row(47, "m_strFourthIconColor");
        row(48, "m_strFifthIconColor");
        row(49, "m_strDisabledIconColor");
        row(50, "m_strEditBackgroundColor");
        row(51, "m_strEditBorderColor");
        row(52, "m_strEditHoverBorderColor");
        row(53, "m_strLineColor");
        row(55, "m_strCheckBoxStyle");
        row(59, "m_strCheckBoxDisabledStyle");
        row(60, "m_strRadioButtonStyle");
        row(64, "m_strRadioButtonDisabledStyle");
    }
    void widgetsFindTheirMemberAtItsPosition()
    {
        QFETCH(int, position);
        const auto &rows = texts();
        const auto found = std::find_if(rows.begin(), rows.end(), [](const Text &text) {
            return qstrcmp(text.pName, QTest::currentDataTag()) == 0;
        });
        QVERIFY(found != rows.end());
        QCOMPARE(found->iPosition, position);
    }

    void aNewSkinIsEmpty()
    {
        const SysUIData skin;
        for (const Text &text : texts()) {
            QVERIFY2((skin.*text.pMember).isEmpty(), text.pName);
        }
        for (const ushort code : skin.m_iconCodes) {
            QCOMPARE(code, ushort(0));
        }
        QVERIFY(!skin.m_bSecondMark);
    }

    void aCopyIsEqualMemberByMember()
    {
        const SysUIData original = markedSkin("a");
        const SysUIData copy(original); // NOLINT(performance-unnecessary-copy-initialization)
        for (const Text &text : texts()) {
            QCOMPARE(copy.*text.pMember, original.*text.pMember);
        }
        QVERIFY(copy.m_iconCodes == original.m_iconCodes);
        QVERIFY(copy.m_bFirstMark);
        QVERIFY(copy.m_bSecondMark);
    }

    void resetDataTakesPositionFourFromThreeAndEightFromSeven()
    {
        SysUIData skin = markedSkin("a");
        SysUIData other = markedSkin("b");
        other.m_bFirstMark = false;
        skin.m_bSecondMark = false;
        skin.resetData(other);
        for (const Text &text : texts()) {
            const int iSource = text.iPosition == 4 ? 3 : text.iPosition == 8 ? 7 : text.iPosition;
            QVERIFY2(skin.*text.pMember == "b" + QString::number(iSource), text.pName);
        }
        QVERIFY(skin.m_iconCodes == other.m_iconCodes);
        QVERIFY(!skin.m_bFirstMark);
        QVERIFY(skin.m_bSecondMark);
        QCOMPARE(other.m_strText4, QString("b4"));
        QCOMPARE(other.m_strColor8, QString("b8"));
    }

    void resetDataWithItselfChangesOnlyThoseTwo()
    {
        SysUIData skin = markedSkin("a");
        skin.resetData(skin);
        for (const Text &text : texts()) {
            const int iSource = text.iPosition == 4 ? 3 : text.iPosition == 8 ? 7 : text.iPosition;
            QVERIFY2(skin.*text.pMember == "a" + QString::number(iSource), text.pName);
        }
    }

    void theHooksChangeNothing()
    {
        SysUIData skin = markedSkin("a");
        skin.initData();
        skin.initBaseStyle();
        for (const Text &text : texts()) {
            QCOMPARE(skin.*text.pMember, "a" + QString::number(text.iPosition));
        }
        QVERIFY(skin.m_iconCodes == markedSkin("a").m_iconCodes);
    }

    void rgbaReadsPairsOfHexadecimalDigits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("color");
        QTest::newRow("eight digits") << "33af5680" << QColor(0x33, 0xaf, 0x56, 0x80);
        QTest::newRow("capitals") << "33AF56FF" << QColor(0x33, 0xaf, 0x56, 0xff);
        QTest::newRow("transparent") << "ffffff00" << QColor(255, 255, 255, 0);
        QTest::newRow("six digits give blue as alpha") << "33af56" << QColor(0x33, 0xaf, 0x56, 0x56);
        QTest::newRow("nothing is opaque black") << "" << QColor(0, 0, 0, 255);
        QTest::newRow("one digit is red and alpha") << "f" << QColor(15, 0, 0, 15);
        QTest::newRow("four digits") << "1020" << QColor(0x10, 0x20, 0, 0x20);
        QTest::newRow("no digits") << "zzzzzzzz" << QColor(0, 0, 0, 0);
        QTest::newRow("a sign is no digit") << "-1-1-1-1" << QColor(0, 0, 0, 0);
        QTest::newRow("# is no digit but takes a place") << "#33af56" << QColor(0, 0x3a, 0xf5, 0x56);
        QTest::newRow("the alpha stands at the end") << "0102030405" << QColor(1, 2, 3, 5);
    }
    void rgbaReadsPairsOfHexadecimalDigits()
    {
        QFETCH(QString, text);
        const QColor color = SysUIData::transformToRGBA(text);
        QVERIFY(color.isValid());
        QTEST(color, "color");
    }

    void rgbTextIsDecimal_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("rgb");
        QTest::newRow("green") << "#33af56"
                               << "51,175,86";
        QTest::newRow("white") << "#ffffff"
                               << "255,255,255";
        QTest::newRow("black") << "#000000"
                               << "0,0,0";
        QTest::newRow("without #") << "33af56"
                                   << "51,175,86";
        QTest::newRow("every # goes") << "##33#af56#"
                                      << "51,175,86";
        QTest::newRow("the last two digits are blue") << "#33af5680"
                                                      << "51,175,128";
        QTest::newRow("short") << "#12"
                               << "18,0,18";
        QTest::newRow("nothing") << ""
                                 << "0,0,0";
        QTest::newRow("no digits") << "#zzyyxx"
                                   << "0,0,0";
    }
    void rgbTextIsDecimal()
    {
        QFETCH(QString, text);
        QTEST(SysUIData::transformToRGBStr(text), "rgb");
    }

    void aBubblesNameCarriesItsWidths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("image");
        QTest::addColumn<QString>("widths");
        QTest::newRow("plain") << "a_1_2_3_4.png"
                               << "url(a_1_2_3_4.png) 1 2 3 4 fill stretch stretch"
                               << "1px 2px 3px 4px";
        QTest::newRow("more parts") << "x/bg_left_22_3_3_9.png"
                                    << "url(x/bg_left_22_3_3_9.png) 22 3 3 9 fill stretch stretch"
                                    << "22px 3px 3px 9px";
        QTest::newRow("a folder with a dot") << "v1.2/a_1_2_3_4.png"
                                             << "url(v1.2/a_1_2_3_4.png) 1 2 3 4 fill stretch stretch"
                                             << "1px 2px 3px 4px";
        QTest::newRow("two dots in the name") << "a_1_2_3_4.9.png"
                                              << "url(a_1_2_3_4.9.png) 1 2 3 4.9 fill stretch stretch"
                                              << "1px 2px 3px 4.9px";
        QTest::newRow("no extension") << "a_1_2_3_4"
                                      << "url(a_1_2_3_4) 1 2 3 4 fill stretch stretch"
                                      << "1px 2px 3px 4px";
        QTest::newRow("empty parts count") << "a_1__3_.png"
                                           << "url(a_1__3_.png) 1  3  fill stretch stretch"
                                           << "1px px 3px px";
        QTest::newRow("no numbers") << "a_b_c_d.png"
                                    << "url(a_b_c_d.png) a b c d fill stretch stretch"
                                    << "apx bpx cpx dpx";
        QTest::newRow("missing parts are empty") << "3_4.png"
                                                 << "url(3_4.png)   3 4 fill stretch stretch"
                                                 << "px px 3px 4px";
        QTest::newRow("no part at all") << ""
                                        << "url()     fill stretch stretch"
                                        << "px px px px";
        QTest::newRow("placeholders stay") << "%2_%5_2_3_4.png"
                                           << "url(%2_%5_2_3_4.png) %5 2 3 4 fill stretch stretch"
                                           << "%5px 2px 3px 4px";
    }
    void aBubblesNameCarriesItsWidths()
    {
        QFETCH(QString, path);
        SysUIData left;
        left.setLeftChatBubble(path);
        QTEST(left.m_strLeftBubbleBorderImage, "image");
        QTEST(left.m_strLeftBubbleBorderWidths, "widths");
        QVERIFY(left.m_strRightBubbleBorderImage.isEmpty());
        QVERIFY(left.m_strRightBubbleBorderWidths.isEmpty());

        SysUIData right;
        right.setRightChatBubble(path);
        QTEST(right.m_strRightBubbleBorderImage, "image");
        QTEST(right.m_strRightBubbleBorderWidths, "widths");
        QVERIFY(right.m_strLeftBubbleBorderImage.isEmpty());
        QVERIFY(right.m_strLeftBubbleBorderWidths.isEmpty());
    }

    void theMarginIsWhatIsLeftInsideTheBorder_data()
    {
        QTest::addColumn<QString>("widths");
        QTest::addColumn<QString>("margin");
        QTest::addColumn<QString>("stored");
        QTest::newRow("default left bubble") << "22px 3px 3px 9px"
                                             << "10px 10px 10px 10px"
                                             << "-12px 7px 7px 1px";
        QTest::newRow("side by side") << "1px 2px 3px 4px"
                                      << "10px 12px 14px 16px"
                                      << "9px 10px 11px 12px";
        QTest::newRow("without unit") << "1px 2px 3px 4px"
                                      << "10 10 10 10"
                                      << "9px 8px 7px 6px";
        QTest::newRow("no bubble") << ""
                                   << "10px 10px 10px 10px"
                                   << "10px 10px 10px 10px";
        QTest::newRow("no margin") << "1px 2px 3px 4px"
                                   << ""
                                   << "";
        QTest::newRow("three values") << "1px 2px 3px 4px"
                                      << "10px 10px 10px"
                                      << "10px 10px 10px";
        QTest::newRow("five values") << "1px 2px 3px 4px"
                                     << "10px 10px 10px 10px 10px"
                                     << "9px 8px 7px 6px";
        QTest::newRow("three widths") << "1px 2px 3px"
                                      << "10px 10px 10px 10px"
                                      << "10px 10px 10px 10px";
        QTest::newRow("empty widths count 0") << "px px 3px 4px"
                                              << "10px 10px 10px 10px"
                                              << "10px 10px 7px 6px";
        QTest::newRow("an empty value between blanks") << "1px 2px 3px 4px"
                                                       << "10px  10px 10px"
                                                       << "9px -2px 7px 6px";
        QTest::newRow("no numbers") << "1px 2px 3px 4px"
                                    << "a b c d"
                                    << "-1px -2px -3px -4px";
        QTest::newRow("far apart") << "-2147483648px 0px 0px 0px"
                                   << "2147483647px 0px 0px 0px"
                                   << "4294967295px 0px 0px 0px";
    }
    void theMarginIsWhatIsLeftInsideTheBorder()
    {
        QFETCH(QString, widths);
        QFETCH(QString, margin);
        SysUIData left;
        left.m_strLeftBubbleBorderWidths = widths;
        left.setLeftBubbleMargin(margin);
        QTEST(left.m_strLeftBubbleMargin, "stored");
        QVERIFY(left.m_strRightBubbleMargin.isEmpty());

        SysUIData right;
        right.m_strRightBubbleBorderWidths = widths;
        right.setRightBubbleMargin(margin);
        QTEST(right.m_strRightBubbleMargin, "stored");
        QVERIFY(right.m_strLeftBubbleMargin.isEmpty());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SysUIData, Guiless)
#include "tst_SysUIData.moc"
