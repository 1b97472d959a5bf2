#pragma once

#include <QString>
#include <memory>

namespace vemo {

class Datenbank;
class Fehler;

namespace detail {
class Verbindung;
}

// Writes that stand or fall together: what is written while the object lives commits at commit(),
// and is rolled back when it ends without one, as when an error leaves the unit half done. On a
// database file it takes the write lock at once, waiting for another writer under the busy timeout,
// so that a lock held elsewhere stops the unit before it has written anything; on a server each row
// it edits is locked, and waits the same way. Record sets that change rows meanwhile take their
// holds inside it and commit nothing of their own.
class Transaktion {
public:
    explicit Transaktion(const Datenbank& db);
    ~Transaktion();
    Transaktion(const Transaktion&) = delete;
    Transaktion& operator=(const Transaktion&) = delete;

    void commit(); // raises the store's error when the commit fails; nothing is written then
    // Holds the part of the data the name stands for until the unit ends: a unit of another
    // workplace that names it too waits for this one, under the busy timeout.
    void bereichSperren(const QString& bereich);

private:
    std::shared_ptr<detail::Verbindung> m_v;
};

// The store itself failed: locked past the busy timeout, the disk full, an I/O error, a file that
// cannot be written or is damaged. That is no fault of the value or statement at hand, so no step
// may take it for one and go on.
bool istSpeicherausfall(const Fehler& f);

} // namespace vemo
