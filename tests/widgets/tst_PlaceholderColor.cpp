// Hints are told from typed text by their colour: in the pixels of the fields, alone and in the dialog.

#include "widgets/LineEditEx.h"
#include "widgets/PlaceholderColor.h"
#include "widgets/ShownDialog.h"
#include "widgets/TextEditEx.h"

#include <QLineEdit>
#include <QTest>

using namespace ShownDialog;

namespace {

/// How dark the darkest place of the field's inside is, without its frame.
int darkest(QWidget *pField)
{
    const QImage image = pField->grab(pField->rect().adjusted(3, 3, -3, -3)).toImage();
    int iGray = 255;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            iGray = qMin(iGray, qGray(image.pixel(x, y)));
        }
    }
    return iGray;
}

// Straight strokes, as dark as their colour.
const QString cText = QStringLiteral("■■■");

} // namespace

class tst_PlaceholderColor : public QObject
{
    Q_OBJECT

private slots:
    void hintOfALineIsLighterThanItsText()
    {
        CLineEditEx field;
        field.resize(120, 30);
        field.setPlaceholderText(cText);
        const int iHint = darkest(field.getLineEdit());
        field.setText(cText);
        const int iText = darkest(field.getLineEdit());
        QVERIFY2(iText < 80 && iHint > iText + 60, qPrintable(QStringLiteral("%1 %2").arg(iHint).arg(iText)));
    }

    void hintStaysLightWhenTheSheetIsSetAgain()
    {
        QWidget parent;
        CLineEditEx field;
        field.resize(120, 30);
        field.setPlaceholderText(cText);
        const int iBefore = darkest(field.getLineEdit());
        QEvent enter(QEvent::HoverEnter);
        QCoreApplication::sendEvent(field.getLineEdit(), &enter);
        QCOMPARE(darkest(field.getLineEdit()), iBefore);
        parent.setStyleSheet(QStringLiteral("QLabel{color:red;}"));
        field.setParent(&parent);
        QCOMPARE(darkest(field.getLineEdit()), iBefore);
        field.setText(cText);
        QVERIFY(darkest(field.getLineEdit()) < iBefore - 60);
    }

    void hintOfATextFieldIsLighterThanItsText()
    {
        CTextEditEx field;
        field.resize(120, 50);
        field.setPlaceholderText(cText);
        const int iHint = darkest(field.viewport());
        field.setPlainText(cText);
        const int iText = darkest(field.viewport());
        QVERIFY2(iText < 80 && iHint > iText + 60, qPrintable(QStringLiteral("%1 %2").arg(iHint).arg(iText)));
    }

    void hintOfTheTagDialogIsLighterThanItsText()
    {
        ErrorMessage dialog(QString(), QString(), nullptr);
        int iHint = 0;
        int iText = 0;
        whenShown(dialog, [&] {
            auto *pField = part<CLineEditEx>(dialog, "AddLineEdit");
            pField->setPlaceholderText(cText);
            // Without the text cursor.
            pField->clearFocus();
            iHint = darkest(pField->getLineEdit());
            pField->setText(cText);
            iText = darkest(pField->getLineEdit());
        });
        dialog.addLabelToFriend(QStringLiteral("Title"));
        QVERIFY2(iText < 80 && iHint > iText + 60, qPrintable(QStringLiteral("%1 %2").arg(iHint).arg(iText)));
    }

    void fadedPaletteIsLeftAlone()
    {
        QLineEdit field;
        PlaceholderColor::fade(&field);
        const qint64 iKey = field.palette().cacheKey();
        PlaceholderColor::fade(&field);
        QCOMPARE(field.palette().cacheKey(), iKey);
        QCOMPARE(field.palette().color(QPalette::PlaceholderText).alpha(), 128);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PlaceholderColor, Widgets)

#include "tst_PlaceholderColor.moc"
