// The picture of the painted form beside one painted by the bare numbers.

#include "widgets/BaseFormEx.h"
#include "widgets/OwnSkin.h"

#include <QPainter>
#include <QTest>

class tst_BaseFormPicture : public QObject
{
    Q_OBJECT

private:
    static QImage canvas(const QSize &size)
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        return image;
    }

    static QImage painted(CBaseFormEx &form, const QSize &size)
    {
        form.resize(size);
        QImage image = canvas(size);
        form.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }

    static QImage byNumbers(const QSize &size, int iTitle, int iOffset, bool bBody)
    {
        const int w = size.width();
        const int h = size.height();
        QImage image = canvas(size);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x20, 0x40, 0x60));
        painter.drawRoundedRect(QRectF(2, 2, w - 4, h - 4), 2, 2);
        if (iTitle > 2) {
            painter.setPen(QColor(255, 255, 255, 1));
            painter.setBrush(QColor(255, 255, 255, 1));
            painter.drawRoundedRect(QRectF(2, 2, w - 5, iTitle - 2), 3, 3);
        }
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.fillRect(QRect(QPoint(iOffset + 2, iTitle + 2), QPoint(w - 3, iTitle + 2)), QColor(224, 224, 224));
        if (!bBody) {
            return image;
        }
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(230 / 255.0);
        painter.setPen(QColor(255, 255, 255, 230));
        painter.setBrush(QColor(255, 255, 255, 230));
        painter.drawRoundedRect(QRectF(iOffset + 4, iTitle + 4, w - 7 - iOffset, h - 5 - iTitle), 3, 3);
        return image;
    }

    OwnSkin m_skin;

private slots:
    void formIsAsTheNumbersTell_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("title");
        QTest::addColumn<int>("offset");
        QTest::addColumn<bool>("body");
        QTest::newRow("no title") << QSize(80, 60) << 0 << 0 << true;
        QTest::newRow("a title") << QSize(80, 60) << 20 << 0 << true;
        QTest::newRow("the lowest strip") << QSize(80, 60) << 3 << 0 << true;
        QTest::newRow("no body") << QSize(80, 60) << 20 << 0 << false;
        QTest::newRow("line and body set in") << QSize(81, 61) << 20 << 20 << true;
        QTest::newRow("the message dialog") << QSize(288, 158) << 100 << 0 << true;
        QTest::newRow("the call window") << QSize(523, 403) << 36 << 0 << true;
    }

    void formIsAsTheNumbersTell()
    {
        QFETCH(QSize, size);
        QFETCH(int, title);
        QFETCH(int, offset);
        QFETCH(bool, body);
        m_skin->m_strPanelColor = QStringLiteral("#204060");
        CBaseFormEx form;
        form.setTitleHeight(title);
        form.setPaintLineOffset(offset + 3);
        form.setNoSeparate(!body);
        QCOMPARE(painted(form, size), byNumbers(size, title, offset, body));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_BaseFormPicture, Widgets)

#include "tst_BaseFormPicture.moc"
