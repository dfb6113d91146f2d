#include "KitForms.h"

#include "Sheet.h"

#include "common/Palette.h"
#include "common/pictures/IconGlyphs.h"
#include "widgets/BaseFormEx.h"
#include "widgets/CustomIconStyle.h"
#include "widgets/ElidedLabel.h"
#include "widgets/HotLabel.h"
#include "widgets/MessageLabel.h"
#include "widgets/MyRubberBand.h"
#include "widgets/PushButtonEx.h"
#include "widgets/VcardHeadLabel.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>

namespace {

constexpr QSize cFormSize(130, 96);
constexpr QSize cFieldSize(130, 72);
constexpr int cTitleHeight = 30;
// The inset of a window with a list at its left.
constexpr int cLineOffset = 40;
constexpr int cMessageWidth = 170;

CBaseFormEx *form(int iTitleHeight)
{
    auto *form = new CBaseFormEx;
    form->setFixedSize(cFormSize);
    form->setTitleHeightEx(iTitleHeight);
    return form;
}

CBaseFormEx *formWithOffset()
{
    CBaseFormEx *offset = form(cTitleHeight);
    offset->setPaintLineOffset(cLineOffset);
    return offset;
}

CBaseFormEx *formWithoutBody()
{
    CBaseFormEx *bare = form(cTitleHeight);
    bare->setNoSeparate(true);
    return bare;
}

HotLabel *hotLabel()
{
    auto *label = new HotLabel;
    label->setText(QObject::tr("modifyhotkey"));
    label->setStyleSheet(QStringLiteral("font:12px 微软雅黑;color:%1;").arg(strCOLOR_SKINTHEME_GREEN));
    return label;
}

HotLabel *hotLabelUnderMouse()
{
    HotLabel *label = hotLabel();
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(label, &enter);
    return label;
}

QString darkText(int iPixels)
{
    return QStringLiteral("font:%1px 微软雅黑;color:%2;").arg(iPixels).arg(strCOLOR_MAININFO_LIGHT_BLACK);
}

ElidedLabel *elidedLabel(int iWidth)
{
    auto *label = new ElidedLabel;
    label->setStyleSheet(darkText(14));
    label->setText(QStringLiteral("张三 from the Northern Office"));
    label->setFixedWidth(iWidth);
    return label;
}

MessageLabel *messageLabel(int iHeight)
{
    auto *label = new MessageLabel;
    label->setStyleSheet(darkText(12));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setText(
        QStringLiteral("The call could not be placed. Look whether a microphone is there, and try it again."));
    label->setFixedSize(cMessageWidth, iHeight);
    return label;
}

PushButtonEx *buttonReachedByKeys(int iType)
{
    auto *button = new PushButtonEx;
    button->setFixedSize(70, 30);
    button->setText(QStringLiteral("确定"));
    button->setBtnType(iType);
    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(button->findChild<QPushButton *>(), &focus);
    return button;
}

VcardHeadLabel *headLabel(int iWidth, const QString &strPath)
{
    auto *label = new VcardHeadLabel;
    label->setFixedSize(iWidth, iWidth);
    label->setHeadPictrue(strPath);
    return label;
}

QWidget *styledList(int iSize)
{
    auto *list = new QListWidget;
    list->setFixedSize(130, 72);
    list->setFrameShape(QFrame::NoFrame);
    auto *style = new CustomIconStyle;
    style->setParent(list);
    style->SetCustomSize(iSize);
    list->setStyle(style);
    for (const ushort glyph : {IconGlyph::Messages, IconGlyph::Contacts}) {
        list->addItem(new QListWidgetItem(Sheet::glyphIcon(glyph, 64), QStringLiteral("%1 px").arg(iSize)));
    }
    return list;
}

/// A place across which the mouse draws a band that is a window of its own, as the call window's is.
class BandField : public QLabel
{
public:
    BandField() : m_band(QRubberBand::Rectangle)
    {
        setFixedSize(cFieldSize);
        setAlignment(Qt::AlignCenter);
        setText(QStringLiteral("drag here"));
        setStyleSheet(QStringLiteral("font:11px 微软雅黑;color:%1;border:1px solid %1;").arg(strCOLOR_ICON_MID_GREY));
    }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        m_start = event->globalPos();
        m_band.setGeometry(QRect(m_start, QSize()));
        m_band.show();
    }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        m_band.setGeometry(QRect(m_start, event->globalPos()).normalized());
    }
    void mouseReleaseEvent(QMouseEvent *) override { m_band.hide(); }

private:
    MyRubberBand m_band;
    QPoint m_start;
};

QWidget *rubberBand()
{
    auto *frame = new QWidget;
    frame->setFixedSize(cFieldSize);
    auto *band = new MyRubberBand(QRubberBand::Rectangle, frame);
    band->setGeometry(frame->rect());
    band->show();
    return frame;
}

} // namespace

void KitForms::addForms(Sheet &sheet)
{
    sheet.section(QStringLiteral("CBaseFormEx"), {QStringLiteral("with a title"), QStringLiteral("no title"),
                                                  QStringLiteral("line offset"), QStringLiteral("no body")});
    sheet.row(QStringLiteral("on dark ground"), {form(cTitleHeight), form(0), formWithOffset(), formWithoutBody()},
              true);
}

void KitForms::addLabels(Sheet &sheet)
{
    sheet.section(QStringLiteral("Labels, and the focus of the keys"));
    sheet.row(QStringLiteral("ElidedLabel; too long for its place"), {elidedLabel(220), elidedLabel(120)});
    sheet.row(QStringLiteral("MessageLabel; without room"), {messageLabel(60), messageLabel(36)});
    sheet.row(QStringLiteral("FocusRing"), {buttonReachedByKeys(1), buttonReachedByKeys(0)});
}

void KitForms::addSmallParts(Sheet &sheet)
{
    const QString avatar = QStringLiteral("Resources/SystemAvatar/%1.jpg");
    sheet.section(QStringLiteral("Smaller parts"));
    sheet.row(QStringLiteral("HotLabel; under the mouse"), {hotLabel(), hotLabelUnderMouse()});
    sheet.row(QStringLiteral("VcardHeadLabel; no such file"),
              {headLabel(32, avatar.arg(1)), headLabel(48, avatar.arg(2)), headLabel(64, avatar.arg(3)),
               headLabel(64, QStringLiteral("Resources/SystemAvatar/none.jpg"))});
    sheet.row(QStringLiteral("CustomIconStyle"), {styledList(16), styledList(20), styledList(28)});
    sheet.row(QStringLiteral("MyRubberBand; as a window"), {rubberBand(), new BandField});
}
