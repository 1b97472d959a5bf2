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

-- The query a text is looked up with. On a server the table of saved queries is the database's own.
CREATE TABLE IF NOT EXISTS Abfragen (Name TEXT PRIMARY KEY COLLATE NOCASE, SQL TEXT);
INSERT INTO Abfragen VALUES ('Suchen', 'PARAMETERS paraDeutsch Text;
SELECT * FROM Sprache WHERE TextID = [paraDeutsch];');
