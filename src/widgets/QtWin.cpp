#include "widgets/QtWin.h"

bool QtWin::isCompositionEnabled()
{
    return false;
}

void QtWin::removeAeroWindow(QWidget *) {}

void QtWin::addAeroWindow(QWidget *, int, int, int, int) {}
