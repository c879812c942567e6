#pragma once

class frmMain;

/// Shows the dialog that designs the card.
void mnuCardInfoSet_Click(frmMain& window);
