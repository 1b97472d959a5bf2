#include "store/Kriterium.h"

#include "platform/Fehler.h"
#include "platform/Zahlformat.h"
#include "store/Textvergleich.h"
#include "store/Variant.h"

#include <QRegularExpression>
#include <cstring>
#include <vector>

namespace vemo {

struct Kriterium::Knoten {
    enum class Art { Und, Oder, Nicht, Vergleich, IstNull } art;
    std::unique_ptr<Knoten> links, rechts;
    QString feld;
    QString op;
    QVariant wert;
};

namespace {

// The conjunctions, negations and brackets a criterion may hold. Each one makes the tree a level
// deeper, and reading, testing and freeing it go down that deep on the stack; the system's own
// criteria hold a handful, a text with more is refused before the stack runs out.
constexpr int HöchsteVerknüpfungen = 500;

struct Leser {
    QString s;
    int i = 0;
    int verknüpfungen = 0;

    void leer() {
        while (i < s.size() && s[i].isSpace())
            ++i;
    }
    bool wort(const char* w) {
        leer();
        const QString x(w);
        if (s.mid(i, x.size()).compare(x, Qt::CaseInsensitive) != 0)
            return false;
        const int e = i + int(x.size());
        if (e < s.size() && (s[e].isLetterOrNumber() || s[e] == '_'))
            return false;
        i = e;
        return true;
    }
    [[noreturn]] void fehler() const { throw fehler::mit(fehler::SyntaxFehler, s); }
    void verknüpft() {
        if (++verknüpfungen > HöchsteVerknüpfungen)
            fehler();
    }

    QString name() {
        leer();
        if (i < s.size() && s[i] == '[') {
            const int e = int(s.indexOf(']', i));
            if (e < 0)
                fehler();
            QString n = s.mid(i + 1, e - i - 1);
            i = e + 1;
            if (i < s.size() && s[i] == '.') { // [Tabelle].[Feld] or [Tabelle].Feld
                ++i;
                return name();
            }
            return n;
        }
        const int a = i;
        while (i < s.size() && (s[i].isLetterOrNumber() || s[i] == '_' || s[i] == '.'))
            ++i;
        if (a == i)
            fehler();
        const QString n = s.mid(a, i - a);
        return n.contains('.') ? n.section('.', -1) : n;
    }

    QVariant literal() {
        leer();
        if (i >= s.size())
            fehler();
        const QChar q = s[i];
        if (q == '\'' || q == '"') {
            QString t;
            for (++i; i < s.size(); ++i) {
                if (s[i] == q) {
                    if (i + 1 < s.size() && s[i + 1] == q) {
                        t += q;
                        ++i;
                        continue;
                    }
                    ++i;
                    return t;
                }
                t += s[i];
            }
            fehler();
        }
        if (wort("Null"))
            return nullWert();
        if (wort("True"))
            return -1;
        if (wort("False"))
            return 0;
        const int a = i;
        if (i < s.size() && (s[i] == '-' || s[i] == '+'))
            ++i;
        while (i < s.size() && (s[i].isDigit() || s[i] == '.'))
            ++i;
        bool ok = false;
        const double d = s.mid(a, i - a).toDouble(&ok);
        if (!ok)
            fehler();
        return d;
    }

