-- Cable, fuse and RCD types a user can start with. A fuse's Grenzwert is the current that makes it
-- break within the disconnection time, as ">" and amperes: the loop limit is 230 V over it.
INSERT INTO "0100_Kabeltyp" VALUES (1, 'NYM-J 3x1,5', 'NYM', 3, '1,5');
INSERT INTO "0100_Kabeltyp" VALUES (2, 'NYM-J 3x2,5', 'NYM', 3, '2,5');
INSERT INTO "0100_Kabeltyp" VALUES (3, 'NYM-J 5x1,5', 'NYM', 5, '1,5');
INSERT INTO "0100_Kabeltyp" VALUES (4, 'NYM-J 5x2,5', 'NYM', 5, '2,5');
INSERT INTO "0100_Kabeltyp" VALUES (5, 'NYM-J 5x6', 'NYM', 5, '6');
INSERT INTO "0100_Kabeltyp" VALUES (6, 'NYY-J 5x16', 'NYY', 5, '16');
INSERT INTO "0100_Kabeltyp" VALUES (7, 'H07V-K 1x10', 'H07V-K', 1, '10');

INSERT INTO "0100_Sicherungstyp" VALUES (1, 'B6', '>30', 'B', '6', 'LS-Schalter B 6 A');
INSERT INTO "0100_Sicherungstyp" VALUES (2, 'B10', '>50', 'B', '10', 'LS-Schalter B 10 A');
INSERT INTO "0100_Sicherungstyp" VALUES (3, 'B13', '>65', 'B', '13', 'LS-Schalter B 13 A');
INSERT INTO "0100_Sicherungstyp" VALUES (4, 'B16', '>80', 'B', '16', 'LS-Schalter B 16 A');
INSERT INTO "0100_Sicherungstyp" VALUES (5, 'B20', '>100', 'B', '20', 'LS-Schalter B 20 A');
INSERT INTO "0100_Sicherungstyp" VALUES (6, 'B32', '>160', 'B', '32', 'LS-Schalter B 32 A');
INSERT INTO "0100_Sicherungstyp" VALUES (7, 'C16', '>160', 'C', '16', 'LS-Schalter C 16 A');
INSERT INTO "0100_Sicherungstyp" VALUES (8, 'C32', '>320', 'C', '32', 'LS-Schalter C 32 A');
INSERT INTO "0100_Sicherungstyp" VALUES (9, 'gG 16A', '>65', 'gG', '16', 'Schmelzsicherung gG 16 A, 5 s');
INSERT INTO "0100_Sicherungstyp" VALUES (10, 'gG 25A', '>120', 'gG', '25', 'Schmelzsicherung gG 25 A, 5 s');
INSERT INTO "0100_Sicherungstyp" VALUES (11, 'gG 35A', '>173', 'gG', '35', 'Schmelzsicherung gG 35 A, 5 s');
INSERT INTO "0100_Sicherungstyp" VALUES (12, 'gG 63A', '>230', 'gG', '63', 'Schmelzsicherung gG 63 A, 5 s');

INSERT INTO "0100_RCDtyp" VALUES (1, 'RCD 30 mA Typ A', '30', 'A');
INSERT INTO "0100_RCDtyp" VALUES (2, 'RCD 30 mA Typ AC', '30', 'AC');
INSERT INTO "0100_RCDtyp" VALUES (3, 'RCD 30 mA Typ B', '30', 'B');
INSERT INTO "0100_RCDtyp" VALUES (4, 'RCD 100 mA Typ A', '100', 'A');
INSERT INTO "0100_RCDtyp" VALUES (5, 'RCD 300 mA Typ A S', '300', 'A S');
