#pragma once

// The scale helpers for high-resolution screens. All layout code passes its pixel values through them.
// On this platform nothing is scaled: the family keeps its interface and returns what it gets.
// GUI thread; no state that anybody reads.

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

class QWidget;

/// Whether pixel values need scaling: always false.
bool NEED_ADAPT_DPI();

/// Works out the multiple from the screen: does nothing.
void COMPUTE_DPI_MULTIPLE();

/// The multiple by which pixel values are scaled: always 1.0.
double GET_DPI_MULTIPLE();

/// `iValue` pixels, unchanged.
int ADAPT_DPI_INT(int iValue);

/// `dValue` pixels, unchanged.
double ADAPT_DPI_DOUBLE(double dValue);

/// `size`, unchanged, also when it is not valid.
QSize ADAPT_DPI_SIZE(QSize size);

/// `rect`, unchanged, also when it is not valid.
QRect ADAPT_DPI_RECT(QRect rect);

/// The style sheet with its pixel values, unchanged.
QString ADAPT_DPI_STYLESHEET(QString strStyleSheet);

/// `margins`, unchanged.
QMargins ADAPT_DPI_CONTANTMARGINS(QMargins margins);

/// The way back from scaled pixels: `iValue`, undivided.
int ADAPT_DPI_DIVIDE(int iValue);

/// Scales a widget and its children: changes nothing, null is allowed. The widget stays the caller's.
void ADAPT_DPI_WIDGET(QWidget *pWidget);

/// `point`, unchanged.
QPoint ADAPT_DPI_POINT(QPoint point);
