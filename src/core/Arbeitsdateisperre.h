#pragma once

#include <QLockFile>

namespace vemo {

// The working files beside the database belong to one run at a time. A transfer or a file read
// holds this lock, a file beside them, from the first write of a working file until the parser has
// read them and the numbered copy is made, so that two workplaces on one database folder never
// parse each other's dump. The lock goes with the object; one left by a process that died is stale
// and taken over by the next run.
class Arbeitsdateisperre {
public:
    // Waits a few seconds for another run to let go of the files; raises 75 when the lock file
    // cannot be made at all.
    Arbeitsdateisperre();

    // False when another run kept the files all that time.
    bool gehalten() const { return m_gehalten; }

private:
    QLockFile m_datei;
    bool m_gehalten = false;
};

} // namespace vemo
