#include "widgets/LineEditEx.h"

#include "fakes/ClickTarget.h"
#include "fakes/QtMessages.h"
#include "widgets/IconButtonEx.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QIntValidator>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QString cEmoji = QString::fromUcs4(U"\U0001F600", 1);

QString chinese(int iCount)
{
    return QString(iCount, QChar(0x4E2D));
}

QString latin(int iCount)
{
    return QString(iCount, QLatin1Char('x'));
}

void putOnClipboard(const QString &strText)
{
    QGuiApplication::clipboard()->setText(strText);
}

} // namespace

class tst_LineEditEx : public QObject
{
    Q_OBJECT

private:
    void paste() { QTest::keySequence(inner(), QKeySequence::Paste); }
    QLineEdit *inner() const { return m_pEdit->getLineEdit(); }
    void show()
    {
        m_pEdit->resize(236, 30);
        m_pEdit->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pEdit.get()));
        m_pEdit->setFocus();
    }

    std::unique_ptr<CLineEditEx> m_pEdit;

private slots:
    void init() { m_pEdit = std::make_unique<CLineEditEx>(); }
    void cleanup() { m_pEdit.reset(); }

    void formHasItsNamesAndMargins();
    void sheetTakesTheSkinsColours();
    void menuSheetIsKeptUnfilledAndNothingElseWarns();
    void operationsForwardToTheInnerEdit();
    void limitTakesWhatFitsWhileTyping_data();
    void limitTakesWhatFitsWhileTyping();
    void pasteIsCut_data();
    void pasteIsCut();
    void pasteInTheMiddleKeepsWhatStandsBehind();
    void pasteOverASelectionCountsWhatIsLeft();
    void wideLastCharacterStaysWhenOneIsTooMany();
    void setMaxLengthCutsBackwardsFromTheCursor_data();
    void setMaxLengthCutsBackwardsFromTheCursor();
    void setMaxLengthKeepsTheCursorsShape();
    void setMaxLengthKeepsTheWayOfCounting();
    void setNewMaxLengthTestsByCountAndCutsByWidth();
    void setNewMaxLengthCountsEachCharacterAsOne();
    void hugePasteIsCutToTheLimit_data();
    void hugePasteIsCutToTheLimit();
    void hugePasteWithoutALimitEnds();
    void pasteWithoutTextIsSwallowed_data();
    void pasteWithoutTextIsSwallowed();
    void pasteWithoutTextKeepsTheSelection();
    void signalsTellChangesAndCursor();
    void clickIsToldOnRelease();
    void focusTellsATextThatIsThere();
    void losingTheFocusIsTold();
    void hoveringRestyles();
    void loginFieldIsAPassword();
    void searchFieldTakesTextLikeAnyOther();
    void deleteButtonStandsAtTheRightEnd();
    void secondDeleteButtonIsNotMade();
    void deleteButtonSendsItsSignal();
    void deleteButtonShowsAndHides();
    void showDeleteButtonWithoutOneDoesNothing();
};

void tst_LineEditEx::formHasItsNamesAndMargins()
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

void tst_LineEditEx::sheetTakesTheSkinsColours()
{
    QCOMPARE(inner()->styleSheet(), QStringLiteral("QLineEdit#lineEdit{border-radius:2px;background-color:#ffffff;"
                                                   "border:1px solid #e0e0e0;color:#333333;}"
                                                   "QLineEdit#lineEdit::hover{border: 1px solid #33af56;}"));
}

void tst_LineEditEx::menuSheetIsKeptUnfilledAndNothingElseWarns()
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

void tst_LineEditEx::operationsForwardToTheInnerEdit()
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

void tst_LineEditEx::limitTakesWhatFitsWhileTyping_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("fourteen Latin characters fit") << latin(14) << latin(14);
    QTest::newRow("the fifteenth is dropped") << latin(14) + QLatin1Char('y') << latin(14);
    QTest::newRow("seven Chinese characters fit") << chinese(7) << chinese(7);
    QTest::newRow("the eighth is dropped") << chinese(8) << chinese(7);
    QTest::newRow("a Chinese one does not fit into one column") << latin(13) + chinese(1) << latin(13);
    QTest::newRow("a Latin one still does")
        << latin(13) + chinese(1) + QLatin1Char('y') << latin(13) + QLatin1Char('y');
    QTest::newRow("first of the wide range") << QString(8, QChar(0x4E00)) << QString(7, QChar(0x4E00));
    QTest::newRow("last of the wide range") << QString(8, QChar(0x9FA5)) << QString(7, QChar(0x9FA5));
    QTest::newRow("before the wide range") << QString(15, QChar(0x4DFF)) << QString(14, QChar(0x4DFF));
    QTest::newRow("behind the wide range") << QString(15, QChar(0x9FA6)) << QString(14, QChar(0x9FA6));
    QTest::newRow("a pair takes two columns") << latin(12) + cEmoji << latin(12) + cEmoji;
    QTest::newRow("a pair is dropped whole") << latin(13) + cEmoji << latin(13);
}

