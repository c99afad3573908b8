// SPDX-License-Identifier: GPL-3.0-or-later
// The frame that document windows have on every desktop.
#include "shell/document_frame_style.h"

namespace kav {

namespace {

// 30 pixels of height and 6 of width in all: the caption bar with a border around.
constexpr int kBorder = 3;
constexpr int kCaptionBar = 24;

}  // namespace

DocumentFrameStyle::DocumentFrameStyle() : QProxyStyle("fusion") {}

int DocumentFrameStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                    const QWidget* widget) const {
    switch (metric) {
        case PM_MdiSubWindowFrameWidth:
            return kBorder;
        case PM_TitleBarHeight:
            return kCaptionBar;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

}  // namespace kav
