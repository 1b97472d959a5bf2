-- The saved queries the component runs with one parameter each.
INSERT INTO Abfragen VALUES ('AnlagenVonKunde',
'PARAMETERS paraKundeID Long;
SELECT [0100_Anlage].Code, [0100_Anlage].Nr, [0100_Anlage].Name, [0100_Anlage].AnlageID, [0100_Anlage].KundeID
FROM [0100_Anlage]
WHERE ((([0100_Anlage].KundeID)=[paraKundeID]))
ORDER BY [0100_Anlage].Code, [0100_Anlage].Nr, [0100_Anlage].Name;');

INSERT INTO Abfragen VALUES ('PrüfungenVonAnlage',
'PARAMETERS paraAnlageID Long;
SELECT [0100_Prüfung].Datum, [0100_Prüfung].ProtokollNr, [0100_Prüfung].PrüfungID, [0100_Prüfung].Grund1,
  [0100_Prüfung].Grund2, [0100_Prüfung].Grund3, [0100_Prüfung].Grund4, [0100_Prüfung].GrundText,
  [0100_Prüfung].AnlagenID
FROM [0100_Prüfung]
WHERE ((([0100_Prüfung].AnlagenID)=[paraAnlageID]))
ORDER BY [0100_Prüfung].Datum DESC, [0100_Prüfung].PrüfungID DESC;');

INSERT INTO Abfragen VALUES ('VerteilerVonPrüfung',
'PARAMETERS paraPrüfungID Long;
SELECT [0100_Verteiler].Code, [0100_Verteiler].Nr, [0100_Verteiler].Name, [0100_Verteiler].VerteilerID,
  [0100_Verteiler].PrüfungID
FROM [0100_Verteiler]
WHERE ((([0100_Verteiler].PrüfungID)=[paraPrüfungID]))
ORDER BY [0100_Verteiler].Code, [0100_Verteiler].Nr, [0100_Verteiler].Name;');

INSERT INTO Abfragen VALUES ('StromkreiseVonVerteiler',
'PARAMETERS paraVerteilerID Long;
SELECT [0100_Stromkreis].Code, [0100_Stromkreis].Nr, [0100_Stromkreis].Name, [0100_Stromkreis].StromkreisID,
  [0100_Stromkreis].VerteilerID
FROM [0100_Stromkreis]
WHERE ((([0100_Stromkreis].VerteilerID)=[paraVerteilerID]))
ORDER BY [0100_Stromkreis].Code, [0100_Stromkreis].Nr, [0100_Stromkreis].Name;');

-- The greatest earth resistance of an inspection, among plain values and among overflow values
-- (">" and a number). Values carry a decimal comma or point.
INSERT INTO Abfragen VALUES ('A_GrösterErdReWert',
'PARAMETERS paraPrüfungID Long;
SELECT [0100_Messung].ErdRE
FROM ([0100_Verteiler] INNER JOIN [0100_Stromkreis] ON [0100_Verteiler].VerteilerID = [0100_Stromkreis].VerteilerID)
  INNER JOIN [0100_Messung] ON [0100_Stromkreis].StromkreisID = [0100_Messung].StromkreisID
WHERE [0100_Verteiler].PrüfungID = [paraPrüfungID] AND [0100_Messung].ErdRE <> "" AND Mid([0100_Messung].ErdRE, 1, 1) <> ">"
ORDER BY Val(Replace([0100_Messung].ErdRE, ",", ".")) DESC;');

INSERT INTO Abfragen VALUES ('A_GrösterErdReÜberlauf',
'PARAMETERS paraPrüfungID Long;
SELECT [0100_Messung].ErdRE
FROM ([0100_Verteiler] INNER JOIN [0100_Stromkreis] ON [0100_Verteiler].VerteilerID = [0100_Stromkreis].VerteilerID)
  INNER JOIN [0100_Messung] ON [0100_Stromkreis].StromkreisID = [0100_Messung].StromkreisID
WHERE [0100_Verteiler].PrüfungID = [paraPrüfungID] AND Mid([0100_Messung].ErdRE, 1, 1) = ">"
ORDER BY Val(Replace(Mid([0100_Messung].ErdRE, 2), ",", ".")) DESC;');
