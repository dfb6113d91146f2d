#include "common/pictures/IconGlyphs.h"

#include <QDir>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QtTest>

#include <algorithm>
#include <iterator>

namespace {

const QString cFontFile = QStringLiteral(VOIP_RESOURCES_DIR "/BaseConfig/kelvarimiconfont.ttf");

/// The code points that windows, skins and presence marks show, whatever the table says.
constexpr ushort cExpected[] = {
    0xE602, 0xE603, 0xE604, 0xE610, 0xE612, 0xE625, 0xE626, 0xE627, 0xE628, 0xE62C, 0xE62D, 0xE64C,
    0xE64D, 0xE657, 0xE65B, 0xE65C, 0xE667, 0xE669, 0xE66A, 0xE698, 0xE699, 0xE69E, 0xE6A1, 0xE721,
    0xE726, 0xF602, 0xF603, 0xF604, 0xF610, 0xF624, 0xF64C, 0xF64D, 0xF66A, 0xF730, 0xF731,
};

QRawFont fontOf(int iPixelSize)
{
    return {cFontFile, static_cast<qreal>(iPixelSize)};
}

quint32 glyphIndex(const QRawFont &font, ushort codePoint)
{
    return font.glyphIndexesForString(IconGlyph::text(codePoint)).value(0);
}

/// The glyph in black on white as windows draw it, centred in a square of its size.
QImage picture(const QString &strFamily, ushort codePoint, int iPixelSize)
{
    QImage image(iPixelSize, iPixelSize, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QFont font(strFamily);
    font.setPixelSize(iPixelSize);
    font.setStyleStrategy(QFont::PreferAntialias);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(image.rect(), Qt::AlignCenter, IconGlyph::text(codePoint));
    return image;
}

/// How far two pictures are apart, in wholly different pixels.
double difference(const QImage &a, const QImage &b)
{
    int iSum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            iSum += qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
        }
    }
    return iSum / 255.0;
}

int darkest(const QImage &image)
{
    int iDarkest = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            iDarkest = qMin(iDarkest, qGray(image.pixel(x, y)));
        }
    }
    return iDarkest;
}

void rowsOfExpected()
{
    QTest::addColumn<ushort>("codePoint");
    for (const ushort codePoint : cExpected) {
        QTest::newRow(qPrintable(QString::number(codePoint, 16))) << codePoint;
    }
}

} // namespace

