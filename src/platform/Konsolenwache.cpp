#include "platform/Konsolenwache.h"

#include <algorithm>

#ifdef Q_OS_WIN
#include <QPointer>
#include <QWinEventNotifier>
#include <windows.h>
#else
#include <QSocketNotifier>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace vemo {

#ifdef Q_OS_WIN

// The console calls its handler on a thread of its own: the signal goes through the event loop.
namespace {
QPointer<Konsolenwache> wache;

BOOL WINAPI beiCtrlC(DWORD art) {
    if (art != CTRL_C_EVENT || !wache)
        return FALSE;
    QMetaObject::invokeMethod(wache.data(), &Konsolenwache::unterbrochen, Qt::QueuedConnection);
    return TRUE;
}

// The console's input events since the last look; true when Enter was pressed among them.
bool enterGedrückt(HANDLE eingabe) {
    INPUT_RECORD ereignisse[64];
    DWORD n = 0;
    if (!ReadConsoleInputW(eingabe, ereignisse, 64, &n))
        return false;
    return std::any_of(ereignisse, ereignisse + n, [](const INPUT_RECORD& e) {
        return e.EventType == KEY_EVENT && e.Event.KeyEvent.bKeyDown &&
               e.Event.KeyEvent.wVirtualKeyCode == VK_RETURN;
    });
}
} // namespace

struct Konsolenwache::Intern {
    QWinEventNotifier eingabe{GetStdHandle(STD_INPUT_HANDLE)};
};

Konsolenwache::Konsolenwache(QObject* parent) : QObject(parent), m_intern(std::make_unique<Intern>()) {
    wache = this;
    SetConsoleCtrlHandler(beiCtrlC, TRUE);
    connect(&m_intern->eingabe, &QWinEventNotifier::activated, this, [this] {
        if (enterGedrückt(m_intern->eingabe.handle()))
            emit zeileEingegeben();
    });
}

Konsolenwache::~Konsolenwache() {
    SetConsoleCtrlHandler(beiCtrlC, FALSE);
}

#else

// The signal handler may only write a byte; the event loop does the rest.
namespace {
int ctrlC[2] = {-1, -1};

void beiCtrlC(int) {
    const char c = 1;
    [[maybe_unused]] const ssize_t n = ::write(ctrlC[0], &c, 1);
}
} // namespace

struct Konsolenwache::Intern {
    std::unique_ptr<QSocketNotifier> abbruch;
    QSocketNotifier eingabe{STDIN_FILENO, QSocketNotifier::Read};
};

Konsolenwache::Konsolenwache(QObject* parent) : QObject(parent), m_intern(std::make_unique<Intern>()) {
    connect(&m_intern->eingabe, &QSocketNotifier::activated, this, [this] {
        char puffer[256];
        const ssize_t n = ::read(STDIN_FILENO, puffer, sizeof puffer);
        if (n <= 0) {
            m_intern->eingabe.setEnabled(false); // standard input is closed: nobody will press Enter
            return;
        }
        if (std::find(puffer, puffer + n, '\n') != puffer + n)
            emit zeileEingegeben();
    });
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ctrlC) != 0)
        return;
    m_intern->abbruch = std::make_unique<QSocketNotifier>(ctrlC[1], QSocketNotifier::Read);
    connect(m_intern->abbruch.get(), &QSocketNotifier::activated, this, [this] {
        char c;
        [[maybe_unused]] const ssize_t n = ::read(ctrlC[1], &c, 1);
        emit unterbrochen();
    });
    struct sigaction aktion {};
    aktion.sa_handler = beiCtrlC;
    sigemptyset(&aktion.sa_mask);
    aktion.sa_flags = SA_RESTART;
    sigaction(SIGINT, &aktion, nullptr);
}

Konsolenwache::~Konsolenwache() {
    signal(SIGINT, SIG_DFL);
    m_intern.reset(); // the notifiers go before their descriptors
    ::close(ctrlC[0]);
    ::close(ctrlC[1]);
}

#endif

} // namespace vemo
