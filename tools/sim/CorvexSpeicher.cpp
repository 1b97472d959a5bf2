#include "CorvexSpeicher.h"

#include <QStringList>
#include <cmath>

namespace vemo::sim {
namespace {

QString komma(double wert, int stellen) {
    return QString::number(wert, 'f', stellen).replace('.', ',');
}

// Insulation and loop on one circuit, the residual current device on the next; the values vary
// from block to block so that no two circuits read alike.
QStringList messwerte(int block) {
    if (block % 2 == 1) {
        const double riso = 100 + (block * 37) % 400;
        const double zs = 0.20 + 0.03 * (block % 10);
        return {" RISO = " + komma(riso, 1) + " MOhm", " Zs   = " + komma(zs, 2) + " Ohm",
                " Ik   = " + QString::number(std::lround(230 / zs)) + " A"};
    }
    const double tfi = 10 + (block * 7) % 30;
    const double ubf = 0.5 + 0.1 * (block % 8);
    return {" IdFI = 30 mA", " tFI  = " + komma(tfi, 1) + " ms", " UbF  = " + komma(ubf, 1) + " V"};
}

QString blockkopf(int block) {
    const int verteiler = (block - 1) / corvex::StromkreiseJeVerteiler + 1;
    const int stromkreis = (block - 1) % corvex::StromkreiseJeVerteiler + 1;
    return QString("S: %1    P: %2").arg(verteiler, 3, 10, QChar('0')).arg(stromkreis, 3, 10, QChar('0'));
}

} // namespace

QByteArray corvexSpeicher(int blöcke, const QString& seriennummer) {
    const QString nummer =
        seriennummer.left(corvex::Seriennummerlänge).rightJustified(corvex::Seriennummerlänge);
    QStringList zeilen{corvex::Titel,          "Speicherausdruck",
                       corvex::Lineal,         corvex::Gerätetyp + "D    No. " + nummer,
                       " " + QString(23, '_'), ""};
    for (int block = 1; block <= blöcke; ++block) {
        zeilen << blockkopf(block) << corvex::Lineal << corvex::Leerzeile << "";
        zeilen << messwerte(block);
        zeilen << "";
    }
    QByteArray text;
    for (const QString& z : zeilen)
        text += z.toLatin1() + "\r\n";
    return text;
}

} // namespace vemo::sim