void tst_LineEditEx::limitTakesWhatFitsWhileTyping()
{
    QFETCH(QString, typed);
    show();
    m_pEdit->setMaxLength(14);
    for (int i = 0; i < typed.size(); ++i) {
        // One key event each, as an input method sends them: a pair comes in one.
        QString key(typed.at(i));
        if (typed.at(i).isHighSurrogate())
            key += typed.at(++i);
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, key);
        QCoreApplication::sendEvent(inner(), &press);
    }
    QTEST(m_pEdit->text(), "kept");
    QCOMPARE(m_pEdit->cursorPosition(), m_pEdit->text().size());
}

void tst_LineEditEx::pasteIsCut_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("kept");
    QTest::newRow("fits") << QString() << QStringLiteral("abcdefghijklmn") << QStringLiteral("abcdefghijklmn");
    QTest::newRow("one too many goes at the old position")
        << QString() << QStringLiteral("abcdefghijklmno") << QStringLiteral("bcdefghijklmno");
    QTest::newRow("two too many go from the end")
        << QString() << QStringLiteral("abcdefghijklmnop") << QStringLiteral("abcdefghijklmn");
    QTest::newRow("one too many behind a text")
        << QStringLiteral("0123456789") << QStringLiteral("abcde") << QStringLiteral("0123456789bcde");
    QTest::newRow("two too many behind a text")
        << QStringLiteral("0123456789") << QStringLiteral("abcdef") << QStringLiteral("0123456789abcd");
    QTest::newRow("nothing fits") << latin(14) << QStringLiteral("abc") << latin(14);
    QTest::newRow("nine Chinese") << QString() << chinese(9) << chinese(7);
    QTest::newRow("two Chinese into three columns")
        << latin(11) << chinese(3) + QLatin1Char('b') << latin(11) + chinese(1);
    QTest::newRow("pairs stay whole") << latin(11) << cEmoji + cEmoji + cEmoji << latin(11) + cEmoji;
    QTest::newRow("one pair too many") << latin(12) << cEmoji + cEmoji << latin(12) + cEmoji;
}

void tst_LineEditEx::pasteIsCut()
{
    QFETCH(QString, start);
    QFETCH(QString, pasted);
    show();
    m_pEdit->setMaxLength(14);
    m_pEdit->setText(start);
    putOnClipboard(pasted);
    paste();
    QTEST(m_pEdit->text(), "kept");
    QCOMPARE(m_pEdit->cursorPosition(), m_pEdit->text().size());
}

void tst_LineEditEx::pasteInTheMiddleKeepsWhatStandsBehind()
{
    show();
    m_pEdit->setMaxLength(10);
    m_pEdit->setText(QStringLiteral("headtail"));
    m_pEdit->setCursorPosition(4);
    putOnClipboard(QStringLiteral("12345"));
    paste();
    QCOMPARE(m_pEdit->text(), QStringLiteral("head12tail"));
    QCOMPARE(m_pEdit->cursorPosition(), 6);
}

void tst_LineEditEx::pasteOverASelectionCountsWhatIsLeft()
{
    show();
    m_pEdit->setMaxLength(6);
    m_pEdit->setText(QStringLiteral("abcdef"));
    m_pEdit->setCursorPosition(2);
    inner()->cursorForward(true, 2);
    putOnClipboard(QStringLiteral("123456"));
    paste();
    QCOMPARE(m_pEdit->text(), QStringLiteral("ab12ef"));
}

void tst_LineEditEx::wideLastCharacterStaysWhenOneIsTooMany()
{
    // The one excess character goes at the old position even where the one that did not fit is the wider one.
    show();
    m_pEdit->setMaxLength(14);
    m_pEdit->setText(latin(13));
    putOnClipboard(QLatin1Char('a') + chinese(1));
    paste();
    QCOMPARE(m_pEdit->text(), latin(13) + chinese(1));
}

