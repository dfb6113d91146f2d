#include "common/system/DpiScale.h"

namespace {

// Deliberately kept, though nothing on this platform reads it.
bool sg_bDpiInited = false;

void noteFirstUse()
{
    sg_bDpiInited = true;
}

} // namespace

bool NEED_ADAPT_DPI()
{
    return false;
}

void COMPUTE_DPI_MULTIPLE() {}

double GET_DPI_MULTIPLE()
{
    noteFirstUse();
    return 1.0;
}

int ADAPT_DPI_INT(int iValue)
{
    noteFirstUse();
    return iValue;
}

double ADAPT_DPI_DOUBLE(double dValue)
{
    noteFirstUse();
    return dValue;
}

QSize ADAPT_DPI_SIZE(QSize size)
{
    noteFirstUse();
    return size;
}

QRect ADAPT_DPI_RECT(QRect rect)
{
    noteFirstUse();
    return rect;
}

QString ADAPT_DPI_STYLESHEET(QString strStyleSheet)
{
    noteFirstUse();
    return strStyleSheet;
}

QMargins ADAPT_DPI_CONTANTMARGINS(QMargins margins)
{
    noteFirstUse();
    return margins;
}

int ADAPT_DPI_DIVIDE(int iValue)
{
    noteFirstUse();
    return iValue;
}

void ADAPT_DPI_WIDGET(QWidget * /*pWidget*/)
{
    noteFirstUse();
}

QPoint ADAPT_DPI_POINT(QPoint point)
{
    noteFirstUse();
    return point;
}
