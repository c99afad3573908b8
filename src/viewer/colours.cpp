// SPDX-License-Identifier: GPL-3.0-or-later
// The viewer's colours, made from those of the desktop's theme, so that they suit light and dark ones.
#include "viewer/colours.h"

namespace kav::viewer {

namespace {

QColor mixed(const QColor& base, const QColor& other, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {mix(base.red(), other.red()), mix(base.green(), other.green()), mix(base.blue(), other.blue())};
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}

}  // namespace

QColor errorBackground(const QPalette& palette) {
    return mixed(palette.color(QPalette::Base), Qt::red, isDark(palette) ? 0.35 : 0.20);
}

QColor currentErrorBackground(const QPalette& palette) {
    return mixed(palette.color(QPalette::Base), Qt::red, isDark(palette) ? 0.60 : 0.45);
}

QColor foundBackground(const QPalette& palette) {
    return mixed(palette.color(QPalette::Base), Qt::yellow, isDark(palette) ? 0.30 : 0.55);
}

QString pageStyle(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const QString code = mixed(base, text, 0.07).name();
    const QString head = mixed(base, text, 0.12).name();
    const QString line = mixed(base, text, 0.30).name();
    const QString mistake = errorBackground(palette).name();
    // A link has to stand out from the text and stay readable: themes' own link colour is dark in dark ones.
    const QString link = isDark(palette) ? "#7ab8ff" : "#0b57b0";
    return QString(
               "a { color: %1 }"
               "h1 { margin-top: 6px; margin-bottom: 10px }"
               "h2 { margin-top: 20px; margin-bottom: 6px }"
               "h3 { margin-top: 14px; margin-bottom: 4px }"
               "p, li { margin-bottom: 6px }"
               "pre { background-color: %2; margin: 8px 0px 8px 16px }"
               "pre.message { background-color: %5 }"
               "code, kbd { background-color: %2 }"
               "table { border-collapse: collapse; margin-top: 6px; margin-bottom: 10px;"
               " border: 1px solid %4 }"
               "th { background-color: %3; padding: 4px 8px; text-align: left; border: 1px solid %4 }"
               "td { padding: 4px 8px; border: 1px solid %4 }")
        .arg(link, code, head, line, mistake);
}

QPalette withLastingSelection(QPalette palette) {
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        palette.setColor(QPalette::Inactive, role, palette.color(QPalette::Active, role));
    return palette;
}

}  // namespace kav::viewer
