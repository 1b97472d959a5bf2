-- The function names of the instruments and where their values go: a column of 0100_Messung with
-- the unit it holds, "mitCase***" where a routine of the take-over reads the name itself (the unit
-- is then the one its value is converted to), or "keine***" where the value is dropped. Names
-- with "g_" go to the limit columns of 0100_Grenzwert.

-- Phase rotation.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('PHASE ROTATION, M, P.R.', 'mitCase***', ''),
  ('PHASE ROTATION PRAVITONIX, M, Drehfeld', 'mitCase***', ''),
  ('Drehfeld', 'mitCase***', ''),
  ('Phase', 'mitCase***', ''),
  ('3', 'mitCase***', '');

-- RCD settings that stand on rows of their own.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('RCD I, E, phase:', 'mitCase***', ''),
  ('RCD t, E, phase:', 'mitCase***', ''),
  ('RCD I PRAVITONIX, E, phase:', 'mitCase***', ''),
  ('RCD t PRAVITONIX, E, phase:', 'mitCase***', ''),
  ('RCD I, E, type :', 'mitCase***', ''),
  ('RCD t, E, type :', 'mitCase***', ''),
  ('RCD I PRAVITONIX, E, type :', 'mitCase***', ''),
  ('RCD t PRAVITONIX, E, type :', 'mitCase***', ''),
  ('RCD Uc, E, type :', 'mitCase***', ''),
  ('RCD Uc PRAVITONIX, E, type :', 'mitCase***', ''),
  ('RCD t, E, Idn', 'FIIDN', 'mA'),
  ('RCD I, E, Idn', 'FIIDN', 'mA'),
  ('RCD Uc, E, Idn', 'FIIDN', 'mA'),
  ('RCD t, E, mult.:', 'FIFaktor', ''),
  ('RCD Uc, E, mult.:', 'FIFaktor', ''),
  ('FI Faktor', 'mitCase***', ''),
  ('FI Halbwelle', 'mitCase***', ''),
  ('FI tmess mA', 'mitCase***', 'mA'),
  ('FI tmess ms', 'mitCase***', 'ms');

-- The automatic RCD series and the rows that belong to it.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('RCD AUTO, M, x1/2    0', 'mitCase***', 'ms'),
  ('RCD AUTO, M, x1/2  180', 'mitCase***', 'ms'),
  ('RCD AUTO, M, x1      0', 'mitCase***', 'ms'),
  ('RCD AUTO, M, x1    180', 'mitCase***', 'ms'),
  ('RCD AUTO, M, x5      0', 'mitCase***', 'ms'),
  ('RCD AUTO, M, x5    180', 'mitCase***', 'ms'),
  ('RCD AUTO, M, t1', 'mitCase***', 'ms'),
  ('RCD AUTO, M, t2', 'mitCase***', 'ms'),
  ('RCD AUTO, M, t3', 'mitCase***', 'ms'),
  ('RCD AUTO, M, t4', 'mitCase***', 'ms'),
  ('RCD AUTO, M, t5', 'mitCase***', 'ms'),
  ('RCD AUTO, M, t6', 'mitCase***', 'ms'),
  ('RCD AUTO, M, Ub', 'mitCase***', 'V'),
  ('RCD AUTO, E, Idn', 'mitCase***', 'mA'),
  ('RCD AUTO, E, type :', 'mitCase***', '');

-- RCD values of the 37xx family.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('RCD t, M, t', 'FIT', 'ms'),
  ('RCD I, M, Id', 'FIIMESS', 'mA'),
  ('RCD t, M, Ub', 'FIUB', 'V');

