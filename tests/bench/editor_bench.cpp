// SPDX-License-Identifier: GPL-3.0-or-later
// Measures a document of 10 MB, with all its aids, against one of one screen, against a text box without aids
// and against the toolkit's own plain text box, all in one run: the ratios say whether work grows with the
// text, and what the aids cost.
#include "documents/document_window.h"
#include "documents/text_box.h"
#include "runtime/files.h"
#include "shell/main_window.h"
#include "stopwatch.h"
#include "support/scripted_platform.h"
#include "support/temporary_folder.h"
#include "table.h"

#include <cstddef>
#include <string>

#include <QApplication>
#include <QPlainTextEdit>
#include <QTest>

namespace {

using kav::bench::printRow;
using kav::bench::secondsOf;

constexpr std::size_t kLargeText = 10'000'000;
constexpr std::size_t kOneScreen = 2'000;

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

    const double smallKey = [&] {
        kav::TextBox& small = program.open(text.substr(0, kOneScreen));
        return secondsPerKey(small, *small.viewport());
    }();
    kav::TextBox* large = nullptr;
    const double opening = secondsOf([&] { large = &program.open(text); });
    const double peersOpening = secondsOf([&] { peer.setPlainText(QString::fromStdString(text)); });
    printRow("a document window for 10 MB", opening, peersOpening, "the toolkit's plain text box");
    const double largeKey = secondsPerKey(*large, *large->viewport());
    printRow("a key in 10 MB, until it is painted", largeKey, smallKey, "a key in one screen of text");
    bare.setBytes(text);
    printRow("a key in 10 MB, until it is painted", largeKey, secondsPerKey(bare, *bare.viewport()),
             "a text box without aids");
    printRow("a key in 10 MB, until it is painted", largeKey, secondsPerKey(peer, peer),
             "the toolkit's plain text box, 10 MB");
}
