-- The driver tables of the Sorelin instruments, one a type: the image an instrument sends has no
-- meaning by itself, its driver table tells what each block holds. A table is named by the type
-- number and "Sorelin" and has text columns "1", "2", ...; column 1 is the key of a row. The README
-- ("Sorelin driver tables") tells what each row and column means; an empty column means none.

-- SORELIN PM 12, type 4120: insulation at 500 V, continuity, loop impedance, an RCD test.
CREATE TABLE "4120Sorelin" (
  "1" TEXT, "2" TEXT, "3" TEXT, "4" TEXT, "5" TEXT, "6" TEXT, "7" TEXT, "8" TEXT, "9" TEXT,
  "10" TEXT, "11" TEXT, "12" TEXT, "13" TEXT, "14" TEXT, "15" TEXT, "16" TEXT, "17" TEXT, "18" TEXT,
  "19" TEXT, "20" TEXT, "21" TEXT, "22" TEXT, "23" TEXT, "24" TEXT, "25" TEXT, "26" TEXT, "27" TEXT,
  "28" TEXT, "29" TEXT, "30" TEXT, "31" TEXT, "32" TEXT, "33" TEXT, "34" TEXT, "35" TEXT, "36" TEXT,
  "37" TEXT, "38" TEXT, "39" TEXT, "40" TEXT, "41" TEXT, "42" TEXT, "43" TEXT, "44" TEXT, "45" TEXT,
  "46" TEXT, "47" TEXT, "48" TEXT, "49" TEXT, "50" TEXT, "51" TEXT, "52" TEXT, "53" TEXT, "54" TEXT,
  "55" TEXT
);

INSERT INTO "4120Sorelin" ("1", "2") VALUES
  ('Version', '1.4'),
  ('NameDE', 'SORELIN PM 12'),
  ('StartBlock', '240');

-- Lists: bit pattern (hexadecimal) and what it gives, first match wins, pattern 0 matches any number.
-- Insulation: the two top bits give the range, a reading with all value bits set is over range.
INSERT INTO "4120Sorelin" ("1", "2", "3", "4", "5", "6", "7") VALUES
  ('Riso Bereich', '8000', '1', '4000', '10', '0', '100'),
  ('FI Stromarten', '02', 'B', '01', 'A', '0', 'AC');
INSERT INTO "4120Sorelin" ("1", "2", "3", "4", "5", "6", "7", "8", "9") VALUES
  ('FI Faktoren', '0C', 'x5', '08', 'x2', '04', 'x1', '0', 'x1/2');
INSERT INTO "4120Sorelin" ("1", "2", "3", "4", "5") VALUES
  ('Riso Überlauf', '3FFF', '>', '0', 'Kein Overflow'),
  ('FI Halbwellen', '10', '180°', '0', '0°');
INSERT INTO "4120Sorelin" ("1", "2", "3") VALUES
  ('Hundertstel', '0', '100'),
  ('Zehntel', '0', '10'),
  ('LOW Überlauf', '8000', '>');

-- Measurement blocks: column 2 the setting text, column 7 the number of values, then per value the
-- size in bytes, mask, name part, unit, first name part, scale list, overflow list, decimals.
INSERT INTO "4120Sorelin" ("1", "2", "7", "8", "9", "10", "11", "12", "13", "14", "15") VALUES
  ('129DE', '500 V', '1', '2', '3FFF', 'R', 'MOhm', 'Riso', 'Riso Bereich', 'Riso Überlauf', '2'),
  ('130DE', '', '1', '2', '7FFF', 'Ohm', 'Ohm', 'LOW', 'Hundertstel', 'LOW Überlauf', '2');
INSERT INTO "4120Sorelin" ("1", "7", "8", "9", "10", "11", "12", "13", "14", "15",
                           "16", "17", "18", "19", "20", "21", "22", "23") VALUES
  ('131DE', '2', '2', 'FFFF', '', 'Ohm', 'Zs', 'Hundertstel', '', '2',
                 '2', 'FFFF', 'Ik', 'A', 'Zs', '', '', '');
