-- The fixed texts of the component and of the host program, each with its English translation.
-- Captions that end in ":" or "..." are looked up without that ending, so they stand here without
-- it. A text whose German wording differs from its key names it in the column Deutsch; all others
-- take the key as their German text (see the end of this file).

-- Messages and captions of the transfer and the read-in.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Es sind keine Eilnlesedaten vorhanden', 'There is no read-in data'),
  ('Datenübertragung abgebrochen', 'Data transfer aborted'),
  ('Die Arbeitsdateien werden von einer anderen Übertragung benutzt.', 'The working files are in use by another transfer.'),
  ('Messungen', 'Measurements'),
  ('Serielle Datenübertragung', 'Serial data transfer'),
  ('Datenübertragung Abbrechen', 'Abort data transfer'),
  ('Datenübertragung läuft', 'Data transfer in progress'),
  ('RS232-Taste am Corvex drücken ', 'Press the RS232 key on the Corvex '),
  ('Senden-Taste am Prüfgerät drücken ', 'Press the send key on the instrument '),
  ('&Abbruch', '&Abort'),
  ('Abbruch in', 'Abort in'),
  ('Baudrate', 'Baud rate'),
  ('Identifikation', 'Identification'),
  ('Gerät nicht bereit !', 'Instrument not ready !'),
  ('Gerät bereit !', 'Instrument ready !'),
  ('Hinweis', 'Note'),
  ('Zustand', 'State'),
  ('gefunden', 'found'),
  ('Messungen werden übertragen. Bitte warten!', 'Measurements are being transferred. Please wait!'),
  ('keine Daten vorhanden !', 'no data available !'),
  ('Suche ZEMAK Prüfgerät an COM-Port', 'Searching for ZEMAK instrument on COM port'),
  ('Suche ZEMAK 3710B Prüfgerät an COM-Port', 'Searching for ZEMAK 3710B instrument on COM port'),
  ('Suche ZEMAK 3720 Prüfgerät an COM-Port', 'Searching for ZEMAK 3720 instrument on COM port'),
  ('Suche Prüfgerät an COM-Port', 'Searching for instrument on COM port'),
  ('Alle Messleitungen vom 3710 entfernen.', 'Remove all test leads from the 3710.'),
  ('Alle Messleitungen vom 3710 B entfernen.', 'Remove all test leads from the 3710 B.'),
  ('Alle Messleitungen vom 3720 entfernen.', 'Remove all test leads from the 3720.'),
  ('Alle Messleitungen am Prüfgerät entfernen.', 'Remove all test leads from the instrument.'),
  ('Messdaten Kopf fehlt', 'Measurement data header missing'),
  ('Unbekanntes Prüfgerät', 'Unknown instrument'),
  ('Ihr Treiber ist nicht aktuell', 'Your driver is out of date'),
  ('Diese Version kann die Messungen dieses Prüfgeräts noch nicht einlesen. Die übertragenen Daten bleiben in der Datei erhalten.',
   'This version cannot read the measurements of this instrument yet. The data transferred are kept in the file.'),
  ('Version', 'Version');

-- What the Sorelin block transfer and its parser tell of an image they cannot read.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Startblock Error', 'Start block error'),
  ('Blockkennung nicht bekannt', 'Unknown block identifier'),
  ('MessBlockKennung nicht bekannt', 'Unknown measurement block identifier');

-- Instrument names given to new instrument records.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('0100-Corvex', '0100-Corvex'),
  ('0100-Varitron', '0100-Varitron'),
  ('0100-KONTAlex', '0100-KONTAlex'),
  ('0100-PRAVITonix', '0100-PRAVITonix'),
  ('GEORIN-Btest', 'GEORIN-Btest'),
  ('VOLTIra 9KV', 'VOLTIra 9KV'),
  ('Ser. Nr.', 'Serial No.'),
  ('Inv. Nr.', 'Inventory No.');

-- Instrument settings.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Einstellungen', 'Settings'),
  ('Prüfgerät', 'Instrument'),
  ('Computer', 'Computer'),
  ('keine Verbindung', 'no connection'),
  ('ID', 'ID'),
  ('ID an Prüfgerät senden', 'Send ID to the instrument'),
  ('Datum und Uhrzeit an Prüfgerät senden', 'Send date and time to the instrument'),
  ('Prüfgerätespeicher löschen', 'Clear instrument memory'),
  ('Sicher Prüfgerätespeicher?', 'Really clear the instrument memory?'),
  ('ZEMAK 37xx', 'ZEMAK 37xx'),
  ('Quentavoir', 'Quentavoir');

