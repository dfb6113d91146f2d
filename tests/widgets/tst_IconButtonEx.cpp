#include "common/Palette.h"
#include "common/pictures/IconFont.h"
#include "fakes/Patience.h"
#include "widgets/IconButtonTest.h"

#include <QLayout>

class tst_IconButtonEx : public IconButtonTest
{
    Q_OBJECT

private slots:
    void formHasItsNamesAndSizes()
    {
        QCOMPARE(m_pButton->objectName(), QStringLiteral("CIconButtonEx"));
        QCOMPARE(m_pButton->minimumSize(), QSize(22, 22));
        QCOMPARE(m_pButton->layout()->objectName(), QStringLiteral("verticalLayout_2"));
        QCOMPARE(m_pButton->layout()->contentsMargins(), QMargins());
        const QWidget *pBack = back(*m_pButton);
        QCOMPARE(pBack->minimumSize(), QSize(22, 22));
        QCOMPARE(pBack->layout()->objectName(), QStringLiteral("verticalLayout"));
        QCOMPARE(pBack->layout()->contentsMargins(), QMargins());
        const QPushButton *pInner = inner(*m_pButton);
        QCOMPARE(pInner->parentWidget(), pBack);
        QCOMPARE(pInner->minimumSize(), QSize(12, 12));
        QCOMPARE(pInner->cursor().shape(), Qt::PointingHandCursor);
        QVERIFY(pInner->isFlat());
        QCOMPARE(pInner->geometry(), QRect(0, 0, cSide, cSide));
    }

    void newButtonIsEnabledCheckableAndUnchecked()
    {
        QVERIFY(m_pButton->isEnabled());
        QVERIFY(inner(*m_pButton)->isEnabled());
        QVERIFY(m_pButton->isCheckable());
        QVERIFY(!m_pButton->isChecked());
        QCOMPARE(face(*m_pButton), QString());
        QCOMPARE(back(*m_pButton)->styleSheet(), QString());
    }

    void glyphIsShownInTheIconFontAtItsSize()
    {
        m_pButton->setIconFont(QStringLiteral("\uE62C"), 17, 0);
        QCOMPARE(inner(*m_pButton)->text(), QStringLiteral("\uE62C"));
        QCOMPARE(inner(*m_pButton)->font().pixelSize(), 17);
        QCOMPARE(inner(*m_pButton)->font().family(), IconFont::getIconFont().family());
        QCOMPARE(inner(*m_pButton)->font().styleStrategy(), QFont::PreferAntialias);
    }