-- The RCD test (id 20): trip time, touch voltage, tripping current, then the touch voltage limit at
-- the head of its settings, the rated current and the settings byte that columns 4 to 6 read. Its
-- id is the top byte of the trip time's three.
INSERT INTO "4120Sorelin" ("1", "4", "5", "6", "7",
                           "8", "9", "10", "11", "12", "13", "14", "15",
                           "16", "17", "18", "19", "20", "21", "22", "23",
                           "24", "25", "26", "27", "28", "29", "30", "31",
                           "32", "33", "34", "35", "36", "37", "38", "39",
                           "40", "41", "42", "43", "44", "45", "46", "47",
                           "48", "49", "50", "51", "52", "53", "54", "55") VALUES
  ('20DE', 'FI Stromarten', 'FI Faktoren', 'FI Halbwellen', '6',
   '3', 'FFFF', 't', 'ms', 'FI', '', '', '',
   '2', 'FFFF', 'Ub', 'V', 'FI', 'Zehntel', '', '1',
   '2', 'FFFF', 'Ia', 'mA', 'FI', '', '', '',
   '1', 'FF', 'max', 'V', 'Ub', '', '', '',
   '2', 'FFFF', 'E, Idn', 'mA', 'FI', '', '', '',
   '1', 'FF', 'Einstellung', '', 'FI', '', '', '');

-- SORELIN PM 20, type 4130: insulation at 500 V, continuity, loop and line impedance, an RCD trip
-- time series whose timing pairs follow in blocks of their own.
CREATE TABLE "4130Sorelin" AS SELECT * FROM "4120Sorelin" WHERE 0;

INSERT INTO "4130Sorelin" ("1", "2") VALUES
  ('Version', '2.1'),
  ('NameDE', 'SORELIN PM 20'),
  ('StartBlock', '240');

INSERT INTO "4130Sorelin" ("1", "2", "3") VALUES
  ('Zehntel', '0', '10'),
  ('Tausendstel', '0', '1000'),
  ('Hundertstel', '0', '100'),
  ('Riso Überlauf', '8000', '>'),
  ('FI Faktor 500', '0', 'x1');
INSERT INTO "4130Sorelin" ("1", "2", "3", "4", "5") VALUES
  ('FI Grenzen', '20', '25 V', '0', '50 V');

INSERT INTO "4130Sorelin" ("1", "2", "7", "8", "9", "10", "11", "12", "13", "14", "15") VALUES
  ('129DE', '500 V', '1', '2', '7FFF', 'R', 'MOhm', 'Riso', 'Zehntel', 'Riso Überlauf', '1'),
  ('130DE', '', '1', '2', 'FFFF', 'Ohm', 'Ohm', 'LOW', 'Tausendstel', '', '3');
INSERT INTO "4130Sorelin" ("1", "7", "8", "9", "10", "11", "12", "13", "14", "15",
                           "16", "17", "18", "19", "20", "21", "22", "23") VALUES
  ('131DE', '2', '2', '', '', 'Ohm', 'Zs', 'Hundertstel', '', '2',
                 '3', '', 'Ik', 'A', 'Zs', '', '', ''),
  ('132DE', '2', '2', '', '', 'Ohm', 'Ri', 'Hundertstel', '', '2',
                 '3', '', 'Ik', 'A', 'Ri', '', '', '');
-- The head of a trip time series (id 5): the rated current, whose three bytes begin with the id,
-- and the settings byte that columns 4 and 5 read.
INSERT INTO "4130Sorelin" ("1", "4", "5", "7",
                           "8", "9", "10", "11", "12", "13", "14", "15",
                           "16", "17", "18", "19", "20", "21", "22", "23") VALUES
  ('5DE', 'FI Grenzen', 'FI Faktor 500', '2',
   '3', 'FFFF', 'IdN', 'mA', 'FI', '', '', '',
   '1', '', 'Einstellung', '', 'FI', '', '', '');
-- A timing pair of the series: test current and trip time.
INSERT INTO "4130Sorelin" ("1", "7", "8", "9", "10", "11", "12", "13", "14", "15",
                           "16", "17", "18", "19", "20", "21", "22", "23") VALUES
  ('133DE', '2', '2', '', 'mA', 'mA', 'FI tmess', '', '', '',
                 '2', '', 'ms', 'ms', 'FI tmess', '', '', '');
