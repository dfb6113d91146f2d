// A message that is too long for its place: in the label by itself, and in the dialog as the screen shows it.

#include "ProcessorClock.h"

#include "widgets/BaseFormEx.h"
#include "widgets/MessageLabel.h"
#include "widgets/ShownDialog.h"

#include <QPainter>
#include <QTest>

using namespace ShownDialog;

namespace {

constexpr QSize cSize(242, 62);
constexpr int cDark = 160;
const QString cEllipsis(QChar(0x2026));

QFont plainFont()
{
    QFont font;
    font.setPixelSize(12);
    return font;
}

/// The text as lines from the top of a label of that size.
QImage drawn(const QString &strText)
{
    QLabel label(strText);
    label.setFont(plainFont());
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label.resize(cSize);
    return label.grab().toImage();
}

QImage shown(MessageLabel &label, const QString &strText)
{
    label.setFont(plainFont());
    label.setWordWrap(true);
    label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label.setText(strText);
    label.resize(cSize);
    return label.grab().toImage();
}

int lineHeight()
{
    return QFontMetrics(plainFont()).lineSpacing();
}

/// How many whole lines the label has room for.
int roomForLines()
{
    return cSize.height() / lineHeight();
}

QString numbered(int iLines)
{
    QStringList lines;
    for (int i = 1; i <= iLines; ++i) {
        lines.append(QStringLiteral("Line %1").arg(i));
    }
    return lines.join(QLatin1Char('\n'));
}

/// Whether something dark stands in these rows of a widget's picture.
bool hasInk(const QImage &image, int iTop, int iBottom)
{
    const int iDensity = qRound(image.devicePixelRatio());
    for (int y = iTop * iDensity; y < (iBottom + 1) * iDensity; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < cDark) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

class tst_MessageLabel : public QObject
{
    Q_OBJECT

private slots:
    void textWithRoomIsThatOfALabel()
    {
        const QString strText = numbered(roomForLines());
        MessageLabel label;
        QLabel plain(strText);
        plain.setFont(plainFont());
        plain.setWordWrap(true);
        plain.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        plain.resize(cSize);
        QCOMPARE(shown(label, strText), plain.grab().toImage());
        QVERIFY(label.hasRoom());
    }

    void longTextEndsAtAWholeLine()
    {
        MessageLabel label;
        const QString strText = numbered(roomForLines() + 1);
        QCOMPARE(shown(label, strText), drawn(numbered(roomForLines()) + cEllipsis));
        QVERIFY(!label.hasRoom());
        QCOMPARE(label.text(), strText);
    }

    void blankBeforeTheEndIsLeftOut()
    {
        MessageLabel label;
        const QString strLast = numbered(roomForLines());
        QCOMPARE(shown(label, strLast + QStringLiteral("  \n\nmore")), drawn(strLast + cEllipsis));
    }

    void fullLastLineGivesWay()
    {
        // A last line that has no place for one character more.
        const QFontMetrics metrics(plainFont());
        QString strFull(1, QLatin1Char('i'));
        while (metrics.horizontalAdvance(strFull + QLatin1Char('i')) <= cSize.width()) {
            strFull += QLatin1Char('i');
        }
        const QString strAbove = numbered(roomForLines() - 1) + QLatin1Char('\n');
        QString strCut = strFull;
        while (metrics.horizontalAdvance(strCut + cEllipsis) > cSize.width()) {
            strCut.chop(1);
        }
        MessageLabel label;
        QCOMPARE(shown(label, strAbove + strFull + QStringLiteral("\nmore")), drawn(strAbove + strCut + cEllipsis));
    }

    void wordWithoutABreakIsBroken()
    {
        MessageLabel label;
        const QImage image = shown(label, QString(400, QLatin1Char('W')));
        QVERIFY(!label.hasRoom());
        for (int iLine = 0; iLine < roomForLines(); ++iLine) {
            QVERIFY(hasInk(image, iLine * lineHeight(), (iLine + 1) * lineHeight() - 1));
        }
        QVERIFY(!hasInk(image, roomForLines() * lineHeight(), cSize.height() - 1));
    }

    void markupEndsAtAWholeLineToo()
    {
        MessageLabel label;
        const QString strText = numbered(roomForLines() + 2).replace(QLatin1Char('\n'), QStringLiteral("<br>"));
        QCOMPARE(shown(label, QStringLiteral("<b></b>") + strText), drawn(numbered(roomForLines()) + cEllipsis));
    }

    void lowestLineMayLieHigher()
    {
        MessageLabel label;
        label.setLowestLine(3 * lineHeight() - 1);
        QCOMPARE(shown(label, numbered(3)), drawn(numbered(2) + cEllipsis));
        label.setLowestLine(0);
        label.grab();
        QVERIFY(!label.hasRoom());
    }

    void wholeTextIsRaisedAboveTheLowestLine()
    {
        // Room for three lines from the top, not for three in the middle.
        const int iLowest = 3 * lineHeight() + 2;
        MessageLabel label;
        label.setLowestLine(iLowest);
        const QImage image = shown(label, numbered(3));
        QVERIFY(label.hasRoom());
        QVERIFY(!hasInk(image, iLowest, cSize.height() - 1));

        QLabel above(numbered(3));
        above.setFont(plainFont());
        above.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
        above.resize(cSize.width(), iLowest);
        QCOMPARE(image.copy(0, 0, image.width(), iLowest * qRound(image.devicePixelRatio())), above.grab().toImage());
    }

    void linkLiesWhereItIsShown()
    {
        MessageLabel label;
        label.setLowestLine(3 * lineHeight() + 2);
        shown(label, QStringLiteral("<a href=\"there\">Line 1</a><br>Line 2<br>Line 3"));
        QVERIFY(label.hasRoom());
        QStringList followed;
        connect(&label, &QLabel::linkActivated, this,
                [&followed](const QString &strLink) { followed.append(strLink); });
        QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, QPoint(10, 4));
        QCOMPARE(followed, QStringList("there"));
        QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, QPoint(10, 4 + lineHeight()));
        QCOMPARE(followed, QStringList("there"));
    }

