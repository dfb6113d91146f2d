#include "ui/RowPainter.h"

#include <QFontMetrics>
#include <QPainter>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

class tst_RowPainter : public QObject
{
    Q_OBJECT

private:
    const QFontMetrics m_metrics{RowPainter::textFont()};

    static QImage painted(const std::function<void(QPainter &)> &paint)
    {
        QImage image(200, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paint(painter);
        painter.end();
        return image;
    }
    QImage lineOf(const QString &strText, int iWidth = 150) const
    {
        return painted([&](QPainter &painter) {
            painter.setFont(RowPainter::textFont());
            RowPainter::drawLine(painter, QRect(0, 0, iWidth, 38),
                                 RowPainter::elidedLine(painter.fontMetrics(), strText, iWidth));
        });
    }

private slots:
    void textFontHasTwelvePixels()
    {
        QCOMPARE(RowPainter::textFont().family(), QStringLiteral("微软雅黑"));
        QCOMPARE(RowPainter::textFont().pixelSize(), 12);
    }

    void textThatFitsStaysWhole_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("short") << "Ann";
        QTest::newRow("empty") << QString();
        QTest::newRow("markup") << "<b>Ann</b>&amp;";
        QTest::newRow("ampersand") << "&Ann";
        QTest::newRow("right to left") << QStringLiteral("שלום עולם");
        QTest::newRow("emoji") << QStringLiteral("\U0001F600\U0001F468\u200D\U0001F469\u200D\U0001F467");
        QTest::newRow("blanks stay") << "  a   b ";
    }
    void textThatFitsStaysWhole()
    {
        QFETCH(QString, text);
        QCOMPARE(RowPainter::elidedLine(m_metrics, text, 400), text);
        QCOMPARE(RowPainter::lineWidth(m_metrics, text, 400), m_metrics.horizontalAdvance(text));
    }

    void controlCharactersBecomeBlanks()
    {
        QCOMPARE(RowPainter::elidedLine(m_metrics, QStringLiteral("a\nb\r\tc\u2028d\u2029e\u0085f\vg"), 400),
                 QStringLiteral("a b  c d e f g"));
        // Qt takes this one for the border between a long and a short form of a text.
        QCOMPARE(RowPainter::elidedLine(m_metrics, QStringLiteral("long\u009Cs"), 400), QStringLiteral("long s"));
    }

    void longTextIsCutAsTheWholeOneWouldBe_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::newRow("narrow") << "i";
        QTest::newRow("wide") << "W";
        QTest::newRow("words") << "ab cd ";
        QTest::newRow("Chinese") << QStringLiteral("会议");
        QTest::newRow("right to left") << QStringLiteral("שלום ");
        QTest::newRow("Arabic") << QStringLiteral("سلام");
        QTest::newRow("emoji") << QStringLiteral("\U0001F600");
        QTest::newRow("combining") << QStringLiteral("e\u0301");
    }
    void longTextIsCutAsTheWholeOneWouldBe()
    {
        QFETCH(QString, unit);
        const QString strText = unit.repeated(1000);
        for (const int iWidth : {1, 10, 50, 200, 500}) {
            const QString strLine = RowPainter::elidedLine(m_metrics, strText, iWidth);
            QCOMPARE(strLine, m_metrics.elidedText(strText, Qt::ElideRight, iWidth));
            QCOMPARE(RowPainter::lineWidth(m_metrics, strText, iWidth), iWidth);
            QVERIFY(iWidth < 20 || m_metrics.horizontalAdvance(strLine) <= iWidth);
        }
    }

    void lengthOfATextDoesNotMatter()
    {
        for (const QString &strUnit : {QStringLiteral("m"), QStringLiteral("\n"), QStringLiteral("\u0301")}) {
            const QString strLine = RowPainter::elidedLine(m_metrics, strUnit.repeated(1000000), 200);
            QVERIFY(strLine.size() <= 2048);
        }
    }

    void noRoomShowsNothing()
    {
        for (const int iWidth : {0, -1, -100000}) {
            QCOMPARE(RowPainter::elidedLine(m_metrics, QStringLiteral("Ann"), iWidth), QString());
            QCOMPARE(RowPainter::lineWidth(m_metrics, QStringLiteral("Ann"), iWidth), 0);
        }
    }

    void markupIsDrawnAsItStands()
    {
        QVERIFY(lineOf(QStringLiteral("<b>a</b>")) != lineOf(QStringLiteral("a")));
        QVERIFY(lineOf(QStringLiteral("&a")) != lineOf(QStringLiteral("a")));
    }

    void lineIsNeverWrapped()
    {
        const QImage image = lineOf(QStringLiteral("aa\nbb cc dd ee ff gg hh ii jj kk ll mm nn"), 60);
        for (int y = m_metrics.height() + 1; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QCOMPARE(image.pixel(x, y), qRgb(255, 255, 255));
            }
        }
    }

    void bottomLineCoversBothEnds()
    {
        const QImage image = painted([](QPainter &painter) { RowPainter::drawBottomLine(painter, 20, 180, 37); });
        for (int y = 36; y < 39; ++y) {
            for (int x = 0; x < 200; ++x) {
                const bool bLine = y == 37 && x >= 20 && x <= 180;
                QCOMPARE(image.pixel(x, y), bLine ? qRgb(224, 224, 224) : qRgb(255, 255, 255));
            }
        }
    }

    void penAndFontComeBack()
    {
        painted([](QPainter &painter) {
            painter.setFont(QFont(QStringLiteral("monospace"), 20));
            painter.setPen(QPen(Qt::blue, 3));
            const QFont font = painter.font();
            const QPen pen = painter.pen();
            {
                const KeptPenAndFont kept(&painter);
                painter.setFont(RowPainter::textFont());
                painter.setPen(Qt::red);
            }
            QCOMPARE(painter.font(), font);
            QCOMPARE(painter.pen(), pen);
        });
    }

    void rectangleIsKeptOnce()
    {
        QStandardItemModel model;
        model.appendRow(new QStandardItem);
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const QRect place(1, 2, 3, 4);
        RowPainter::keepRect(model.index(0, 0), Qt::UserRole + 140, place);
        RowPainter::keepRect(model.index(0, 0), Qt::UserRole + 140, place);
        QCOMPARE(model.index(0, 0).data(Qt::UserRole + 140).toRect(), place);
        QCOMPARE(changed.count(), 1);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_RowPainter, Widgets)

#include "tst_RowPainter.moc"
