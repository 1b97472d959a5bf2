#include "parsers/Zemak.h"

#include "core/Arbeitsdateien.h"
#include "core/Instrumentenuhr.h"
#include "core/ModulState.h"
#include "parsers/Codeaufteilung.h"
#include "parsers/Einlesebloecke.h"
#include "parsers/GeraetAnmelden.h"
#include "parsers/Zemakmesszeilen.h"
#include "platform/Textdatei.h"
#include "platform/Ui.h"

#include <optional>

namespace vemo {
namespace {

// A message box without a title of its own shows the component's name.
const QString Standardtitel = "vemo0100Modul15";

void fehlerMelden(const Fehler& f) {
    ++modul().gezeigteFehler;
    ui().MsgBox(f.meldung(), Standardtitel);
}

// Where the 3710B's memory has gone wrong, each record is kept as a row on board and circuit 100,
// without values, so that the user sees how many measurements there were.
const Blockkopf Speicherfehlerkopf{{}, {}, "0100", "0100", {}, {}};

bool zwischen(quint64 zahl, quint64 von, quint64 bis) {
    return zahl >= von && zahl <= bis;
}

// One read of the working file by the tables of a model.
class Speicherleser {
public:
    explicit Speicherleser(const Variante& variante) : m_v(variante) {}

    void lesen();

private:
    bool anmelden(const QString& kennzeile);
    Kennung kennung(const QString& kennzeile);
    void satzLesen(const QString& zeile);
    bool speicherGültig(const Datensatz& satz);
    Blockkopf kopf(const Datensatz& satz);
    void werteSchreiben(const Datensatz& satz, qint32 messungID);
    QVariant spalte(const Spaltenwert& wert);

    // A statement of a record step. Its failure ends the read, but for the model that shows it and
    // goes on with the next statement; the statement then has no result.
    template <class Anweisung> auto anweisung(Anweisung&& a) -> std::optional<decltype(a())> {
        if (!m_v.weiterNachFehler)
            return a();
        try {
            return a();
        } catch (const Fehler& f) {
            fehlerMelden(f);
            return std::nullopt;
        }
    }

    const Variante& m_v;
    qint32 m_geräteID = 0;
    std::optional<Einleseblöcke> m_blöcke;
    Codeaufteilung m_aufteilung;
    bool m_speicherGut = true;
};

QString zeileMitAnfang(Textdatei& datei, const QString& anfang) {
    QString zeile = datei.zeileLesen();
    while (!zeile.startsWith(anfang))
        zeile = datei.zeileLesen();
    return zeile;
}

void Speicherleser::lesen() {
    Textdatei datei(arbeitsdatei(datei::Ruvo));
    if (!anmelden(zeileMitAnfang(datei, m_v.familienwort)))
        return;
    zeileMitAnfang(datei, "QD 2");
    QString zeile = datei.zeileLesen();
    m_blöcke.emplace();
    if (m_v.codeaufteilung)
        m_aufteilung = codeaufteilungLesen();
    do {
        satzLesen(zeile);
        zeile = anweisung([&] { return datei.zeileLesen(); }).value_or(QString());
    } while (!datei.eof());
}

// The header is a statement like any other: for the model that goes on behind a failure, a
// malformed identification line costs the parts it lacks and the records behind it are read all
// the same, on GeräteID 0 where the header itself failed.
bool Speicherleser::anmelden(const QString& kennzeile) {
    const Kennung k = kennung(kennzeile);
    const auto geräteID = anweisung([&] { return GerätAnmelden(familie::abfrageprotokoll(m_v.typ), k); });
    if (geräteID && !*geräteID)
        return false;
    m_geräteID = geräteID ? **geräteID : 0;
    return true;
}

// Each part of the line is read for itself; a part that failed is empty.
Kennung Speicherleser::kennung(const QString& kennzeile) {
    const auto teil = [&](QString (*lesen)(const QString&)) {
        return anweisung([&] { return lesen(kennzeile); }).value_or(QString(""));
    };
    return {teil(kennungName), teil(kennungVersion), teil(kennungSeriennummer)};
}

void Speicherleser::satzLesen(const QString& zeile) {
    const Datensatz satz(zeile, m_v.umlaufend);
    if (m_v.speicherprüfung && !speicherGültig(satz)) {
        m_blöcke->neuerBlock(m_geräteID, Speicherfehlerkopf);
        return;
    }
    const Blockkopf k = kopf(satz);
    if (const auto messungID = anweisung([&] { return m_blöcke->neuerBlock(m_geräteID, k); }))
        werteSchreiben(satz, *messungID);
}

// Board, circuit and memory index are read from every record, so that a field that is no number
// ends the read also when the memory has already been found wrong; the message comes once.
bool Speicherleser::speicherGültig(const Datensatz& satz) {
    const bool gültig =
        zwischen(satz.zahl(1), 1, 99) && zwischen(satz.zahl(2), 1, 99) && zwischen(satz.zahl(3), 1, 444);
    if (m_speicherGut && !gültig) {
        m_speicherGut = false;
        ui().MsgBox(xText("Speicherfehler3710B"), modul().anwendungstitel);
    }
    return m_speicherGut;
}

Blockkopf Speicherleser::kopf(const Datensatz& satz) {
    const auto code = [&](int feld) { return anweisung([&] { return codeText(satz.feld(feld)); }); };
    Blockkopf k;
    k.anlageNr = m_v.anlagefeld ? code(m_v.anlagefeld).value_or(QString()) : m_v.anlageOhneFeld;
    k.verteilerNr = code(m_v.verteilerfeld).value_or(QString());
    k.stromkreisNr = code(m_v.stromkreisfeld).value_or(QString());
    if (m_aufteilung.an)
        codeAufteilen(k, m_aufteilung);
    const auto zeit = anweisung([&] {
        const quint64 sekunden = satz.zahl(m_v.uhrfeld);
        if (sekunden > 0xFFFFFFFF) // the instrument's clock counts in 32 bits
            throw fehler::mit(fehler::Überlauf, satz.feld(m_v.uhrfeld));
        return ZeitAusSekunden(quint32(sekunden));
    });
    if (zeit) {
        k.datum = zahlformat::datumText(zeit->date());
        k.uhrzeit = zahlformat::zeitText(zeit->time());
    }
    return k;
}

void Speicherleser::werteSchreiben(const Datensatz& satz, qint32 messungID) {
    const auto zeilen = anweisung([&] { return messzeilen(m_v, satz); });
    if (!zeilen)
        return;
    for (const Zemakmesszeile& z : *zeilen) {
        const QVariant funktion = spalte(z.funktion);
        const QVariant wert = spalte(z.wert);
        const QVariant einheit = spalte(z.einheit);
        anweisung([&] {
            m_blöcke->neuerWert(messungID, funktion, wert, einheit);
            return true;
        });
    }
}

// The text of a column, or no value where the model leaves it unset or its statement failed.
QVariant Speicherleser::spalte(const Spaltenwert& wert) {
    const auto text = anweisung(wert);
    return text && *text ? QVariant(**text) : QVariant();
}

void lesen(const Variante& variante) {
    try {
        Speicherleser(variante).lesen();
    } catch (const Fehler& f) {
        fehlerMelden(f);
    }
}

} // namespace

void ZEMAK() {
    lesen(variante::zemak());
}

void ZEMAK3710B() {
    lesen(variante::zemak3710B());
}

void ZEMAK3720() {
    lesen(variante::zemak3720());
}

void ZEMAK3740() {
    lesen(variante::zemak3740());
}

void Quentavoir() {
    lesen(variante::quentavoir());
}

} // namespace vemo
