#pragma once

#include "import/Quelltabelle.h"

#include <QStringList>
#include <memory>
#include <vector>

namespace vemo {

// A source in the old desktop format (Jet, .mdb), read through libmdb. Texts come as UTF-8, dates
// as date and time, yes/no fields as -1 and 0, numbers as numbers.
class JetQuelle : public Quelltabelle {
public:
    JetQuelle(const QString& pfad, const QString& tabelle);
    ~JetQuelle() override;
    JetQuelle(const JetQuelle&) = delete;
    JetQuelle& operator=(const JetQuelle&) = delete;

    long anzahl() const override;
    QStringList spalten() const override { return m_spalten; }
    std::optional<Quellzeile> nächsteZeile() override;

private:
    struct Datei;
    std::unique_ptr<Datei> m_datei;
    QStringList m_spalten;
    std::vector<int> m_typen;
    std::vector<std::vector<char>> m_puffer;
    std::vector<int> m_längen;
};

} // namespace vemo
