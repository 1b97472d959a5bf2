#pragma once

#include <QString>
#include <QVariant>
#include <memory>

namespace vemo {

namespace detail {
class Verbindung;
struct RecordsetDaten;
} // namespace detail

// A token of one row of a record set.
using Bookmark = quint64;

// The cursor the logic is written against: a record set on a table or a SELECT, standing on its
// first row, that is also the place to change rows. Copies share one cursor, as object references
// do. A table opened by name reads its rows page by page as the cursor moves, so that adding rows
// to a large table does not read it. A SELECT reads its rows when opened; it can be written where
// all its columns come straight from one table, aliases included.
class Recordset {
public:
    Recordset();
    ~Recordset();
    Recordset(const Recordset&);
    Recordset& operator=(const Recordset&);

    bool istOffen() const;
    QString Name() const; // the text the set was opened with

    bool Eof() const;
    bool Bof() const;
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    void Move(long anzahl);
    long RecordCount() const; // rows visited so far
    long AbsolutePosition() const;
    void setAbsolutePosition(long position);
    Bookmark bookmark() const;
    void setBookmark(Bookmark marke);
    Bookmark LastModified() const;

    QVariant Field(const QString& name) const; // Null where the column has no value
    QVariant Field(int index) const;
    // The field appended to an empty text: a Null reads as "".
    QString Text(const QString& name) const;
    void setField(const QString& name, const QVariant& wert); // only between AddNew or Edit and Update
    void setField(int index, const QVariant& wert);
    int FieldCount() const;
    QString FieldName(int index) const;
    int FieldIndex(const QString& name) const; // -1 when the set has no such field
    int FieldSize(const QString& name) const;  // the defined size of a text field

    void AddNew();
    void Edit();
    void Update();
    void CancelUpdate();
    void Delete();

    void FindFirst(const QString& kriterien);
    void FindNext(const QString& kriterien);
    bool NoMatch() const;

    void Requery();
    void Close();

private:
    friend class Datenbank;
    friend class QueryDef;
    explicit Recordset(std::shared_ptr<detail::RecordsetDaten> d);
    detail::RecordsetDaten& d() const;

    std::shared_ptr<detail::RecordsetDaten> m_d;
};

} // namespace vemo
