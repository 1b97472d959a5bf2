#include "SorelinSpeicher.h"

#include "core/SorelinRahmen.h"
#include "parsers/SorelinTreiber.h"
#include "platform/Zahlformat.h"
#include "store/Datenbank.h"
#include "store/Schema.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <cmath>

namespace vemo::sim {
namespace {

// What a value of that unit plausibly reads; a name part narrows it down.
struct Vorgabe {
    const char* einheit;
    const char* name;
    double von;
    double bis;
};
constexpr Vorgabe vorgaben[] = {
    {"MOhm", "", 20, 480}, {"Ohm", "", 0.08, 1.6}, {"A", "", 140, 2400}, {"ms", "", 12, 42},
    {"V", "max", 50, 50},  {"V", "", 0.4, 9.5},    {"mA", "Ia", 16, 28},
};
// Rated currents of RCDs, and test currents, in mA.
constexpr double nennströme[] = {30, 30, 300, 30, 500, 100};
// Every so many values of a quantity with an overflow list, one is over range.
constexpr int JederÜberlauf = 5;

QByteArray hochZuerst(quint32 zahl, int größe) {
    QByteArray bytes;
    for (int i = größe - 1; i >= 0; --i)
        bytes += char((zahl >> (8 * i)) & 0xFF);
    return bytes;
}

quint32 wertebereich(const Wertgruppe& g) {
    const quint32 voll = g.größe >= 4 ? 0xFFFFFFFFu : (1u << (8 * g.größe)) - 1;
    return g.maske.isEmpty() ? voll : treiberHexZahl(g.maske) & voll;
}

class Bildbau {
public:
    Bildbau(const SorelinTreiber& treiber, int instrument, int stromkreise)
        : m_treiber(treiber), m_zufall(quint32(stromkreise) * 7919u + quint32(instrument)) {}

    QByteArray stromkreis(int nummer);

private:
    QByteArray messblock(int id, const Treiberzeile& zeile);
    double plausibel(const Wertgruppe& g);
    quint32 kodieren(const Wertgruppe& g, double wert, bool überlauf) const;

