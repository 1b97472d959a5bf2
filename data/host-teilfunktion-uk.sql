-- The certificate "Niceic": where the worst value of each function name goes. A circuit keeps its
-- worst values in its one row of 0100_Messung, a board in 0100_Verteiler, the installation in the
-- inspection's record of 0100U_CertNic. "Max" and "Min" keep the greatest or smallest value in the
-- table the row names, "MaxBoard" and "MaxRoot" the greatest of the board or of the installation.
-- Values are compared as they come, without their unit. Names the certificate does not record
-- have no row: their values are dropped.

-- Loop impedance: the circuit's Zs, the worst of the board and of the installation.
INSERT INTO "0100_TeilfunktionUK" (TeilFunktion, Tabelle, SpaltenName, Prozedur, Zertifikat) VALUES
  ('Z LOOP, M, Z', '0100_Messung', 'LOOPRS', 'Max', 'Niceic'),
  ('Z LOOP, M, Z', '0100_Verteiler', 'ZsMax', 'MaxBoard', 'Niceic'),
  ('Z LOOP, M, Z', '0100U_CertNic', 'ZsMax', 'MaxRoot', 'Niceic'),
  ('Zs', '0100_Messung', 'LOOPRS', 'Max', 'Niceic'),
  ('Zs', '0100_Verteiler', 'ZsMax', 'MaxBoard', 'Niceic'),
  ('Zs', '0100U_CertNic', 'ZsMax', 'MaxRoot', 'Niceic'),
  ('R LOOP PRAVITONIX, M, R', '0100_Messung', 'LOOPRS', 'Max', 'Niceic'),
  ('R LOOP PRAVITONIX, M, R', '0100_Verteiler', 'ZsMax', 'MaxBoard', 'Niceic'),
  ('R LOOP PRAVITONIX, M, R', '0100U_CertNic', 'ZsMax', 'MaxRoot', 'Niceic'),
  ('m_LOOPRS', '0100_Messung', 'LOOPRS', 'Max', 'Niceic'),
  ('m_LOOPRS', '0100_Verteiler', 'ZsMax', 'MaxBoard', 'Niceic'),
  ('m_LOOPRS', '0100U_CertNic', 'ZsMax', 'MaxRoot', 'Niceic');

-- Prospective fault current: the greatest at each board and in the installation, in kA (the
-- take-over converts a value given in A before it compares).
INSERT INTO "0100_TeilfunktionUK" (TeilFunktion, Tabelle, SpaltenName, Prozedur, Zertifikat) VALUES
  ('Z LOOP, M, Isc', '0100_Verteiler', 'IpfMax', 'MaxBoard', 'Niceic'),
  ('Z LOOP, M, Isc', '0100U_CertNic', 'IpfMax', 'MaxRoot', 'Niceic'),
  ('Z LINE, M, Isc', '0100_Verteiler', 'IpfMax', 'MaxBoard', 'Niceic'),
  ('Z LINE, M, Isc', '0100U_CertNic', 'IpfMax', 'MaxRoot', 'Niceic'),
  ('Zs Ik', '0100_Verteiler', 'IpfMax', 'MaxBoard', 'Niceic'),
  ('Zs Ik', '0100U_CertNic', 'IpfMax', 'MaxRoot', 'Niceic'),
  ('Ri Ik', '0100_Verteiler', 'IpfMax', 'MaxBoard', 'Niceic'),
  ('Ri Ik', '0100U_CertNic', 'IpfMax', 'MaxRoot', 'Niceic'),
  ('R LOOP PRAVITONIX, M, Ik', '0100_Verteiler', 'IpfMax', 'MaxBoard', 'Niceic'),
  ('R LOOP PRAVITONIX, M, Ik', '0100U_CertNic', 'IpfMax', 'MaxRoot', 'Niceic'),
  ('R LINE PRAVITONIX, M, Ik', '0100_Verteiler', 'IpfMax', 'MaxBoard', 'Niceic'),
  ('R LINE PRAVITONIX, M, Ik', '0100U_CertNic', 'IpfMax', 'MaxRoot', 'Niceic'),
  ('m_LoopIKRS', '0100_Verteiler', 'IpfMax', 'MaxBoard', 'Niceic'),
  ('m_LoopIKRS', '0100U_CertNic', 'IpfMax', 'MaxRoot', 'Niceic'),
  ('m_LoopIKRI', '0100_Verteiler', 'IpfMax', 'MaxBoard', 'Niceic'),
  ('m_LoopIKRI', '0100U_CertNic', 'IpfMax', 'MaxRoot', 'Niceic');

