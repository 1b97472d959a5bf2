#pragma once

namespace vemo {

// The wait cursor for as long as the object lives; nothing when no Ui is assigned.
class Sanduhr {
public:
    Sanduhr();
    ~Sanduhr();
    Sanduhr(const Sanduhr&) = delete;
    Sanduhr& operator=(const Sanduhr&) = delete;
};

} // namespace vemo
