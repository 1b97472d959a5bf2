#pragma once

#include "platform/Fehler.h"

#include <functional>

namespace vemo::test {

// The number of the error a call raises, 0 when it raises none: an expected failure compared in one
// line.
inline int fehlernummer(const std::function<void()>& aufruf) {
    try {
        aufruf();
    } catch (const Fehler& f) {
        return f.nummer();
    }
    return 0;
}

} // namespace vemo::test
