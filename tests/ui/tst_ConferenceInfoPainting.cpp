// The picture of the conference history list: each row beside one painted by the bare numbers, and what the painting
// leaves in the item.

#include "HistoryListTest.h"

#include "common/pictures/IconFont.h"
#include "fakes/PaintedPicture.h"

#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>

namespace {

/// Repaints of a widget.
class Repaints : public QObject
{
public:
    explicit Repaints(QWidget *pWidget) { pWidget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            ++iCount;
        }
        return false;
    }
    int iCount = 0;
};

const QString cLongName = QStringLiteral("a very long name of a person, ").repeated(20);

} // namespace

class tst_ConferenceInfoPainting : public HistoryListTest
{
    Q_OBJECT

private:
    /// The row by its numbers, with nothing kept from one painting to the next.
    static void paintByNumbers(QPainter &painter, const QRect &r, const QModelIndex &index, bool bHovered)
    {
        const int iWidth = r.right() + 1 - r.left();
        const bool bConnected = index.data(Qt::UserRole + 139).toBool();
        const QString strStatus = bConnected ? index.data(Qt::UserRole + 147).toString() : QStringLiteral("未接通");
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        paintHeadByNumbers(painter, r.topLeft() + QPoint(10, 10), index.data(Qt::UserRole + 2).toString(), 40);
        QFont icons = IconFont::getIconFont();
        if (bConnected && bHovered) {
            icons.setPixelSize(16);
            painter.setFont(icons);
            painter.setPen(QColor(76, 152, 223));
            painter.drawText(QRect(r.right() + 1 - 26, r.top() + 35, 16, 16), QString(QChar(0xE657)));
        }
        QFont font(QStringLiteral("微软雅黑"));
        font.setPixelSize(12);
        painter.setFont(font);
        painter.setPen(QColor(0x33, 0x33, 0x33));
        const int iStatus = painter.fontMetrics().horizontalAdvance(strStatus);
        painter.drawText(QRect(r.right() + 1 - 10 - iStatus, r.top() + 10, iStatus, 20), strStatus, QTextOption());
        const QRect name(r.left() + 60, r.top() + 10, iWidth - iStatus - 80, 20);
        const QString strName =
            painter.fontMetrics().elidedText(index.data(Qt::UserRole + 1).toString(), Qt::ElideRight, name.width());
        painter.drawText(name, Qt::TextWrapAnywhere, strName);
        icons.setPixelSize(12);
        painter.setFont(icons);
        const bool bMine = index.data(Qt::UserRole + 148).toBool();
        painter.drawText(QRect(r.left() + 60, r.top() + 35, 16, 16), Qt::TextWrapAnywhere,
                         QString(QChar(bMine ? 0xF730 : 0xF731)));
        const int iSecond = bConnected && bHovered ? iWidth - 32 - 10 - 10 - 40 - 30 : iWidth - 16 - 10 - 10 - 40 - 20;
        const QString strSecond = painter.fontMetrics().elidedText(
            QStringLiteral("【语音会议】 ") + index.data(Qt::UserRole + 146).toString(), Qt::ElideRight, iSecond);
        painter.drawText(QRect(r.left() + 86, r.top() + 35, iSecond, 20), Qt::TextWrapAnywhere, strSecond);
        painter.fillRect(QRect(QPoint(r.left() + 60, r.bottom()), QPoint(r.right(), r.bottom())),
                         QColor(224, 224, 224));
    }

    /// The list as the numbers tell it, the row with the cursor hovered.
    QImage byNumbers(int iHovered) const
    {
        return paintedLike(*m_pList->viewport(), [&](QPainter &painter) {
            for (int i = 0; i < m_pList->model()->rowCount(); ++i) {
                paintByNumbers(painter, row(i), index(i), i == iHovered);
            }
        });
    }

    static ConfInfoData longRecord(const QString &strConfID, bool bConnected)
    {
        ConfInfoData info = record(strConfID, bConnected, QStringLiteral("long"), QStringLiteral("86399"));
        info.m_strCreatTime = QStringLiteral("2024-03-05 09:08:07 and so on ").repeated(10);
        return info;
    }

private slots:
    void rowsAreAsTheNumbersTell_data()
    {
        QTest::addColumn<int>("hovered");
        QTest::newRow("no row hovered") << -1;
        QTest::newRow("connected row hovered") << 0;
        QTest::newRow("unconnected row hovered") << 1;
        QTest::newRow("long connected row hovered") << 2;
        QTest::newRow("long unconnected row hovered") << 3;
    }

