#include "parsers/Sorelin.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "core/SorelinRahmen.h"
#include "parsers/Einlesebloecke.h"
#include "parsers/Primitive.h"
#include "parsers/SorelinTreiber.h"
#include "platform/Ui.h"
#include "platform/Zahlformat.h"
#include "store/Variant.h"

#include <QFile>

namespace vemo {
namespace {

// The start block: the type number, whose decimal text names the driver table, the serial number,
// and the firmware version.
constexpr int Seriennummerlänge = 9;
constexpr int Startblocklänge = 2 + Seriennummerlänge + 2;
const QString OhneSeriennummer = "DDDDDDDDD";
// The RCD blocks whose settings add rows of their own behind the values.
constexpr int RcdPrüfung = 20;
constexpr int RcdZeitreihe = 5;
const QString Nennstrom500 = "500";

QByteArray bildLesen() {
    const QString pfad = arbeitsdatei(datei::Rs232Sep);
    QFile f(pfad);
    if (!f.exists())
        throw fehler::mit(fehler::DateiNichtGefunden, pfad);
    if (!f.open(QIODevice::ReadOnly))
        throw fehler::mit(fehler::PfadZugriff, pfad);
    return f.readAll();
}

uchar byteBei(const QByteArray& bild, qsizetype position) {
    return uchar(rohzahl(bild, position, 1));
}

// Each byte as its hexadecimal text, joined by ".": the bytes 1 and 4 are version "1.4".
QString versionText(uchar haupt, uchar neben) {
    return QString::number(haupt, 16).toUpper() + "." + QString::number(neben, 16).toUpper();
}

void melden(const QString& text, MsgSymbol symbol = MsgSymbol::Keins) {
    ui().MsgBox(text, modul().anwendungstitel, {MsgKnöpfe::Ok, symbol});
}

// The image is refused: the user is told why, and the driver goes no further.
void abbrechenMit(const QString& text, MsgSymbol symbol = MsgSymbol::Keins) {
    melden(text, symbol);
    modul().Abbruchmerker = 1;
}

// What one measurement block has written, for the rows its settings add behind it.
struct Blockzeilen {
    QString ersterWert;     // the value of its first row: the rated current of an RCD test
    quint32 letzteZahl = 0; // the whole number of its last value: the settings of an RCD test
    bool selektiv = false;
    QString funktion; // the test, the first word of the first value's name
};

class SorelinLauf {
public:
    explicit SorelinLauf(QByteArray bild) : m_bild(std::move(bild)) {}
    void lesen();

private:
    bool kopfLesen();
    qsizetype startblockLesen(qsizetype längenbyte);
    bool datenblockFinden(qsizetype position);
    bool treiberÖffnen();
    bool versionGeprüft() const;
    qint32 geräteDatenAnlegen() const;
    void messungenLesen(qint32 geräteID);
    qint32 stromkreisZeile(qint32 geräteID, int zähler);
    void messblockLesen(qsizetype position, qint32 messungID);
    QString wertzeilen(qint32 messungID, const Treiberzeile& zeile, const Wertgruppe& g, const QString& wert);
    void einstellungenSchreiben(int id, const Treiberzeile& zeile, const Blockzeilen& block,
                                qint32 messungID);
    void listenzeile(qint32 messungID, const QString& funktion, const QString& liste,
                     const Blockzeilen& block, const QString& vorsatz = {});

