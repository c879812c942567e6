#pragma once

class frmMain;

/// Brings employees in from a roster; the list of employees is shown when any came.
void mnuRosterImport_Click(frmMain& window);
