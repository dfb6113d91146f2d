#pragma once

// What the tests of the message dialog share: running one of its modes while it is on the screen, and its parts by
// name. GUI thread.

#include "fakes/ClickTarget.h"
#include "fakes/Patience.h"
#include "widgets/ErrorMessage.h"
#include "widgets/PushButtonEx.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <functional>

namespace ShownDialog {

/// Runs `act` once the dialog is on the screen, then closes it if it is still open. The modal operations return only
/// when it is closed.
inline void whenShown(ErrorMessage &dialog, const std::function<void()> &act)
{
    QTimer::singleShot(0, &dialog, [&dialog, act] {
        if (QTest::qWaitForWindowExposed(&dialog, cPatienceMs)) {
            act();
        }
        if (dialog.isVisible()) {
            dialog.close();
        }
    });
}

template <typename Widget>
Widget *part(const ErrorMessage &dialog, const char *name)
{
    return dialog.findChild<Widget *>(QLatin1String(name));
}

inline PushButtonEx *button(const ErrorMessage &dialog, const char *name)
{
    return part<PushButtonEx>(dialog, name);
}

/// The button within the kit's button.
inline QPushButton *inner(const ErrorMessage &dialog, const char *name)
{
    return button(dialog, name)->findChild<QPushButton *>();
}

inline QString text(const ErrorMessage &dialog, const char *name)
{
    return part<QLabel>(dialog, name)->text();
}

/// The object name of the page that is shown.
inline QString page(const ErrorMessage &dialog)
{
    return part<QStackedWidget>(dialog, "stackedWidget")->currentWidget()->objectName();
}

inline void click(const ErrorMessage &dialog, const char *name)
{
    QTest::mouseClick(clickTarget(part<QWidget>(dialog, name)), Qt::LeftButton);
}

/// Presses Ctrl+V over `pTarget` with this text on the clipboard.
inline void paste(QWidget *pTarget, const QString &strText)
{
    QGuiApplication::clipboard()->setText(strText);
    QTest::keyClick(pTarget, Qt::Key_V, Qt::ControlModifier);
}

/// A text of so many Chinese characters.
inline QString chinese(int iCount)
{
    return QString(iCount, QChar(0x4E2D));
}

} // namespace ShownDialog
