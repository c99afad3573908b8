// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/failure.h"
#include "windows/main_window_fixture.h"

#include <QDialog>
#include <QMenu>
#include <QScrollBar>

namespace kav::test {

class DocumentWindow : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
    }

    void setWholeText(const std::string& text) { active().txt().setBytes(text); }

    /// The text box with its scroll bars lies within what the window shows of it.
    static void expectNothingCutOff(const Doc& document) {
        const QRect box(document.txt().mapTo(&document, QPoint(0, 0)), document.txt().size());
        EXPECT_TRUE(document.contentsRect().contains(box))
            << "the text box ends at " << box.right() << "," << box.bottom() << ", the window's inside at "
            << document.contentsRect().right() << "," << document.contentsRect().bottom();
        const QRect client = document.widget()->geometry();
        EXPECT_TRUE(client.contains(box)) << "client area " << client.right() << "," << client.bottom();
    }
};

TEST_F(DocumentWindow, TypingBackToTheFormerTextStillCountsAsModified) {
    EXPECT_FALSE(active().isModified());
    QTest::keyClicks(active().txt().viewport(), "a");
    QTest::keyClick(active().txt().viewport(), Qt::Key_Backspace);
    EXPECT_EQ(active().txt().bytes(), "");
    EXPECT_TRUE(active().isModified());
}

TEST_F(DocumentWindow, NumbersAreNeverReused) {
    active().close();
    choose("newasm");
    EXPECT_EQ(active().caption(), "Doc 2\tUntitled");
}

TEST_F(DocumentWindow, TheTextBoxFillsItsWindowByTheRule) {
    active().resize(500, 400);
    EXPECT_EQ(active().txt().size(), QSize(500 - 7, 400 - 30));
}

TEST_F(DocumentWindow, NothingOfTheTextBoxIsCutOffAtAnySize) {
    setWholeText(std::string(500, 'x'));
    for (const QSize size : {QSize(160, 90), QSize(333, 222), QSize(640, 480), QSize(1500, 1100)}) {
        active().resize(size);
        expectNothingCutOff(active());
    }
}

TEST_F(DocumentWindow, AMaximizedWindowIsFilledWhollyAndGoesBackToTheRule) {
    active().resize(500, 400);
    active().showMaximized();
    EXPECT_EQ(active().txt().size(), active().contentsRect().size());
    expectNothingCutOff(active());
    active().showNormal();
    EXPECT_EQ(active().txt().size(), QSize(active().width() - 7, active().height() - 30));
}

TEST_F(DocumentWindow, AMinimizedWindowKeepsItsTextBox) {
    active().resize(500, 400);
    Doc& document = active();
    document.showMinimized();
    EXPECT_EQ(document.txt().size(), QSize(493, 370));
}

TEST_F(DocumentWindow, ATriggerPhraseAsTheWholeTextIsReplacedAtOnce) {
    setWholeText("I HATE MIRAGEOS!");
    EXPECT_EQ(
        active().txt().bytes(),
        "So do we, DUCKOS FOREVER QUACK, QUACK, QUACK!!!!!!!!!!!!!!!!!!! (Its best not to think about it:)");
}

TEST_F(DocumentWindow, ATriggerPhraseTypedByHandIsReplacedToo) {
    QTest::keyClicks(active().txt().viewport(), "I HATE MIRAGEOS!");
    QCoreApplication::processEvents();
    EXPECT_TRUE(active().txt().bytes().starts_with("So do we"));
}

TEST_F(DocumentWindow, ATriggerPhraseInsideOtherTextDoesNothing) {
    setWholeText("I HATE MIRAGEOS! ");
    EXPECT_EQ(active().txt().bytes(), "I HATE MIRAGEOS! ");
}

TEST_F(DocumentWindow, TheFirstVerseTurnsTheTextItalicForGood) {
    setWholeText("In the darkness bind them");
    const auto italic = [this] {
        return active().txt().SendScintilla(QsciScintillaBase::SCI_STYLEGETITALIC, 0UL) != 0;
    };
    EXPECT_TRUE(italic());
    setWholeText("x");
    EXPECT_TRUE(italic());
}

