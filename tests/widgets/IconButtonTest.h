#pragma once

// What the tests of the icon button share: a button in a shown window under a skin of the test's own, the style sheets
// that it should have, and the mouse on it.

#include "fakes/Patience.h"
#include "widgets/BareWindow.h"
#include "widgets/IconButtonEx.h"
#include "widgets/OwnSkin.h"

#include <QImage>
#include <QPushButton>
#include <QTest>

// What the skin's members are in these tests: no two alike, so that a mixed-up member shows.
inline const QString cIcon = QStringLiteral("#010203");
inline const QString cHover = QStringLiteral("#112233");
inline const QString cThird = QStringLiteral("#445566");
inline const QString cFourth = QStringLiteral("#778899");
inline const QString cFifth = QStringLiteral("#0a141e");
inline const QString cDisabled = QStringLiteral("#abcdef");

inline QString glyphIn(const QString &color)
{
    return QStringLiteral("QPushButton{color: ") + color + QStringLiteral(";background:transparent;}");
}

inline QString glyphIn(const QString &color, const QString &hover)
{
    return glyphIn(color) + QStringLiteral("QPushButton::hover{color: ") + hover +
           QStringLiteral(";background:transparent;}");
}

inline QString background(const QString &rgba)
{
    return QStringLiteral("QWidget{border-radius:2px;background-color:rgba(") + rgba + QStringLiteral(");}");
}

inline QString background(const QString &rgba, const QString &hover)
{
    return background(rgba) + QStringLiteral("QWidget::hover{background-color: ") + hover + QStringLiteral(";}");
}

// A solid block: in its middle a pixel has the glyph's colour alone.
inline const QString cBlock = QStringLiteral("\u2588");

inline const QString cUntouched = QStringLiteral("untouched");

class IconButtonTest : public QObject
{
    Q_OBJECT

protected:
    static constexpr int cSide = 26;

    static QPushButton *inner(const CIconButtonEx &button)
    {
        return button.findChild<QPushButton *>(QStringLiteral("pushButton"));
    }
    static QWidget *back(const CIconButtonEx &button)
    {
        return button.findChild<QWidget *>(QStringLiteral("widgetBG"));
    }
    static QString face(const CIconButtonEx &button) { return inner(button)->styleSheet(); }

    // The colour of the button at that point, which is in the screen's own pixels where the picture is.
    QColor seenAt(int x, int y) const
    {
        const QImage image = m_pButton->grab().toImage();
        return image.pixelColor(QPoint(x, y) * image.devicePixelRatio());
    }

    void moveIn() { m_window.moveTo(m_pButton->geometry().center()); }
    void press(Qt::MouseButton button, const QPoint &at) { mouse(QTest::MousePress, button, at); }
    void release(Qt::MouseButton button, const QPoint &at) { mouse(QTest::MouseRelease, button, at); }
    void mouse(QTest::MouseAction action, Qt::MouseButton button, const QPoint &at)
    {
        const QPoint inWindow = m_pButton->pos() + at;
        if (action == QTest::MousePress) {
            QTest::mousePress(m_window.windowHandle(), button, {}, inWindow);
        } else {
            QTest::mouseRelease(m_window.windowHandle(), button, {}, inWindow);
        }
        QCoreApplication::processEvents();
    }
    void click(Qt::MouseButton button, const QPoint &at)
    {
        press(button, at);
        release(button, at);
    }

    OwnSkin m_skin;
    BareWindow m_window;
    CIconButtonEx *m_pButton = nullptr;

private slots:
    void init()
    {
        m_skin->m_strIconColor = cIcon;
        m_skin->m_strIconHoverColor = cHover;
        m_skin->m_strThirdIconColor = cThird;
        m_skin->m_strFourthIconColor = cFourth;
        m_skin->m_strFifthIconColor = cFifth;
        m_skin->m_strDisabledIconColor = cDisabled;
        m_pButton = new CIconButtonEx(&m_window);
        m_window.showAround(m_pButton, QRect(40, 40, cSide, cSide), QSize(120, 100));
    }

    void cleanup() { m_window.takeAway(m_pButton); }
};
