// The message dialog's form: its parts, their places, words and sheets.

#include "common/Palette.h"
#include "widgets/BaseFormEx.h"
#include "widgets/ElidedLabel.h"
#include "widgets/HotLabel.h"
#include "widgets/IconButtonEx.h"
#include "widgets/LineEditEx.h"
#include "widgets/OwnSkin.h"
#include "widgets/ShownDialog.h"
#include "widgets/TextEditEx.h"

#include <QLayout>
#include <QMetaMethod>

Q_DECLARE_METATYPE(QMargins)

using namespace ShownDialog;

namespace {

/// Whether `pWidget` is one of the kit's composed widgets or a part of one; their layouts share names with the form's.
bool isWithinAKitWidget(const QWidget *pWidget)
{
    for (; pWidget != nullptr; pWidget = pWidget->parentWidget()) {
        if (qobject_cast<const PushButtonEx *>(pWidget) != nullptr ||
            qobject_cast<const CLineEditEx *>(pWidget) != nullptr ||
            qobject_cast<const CIconButtonEx *>(pWidget) != nullptr) {
            return true;
        }
    }
    return false;
}

} // namespace

class tst_ErrorMessageForm : public QObject
{
    Q_OBJECT

private slots:
    void pagesStandInTheirOrder()
    {
        const ErrorMessage dialog(QString(), QString(), nullptr);
        const auto *pStack = part<QStackedWidget>(dialog, "stackedWidget");
        QStringList names;
        for (int i = 0; i < pStack->count(); ++i) {
            names << pStack->widget(i)->objectName();
        }
        QCOMPARE(names, (QStringList{"MsgShow", "TextEdit", "LineEdit", "AddLabel", "page_MsgAndScreen"}));
        QCOMPARE(pStack->currentIndex(), 0);
        QVERIFY(part<QWidget>(dialog, "AddLabel")->layout() == nullptr);
    }

