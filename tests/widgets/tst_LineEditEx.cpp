#include "fakes/ClickTarget.h"
#include "fakes/QtMessages.h"
#include "widgets/IconButtonEx.h"
#include "widgets/LineEditTest.h"
#include "widgets/OwnSkin.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QIntValidator>
#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using EditAct = std::function<void(CLineEditEx &)>;
Q_DECLARE_METATYPE(EditAct)

class tst_LineEditEx : public LineEditTest
{
    Q_OBJECT

private slots:
    void formHasItsNamesAndMargins()
    {
        QCOMPARE(m_pEdit->layout()->objectName(), QStringLiteral("horizontalLayout_2"));
        QCOMPARE(m_pEdit->layout()->contentsMargins(), QMargins());
        const auto *pBox = m_pEdit->findChild<QWidget *>(QStringLiteral("lineEditWidget"));
        QVERIFY(pBox != nullptr);
        QCOMPARE(pBox->layout()->objectName(), QStringLiteral("horizontalLayout"));
        QCOMPARE(pBox->layout()->contentsMargins(), QMargins());
        QCOMPARE(inner()->objectName(), QStringLiteral("lineEdit"));
        QCOMPARE(inner()->parentWidget(), pBox);
        QVERIFY(!inner()->hasFrame());
        QCOMPARE(inner()->contextMenuPolicy(), Qt::DefaultContextMenu);
        QCOMPARE(inner()->font().family(), QStringLiteral("微软雅黑"));
        QCOMPARE(inner()->font().pixelSize(), 12);
        QCOMPARE(inner()->textMargins(), QMargins(0, 1, 2, 1));
        QVERIFY(inner()->hasMouseTracking());
    }

    void sheetTakesTheSkinsColours()
    {
        QCOMPARE(inner()->styleSheet(), QStringLiteral("QLineEdit#lineEdit{border-radius:2px;background-color:#ffffff;"
                                                       "border:1px solid #e0e0e0;color:#333333;}"
                                                       "QLineEdit#lineEdit::hover{border: 1px solid #33af56;}"));
    }

    void menuSheetIsKeptUnfilledAndNothingElseWarns()
    {
        const QtMessages messages;
        m_pEdit = std::make_unique<CLineEditEx>();
        show();
        QEvent enter(QEvent::HoverEnter);
        QCoreApplication::sendEvent(inner(), &enter);
        QCOMPARE(m_pEdit->styleSheet(),
                 QStringLiteral("QMenu{max-width:300px;border-radius:2px;background-color:#ffffff;"
                                "border: 1px solid #e0e0e0;padding-top:5px;font-size:14px;color:#333333;}"
                                "QMenu::item{color:#333333;height:30px; padding-left:%2px;padding-right:20px;}"
                                "QMenu::item:selected{background: #e0e0e0;color:#333333;}"
                                "QMenu::item:disabled{color:#c8c8c8;}"));
        QCOMPARE(messages.warnings, QStringList());
    }

    void operationsForwardToTheInnerEdit()
    {
        m_pEdit->setText(QStringLiteral("some text"));
        QCOMPARE(inner()->text(), QStringLiteral("some text"));
        QCOMPARE(m_pEdit->text(), QStringLiteral("some text"));
        m_pEdit->setCursorPosition(4);
        QCOMPARE(inner()->cursorPosition(), 4);
        QCOMPARE(m_pEdit->cursorPosition(), 4);
        m_pEdit->selectAll();
        QCOMPARE(inner()->selectedText(), QStringLiteral("some text"));
        m_pEdit->clear();
        QVERIFY(inner()->text().isEmpty());
        m_pEdit->setReadOnly(true);
        QVERIFY(inner()->isReadOnly());
        m_pEdit->setFrame(true);
        QVERIFY(inner()->hasFrame());
        m_pEdit->setEnabled(false);
        QVERIFY(!inner()->isEnabled());
        m_pEdit->setEchoMode(QLineEdit::NoEcho);
        QCOMPARE(inner()->echoMode(), QLineEdit::NoEcho);
        const QIntValidator digits;
        m_pEdit->setValidator(&digits);
        QCOMPARE(inner()->validator(), &digits);
        m_pEdit->setPlaceholderText(QStringLiteral("hint"));
        QCOMPARE(inner()->placeholderText(), QStringLiteral("hint"));
        m_pEdit->setContextMenuPolicy(Qt::NoContextMenu);
        QCOMPARE(inner()->contextMenuPolicy(), Qt::NoContextMenu);
        m_pEdit->setEnabled(true);
        show();
        QVERIFY(inner()->hasFocus());
        m_pEdit->clearFocus();
        QVERIFY(!inner()->hasFocus());
    }

