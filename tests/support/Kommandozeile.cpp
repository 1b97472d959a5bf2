#include "support/Kommandozeile.h"

#include <QProcess>

namespace vemo::test {

QString vemo0100Programm() {
    return QString(VEMO_BIN_DIR) + "/vemo0100";
}

Lauf vemo0100(const QStringList& argumente, int frist) {
    QProcess p;
    p.start(vemo0100Programm(), argumente);
    if (!p.waitForFinished(frist))
        p.kill();
    p.waitForFinished();
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromLocal8Bit(p.readAllStandardOutput()),
            QString::fromLocal8Bit(p.readAllStandardError())};
}

} // namespace vemo::test
