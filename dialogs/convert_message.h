// The text of the conversion message for a result code of the speech conversion.
#pragma once

#include <string>

namespace kq {

// The text ConvertMessage shows for a code from 1 to 19; empty for 0 and any other.
std::string ConvertMessageText(int returnCode);

}  // namespace kq
