#include "links/Warten.h"

#include "core/ModulState.h"
#include "platform/Ui.h"

#include <QElapsedTimer>
#include <QThread>

namespace vemo {
namespace {
constexpr int Ruhepause = 2; // ms
} // namespace

void ruhen() {
    QThread::msleep(Ruhepause);
}

void wartenMitEreignissen(int ms) {
    QElapsedTimer uhr;
    uhr.start();
    while (uhr.elapsed() < ms) {
        ui().DoEvents();
        ruhen();
    }
}

} // namespace vemo
