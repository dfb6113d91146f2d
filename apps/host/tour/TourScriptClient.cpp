// The words about the client's own window and its settings page.

#include "tour/TourScript.h"

#include "panes/MainWindow.h"
#include "screen/ScreenKeys.h"
#include "screen/WindowProbe.h"
#include "tour/TourHand.h"

#include <QApplication>
#include <QToolTip>

TourScript::Action TourScript::pressContact(const char *strUid, const char *strButton) const
{
    return click([window = &m_stage.window, strUid, strButton] {
        return WindowProbe::button(window->findChild<QWidget *>(QLatin1String(strUid)), strButton);
    });
}

TourScript::Action TourScript::hoverContact(const char *strUid, const char *strButton) const
{
    return hover([window = &m_stage.window, strUid, strButton] {
        const auto *row = window->findChild<QWidget *>(QLatin1String(strUid));
        auto *button = row->findChild<QWidget *>(QLatin1String(strButton));
        return WindowProbe::Spot{button, button->rect().center()};
    });
}

TourCheck TourScript::tipSays(const QString &strText)
{
    return {QStringLiteral("the tip says %1").arg(strText),
            [strText] { return QToolTip::isVisible() && QToolTip::text() == strText; }};
}

TourScript::Action TourScript::pressMain(const char *strButton) const
{
    return click([window = &m_stage.window, strButton] { return WindowProbe::button(window, strButton); });
}

TourScript::Action TourScript::pressSettings(const QString &strButton) const
{
    return click([window = &m_stage.window, strButton] {
        return WindowProbe::button(&window->settingsPage(), qPrintable(strButton));
    });
}

TourScript::Action TourScript::typeInto(const char *strEdit, const QString &strText) const
{
    return [hand = &m_stage.hand, press = pressMain(strEdit), strEdit, strText, bPressed = false]() mutable {
        bPressed = bPressed || press();
        const QWidget *focus = QApplication::focusWidget();
        return hand->isIdle() && focus != nullptr && focus->objectName() == QLatin1String(strEdit) &&
               ScreenKeys().type(strText);
    };
}

TourCheck TourScript::mainSays(const char *strPart, const QString &strText) const
{
    return {QStringLiteral("the client says %1").arg(strText),
            [window = &m_stage.window, strPart, strText] { return WindowProbe::text(window, strPart) == strText; }};
}

TourCheck TourScript::mainShows(const char *strPart, bool bShown) const
{
    const QString words = bShown ? QStringLiteral("the client shows %1") : QStringLiteral("the client hides %1");
    return {words.arg(QLatin1String(strPart)),
            [window = &m_stage.window, strPart, bShown] { return WindowProbe::isShown(window, strPart) == bShown; }};
}