    std::unique_ptr<Kriterium::Knoten> oder() {
        auto l = und();
        while (wort("Or")) {
            verknüpft();
            auto k = std::make_unique<Kriterium::Knoten>();
            k->art = Kriterium::Knoten::Art::Oder;
            k->links = std::move(l);
            k->rechts = und();
            l = std::move(k);
        }
        return l;
    }
    std::unique_ptr<Kriterium::Knoten> und() {
        auto l = faktor();
        while (wort("And")) {
            verknüpft();
            auto k = std::make_unique<Kriterium::Knoten>();
            k->art = Kriterium::Knoten::Art::Und;
            k->links = std::move(l);
            k->rechts = faktor();
            l = std::move(k);
        }
        return l;
    }
    std::unique_ptr<Kriterium::Knoten> faktor() {
        leer();
        if (wort("Not")) {
            verknüpft();
            auto k = std::make_unique<Kriterium::Knoten>();
            k->art = Kriterium::Knoten::Art::Nicht;
            k->links = faktor();
            return k;
        }
        if (i < s.size() && s[i] == '(') {
            verknüpft();
            ++i;
            auto k = oder();
            leer();
            if (i >= s.size() || s[i] != ')')
                fehler();
            ++i;
            return k;
        }
        auto k = std::make_unique<Kriterium::Knoten>();
        k->feld = name();
        if (wort("Is")) {
            k->art = Kriterium::Knoten::Art::IstNull;
            k->op = wort("Not") ? "<>" : "=";
            if (!wort("Null"))
                fehler();
            return k;
        }
        k->art = Kriterium::Knoten::Art::Vergleich;
        leer();
        for (const char* op : {"<>", "<=", ">=", "=", "<", ">"}) {
            if (QStringView(s).mid(i).startsWith(QLatin1String(op))) {
                k->op = op;
                i += int(strlen(op));
                break;
            }
        }
        if (k->op.isEmpty()) {
            if (!wort("Like"))
                fehler();
            k->op = "Like";
        }
        k->wert = literal();
        return k;
    }
};

int vergleiche(const QVariant& feld, const QVariant& wert, bool& vergleichbar) {
    vergleichbar = !istLeer(feld) && !istLeer(wert);
    if (!vergleichbar)
        return 0;
    const auto a = zahlformat::zahl(text(feld));
    const auto b = zahlformat::zahl(text(wert));
    if (wert.typeId() == QMetaType::Double || wert.typeId() == QMetaType::Int) {
        if (!a || !b) {
            vergleichbar = false;
            return 0;
        }
        return *a < *b ? -1 : (*a > *b ? 1 : 0);
    }
    return textVergleich(text(feld), text(wert));
}

bool wieMuster(const QString& text, const QString& muster) {
    QString rx = QRegularExpression::escape(muster);
    rx.replace("\\*", ".*").replace("\\?", ".").replace("%", ".*").replace("_", ".");
    return QRegularExpression("^" + rx + "$", QRegularExpression::CaseInsensitiveOption)
        .match(text)
        .hasMatch();
}

bool auswerten(const Kriterium::Knoten& k, const Kriterium::Feldzugriff& feld) {
    using A = Kriterium::Knoten::Art;
    switch (k.art) {
    case A::Und:
        return auswerten(*k.links, feld) && auswerten(*k.rechts, feld);
    case A::Oder:
        return auswerten(*k.links, feld) || auswerten(*k.rechts, feld);
    case A::Nicht:
        return !auswerten(*k.links, feld);
    case A::IstNull:
        return istLeer(feld(k.feld)) == (k.op == "=");
    case A::Vergleich: {
        const QVariant f = feld(k.feld);
        if (k.op == "Like")
            return !istLeer(f) && wieMuster(text(f), text(k.wert));
        bool ok = false;
        const int c = vergleiche(f, k.wert, ok);
        if (!ok)
            return false;
        if (k.op == "=")
            return c == 0;
        if (k.op == "<>")
            return c != 0;
        if (k.op == "<")
            return c < 0;
        if (k.op == ">")
            return c > 0;
        if (k.op == "<=")
            return c <= 0;
        return c >= 0;
    }
    }
    return false;
}

} // namespace

Kriterium::Kriterium(const QString& text) {
    Leser l{text};
    m_wurzel = l.oder();
    l.leer();
    if (l.i != text.size())
        l.fehler();
}

Kriterium::~Kriterium() = default;
Kriterium::Kriterium(Kriterium&&) noexcept = default;

bool Kriterium::erfüllt(const Feldzugriff& feld) const {
    return auswerten(*m_wurzel, feld);
}

} // namespace vemo
