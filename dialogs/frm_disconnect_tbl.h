// Disconnect Table (25): close the connection to a table.
#pragma once

#include "dialogs/table_dialog.h"

namespace kq {

class frmDisconnectTbl : public TableErrorDialog {
 public:
  frmDisconnectTbl();
};

}  // namespace kq
