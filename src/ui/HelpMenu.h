#pragma once

class frmMain;

/// Opens HELP.CHM of the program directory.
void mnuHelpFile_Click(frmMain& window);
/// Opens the maker's web site.
void mnuVistHomePage_Click(frmMain& window);
/// Shows the about box.
void mnuAbout_Click(frmMain& window);