TEST_F(DocumentWindow, TheDeathbedTellsTheSecondsOfUse) {
    compiler().values().usageSeconds = 4242;
    setWholeText("On their deathbed");
    EXPECT_NE(active().txt().bytes().find("You spent a total of 4242 seconds with KAV Compiler running."),
              std::string::npos);
}

TEST_F(DocumentWindow, ALaughStartsTheBrowserAndLeavesTheText) {
    setWholeText("Make me laugh");
    ASSERT_EQ(desktop_.launcher.launches.size(), 1U);
    EXPECT_TRUE(desktop_.launcher.launches[0].commandLine.starts_with(
        "C:\\Program Files\\Internet Explorer\\iexplore.exe "));
    EXPECT_EQ(desktop_.launcher.launches[0].style, WindowStyle::MaximizedFocus);
    EXPECT_EQ(active().txt().bytes(), "Make me laugh");
}

TEST_F(DocumentWindow, ABrowserThatIsNotThereIsReported) {
    desktop_.launcher.process = [](const std::string&) { throw failureOf(kFileNotFound); };
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    setWholeText("Make me laugh");
    EXPECT_NE(desktop_.boxes.shownBoxes.at(0).text.find("Error 53in module txt_Change: "), std::string::npos);
}

TEST_F(DocumentWindow, ARequestedDocumentComesToTheFrontAndTheRequestIsTaken) {
    choose("newasm");
    ASSERT_EQ(active().caption(), "Doc 2\tUntitled");
    compiler().requestDocument("1");
    EXPECT_TRUE(QTest::qWaitFor([this] { return compiler().values().gotoDocument == "0"; }));
    EXPECT_EQ(active().caption(), "Doc 1\tUntitled");
}

TEST_F(DocumentWindow, DocumentsOneAndTwelveBothAnswerARequestForOne) {
    for (int i = 0; i < 11; ++i)
        choose("newasm");
    compiler().requestDocument("1");
    EXPECT_TRUE(QTest::qWaitFor([this] { return compiler().values().gotoDocument == "0"; }));
    EXPECT_EQ(active().caption().at(4), '1');
}

TEST_F(DocumentWindow, ARequestNobodyAnswersStaysPendingAndWakesNobody) {
    compiler().requestDocument("2");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !active().watchesForRequest(); }));
    EXPECT_EQ(compiler().values().gotoDocument, "2");
    choose("newasm");
    EXPECT_TRUE(QTest::qWaitFor([this] { return compiler().values().gotoDocument == "0"; }));
}

TEST_F(DocumentWindow, AnIdleDocumentHasNoTimerRunning) {
    EXPECT_FALSE(active().watchesForRequest());
}

TEST_F(DocumentWindow, TilesAndCascadesFillTheFrame) {
    choose("newasm");
    choose("arr", 1);
    QList<Doc*> rows = documents();
    EXPECT_EQ(rows[0]->width(), rows[1]->width());
    EXPECT_NE(rows[0]->y(), rows[1]->y());
    choose("arr", 2);
    EXPECT_EQ(rows[0]->height(), rows[1]->height());
    EXPECT_NE(rows[0]->x(), rows[1]->x());
    for (const Doc* document : rows)
        expectNothingCutOff(*document);
    choose("arr", 0);
    EXPECT_NE(rows[0]->pos(), rows[1]->pos());
    EXPECT_NE(rows[0]->x(), 0 + rows[1]->x());
}

TEST_F(DocumentWindow, IconsAreArrangedAlongTheLowerEdge) {
    choose("newasm");
    Doc& document = active();
    document.showMinimized();
    document.move(200, 50);
    choose("arr", 3);
    EXPECT_EQ(document.pos().x(), 0);
    EXPECT_EQ(document.geometry().bottom() + 1, document.mdiArea()->viewport()->height());
}

TEST_F(DocumentWindow, ADialogTakesTheMouseFromADocumentThatIsSizedByKeys) {
    for (QAction* entry : active().systemMenu()->actions()) {
        if (entry->text() == "&Size") entry->trigger();
    }
    ASSERT_EQ(QWidget::mouseGrabber(), &active());
    QDialog dialog(&compiler());
    dialog.setModal(true);
    dialog.show();
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
}

}  // namespace kav::test
