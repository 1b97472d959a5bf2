#include "parsers/Kontalex.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "core/Satzdatei.h"
#include "parsers/Einlesebloecke.h"
#include "parsers/GeraetAnmelden.h"
#include "parsers/Primitive.h"
#include "platform/Ui.h"

#include <QHash>

namespace vemo {
namespace {

const QStringList BekannteGruppen{"118", "117", "119", "153"};
// The model whose place is no plain number: it goes into the circuit as it stands.
const QString Hochspannungsmodell = "VOLTIRA 9KV";
constexpr int Namenlänge = 50;

// The name a new register row gets, by model; another model keeps its own name.
QString bezeichnungDesModells(const QString& modell) {
    static const QHash<QString, QString> namen{
        {"KONTALEX", "0100-KONTAlex"},
        {"PRAVITONIX", "0100-PRAVITonix"},
        {"Georin-Barrier Analyzer", "GEORIN-Btest"},
        {"VOLTIRA 9KV", "VOLTIra 9KV"},
    };
    return namen.value(modell, modell);
}

bool bekannteSeriennummer(const QString& seriennummer) {
    return std::any_of(BekannteGruppen.begin(), BekannteGruppen.end(),
                       [&](const QString& gruppe) { return seriennummer.contains(gruppe); });
}

// The trap of the parser: number and description without a blank between, and on.
bool anweisung(const std::function<void()>& routine) {
    try {
        routine();
        return true;
    } catch (const Fehler& f) {
        ++modul().gezeigteFehler;
        ui().MsgBox(QString::number(f.nummer()) + f.beschreibung(), modul().anwendungstitel);
        return false;
    }
}

class Satzdatei {
public:
    explicit Satzdatei(const QString& pfad) : m_leser(pfad) {}

    void lesen();

private:
    bool satzLesen() {
        return anweisung([this] { m_leser.lesen(m_satz); });
    }
    const QString& a(int nummer) const { return m_satz.a[nummer - 1]; }
    std::optional<qint32> gerätAnmelden(QString& modell);
    void blöckeLesen(qint32 geräteID, const QString& modell);
    void blockLesen(Einleseblöcke& blöcke, qint32 geräteID, const QString& modell);

    Satzleser m_leser;
    Satz m_satz;
};

void Satzdatei::lesen() {
    satzLesen();
    if (a(1) != kontalexsatz::Gerätemarke) {
        modul().DatenloggerMode = true;
        return;
    }
    satzLesen();
    if (!bekannteSeriennummer(a(5))) {
        ui().MsgBox(xText("Unbekanntes Prüfgerät"), modul().anwendungstitel);
        modul().Abbruchmerker = 1;
        return;
    }
    QString modell;
    if (const auto geräteID = gerätAnmelden(modell))
        blöckeLesen(*geräteID, modell);
}

std::optional<qint32> Satzdatei::gerätAnmelden(QString& modell) {
    const QString name = a(1).left(Namenlänge);
    modell = name.trimmed();
    Gerätefamilie familie = familie::Kontalex;
    familie.bezeichnung = bezeichnungDesModells(modell);
    std::optional<qint32> geräteID;
    anweisung([&] { geräteID = GerätAnmelden(familie, {name, a(3), a(5)}); });
    return geräteID;
}

void Satzdatei::blöckeLesen(qint32 geräteID, const QString& modell) {
    satzLesen();
    std::optional<Einleseblöcke> blöcke;
    anweisung([&] { blöcke.emplace(); });
    if (!blöcke)
        return;
    while (a(1) != kontalexsatz::Endemarke && !m_leser.eof()) {
        if (a(1) == kontalexsatz::Blockmarke)
            blockLesen(*blöcke, geräteID, modell);
        else
            satzLesen();
    }
}

// The block head, then its values up to the next record that begins with "-", which is the next
// marker, or a value the block loses with all that follows it.
void Satzdatei::blockLesen(Einleseblöcke& blöcke, qint32 geräteID, const QString& modell) {
    satzLesen();
    const QString stromkreis = modell == Hochspannungsmodell ? a(3) : SetNull(a(3));
    const Blockkopf kopf{.kundeNr = {},
                         .anlageNr = SetNull(a(1)),
                         .verteilerNr = vierstellig(SetNull(a(2))),
                         .stromkreisNr = vierstellig(stromkreis),
                         .datum = a(8),
                         .uhrzeit = a(7)};
    qint32 messungID = 0;
    anweisung([&] { messungID = blöcke.neuerBlock(geräteID, kopf); });
    bool gelesen = satzLesen();
    while (gelesen && !a(1).startsWith('-')) {
        anweisung([&] {
            blöcke.neuerWert(messungID, a(1) + ", " + a(2) + ", " + a(3), WertText(DelZeichen(a(4))), a(5));
        });
        if (m_leser.eof())
            return; // a file cut short
        gelesen = satzLesen();
    }
}

} // namespace

void Kontalex() {
    anweisung([] { Satzdatei(arbeitsdatei(datei::Rs232Txt)).lesen(); });
}

} // namespace vemo
