// What stands on the gallery's pages, and the dialogs behind its buttons.

#include "DialogModes.h"
#include "DialogsPage.h"
#include "GalleryPages.h"
#include "GalleryUser.h"
#include "GalleryWindow.h"
#include "GlyphsPage.h"
#include "WidgetsPage.h"

#include "common/pictures/IconGlyphs.h"
#include "fakes/Patience.h"
#include "model/AvatarFiles.h"
#include "widgets/BaseFormEx.h"
#include "widgets/ElidedLabel.h"
#include "widgets/ErrorMessage.h"
#include "widgets/FocusRing.h"
#include "widgets/HotLabel.h"
#include "widgets/IconButtonEx.h"
#include "widgets/LineEditEx.h"
#include "widgets/MenuEx.h"
#include "widgets/MessageLabel.h"
#include "widgets/MyRubberBand.h"
#include "widgets/PushButtonEx.h"
#include "widgets/TextEditEx.h"
#include "widgets/VcardHeadLabel.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <algorithm>

class tst_GalleryPages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(QStringLiteral(VOIP_BIN_DIR))); }

    void pagesAreFoundByNameInAnyCase()
    {
        QCOMPARE(GalleryPages::names(), QStringLiteral("Widgets, Glyphs, Dialogs, Pictures"));
        QCOMPARE(GalleryPages::find(QStringLiteral("glyphs")), &GalleryPages::all().at(1));
        QCOMPARE(GalleryPages::find(QStringLiteral("PICTURES")), &GalleryPages::all().at(3));
        QVERIFY(GalleryPages::find(QStringLiteral("glyph")) == nullptr);
        QVERIFY(GalleryPages::find(QString()) == nullptr);
    }

    void windowOpensAtThePageAskedFor()
    {
        const GalleryUser user;
        const GalleryWindow window(GalleryPages::find(QStringLiteral("dialogs")));
        const auto *tabs = window.findChild<QTabWidget *>(QStringLiteral("tabs"));
        QCOMPARE(tabs->count(), 4);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), QStringLiteral("Dialogs"));
    }

    void headImagesLieInAFolderOfTheirOwn()
    {
        const GalleryUser user;
        QVERIFY2(AvatarFiles::headImageFolder().endsWith(QStringLiteral("/heads/")),
                 qPrintable(AvatarFiles::headImageFolder()));
    }

    void everyGlyphStandsWithItsCodePointInEachSize()
    {
        const GlyphsPage page;
        QStringList texts;
        for (const QLabel *label : page.findChildren<QLabel *>()) {
            texts.append(label->text());
        }
        for (const IconGlyph::Row &row : IconGlyph::cAll) {
            QCOMPARE(texts.count(IconGlyph::text(row.codePoint)), 4);
            QCOMPARE(texts.count(QLatin1String(row.pName)), 1);
            QCOMPARE(texts.count(QStringLiteral("U+") + QString::number(row.codePoint, 16).toUpper()), 1);
        }
    }

    void everyKindOfWidgetIsShown()
    {
        const GalleryUser user;
        const WidgetsPage page;
        // Eight types in six states, and the delete buttons of two fields.
        QCOMPARE(page.findChildren<CIconButtonEx *>().size(), 8 * 6 + 2);
        // Two looks in five states and with the focus of the keys, three font sizes, and a button below each menu.
        QCOMPARE(page.findChildren<PushButtonEx *>().size(), 2 * (5 + 1) + 3 + 3);
        QCOMPARE(page.findChildren<QCheckBox *>().size(), 5);
        QCOMPARE(page.findChildren<QRadioButton *>().size(), 5);
        QCOMPARE(page.findChildren<CLineEditEx *>().size(), 10);
        QCOMPARE(page.findChildren<CTextEditEx *>().size(), 4);
        QCOMPARE(page.findChildren<CBaseFormEx *>().size(), 4);
        QCOMPARE(page.findChildren<HotLabel *>().size(), 2);
        QCOMPARE(page.findChildren<VcardHeadLabel *>().size(), 4);
        QCOMPARE(page.findChildren<ElidedLabel *>().size(), 2);
        QCOMPARE(page.findChildren<MessageLabel *>().size(), 2);
        const QList<FocusRing *> rings = page.findChildren<FocusRing *>();
        QCOMPARE(std::count_if(rings.begin(), rings.end(), [](const FocusRing *ring) { return ring->isShown(); }), 2);
        QCOMPARE(page.findChildren<MyRubberBand *>().size(), 1);
        QCOMPARE(page.findChildren<CMenuEx *>(QStringLiteral("openedMenu")).size(), 3);
    }

    void bandIsAWindowWhereTheMouseDrawsIt()
    {
        const GalleryUser user;
        WidgetsPage page;
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page, cPatienceMs));
        QWidget *pField = nullptr;
        for (QLabel *pLabel : page.findChildren<QLabel *>()) {
            if (pLabel->text() == QStringLiteral("drag here")) {
                pField = pLabel;
            }
        }
        QVERIFY(pField != nullptr);
        const auto band = [] {
            for (QWidget *pWindow : QApplication::topLevelWidgets()) {
                if (qobject_cast<MyRubberBand *>(pWindow) != nullptr && pWindow->isVisible()) {
                    return pWindow->geometry();
                }
            }
            return QRect();
        };
        QVERIFY(band().isNull());
        QTest::mousePress(pField, Qt::LeftButton, Qt::NoModifier, {60, 50});
        QMouseEvent move(QEvent::MouseMove, QPointF(10, 20), pField->mapToGlobal(QPoint(10, 20)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(pField, &move);
        QCOMPARE(band(), QRect(pField->mapToGlobal(QPoint(10, 20)), pField->mapToGlobal(QPoint(60, 50))));
        QTest::mouseRelease(pField, Qt::LeftButton, Qt::NoModifier, {10, 20});
        QVERIFY(band().isNull());
    }

    void everyPageOfTheDialogHasAMode()
    {
        QSet<QString> pages;
        for (const DialogMode &mode : DialogModes::all()) {
            ErrorMessage dialog(QString(), QString(), nullptr);
            QTimer::singleShot(0, &dialog, &QDialog::close);
            mode.run(dialog);
            pages.insert(pageOf(dialog));
        }
        const QSet<QString> all{"MsgShow", "TextEdit", "LineEdit", "AddLabel", "page_MsgAndScreen"};
        QCOMPARE(pages, all);
    }

    void everyModeOpensByItsButton_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("page");

        const QStringList pages = {"MsgShow",  "MsgShow",           "MsgShow",           "MsgShow",          "TextEdit",
                                   "LineEdit", "LineEdit",          "MsgShow",           "AddLabel",         "AddLabel",
                                   "AddLabel", "page_MsgAndScreen", "page_MsgAndScreen", "page_MsgAndScreen"};
        QCOMPARE(DialogModes::all().size(), pages.size());
        for (int i = 0; i < pages.size(); ++i) {
            QTest::newRow(DialogModes::all().at(i).id) << i << pages.at(i);
        }
    }

    void everyModeOpensByItsButton()
    {
        QFETCH(int, index);
        DialogsPage page;
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page, cPatienceMs));
        const QList<PushButtonEx *> buttons = openButtons(page);
        QCOMPARE(buttons.size(), DialogModes::all().size());

        QString shown;
        QTimer::singleShot(0, &page, [&] {
            if (auto *dialog = page.findChild<ErrorMessage *>()) {
                shown = pageOf(*dialog);
                dialog->close();
            }
        });
        QTest::mouseClick(buttons.at(index)->findChild<QPushButton *>(), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(!shown.isEmpty(), cPatienceMs);
        QTEST(shown, "page");
        QTRY_VERIFY_WITH_TIMEOUT(page.findChild<ErrorMessage *>() == nullptr, cPatienceMs);
    }

    void answerOfTheDialogIsShown()
    {
        DialogsPage page;
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page, cPatienceMs));
        QTimer::singleShot(0, &page, [&] {
            auto *dialog = page.findChild<ErrorMessage *>();
            emit dialog->findChild<PushButtonEx *>(QStringLiteral("acceptBtn"))->clicked();
        });
        QTest::mouseClick(openButtons(page).at(2)->findChild<QPushButton *>(), Qt::LeftButton);
        QStringList texts;
        for (const QLabel *label : page.findChildren<QLabel *>()) {
            texts.append(label->text());
        }
        QCOMPARE(texts.count(QStringLiteral("accepted")), 1);
    }

private:
    static QList<PushButtonEx *> openButtons(const DialogsPage &page)
    {
        return page.findChildren<PushButtonEx *>(QString(), Qt::FindDirectChildrenOnly);
    }

    static QString pageOf(const ErrorMessage &dialog)
    {
        return dialog.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))->currentWidget()->objectName();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_GalleryPages, Widgets)
#include "tst_GalleryPages.moc"
