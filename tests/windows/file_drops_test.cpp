// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/clipboard_text.h"
#include "shell/preferences_file.h"
#include "windows/main_window_fixture.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>

namespace kav::test {

class Drop : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
    }

    [[nodiscard]] QUrl written(const std::string& name, const std::string& content) {
        writeFile(folder_.file(name), content);
        return url(name);
    }
    [[nodiscard]] QUrl url(const std::string& name) {
        return QUrl::fromLocalFile(QString::fromStdString(folder_.file(name)));
    }

    /// Drags the data over the widget and drops it there; false when the widget would not have it.
    static bool dropOn(QWidget& widget, const QMimeData& data, QPoint at = {30, 5}) {
        QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&widget, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent drop(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &drop);
        QCoreApplication::processEvents();
        return drop.isAccepted();
    }

    static bool dropFilesOn(QWidget& widget, const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        // What file managers add for those who take text only.
        data.setText(urls.first().toString());
        return dropOn(widget, data);
    }
};

TEST_F(Drop, OfAFileOnTheWindowOpensIt) {
    EXPECT_TRUE(dropFilesOn(compiler(), {written("a.z80", " ret\r\n")}));
    EXPECT_EQ(active().caption(), "Doc 2\t" + folder_.file("a.z80"));
    EXPECT_EQ(active().txt().bytes(), " ret\r\n");
    EXPECT_FALSE(active().isModified());
    EXPECT_EQ(compiler().menuItem("fil", 1)->text().toStdString(), folder_.file("a.z80"));
}

TEST_F(Drop, OfAFileOnATextOpensItAndLeavesTheText) {
    Doc& document = active();
    const QUrl file = written("a.z80", " ret\r\n");
    EXPECT_TRUE(dropFilesOn(*document.txt().viewport(), {file}));
    EXPECT_EQ(document.txt().bytes(), "");
    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(active().txt().bytes(), " ret\r\n");
}

TEST_F(Drop, OfSeveralFilesOpensEach) {
    EXPECT_TRUE(dropFilesOn(*compiler().statusBar(), {written("a.z80", "a"), written("b.z80", "b")}));
    ASSERT_EQ(documents().size(), 3);
    EXPECT_EQ(documents()[1]->txt().bytes(), "a");
    EXPECT_EQ(documents()[2]->txt().bytes(), "b");
}

TEST_F(Drop, OfWhatCannotBeOpenedIsReportedAsOpenDoes) {
    makeFolder(folder_.file("folder"));
    desktop_.boxes.answers = {BoxAnswer::Ignore, BoxAnswer::Ignore};
    EXPECT_TRUE(dropFilesOn(compiler(), {url("folder"), url("none.z80"), written("a.z80", "a")}));
    ASSERT_EQ(desktop_.boxes.shownBoxes.size(), 2U);
    EXPECT_NE(desktop_.boxes.shownBoxes[0].text.find("Error 75in module load_Click: "), std::string::npos);
    EXPECT_NE(desktop_.boxes.shownBoxes[1].text.find("Error 53in module load_Click: "), std::string::npos);
    EXPECT_EQ(documents().size(), 2);
    EXPECT_EQ(active().txt().bytes(), "a");
}

TEST_F(Drop, OfTextGoesIntoTheTextWithItsLineEndsMade) {
    QMimeData data;
    data.setText("one\ntwo\r\nthree");
    EXPECT_TRUE(dropOn(*active().txt().viewport(), data));
    EXPECT_EQ(active().txt().bytes(), "one\r\ntwo\r\nthree");
    EXPECT_TRUE(active().isModified());
}

TEST_F(Drop, OfTheProgramsOwnTextKeepsItsBytes) {
    const std::string text("a\nb\rc\r\nd\0\xFF", 10);
    const std::unique_ptr<QMimeData> data(mimeDataOf(text));
    EXPECT_TRUE(dropOn(*active().txt().viewport(), *data));
    EXPECT_EQ(active().txt().bytes(), text);
}

TEST_F(Drop, OfAnAddressElsewhereIsText) {
    QMimeData data;
    data.setUrls({QUrl("https://example.org/a.z80")});
    data.setText("https://example.org/a.z80");
    EXPECT_TRUE(dropOn(*active().txt().viewport(), data));
    EXPECT_EQ(active().txt().bytes(), "https://example.org/a.z80");
    EXPECT_FALSE(dropOn(compiler(), data));
    EXPECT_EQ(documents().size(), 1);
}

}  // namespace kav::test
