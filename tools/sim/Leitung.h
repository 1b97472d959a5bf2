#pragma once

#include <QByteArray>

namespace vemo::sim {

// The instrument's end of the cable: where the bytes it sends go.
class Leitung {
public:
    virtual ~Leitung() = default;
    virtual void senden(const QByteArray& bytes) = 0;
};

} // namespace vemo::sim
