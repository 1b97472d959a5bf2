#include "platform/Zentrieren.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace vemo {

void DialogZentrieren(QWidget& dialog, const QWidget* host) {
    const QRect rahmen = host && host->isVisible() ? host->frameGeometry()
                                                   : QGuiApplication::primaryScreen()->availableGeometry();
    const QSize größe = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
    const double links = rahmen.left() + rahmen.width() / 2.0 - größe.width() / 2.0;
    const double oben = rahmen.top() + rahmen.height() / 2.0 - größe.height() / 2.0;
    dialog.move(int(std::max(0.0, links)), int(std::max(0.0, oben)));
}

} // namespace vemo
