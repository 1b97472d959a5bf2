#pragma once

#include "store/Recordset.h"

namespace vemo {

// What a logger series writes (the inspection, its certificate record and equipment, the head row,
// the points) is written together or not at all. A pending AddNew holds the store's write lock, and
// the rows the other cursors write meanwhile wait for its release; here COMMIT ends that
// transaction when everything is written, and ROLLBACK when a fault comes first, so that the
// release finds nothing left to commit.
class Reihentransaktion {
public:
    Reihentransaktion();
    ~Reihentransaktion();
    Reihentransaktion(const Reihentransaktion&) = delete;
    Reihentransaktion& operator=(const Reihentransaktion&) = delete;

    // Raises when the commit fails; the transaction is then rolled back when it goes.
    void festschreiben();

private:
    Recordset m_halter;
    bool m_festgeschrieben = false;
};

} // namespace vemo
