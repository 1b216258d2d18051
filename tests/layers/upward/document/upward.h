// A document header that reaches up into the editor: the layering check refuses it.
#pragma once

#include "editor/compile.h"