    QByteArray m_bild;
    int m_typ = 0;
    QString m_version;
    qsizetype m_datenanfang = 0;
    qsizetype m_datenende = 0;
    std::optional<SorelinTreiber> m_treiber;
    std::optional<Einleseblöcke> m_blöcke;
};

void SorelinLauf::lesen() {
    if (!kopfLesen() || !treiberÖffnen() || !versionGeprüft())
        return;
    messungenLesen(geräteDatenAnlegen());
}

bool SorelinLauf::kopfLesen() {
    const qsizetype marke = m_bild.indexOf(sorelin::Startmarke);
    if (marke < 0) {
        // The walk has nothing to stand on: the first read behind the mark that is not there fails.
        melden(xText("Startblock Error"));
        throw fehler::mit(fehler::IndexAußerhalb);
    }
    return datenblockFinden(startblockLesen(marke + sorelin::Startmarke.size()));
}

// The start block behind its length byte: type, serial number, firmware. The position behind it.
qsizetype SorelinLauf::startblockLesen(qsizetype längenbyte) {
    const qsizetype start = längenbyte + 1;
    if (start + Startblocklänge > m_bild.size())
        throw fehler::mit(fehler::IndexAußerhalb);
    m_typ = int(rohzahl(m_bild, start, 2));
    const QString seriennummer = QString::fromLatin1(m_bild.mid(start + 2, Seriennummerlänge));
    modul().sorelinSeriennummer = seriennummer == OhneSeriennummer ? QString() : seriennummer;
    const qsizetype firmware = start + 2 + Seriennummerlänge;
    m_version = versionText(byteBei(m_bild, firmware), byteBei(m_bild, firmware + 1));
    return start + byteBei(m_bild, längenbyte);
}

// One optional block of kind 10, then the head of the data block; false when the image is refused.
bool SorelinLauf::datenblockFinden(qsizetype position) {
    if (byteBei(m_bild, position) == sorelin::Zusatzblock)
        position += 2 + byteBei(m_bild, position + 1);
    else if (byteBei(m_bild, position) != sorelin::Datenblock) {
        abbrechenMit(xText("Blockkennung nicht bekannt"));
        return false;
    }
    if (byteBei(m_bild, position) != sorelin::Datenblock) {
        abbrechenMit(xText("MessBlockKennung nicht bekannt"));
        return false;
    }
    const quint32 datenlänge = rohzahl(m_bild, position + 3, 2);
    m_datenanfang = position + sorelin::DatenblockKopf;
    // The walk ends with the data block, or with the image where it breaks off before.
    m_datenende = std::min(m_datenanfang + qsizetype(datenlänge), m_bild.size());
    return true;
}

bool SorelinLauf::treiberÖffnen() {
    try {
        m_treiber = SorelinTreiber::öffnen(db(), m_typ);
    } catch (const Fehler& f) {
        if (f.nummer() != fehler::TabelleNichtGefunden)
            throw;
        abbrechenMit(xText("Unbekanntes Prüfgerät"));
        return false;
    }
    return true;
}

// A firmware equal to the driver's version passes; only a newer one is refused. Versions compare
// as numbers read from their text.
bool SorelinLauf::versionGeprüft() const {
    if (zahlformat::val(m_version) <= zahlformat::val(m_treiber->version()))
        return true;
    abbrechenMit(xText("Ihr Treiber ist nicht aktuell") + " " + m_treiber->name() + " " + xText("Version") +
                     " " + m_version,
                 MsgSymbol::Warnung);
    return false;
}

// The register of instruments is not asked for this family: the read-in names the instrument the
// host has set, and the serial number stays with the module.
qint32 SorelinLauf::geräteDatenAnlegen() const {
    Recordset geräteDaten = db().OpenRecordset("0100_EinleseGeräteDaten");
    geräteDaten.AddNew();
    const qint32 geräteID = NeueID("", geräteDaten.Name());
    geräteDaten.setField("GeräteID", geräteID);
    geräteDaten.setField("PrüfgerätName", m_treiber->name());
    geräteDaten.setField("Seriennummer", QString());
    if (!istLeer(modul().PrüfgerätID))
        geräteDaten.setField("PrüfgerätID", modul().PrüfgerätID);
    geräteDaten.Update();
    geräteDaten.Close();
    return geräteID;
}

// The data block is a run of measurement blocks; a start block opens the next circuit.
void SorelinLauf::messungenLesen(qint32 geräteID) {
    m_blöcke.emplace();
    int zähler = 1;
    qint32 messungID = stromkreisZeile(geräteID, zähler);
    Blockende block{m_datenanfang, blockartBei(m_bild, m_datenanfang, m_datenende, *m_treiber)};
    while (block.art != Blockart::Ende) {
        if (block.art == Blockart::StartBlock) {
            messungID = stromkreisZeile(geräteID, ++zähler);
            block = {block.position + 1, blockartBei(m_bild, block.position + 1, m_datenende, *m_treiber)};
        } else {
            messblockLesen(block.position, messungID);
            block = GetMessBlockEnd(m_bild, block.position, m_datenende, *m_treiber);
        }
    }
}

// Each circuit of the image is a row of its own. The numbers of one image only rise, so the last
// row of the table with the same number always belongs to an earlier read-in, perhaps of another
// instrument: its values stay apart from this one's.
qint32 SorelinLauf::stromkreisZeile(qint32 geräteID, int zähler) {
    return m_blöcke->neuerBlock(geräteID, "0001", vierstellig(QString::number(zähler)));
}

// The rows of one measurement block, value by value, then what its settings add.
void SorelinLauf::messblockLesen(qsizetype position, qint32 messungID) {
    const int id = byteBei(m_bild, position);
    const Treiberzeile& zeile = m_treiber->messblock(id);
    const int anzahl = int(zahlformat::val(zeile.spalte(7)));
    Blockzeilen block;
    block.selektiv = zeile.spalte(2).contains("(s)");
    qsizetype versatz = werteBeginn(m_bild, position);
    for (int k = 0; k < anzahl; ++k) {
        const int spalte = Wertgruppe::ErsteSpalte + k * Wertgruppe::Breite;
        const Wertgruppe g = Wertgruppe::aus(zeile, spalte);
        const QString erster = wertzeilen(
            messungID, zeile, g, WertText(GetSorelinWert(m_bild, versatz, *m_treiber, zeile, spalte)));
        if (k == 0) {
            block.ersterWert = erster;
            block.funktion = g.vorname.section(' ', 0, 0);
        }
        block.letzteZahl = rohzahl(m_bild, versatz, g.größe);
        versatz += g.größe;
    }
    einstellungenSchreiben(id, zeile, block, messungID);
}

// A value's row is named by its test and name part. A setting text of the block ("500 V") adds a
// row of its own before it, named by the test, column 10 and the setting's unit, and the value's
// name then carries its unit too. The value of the first row written.
QString SorelinLauf::wertzeilen(qint32 messungID, const Treiberzeile& zeile, const Wertgruppe& g,
                                const QString& wert) {
    const QString einstellung = zeile.spalte(2);
    if (einstellung.isEmpty()) {
        m_blöcke->neuerWert(messungID, (g.vorname + " " + g.name).trimmed(), wert, g.einheit);
        return wert;
    }
    int start = 1;
    QString einheit;
    const QString zahl = WertText(GetZahl(einstellung, start, einheit));
    m_blöcke->neuerWert(messungID, (g.vorname + " " + zeile.spalte(10) + " " + einheit).trimmed(), zahl,
                        einheit);
    m_blöcke->neuerWert(messungID, (g.vorname + " " + g.name + " " + g.einheit).trimmed(), wert, g.einheit);
    return zahl;
}

// The RCD blocks carry their settings in their last value; the lists of columns 4 to 6 read them.
// A test of the RCD gives its kind of current, factor and half-wave; a trip time series gives the
// touch voltage limit, and for an RCD of 500 mA the factor it was tested with.
void SorelinLauf::einstellungenSchreiben(int id, const Treiberzeile& zeile, const Blockzeilen& block,
                                         qint32 messungID) {
    if (id == RcdPrüfung) {
        listenzeile(messungID, "FI Stromart", zeile.spalte(4), block);
        listenzeile(messungID, "FI Faktor", zeile.spalte(5), block, block.selektiv ? "S " : "");
        listenzeile(messungID, "FI Halbwelle", zeile.spalte(6), block);
    } else if (id == RcdZeitreihe) {
        if (const auto grenze = m_treiber->ausListe(zeile.spalte(4), block.letzteZahl)) {
            const QString text = "UL = " + *grenze;
            int start = 1;
            QString einheit;
            const QString zahl = GetZahl(text, start, einheit);
            QString funktion = block.funktion;
            m_blöcke->neuerWert(messungID, GetFunktion(text, funktion, einheit), WertText(zahl), einheit);
        }
        if (block.ersterWert == Nennstrom500)
            listenzeile(messungID, "FI Faktor", zeile.spalte(5), block);
    }
}

void SorelinLauf::listenzeile(qint32 messungID, const QString& funktion, const QString& liste,
                              const Blockzeilen& block, const QString& vorsatz) {
    if (const auto text = m_treiber->ausListe(liste, block.letzteZahl))
        m_blöcke->neuerWert(messungID, funktion, vorsatz + *text, QString());
}

} // namespace

void Sorelin() {
    SorelinLauf(bildLesen()).lesen();
}

} // namespace vemo
