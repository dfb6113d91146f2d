#include "widgets/Compositor.h"

#include <QX11Info>

bool Compositor::isRunning()
{
    return !QX11Info::isPlatformX11() || QX11Info::isCompositingManagerRunning();
}
