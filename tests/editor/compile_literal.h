// Compile written as the plain walks that describe it: every lookup walks the whole
// table or the whole program. Slow (quadratic) and obviously right; the indexed compile
// of the editor must give exactly the same boxes, selections and record bytes.
#pragma once

namespace kq::test {

bool LiteralCompile();

}  // namespace kq::test
