// Random documents down to the byte: every live function, declarations in any slot, text
// fields in their usual form and in odd ones (no NUL, NUL filled, any byte), stale label
// line numbers, DisplayLines that say anything.
#pragma once

#include <random>

#include "ui/model/list_controls.h"

namespace kqtest {

// Replaces the document with a random one of up to maxLines lines.
void BuildOddDocument(ui::ListBox& list, std::mt19937& rng, int maxLines);

// Everything of the document that a save writes: header, DisplayLines as saved (180
// bytes), line entries and the record bytes of each line.
std::string DocumentBytes(const ui::ListBox& list);

}  // namespace kqtest
