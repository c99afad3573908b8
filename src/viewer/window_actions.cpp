// SPDX-License-Identifier: GPL-3.0-or-later
// The tool bar and the keys that the viewer's windows share.
#include "viewer/window_actions.h"

#include <utility>

namespace kav::viewer {

QToolBar* makeToolBar(QMainWindow& window) {
    QToolBar* bar = window.addToolBar("Tools");
    bar->setObjectName("toolBar");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    window.setContextMenuPolicy(Qt::NoContextMenu);
    return bar;
}

QAction* addCommand(QMainWindow& window, QToolBar& bar, const QString& name, const QString& text,
                    const QList<QKeySequence>& keys, std::function<void()> run) {
    auto* action = new QAction(text, &window);
    action->setObjectName(name);
    action->setShortcuts(keys);
    action->setToolTip(QString("%1 (%2)").arg(text, keys.front().toString(QKeySequence::NativeText)));
    QObject::connect(action, &QAction::triggered, &window, std::move(run));
    bar.addAction(action);
    return action;
}

}  // namespace kav::viewer
