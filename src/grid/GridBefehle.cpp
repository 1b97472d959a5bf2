#include "grid/GridBefehle.h"

#include "core/ModulState.h"
#include "grid/EinleseDatenController.h"
#include "platform/Ui.h"
#include "store/Variant.h"

#include <QRegularExpression>
#include <QStringList>

namespace vemo {

namespace {

constexpr int Erledigt = 0;
constexpr int Abgelehnt = 1;
constexpr int Unverständlich = 2;

int melden(const QString& text, int ergebnis) {
    ui().MsgBox(text, modul().anwendungstitel);
    return ergebnis;
}

QString zustandsname(Zellzustand z) {
    switch (z) {
    case Zellzustand::Aufgelöst:
        return "resolved";
    case Zellzustand::Anzulegen:
        return "create";
    default:
        return "unresolved";
    }
}

QString jsonText(const QString& text) {
    QString aus = "\"";
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '"':
            aus += "\\\"";
            break;
        case '\\':
            aus += "\\\\";
            break;
        case '\n':
            aus += "\\n";
            break;
        case '\r':
            aus += "\\r";
            break;
        case '\t':
            aus += "\\t";
            break;
        default:
            aus += c.unicode() < 0x20 ? QString("\\u%1").arg(c.unicode(), 4, 16, QChar('0')) : QString(c);
        }
    }
    return aus + "\"";
}

QString markiert(const Zelle& z) {
    switch (z.zustand) {
    case Zellzustand::Anzulegen:
        return "+" + z.text;
    case Zellzustand::Offen:
        return "!" + z.text;
    default:
        return z.text;
    }
}

// The rows of the table the command names, refused when they aren't all there.
std::optional<Zeilenbereich> vorhandeneZeilen(const QString& text, const EinleseDatenController& formular,
                                              int& ergebnis) {
    const auto bereich = zeilenbereichLesen(text);
    if (!bereich) {
        ergebnis = melden(xText("Ungültige Zeilenangabe") + ": " + text, Unverständlich);
        return std::nullopt;
    }
    if (bereich->bis > formular.zeilenAnzahl()) {
        ergebnis = melden(xText("Diese Zeilen gibt es nicht") + ": " + text + " (" + xText("Einlesedaten") +
                              ": " + QString::number(formular.zeilenAnzahl()) + ")",
                          Abgelehnt);
        return std::nullopt;
    }
    return bereich;
}

} // namespace

std::optional<Zeilenbereich> zeilenbereichLesen(const QString& text) {
    static const QRegularExpression muster(R"(^\s*(\d{1,9})\s*(?:-\s*(\d{1,9})\s*)?$)");
    const auto m = muster.match(text);
    if (!m.hasMatch())
        return std::nullopt;
    const long a = m.captured(1).toLong();
    const long b = m.captured(2).isEmpty() ? a : m.captured(2).toLong();
    if (a < 1 || b < 1)
        return std::nullopt;
    return Zeilenbereich{std::min(a, b), std::max(a, b)};
}

QString gridJson(const EinleseGrid& grid) {
    QStringList zeilen;
    for (int zeile = 1; zeile < grid.Rows(); ++zeile) {
        QStringList zellen;
        for (int spalte = 1; spalte <= 5; ++spalte) {
            const Zelle& z = grid.zelle(zeile, spalte);
            zellen << "{\"text\": " + jsonText(z.text) + ", \"state\": \"" + zustandsname(z.zustand) + "\"}";
        }
        zeilen << "{\"nr\": " + jsonText(grid.TextMatrix(zeile, 0)) + ", \"cells\": [" + zellen.join(", ") +
                      "], \"moment\": " + jsonText(grid.TextMatrix(zeile, 6)) + "}";
    }
    return zeilen.isEmpty() ? "[]\n" : "[\n  " + zeilen.join(",\n  ") + "\n]\n";
}

