// The editor may include the document.
#include "document/upward.h"
