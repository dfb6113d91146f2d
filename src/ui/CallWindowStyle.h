#pragma once

// The look of the call window: one style sheet for each named part of its form, and one for the window. GUI thread
// only.

#include <array>

class QWidget;

/// The object name of a part and its style sheet in UTF-8.
struct CallWindowStyleRow
{
    const char *pName;
    const char *pStyleSheet;
};

/// All parts that have a style sheet of their own.
/// The one of lblStatus names another label, so it does not take hold: deliberate.
constexpr std::array<CallWindowStyleRow, 8> cCallWindowStyles{{
    {"lblUserName", "QLabel#lblUserName{ color: #313131; font:20px 微软雅黑; }"},
    {"lblStatus", "QLabel#lblUserName{ color: #a5a5a5; font:14px 微软雅黑; }"},
    {"titleWidget", "QWidget#titleWidget{ background-color: #f4f4f4;}"},
    {"lblVoipTipMsg", "QLabel#lblVoipTipMsg{ color: #313131; font:14px 微软雅黑; }"},
    {"controlPaneWidget", "QWidget#controlPaneWidget{ background-color: #4c4c4c;}"},
    {"btnAddMember", "QPushButton#btnAddMember {text-align: center; font: 12px \"微软雅黑\"; color: #005cff; "
                     "background:transparent; }"},
    {"lblLine", "QLabel#lblLine{background-color: #dbdddd;}"},
    {"currentPlayTimeLabel", "QLabel#currentPlayTimeLabel{color: #f3f3f3; font:14px 微软雅黑;}"},
}};

/// The window's own style sheet: the look of the volume sliders.
constexpr const char *cSliderStyleSheet =
    "QSlider::groove:vertical{border-image: url(./Resources/images/skins/bg_slider_vertical.png);}"
    "                       "
    "QSlider::handle:vertical{width:25px;height: 12px;background: #80c84c;margin: 20px 13px;}";

/// Sets the style sheets on the named children of `pWindow`.
void applyCallWindowStyle(QWidget *pWindow);
