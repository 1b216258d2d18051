// One finding of the check of a whole application: a fault that compile would report, or
// a warning about something compile accepts but that is most likely a mistake.
#pragma once

#include <string>
#include <vector>

namespace kq::check {

enum class Severity { Error, Warning };

struct Finding {
  Severity severity = Severity::Error;
  int line = -1;     // -1 where the finding has no line
  std::string code;  // a short stable name: "undefined-variable", "unreachable-line", ...
  std::string message;
  bool operator==(const Finding&) const = default;
};

using Findings = std::vector<Finding>;

inline const char* SeverityName(Severity s) {
  return s == Severity::Error ? "error" : "warning";
}

}  // namespace kq::check
