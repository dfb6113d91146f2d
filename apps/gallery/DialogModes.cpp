#include "DialogModes.h"

#include "widgets/ErrorMessage.h"
#include "widgets/LineEditEx.h"
#include "widgets/PushButtonEx.h"

#include <QCoreApplication>

namespace {

QString tip()
{
    return QObject::tr("tip");
}

QString accepted(const ErrorMessage &dialog)
{
    return dialog.m_bAccepted ? QStringLiteral("accepted") : QStringLiteral("not accepted");
}

QString showMessage(ErrorMessage &dialog)
{
    dialog.getMsgShow(tip(), QCoreApplication::translate("CVoipManage", "soundfailedinsound"));
    return accepted(dialog);
}

QString showLongMessage(ErrorMessage &dialog)
{
    dialog.getMsgShow(tip(),
                      QStringLiteral("此文件已超过服务器允许的大小，无法发送。请将文件压缩，或分成几个较小的文件，"
                                     "然后逐个发送。"));
    return accepted(dialog);
}

QString askToClose(ErrorMessage &dialog)
{
    dialog.chooseMsgShow(tip(), QCoreApplication::translate("CVoipWidget", "beSureToCloseCalling"));
    return accepted(dialog);
}

QString askForHistory(ErrorMessage &dialog)
{
    dialog.chooseMsgShow(tip(), QObject::tr("lookupHistoryMsg"));
    return accepted(dialog);
}

QString editReply(ErrorMessage &dialog)
{
    return dialog.lineEditShow(QStringLiteral("自动回复"), QStringLiteral("我在开会，稍后回电。"));
}

QString nameGroup(ErrorMessage &dialog)
{
    return dialog.modifyShow(QStringLiteral("新建分组"));
}

QString askForKeyword(ErrorMessage &dialog)
{
    dialog.messagelogTip();
    return accepted(dialog);
}

QString addTag(ErrorMessage &dialog)
{
    return dialog.addLabelToFriend(QStringLiteral("添加标签"));
}

template <int type>
QString complain(ErrorMessage &dialog)
{
    dialog.showHotKeyError(tip(), type);
    return QString();
}

void typeGroup(ErrorMessage &dialog)
{
    dialog.findChild<CLineEditEx *>(QStringLiteral("lineEdit"))->setText(QStringLiteral("同事"));
}

void typeTag(ErrorMessage &dialog)
{
    dialog.findChild<CLineEditEx *>(QStringLiteral("AddLineEdit"))->setText(QStringLiteral("同事"));
}

void acceptBlankTag(ErrorMessage &dialog)
{
    auto *edit = dialog.findChild<CLineEditEx *>(QStringLiteral("AddLineEdit"));
    edit->setText(QStringLiteral("a"));
    edit->setText(QStringLiteral("  "));
    emit dialog.findChild<PushButtonEx *>(QStringLiteral("acceptBtn"))->clicked();
}

} // namespace

const QVector<DialogMode> &DialogModes::all()
{
    static const QVector<DialogMode> modes = {
        {"message", "a message", showMessage, nullptr},
        {"message-long", "a message of several lines", showLongMessage, nullptr},
        {"question", "a question", askToClose, nullptr},
        {"question-history", "a question that leads to the records", askForHistory, nullptr},
        {"reply", "a text of several lines", editReply, nullptr},
        {"group", "one line, still empty", nameGroup, nullptr},
        {"group-filled", "one line, filled in", nameGroup, typeGroup},
        {"keyword", "the wish for a keyword", askForKeyword, nullptr},
        {"tag", "a tag, still empty", addTag, nullptr},
        {"tag-filled", "a tag, filled in", addTag, typeTag},
        {"tag-blank", "a tag of blanks, refused", addTag, acceptBlankTag},
        {"hotkey-message", "the hot key of message picking is taken", complain<0>, nullptr},
        {"hotkey-capture", "the hot key of screen capture is taken", complain<1>, nullptr},
        {"hotkey-other", "another hot key is taken", complain<2>, nullptr},
    };
    return modes;
}