    void sizeBelowOneKeepsTheFontsOwn()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 0, 0);
        QCOMPARE(inner(*m_pButton)->font().pixelSize(), 12);
        m_pButton->setIconFont(QStringLiteral("x"), -4, 0);
        QCOMPARE(inner(*m_pButton)->font().pixelSize(), 12);
    }

    void styleTypesLookAsTheTableSays_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("back");
        const QString strWhite = strCOLOR_WHITE;
        for (const int iType : {0, 1}) {
            QTest::addRow("%d", iType) << iType << false << false << glyphIn(cIcon, cHover) << cUntouched;
            QTest::addRow("%d dark", iType) << iType << true << false << glyphIn(cIcon, cHover) << cUntouched;
            QTest::addRow("%d checked", iType) << iType << false << true << glyphIn(cHover) << cUntouched;
        }
        const QString strLight = background(QStringLiteral("10,20,30,0"), cFourth);
        const QString strRed = background(QStringLiteral("10,20,30,0"), cFifth);
        const QString strGreen = background(QStringLiteral("51,175,86,0"), strCOLOR_SKINTHEME_GREEN);
        QTest::newRow("2") << 2 << false << false << glyphIn(cIcon, cThird) << strLight;
        QTest::newRow("2 checked") << 2 << false << true << glyphIn(cIcon, cThird) << strLight;
        QTest::newRow("2 dark") << 2 << true << false << glyphIn(strWhite, strWhite) << strGreen;
        QTest::newRow("3") << 3 << false << false << glyphIn(cIcon, strWhite) << strRed;
        QTest::newRow("3 checked") << 3 << false << true << glyphIn(cIcon, strWhite) << strRed;
        QTest::newRow("3 dark") << 3 << true << false << glyphIn(strWhite, strWhite) << cUntouched;
        QTest::newRow("4") << 4 << false << false << glyphIn(cIcon) << cUntouched;
        QTest::newRow("4 dark") << 4 << true << false << glyphIn(cIcon) << cUntouched;
        QTest::newRow("4 checked") << 4 << false << true << glyphIn(cIcon) << cUntouched;
        for (const int iType : {5, 99, -1}) {
            QTest::addRow("%d", iType) << iType << false << false << glyphIn(cIcon, cHover) << cUntouched;
            QTest::addRow("%d checked", iType) << iType << false << true << glyphIn(cIcon, cHover) << cUntouched;
        }
    }

    void styleTypesLookAsTheTableSays()
    {
        QFETCH(int, type);
        QFETCH(bool, dark);
        QFETCH(bool, checked);
        QFETCH(QString, button);
        QFETCH(QString, back);
        const QString strOld = QStringLiteral("QWidget{border:none;}");
        tst_IconButtonEx::back(*m_pButton)->setStyleSheet(strOld);
        m_pButton->setBackGroundDark(dark);
        m_pButton->setChecked(checked);
        m_pButton->setIconFont(QStringLiteral("x"), 12, type);
        QCOMPARE(face(*m_pButton), button);
        QCOMPARE(tst_IconButtonEx::back(*m_pButton)->styleSheet(), back == cUntouched ? strOld : back);
    }

    void hoverColourOfTheTypeIsTheOneOfTheCheckedFace_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("hover");
        QTest::newRow("0") << 0 << false << cHover;
        QTest::newRow("2") << 2 << false << cThird;
        QTest::newRow("2 dark keeps the last one") << 2 << true << cHover;
        QTest::newRow("3") << 3 << false << cThird;
        QTest::newRow("3 dark keeps the last one") << 3 << true << cHover;
        QTest::newRow("4 keeps the last one") << 4 << false << cHover;
        QTest::newRow("other") << 5 << false << cHover;
    }

    void hoverColourOfTheTypeIsTheOneOfTheCheckedFace()
    {
        QFETCH(int, type);
        QFETCH(bool, dark);
        QFETCH(QString, hover);
        m_pButton->setBtnStyles(0);
        m_pButton->setBackGroundDark(dark);
        m_pButton->setBtnStyles(type);
        m_pButton->setChecked(true);
        QCOMPARE(face(*m_pButton), glyphIn(hover));
        m_pButton->setChecked(false);
        QCOMPARE(face(*m_pButton), glyphIn(cIcon, hover));
    }

    void iconColourReplacesTheSkins()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 4);
        m_pButton->setIconColor(QStringLiteral("#ff0000"));
        QCOMPARE(face(*m_pButton), glyphIn(QStringLiteral("#ff0000")));
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        QCOMPARE(face(*m_pButton), glyphIn(QStringLiteral("#ff0000"), cHover));
    }

    void emptyIconColourKeepsTheOldOneAndRestyles()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        m_pButton->setIconColor(QStringLiteral("#ff0000"));
        inner(*m_pButton)->setStyleSheet(QString());
        m_pButton->setIconColor(QString());
        QCOMPARE(face(*m_pButton), glyphIn(QStringLiteral("#ff0000"), cHover));
    }

    void iconColourStandsInTheSheetAsItIs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("shown");
        QTest::newRow("#rrggbb") << QStringLiteral("#0000ff") << QColor(Qt::blue);
        QTest::newRow("a name") << QStringLiteral("red") << QColor(Qt::red);
        QTest::newRow("rgb()") << QStringLiteral("rgb(184,184,184)") << QColor(184, 184, 184);
        QTest::newRow("three decimals") << QStringLiteral("184,184,184") << QColor(184, 184, 184);
        QTest::newRow("three decimals with blanks") << QStringLiteral("255, 96, 88") << QColor(255, 96, 88);
        QTest::newRow("out of range") << QStringLiteral("256,0,0") << QColor(Qt::black);
        QTest::newRow("no numbers") << QStringLiteral("a,b,c") << QColor(Qt::black);
    }

    void iconColourStandsInTheSheetAsItIs()
    {
        QFETCH(QString, text);
        QFETCH(QColor, shown);
        m_pButton->setIconFont(cBlock, 20, 4);
        m_pButton->setIconColor(text);
        QCOMPARE(face(*m_pButton), glyphIn(text));
        QCOMPARE(seenAt(cSide / 2, cSide / 2), shown);
    }

    void skinsIconColourIsTakenOnceItsHoverColourAtEachRestyle()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        m_skin->m_strIconColor = QStringLiteral("#00ff00");
        m_skin->m_strIconHoverColor = QStringLiteral("#0000ff");
        m_pButton->setBtnStyles(0);
        QCOMPARE(face(*m_pButton), glyphIn(cIcon, QStringLiteral("#0000ff")));
    }

    void checkedFaceHasTheHoverColour()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        m_pButton->setChecked(true);
        QVERIFY(m_pButton->isChecked());
        QVERIFY(inner(*m_pButton)->isChecked());
        QCOMPARE(face(*m_pButton), glyphIn(cHover));
        m_pButton->setChecked(false);
        QVERIFY(!m_pButton->isChecked());
        QVERIFY(!inner(*m_pButton)->isChecked());
        QCOMPARE(face(*m_pButton), glyphIn(cIcon, cHover));
    }

    void checkedButtonHasNoFrameOfItsOwn_data()
    {
        QTest::addColumn<int>("type");
        for (int iType = 0; iType <= 5; ++iType) {
            QTest::addRow("%d", iType) << iType;
        }
    }

    void checkedButtonHasNoFrameOfItsOwn()
    {
        QFETCH(int, type);
        m_pButton->setIconFont(QString(), 12, type);
        const QImage before = m_pButton->grab().toImage();
        m_pButton->setChecked(true);
        QCOMPARE(m_pButton->grab().toImage(), before);
    }

    void notCheckableIsNotChecked()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        m_pButton->setChangeBackgroundOnChecked(true);
        m_pButton->setCheckable(false);
        m_pButton->setChecked(true);
        QVERIFY(!m_pButton->isCheckable());
        QVERIFY(!m_pButton->isChecked());
        QCOMPARE(face(*m_pButton), glyphIn(cIcon, cHover));
        QCOMPARE(back(*m_pButton)->styleSheet(), QString());
        m_pButton->setCheckable(true);
        QVERIFY(!m_pButton->isChecked());
    }

    void checkedFaceStaysWhenTheButtonStopsBeingCheckable()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        m_pButton->setChecked(true);
        m_pButton->setCheckable(false);
        QVERIFY(!m_pButton->isChecked());
        m_pButton->setBtnStyles(0);
        QCOMPARE(face(*m_pButton), glyphIn(cHover));
        m_pButton->setCheckable(true);
        QVERIFY(m_pButton->isChecked());
    }

    void checkedBackgroundChangesOnlyOnRequest()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        m_pButton->setChecked(true);
        QCOMPARE(back(*m_pButton)->styleSheet(), QString());
        m_pButton->setChangeBackgroundOnChecked(true);
        m_pButton->setChecked(true);
        QCOMPARE(back(*m_pButton)->styleSheet(), background(QStringLiteral("252,164,152,255")));
        QCOMPARE(face(*m_pButton), glyphIn(cHover));
        QCOMPARE(seenAt(3, 3), QColor(strCOLOR_PINK));
        m_pButton->setChecked(false);
        QCOMPARE(back(*m_pButton)->styleSheet(), background(QStringLiteral("10,20,30,0")));
        QCOMPARE(face(*m_pButton), glyphIn(cIcon, cHover));
    }

    void disabledGlyphHasTheSkinsDisabledColour()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        m_pButton->setEnabled(false);
        QVERIFY(!m_pButton->isEnabled());
        QVERIFY(!inner(*m_pButton)->isEnabled());
        QCOMPARE(face(*m_pButton), glyphIn(cDisabled));
        m_pButton->setEnabled(true);
        QVERIFY(m_pButton->isEnabled());
        QVERIFY(inner(*m_pButton)->isEnabled());
        QCOMPARE(face(*m_pButton), glyphIn(cIcon, cHover));
    }

    void setDisabledDoesNotTouchTheAnswer()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        m_pButton->setDisabled(true);
        QVERIFY(m_pButton->isEnabled());
        QVERIFY(!inner(*m_pButton)->isEnabled());
        QCOMPARE(face(*m_pButton), glyphIn(cDisabled));
        moveIn();
        QTRY_COMPARE_WITH_TIMEOUT(face(*m_pButton), glyphIn(cIcon, cHover), cPatienceMs);
        m_pButton->setDisabled(false);
        QVERIFY(inner(*m_pButton)->isEnabled());
        QCOMPARE(face(*m_pButton), glyphIn(cIcon, cHover));
        m_pButton->setEnabled(false);
        m_pButton->setDisabled(false);
        QVERIFY(!m_pButton->isEnabled());
    }

    void textMakesTheButtonFlat()
    {
        m_pButton->setFlat(false);
        QVERIFY(!inner(*m_pButton)->isFlat());
        m_pButton->setText(QStringLiteral("word"));
        QCOMPARE(inner(*m_pButton)->text(), QStringLiteral("word"));
        QVERIFY(inner(*m_pButton)->isFlat());
    }

    void innerButtonTakesWhatItIsGiven()
    {
        m_pButton->setAutoDefault(true);
        QVERIFY(inner(*m_pButton)->autoDefault());
        m_pButton->setAutoDefault(false);
        QVERIFY(!inner(*m_pButton)->autoDefault());
        m_pButton->setDefault(true);
        QVERIFY(inner(*m_pButton)->isDefault());
        m_pButton->setIconSize(QSize(9, 7));
        QCOMPARE(inner(*m_pButton)->iconSize(), QSize(9, 7));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_IconButtonEx, Widgets)

#include "tst_IconButtonEx.moc"
