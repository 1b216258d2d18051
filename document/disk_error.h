// The messages for run-time errors of file and drive operations, and the system's error
// numbers for the errors this platform reports.
#pragma once

#include <functional>
#include <string>

namespace kq {

// Action codes of HandleDiskError.
inline constexpr int kDiskRetry = 0;  // repeat the failing statement
inline constexpr int kDiskNext = 1;   // go on after it
inline constexpr int kDiskLeave = 2;  // leave the handler quietly
inline constexpr int kDiskRaise = 3;  // raise the same error again

// The system's run-time error numbers of file operations.
inline constexpr int kErrSubscript = 9;
inline constexpr int kErrDiskFull = 61;
inline constexpr int kErrDeviceUnavailable = 68;
inline constexpr int kErrPermissionDenied = 70;
inline constexpr int kErrDiskNotReady = 71;
inline constexpr int kErrPathNotFound = 76;
inline constexpr int kErrFileAccess = 75;

// Shows the box for the error under the title and returns the action code.
int HandleDiskError(const std::string& title, int errorNumber);

// A retried statement gives up after this many attempts in a row, so that a platform
// answering Retry by itself cannot hold the program forever.
inline constexpr int kMaxRetries = 100;

// What RetryDiskOperation does when HandleDiskError answers kDiskRaise: give the error
// back to the caller, or raise it again (with no handler above, the run-time error ends
// the program).
enum class DiskRaise { Return, RaiseAgain };

// Runs `attempt` (0, or the run-time error number of its failure) until it succeeds or
// HandleDiskError under the title answers anything but Retry, at most kMaxRetries times.
// 0 when it succeeded, otherwise the last error number.
int RetryDiskOperation(const std::string& title, const std::function<int()>& attempt,
                       DiskRaise onRaise = DiskRaise::Return);

// The system's error number for an errno value: 61 disk full, 68 device unavailable,
// 70 permission denied, 71 not ready, 76 path not found; any other value is a file
// access error (75), which has no box of its own.
int SystemErrorNumber(int errnoValue);

}  // namespace kq
