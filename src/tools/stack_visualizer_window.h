// SPDX-License-Identifier: GPL-3.0-or-later
// The stack visualizer.
#pragma once

#include "tools/stack_model.h"
#include "tools/tool_window.h"

#include <array>
#include <cstddef>

#include <QLineEdit>

class QLabel;

namespace kav {

/// A register's value: four characters once it is left, emptied by a click when it is zero.
class RegisterField : public QLineEdit {
    Q_OBJECT

  public:
    using QLineEdit::QLineEdit;

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

/// "Stack Visualizer": pushes six registers onto a stack of boxes and pops them, for reading a program by
/// hand. It opens with an empty stack; F1 tells about it.
class sv : public ToolWindow {
    Q_OBJECT

  public:
    /// `stack` outlives the window and keeps the last popped value.
    sv(Workspace& workspace, QWidget* owner, StackModel& stack);

  private:
    static constexpr std::size_t kRegisters = 6;

    void push(std::size_t index);
    void pop(std::size_t index);
    void about();

    void placeRegister(std::size_t index);
    void placeStack();
    void addAbout();
    void showStack();
    void tell(std::string_view title, std::string_view text);

    StackModel& stack_;
    std::array<RegisterField*, kRegisters> registers_{};
    std::array<QLabel*, StackModel::kSlots> Label1{};
    QLabel* spp = nullptr;
    QLabel* spv = nullptr;
};

}  // namespace kav
