// SPDX-License-Identifier: GPL-3.0-or-later
// The frame that document windows have on every desktop.
#pragma once

#include <QProxyStyle>

namespace kav {

/// Document windows give 450 twips of their height and 100 of their width to caption bar and borders; this
/// style draws both so that they fit, and the text box is never cut off.
class DocumentFrameStyle : public QProxyStyle {
    Q_OBJECT

  public:
    DocumentFrameStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace kav
