#include "common/Palette.h"

#include <QtTest>

#include <utility>
#include <vector>

namespace {

/// The palette as the code has it: name and constant, in order.
const std::vector<std::pair<const char *, const QString *>> &palette()
{
#define PALETTE_COLOUR(name, value) {#name, &(name)},
    static const std::vector<std::pair<const char *, const QString *>> colours = {
#include "common/Palette.def"
    };
#undef PALETTE_COLOUR
    return colours;
}

/// The same as all widgets expect it.
const char *const cExpected[][2] = {
    {"strCOLOR_BLACK", "#000000"},
    {"strCOLOR_WHITE", "#ffffff"},
    {"strCOLOR_JADE_WHITE", "#f5f8f5"},
    {"strCOLOR_MILK_WHITE", "#f2f3f5"},
    {"strCOLOR_LIGHT_GREY", "#eeeff1"},
    {"strCOLOR_BORDER_SELECT_GREY", "#e0e0e0"},
    {"strCOLOR_SKINTHEME_GREY", "#3c3d40"},
    {"strCOLOR_MAININFO_LIGHT_BLACK", "#333333"},
    {"strCOLOR_SECONDINFO_DARK_GREY", "#666666"},
    {"strCOLOR_THIED_MID_GREY", "#999999"},
    {"strCOLOR_ICON_MID_GREY", "#7c7c7c"},
    {"strCOLOT_DISABLE_GREY", "#c8c8c8"},
    {"strCOLOR_BRIGHT_RED", "#ff383c"},
    {"strCOLOR_BIG_RED", "#e6513d"},
    {"strCOLOR_TRUE_RED", "#f15c5d"},
    {"strCOLOR_PINK", "#fca498"},
    {"strCOLOR_YELLO_ORGANGE", "#ffa354"},
    {"strCOLOR_SKINTHEME_GREEN", "#33af56"},
    {"strCOLOR_BLACKISH_GREEN", "#2f8038"},
    {"strCOLOR_LIGHT_GREEN", "#98d19f"},
    {"strCOLOR_GRASS_GREEN", "#6ace13"},
    {"strCOLOR_MINT_GREEN", "#b0ecc3"},
    {"strCOLOR_PINK_GREEN", "#ebfaeb"},
    {"strCOLOR_INK_BLUE", "#1f5bb3"},
    {"strCOLOR_SKINTHEME_BLUE", "#2b83fd"},
    {"strCOLOR_AZURE_BLUE", "#4290f4"},
    {"strCOLOR_SKY_BLUE", "#1bc4ff"},
    {"strCOLOR_LIGHT_BLUE", "#80b6fe"},
    {"strCOLOR_PALE_BLUE", "#c6deff"},
    {"strCOLOR_PINK_BLUE", "#ebf0fa"},
};

/// Made before main() runs, from texts that must stand by then.
const QString cEarlyText = strCOLOR_WHITE + strTitleLabelStyle;

} // namespace

class tst_Palette : public QObject
{
    Q_OBJECT

private slots:
    void thirtyColoursInOrder()
    {
        QCOMPARE(palette().size(), std::size_t(30));
        QCOMPARE(std::size(cExpected), std::size_t(30));
        for (std::size_t i = 0; i < palette().size(); ++i) {
            QCOMPARE(palette()[i].first, cExpected[i][0]);
            QCOMPARE(*palette()[i].second, QString::fromLatin1(cExpected[i][1]));
        }
    }

    void constantsStandDuringStaticInitialisation()
    {
        QCOMPARE(cEarlyText, QStringLiteral("#fffffffont-family:Microsoft YaHei; font-size:14px; color:#000000;"));
    }

    void styleSheets_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("text");
        const QString rest = QStringLiteral(
            "QScrollBar::handle:vertical:hover{background-color:#7c7c7c;border-radius:3px;width: 6px;min-height: 40px;}"
            "QScrollBar::add-line:vertical{background: transparent;}"
            "QScrollBar::sub-line:vertical{background: transparent;}"
            "QScrollBar::up-arrow:vertical{background: transparent;}"
            "QScrollBar::down-arrow:vertical{background: transparent;}"
            "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical{background: transparent;}");
        QTest::newRow("scroll bar under the mouse")
            << strVerticalScrollBarNormalStyle
            << QStringLiteral(
                   "QScrollBar:vertical{ border: 0px; width: 6px; margin: 0px 0 0px 0; background: transparent; }"
                   "QScrollBar:vertical:hover{width: 6px;margin: 0px 0 12px 0; "
                   "background-color:#e0e0e0;border-radius:3px;}"
                   "QScrollBar::handle:vertical{background: transparent;border-radius:3px;width: 6px;min-height: "
                   "40px;}") +
                   rest;
        QTest::newRow("scroll bar always visible")
            << strVerticalScrollBarHoverStyle
            << QStringLiteral("QScrollBar:vertical{border: 0px;width: 6px;margin: 0px 0 0px 0;background: transparent;}"
                              "QScrollBar:vertical:hover{width: 6px;margin: 0px 0 0px 0; "
                              "background-color:#e0e0e0;border-radius:3px;}"
                              "QScrollBar::handle:vertical{background-color: #999999; border-radius:3px;width: 6px;"
                              "min-height: 40px;}") +
                   rest;
        QTest::newRow("menu") << strMenuStyle
                              << "QMenu{max-width:300px;border-radius:2px;background-color:#ffffff;border: 1px solid "
                                 "#e0e0e0;padding-top:5px;font-size:14px;color:#333333;}";
        QTest::newRow("menu item with its padding open")
            << strMenuItemStyle << "QMenu::item{color:#333333;height:30px; padding-left:%2px;padding-right:20px;}";
        QTest::newRow("menu item, padding filled in by a caller")
            << strMenuItemStyle.arg(35)
            << "QMenu::item{color:#333333;height:30px; padding-left:35px;padding-right:20px;}";
        QTest::newRow("selected menu item")
            << strMenuItemSelectStyle << "QMenu::item:selected{background: #e0e0e0;color:#333333;}";
        QTest::newRow("disabled menu item") << strMenuItemDisableStyle << "QMenu::item:disabled{color:#c8c8c8;}";
        QTest::newRow("menu icon") << strMenuIconStyle << "QMenu::icon{padding-left:20px;}";
        QTest::newRow("tick of its own")
            << strMenuNonExclusiveCheckedStyle
            << "QMenu::indicator:non-exclusive:checked {margin-left:10px;width:15;height:15;border-image:url("
               "Resources/images/CommonCtrls/kvim_list_ic_selected.png);}";
        QTest::newRow("tick of a group")
            << strMenuExclusiveCheckeedStyle
            << "QMenu::indicator:exclusive:checked {margin-left:10px;width:15;height:15;border-image:url("
               "Resources/images/CommonCtrls/kvim_list_ic_selected.png);}";
        QTest::newRow("title label") << strTitleLabelStyle
                                     << "font-family:Microsoft YaHei; font-size:14px; color:#000000;";
    }
    void styleSheets()
    {
        QFETCH(QString, sheet);
        QTEST(sheet, "text");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Palette, Guiless)
#include "tst_Palette.moc"
