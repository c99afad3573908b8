// SPDX-License-Identifier: GPL-3.0-or-later
// The wizard for MirageOS programs.
#include "tools/mirage_wizard_window.h"

#include "documents/caption.h"
#include "platform/desktop/text_conversion.h"
#include "runtime/code_points.h"
#include "shell/trapped.h"

#include <initializer_list>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QValidator>

namespace kav {

namespace {

constexpr const char* kInstructions =
    "Design the MirageOS button below. Right click to remove a pixil, left click to place. If you find the "
    "colors destracting, or have a slower computer clear the Use 3D effect box to draw dull, green circles.";

QPointF centreOf(Cell cell) {
    return {static_cast<double>(cell.x), static_cast<double>(cell.y + kButtonGridTop)};
}

/// Lets a description have no more characters than it may: of what is put in, the last ones are left out.
/// The box's own limit would count a character beyond the basic plane twice and could cut it in two.
class DescriptionLimit : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int& caret) const override {
        const std::string after = typed(text.mid(caret));
        const std::size_t length = characterCount(typed(text));
        if (length <= kMirageDescriptionLength) return Acceptable;
        const std::size_t lengthAfter = characterCount(after);
        if (lengthAfter > kMirageDescriptionLength) return Invalid;
        const QString before =
            shown(firstCharacters(typed(text.left(caret)), kMirageDescriptionLength - lengthAfter));
        text = before + shown(after);
        caret = static_cast<int>(before.size());
        return Acceptable;
    }
};

}  // namespace

Form1::Form1(Workspace& workspace, QWidget* owner, ButtonBitmap& button)
    : DrawingWindow(workspace, owner, "Form1", "New MirageOS Program",
                    {ButtonBitmap::kColumns + 1.0, ButtonBitmap::kRows + kButtonGridTop + 1.0}),
      button_(button) {
    resize(pixelsOf(8865), pixelsOf(9795));
    placeControls();
    Text1->setValidator(new DescriptionLimit(Text1));
    Check1->setChecked(true);
    Option1->setChecked(true);
    Option2_Toggled(false);
    connect(Option2, &QRadioButton::toggled, this, &Form1::Option2_Toggled);
    connect(Check1, &QCheckBox::clicked, this, &Form1::Command1_Click);
}

void Form1::placeControls() {
    place<QLabel>("Label1", kInstructions, {0, 0, 8775, 375})->setWordWrap(true);
    auto* description = place<QLabel>("Label3", "Description", {0, 480, 855, 255});
    Text1 = place<QLineEdit>("Text1", "", {840, 480, 5295, 285});
    Check1 = place<QCheckBox>("Check1", "Use 3D effect", {6120, 480, 2655, 255});
    auto* refresh = place<QPushButton>("Command1", "Refresh", {7560, 480, 1215, 255});
    Option1 = place<QRadioButton>("Option1", "Standerd MirageOS program", {0, 840, 2415, 255});
    Option2 = place<QRadioButton>("Option2", "MirageOS Program with exit code", {2400, 840, 2775, 255});
    Label2 = place<QLabel>("Label2", "Label to call on quit", {5280, 840, 1455, 255});
    Text2 = place<QLineEdit>("Text2", "", {6840, 840, 1935, 285});
    auto* ok = place<QPushButton>("Command2", "OK", {0, 9480, 4395, 315});
    auto* cancel = place<QPushButton>("Command3", "Cancel", {4440, 9480, 4395, 315});
    for (QWidget* control : std::initializer_list<QWidget*>{description, Check1, Option1, Option2, Label2})
        narrowToFit(*control);
    connect(refresh, &QPushButton::clicked, this, &Form1::Command1_Click);
    connect(ok, &QPushButton::clicked, this, &Form1::Command2_Click);
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
}

void Form1::selectKind(MirageKind kind) {
    (kind == MirageKind::standard ? Option1 : Option2)->setChecked(true);
}

void Form1::Option2_Toggled(bool withExitCode) {
    Label2->setVisible(withExitCode);
    Text2->setVisible(withExitCode);
}

void Form1::mousePressEvent(QMouseEvent* event) {
    buttonIsDown_ = true;
    paintCell(*event, "Form_MouseDown");
}

void Form1::mouseMoveEvent(QMouseEvent* event) {
    if (buttonIsDown_) paintCell(*event, "Form_MouseMove");
}

void Form1::mouseReleaseEvent(QMouseEvent* /*event*/) {
    buttonIsDown_ = false;
}

void Form1::paintCell(const QMouseEvent& event, const char* handler) {
    const QPointF at = placeOf(event);
    const auto cell = buttonCellAt(at.x(), at.y());
    if (!cell) return;
    const bool set = setsCells(event);
    trapped(workspace(), handler, [&] {
        try {
            button_.setCell(*cell, set);
        } catch (const Failure&) {
            // The report's box takes the release of the mouse button with it.
            buttonIsDown_ = false;
            throw;
        }
        showCell(*cell, set);
    });
}

void Form1::showCell(Cell cell, bool set) {
    if (set) {
        drawCell(cell);
    } else if (Check1->isChecked()) {
        surface().drawErasingDisc(centreOf(cell));
    } else {
        // A flat circle runs into its neighbours' and cannot be erased alone.
        Command1_Click();
    }
    update();
}

void Form1::drawCell(Cell cell) {
    if (Check1->isChecked()) {
        surface().drawGradientDisc(centreOf(cell), workspace().platform().random);
    } else {
        surface().drawFlatDisc(centreOf(cell));
    }
}

void Form1::Command1_Click() {
    redraw(button_, [this](Cell cell) { drawCell(cell); });
}

void Form1::Command2_Click() {
    newProgram(Option1->isChecked() ? MirageKind::standard : MirageKind::withExitCode);
    close();
}

void Form1::newProgram(MirageKind kind) {
    const MirageProgramText program{kind, toDbText(button_), typed(Text1->text()), typed(Text2->text())};
    workspace().values().nextDocumentTitle = kUntitled;
    workspace().newfile(program.text());
}

}  // namespace kav
