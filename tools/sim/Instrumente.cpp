#include "Instrumente.h"

#include "CorvexSpeicher.h"
#include "SorelinGeraet.h"
#include "SorelinSpeicher.h"

#include <array>

namespace vemo::sim {
namespace {

const std::array<Instrumenttyp, 2> typen{{
    {100, [](int datensätze) { return corvexSpeicher(datensätze); },
     [](QByteArray speicher, Takt takt) -> std::unique_ptr<Instrument> {
         return std::make_unique<MultitesterGerät>(std::move(speicher), takt);
     }},
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
