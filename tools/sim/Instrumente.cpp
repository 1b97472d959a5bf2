#include "Instrumente.h"

#include "CorvexSpeicher.h"
#include "KontalexGeraet.h"
#include "KontalexSpeicher.h"
#include "MultitesterGeraet.h"
#include "SorelinGeraet.h"
#include "SorelinSpeicher.h"
#include "ZemakGeraet.h"
#include "core/Geraetetypen.h"

namespace vemo::sim {
namespace {

Instrumenttyp multitester(int code) {
    return {code, 2400, [](int datensätze) { return corvexSpeicher(datensätze); },
            [](const QByteArray& speicher, const Verhalten& v, QString&) -> std::unique_ptr<Instrument> {
                return std::make_unique<MultitesterGerät>(speicher, v.takt);
            }};
}

// A Kontalex memory is a raw file RS232.SEP, whose answer to "MWH" names the model.
QString kontalexSpeicherPrüfen(const QByteArray& speicher, const QString& modell) {
    const auto s = kontalexSpeicherLesen(speicher);
    if (!s)
        return "not a raw file RS232.SEP of a Kontalex transfer";
    if (!modell.isEmpty() && s->modell() != modell)
        return "the memory holds the model " + s->modell();
    return {};
}

Instrumenttyp kontalex(int code) {
    return {code,
            2400,
            [](int datensätze) { return kontalexSpeicher(datensätze, "KONTALEX"); },
            [](const QByteArray& speicher, const Verhalten& v, QString&) -> std::unique_ptr<Instrument> {
                return std::make_unique<KontalexGerät>(speicher, v.takt);
            },
            kontalexSpeicher,
            kontalexSpeicherPrüfen};
}

Instrumenttyp sorelin(int code) {
    return {code, 2400, [](int stromkreise) { return sorelinSpeicherDerWahl(stromkreise); },
            [](const QByteArray& speicher, const Verhalten& v, QString&) -> std::unique_ptr<Instrument> {
                return std::make_unique<SorelinGerät>(speicher, v.takt);
            }};
}

// The memory of a 37xx instrument is the working file the component saves from it.
Instrumenttyp zemak(int code) {
    const Zemakvariante& variante = *zemakVariante(*selektorFür(code));
    return {code, 9600,
            [&variante](int datensätze) {
                const QByteArray uhrzeile = "XG," + QByteArray::number(ZemakGerät::werksuhr());
                return ZemakSpeicher::erzeugen(variante, datensätze).arbeitsdatei(uhrzeile, "0");
            },
            [&variante](const QByteArray& datei, const Verhalten& v,
                        QString& fehler) -> std::unique_ptr<Instrument> {
                auto speicher = ZemakSpeicher::ausArbeitsdatei(datei, variante, fehler);
                if (!speicher)
                    return nullptr;
                return std::make_unique<ZemakGerät>(std::move(*speicher), v);
            }};
}

const std::vector<Instrumenttyp>& typen() {
    static const std::vector<Instrumenttyp> tabelle{multitester(100), kontalex(101), sorelin(102),
                                                    zemak(103),       zemak(104),    zemak(105),
                                                    zemak(106),       zemak(107)};
    return tabelle;
}

} // namespace

const Instrumenttyp* instrumenttyp(int code) {
    for (const auto& t : typen())
        if (t.code == code)
            return &t;
    return nullptr;
}

QList<int> simulierteTypen() {
    QList<int> codes;
    for (const auto& t : typen())
        codes << t.code;
    return codes;
}

} // namespace vemo::sim
