#pragma once

class frmMain;

/// Asks for files of one employee each, shows them one after the other to be checked and stored, and reads
/// the list of employees again. An error ends it with a note in the status bar.
void mnuEmpImport_Click(frmMain& window);