class tst_IconGlyphs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const int iId = QFontDatabase::addApplicationFont(cFontFile);
        QCOMPARE(QFontDatabase::applicationFontFamilies(iId), QStringList{QStringLiteral("kelvarimiconfont")});
        m_strFamily = QStringLiteral("kelvarimiconfont");
    }

    void tableNamesEveryCodePointOnce()
    {
        QVector<ushort> codePoints;
        QStringList names;
        for (const IconGlyph::Row &row : IconGlyph::cAll) {
            codePoints << row.codePoint;
            names << QString::fromLatin1(row.pName);
            QVERIFY2(*row.pShows != '\0', row.pName);
        }
        std::sort(codePoints.begin(), codePoints.end());
        QCOMPARE(codePoints, QVector<ushort>(std::begin(cExpected), std::end(cExpected)));
        QCOMPARE(names.removeDuplicates(), 0);
    }

    void textIsTheOneCharacter()
    {
        QCOMPARE(IconGlyph::text(IconGlyph::Close), QString(QChar(0xE62C)));
        QCOMPARE(IconGlyph::text(IconGlyph::MuteAllOn), QString(QChar(0xF66A)));
        QCOMPARE(IconGlyph::text(0), QString(QChar(0)));
    }

    void everyGlyphHasItsOwnDrawing()
    {
        QStringList expected;
        for (const IconGlyph::Row &row : IconGlyph::cAll) {
            expected << QStringLiteral("%1-%2.svg").arg(row.pName, QString::number(row.codePoint, 16).toUpper());
        }
        QStringList drawings = QDir(QStringLiteral(VOIP_ICONS_DIR)).entryList(QDir::Files);
        expected.sort();
        drawings.sort();
        QCOMPARE(drawings, expected);
    }

    void everyCodePointHasAnOutline_data() { rowsOfExpected(); }

    void everyCodePointHasAnOutline()
    {
        QFETCH(ushort, codePoint);
        const QRawFont font = fontOf(16);
        const quint32 index = glyphIndex(font, codePoint);
        QVERIFY(index != 0);
        QVERIFY(!font.pathForGlyph(index).isEmpty());
    }

    void outlineLiesInTheMiddleOfItsEm_data() { rowsOfExpected(); }

    void outlineLiesInTheMiddleOfItsEm()
    {
        QFETCH(ushort, codePoint);
        const QRawFont font = fontOf(160);
        const quint32 index = glyphIndex(font, codePoint);
        const QRectF box = font.pathForGlyph(index).boundingRect();
        // Two units of the grid stand below the baseline; the one that fills its place stands at the top of the line.
        const int iTop = codePoint == IconGlyph::Detail ? -170 : -140;
        QVERIFY2(QRectF(0, iTop, 160, 160).contains(box), qPrintable(QStringLiteral("%1").arg(box.bottom())));
        QVERIFY(qAbs(box.center().x() - 80) <= 5);
        QVERIFY(qAbs(box.center().y() - iTop - 80) <= 10);
        QVERIFY(qMax(box.width(), box.height()) >= 0.75 * 160);
        QCOMPARE(font.advancesForGlyphIndexes({index}).value(0).x(), 160.0);
    }

    void glyphStandsInTheMiddleOfItsLine_data()
    {
        QTest::addColumn<int>("pixelSize");
        for (const int iPixelSize : {8, 12, 14, 16, 26, 48}) {
            QTest::newRow(qPrintable(QString::number(iPixelSize))) << iPixelSize;
        }
    }

    void glyphStandsInTheMiddleOfItsLine()
    {
        QFETCH(int, pixelSize);
        const QRawFont font = fontOf(pixelSize);
        const qreal dAbove = font.ascent() - pixelSize * 14 / 16.0;
        const qreal dBelow = font.descent() - pixelSize * 2 / 16.0;
        QVERIFY(dAbove >= pixelSize * 3 / 16.0);
        QVERIFY2(qAbs(dAbove - dBelow) <= 0.5, qPrintable(QStringLiteral("%1 %2").arg(dAbove).arg(dBelow)));
        // On whole pixels where the grid can lie on them.
        if (pixelSize % 8 == 0) {
            QCOMPARE(dAbove, qreal(qRound(dAbove)));
        }
    }

    void inkIsStrongAtTheSizesInUse_data()
    {
        QTest::addColumn<ushort>("codePoint");
        QTest::addColumn<int>("pixelSize");
        for (const IconGlyph::Row &row : IconGlyph::cAll) {
            for (const int iPixelSize : {12, 14, 16}) {
                QTest::newRow(qPrintable(QStringLiteral("%1 at %2").arg(row.pName).arg(iPixelSize)))
                    << row.codePoint << iPixelSize;
            }
        }
        QTest::newRow("Close at 8") << IconGlyph::Close << 8;
    }

    void inkIsStrongAtTheSizesInUse()
    {
        QFETCH(ushort, codePoint);
        QFETCH(int, pixelSize);
        QVERIFY(darkest(picture(m_strFamily, codePoint, pixelSize)) < 80);
    }

    void noTwoLookAlike()
    {
        QVector<QImage> pictures;
        for (const ushort codePoint : cExpected) {
            pictures << picture(m_strFamily, codePoint, 32);
        }
        for (int i = 0; i < pictures.size(); ++i) {
            for (int j = i + 1; j < pictures.size(); ++j) {
                const double dApart = difference(pictures.at(i), pictures.at(j));
                QVERIFY2(
                    dApart > 30,
                    qPrintable(
                        QStringLiteral("%1 and %2: %3").arg(cExpected[i], 0, 16).arg(cExpected[j], 0, 16).arg(dApart)));
            }
        }
    }

    /// Letters, digits and Chinese set in the icon font come from the text font.
    void fontHasNothingElse()
    {
        const QRawFont font = fontOf(16);
        for (uint code = 1; code <= 0xFFFF; ++code) {
            const bool bExpected = std::binary_search(std::begin(cExpected), std::end(cExpected), code);
            QVERIFY2(font.supportsCharacter(code) == bExpected, qPrintable(QString::number(code, 16)));
        }
    }

private:
    QString m_strFamily;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_IconGlyphs, Widgets)
#include "tst_IconGlyphs.moc"
