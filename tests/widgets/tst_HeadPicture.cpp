#include "widgets/HeadPicture.h"

#include <QDir>
#include <QTest>

class tst_HeadPicture : public QObject
{
    Q_OBJECT

private:
    static QString writePhoto(const QString &strName, const QSize &size)
    {
        const QString strPath = QDir::current().absoluteFilePath(strName);
        QImage photo(size, QImage::Format_RGB32);
        photo.fill(Qt::blue);
        return photo.save(strPath) ? strPath : QString();
    }

private slots:
    void pictureIsRoundAndScaled_data();
    void pictureIsRoundAndScaled();
    void contentCountsNotTheSuffix();
    void noPictureGivesTheNeutralHead();
    void hugePictureGivesTheNeutralHead();
};

void tst_HeadPicture::pictureIsRoundAndScaled_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1x") << 1.0;
    QTest::newRow("2x") << 2.0;
}

void tst_HeadPicture::pictureIsRoundAndScaled()
{
    QFETCH(qreal, ratio);
    const QString strPath = writePhoto(QStringLiteral("wide.png"), QSize(90, 30));
    const QImage head = HeadPicture::round(strPath, 22, ratio).toImage();
    QCOMPARE(head.size(), QSize(22, 22) * ratio);
    QCOMPARE(head.devicePixelRatio(), ratio);
    QCOMPARE(head.pixelColor(head.rect().center()), QColor(Qt::blue));
    for (const QPoint &corner :
         {head.rect().topLeft(), head.rect().topRight(), head.rect().bottomLeft(), head.rect().bottomRight()})
        QCOMPARE(head.pixelColor(corner).alpha(), 0);
}

void tst_HeadPicture::contentCountsNotTheSuffix()
{
    QImage photo(8, 8, QImage::Format_RGB32);
    photo.fill(Qt::blue);
    QVERIFY(photo.save(QStringLiteral("bitmap.png"), "BMP"));
    const QImage head = HeadPicture::round(QStringLiteral("bitmap.png"), 22, 1.0).toImage();
    QCOMPARE(head.pixelColor(head.rect().center()), QColor(Qt::blue));
}

void tst_HeadPicture::hugePictureGivesTheNeutralHead()
{
    // Small as a file, 324 MB once it is read for painting.
    QImage photo(9000, 9000, QImage::Format_Mono);
    photo.setColorTable({qRgb(0, 0, 255), qRgb(0, 0, 255)});
    photo.fill(0);
    QVERIFY(photo.save(QStringLiteral("huge.png")));
    QCOMPARE(HeadPicture::round(QStringLiteral("huge.png"), 22, 1.0).toImage(),
             HeadPicture::round(QString(), 22, 1.0).toImage());
}

void tst_HeadPicture::noPictureGivesTheNeutralHead()
{
    QFile text(QStringLiteral("text.png"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("not a picture");
    text.close();
    const QImage none = HeadPicture::round(QString(), 22, 1.0).toImage();
    QCOMPARE(none.pixelColor(none.rect().center()).alpha(), 255);
    QCOMPARE(HeadPicture::round(QStringLiteral("text.png"), 22, 1.0).toImage(), none);
}

QTEST_MAIN(tst_HeadPicture)

#include "tst_HeadPicture.moc"