    void rowsAreAsTheNumbersTell()
    {
        QFETCH(int, hovered);
        QImage head(100, 60, QImage::Format_RGB32);
        head.fill(QColor(200, 120, 40));
        QVERIFY(head.save(QStringLiteral("ann.png")));
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("安娜 Ann"), {}, QStringLiteral("ann.png")));
        m_pContacts->addContact(QStringLiteral("long"), ContactFixture::card(cLongName, {}));
        show({record(QStringLiteral("d")), record(QStringLiteral("c"), false, QStringLiteral("me")),
              longRecord(QStringLiteral("b"), true), longRecord(QStringLiteral("a"), false)});
        if (hovered >= 0) {
            hover(hovered);
        }
        const QImage painted = picture();
        const QImage told = byNumbers(hovered);
        leavePicture(painted, QStringLiteral("history-%1").arg(hovered));
        QCOMPARE(painted, told);
    }

    void paintingStoresTheHeadsPlace()
    {
        show({record(QStringLiteral("b")), record(QStringLiteral("a"), false)});
        QCOMPARE(place(0, ROLE_HEAD_RECT), QRect(10, 10, 40, 40));
        QCOMPARE(place(1, ROLE_HEAD_RECT), QRect(10, 72, 40, 40));
    }

    void onlyAHoveredConnectedPaintingStoresTheButton()
    {
        show({record(QStringLiteral("b")), record(QStringLiteral("a"), false)});
        QVERIFY(!data(0, ROLE_REMOVE_RECT).isValid());
        hover(1);
        QVERIFY(!data(1, ROLE_REMOVE_RECT).isValid());
        hover(0);
        QCOMPARE(place(0, ROLE_REMOVE_RECT), QRect(491, 35, 16, 16));
    }

    void headsPlaceFollowsTheScrolling()
    {
        QList<ConfInfoData> records;
        for (int i = 9; i >= 0; --i) {
            records.append(record(QString::number(i)));
        }
        show(records);
        m_pList->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        m_pList->verticalScrollBar()->setValue(30);
        picture();
        QCOMPARE(place(1, ROLE_HEAD_RECT), QRect(10, 42, 40, 40));
    }

    void secondLineIsDrawnInTheIconFont()
    {
        // An icon font of wide letters moves the end of the second line and of nothing else.
        show({record(QStringLiteral("a"))});
        const QImage before = picture();
        QFont wide = IconFont::getIconFont();
        wide.setStretch(200);
        m_pContacts->setIconFont(wide);
        const QImage after = picture();
        const qreal ratio = before.devicePixelRatio();
        const auto part = [ratio](const QImage &image, const QRect &place) {
            return image.copy(QRect(place.topLeft() * ratio, place.size() * ratio));
        };
        QVERIFY(part(before, QRect(86, 35, 400, 20)) != part(after, QRect(86, 35, 400, 20)));
        QCOMPARE(part(before, QRect(60, 0, 457, 30)), part(after, QRect(60, 0, 457, 30)));
    }

    void painterKeepsItsPenAndFont()
    {
        show({record(QStringLiteral("a"))});
        QPixmap canvas(517, 62);
        QPainter painter(&canvas);
        QFont serif(QStringLiteral("serif"));
        serif.setPixelSize(31);
        painter.setFont(serif);
        const QFont font = painter.font();
        painter.setPen(QPen(Qt::red, 3));
        QStyleOptionViewItem option;
        option.rect = canvas.rect();
        option.state = QStyle::State_MouseOver;
        m_pList->itemDelegate(index(0))->paint(&painter, option, index(0));
        QCOMPARE(painter.font(), font);
        QCOMPARE(painter.pen(), QPen(Qt::red, 3));
        QVERIFY(painter.testRenderHint(QPainter::SmoothPixmapTransform));
    }

    void paintingCallsForNoPainting()
    {
        show({record(QStringLiteral("b")), record(QStringLiteral("a"))});
        hover(0);
        Repaints repaints(m_pList->viewport());
        m_pList->m_pModel->setData(index(0), QRect(), ROLE_HEAD_RECT);
        m_pList->viewport()->repaint();
        QCoreApplication::processEvents();
        QCOMPARE(repaints.iCount, 1);
        QCOMPARE(place(0, ROLE_HEAD_RECT), QRect(10, 10, 40, 40));
    }

    void missingHeadLeavesTheRestOfTheRow()
    {
        show({record(QStringLiteral("a"))});
        const QImage before = picture();
        m_pList->m_pModel->setData(index(0), QStringLiteral("nowhere.png"), ROLE_HEAD_PATH);
        const QImage after = picture();
        const qreal ratio = before.devicePixelRatio();
        const QRect rest(QPoint(60, 0) * ratio, QSize(457, 62) * ratio);
        QCOMPARE(after.copy(rest), before.copy(rest));
        QVERIFY(after != before);
        QCOMPARE(place(0, ROLE_HEAD_RECT), QRect(10, 10, 40, 40));
    }

    void narrowRowPaintsNothingOutside()
    {
        show({record(QStringLiteral("a"))});
        for (const int iWidth : {0, 1, 50, 120}) {
            QImage canvas(517, 62, QImage::Format_RGB32);
            canvas.fill(Qt::white);
            QPainter painter(&canvas);
            QStyleOptionViewItem option;
            option.rect = QRect(100, 0, iWidth, 62);
            m_pList->itemDelegate(index(0))->paint(&painter, option, index(0));
            painter.end();
            QCOMPARE(place(0, ROLE_HEAD_RECT), QRect(110, 10, 40, 40));
        }
    }

    void lineBreaksStandAsBlanks()
    {
        ConfInfoData broken = record(QStringLiteral("b"));
        broken.m_strCreatTime = QStringLiteral("2024\n03");
        ConfInfoData blank = record(QStringLiteral("a"));
        blank.m_strCreatTime = QStringLiteral("2024 03");
        show({broken, blank});
        const QImage image = picture();
        const int iRow = qRound(62 * image.devicePixelRatio());
        QCOMPARE(image.copy(0, 0, image.width(), iRow), image.copy(0, iRow, image.width(), iRow));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceInfoPainting, Widgets)
#include "tst_ConferenceInfoPainting.moc"
