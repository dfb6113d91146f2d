#include "widgets/SymbolButton.h"

#include <QSet>
#include <QSignalSpy>
#include <QTest>

class tst_SymbolButton : public QObject
{
    Q_OBJECT

private slots:
    void eachSymbolLooksDifferent();
    void symbolHasItsColour();
    void clickIsSent();
};

void tst_SymbolButton::eachSymbolLooksDifferent()
{
    using Symbol = SymbolButton::Symbol;
    SymbolButton button;
    button.resize(26, 26);
    QList<QImage> faces;
    for (const Symbol symbol : {Symbol::Close, Symbol::Microphone, Symbol::MicrophoneOff, Symbol::Speaker,
                                Symbol::SpeakerOff, Symbol::Camera, Symbol::CameraOff}) {
        button.setSymbol(symbol, Qt::black);
        QCOMPARE(button.symbol(), symbol);
        const QImage face = button.grab().toImage();
        QVERIFY(!faces.contains(face));
        faces.append(face);
    }
}

void tst_SymbolButton::symbolHasItsColour()
{
    SymbolButton button;
    button.resize(26, 26);
    button.setSymbol(SymbolButton::Symbol::Microphone, QColor(255, 0, 0));
    button.setHoverColor(Qt::green);
    const QColor middle = button.grab().toImage().pixelColor(13, 10);
    QCOMPARE(middle, QColor(255, 0, 0));
    QCOMPARE(button.symbolColor(), QColor(255, 0, 0));
}

void tst_SymbolButton::clickIsSent()
{
    SymbolButton button;
    const QSignalSpy clicked(&button, &QPushButton::clicked);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QTest::mouseClick(&button, Qt::RightButton);
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(tst_SymbolButton)

#include "tst_SymbolButton.moc"