-- Touch voltage limits at the head of an RCD test.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('RCD Uc, G, Ub', 'mitCase***', 'V'),
  ('IdRCD Vc max', 'mitCase***', 'V'),
  ('RCD AUTO, G, Ub', 'mitCase***', 'V'),
  ('RCD I PRAVITONIX, G, Ub', 'mitCase***', 'V'),
  ('RCD I, G, Ub', 'mitCase***', 'V'),
  ('RCD I, G, Uc', 'mitCase***', 'V'),
  ('RCD t PRAVITONIX, G, Ub', 'mitCase***', 'V'),
  ('RCD t, G, Ub', 'mitCase***', 'V'),
  ('RCD Uc PRAVITONIX, G, Ub', 'mitCase***', 'V'),
  ('tFI Ub max', 'mitCase***', 'V'),
  ('tRCD Vc max', 'mitCase***', 'V'),
  ('Ub max', 'mitCase***', 'V'),
  ('UbFI Ub max', 'mitCase***', 'V'),
  ('Vc max', 'mitCase***', 'V'),
  ('VcRCD Vc max', 'mitCase***', 'V'),
  ('IdFI Ub max', 'mitCase***', 'V'),
  ('FI UL', 'mitCase***', 'V');

-- RCD tests of the older instruments, as runs of rows.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('tFI', 'mitCase***', ''),
  ('tFI S', 'mitCase***', ''),
  ('tRCD', 'mitCase***', ''),
  ('tRCD S', 'mitCase***', ''),
  ('RCD', 'mitCase***', ''),
  ('RCD S', 'mitCase***', ''),
  ('IdFI', 'mitCase***', 'mA'),
  ('IdFI S', 'mitCase***', 'mA'),
  ('IdRCD', 'mitCase***', 'mA'),
  ('IdRCD S', 'mitCase***', 'mA'),
  ('Id', 'mitCase***', 'mA'),
  ('t', 'mitCase***', 'ms'),
  ('T0', 'mitCase***', 'ms'),
  ('T180', 'mitCase***', 'ms'),
  ('UbFI mA', 'mitCase***', 'mA'),
  ('VcRCD mA', 'mitCase***', 'mA'),
  ('UbFI S mA', 'mitCase***', 'mA'),
  ('VcRCD S mA', 'mitCase***', 'mA'),
  ('Ub', 'mitCase***', 'V'),
  ('Vc', 'mitCase***', 'V'),
  ('FI UB mA', 'mitCase***', 'mA');

-- Continuity.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('R +/-200mA, M, R', 'mitCase***', 'Ohm'),
  ('R +/-200mA, M, R+', 'mitCase***', 'Ohm'),
  ('R +/-200mA, M, R-', 'keine***', 'Ohm'),
  ('R +/-200mA, G, R', 'mitCase***', 'Ohm'),
  ('R +/-200mA GEORTEST, G, R-', 'mitCase***', 'Ohm'),
  ('LOW Ohm', 'LOW', 'Ohm'),
  ('', 'LOW', 'Ohm');

-- Insulation.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('R ISO, M, R', 'RISO', 'MOhm'),
  ('R ISO, M, U', 'UISO', 'V'),
  ('R ISO, G, R', 'mitCase***', 'MOhm'),
  ('R ISO GEORTEST, G, Riso', 'mitCase***', 'MOhm'),
  ('R ISO, E, Un', 'mitCase***', 'V'),
  ('R ISO GEORTEST, E, Un', 'mitCase***', 'V');

-- Loop and line impedance with their short-circuit currents.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('Z LOOP, M, Z', 'LOOPRS', 'Ohm'),
  ('Z LOOP, M, Isc', 'LoopIKRS', 'A'),
  ('Z LINE, M, Z', 'LOOPRI', 'Ohm'),
  ('Z LINE, M, Isc', 'LoopIKRI', 'A'),
  ('R LOOP N-PE, M, R', 'LOOPNPE', 'Ohm'),
  ('R LOOP N-PE, M, Isc', 'mitCase***', 'A'),
  ('Ri', 'mitCase***', 'Ohm'),
  ('Ri Ohm', 'mitCase***', 'Ohm'),
  ('RI', 'mitCase***', 'Ohm'),
  ('Schleife RI', 'mitCase***', 'Ohm'),
  ('Zs', 'mitCase***', 'Ohm'),
  ('Zl', 'mitCase***', 'Ohm'),
  ('ZS', 'mitCase***', 'Ohm'),
  ('RS', 'mitCase***', 'Ohm'),
  ('Schleife RS', 'mitCase***', 'Ohm');

