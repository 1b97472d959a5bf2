-- Customers, plants, an inspection and instruments to play with. Keys stay below the 10000 that
-- key allocation starts from.
INSERT INTO Kunde (KundeID, Name, Kundennummer, Nummernkreis, Firma, Strasse, Plz, Stadt) VALUES
  (1, 'Bäckerei Sommer', 'K-1001', '12', 'Bäckerei Sommer GmbH', 'Lindenweg 4', '34117', 'Kassel'),
  (2, 'Wohnbau Nordhang', 'K-1002', '34', 'Wohnbau Nordhang eG', 'Am Hang 17', '37073', 'Göttingen'),
  (3, 'Praxis Dr. Feldmann', 'K-1003', '56', 'Praxis Dr. Feldmann', 'Marktplatz 2', '36037', 'Fulda');

INSERT INTO "0100_Anlage" (AnlageID, KundeID, Name, Code, Nr, Strasse, Stadt, "NächstePrüfung", Intervall) VALUES
  (1, 1, 'Backstube', '001', 'A1', 'Lindenweg 4', 'Kassel', '2026-06-30', 48),
  (2, 1, 'Verkaufsraum', '002', 'A2', 'Lindenweg 4', 'Kassel', '2026-06-30', 48),
  (3, 2, 'Haus 17', '001', 'H17', 'Am Hang 17', 'Göttingen', '2027-03-31', 48),
  (4, 3, 'Praxisräume', '001', 'P1', 'Marktplatz 2', 'Fulda', '2026-12-31', 24);

INSERT INTO "0100_Prüfung" ("PrüfungID", AnlagenID, Datum, typ, ProtokollNr) VALUES
  (1, 1, '2022-06-14', 'DACH2010', '00000001');

INSERT INTO "0100_Verteiler" (VerteilerID, "PrüfungID", Name, Code, Nr) VALUES
  (1, 1, 'Hauptverteiler', '001', 'HV');

INSERT INTO "0100_Stromkreis" (StromkreisID, VerteilerID, Name, Code, Nr, SicherungsTypID) VALUES
  (1, 1, 'Backofen', '001', 'F1', 8),
  (2, 1, 'Steckdosen Backstube', '002', 'F2', 4);

INSERT INTO "Prüfgerät" ("PrüfgerätID", Bezeichnung, typ, Seriennummer, Inventarnummer) VALUES
  (1, '0100-Corvex', 100, '  C12345678', 'INV-07'),
  (2, '0100-Varitron', 100, '   V9876543', '');

-- A customer in the United Kingdom with a certificate inspection: one board, two circuits, each
-- circuit with its one measurement row, and the inspection's certificate record.
INSERT INTO Kunde (KundeID, Name, Kundennummer, Nummernkreis, Firma, Strasse, Plz, Stadt) VALUES
  (40, 'Fitzroy Building', 'K-1040', '78', 'Fitzroy Building Co', '12 Mill Lane', 'YO1 7HH', 'York');

INSERT INTO "0100_Anlage" (AnlageID, KundeID, Name, Code, Nr, Strasse, Stadt, "NächstePrüfung", Intervall) VALUES
  (40, 40, 'Workshop', '001', 'W1', '12 Mill Lane', 'York', '2029-09-30', 60);

INSERT INTO "0100_Prüfung" ("PrüfungID", AnlagenID, Datum, typ, ProtokollNr) VALUES
  (40, 40, '2024-09-12', 'Niceic', '00000002');

INSERT INTO "0100U_CertNic" (pid) VALUES (1), (40);

INSERT INTO "0100_Verteiler" (VerteilerID, "PrüfungID", Name, Code, Nr) VALUES
  (40, 40, 'Main board', '001', 'DB1');

INSERT INTO "0100_Stromkreis" (StromkreisID, VerteilerID, Name, Code, Nr, SicherungsTypID) VALUES
  (40, 40, 'Sockets workshop', '001', '1', 4),
  (41, 40, 'Lighting', '002', '2', 2);

INSERT INTO "0100_Messung" (MessID, StromkreisID) VALUES (40, 40), (41, 41);
