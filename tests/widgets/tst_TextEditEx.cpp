#include "common/Palette.h"
#include "fakes/Patience.h"
#include "widgets/MenuEx.h"
#include "widgets/OwnSkin.h"
#include "widgets/TextEditEx.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

const QString cSheet = QStringLiteral("QTextEdit{border-radius:2px;background-color:#ffffff;"
                                      "border:1px solid #e0e0e0;color:#333333;}"
                                      "QTextEdit::hover{border: 1px solid #33af56;}");

/// The field with its handlers in reach, as a class that derives from it has them.
class DerivedEdit : public CTextEditEx
{
public:
    using CTextEditEx::contextMenuEvent;
    using CTextEditEx::enterEvent;
    using CTextEditEx::leaveEvent;
};

void send(QWidget &widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class tst_TextEditEx : public QObject
{
    Q_OBJECT

private:
    void show()
    {
        m_pEdit->resize(240, 120);
        m_pEdit->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pEdit.get(), cPatienceMs));
        m_pEdit->setFocus();
    }
    // Opens the context menu, runs `act` on it and closes it.
    void withMenu(const std::function<void(CMenuEx &)> &act)
    {
        bool bSeen = false;
        QTimer::singleShot(0, m_pEdit.get(), [&act, &bSeen] {
            auto *pMenu = qobject_cast<CMenuEx *>(QApplication::activePopupWidget());
            QVERIFY(pMenu != nullptr);
            bSeen = true;
            act(*pMenu);
            if (QApplication::activePopupWidget() != nullptr) {
                QApplication::activePopupWidget()->close();
            }
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(10, 10), m_pEdit->mapToGlobal(QPoint(10, 10)));
        QCoreApplication::sendEvent(m_pEdit->viewport(), &event);
        QVERIFY(bSeen);
    }
    void choose(int iEntry)
    {
        withMenu([iEntry](CMenuEx &menu) {
            const QRect entry = menu.actionGeometry(menu.actions().at(iEntry));
            QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, entry.center());
        });
    }

    std::unique_ptr<DerivedEdit> m_pEdit;

