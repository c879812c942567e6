#pragma once

class frmMain;

/// Brings employees in from a roster; the list of employees is shown when any came.
void mnuRosterImport_Click(frmMain& window);
/// Prints the cards of the selected employees, several on a sheet; without a selection does what printing
/// them one below the other does.
void mnuCardSheet_Click(frmMain& window);
