#include "ui/cards/CardMenu.h"

#include "ui/cards/frmCardSet.h"
#include "ui/frmMain.h"

void mnuCardInfoSet_Click(frmMain& window) {
  frmCardSet(&window).exec();
}
