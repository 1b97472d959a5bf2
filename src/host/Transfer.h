#pragma once

namespace vemo {

class Arbeitsdateisperre;

// The road of a transfer: the family's link leaves the raw file and the abort flag, the parser
// turns the file into read-in rows, a numbered copy goes to the backup directory.
void DatenEmpfangen();

// What a link tells the driver: go on with the parse, or leave at once without a word (the user
// aborted before anything came, or the link has told the user itself).
enum class Ausgang { Weiter, Verlassen };

// Runs the link of the current selector.
Ausgang TransferStarten();

// The start of a run that uses the working files: false, with the user told and Abbruchmerker 1,
// when the backup folder is missing (the copy at the end would fail after the rows were stored)
// or when another run kept the working files.
bool backupVerzeichnisDa();
bool arbeitsdateienFrei(const Arbeitsdateisperre& sperre);

// The data pool and the logger pre-pass take over a dump that began with a logger record.
void datenpoolVorbereiten();

} // namespace vemo