-- The read-in grid, its editing and the take-over.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Einlesedaten', 'Read-in data'),
  ('Nr.', 'No.'),
  ('Kunde', 'Customer'),
  ('Anlage', 'Installation'),
  ('Prüfung', 'Inspection'),
  ('Verteiler', 'Distribution board'),
  ('Stromkreis', 'Circuit'),
  ('Messzeitpunkt', 'Time of measurement'),
  ('Daten übernehmen', 'Take over data'),
  ('Zeile löschen', 'Delete row'),
  ('Schließen', 'Close'),
  ('Edit results', 'Edit results'),
  ('&Bearbeiten', '&Edit'),
  ('Zuordnung ändern', 'Change assignment'),
  ('keine Anlage', 'no installation'),
  (' keine Anlage', ' no installation'),
  ('keine Prüfung', 'no inspection'),
  ('Anzahl der Markiertenzeilen', 'Number of selected rows'),
  ('von', 'of'),
  ('Sicher Löschen', 'Really delete?'),
  ('Löschen von Datensatz', 'Delete record'),
  ('FI-Analyse', 'RCD analysis'),
  ('Datum', 'Date'),
  ('Uhrzeit', 'Time'),
  ('Rechts', 'Clockwise'),
  ('Links', 'Anticlockwise'),
  ('Unbekannte TeilFunktion', 'Unknown sub-function'),
  ('Fehler bei RCD AUTO', 'Error in RCD AUTO series'),
  ('Eingelesene Messungen Zuordnen zu ', 'Assign read-in measurements to '),
  ('Weiter', 'Next'),
  ('Messungen Zuordnen Hilfe', 'Help on assigning measurements'),
  ('Daten Pool', 'Data pool'),
  ('Es gibt nur ein Hauptverteiler', 'There is only one main distribution board'),
  ('Wie werden die Messungen', 'How are the measurements'),
  ('Wie werden die Stromkreise', 'How are the circuits'),
  ('Alle Messungen einem Auftraggeber zuordnen', 'Assign all measurements to one client'),
  ('Alle Stromkreise einem Auftraggeber zuordnen', 'Assign all circuits to one client'),
  ('Bestimmte Messungen einem Auftraggeber zuordnen', 'Assign selected measurements to one client'),
  ('Bestimmte Stromkreise einem Auftraggeber zuordnen', 'Assign selected circuits to one client'),
  ('Daten Logger', 'Data logger'),
  ('Zuvor einen Auftraggeber', 'First a client'),
  ('Zuvor eine Anlage', 'First an installation');

-- The legacy import.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Import von 0100 Corvex-Manager Daten', 'Import of 0100 Corvex-Manager data'),
  ('Ändern', 'Change'),
  ('Konvertieren', 'Convert'),
  ('Abbrechen', 'Cancel'),
  ('Import Hilfe', 'Import help'),
  ('Datenquelle', 'Data source'),
  ('Importieren erfolgreich beendet', 'Import completed successfully'),
  ('Beim Importieren sind Fehler aufgetreten.', 'Errors occurred during the import.');

-- The import run's progress and failures, and the faults of an old measurement text.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Importieren nicht möglich', 'Import not possible'),
  ('Fehler', 'Error'),
  (' Prüfungen werden importiert', ' inspections are being imported'),
  ('Endmarker @ nicht gefunden', 'End marker @ not found'),
  ('Stromkreis / Platznummer Format ist fehlerhaft oder alteversion',
   'Circuit / place number format is faulty or an old version'),
  ('Feld hinter PlatzNr ist nicht leer, enthält ', 'Field after place number is not empty, holds '),
  ('Feld hinter Sicherung ist nicht leer, enthält ', 'Field after fuse is not empty, holds '),
  ('Feld hinter FI 1 ist nicht leer, enthält ', 'Field after RCD 1 is not empty, holds '),
  ('Feld hinter FI 2 ist nicht leer, enthält ', 'Field after RCD 2 is not empty, holds '),
  (' Datei enthält Fehler, kann nicht Importiert werden.', ' File contains errors, cannot be imported.'),
  ('vemotrix 0100', 'vemotrix 0100'),
  ('Die eingelesenen Messungen des Geräts jetzt zuordnen?', 'Assign the device''s read-in measurements now?'),
  ('Kontalex-Rohdaten', 'Kontalex raw data'),
  ('Kontalex-Datensätze', 'Kontalex records'),
  ('Alle Dateien', 'All files');