-- Earth resistance.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('Re', 'ErdRE', 'Ohm'),
  ('R EARTH, G, R', 'mitCase***', 'Ohm'),
  ('R EARTH CLAMP 1 GEORTEST, G, Re', 'mitCase***', 'Ohm'),
  ('R EARTH CLAMP 1, G, R', 'mitCase***', 'Ohm'),
  ('R EARTH CLAMP 2 GEORTEST, G, Re', 'mitCase***', 'Ohm');

-- Voltage and frequency.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('Spannung Uac', 'ULN', 'V'),
  ('Spannung f', 'Frequenz', 'Hz');

-- Measured columns by prefix, and those the 37xx family writes by conductor.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('m_Bemerkung', 'Bemerkung', ''),
  ('m_KTS_INSUPP', 'RISO', 'MOhm'),
  ('m_KTS_INSUPN', 'RISO_LN', 'MOhm'),
  ('m_KTS_INSUPE', 'RISO_LPE', 'MOhm'),
  ('m_KTS_INSUNE', 'RISO_NPE', 'MOhm'),
  ('m_KTS_CONTR', 'LOW', 'Ohm'),
  ('m_KTS_CONT+', 'LOW', 'Ohm'),
  ('m_KTS_CONTP', 'LOW_PE', 'Ohm'),
  ('m_KTS_CONTC', 'LOW', 'Ohm'),
  ('m_KTS_CONTN', 'LOW_N', 'Ohm'),
  ('m_ULN', 'ULN', 'V'),
  ('m_ULPE', 'ULPE', 'V'),
  ('m_UNPE', 'UNPE', 'V'),
  ('m_Frequenz', 'Frequenz', 'Hz'),
  ('m_RISO', 'RISO', 'MOhm'),
  ('m_VISO', 'VISO', 'V'),
  ('m_UISO', 'UISO', 'V'),
  ('m_LOW', 'LOW', 'Ohm'),
  ('m_LOOPRS', 'LOOPRS', 'Ohm'),
  ('m_LOOPRI', 'LOOPRI', 'Ohm'),
  ('m_LoopIKRS', 'LoopIKRS', 'A'),
  ('m_LoopIKRI', 'LoopIKRI', 'A'),
  ('m_FIFaktor', 'FIFaktor', ''),
  ('m_FGRAD', 'FGRAD', ''),
  ('m_FIIDN', 'FIIDN', 'mA'),
  ('m_FIIMESS', 'FIIMESS', 'mA'),
  ('m_FIUB', 'FIUB', 'V'),
  ('m_FIRE', 'FIRE', 'Ohm'),
  ('m_FIT', 'FIT', 'ms'),
  ('m_ErdRE', 'ErdRE', 'Ohm'),
  ('m_DREH', 'DREH', '');

-- Limit columns by prefix.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('g_RISO', 'RISO', 'MOhm'),
  ('g_LOW', 'LOW', 'Ohm'),
  ('g_LOOPRS', 'LOOPRS', 'Ohm'),
  ('g_LOOPRI', 'LOOPRI', 'Ohm'),
  ('g_LoopIKRS', 'LoopIKRS', 'A'),
  ('g_LoopIKRI', 'LoopIKRI', 'A'),
  ('g_FIUB', 'FIUB', 'V'),
  ('g_FIRE', 'FIRE', 'Ohm'),
  ('g_ErdRE', 'ErdRE', 'Ohm'),
  ('g_FIT MIN', 'FIT MIN', 'ms'),
  ('g_FIT MAX', 'FIT MAX', 'ms');

-- Control rows: "s_NEW" starts a further measurement row.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('s_NEW', 'keine***', '');