    void changesAreSeen_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("pixels");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("lowest");
        QTest::addColumn<QColor>("color");
        const QString strText = numbered(20);
        QTest::newRow("text") << numbered(21).mid(1) << 12 << cSize << 60 << QColor(Qt::black);
        QTest::newRow("short text") << numbered(2) << 12 << cSize << 60 << QColor(Qt::black);
        QTest::newRow("font") << strText << 15 << cSize << 60 << QColor(Qt::black);
        QTest::newRow("size") << strText << 12 << QSize(30, 55) << 60 << QColor(Qt::black);
        QTest::newRow("lowest line") << strText << 12 << cSize << 40 << QColor(Qt::black);
        QTest::newRow("colour") << strText << 12 << cSize << 60 << QColor(Qt::red);
    }

    void changesAreSeen()
    {
        QFETCH(QString, text);
        QFETCH(int, pixels);
        QFETCH(QSize, size);
        QFETCH(int, lowest);
        QFETCH(QColor, color);
        const auto changed = [&](MessageLabel &label) {
            QFont font = plainFont();
            font.setPixelSize(pixels);
            label.setFont(font);
            label.setText(text);
            label.setLowestLine(lowest);
            label.resize(size);
            QPalette palette;
            palette.setColor(label.foregroundRole(), color);
            label.setPalette(palette);
            return label.grab().toImage();
        };
        MessageLabel label;
        label.setLowestLine(60);
        const QImage before = shown(label, numbered(20));
        MessageLabel fresh;
        fresh.setWordWrap(true);
        const QImage after = changed(label);
        QVERIFY(after != before);
        QCOMPARE(after, changed(fresh));
    }

    void repaintsReadNoMarkup()
    {
        MessageLabel label;
        const QString strText = QStringLiteral("<p><b>busy</b> and <i>long</i></p>").repeated(2000);
        const ProcessorClock first;
        shown(label, strText);
        const double dFirst = first.seconds();
        QVERIFY(!label.hasRoom());
        const ProcessorClock again;
        for (int i = 0; i < 20; ++i) {
            label.grab();
        }
        const double dAgain = again.seconds();
        QVERIFY2(dAgain < dFirst, qPrintable(QStringLiteral("%1 s, then %2 s").arg(dFirst).arg(dAgain)));
    }

    void veryLongTextIsShownAtOnce()
    {
        MessageLabel label;
        QCOMPARE(shown(label, numbered(20000)), drawn(numbered(roomForLines()) + cEllipsis));
    }

    void dialogsLineIsNotCrossed_data()
    {
        QTest::addColumn<QString>("message");
        QTest::newRow("Chinese") << QStringLiteral("对方正忙，请稍后再拨。").repeated(20);
        QTest::newRow("Latin") << QStringLiteral("The other side is busy, try again. ").repeated(20);
        for (int i = 2; i <= 5; ++i) {
            QTest::addRow("%d lines", i) << numbered(i);
        }
        QTest::newRow("lines") << numbered(12);
        QTest::newRow("markup") << QStringLiteral("<a href=\"http://x.y\">busy</a> and long ").repeated(40);
    }

    void dialogsLineIsNotCrossed()
    {
        QFETCH(QString, message);
        ErrorMessage dialog(QString(), QString(), nullptr);
        QImage image;
        int iLine = 0;
        int iBottom = 0;
        whenShown(dialog, [&] {
            const auto *pForm = part<CBaseFormEx>(dialog, "backWidget");
            const auto *pLabel = part<QLabel>(dialog, "msgLabel");
            iLine = pForm->lineTop();
            iBottom = pLabel->mapTo(pForm, pLabel->rect().bottomLeft()).y();
            image = part<CBaseFormEx>(dialog, "backWidget")->grab().toImage();
        });
        dialog.getMsgShow(QStringLiteral("Title"), message);
        QVERIFY(iBottom > iLine);
        QVERIFY(hasInk(image, iLine - 20, iLine - 1));
        // From the line to the end of the label's place, nothing but line and ground.
        QVERIFY(!hasInk(image, iLine, iBottom));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MessageLabel, Widgets)

#include "tst_MessageLabel.moc"
