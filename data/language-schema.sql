-- The language database Language.MDB: one row a text. The German text is the key; a text longer
-- than the key column is stored cut, so the key is neither unique nor a primary key. New texts
-- arrive with both regional German columns filled and every other language column empty.

CREATE TABLE Sprache (
  TextID VARCHAR(255) COLLATE NOCASE,
  "Deutsch (&Deutschland)" TEXT,
  "Deutsch (&Österreich)" TEXT,
  Deutsch TEXT,
  "English (United Kingdom)" TEXT,
  VersionID TEXT(50)
);
CREATE INDEX Sprache_TextID ON Sprache (TextID);
