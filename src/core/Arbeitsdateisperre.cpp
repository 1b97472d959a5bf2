#include "core/Arbeitsdateisperre.h"

#include "core/Arbeitsdateien.h"
#include "core/Sanduhr.h"
#include "platform/Fehler.h"

namespace vemo {
namespace {

// Long enough for a read-in of another workplace to end, short enough not to keep the user waiting.
constexpr int WartezeitMs = 3000;

} // namespace

Arbeitsdateisperre::Arbeitsdateisperre() : m_datei(arbeitsdatei(datei::Sperre)) {
    // A transfer may wait minutes for the instrument's key, so the age of a lock tells nothing; a
    // lock is stale only when the process that holds it is gone.
    m_datei.setStaleLockTime(0);
    const Sanduhr sanduhr;
    m_gehalten = m_datei.tryLock(WartezeitMs);
    if (!m_gehalten && m_datei.error() != QLockFile::LockFailedError)
        throw fehler::mit(fehler::PfadZugriff, m_datei.fileName());
}

} // namespace vemo