void tst_LineEditEx::setMaxLengthCutsBackwardsFromTheCursor_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<int>("position");
    const QString digits = QStringLiteral("0123456789");
    QTest::newRow("a text that fits stays") << digits << 3 << 10 << digits << 3;
    QTest::newRow("from the end") << digits << 10 << 6 << QStringLiteral("012345") << 6;
    QTest::newRow("from the middle") << digits << 5 << 7 << QStringLiteral("0156789") << 2;
    QTest::newRow("all before the cursor, then the end") << digits << 2 << 5 << QStringLiteral("23456") << 5;
    QTest::newRow("nothing before the cursor") << digits << 0 << 4 << QStringLiteral("0123") << 4;
    QTest::newRow("a wide character may leave one column") << chinese(4) << 4 << 5 << chinese(2) << 2;
    QTest::newRow("a pair goes whole") << QStringLiteral("abc") + cEmoji << 5 << 4 << QStringLiteral("abc") << 3;
    QTest::newRow("a cursor inside a pair") << cEmoji + QStringLiteral("abc") << 1 << 3 << QStringLiteral("abc") << 0;
    QTest::newRow("no limit at all") << digits << 4 << 0 << QString() << 0;
    QTest::newRow("a negative limit") << digits << 4 << -3 << QString() << 0;
}

void tst_LineEditEx::setMaxLengthCutsBackwardsFromTheCursor()
{
    QFETCH(QString, text);
    QFETCH(int, cursor);
    QFETCH(int, limit);
    m_pEdit->setText(text);
    m_pEdit->setCursorPosition(cursor);
    m_pEdit->setMaxLength(limit);
    QTEST(m_pEdit->text(), "kept");
    QTEST(m_pEdit->cursorPosition(), "position");
}

void tst_LineEditEx::setMaxLengthKeepsTheCursorsShape()
{
    inner()->setCursor(Qt::CrossCursor);
    m_pEdit->setText(latin(20));
    m_pEdit->setMaxLength(5);
    QCOMPARE(inner()->cursor().shape(), Qt::CrossCursor);
}

void tst_LineEditEx::setMaxLengthKeepsTheWayOfCounting()
{
    m_pEdit->setNewMaxLength(20);
    m_pEdit->setMaxLength(5);
    show();
    putOnClipboard(chinese(5));
    paste();
    QCOMPARE(m_pEdit->text(), chinese(5));
}

void tst_LineEditEx::setNewMaxLengthTestsByCountAndCutsByWidth()
{
    m_pEdit->setText(chinese(6));
    m_pEdit->setNewMaxLength(6);
    QCOMPARE(m_pEdit->text(), chinese(6));
    m_pEdit->setNewMaxLength(5);
    QCOMPARE(m_pEdit->text(), chinese(2));
    QCOMPARE(m_pEdit->cursorPosition(), 2);
}

void tst_LineEditEx::setNewMaxLengthCountsEachCharacterAsOne()
{
    show();
    m_pEdit->setNewMaxLength(5);
    putOnClipboard(chinese(9));
    paste();
    QCOMPARE(m_pEdit->text(), chinese(5));
}

void tst_LineEditEx::hugePasteIsCutToTheLimit_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("kept");
    constexpr int cSize = 10 * 1024 * 1024;
    QTest::newRow("Latin") << latin(cSize) << latin(14);
    QTest::newRow("Chinese") << chinese(cSize / 2) << chinese(7);
    QTest::newRow("pairs") << cEmoji.repeated(cSize / 4) << cEmoji.repeated(7);
}

void tst_LineEditEx::hugePasteIsCutToTheLimit()
{
    QFETCH(QString, pasted);
    show();
    m_pEdit->setMaxLength(14);
    putOnClipboard(pasted);
    paste();
    QTEST(m_pEdit->text(), "kept");
    putOnClipboard(QString());
}

void tst_LineEditEx::hugePasteWithoutALimitEnds()
{
    show();
    putOnClipboard(latin(10 * 1024 * 1024));
    paste();
    // Qt's own bound of a line is the only one here.
    QCOMPARE(m_pEdit->text().size(), inner()->maxLength());
    m_pEdit->setMaxLength(3);
    QCOMPARE(m_pEdit->text(), latin(3));
    putOnClipboard(QString());
}

void tst_LineEditEx::pasteWithoutTextIsSwallowed_data()
{
    QTest::addColumn<bool>("picture");
    QTest::newRow("empty clipboard") << false;
    QTest::newRow("a picture") << true;
}

