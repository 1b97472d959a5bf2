#include "links/KontalexDekoder.h"

#include "platform/Codepage.h"

namespace vemo {
namespace {

// Each block begins with this mark; the answers to the commands begin with "SER" instead.
const QByteArray Blockmarke = "SRE";
const QByteArray MessungEnde("\0T", 2);
const QByteArray GruppeEnde("\0S", 2);
const QByteArray DatumMarke("\0D", 2);
constexpr int Kopflänge = 4; // the mark and the length byte
constexpr int LoggerFunktion = 102;

int byteAn(const QByteArray& b, qsizetype i) {
    return i < b.size() ? quint8(b[i]) : 0;
}

int zahlNiedrigZuerst(const QByteArray& b, qsizetype i) {
    return byteAn(b, i) | byteAn(b, i + 1) << 8;
}

int zahlHochZuerst(const QByteArray& b, qsizetype i) {
    return byteAn(b, i) << 8 | byteAn(b, i + 1);
}

// A field up to its byte 0; pos moves behind it.
QByteArray feld(const QByteArray& b, qsizetype& pos) {
    qsizetype ende = b.indexOf('\0', pos);
    if (ende < 0)
        ende = b.size();
    const QByteArray f = b.mid(pos, ende - pos);
    pos = ende + 1;
    return f;
}

// The bytes from pos up to the mark, with the 0 that ends the last field; up to the end when the
// mark is missing.
QByteArray bisMarke(const QByteArray& b, qsizetype pos, const QByteArray& marke) {
    const qsizetype ende = b.indexOf(marke, pos);
    return ende < 0 ? b.mid(pos) : b.mid(pos, ende - pos + 1);
}

// The kind letters of a field: R a reading, P a parameter, M a maximum, that is a limit.
QString art(char buchstabe) {
    switch (buchstabe) {
    case 'R':
        return "M";
    case 'P':
        return "E";
    case 'M':
        return "G";
    default:
        return {};
    }
}

QString dreistellig(int zahl) {
    return QString::number(zahl).rightJustified(3, '0');
}

} // namespace

QList<Messzeile> messzeilenLesen(const QByteArray& bytes, const Namentabellen& namen, bool& loggerDaten) {
    QList<Messzeile> zeilen;
    if (bytes.isEmpty())
        return zeilen;
    const int funktion = quint8(bytes[0]);
    if (funktion == LoggerFunktion)
        loggerDaten = true;
    const QList<QByteArray> felder = bytes.mid(1).split('\0');
    // What stands behind the last byte 0 is no field.
    for (qsizetype i = 0; i + 1 < felder.size(); ++i) {
        const QByteArray& f = felder[i];
        if (f.size() < 3)
            continue;
        zeilen.append({namen.funktionen.name(funktion), art(f[0]), namen.werte.name(quint8(f[1])),
                       ausAnsi(f.mid(3)), namen.einheiten.name(quint8(f[2]))});
    }
    return zeilen;
}

KontalexDekoder::KontalexDekoder(const Kontalexmodell& modell, QString anlagenText)
    : m_modell(modell), m_anlagenText(std::move(anlagenText)) {}

void KontalexDekoder::dekodieren(const QByteArray& dump,
                                 const std::function<void(const Ortsgruppe&)>& ablage) {
    qsizetype pos = 0;
    for (;;) {
        const qsizetype anfang = dump.indexOf(Blockmarke, pos);
        if (anfang < 0 || anfang + Kopflänge > dump.size())
            return;
        const int länge = quint8(dump[anfang + Kopflänge - 1]);
        // A block of length 0 is the end of the memory. The block a logger's memory announces
        // behind it is fetched and kept in the raw file, but it is no location.
        if (länge == 0)
            return;
        pos = anfang + Kopflänge + länge;
        ablage(gruppeLesen(dump.mid(anfang + Kopflänge, länge)));
    }
}

Ortsgruppe KontalexDekoder::gruppeLesen(const QByteArray& inhalt) {
    Ortsgruppe g;
    switch (m_modell.form) {
    case Blockform::Voll:
        g = vollLesen(inhalt);
        break;
    case Blockform::Kurz:
        g = kurzLesen(inhalt);
        break;
    case Blockform::Block:
        g = blockLesen(inhalt);
        break;
    }
    texteSetzen(g);
    return g;
}

// Object, circuit and place, low byte first; an empty field, the time, the date behind a byte of
// its own, one byte more, then the measurement up to its mark 0 "T".
Ortsgruppe KontalexDekoder::vollLesen(const QByteArray& inhalt) {
    Ortsgruppe g;
    g.objekt = zahlNiedrigZuerst(inhalt, 0);
    g.stromkreis = zahlNiedrigZuerst(inhalt, 2);
    g.platz = zahlNiedrigZuerst(inhalt, 4);
    qsizetype pos = 6;
    feld(inhalt, pos);
    g.zeit = ausAnsi(feld(inhalt, pos));
    g.datum = ausAnsi(feld(inhalt, pos).mid(1));
    ++pos;
    g.zeilen = messzeilenLesen(bisMarke(inhalt, pos, MessungEnde), m_modell.namen, m_loggerDaten);
    return g;
}

// Circuit and place, low byte first, then the measurement up to the group's end 0 "S". These
// instruments keep no clock.
Ortsgruppe KontalexDekoder::kurzLesen(const QByteArray& inhalt) {
    Ortsgruppe g;
    g.objekt = 1;
    g.stromkreis = zahlNiedrigZuerst(inhalt, 0);
    g.platz = zahlNiedrigZuerst(inhalt, 2);
    g.zeit = "00:00";
    g.datum = "01.01.00";
    g.zeilen = messzeilenLesen(bisMarke(inhalt, 4, GruppeEnde), m_modell.namen, m_loggerDaten);
    return g;
}

// A record number, the place high byte first, the measurement up to 0 "T", the time, and behind
// 0 "D" the date.
Ortsgruppe KontalexDekoder::blockLesen(const QByteArray& inhalt) {
    Ortsgruppe g;
    g.platz = zahlHochZuerst(inhalt, 2);
    g.zeilen = messzeilenLesen(bisMarke(inhalt, 4, MessungEnde), m_modell.namen, m_loggerDaten);
    const qsizetype t = inhalt.indexOf(MessungEnde, 4);
    if (t < 0)
        return g;
    qsizetype pos = t + MessungEnde.size();
    g.zeit = ausAnsi(feld(inhalt, pos));
    const qsizetype d = inhalt.indexOf(DatumMarke, t + MessungEnde.size() - 1);
    if (d >= 0) {
        pos = d + DatumMarke.size();
        g.datum = ausAnsi(feld(inhalt, pos));
    }
    return g;
}

void KontalexDekoder::texteSetzen(Ortsgruppe& g) {
    const bool objektGleich = !m_ersteGruppe && g.objekt == m_objekt;
    const bool stromkreisGleich = objektGleich && g.stromkreis == m_stromkreis;
    const bool platzGleich = stromkreisGleich && g.platz == m_platz;
    if (!objektGleich)
        g.objektText = m_modell.form == Blockform::Kurz ? m_anlagenText : dreistellig(g.objekt);
    if (!stromkreisGleich)
        g.stromkreisText = dreistellig(g.stromkreis);
    if (!platzGleich)
        g.platzText = dreistellig(g.platz);
    m_ersteGruppe = false;
    m_objekt = g.objekt;
    m_stromkreis = g.stromkreis;
    m_platz = g.platz;
}

} // namespace vemo
