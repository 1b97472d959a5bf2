#include "store/Dialekt.h"

#include "store/Textvergleich.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace vemo {
namespace {

enum class Art { Leer, Wort, Zahl, Text, Name, Datum, Zeichen, Platzhalter };

struct Token {
    Art art;
    QString text; // Text, Name, Datum: the content without quotes; others: as written
};

bool istWortZeichen(QChar c) {
    return c.isLetterOrNumber() || c == '_' || c.unicode() >= 0x80;
}

std::vector<Token> zerlegen(const QString& s) {
    std::vector<Token> t;
    int i = 0;
    const int n = s.size();
    auto bis = [&](QChar ende, int ab) {
        QString inhalt;
        int stück = ab; // the start of the text not yet taken
        int k = ab;
        while (k < n) {
            if (s[k] == ende) {
                if (ende != ']' && k + 1 < n && s[k + 1] == ende) { // doubled quote: one stays
                    inhalt += QStringView(s).mid(stück, k + 1 - stück);
                    k += 2;
                    stück = k;
                    continue;
                }
                break;
            }
            ++k;
        }
        inhalt += QStringView(s).mid(stück, std::min(k, n) - stück);
        i = std::min(k + 1, n);
        return inhalt;
    };
    while (i < n) {
        const QChar c = s[i];
        if (c.isSpace()) {
            int k = i;
            while (k < n && s[k].isSpace())
                ++k;
            t.push_back({Art::Leer, s.mid(i, k - i)});
            i = k;
        } else if (c == '\'' || c == '"') {
            t.push_back({Art::Text, bis(c, i + 1)});
        } else if (c == '[') {
            t.push_back({Art::Name, bis(']', i + 1)});
        } else if (c == '#' && i + 1 < n && s[i + 1].isDigit()) {
            t.push_back({Art::Datum, bis('#', i + 1)});
        } else if (c.isDigit() || (c == '.' && i + 1 < n && s[i + 1].isDigit() &&
                                   (t.empty() || t.back().art != Art::Name))) {
            int k = i;
            while (k < n && (s[k].isDigit() || s[k] == '.'))
                ++k;
            if (k < n && istWortZeichen(s[k]) && s.mid(i, k - i).indexOf('.') < 0) {
                while (k < n && istWortZeichen(s[k]))
                    ++k;
                t.push_back({Art::Name, s.mid(i, k - i)}); // a digit-leading name: 0100_Messung
            } else {
                t.push_back({Art::Zahl, s.mid(i, k - i)});
            }
            i = k;
        } else if (istWortZeichen(c)) {
            int k = i;
            while (k < n && istWortZeichen(s[k]))
                ++k;
            t.push_back({Art::Wort, s.mid(i, k - i)});
            i = k;
        } else {
            const QString zwei = s.mid(i, 2);
            if (zwei == "<>" || zwei == "<=" || zwei == ">=" || zwei == "||") {
                t.push_back({Art::Zeichen, zwei});
                i += 2;
            } else {
                t.push_back({Art::Zeichen, QString(c)});
                ++i;
            }
        }
    }
    return t;
}

// The words asked for are ASCII: compared as Latin-1, they need no conversion at every token, and
// most tokens differ in length already.
bool ist(const Token& t, const char* wort) {
    const QLatin1StringView w(wort);
    return (t.art == Art::Wort || t.art == Art::Zeichen) && t.text.size() == w.size() &&
           t.text.compare(w, Qt::CaseInsensitive) == 0;
}

// Index of the next token that is not blank, from i on; n when none.
size_t nächstes(const std::vector<Token>& t, size_t i) {
    while (i < t.size() && t[i].art == Art::Leer)
        ++i;
    return i;
}

// The significant tokens, blanks dropped at both ends.
std::vector<Token> ohneRand(std::vector<Token> t) {
    while (!t.empty() && t.back().art == Art::Leer)
        t.pop_back();
    size_t a = nächstes(t, 0);
    return std::vector<Token>(t.begin() + long(a), t.end());
}

QStringList parameterAbtrennen(std::vector<Token>& t) {
    QStringList namen;
    if (t.empty() || !ist(t[0], "PARAMETERS"))
        return namen;
    size_t i = 1;
    bool erwarteName = true;
    for (; i < t.size() && !ist(t[i], ";"); ++i) {
        if (t[i].art == Art::Leer)
            continue;
        if (ist(t[i], ",")) {
            erwarteName = true;
        } else if (erwarteName && (t[i].art == Art::Wort || t[i].art == Art::Name)) {
            namen << t[i].text;
            erwarteName = false;
        }
    }
    t = ohneRand(std::vector<Token>(t.begin() + long(std::min(i + 1, t.size())), t.end()));
    return namen;
}

// "(SELECT ... ;)" and a trailing ";" reduce to the bare statement.
void hülleEntfernen(std::vector<Token>& t) {
    for (;;) {
        while (!t.empty() && (ist(t.back(), ";") || t.back().art == Art::Leer))
            t.pop_back();
        if (t.size() < 2 || !ist(t.front(), "(") || !ist(t.back(), ")"))
            return;
        int tiefe = 0;
        for (size_t i = 0; i < t.size(); ++i) {
            if (ist(t[i], "("))
                ++tiefe;
            else if (ist(t[i], ")") && --tiefe == 0 && i + 1 < t.size())
                return; // the first bracket closes before the end: no wrapper
        }
        t = ohneRand(std::vector<Token>(t.begin() + 1, t.end() - 1));
    }
}

// The extent of the operand that ends just before position i (blanks skipped): a literal, a
// qualified name, a bracketed group, or a function call.
size_t operandLinks(const std::vector<Token>& t, size_t i) {
    size_t k = i;
    while (k > 0 && t[k - 1].art == Art::Leer)
        --k;
    if (k == 0)
        return i;
    size_t a = k - 1;
    if (ist(t[a], ")")) {
        int tiefe = 0;
        for (;; --a) {
            if (ist(t[a], ")"))
                ++tiefe;
            else if (ist(t[a], "(") && --tiefe == 0)
                break;
            if (a == 0)
                return 0;
        }
        if (a > 0 && t[a - 1].art == Art::Wort)
            --a;
        return a;
    }
    while (a >= 2 && ist(t[a - 1], ".") && (t[a - 2].art == Art::Wort || t[a - 2].art == Art::Name))
        a -= 2;
    return a;
}

size_t operandRechts(const std::vector<Token>& t, size_t i) {
    size_t a = nächstes(t, i);
    if (a >= t.size())
        return a;
    size_t e = a;
    if (t[e].art == Art::Wort && e + 1 < t.size() && ist(t[e + 1], "("))
        ++e;
    if (ist(t[e], "(")) {
        int tiefe = 0;
        for (; e < t.size(); ++e) {
            if (ist(t[e], "("))
                ++tiefe;
            else if (ist(t[e], ")") && --tiefe == 0)
                break;
        }
        return std::min(e + 1, t.size());
    }
    ++e;
    while (e + 1 < t.size() && ist(t[e], ".") && (t[e + 1].art == Art::Wort || t[e + 1].art == Art::Name))
        e += 2;
    return e;
}

// a & b becomes VbText(a) || VbText(b): the dialect's & reads Null as an empty text and writes
// numbers as the system writes them.
void verkettungUmsetzen(std::vector<Token>& t) {
    for (size_t i = 0; i < t.size(); ++i) {
        if (!ist(t[i], "&"))
            continue;
        const size_t links = operandLinks(t, i);
        const size_t rechtsAnfang = nächstes(t, i + 1);
        const size_t rechtsEnde = operandRechts(t, i + 1);
        const auto mitLeerText = [](std::vector<Token>& v, auto von, auto bis) {
            v.push_back({Art::Wort, "VbText"});
            v.push_back({Art::Zeichen, "("});
            v.insert(v.end(), von, bis);
            v.push_back({Art::Zeichen, ")"});
        };
        std::vector<Token> neu(t.begin(), t.begin() + long(links));
        mitLeerText(neu, t.begin() + long(links), t.begin() + long(i));
        neu.push_back({Art::Zeichen, " || "});
        mitLeerText(neu, t.begin() + long(rechtsAnfang), t.begin() + long(rechtsEnde));
        const size_t weiter = neu.size();
        neu.insert(neu.end(), t.begin() + long(rechtsEnde), t.end());
        t = std::move(neu);
        i = weiter - 1;
    }
}

QString zitiert(const QString& s, QChar q) {
    QString innen = s;
    innen.replace(q, QString(q) + q);
    return q + innen + q;
}

// The dialect's wildcards * and ? in a pattern after Like.
bool nachLike(const std::vector<Token>& t, size_t i) {
    while (i > 0 && t[i - 1].art == Art::Leer)
        --i;
    return i > 0 && ist(t[i - 1], "LIKE");
}

QString likeMuster(QString m) {
    return m.replace('*', '%').replace('?', '_');
}

int parameterIndex(const QStringList& parameter, const QString& name) {
    for (int j = 0; j < parameter.size(); ++j)
        if (parameter[j].compare(name, Qt::CaseInsensitive) == 0)
            return j;
    return -1;
}

QString ausgeben(const std::vector<Token>& t, const QStringList& parameter) {
    QString out;
    out.reserve(qsizetype(t.size()) * 8);
    for (size_t i = 0; i < t.size(); ++i) {
        const Token& k = t[i];
        switch (k.art) {
        case Art::Text:
            out += zitiert(nachLike(t, i) ? likeMuster(k.text) : k.text, '\'');
            break;
        case Art::Datum:
            out += zitiert(k.text, '\'');
            break;
        case Art::Name: {
            const int pi = parameterIndex(parameter, k.text);
            out += pi >= 0 ? "?" + QString::number(pi + 1) : zitiert(k.text, '"');
            break;
        }
        case Art::Wort: {
            const int pi = parameterIndex(parameter, k.text);
            if (pi >= 0)
                out += "?" + QString::number(pi + 1);
            else if ((ist(k, "Left") || ist(k, "Right")) && nächstes(t, i + 1) < t.size() &&
                     ist(t[nächstes(t, i + 1)], "("))
                out += zitiert(k.text, '"'); // Left and Right are join words to SQLite, not functions
            else if (ist(k, "True"))
                out += "-1";
            else if (ist(k, "False"))
                out += "0";
            else
                out += k.text;
            break;
        }
        case Art::Zeichen:
            if (ist(k, "*") && i >= 1) {
                const size_t vor = [&] {
                    size_t a = i;
                    while (a > 0 && t[a - 1].art == Art::Leer)
                        --a;
                    return a == 0 ? size_t(-1) : a - 1;
                }();
                if (vor != size_t(-1) && ist(t[vor], "DELETE")) {
                    if (i + 1 < t.size() && t[i + 1].art == Art::Leer)
                        ++i;
                    break; // DELETE * FROM
                }
            }
            out += ist(k, "/") ? QString("* 1.0 /") : k.text;
            break;
        default:
            out += k.text;
        }
    }
    return out;
}

bool istEinfacheAuswahl(const std::vector<Token>& t) {
    if (t.empty() || !ist(t[0], "SELECT"))
        return false;
    int tiefe = 0;
    for (const Token& k : t) {
        if (ist(k, "("))
            ++tiefe;
        else if (ist(k, ")"))
            --tiefe;
        else if (ist(k, ","))
            continue;
        else if (tiefe == 0 && (ist(k, "DISTINCT") || ist(k, "GROUP") || ist(k, "HAVING") ||
                                ist(k, "UNION") || ist(k, "JOIN") || ist(k, "TOP")))
            return false;
        else if (tiefe > 0 && ist(k, "SELECT"))
            return false;
    }
    // Several tables after FROM, separated by commas, are a join as well.
    bool nachFrom = false;
    tiefe = 0;
    for (const Token& k : t) {
        if (ist(k, "("))
            ++tiefe;
        else if (ist(k, ")"))
            --tiefe;
        else if (tiefe == 0 && ist(k, "FROM"))
            nachFrom = true;
        else if (tiefe == 0 && (ist(k, "WHERE") || ist(k, "ORDER")))
            nachFrom = false;
        else if (nachFrom && tiefe == 0 && ist(k, ","))
            return false;
    }
    return true;
}

// The value a literal stands for, as SQLite reads it: a whole number, a floating one, a text.
std::optional<QVariant> literalwert(const Token& k) {
    if (k.art == Art::Text)
        return QVariant(k.text);
    if (k.art != Art::Zahl)
        return std::nullopt;
    bool ok = false;
    if (!k.text.contains('.')) {
        const qlonglong ganz = k.text.toLongLong(&ok);
        if (ok)
            return QVariant(ganz);
    }
    const double zahl = k.text.toDouble(&ok);
    return ok ? std::optional<QVariant>(zahl) : std::nullopt;
}

bool istVergleich(const Token& k) {
    return k.art == Art::Zeichen && (k.text == "=" || k.text == "<>" || k.text == "<" || k.text == ">" ||
                                     k.text == "<=" || k.text == ">=");
}

// A column whose name says it holds a key (KundeID, IDDATLOG): its comparisons are of numbers.
bool istSchlüsselname(const Token& k) {
    return k.text.endsWith(QLatin1String("ID"), Qt::CaseInsensitive) ||
           k.text.startsWith(QLatin1String("ID"), Qt::CaseInsensitive);
}

// A column named alone or qualified (Kunde_1.Nummernkreis, [0100_Anlage].Code) that is no key.
bool istTextspalte(const std::vector<Token>& t, size_t von, size_t bis) {
    while (bis > von && t[bis - 1].art == Art::Leer)
        --bis;
    if (von >= bis)
        return false;
    for (size_t j = von; j < bis; ++j)
        if (t[j].art != Art::Name && t[j].art != Art::Wort && !ist(t[j], "."))
            return false;
    return t[bis - 1].art != Art::Zeichen && !istSchlüsselname(t[bis - 1]);
}

// "=" and "<>" on text ignore case for every letter the host's engine folds; the NOCASE of the
// schema's columns folds ASCII only. The collation goes on the right operand when it is a text or
// a column that holds no key, so that comparisons of keys keep their indexes.
void textvergleicheFalten(std::vector<Token>& t) {
    bool inBedingung = false;
    for (size_t i = 0; i < t.size(); ++i) {
        if (ist(t[i], "WHERE") || ist(t[i], "ON") || ist(t[i], "HAVING"))
            inBedingung = true;
        if (!inBedingung || !(ist(t[i], "=") || ist(t[i], "<>")))
            continue;
        const size_t rechts = nächstes(t, i + 1);
        if (rechts >= t.size())
            break;
        const size_t ende = operandRechts(t, i + 1);
        const bool text = t[rechts].art == Art::Text ||
                          (istTextspalte(t, operandLinks(t, i), i) && istTextspalte(t, rechts, ende));
        if (text)
            t.insert(t.begin() + long(ende), {Art::Wort, QString(" COLLATE ") + TextSortierfolge});
    }
}

// Only where a statement can take bound values: reads, changes and deletions, whose placeholders
// are all this translation's own.
bool kannWerteBinden(const std::vector<Token>& t, const QStringList& parameter) {
    if (t.empty() || !parameter.isEmpty() ||
        !(ist(t[0], "SELECT") || ist(t[0], "UPDATE") || ist(t[0], "DELETE")))
        return false;
    return std::none_of(t.begin(), t.end(), [](const Token& k) { return ist(k, "?"); });
}

// The logic splices keys and codes into its conditions, so that nearly every row of a run has a
// statement text of its own. A literal compared in a condition becomes a bound value instead:
// statements that differ only in those values are one prepared statement, and SQLite compares a
// bound value exactly as the literal it replaces. Literals elsewhere stay: a number in ORDER BY
// names a column, and the select list names its columns after their text.
QVector<QVariant> werteBinden(std::vector<Token>& t, const QStringList& parameter) {
    QVector<QVariant> werte;
    if (!kannWerteBinden(t, parameter))
        return werte;
    bool inBedingung = false;
    for (size_t i = 0; i < t.size(); ++i) {
        if (ist(t[i], "WHERE") || ist(t[i], "ON") || ist(t[i], "HAVING"))
            inBedingung = true;
        if (!inBedingung || !istVergleich(t[i]))
            continue;
        const size_t k = nächstes(t, i + 1);
        if (k >= t.size())
            break;
        if (const auto wert = literalwert(t[k])) {
            werte << *wert;
            t[k] = {Art::Platzhalter, "?" + QString::number(werte.size())};
        }
    }
    return werte;
}

} // namespace

Übersetzung übersetzen(const QString& statement) {
    std::vector<Token> t = ohneRand(zerlegen(statement));
    Übersetzung ü;
    ü.parameter = parameterAbtrennen(t);
    hülleEntfernen(t);
    verkettungUmsetzen(t);
    textvergleicheFalten(t);
    ü.werte = werteBinden(t, ü.parameter);
    ü.sql = ausgeben(t, ü.parameter);
    ü.einfacheAuswahl = istEinfacheAuswahl(t);
    if (ü.einfacheAuswahl) {
        std::vector<Token> mit(t.begin(), t.begin() + 1);
        mit.push_back({Art::Wort, " rowid AS vemo_rowid,"});
        mit.insert(mit.end(), t.begin() + 1, t.end());
        ü.sqlMitRowid = ausgeben(mit, ü.parameter);
    }
    return ü;
}

} // namespace vemo
