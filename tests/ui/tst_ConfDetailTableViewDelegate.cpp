// The picture of the conference detail page's member grid, beside one painted by the bare numbers, and what painting it
// costs.

#include "ContactFixture.h"
#include "PaintCost.h"
#include "ShippedFiles.h"

#include "common/BuiltInPictures.h"
#include "fakes/PaintedPicture.h"
#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "ui/ConfDetailMemberTableView.h"
#include "ui/ConfDetailTableViewDelegate.h"

#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTest>

#include <memory>

namespace {

void writePicture(const QString &strPath, const QColor &color, int iSide = 90)
{
    QImage image(iSide, iSide, QImage::Format_RGB32);
    image.fill(color);
    QPainter painter(&image);
    painter.fillRect(iSide / 3, iSide / 3, iSide / 3, iSide / 3, color.darker());
    painter.end();
    QVERIFY(image.save(strPath));
}

} // namespace

class tst_ConfDetailTableViewDelegate : public QObject
{
    Q_OBJECT

private:
    void addMember(const char *pUid, const QString &strName, const QString &strPhoto = {})
    {
        m_pContacts->addContact(QLatin1String(pUid), ContactFixture::card(strName, {}, strPhoto));
        m_members.append(QLatin1String(pUid));
    }
    void show()
    {
        m_pGrid->setMemList(m_members);
        m_pGrid->setFrameShape(QFrame::NoFrame);
        m_pGrid->resize(517, 215);
        // A window manager that places the window has it painted again, some time later.
        m_pGrid->setWindowFlag(Qt::X11BypassWindowManagerHint);
        m_pGrid->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pGrid.get(), cPatienceMs));
    }
    QImage picture() const
    {
        QCoreApplication::processEvents();
        return m_pGrid->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    QRect cell(int iRow, int iColumn) const { return m_pGrid->visualRect(m_pGrid->model()->index(iRow, iColumn)); }

    /// The cell by its numbers, with nothing kept from one painting to the next.
    static void paintByNumbers(QPainter &painter, const QRect &r, const QModelIndex &index)
    {
        if (index.data(Qt::UserRole + 90).toString().isEmpty()) {
            return;
        }
        paintHeadByNumbers(painter, r.topLeft() + QPoint(19, 12), index.data(Qt::UserRole + 2).toString(), 42);

        QFont font(QStringLiteral("微软雅黑"));
        font.setPixelSize(12);
        painter.setFont(font);
        const QString strName = index.data(Qt::UserRole + 1).toString().replace(QLatin1Char('\n'), QLatin1Char(' '));
        QTextOption option(Qt::AlignHCenter | Qt::AlignVCenter);
        option.setWrapMode(QTextOption::NoWrap);
        painter.drawText(QRect(r.left(), r.top() + 62, r.width(), r.height() - 62),
                         painter.fontMetrics().elidedText(strName, Qt::ElideRight, r.width()), option);
    }
    QImage pictureByNumbers() const
    {
        const QWidget *const pPort = m_pGrid->viewport();
        return paintedLike(*pPort, [&](QPainter &painter) {
            const QAbstractItemModel &model = *m_pGrid->model();
            for (int i = 0; i < model.rowCount() * model.columnCount(); ++i) {
                const QModelIndex index = model.index(i / model.columnCount(), i % model.columnCount());
                if (m_pGrid->visualRect(index).intersects(pPort->rect())) {
                    paintByNumbers(painter, m_pGrid->visualRect(index), index);
                }
            }
        });
    }
    void compareWithNumbers(const char *pName)
    {
        const QImage actual = picture();
        comparePictures(actual, pictureByNumbers(), pName);
    }

    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<CConfDetailMemberTableView> m_pGrid;
    QStringList m_members;

private slots:
    void initTestCase()
    {
        QVERIFY(placeShippedFiles());
        writePicture(QStringLiteral("red.png"), Qt::red);
    }

    void init()
    {
        m_pContacts = std::make_unique<ContactFixture>();
        m_pGrid = std::make_unique<CConfDetailMemberTableView>();
        m_members.clear();
    }

    void cleanup()
    {
        m_pGrid.reset();
        m_pContacts.reset();
    }

    void gridLooksAsNumbersSay()
    {
        addMember("ann", QStringLiteral("Ann"), QStringLiteral("red.png"));
        addMember("bob", QStringLiteral("李四"));
        addMember("cat", QStringLiteral("a name that is far too long for one cell"));
        addMember("dan", QStringLiteral("<b>Dan</b>"));
        addMember("eve", QStringLiteral("Eve\nof two lines"));
        addMember("fay", QStringLiteral("&Fay &amp; co"));
        addMember("gus", QStringLiteral("Gus"), QStringLiteral("red.png"));
        show();
        compareWithNumbers("grid");
    }

    void scrolledGridLooksAsNumbersSay()
    {
        writePicture(QStringLiteral("blue.png"), Qt::blue);
        for (int i = 0; i < 31; ++i) {
            addMember(qPrintable(QString::number(i)), QStringLiteral("成员 %1").arg(i),
                      i % 3 == 0   ? QStringLiteral("red.png")
                      : i % 3 == 1 ? QStringLiteral("blue.png")
                                   : QString());
        }
        show();
        picture();
        m_pGrid->verticalScrollBar()->setValue(m_pGrid->verticalScrollBar()->maximum());
        compareWithNumbers("grid-scrolled");
    }

    void headIsRoundAndItsPlaceIsKept()
    {
        addMember("ann", {}, QStringLiteral("red.png"));
        show();
        compareWithNumbers("grid-head");
        QCOMPARE(m_pGrid->model()->index(0, 0).data(ROLE_HEAD_RECT).toRect(),
                 QRect(cell(0, 0).topLeft() + QPoint(19, 12), QSize(42, 42)));
    }

    void longNameEndsWithinItsCell()
    {
        addMember("ann", QString(500, QLatin1Char('W')), QStringLiteral("red.png"));
        m_members.append(QStringLiteral("nameless"));
        show();
        QCOMPARE(cell(0, 0).width(), 80);
        compareWithNumbers("grid-long-name");
    }

    void cellWithoutUidPaintsNothing_data()
    {
        QTest::addColumn<bool>("bItem");
        QTest::newRow("no item") << false;
        QTest::newRow("item without uid") << true;
    }
    void cellWithoutUidPaintsNothing()
    {
        QFETCH(bool, bItem);
        QStandardItemModel model(1, 1);
        if (bItem) {
            model.setData(model.index(0, 0), QStringLiteral("Ann"), ROLE_DISPLAY_NAME);
            model.setData(model.index(0, 0), QStringLiteral("red.png"), ROLE_HEAD_PATH);
        }
        QImage image(80, 80, QImage::Format_RGB32);
        image.fill(Qt::white);
        const QImage blank = image;
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        const CConfDetailTableViewDelegate delegate(nullptr);
        delegate.paint(&painter, option, model.index(0, 0));
        painter.end();
        QCOMPARE(image, blank);
        QVERIFY(!model.index(0, 0).data(ROLE_HEAD_RECT).isValid());
    }

    void painterKeepsPenAndFontAndLendsItsPen()
    {
        QStandardItemModel model(1, 1);
        model.setData(model.index(0, 0), QStringLiteral("ann"), ROLE_USER_ID);
        model.setData(model.index(0, 0), QStringLiteral("\u2588\u2588\u2588"), ROLE_DISPLAY_NAME);
        QImage image(80, 80, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QFont font = painter.font();
        font.setPixelSize(31);
        painter.setFont(font);
        painter.setPen(Qt::magenta);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        const CConfDetailTableViewDelegate delegate(nullptr);
        delegate.paint(&painter, option, model.index(0, 0));
        QCOMPARE(painter.font(), font);
        QCOMPARE(painter.pen(), QPen(Qt::magenta));
        painter.end();
        QCOMPARE(image.pixelColor(40, 71), QColor(Qt::magenta));
    }

    void warmRepaintOpensNoFile()
    {
        addMember("ann", QStringLiteral("Ann"), QStringLiteral("red.png"));
        addMember("bob", QStringLiteral("Bob"));
        const OpenedFiles opened({QStringLiteral("red.png"), strDEFAULT_HEAD_PATH});
        show();
        picture();
        QVERIFY(opened.any());
        picture();
        QVERIFY(!opened.any());
    }

    void changedFileShowsAtTheNextPainting()
    {
        writePicture(QStringLiteral("new.png"), Qt::red);
        addMember("ann", {}, QStringLiteral("new.png"));
        show();
        compareWithNumbers("grid-red");
        writePicture(QStringLiteral("new.png"), Qt::blue, 120);
        compareWithNumbers("grid-blue");
    }

    void fileThatHoldsNoPictureLeavesTheName()
    {
        QFile file(QStringLiteral("odd.png"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        file.close();
        addMember("ann", QString(3, QChar(0x2588)), QStringLiteral("odd.png"));
        show();
        compareWithNumbers("grid-no-head");
    }

    void headsPlaceAsksForNoSecondPainting()
    {
        for (int i = 0; i < 1000; ++i) {
            m_members.append(QString::number(i));
        }
        show();
        const Repaints repaints(m_pGrid->viewport());
        m_pGrid->verticalScrollBar()->setValue(20);
        QTRY_COMPARE_WITH_TIMEOUT(repaints.count(), 1, cPatienceMs);
        QCOMPARE(m_pGrid->model()->index(21, 0).data(ROLE_HEAD_RECT).toRect().top(), 80 + 12);
        QVERIFY(!repaints.isAnyDue());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConfDetailTableViewDelegate, Widgets)

#include "tst_ConfDetailTableViewDelegate.moc"