-- Continuity of the protective conductors: the greatest resistance of the circuit.
INSERT INTO "0100_TeilfunktionUK" (TeilFunktion, Tabelle, SpaltenName, Prozedur, Zertifikat) VALUES
  ('LOW Ohm', '0100_Messung', 'LOW', 'Max', 'Niceic'),
  ('R +/-200mA, M, R', '0100_Messung', 'LOW', 'Max', 'Niceic'),
  ('R +/-200mA, M, R+', '0100_Messung', 'LOW', 'Max', 'Niceic'),
  ('R +/-200mA GEORTEST, M, R', '0100_Messung', 'LOW', 'Max', 'Niceic'),
  ('m_LOW', '0100_Messung', 'LOW', 'Max', 'Niceic'),
  ('m_KTS_CONTR', '0100_Messung', 'LOW', 'Max', 'Niceic'),
  ('m_KTS_CONT+', '0100_Messung', 'LOW', 'Max', 'Niceic'),
  ('m_KTS_CONTC', '0100_Messung', 'LOW', 'Max', 'Niceic'),
  ('m_KTS_CONTN', '0100_Messung', 'LOW_N', 'Max', 'Niceic'),
  ('m_KTS_CONTP', '0100_Messung', 'LOW_PE', 'Max', 'Niceic');

-- Insulation resistance: the smallest of the circuit, by conductors where the instrument tells
-- them, and the smallest of the installation.
INSERT INTO "0100_TeilfunktionUK" (TeilFunktion, Tabelle, SpaltenName, Prozedur, Zertifikat) VALUES
  ('R ISO, M, R', '0100_Messung', 'RISO', 'Min', 'Niceic'),
  ('R ISO, M, R', '0100U_CertNic', 'RisoMin', 'Min', 'Niceic'),
  ('Riso MOhm', '0100_Messung', 'RISO', 'Min', 'Niceic'),
  ('Riso MOhm', '0100U_CertNic', 'RisoMin', 'Min', 'Niceic'),
  ('Riso R MOhm', '0100_Messung', 'RISO', 'Min', 'Niceic'),
  ('Riso R MOhm', '0100U_CertNic', 'RisoMin', 'Min', 'Niceic'),
  ('R ISO GEORTEST, M, R', '0100_Messung', 'RISO', 'Min', 'Niceic'),
  ('R ISO GEORTEST, M, R', '0100U_CertNic', 'RisoMin', 'Min', 'Niceic'),
  ('m_RISO', '0100_Messung', 'RISO', 'Min', 'Niceic'),
  ('m_RISO', '0100U_CertNic', 'RisoMin', 'Min', 'Niceic'),
  ('m_KTS_INSUPP', '0100_Messung', 'RISO', 'Min', 'Niceic'),
  ('m_KTS_INSUPP', '0100U_CertNic', 'RisoMin', 'Min', 'Niceic'),
  ('m_KTS_INSUPN', '0100_Messung', 'RISO_LN', 'Min', 'Niceic'),
  ('m_KTS_INSUPE', '0100_Messung', 'RISO_LPE', 'Min', 'Niceic'),
  ('m_KTS_INSUNE', '0100_Messung', 'RISO_NPE', 'Min', 'Niceic');

-- Earth electrode resistance and supply voltage of the installation.
INSERT INTO "0100_TeilfunktionUK" (TeilFunktion, Tabelle, SpaltenName, Prozedur, Zertifikat) VALUES
  ('Re', '0100U_CertNic', 'RaMax', 'MaxRoot', 'Niceic'),
  ('R EARTH, M, Re', '0100U_CertNic', 'RaMax', 'MaxRoot', 'Niceic'),
  ('R EARTH GEORTEST, M, Re', '0100U_CertNic', 'RaMax', 'MaxRoot', 'Niceic'),
  ('R EARTH CLAMP 1 GEORTEST, M, Re', '0100U_CertNic', 'RaMax', 'MaxRoot', 'Niceic'),
  ('m_ErdRE', '0100U_CertNic', 'RaMax', 'MaxRoot', 'Niceic'),
  ('Spannung Uac', '0100U_CertNic', 'UoMax', 'Max', 'Niceic'),
  ('U', '0100U_CertNic', 'UoMax', 'Max', 'Niceic'),
  ('V', '0100U_CertNic', 'UoMax', 'Max', 'Niceic'),
  ('m_ULN', '0100U_CertNic', 'UoMax', 'Max', 'Niceic');

-- RCD trip times of the 37xx family: the time comes first and is kept; the factor row that
-- follows says at which test current it was measured, and so which column of the circuit and of
-- its board takes it. The command-protocol instruments send the factor before the time, under the
-- same names or names of their own: no factor follows their time, and it stays off the certificate.
INSERT INTO "0100_TeilfunktionUK" (TeilFunktion, Tabelle, SpaltenName, Prozedur, Zertifikat) VALUES
  ('RCD t, M, t', '0100_Messung', 'FIT', 'Store', 'Niceic'),
  ('RCD t, E, mult.:', '0100_Messung', 'FIT_x12', 'MaxRcd_x1/2', 'Niceic'),
  ('RCD t, E, mult.:', '0100_Messung', 'FIT_x1', 'MaxRcd_x1', 'Niceic'),
  ('RCD t, E, mult.:', '0100_Messung', 'FIT_x5', 'MaxRcd_x5', 'Niceic'),
  ('RCD t, E, mult.:', '0100_Verteiler', 'FIT_x12', 'MaxBoardRcd_x1/2', 'Niceic'),
  ('RCD t, E, mult.:', '0100_Verteiler', 'FIT_x1', 'MaxBoardRcd_x1', 'Niceic'),
  ('RCD t, E, mult.:', '0100_Verteiler', 'FIT_x5', 'MaxBoardRcd_x5', 'Niceic');