void tst_LineEditEx::pasteWithoutTextIsSwallowed()
{
    QFETCH(bool, picture);
    show();
    m_pEdit->setText(QStringLiteral("text"));
    QGuiApplication::clipboard()->clear();
    if (picture)
        QGuiApplication::clipboard()->setPixmap(QPixmap(4, 4));
    const QSignalSpy changed(m_pEdit.get(), &CLineEditEx::textChanged);
    paste();
    QCOMPARE(m_pEdit->text(), QStringLiteral("text"));
    QCOMPARE(changed.count(), 0);
}

void tst_LineEditEx::pasteWithoutTextKeepsTheSelection()
{
    show();
    m_pEdit->setText(QStringLiteral("text"));
    m_pEdit->selectAll();
    QGuiApplication::clipboard()->clear();
    paste();
    QCOMPARE(inner()->selectedText(), QStringLiteral("text"));
}

void tst_LineEditEx::signalsTellChangesAndCursor()
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

void tst_LineEditEx::clickIsToldOnRelease()
{
    show();
    const QSignalSpy clicked(m_pEdit.get(), &CLineEditEx::signal_click);
    QTest::mousePress(inner(), Qt::LeftButton);
    QCOMPARE(clicked.count(), 0);
    QTest::mouseRelease(inner(), Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
}

void tst_LineEditEx::focusTellsATextThatIsThere()
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

void tst_LineEditEx::losingTheFocusIsTold()
{
    show();
    const QSignalSpy lost(m_pEdit.get(), &CLineEditEx::signal_foucsout);
    m_pEdit->clearFocus();
    QCOMPARE(lost.count(), 1);
}

void tst_LineEditEx::hoveringRestyles()
{
    const QString strStyle = inner()->styleSheet();
    inner()->setStyleSheet(QString());
    QEvent enter(QEvent::HoverEnter);
    QCoreApplication::sendEvent(inner(), &enter);
    QCOMPARE(inner()->styleSheet(), strStyle);
}

void tst_LineEditEx::loginFieldIsAPassword()
{
    m_pEdit->setlogin();
    QCOMPARE(inner()->echoMode(), QLineEdit::Password);
    QCOMPARE(inner()->placeholderText(), QStringLiteral("inputnarvepass"));
}

void tst_LineEditEx::searchFieldTakesTextLikeAnyOther()
{
    m_pEdit->setType(CLineEditEx::SearchField);
    m_pEdit->setSearchBtn(false);
    m_pEdit->setSearchBtn(true);
    show();
    QTest::keyClicks(inner(), QStringLiteral("abc"));
    QCOMPARE(m_pEdit->text(), QStringLiteral("abc"));
}

void tst_LineEditEx::deleteButtonStandsAtTheRightEnd()
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
    QVERIFY(pButton->geometry().right() <= inner()->contentsRect().right() - 5);
    QCOMPARE(pLine->geometry().right() + 1 <= pButton->x(), true);
}

void tst_LineEditEx::secondDeleteButtonIsNotMade()
{
    m_pEdit->addDeleteBtn();
    const QLayout *pLayout = inner()->layout();
    m_pEdit->addDeleteBtn();
    QCOMPARE(inner()->findChildren<CIconButtonEx *>().size(), 1);
    QCOMPARE(inner()->findChildren<QLabel *>().size(), 1);
    QCOMPARE(inner()->layout(), pLayout);
}

void tst_LineEditEx::deleteButtonSendsItsSignal()
{
    m_pEdit->addDeleteBtn();
    m_pEdit->setText(QStringLiteral("abc"));
    show();
    const QSignalSpy deleted(m_pEdit.get(), &CLineEditEx::signal_delete);
    QTest::mouseClick(clickTarget(inner()->findChild<CIconButtonEx *>()), Qt::LeftButton);
    QCOMPARE(deleted.count(), 1);
    QCOMPARE(m_pEdit->text(), QStringLiteral("abc"));
}

void tst_LineEditEx::deleteButtonShowsAndHides()
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

void tst_LineEditEx::showDeleteButtonWithoutOneDoesNothing()
{
    m_pEdit->showDeleteBtn(true);
    QVERIFY(inner()->findChild<CIconButtonEx *>() == nullptr);
    QCOMPARE(inner()->textMargins(), QMargins(0, 1, 2, 1));
}

QTEST_MAIN(tst_LineEditEx)

#include "tst_LineEditEx.moc"
