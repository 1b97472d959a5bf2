#pragma once

#include <QByteArray>
#include <QString>

namespace vemo {

// Dumps are 8-bit text in the Windows Western code page. Decode at the file boundary, keep
// QString inside; dumps themselves are copied byte for byte, never re-encoded.
QString ausAnsi(const QByteArray& bytes);
QByteArray nachAnsi(const QString& text);

} // namespace vemo
