// SPDX-License-Identifier: GPL-3.0-or-later
// Measures a document of 10 MB, with all its aids, against one of one screen, against a text box without aids
// and against the toolkit's own plain text box, all in one run: the ratios say whether work grows with the
// text, and what the aids cost.
#include "documents/document_window.h"
#include "documents/text_box.h"
#include "runtime/files.h"
#include "shell/main_window.h"
#include "support/scripted_platform.h"
#include "support/temporary_folder.h"

#include <chrono>
#include <cstdio>
#include <string>

#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kLargeText = 10'000'000;
constexpr std::size_t kOneScreen = 2'000;

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

/// The program over an application folder of its own, with no document open.
class Program {
  public:
    Program() : compiler_(desktop_.platform(), kav::ApplicationFolder(folder_.path().string())) {
        kav::makeFolder(folder_.file("Projects"));
        kav::Preferences preferences;
        preferences.fontName = "DejaVu Sans Mono";
        preferences.fontSize = 12;
        kav::writeFile(folder_.file("prefs.ini"), kav::formatPreferences(preferences));
        compiler_.resize(1024, 768);
        compiler_.show();
        compiler_.load({});
        compiler_.activeDocument()->close();
    }

    /// The text box of a new document.
    kav::TextBox& open(const std::string& text) {
        compiler_.newfile(text);
        kav::Doc* document = compiler_.activeDocument();
        document->resize(640, 480);
        QCoreApplication::processEvents();
        return document->txt();
    }

  private:
    kav::test::TemporaryFolder folder_;
    kav::test::ScriptedPlatform desktop_;
    kav::Compiler compiler_;
};

}  // namespace

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    const std::string text = largeText();
    Program program;
    kav::TextBox bare;
    QPlainTextEdit peer;
    for (QWidget* box : {static_cast<QWidget*>(&bare), static_cast<QWidget*>(&peer)}) {
        box->resize(640, 480);
        box->show();
    }
    bare.setTextFont("DejaVu Sans Mono", 12);

    std::printf("%-34s %14s   %14s %-34s %8s\n", "", "document", "", "peer", "ratio");
    const double smallKey = [&] {
        kav::TextBox& small = program.open(text.substr(0, kOneScreen));
        return secondsPerKey(small, *small.viewport());
    }();
    kav::TextBox* large = nullptr;
    const double opening = secondsOf([&] { large = &program.open(text); });
    const double peersOpening = secondsOf([&] { peer.setPlainText(QString::fromStdString(text)); });
    print("a text of 10 MB is opened", opening, peersOpening, "toolkit's plain text box");
    const double largeKey = secondsPerKey(*large, *large->viewport());
    print("a key in 10 MB, painted", largeKey, smallKey, "a key in one screen of text");
    bare.setBytes(text);
    print("a key in 10 MB, painted", largeKey, secondsPerKey(bare, *bare.viewport()),
          "a text box without aids");
    print("a key in 10 MB, painted", largeKey, secondsPerKey(peer, peer), "toolkit's plain text box, 10 MB");
}