    void pasteWithoutTextIsSwallowed_data()
    {
        QTest::addColumn<bool>("picture");
        QTest::newRow("empty clipboard") << false;
        QTest::newRow("a picture") << true;
    }

    void pasteWithoutTextIsSwallowed()
    {
        QFETCH(bool, picture);
        show();
        m_pEdit->setText(QStringLiteral("text"));
        QGuiApplication::clipboard()->clear();
        if (picture) {
            QGuiApplication::clipboard()->setPixmap(QPixmap(4, 4));
        }
        const QSignalSpy changed(m_pEdit.get(), &CLineEditEx::textChanged);
        paste();
        QCOMPARE(m_pEdit->text(), QStringLiteral("text"));
        QCOMPARE(changed.count(), 0);
    }

    void pasteWithoutTextKeepsTheSelection()
    {
        show();
        m_pEdit->setText(QStringLiteral("text"));
        m_pEdit->selectAll();
        QGuiApplication::clipboard()->clear();
        paste();
        QCOMPARE(inner()->selectedText(), QStringLiteral("text"));
    }

    void signalsTellChangesAndCursor()
    {
        m_pEdit->setText(QStringLiteral("ab"));
        const QSignalSpy changed(m_pEdit.get(), &CLineEditEx::textChanged);
        const QSignalSpy moved(m_pEdit.get(), &CLineEditEx::cursorPositionChanged);
        m_pEdit->setText(QStringLiteral("abc"));
        QCOMPARE(changed, (QList<QVariantList>{{QStringLiteral("abc")}}));
        QCOMPARE(moved, (QList<QVariantList>{{2, 3}}));
        m_pEdit->setCursorPosition(1);
        QCOMPARE(moved.at(1), (QVariantList{3, 1}));
    }

