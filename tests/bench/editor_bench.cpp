// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the text box on a large document against the same on an empty one, and against the toolkit's own
// plain text box, all in one run: the ratios say whether work grows with the document.
#include "documents/text_box.h"

#include <chrono>
#include <cstdio>
#include <string>

#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kLargeText = 10'000'000;

/// Seconds that the action takes.
template <typename Action>
double secondsOf(Action action) {
    const auto start = Clock::now();
    action();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::string largeText() {
    std::string text;
    while (text.size() < kLargeText)
        text += "label: ld a,(hl) ; a line of a usual length\r\n";
    return text;
}

/// Seconds for one key, painted.
template <typename Box>
double secondsPerKey(Box& box, QWidget& target) {
    constexpr int kKeys = 200;
    return secondsOf([&] {
               for (int i = 0; i < kKeys; ++i) {
                   QTest::keyClick(&target, Qt::Key_A);
                   box.repaint();
               }
           }) /
           kKeys;
}

void print(const char* what, double ours, double peers, const char* peer) {
    std::printf("%-34s %12.6f s   %12.6f s %-34s %8.2f\n", what, ours, peers, peer, ours / peers);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    const std::string text = largeText();
    kav::TextBox large;
    kav::TextBox empty;
    QPlainTextEdit peer;
    for (QWidget* box :
         {static_cast<QWidget*>(&large), static_cast<QWidget*>(&empty), static_cast<QWidget*>(&peer)}) {
        box->resize(640, 480);
        box->show();
    }

    std::printf("%-34s %14s   %14s %-34s %8s\n", "", "text box", "", "peer", "ratio");
    const double opening = secondsOf([&] { large.setBytes(text); });
    const double peersOpening = secondsOf([&] { peer.setPlainText(QString::fromStdString(text)); });
    print("a text of 10 MB is put in", opening, peersOpening, "toolkit's plain text box");
    const double largeKey = secondsPerKey(large, *large.viewport());
    print("a key in 10 MB, painted", largeKey, secondsPerKey(empty, *empty.viewport()),
          "a key in an empty text box");
    print("a key in 10 MB, painted", largeKey, secondsPerKey(peer, peer), "toolkit's plain text box, 10 MB");
}