    void layoutsHaveTheirMargins_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QMargins>("margins");
        QTest::addColumn<int>("spacing");
        const auto row = [](const char *name, const QMargins &margins, int iSpacing) {
            QTest::newRow(name) << QByteArray(name) << margins << iSpacing;
        };
        row("verticalLayout", {}, 0);
        row("backWidgetLayout", {3, 3, 3, 3}, 0);
        row("horizontalLayout", {10, 0, 5, 0}, 0);
        row("horizontalLayout_3", {20, 5, 20, 0}, 0);
        row("verticalLayout_2", {20, 0, 20, 10}, 0);
        row("horizontalLayout_5", {15, 10, 15, 25}, 2);
        row("verticalLayout_3", {5, 10, 5, 10}, 0);
        row("verticalLayout_8", {}, 0);
        row("horizontalLayout_7", {}, 0);
        row("horizontalLayout_2", {0, 0, 10, 0}, 10);
    }

    void layoutsHaveTheirMargins()
    {
        QFETCH(QByteArray, name);
        const ErrorMessage dialog(QString(), QString(), nullptr);
        const QLayout *pFound = nullptr;
        for (const QLayout *pLayout : dialog.findChildren<QLayout *>(QLatin1String(name))) {
            if (!isWithinAKitWidget(pLayout->parentWidget())) {
                pFound = pLayout;
            }
        }
        QVERIFY(pFound != nullptr);
        QTEST(pFound->contentsMargins(), "margins");
        QTEST(pFound->spacing(), "spacing");
    }

    void partsHaveTheirSizes_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QSize>("least");
        QTest::addColumn<QSize>("most");
        constexpr int cFree = 16777215;
        const auto row = [](const char *name, const QSize &least, const QSize &most) {
            QTest::newRow(name) << QByteArray(name) << least << most;
        };
        row("backWidget", {288, 158}, {288, 158});
        row("titleWidget", {0, 35}, {cFree, 35});
        row("titlelabel", {60, 0}, {cFree, cFree});
        row("btnClose", {24, 24}, {24, 24});
        row("AutoReplytextEdit", {0, 45}, {cFree, 45});
        row("label_group", {0, 30}, {cFree, 30});
        row("lineEdit", {0, 30}, {cFree, 30});
        row("AddLineEdit", {236, 30}, {236, 30});
        row("bottomWidget", {0, 50}, {cFree, 50});
        row("acceptBtn", {70, 30}, {70, 30});
        row("closeBtn", {70, 30}, {70, 30});
    }

    void partsHaveTheirSizes()
    {
        QFETCH(QByteArray, name);
        const ErrorMessage dialog(QString(), QString(), nullptr);
        auto *pPart = dialog.findChild<QWidget *>(QLatin1String(name));
        QVERIFY(pPart != nullptr);
        // The inner edits have the same name as the page's field.
        if (name == "lineEdit") {
            pPart = dialog.findChild<QWidget *>(QStringLiteral("LineEdit"))
                        ->findChild<CLineEditEx *>(QStringLiteral("lineEdit"));
        }
        QTEST(pPart->minimumSize(), "least");
        QTEST(pPart->maximumSize(), "most");
    }

    void formHasItsTexts()
    {
        const ErrorMessage dialog(QString(), QStringLiteral("close word"), nullptr);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("提示"));
        QCOMPARE(text(dialog, "autoReplyLabel"), QStringLiteral("回复内容(100字以内)："));
        QCOMPARE(text(dialog, "label_group"), QStringLiteral("组名："));
        const auto *pMessage = part<QLabel>(dialog, "msgLabel");
        QCOMPARE(pMessage->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(pMessage->frameShape(), QFrame::NoFrame);
        QVERIFY(pMessage->wordWrap());
    }

    void titleHasItsFont()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        auto *pTitle = part<QLabel>(dialog, "titlelabel");
        QCOMPARE(pTitle->styleSheet(), QStringLiteral("font: 12px \"微软雅黑\";"));
        pTitle->ensurePolished();
        QCOMPARE(pTitle->font().family(), QStringLiteral("微软雅黑"));
        QCOMPARE(pTitle->font().pixelSize(), 12);
        // Without the sheets the form's own font shows, with its weight although that is the usual one.
        pTitle->setStyleSheet(QString());
        dialog.setStyleSheet(QString());
        QCOMPARE(pTitle->font().family(), QStringLiteral("微软雅黑"));
        QCOMPARE(pTitle->font().weight(), 50);
        QVERIFY(pTitle->font().resolve() & QFont::WeightResolved);
    }

    void formIsMadeOfTheKitsWidgets()
    {
        const ErrorMessage dialog(QString(), QString(), nullptr);
        QVERIFY(part<CBaseFormEx>(dialog, "backWidget") != nullptr);
        QVERIFY(part<CTextEditEx>(dialog, "AutoReplytextEdit") != nullptr);
        QVERIFY(part<CLineEditEx>(dialog, "lineEdit") != nullptr);
        QVERIFY(part<CLineEditEx>(dialog, "AddLineEdit") != nullptr);
        QVERIFY(part<HotLabel>(dialog, "label_11") != nullptr);
        QVERIFY(button(dialog, "acceptBtn") != nullptr);
        QVERIFY(button(dialog, "closeBtn") != nullptr);
        const auto *pCross = part<CIconButtonEx>(dialog, "btnClose")->findChild<QPushButton *>();
        QCOMPARE(pCross->text(), QString(QChar(0xE62C)));
        QCOMPARE(pCross->font().pixelSize(), 8);
        QVERIFY(!pCross->isFlat());
        QVERIFY(part<QWidget>(dialog, "lblerror")->y() >= part<QWidget>(dialog, "AddLineEdit")->geometry().bottom());
    }

    void sheetIsTheClients()
    {
        const ErrorMessage dialog(QString(), QString(), nullptr);
        QCOMPARE(dialog.styleSheet(),
                 QStringLiteral("QLabel{font-family:'微软雅黑';}QLabel{font-size:12px;color:#585858;}"
                                "QLabel#titlelabel{font-size:14px;color:#000000;}"
                                "QLabel#msgLabel{font-size:12px;color:#585858;}"
                                "QLabel#autoReplyLabel{font-size:12px;color:#585858;}"
                                "QLabel#label_11{font-size:12px;color:#2AB0FF;}"
                                "QLabel#label_11:hover{font-size:12px;color:#0066FF;text-decoration:underline;}"
                                "a:link{font-size:12px;color:#2AB0FF;}"
                                "a:hover{font-size:12px;color:#2AB0FF;text - decoration: underline;}"));
    }

    void buttonsTakeNoFocusAndAreNotAutoDefault()
    {
        const ErrorMessage dialog(QString(), QString(), nullptr);
        for (const char *name : {"acceptBtn", "closeBtn", "btnClose"}) {
            const auto *pButton = part<QWidget>(dialog, name);
            QCOMPARE(pButton->focusPolicy(), Qt::NoFocus);
            QVERIFY(!pButton->findChild<QPushButton *>()->autoDefault());
        }
    }

    void titleIs100PixelsHigh()
    {
        OwnSkin skin;
        skin->m_strPanelColor = QStringLiteral("#204060");
        const ErrorMessage dialog(QString(), QString(), nullptr);
        auto *pBack = part<CBaseFormEx>(dialog, "backWidget");
        pBack->resize(288, 158);
        QImage image(pBack->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        pBack->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        QCOMPARE(image.pixelColor(100, 102), QColor(224, 224, 224));
        QCOMPARE(image.pixelColor(100, 101), QColor(0x20, 0x40, 0x60));
        QVERIFY(image.pixelColor(100, 106).red() > 200);
    }

    void buttonsHaveTheirLooks()
    {
        OwnSkin skin;
        skin->m_strIconColor = QStringLiteral("#010203");
        skin->m_strFifthIconColor = QStringLiteral("#0a141e");
        skin->m_strButtonBackgroundColor = QStringLiteral("#000034");
        skin->m_strSecondButtonDisabledBackgroundColor = QStringLiteral("#000042");
        const ErrorMessage dialog(QString(), QString(), nullptr);
        // The accept button is the strong one and disabled, the close button the default one.
        QVERIFY(inner(dialog, "acceptBtn")->styleSheet().contains(QLatin1String("background-color:#000042")));
        QVERIFY(inner(dialog, "closeBtn")->styleSheet().contains(QLatin1String("background-color:#000034")));
        // The cross is white on red under the mouse.
        const auto *pCross = part<CIconButtonEx>(dialog, "btnClose");
        QCOMPARE(pCross->findChild<QPushButton *>()->styleSheet(),
                 QStringLiteral("QPushButton{color: #010203;background:transparent;}"
                                "QPushButton::hover{color: ") +
                     strCOLOR_WHITE + QStringLiteral(";background:transparent;}"));
        QVERIFY(pCross->findChild<QWidget *>(QStringLiteral("widgetBG"))
                    ->styleSheet()
                    .endsWith(QLatin1String("QWidget::hover{background-color: #0a141e;}")));
    }

    void longTitleEndsInAnEllipsisBeforeTheCross()
    {
        const QString strLong(60, QChar(0x4E2D));
        ErrorMessage dialog(QString(), QString(), nullptr);
        bool bSeen = false;
        whenShown(dialog, [&] {
            const auto *pTitle = part<ElidedLabel>(dialog, "titlelabel");
            QVERIFY(pTitle->shownText().endsWith(QChar(0x2026)));
            QVERIFY(pTitle->geometry().right() < part<QWidget>(dialog, "btnClose")->x());
            QCOMPARE(part<QWidget>(dialog, "btnClose")->geometry().right(), 276);
            bSeen = true;
        });
        dialog.getMsgShow(strLong, strLong);
        QVERIFY(bSeen);
        QCOMPARE(text(dialog, "titlelabel"), strLong);
    }

    void slotsStandInTheirOrder()
    {
        QStringList names;
        const QMetaObject &meta = ErrorMessage::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            names << QString::fromLatin1(meta.method(i).methodSignature());
        }
        QCOMPARE(names, (QStringList{"signal_OpenSysSetUi()", "slot_clickedAccptBtn()", "slot_clickedCloseBtn()",
                                     "slot_textChanged(QString)", "slot_textChanged()", "slot_linkActivated(QString)",
                                     "slot_paste()"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ErrorMessageForm, Widgets)

#include "tst_ErrorMessageForm.moc"
