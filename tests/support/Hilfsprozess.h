#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace vemo::test {

// A role in which a test program runs a second time, as a process of its own beside the test that
// starts it: for tests of several writers on one database. A role is registered by a static object
// in the test's file and named by the program's first argument.
class Hilfsprozess {
public:
    using Ablauf = std::function<int(const QStringList& argumente)>;

    Hilfsprozess(const QString& rolle, Ablauf ablauf);

    // Runs the role the arguments name, giving its exit status; nothing when they name none.
    static std::optional<int> ausführen(const QStringList& argumente);
    // Starts this program in a role.
    static void starten(QProcess& prozess, const QString& rolle, const QStringList& argumente);
};

} // namespace vemo::test