    const SorelinTreiber& m_treiber;
    QRandomGenerator m_zufall;
    int m_stromkreis = 0;
    int m_werte = 0;
    double m_vorheriger = 0; // the value before, of the same block
};

QByteArray Bildbau::stromkreis(int nummer) {
    static const QRegularExpression messblockSchlüssel("^(\\d+)DE$",
                                                       QRegularExpression::CaseInsensitiveOption);
    m_stromkreis = nummer;
    QByteArray daten;
    for (const Treiberzeile& z : m_treiber.zeilen())
        if (const auto treffer = messblockSchlüssel.match(z.spalte(1)); treffer.hasMatch())
            daten += messblock(treffer.captured(1).toInt(), z);
    return daten;
}

// An id with bit 7 stands before the values; a smaller one is the top byte of the first value.
QByteArray Bildbau::messblock(int id, const Treiberzeile& zeile) {
    QByteArray block;
    const bool vorDenWerten = id & 0x80;
    if (vorDenWerten)
        block += char(id);
    const int anzahl = int(zahlformat::val(zeile.spalte(7)));
    m_vorheriger = 0;
    for (int k = 0; k < anzahl; ++k) {
        const Wertgruppe g = Wertgruppe::aus(zeile, Wertgruppe::ErsteSpalte + k * Wertgruppe::Breite);
        const bool überlauf = !g.überlauf.isEmpty() && ++m_werte % JederÜberlauf == 0;
        m_vorheriger = plausibel(g);
        quint32 ganz = kodieren(g, m_vorheriger, überlauf);
        if (k == 0 && !vorDenWerten)
            ganz |= quint32(id) << (8 * (g.größe - 1));
        block += hochZuerst(ganz, g.größe);
    }
    if (block.isEmpty())
        block += char(id);
    return block;
}

// A short-circuit current follows from the loop impedance before it and 230 V.
double Bildbau::plausibel(const Wertgruppe& g) {
    if (g.name == "Ik" && m_vorheriger > 0)
        return std::round(230 / m_vorheriger);
    if (g.einheit.isEmpty())
        return m_zufall.bounded(256); // a settings byte
    for (const Vorgabe& v : vorgaben)
        if (g.einheit == v.einheit && (QString(v.name).isEmpty() || g.name.contains(v.name)))
            return v.von + (v.bis - v.von) * m_zufall.generateDouble();
    if (g.einheit == "mA")
        return nennströme[m_stromkreis % std::size(nennströme)];
    return 1 + m_zufall.bounded(9);
}

// The step of the scale list that gives the finest reading of the value; over range, all value
// bits of that step set.
quint32 Bildbau::kodieren(const Wertgruppe& g, double wert, bool überlauf) const {
    const quint32 bereich = wertebereich(g);
    auto stufen = m_treiber.liste(g.skala);
    const bool ohneSkala = stufen.isEmpty();
    if (ohneSkala)
        stufen.append({0, "1"});
    std::optional<quint32> bestes;
    quint32 besteRoh = 0;
    for (const auto& [muster, teiler] : stufen) {
        const double roh = std::round(wert * zahlformat::val(teiler));
        // A step counts only where reading the number back picks that same step.
        if (roh < 0 || roh > bereich ||
            (!ohneSkala && m_treiber.ausListe(g.skala, quint32(roh) | muster) != teiler))
            continue;
        if (!bestes || quint32(roh) > besteRoh) {
            bestes = (überlauf ? bereich : quint32(roh)) | muster;
            besteRoh = quint32(roh);
        }
    }
    return bestes.value_or(bereich | stufen.last().first);
}

QByteArray firmware(const QString& version) {
    QByteArray bytes;
    for (const QString& teil : version.split('.').mid(0, 2))
        bytes += char(teil.trimmed().isEmpty() ? 0 : treiberHexZahl(teil) & 0xFF);
    return bytes.leftJustified(2, '\0', true);
}

QByteArray startblock(int instrument, const QString& seriennummer, const QString& version) {
    const QString nummer =
        seriennummer.isEmpty() ? QString::number(instrument).rightJustified(6, '0') + "017" : seriennummer;
    return hochZuerst(quint32(instrument), 2) + nummer.toLatin1().leftJustified(9, ' ', true) +
           firmware(version);
}

struct Wahl {
    int instrument = sorelin::StandardInstrument;
    QString datenbank;
};

Wahl& wahl() {
    static Wahl w;
    return w;
}

} // namespace

QByteArray sorelinSpeicher(const Datenbank& db, int instrument, int stromkreise,
                           const QString& seriennummer) {
    const SorelinTreiber treiber = SorelinTreiber::öffnen(db, instrument);
    Bildbau bau(treiber, instrument, stromkreise);
    const auto start = treiber.startblock();
    QByteArray daten;
    int gebaut = 0;
    for (int nummer = 1; nummer <= stromkreise && (nummer == 1 || start); ++nummer) {
        const QByteArray kreis =
            (nummer > 1 ? QByteArray(1, char(*start)) : QByteArray()) + bau.stromkreis(nummer);
        if (daten.size() + kreis.size() > sorelin::HöchsteDatenlänge)
            break;
        daten += kreis;
        ++gebaut;
    }
    QByteArray bild(1, '\0'); // what the line holds as the instrument wakes
    bild += vemo::sorelin::Startmarke;
    const QByteArray kopf = startblock(instrument, seriennummer, treiber.version());
    bild += char(kopf.size()) + kopf;
    bild += vemo::sorelin::Zusatzblock + QByteArray(1, 2) + hochZuerst(quint32(gebaut), 2);
    bild += vemo::sorelin::Datenblock + hochZuerst(quint32(gebaut), 2) + hochZuerst(quint32(daten.size()), 2);
    bild += daten;
    bild += vemo::sorelin::Endmarke;
    return bild;
}

void sorelinWählen(int instrument, const QString& datenbank) {
    wahl() = {instrument, datenbank};
}

QByteArray sorelinSpeicherDerWahl(int stromkreise) {
    if (!wahl().datenbank.isEmpty())
        return sorelinSpeicher(Datenbank::OpenDatabase(wahl().datenbank), wahl().instrument, stromkreise);
    const Datenbank mitgeliefert = Datenbank::anlegen(":memory:");
    skripteAusführen(mitgeliefert, "host-sorelin*.sql");
    return sorelinSpeicher(mitgeliefert, wahl().instrument, stromkreise);
}

} // namespace vemo::sim