    void clickIsToldOnRelease()
    {
        show();
        const QSignalSpy clicked(m_pEdit.get(), &CLineEditEx::signal_click);
        QTest::mousePress(inner(), Qt::LeftButton);
        QCOMPARE(clicked.count(), 0);
        QTest::mouseRelease(inner(), Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
    }

    void focusTellsATextThatIsThere()
    {
        show();
        m_pEdit->clearFocus();
        const QSignalSpy changed(m_pEdit.get(), &CLineEditEx::textChanged);
        m_pEdit->setFocus();
        QCOMPARE(changed.count(), 0);
        m_pEdit->setText(QStringLiteral("abc"));
        m_pEdit->clearFocus();
        m_pEdit->setFocus();
        QCOMPARE(changed, (QList<QVariantList>{{QStringLiteral("abc")}, {QStringLiteral("abc")}}));
    }

    void losingTheFocusIsTold()
    {
        show();
        const QSignalSpy lost(m_pEdit.get(), &CLineEditEx::signal_foucsout);
        m_pEdit->clearFocus();
        QCOMPARE(lost.count(), 1);
    }

    void hoveringRestyles()
    {
        const QString strStyle = inner()->styleSheet();
        inner()->setStyleSheet(QString());
        QEvent enter(QEvent::HoverEnter);
        QCoreApplication::sendEvent(inner(), &enter);
        QCOMPARE(inner()->styleSheet(), strStyle);
    }

    void loginFieldIsAPassword()
    {
        m_pEdit->setlogin();
        QCOMPARE(inner()->echoMode(), QLineEdit::Password);
        QCOMPARE(inner()->placeholderText(), QStringLiteral("inputnarvepass"));
    }

    void searchFieldTakesTextLikeAnyOther()
    {
        m_pEdit->setType(CLineEditEx::SearchField);
        m_pEdit->setSearchBtn(false);
        m_pEdit->setSearchBtn(true);
        show();
        QTest::keyClicks(inner(), QStringLiteral("abc"));
        QCOMPARE(m_pEdit->text(), QStringLiteral("abc"));
    }

    void searchFieldTellsItsTextToTheSearchSlot_data()
    {
        QTest::addColumn<EditAct>("act");
        QTest::addColumn<bool>("connected");
        QTest::newRow("new field") << EditAct([](CLineEditEx &) {}) << false;
        QTest::newRow("plain field") << EditAct([](CLineEditEx &edit) { edit.setType(CLineEditEx::PlainField); })
                                     << false;
        QTest::newRow("type 2") << EditAct([](CLineEditEx &edit) { edit.setType(CLineEditEx::LineEditType(2)); })
                                << false;
        QTest::newRow("search field") << EditAct([](CLineEditEx &edit) { edit.setType(CLineEditEx::SearchField); })
                                      << true;
        QTest::newRow("search button") << EditAct([](CLineEditEx &edit) { edit.setSearchBtn(true); }) << true;
        QTest::newRow("no search button") << EditAct([](CLineEditEx &edit) { edit.setSearchBtn(false); }) << true;
    }

    void searchFieldTellsItsTextToTheSearchSlot()
    {
        QFETCH(EditAct, act);
        QFETCH(bool, connected);
        act(*m_pEdit);
        QCOMPARE(QObject::disconnect(inner(), SIGNAL(textChanged(QString)), m_pEdit.get(),
                                     SLOT(slot_changeSearchBtnImg(QString))),
                 connected);
    }

    void deleteButtonStandsAtTheRightEnd()
    {
        m_pEdit->addDeleteBtn();
        show();
        auto *pButton = inner()->findChild<CIconButtonEx *>();
        const auto *pLine = inner()->findChild<QLabel *>();
        QVERIFY(pButton != nullptr && pLine != nullptr);
        QCOMPARE(pButton->size(), QSize(22, 22));
        QCOMPARE(pButton->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(pButton->findChild<QPushButton *>()->text(), QString(QChar(0xE62C)));
        QCOMPARE(pButton->findChild<QPushButton *>()->font().pixelSize(), 8);
        QCOMPARE(pLine->size(), QSize(1, 18));
        QCOMPARE(pLine->styleSheet(), QStringLiteral("QLabel{background-color:#e0e0e0;}"));
        QCOMPARE(inner()->layout()->contentsMargins(), QMargins(0, 0, 5, 0));
        QCOMPARE(inner()->textMargins(), QMargins(0, 1, 23, 1));
        QCOMPARE(inner()->size(), QSize(236, 30));
        QCOMPARE(pButton->geometry(), QRect(236 - 5 - 22, 4, 22, 22));
        QCOMPARE(pLine->geometry(), QRect(236 - 5 - 22 - 1, 6, 1, 18));
    }

    void deleteButtonLooksLikeTypeZero()
    {
        m_pEdit->addDeleteBtn();
        const auto *pButton = inner()->findChild<CIconButtonEx *>();
        const auto sheets = [](const CIconButtonEx &icon) {
            return QStringList{icon.findChild<QPushButton *>()->styleSheet(),
                               icon.findChild<QWidget *>(QStringLiteral("widgetBG"))->styleSheet()};
        };
        CIconButtonEx zero;
        zero.setIconFont(QString(QChar(0xE62C)), 8, 0);
        CIconButtonEx three;
        three.setIconFont(QString(QChar(0xE62C)), 8, 3);
        QCOMPARE(sheets(*pButton), sheets(zero));
        QVERIFY(sheets(*pButton) != sheets(three));
    }

    void secondDeleteButtonIsNotMade()
    {
        m_pEdit->addDeleteBtn();
        const QLayout *pLayout = inner()->layout();
        m_pEdit->addDeleteBtn();
        QCOMPARE(inner()->findChildren<CIconButtonEx *>().size(), 1);
        QCOMPARE(inner()->findChildren<QLabel *>().size(), 1);
        QCOMPARE(inner()->layout(), pLayout);
    }

    void deleteButtonSendsItsSignal()
    {
        m_pEdit->addDeleteBtn();
        m_pEdit->setText(QStringLiteral("abc"));
        show();
        const QSignalSpy deleted(m_pEdit.get(), &CLineEditEx::signal_delete);
        QTest::mouseClick(clickTarget(inner()->findChild<CIconButtonEx *>()), Qt::LeftButton);
        QCOMPARE(deleted.count(), 1);
        QCOMPARE(m_pEdit->text(), QStringLiteral("abc"));
    }

    void deleteButtonShowsAndHides()
    {
        m_pEdit->addDeleteBtn();
        show();
        const auto *pButton = inner()->findChild<CIconButtonEx *>();
        const auto *pLine = inner()->findChild<QLabel *>();
        m_pEdit->showDeleteBtn(false);
        QVERIFY(!pButton->isVisible() && !pLine->isVisible());
        m_pEdit->showDeleteBtn(true);
        QVERIFY(pButton->isVisible() && pLine->isVisible());
    }

    void showDeleteButtonWithoutOneDoesNothing()
    {
        m_pEdit->showDeleteBtn(true);
        QVERIFY(inner()->findChild<CIconButtonEx *>() == nullptr);
        QCOMPARE(inner()->textMargins(), QMargins(0, 1, 2, 1));
    }

    void eachColourIsItsOwnMemberOfTheSkin()
    {
        OwnSkin skin;
        skin->m_strEditBackgroundColor = QStringLiteral("#000050");
        skin->m_strEditBorderColor = QStringLiteral("#000051");
        skin->m_strEditHoverBorderColor = QStringLiteral("#000052");
        skin->m_strLineColor = QStringLiteral("#000053");
        m_pEdit = std::make_unique<CLineEditEx>();
        m_pEdit->addDeleteBtn();
        QCOMPARE(inner()->styleSheet(), QStringLiteral("QLineEdit#lineEdit{border-radius:2px;background-color:#000050;"
                                                       "border:1px solid #000051;color:#333333;}"
                                                       "QLineEdit#lineEdit::hover{border: 1px solid #000052;}"));
        QCOMPARE(inner()->findChild<QLabel *>()->styleSheet(), QStringLiteral("QLabel{background-color:#000053;}"));
        m_pEdit.reset();
    }

    void newSkinShowsAtTheNextHover()
    {
        OwnSkin skin;
        m_pEdit = std::make_unique<CLineEditEx>();
        const QString strOld = inner()->styleSheet();
        skin->m_strEditBackgroundColor = QStringLiteral("#123456");
        QCOMPARE(inner()->styleSheet(), strOld);
        QEvent enter(QEvent::HoverEnter);
        QCoreApplication::sendEvent(inner(), &enter);
        QVERIFY(inner()->styleSheet().contains(QLatin1String("background-color:#123456")));
        m_pEdit.reset();
    }

    void signalsStandInTheirOrder()
    {
        QStringList names;
        const QMetaObject &meta = CLineEditEx::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            names << QString::fromLatin1(meta.method(i).methodSignature());
        }
        QCOMPARE(names, (QStringList{"textChanged(QString)", "cursorPositionChanged(int,int)", "signal_click()",
                                     "signal_foucsout()", "signal_delete()", "slot_changeSearchBtnImg(QString)",
                                     "slot_cursorchanged(int,int)"}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LineEditEx, Widgets)

#include "tst_LineEditEx.moc"
