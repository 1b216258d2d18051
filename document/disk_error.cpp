#include "document/disk_error.h"

#include <cerrno>

#include "ui/platform/platform.h"
#include "ui/platform/run_time_error.h"

namespace kq {

namespace {

// Retry/Cancel boxes: Retry repeats, Cancel leaves, anything else raises.
int RetryCancel(const std::string& text, const std::string& title) {
  const int answer = ui::platform().MsgBox(text, ui::vbRetryCancel | ui::vbExclamation, title);
  if (answer == ui::vbRetry) return kDiskRetry;
  if (answer == ui::vbCancel) return kDiskLeave;
  return kDiskRaise;
}

int OkOnly(const std::string& text, const std::string& title) {
  const int answer = ui::platform().MsgBox(text, ui::vbOKOnly | ui::vbExclamation, title);
  return answer == ui::vbOK ? kDiskLeave : kDiskRaise;
}

}  // namespace

int RetryDiskOperation(const std::string& title, const std::function<int()>& attempt,
                       DiskRaise onRaise) {
  for (int tries = 1;; ++tries) {
    const int err = attempt();
    if (err == 0) return 0;
    const int action = HandleDiskError(title, err);
    if (action == kDiskRaise && onRaise == DiskRaise::RaiseAgain) ui::RunTimeError(err);
    if (action != kDiskRetry || tries >= kMaxRetries) return err;
  }
}

int HandleDiskError(const std::string& title, int errorNumber) {
  switch (errorNumber) {
    case kErrDiskFull:
      return RetryCancel("Disk is full.\r\rInsert a new disk and try again.", title);
    case kErrDeviceUnavailable:
      return RetryCancel("There is no disk in the selected drive.Insert a disk and try again.",
                         title);
    case kErrPermissionDenied:
      return OkOnly(
          "This disk is write-protected.\r\rRemove the write-protection or use another disk.",
          title);
    case kErrDiskNotReady:
      return RetryCancel(
          "Cannot read selected drive.\rMake sure that the drive door is closed and that the disk "
          "is formatted and free of errors.",
          title);
    case kErrPathNotFound:
      return OkOnly("Path do not exist.", title);
    default:
      return kDiskRaise;
  }
}

int SystemErrorNumber(int errnoValue) {
  switch (errnoValue) {
    case ENOSPC:
    case EDQUOT:
      return kErrDiskFull;
    case ENXIO:
    case ENODEV:
      return kErrDeviceUnavailable;
    case EACCES:
    case EPERM:
    case EROFS:
      return kErrPermissionDenied;
    case EIO:
    case EBUSY:
      return kErrDiskNotReady;
    case ENOENT:
    case ENOTDIR:
      return kErrPathNotFound;
    default:
      // Not the errno value itself: some of them (ENODATA, EPROTO) share a number with
      // the disk errors above and would show the wrong box.
      return kErrFileAccess;
  }
}

}  // namespace kq
