#include "ui/CardMenu.h"

#include "printing/frmCardSet.h"
#include "ui/frmMain.h"

void mnuCardInfoSet_Click(frmMain& window) {
  frmCardSet(&window).exec();
}
