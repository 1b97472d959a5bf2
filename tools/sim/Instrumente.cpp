#include "Instrumente.h"

#include "CorvexSpeicher.h"
#include "KontalexGeraet.h"
#include "KontalexSpeicher.h"
#include "SorelinGeraet.h"
#include "SorelinSpeicher.h"

#include <array>

namespace vemo::sim {
namespace {

// A Kontalex memory is a raw file RS232.SEP, whose answer to "MWH" names the model.
QString kontalexSpeicherPrüfen(const QByteArray& speicher, const QString& modell) {
    const auto s = kontalexSpeicherLesen(speicher);
    if (!s)
        return "not a raw file RS232.SEP of a Kontalex transfer";
    if (!modell.isEmpty() && s->modell() != modell)
        return "the memory holds the model " + s->modell();
    return {};
}

const std::array<Instrumenttyp, 3> typen{{
    {100, [](int datensätze) { return corvexSpeicher(datensätze); },
     [](QByteArray speicher, Takt takt) -> std::unique_ptr<Instrument> {
         return std::make_unique<MultitesterGerät>(std::move(speicher), takt);
     }},
    {101, [](int datensätze) { return kontalexSpeicher(datensätze, "KONTALEX"); },
     [](QByteArray speicher, Takt takt) -> std::unique_ptr<Instrument> {
         return std::make_unique<KontalexGerät>(speicher, takt);
     },
     kontalexSpeicher, kontalexSpeicherPrüfen},
    {102, [](int stromkreise) { return sorelinSpeicherDerWahl(stromkreise); },
     [](QByteArray speicher, Takt takt) -> std::unique_ptr<Instrument> {
         return std::make_unique<SorelinGerät>(std::move(speicher), takt);
     }},
}};

} // namespace

const Instrumenttyp* instrumenttyp(int code) {
    for (const auto& t : typen)
        if (t.code == code)
            return &t;
    return nullptr;
}

QList<int> simulierteTypen() {
    QList<int> codes;
    for (const auto& t : typen)
        codes << t.code;
    return codes;
}

} // namespace vemo::sim
