#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <gtest/gtest.h>

namespace vemo::test {

// A working file as bytes; a missing one reads as a text no run writes, so that it never passes for
// an empty file.
inline QByteArray inhalt(const QString& pfad) {
    QFile f(pfad);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<fehlt>");
}

inline void schreiben(const QString& pfad, const QByteArray& bytes) {
    QFile f(pfad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate)) << pfad.toStdString();
    f.write(bytes);
}

} // namespace vemo::test
