-- The equipment table of a new inspection, by language: line, column, content. A new inspection
-- copies the rows of its user's language, so every language column of the language database has
-- its rows here.
INSERT INTO "0100_Betriebsmittelstandard" (SPRACHE, Zeile, Spalte, inhalt) VALUES
  ('Deutsch', 1, 1, 'Betriebsmittel'), ('Deutsch', 1, 2, 'Anzahl'), ('Deutsch', 1, 3, 'Zustand'),
  ('Deutsch', 2, 1, 'Hauptverteiler'), ('Deutsch', 3, 1, 'Unterverteiler'),
  ('Deutsch', 4, 1, 'Steckdosen'), ('Deutsch', 5, 1, 'Schalter'), ('Deutsch', 6, 1, 'Leuchten'),
  ('Deutsch', 7, 1, 'Fehlerstrom-Schutzeinrichtungen'), ('Deutsch', 8, 1, 'Potentialausgleich'),
  ('English (United Kingdom)', 1, 1, 'Equipment'), ('English (United Kingdom)', 1, 2, 'Quantity'),
  ('English (United Kingdom)', 1, 3, 'Condition'),
  ('English (United Kingdom)', 2, 1, 'Main distribution board'),
  ('English (United Kingdom)', 3, 1, 'Sub-distribution board'),
  ('English (United Kingdom)', 4, 1, 'Socket outlets'), ('English (United Kingdom)', 5, 1, 'Switches'),
  ('English (United Kingdom)', 6, 1, 'Luminaires'), ('English (United Kingdom)', 7, 1, 'RCDs'),
  ('English (United Kingdom)', 8, 1, 'Main bonding');

-- German users in Germany and in Austria get the German table.
INSERT INTO "0100_Betriebsmittelstandard" (SPRACHE, Zeile, Spalte, inhalt)
  SELECT Region.Name, Zeile, Spalte, inhalt
  FROM (SELECT 'Deutsch (&Deutschland)' AS Name UNION ALL SELECT 'Deutsch (&Österreich)') AS Region,
       "0100_Betriebsmittelstandard"
  WHERE SPRACHE = 'Deutsch'
  ORDER BY Region.Name, BetriebsmittelstandardID;
