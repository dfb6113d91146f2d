#pragma once

#include <QDockWidget>

class HappeningsPanel;
class QMainWindow;

/// The frame of the panel "What happens". It stands in the main window where the screen has room for both, which grows
/// by its width as far as the screen allows; on smaller screens it is a window of its own. The user may drag it out of
/// the main window and back. GUI thread.
class HappeningsDock : public QDockWidget
{
    Q_OBJECT

public:
    /// Takes the panel, and a place in `window`, at whose right it stands. Hidden to begin with.
    HappeningsDock(HappeningsPanel *panel, QMainWindow *window);

    /// Shows or hides the panel.
    void setShown(bool bShown);

    /// By how much the main window is wider for it than the user made it.
    int grown() const { return m_iGrown; }

private:
    void growWindow();
    void shrinkWindow();
    void floatBeside();
    bool isRoomInside() const;

    QMainWindow *m_pWindow;
    HappeningsPanel *m_pPanel;
    int m_iGrown = 0;
};