private slots:
    void init()
    {
        QGuiApplication::clipboard()->clear();
        m_pEdit = std::make_unique<DerivedEdit>();
    }
    void cleanup() { m_pEdit.reset(); }

    void sheetTakesTheSkinsColours() { QCOMPARE(m_pEdit->styleSheet(), cSheet); }

    void eachColourIsItsOwnMemberOfTheSkin()
    {
        OwnSkin skin;
        skin->m_strEditBackgroundColor = QStringLiteral("#000050");
        skin->m_strEditBorderColor = QStringLiteral("#000051");
        skin->m_strEditHoverBorderColor = QStringLiteral("#000052");
        send(*m_pEdit, QEvent::Enter);
        QCOMPARE(m_pEdit->styleSheet(),
                 QStringLiteral("QTextEdit{border-radius:2px;background-color:#000050;border:1px solid #000051;"
                                "color:#333333;}QTextEdit::hover{border: 1px solid #000052;}"));
    }

    void fontIsTwelvePixels() { QCOMPARE(m_pEdit->font().pixelSize(), 12); }

    void filterSwallowsEnterAndLeave_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("enter") << int(QEvent::Enter);
        QTest::newRow("leave") << int(QEvent::Leave);
    }

    void filterSwallowsEnterAndLeave()
    {
        QFETCH(int, type);
        m_pEdit->setStyleSheet(QString());
        send(*m_pEdit, QEvent::Type(type));
        QCOMPARE(m_pEdit->styleSheet(), cSheet);
        send(*m_pEdit, QEvent::Type(type));
        QCOMPARE(m_pEdit->styleSheet(), cSheet);
    }

    void handlersCalledDirectlyMakeTheSheetGrow()
    {
        QEvent crossing(QEvent::Enter);
        m_pEdit->enterEvent(&crossing);
        QCOMPARE(m_pEdit->styleSheet(), cSheet + strVerticalScrollBarHoverStyle);
        m_pEdit->leaveEvent(&crossing);
        QCOMPARE(m_pEdit->styleSheet(), cSheet + strVerticalScrollBarHoverStyle + strVerticalScrollBarNormalStyle);
        m_pEdit->enterEvent(&crossing);
        QCOMPARE(m_pEdit->styleSheet(), cSheet + strVerticalScrollBarHoverStyle + strVerticalScrollBarNormalStyle +
                                            strVerticalScrollBarHoverStyle);
    }

    void filterRewritesAGrownSheet()
    {
        QEvent crossing(QEvent::Enter);
        m_pEdit->enterEvent(&crossing);
        send(*m_pEdit, QEvent::Leave);
        QCOMPARE(m_pEdit->styleSheet(), cSheet);
    }

    void ownStyleStopsAllRestyling()
    {
        const QString strOwn = QStringLiteral("QTextEdit{color:#123456;}");
        m_pEdit->setBSelfStyle(true);
        m_pEdit->setStyleSheet(strOwn);
        QEvent crossing(QEvent::Enter);
        m_pEdit->enterEvent(&crossing);
        m_pEdit->leaveEvent(&crossing);
        send(*m_pEdit, QEvent::Enter);
        send(*m_pEdit, QEvent::Leave);
        QCOMPARE(m_pEdit->styleSheet(), strOwn);
        m_pEdit->setBSelfStyle(false);
        send(*m_pEdit, QEvent::Enter);
        QCOMPARE(m_pEdit->styleSheet(), cSheet);
    }

    void menuHasItsEntries()
    {
        show();
        withMenu([this](const CMenuEx &menu) {
            QCOMPARE(menu.pos(), m_pEdit->mapToGlobal(QPoint(10, 10)));
            QStringList texts;
            QList<QKeySequence> shortcuts;
            for (const QAction *pAction : menu.actions()) {
                texts << pAction->text();
                shortcuts << pAction->shortcut();
            }
            QCOMPARE(texts, (QStringList{"cut", "duplicate", "paste", "clear", "allSelect"}));
            QCOMPARE(shortcuts, (QList<QKeySequence>{QKeySequence::Cut, QKeySequence::Copy, QKeySequence(),
                                                     QKeySequence(), QKeySequence::SelectAll}));
            QCOMPARE(menu.contentsMargins(), QMargins(2, 2, 2, 2));
            QCOMPARE(menu.styleSheet(), CMenuEx().styleSheet());
        });
    }

    void entriesAreEnabledByTextSelectionAndClipboard_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("enabled");
        QTest::newRow("nothing") << "" << false << ""
                                 << "-----";
        QTest::newRow("text") << "abc" << false << ""
                              << "---xx";
        QTest::newRow("selection") << "abc" << true << ""
                                   << "xx-xx";
        QTest::newRow("clipboard text") << "" << false << "text/plain"
                                        << "--x--";
        QTest::newRow("clipboard HTML") << "" << false << "text/html"
                                        << "--x--";
        QTest::newRow("clipboard of another kind") << "" << false << "application/x-other"
                                                   << "-----";
    }

    void entriesAreEnabledByTextSelectionAndClipboard()
    {
        QFETCH(QString, text);
        QFETCH(bool, selected);
        QFETCH(QString, format);
        show();
        m_pEdit->setPlainText(text);
        if (selected) {
            m_pEdit->selectAll();
        }
        if (!format.isEmpty()) {
            auto data = std::make_unique<QMimeData>();
            data->setData(format, "content");
            QGuiApplication::clipboard()->setMimeData(data.release());
        }
        QString strEnabled;
        withMenu([&strEnabled](const CMenuEx &menu) {
            for (const QAction *pAction : menu.actions()) {
                strEnabled += QLatin1Char(pAction->isEnabled() ? 'x' : '-');
            }
        });
        QTEST(strEnabled, "enabled");
    }

    void pictureAloneIsNoSelection()
    {
        show();
        m_pEdit->textCursor().insertImage(QImage(4, 4, QImage::Format_RGB32));
        m_pEdit->selectAll();
        withMenu([](const CMenuEx &menu) {
            QVERIFY(!menu.actions().at(0)->isEnabled());
            QVERIFY(!menu.actions().at(1)->isEnabled());
            QVERIFY(menu.actions().at(4)->isEnabled());
        });
    }

    void pictureOnTheClipboardCannotBePasted()
    {
        show();
        QGuiApplication::clipboard()->setImage(QImage(4, 4, QImage::Format_RGB32));
        withMenu([](const CMenuEx &menu) { QVERIFY(!menu.actions().at(2)->isEnabled()); });
    }

    void entriesDoTheirWork()
    {
        show();
        m_pEdit->setPlainText(QStringLiteral("abc"));
        choose(4);
        QCOMPARE(m_pEdit->textCursor().selectedText(), QStringLiteral("abc"));
        choose(1);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("abc"));
        QCOMPARE(m_pEdit->toPlainText(), QStringLiteral("abc"));
        QGuiApplication::clipboard()->clear();
        choose(0);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("abc"));
        QVERIFY(m_pEdit->toPlainText().isEmpty());
        m_pEdit->setPlainText(QStringLiteral("more"));
        choose(3);
        QVERIFY(m_pEdit->toPlainText().isEmpty());
    }

    void pasteEntryPastes()
    {
        show();
        QGuiApplication::clipboard()->setText(QStringLiteral("abc"));
        const QSignalSpy told(m_pEdit.get(), &CTextEditEx::signal_paste);
        choose(2);
        QCOMPARE(m_pEdit->toPlainText(), QStringLiteral("abc"));
        QCOMPARE(told.count(), 0);
    }

    void pasteEntrySendsTheSignalInstead()
    {
        show();
        QGuiApplication::clipboard()->setText(QStringLiteral("abc"));
        const QSignalSpy told(m_pEdit.get(), &CTextEditEx::signal_paste);
        m_pEdit->setEmitPaste(true);
        choose(2);
        QVERIFY(m_pEdit->toPlainText().isEmpty());
        QCOMPARE(told.count(), 1);
    }

    void fieldMayGoAwayWithItsMenuOpen()
    {
        show();
        QTimer::singleShot(0, this, [this] {
            QVERIFY(QApplication::activePopupWidget() != nullptr);
            m_pEdit.reset();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(), m_pEdit->mapToGlobal(QPoint()));
        m_pEdit->contextMenuEvent(&event);
        QVERIFY(m_pEdit == nullptr);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void menuIsGoneAfterwards()
    {
        show();
        withMenu([](CMenuEx &) {});
        QVERIFY(m_pEdit->findChild<CMenuEx *>() == nullptr);
    }

    void longPasteIsInsertedToItsLimit_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("inserted");
        constexpr int cSize = 10 * 1024 * 1024;
        const QByteArray big(cSize, 'x');
        const QString kept(20, QLatin1Char('x'));
        QTest::newRow("ten megabytes of text") << "text/plain" << big << kept;
        QTest::newRow("ten megabytes of HTML") << "text/html"
                                               << "<b>" + big + "</b>" << kept;
        QTest::newRow("one unit more than the limit") << "text/plain" << QByteArray(21, 'x') << kept;
        QTest::newRow("ten megabytes of lines")
            << "text/plain" << QByteArray("x\n").repeated(cSize / 2) << QStringLiteral("x\n").repeated(10);
    }

    void longPasteIsInsertedToItsLimit()
    {
        QFETCH(QString, format);
        QFETCH(QByteArray, content);
        show();
        m_pEdit->setLongestPaste(20);
        auto data = std::make_unique<QMimeData>();
        data->setData(format, content);
        QGuiApplication::clipboard()->setMimeData(data.release());
        QTest::keySequence(m_pEdit.get(), QKeySequence::Paste);
        QTEST(m_pEdit->toPlainText(), "inserted");
    }

    void shortPasteKeepsItsFormat()
    {
        show();
        m_pEdit->setLongestPaste(20);
        auto data = std::make_unique<QMimeData>();
        data->setHtml(QStringLiteral("<b>bold</b>"));
        QGuiApplication::clipboard()->setMimeData(data.release());
        QTest::keySequence(m_pEdit.get(), QKeySequence::Paste);
        QCOMPARE(m_pEdit->toPlainText(), QStringLiteral("bold"));
        QVERIFY(m_pEdit->textCursor().charFormat().fontWeight() > QFont::Normal);
    }

    void pasteWithoutALimitIsWhole()
    {
        show();
        const QString strText(5000, QLatin1Char('x'));
        QGuiApplication::clipboard()->setText(strText);
        QTest::keySequence(m_pEdit.get(), QKeySequence::Paste);
        QCOMPARE(m_pEdit->toPlainText(), strText);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TextEditEx, Widgets)

#include "tst_TextEditEx.moc"
