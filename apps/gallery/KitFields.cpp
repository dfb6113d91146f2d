#include "KitFields.h"

#include "Sheet.h"

#include "common/pictures/IconGlyphs.h"
#include "robots/RobotIds.h"
#include "widgets/LineEditEx.h"
#include "widgets/MenuEx.h"
#include "widgets/PushButtonEx.h"
#include "widgets/TextEditEx.h"

#include <QActionGroup>
#include <QVBoxLayout>

namespace {

constexpr QSize cLineSize(210, 30);
constexpr QSize cTextSize(210, 64);
// Seven Chinese characters, or fourteen Latin ones.
constexpr int cTagColumns = 14;

CLineEditEx *lineEdit(const QString &strText = QString())
{
    auto *edit = new CLineEditEx;
    edit->setFixedSize(cLineSize);
    edit->setText(strText);
    return edit;
}

CLineEditEx *hintedEdit()
{
    CLineEditEx *edit = lineEdit();
    edit->setPlaceholderText(QObject::tr("tagsevenwords"));
    return edit;
}

CLineEditEx *limitedEdit(const QString &strText)
{
    CLineEditEx *edit = lineEdit(strText);
    edit->setMaxLength(cTagColumns);
    return edit;
}

CLineEditEx *deletableEdit(bool bShown)
{
    CLineEditEx *edit = lineEdit(QStringLiteral("张三 ") + QLatin1String(Robots::answers));
    edit->addDeleteBtn();
    edit->showDeleteBtn(bShown);
    return edit;
}

CLineEditEx *passwordEdit(const QString &strText)
{
    CLineEditEx *edit = lineEdit(strText);
    edit->setlogin();
    return edit;
}

CLineEditEx *disabledEdit()
{
    CLineEditEx *edit = lineEdit(QStringLiteral("不可编辑"));
    edit->setEnabled(false);
    return edit;
}

CTextEditEx *textEdit(const QString &strText)
{
    auto *edit = new CTextEditEx;
    edit->setFixedSize(cTextSize);
    edit->setPlainText(strText);
    return edit;
}

QString longText()
{
    return QStringLiteral("我在开会，稍后回电。\n").repeated(12).trimmed();
}

QIcon menuIcon(ushort glyph)
{
    return Sheet::glyphIcon(glyph, 16);
}

void fillIconMenu(CMenuEx &menu)
{
    menu.setMenuType(CMenuEx::IconMenu);
    menu.addAction(menuIcon(IconGlyph::Messages), QStringLiteral("发消息"));
    menu.addAction(menuIcon(IconGlyph::MicOn), QStringLiteral("语音通话"));
    menu.addAction(menuIcon(IconGlyph::CameraOn), QStringLiteral("视频通话"))->setEnabled(false);
}

void fillCheckMenu(CMenuEx &menu)
{
    menu.setMenuType(CMenuEx::CheckMenu);
    auto *group = new QActionGroup(&menu);
    for (const char *word : {"在线", "忙碌", "离开"}) {
        QAction *action = group->addAction(menu.addAction(QString::fromUtf8(word)));
        action->setCheckable(true);
    }
    group->actions().constFirst()->setChecked(true);
    QAction *alone = menu.addAction(QStringLiteral("静音"));
    alone->setCheckable(true);
    alone->setChecked(true);
}

void fillPlainMenu(CMenuEx &menu)
{
    menu.setMenuType(CMenuEx::PlainMenu);
    menu.addAction(QObject::tr("cut"))->setShortcut(QKeySequence::Cut);
    menu.addAction(QObject::tr("duplicate"))->setShortcut(QKeySequence::Copy);
    menu.addAction(QObject::tr("paste"))->setEnabled(false);
    menu.addSeparator();
    menu.addAction(QObject::tr("allSelect"))->setShortcut(QKeySequence::SelectAll);
}

/// A picture of the menu with its second entry under the mouse, above a button that opens the menu itself.
QWidget *menuSpecimen(void (*fill)(CMenuEx &))
{
    auto *specimen = new QWidget;
    auto *layout = new QVBoxLayout(specimen);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    CMenuEx example;
    fill(example);
    example.ensurePolished();
    example.resize(example.sizeHint());
    example.setActiveAction(example.actions().at(1));
    layout->addWidget(Sheet::picture(example.grab()));

    auto *menu = new CMenuEx(specimen);
    menu->setObjectName(QStringLiteral("openedMenu"));
    fill(*menu);
    auto *open = new PushButtonEx;
    open->setFixedSize(70, 30);
    open->setText(QStringLiteral("Open"));
    QObject::connect(open, &PushButtonEx::clicked, menu,
                     [open, menu] { menu->popup(open->mapToGlobal(QPoint(0, open->height()))); });
    layout->addWidget(open);
    layout->addStretch();
    return specimen;
}

} // namespace

void KitFields::addLineEdits(Sheet &sheet)
{
    sheet.section(QStringLiteral("CLineEditEx"));
    sheet.row(QStringLiteral("empty with a hint; with text"),
              {hintedEdit(), lineEdit(QStringLiteral("会议室 Room 3"))});
    sheet.row(QStringLiteral("hover; disabled"),
              {Sheet::hovered(lineEdit(QStringLiteral("会议室 Room 3"))), disabledEdit()});
    sheet.row(QStringLiteral("cut to 14 columns"), {limitedEdit(QStringLiteral("一二三四五六七八九十")),
                                                    limitedEdit(QStringLiteral("abcdefghijklmnopqrst"))});
    sheet.row(QStringLiteral("delete button; hidden"), {deletableEdit(true), deletableEdit(false)});
    sheet.row(QStringLiteral("password; empty"), {passwordEdit(QStringLiteral("secret")), passwordEdit(QString())});
}

void KitFields::addTextEdits(Sheet &sheet)
{
    sheet.section(QStringLiteral("CTextEditEx"));
    sheet.row(QStringLiteral("normal; hover"), {textEdit(QStringLiteral("我在开会，稍后回电。")),
                                                Sheet::hovered(textEdit(QStringLiteral("我在开会，稍后回电。")))});
    sheet.row(QStringLiteral("longer than the field; empty"), {textEdit(longText()), textEdit(QString())});
}

void KitFields::addMenus(Sheet &sheet)
{
    sheet.section(QStringLiteral("CMenuEx"),
                  {QStringLiteral("icon menu"), QStringLiteral("check menu"), QStringLiteral("plain menu")});
    sheet.row(QStringLiteral("second entry under the mouse"),
              {menuSpecimen(fillIconMenu), menuSpecimen(fillCheckMenu), menuSpecimen(fillPlainMenu)});
}