QString gridTabelle(const EinleseGrid& grid) {
    // A hidden column of the moment stays hidden here too.
    const int spalten = grid.ColWidth(6) > 0 ? EinleseGrid::Cols : EinleseGrid::Cols - 1;
    QList<QStringList> zeilen;
    QList<int> breiten(spalten, 0);
    for (int zeile = 0; zeile < grid.Rows(); ++zeile) {
        QStringList texte;
        for (int spalte = 0; spalte < spalten; ++spalte) {
            texte << (zeile == 0 ? grid.TextMatrix(0, spalte) : markiert(grid.zelle(zeile, spalte)));
            breiten[spalte] = std::max(breiten[spalte], int(texte.last().size()));
        }
        zeilen << texte;
    }
    QString aus;
    for (const QStringList& texte : std::as_const(zeilen)) {
        QString zeile;
        for (int spalte = 0; spalte < spalten; ++spalte)
            zeile += (spalte == 0 ? texte[spalte].rightJustified(breiten[spalte])
                                  : "  " + texte[spalte].leftJustified(breiten[spalte]));
        while (zeile.endsWith(' '))
            zeile.chop(1); // keep the numbers of column 0 right-aligned
        aus += zeile + "\n";
    }
    return aus + "+ " + xText("wird bei der Übernahme angelegt") + ", ! " + xText("nicht zugeordnet") + "\n";
}

int gridBefehl(bool json, QTextStream& aus) {
    const EinleseDatenController formular;
    aus << (json ? gridJson(formular.grid()) : gridTabelle(formular.grid()));
    aus.flush();
    return Erledigt;
}

int zuordnenBefehl(const QString& zeilen, const QString& spalte, const QString& schlüssel) {
    bool spalteOk = false, schlüsselOk = false;
    const int nr = spalte.trimmed().toInt(&spalteOk);
    const qint64 key = schlüssel.trimmed().toLongLong(&schlüsselOk);
    if (!spalteOk || nr < 1 || nr > 5)
        return melden(xText("Die Spalte muss 1 bis 5 sein") + ": " + spalte, Unverständlich);
    if (!schlüsselOk)
        return melden(xText("Der Schlüssel muss eine Zahl sein") + ": " + schlüssel, Unverständlich);

    EinleseDatenController formular;
    int ergebnis = Erledigt;
    const auto bereich = vorhandeneZeilen(zeilen, formular, ergebnis);
    if (!bereich)
        return ergebnis;
    // As the user does it: select the rows, open the combo box on the first one, pick the entry.
    formular.gridAuswahl({int(bereich->von), nr, int(bereich->bis), nr});
    formular.gridMausHoch(int(bereich->von), nr, false);
    formular.MSHFlexGridComboEdit(32);
    if (!formular.combo().sichtbar)
        return Abgelehnt;
    const int index = eintragMitSchlüssel(formular.combo().einträge, key);
    if (index < 0) {
        QStringList erlaubt;
        for (const ComboEintrag& e : formular.combo().einträge)
            erlaubt << text(e.schlüssel) + " " + e.text;
        return melden(xText("Dieser Schlüssel steht nicht in der Auswahlliste") + ": " + schlüssel + "\n" +
                          erlaubt.join("\n"),
                      Abgelehnt);
    }
    formular.comboKlick(index);
    return Erledigt;
}

int zeilenLöschenBefehl(const QString& zeilen) {
    EinleseDatenController formular;
    int ergebnis = Erledigt;
    const auto bereich = vorhandeneZeilen(zeilen, formular, ergebnis);
    if (!bereich)
        return ergebnis;
    formular.gridAuswahl({int(bereich->von), 0, int(bereich->bis), EinleseGrid::Cols - 1});
    const long vorher = formular.zeilenAnzahl();
    formular.löschenKlick();
    return formular.zeilenAnzahl() < vorher ? Erledigt : Abgelehnt;
}

} // namespace vemo
