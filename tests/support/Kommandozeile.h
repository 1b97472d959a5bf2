#pragma once

#include <QString>
#include <QStringList>

namespace vemo::test {

// One run of the command line program: its exit status (-1 when it crashed or did not end in
// time), standard output and standard error.
struct Lauf {
    int status = -1;
    QString aus;
    QString fehler;
};

QString vemo0100Programm();
Lauf vemo0100(const QStringList& argumente, int frist = 30000);

} // namespace vemo::test