-- Captions of the host program.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Datenbank', 'Database'),
  ('Sprache', 'Language'),
  ('Schnittstelle', 'Interface'),
  ('Gerätetyp', 'Instrument type'),
  ('Sicherungsverzeichnis', 'Backup folder'),
  ('Arbeitsordner', 'Work folder'),
  ('Suchen', 'Search'),
  ('Keine serielle Schnittstelle gefunden.', 'No serial port found.'),
  ('Datei', 'File'),
  ('Beenden', 'Exit'),
  ('Daten empfangen', 'Receive data'),
  ('Einlesen aus Datei', 'Read from file'),
  ('Datenlogger', 'Data logger'),
  ('Daten importieren', 'Import data'),
  ('Einstellung ZEMAK 3710', 'ZEMAK 3710 settings'),
  ('Textbreite messen', 'Measure text width'),
  ('Kunden', 'Customers'),
  ('Anlagen', 'Installations'),
  ('Prüfungen', 'Inspections'),
  ('Stromkreise', 'Circuits'),
  ('Grenzwerte', 'Limit values'),
  ('Grenzwert', 'Limit value'),
  ('Text', 'Text'),
  ('Neue Demo-Datenbank', 'New demo database'),
  ('Zuerst eine Datenbank wählen.', 'Choose a database first.'),
  ('vemotrix-Datenbank', 'vemotrix database'),
  -- The host program's menus, with the letter of each entry's mnemonic.
  ('&Datei', '&File'),
  ('&Neue Demo-Datenbank', '&New demo database'),
  ('&Beenden', 'E&xit'),
  ('&Messungen', '&Measurements'),
  ('Daten &empfangen', '&Receive data'),
  ('Einlese&daten', 'Read-in &data'),
  ('Einlesen aus Da&tei', 'Read from &file'),
  ('Daten &importieren', '&Import data'),
  ('Einstellung &ZEMAK 3710', '&ZEMAK 3710 settings');

-- The grid's commands on the command line: the legend and the refusals.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('wird bei der Übernahme angelegt', 'will be created by the take-over'),
  ('nicht zugeordnet', 'not assigned'),
  ('Ungültige Zeilenangabe', 'Invalid row range'),
  ('Diese Zeilen gibt es nicht', 'These rows do not exist'),
  ('Die Spalte muss 1 bis 5 sein', 'The column must be 1 to 5'),
  ('Der Schlüssel muss eine Zahl sein', 'The key must be a number'),
  ('Dieser Schlüssel steht nicht in der Auswahlliste', 'This key is not in the selection list');

-- A host that has not set up the take-over.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Die Datenübernahme ist in diesem Programm nicht eingerichtet.', 'Taking over data is not set up in this program.');

