#include "common/pictures/IconFont.h"
#include "ui/LineCache.h"
#include "ui/RowPainter.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <functional>

class tst_LineCache : public QObject
{
    Q_OBJECT

private:
    static QImage painted(double dRatio, const std::function<void(QPainter &)> &paint)
    {
        QImage image(int(200 * dRatio), int(40 * dRatio), QImage::Format_RGB32);
        image.setDevicePixelRatio(dRatio);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(RowPainter::textFont());
        paint(painter);
        painter.end();
        return image;
    }

private slots:
    void aLineLooksAsIfItWereLaidOutAnew_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("room");
        QTest::addColumn<QRect>("place");
        const QRect roomy(7, 10, 150, 38);
        QTest::newRow("short") << "韩梅梅" << 150 << roomy;
        QTest::newRow("cut") << "a name that is longer than its room" << 60 << roomy;
        QTest::newRow("with a tag") << "<b>bold</b>" << 150 << roomy;
        QTest::newRow("with a line feed") << "two\nlines" << 150 << roomy;
        QTest::newRow("empty") << "" << 150 << roomy;
        QTest::newRow("no room") << "韩梅梅" << 0 << roomy;
        QTest::newRow("place too low") << "gggg" << 150 << QRect(7, 10, 150, 9);
        QTest::newRow("place too narrow") << "gggg" << 150 << QRect(7, 10, 9, 38);
    }
    void aLineLooksAsIfItWereLaidOutAnew()
    {
        QFETCH(QString, text);
        QFETCH(int, room);
        QFETCH(QRect, place);
        for (const double dRatio : {1.0, 2.0}) {
            LineCache lines;
            const QImage expected = painted(dRatio, [&](QPainter &painter) {
                RowPainter::drawLine(painter, place, RowPainter::elidedLine(painter.fontMetrics(), text, room));
            });
            // The second time it comes out of the cache.
            for (int i = 0; i < 2; ++i) {
                QCOMPARE(painted(dRatio,
                                 [&](QPainter &painter) {
                                     RowPainter::drawLine(painter, place, lines.line(painter, text, room).text);
                                 }),
                         expected);
            }
        }
    }

    void theWidthIsThatBeforeTheCut()
    {
        LineCache lines;
        painted(1, [&](QPainter &painter) {
            const QFontMetrics metrics = painter.fontMetrics();
            QCOMPARE(lines.line(painter, "name", 150).iWidth, metrics.horizontalAdvance("name"));
            QCOMPARE(lines.line(painter, "name", 10).iWidth, 10);
            QCOMPARE(lines.line(painter, "name", 0).iWidth, 0);
        });
    }

    void eachFontAndEachRoomHasALineOfItsOwn()
    {
        LineCache lines;
        painted(1, [&](QPainter &painter) {
            const QSizeF small = lines.line(painter, "name", 150).text.size();
            QFont font = painter.font();
            font.setPixelSize(24);
            painter.setFont(font);
            QVERIFY(lines.line(painter, "name", 150).text.size().width() > 1.5 * small.width());
            QCOMPARE(lines.line(painter, "name", 2).iWidth, 2);
        });
    }

    void moreLinesThanItKeepsAreRightToo()
    {
        LineCache lines;
        painted(1, [&](QPainter &painter) {
            for (int i = 0; i < 10000; ++i) {
                QCOMPARE(lines.line(painter, QString::number(i), 150).text.text(), QString::number(i));
            }
            QCOMPARE(lines.line(painter, "0", 150).text.text(), QString("0"));
        });
    }

    void glyphStandsInTheIconFontAtItsPlace()
    {
        LineCache lines;
        const QRect place(30, 10, 18, 18);
        const QImage expected = painted(1, [&](QPainter &painter) {
            QFont font = IconFont::getIconFont();
            font.setPixelSize(14);
            painter.setFont(font);
            painter.setPen(QColor(255, 97, 88));
            painter.drawText(place, QStringLiteral("A"), QTextOption());
        });
        QCOMPARE(painted(1,
                         [&](QPainter &painter) {
                             lines.drawGlyph(painter, place, ushort('A'), 14, QColor(255, 97, 88));
                             QCOMPARE(painter.font().pixelSize(), 14);
                             QCOMPARE(painter.pen().color(), QColor(255, 97, 88));
                         }),
                 expected);
    }

    void glyphWithoutAColourKeepsThePen()
    {
        painted(1, [](QPainter &painter) {
            LineCache lines;
            painter.setPen(Qt::blue);
            lines.drawGlyph(painter, QRect(0, 0, 18, 18), ushort('A'), 14, QColor());
            QCOMPARE(painter.pen().color(), QColor(Qt::blue));
        });
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LineCache, Widgets)
#include "tst_LineCache.moc"
