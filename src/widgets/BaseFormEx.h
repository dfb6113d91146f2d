#pragma once

// The painted background of every frameless window: a rounded panel in the skin's colour, a title strip, a line under
// it and a white body. It is the outermost child of a translucent window and holds the window's content in a layout
// with margins of 3 pixels. The colour is fetched at each paint, so a new skin shows at the next one. GUI thread only;
// Qt's ownership by parent applies.

#include "model/SysUIData.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

namespace Ui {
class CBaseFormEx;
}

class CBaseFormEx : public QWidget
{
    Q_OBJECT

public:
    /// A form without a title strip. `parent` may be null.
    explicit CBaseFormEx(QWidget *parent = nullptr);
    ~CBaseFormEx() override;

    /// Height of the title strip in pixels, scaled for the screen. 0 or less paints no strip.
    void setTitleHeight(int iHeight);

    /// Height of the title strip in pixels as it is.
    void setTitleHeightEx(int iHeight);

    /// Takes the height of the title picture, which is never set: the title height becomes 0. `strPath` is not used.
    void setTitleImage(const QString &strPath);

    /// Left inset of line and body: `iOffset` - 3 pixels. A value below 4 changes nothing.
    void setPaintLineOffset(int iOffset);

    /// True leaves out the white body. The line under the title stays, in spite of the name. Shows at the next paint.
    void setNoSeparate(bool bNoSeparate);

    /// True paints nothing at all. Shows at the next paint.
    void setNoneShadow(bool bNoneShadow);

    /// True resets the body's opacity at each paint to the value it starts with.
    void setWhiteTranspatent(bool bWhiteTranspatent);

    /// Stored; no effect on the look.
    void setOnlyMainWindow(bool bOnlyMainWindow);

    /// Stored; no effect on the look.
    void setPaintPic(bool bPaintPic);

    /// The place of the line under the title, in pixels from the form's top edge.
    int lineTop() const { return m_iTitleHeight + 2; }

    /// Does nothing: the skin is asked for its colour at each paint.
    void setSkinData(SysUIData skin);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintPanel(QPainter &painter) const;
    void paintTitleStrip(QPainter &painter) const;
    void paintLine(QPainter &painter) const;
    void paintBody(QPainter &painter) const;

    std::unique_ptr<Ui::CBaseFormEx> ui;
    int m_iBorderAlpha = 255;
    int m_iBodyAlpha = 230;
    int m_iTitleHeight = 0;
    QPixmap m_titlePixmap;
    bool m_bWhiteTranspatent = false;
    bool m_bOnlyMainWindow = false;
    bool m_bNoneShadow = false;
    int m_iPaintLineOffset = 0;
    bool m_bNoSeparate = false;
    bool m_bPaintPic = false;
};
