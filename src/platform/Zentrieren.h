#pragma once

class QWidget;

namespace vemo {

// Centres a dialog over the host's main window: left = host left + host width / 2 - dialog width / 2,
// top likewise, neither below 0. Without a host window the dialog centres on its screen.
void DialogZentrieren(QWidget& dialog, const QWidget* host);

} // namespace vemo
