#pragma once

class frmMain;

/// Asks for a new department; the list is read again when one was inserted.
void mnuDeptAppend_Click(frmMain& window);
/// Asks for the new name of each selected department, from the bottom row to the top one; the list is read
/// again when any was stored.
void mnuDeptEdit_Click(frmMain& window);