-- Keys that name a text rather than being it: the German wording stands in Deutsch.
INSERT INTO Sprache (TextID, Deutsch, "English (United Kingdom)") VALUES
  ('Grund1', 'Neuanlage', 'New installation'),
  ('Grund2', 'Erweiterung', 'Addition'),
  ('Grund3', 'Änderung', 'Alteration'),
  ('Grund4', 'Wiederholungsprüfung', 'Periodic inspection'),
  ('Speicherfehler3710B',
   'Der Speicher des Prüfgeräts 3710B enthält ungültige Messungen. Sie werden ohne Messwerte eingelesen.',
   'The memory of the 3710B instrument holds invalid measurements. They are read in without values.'),
  ('activateCodeSplitting3720', 'Codeaufteilung einschalten', 'Activate code splitting'),
  ('CodeSplitting3720', 'Codeaufteilung 3720', 'Code splitting 3720'),
  ('CodeSplitting', 'Codeaufteilung', 'Code splitting'),
  ('EinlesedatenHilfetext',
   'Jede Zeile ist eine eingelesene Messung. Schwarz: Kunde, Anlage, Prüfung, Verteiler oder Stromkreis '
   || 'ist vorhanden. Blaugrün und fett: wird bei der Übernahme neu angelegt. Rot "???": fehlt noch. '
   || 'Doppelklick oder rechte Maustaste auf einer Zelle öffnet die Auswahl; die Wahl gilt für alle '
   || 'markierten Zeilen mit demselben übergeordneten Eintrag. "Daten übernehmen" überträgt alle Zeilen '
   || 'mit Kunde, Anlage, Verteiler und Stromkreis in die Prüfprotokolle; die übrigen bleiben stehen.',
   'Each row is one measurement read in. Black: the customer, installation, inspection, board or circuit '
   || 'exists. Teal and bold: it will be created by the take-over. Red "???": still missing. Double-click '
   || 'or right-click a cell to choose; the choice applies to all selected rows under the same parent. '
   || '"Take over data" moves every row with customer, installation, board and circuit into the '
   || 'inspection records; the others stay in the list.'),
  ('VOLTAGE', 'Spannung', 'Voltage'),
  ('INSULATION RESISTANCE', 'Isolationswiderstand', 'Insulation resistance'),
  ('DIAGNISTIC TEST', 'Diagnosetest', 'Diagnostic test'),
  ('STEP VOLTAGE', 'Stufenspannung', 'Step voltage'),
  ('WITHSTANDING VOLTAGE DC', 'Spannungsfestigkeit DC', 'Withstanding voltage DC'),
  ('HARMONICS VOLTAGE', 'Oberschwingungen Spannung', 'Voltage harmonics'),
  ('HARMONICS CURRENT CLAMP', 'Oberschwingungen Stromzange', 'Current clamp harmonics'),
  ('Zeit', 'Zeit', 'Time'),
  ('Spannung', 'Spannung', 'Voltage');

-- The command-protocol transfer and its report.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('TimeOut', 'Time-out'),
  ('Kommunikation nicht beendet !', 'Communication not ended !'),
  ('Im Gerät sind keine Messungen gespeichert !', 'The instrument holds no measurements !'),
  ('Einst.', 'Set.'),
  ('Grenzw.', 'Limit'),
  ('Messw.', 'Meas.'),
  (': Dieser Text ist zu lang !', ': This text is too long !'),
  (': Diese Soll Länge ist zu groß !', ': This target length is too great !');

-- The certificate of the window program.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Zertifikat', 'Certificate'),
  ('Firmendaten', 'Company details'),
  ('Neue Zertifikatsprüfung', 'New certificate inspection'),
  ('Firma', 'Company'),
  ('Handelsname', 'Trading title'),
  ('Registriernummer', 'Registration No.'),
  ('Filialnummer', 'Branch No.'),
  ('Telefonnummer', 'Telephone No.'),
  ('Faxnummer', 'Fax No.'),
  ('Logo', 'Logo');
-- The data pool and the logger series.
INSERT INTO Sprache (TextID, "English (United Kingdom)") VALUES
  ('Auswahl eines Objekts / Anlage', 'Choice of an object / installation'),
  ('Übernehmen', 'Accept'),
  ('Beginn der Aufzeichnung', 'Start of the recording'),
  ('Tag', 'Day'),
  ('Monat', 'Month'),
  ('Jahr', 'Year'),
  ('Stunde', 'Hour'),
  ('Minute', 'Minute'),
  ('Sekunde', 'Second'),
  ('Anzahl Messwerte', 'Number of values'),
  ('Intervall (s)', 'Interval (s)'),
  ('Spannung max', 'Voltage max'),
  ('Spannung min', 'Voltage min'),
  ('Datum oder Uhrzeit des Beginns ist ungültig. Bitte Tag, Monat, Jahr, Stunde, Minute und Sekunde prüfen.',
   'The start date or time is not valid. Please check day, month, year, hour, minute and second.');

UPDATE Sprache SET Deutsch = TextID WHERE Deutsch IS NULL;
UPDATE Sprache SET "Deutsch (&Deutschland)" = Deutsch, "Deutsch (&Österreich)" = Deutsch;
