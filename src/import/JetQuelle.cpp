#include "import/JetQuelle.h"

#include "platform/Fehler.h"

#include <QDateTime>
#include <mdbtools.h>

namespace vemo {

namespace {

// The longest field text read, memo fields included: the measurement texts of a large plant run
// to many kilobytes.
constexpr size_t Feldgröße = 200000;
const char* const Datumsformat = "%Y-%m-%d %H:%M:%S";

struct HandleSchließen {
    void operator()(MdbHandle* h) const { mdb_close(h); }
};
struct TabelleFreigeben {
    void operator()(MdbTableDef* t) const { mdb_free_tabledef(t); }
};

QVariant wert(int typ, const char* text, int länge) {
    const QString s = QString::fromUtf8(text, länge);
    switch (typ) {
    case MDB_BOOL:
        return s == "1" ? -1 : 0;
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
        return s.isEmpty() ? QVariant::fromValue(nullptr) : QVariant(s.toLongLong());
    case MDB_FLOAT:
    case MDB_DOUBLE:
    case MDB_NUMERIC:
    case MDB_MONEY:
        return s.isEmpty() ? QVariant::fromValue(nullptr) : QVariant(s.toDouble());
    case MDB_DATETIME:
        return s.isEmpty() ? QVariant::fromValue(nullptr)
                           : QVariant(QDateTime::fromString(s, "yyyy-MM-dd HH:mm:ss"));
    case MDB_OLE:
    case MDB_BINARY:
        return länge == 0 ? QVariant::fromValue(nullptr) : QVariant(QByteArray(text, länge));
    default:
        return länge == 0 ? QVariant::fromValue(nullptr) : QVariant(s);
    }
}

} // namespace

// The table refers to its file: declared after it, it goes first.
struct JetQuelle::Datei {
    std::unique_ptr<MdbHandle, HandleSchließen> handle;
    std::unique_ptr<MdbTableDef, TabelleFreigeben> tabelle;
};

JetQuelle::JetQuelle(const QString& pfad, const QString& tabelle) : m_datei(std::make_unique<Datei>()) {
    m_datei->handle.reset(mdb_open(pfad.toLocal8Bit().constData(), MDB_NOFLAGS));
    MdbHandle* mdb = m_datei->handle.get();
    if (!mdb || !mdb_read_catalog(mdb, MDB_TABLE))
        throw Fehler(quellfehler::UnbekanntesFormat, "Unbekanntes Datenbankformat '" + pfad + "'.");
    mdb_set_bind_size(mdb, Feldgröße);
    mdb_set_date_fmt(mdb, Datumsformat);
    mdb_set_boolean_fmt_numbers(mdb);
    QByteArray name = tabelle.toUtf8();
    m_datei->tabelle.reset(mdb_read_table_by_name(mdb, name.data(), MDB_TABLE));
    MdbTableDef* t = m_datei->tabelle.get();
    if (!t || !mdb_read_columns(t))
        throw quellfehler::tabelleFehlt(tabelle);
    mdb_rewind_table(t);
    m_puffer.resize(t->num_cols);
    m_längen.resize(t->num_cols);
    for (unsigned int i = 0; i < t->num_cols; ++i) {
        const auto* spalte = static_cast<const MdbColumn*>(g_ptr_array_index(t->columns, i));
        m_spalten << QString::fromUtf8(spalte->name);
        m_typen.push_back(spalte->col_type);
        m_puffer[i].assign(Feldgröße, '\0');
        mdb_bind_column(t, int(i) + 1, m_puffer[i].data(), &m_längen[i]);
    }
}

JetQuelle::~JetQuelle() = default;

long JetQuelle::anzahl() const {
    return long(m_datei->tabelle->num_rows);
}

std::optional<Quellzeile> JetQuelle::nächsteZeile() {
    if (!mdb_fetch_row(m_datei->tabelle.get()))
        return std::nullopt;
    Quellzeile zeile;
    for (int i = 0; i < m_spalten.size(); ++i)
        zeile.setzen(m_spalten[i], wert(m_typen[size_t(i)], m_puffer[size_t(i)].data(), m_längen[size_t(i)]));
    return zeile;
}

} // namespace vemo
