#include "ui/platform/durable_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <mutex>
#include <optional>

namespace ui {

namespace {

struct Seams {
  std::mutex mutex;
  int writeErrno = 0;
  uint64_t writeAfter = 0;
  int writeTimes = 0;
  std::optional<DurableStep> failStep;
  int failErrno = 0;
  std::optional<DurableStep> killStep;
};

Seams& seams() {
  static Seams s;
  return s;
}

// The injected failure of `step`, 0 for none; throws for an injected kill.
int InjectedAt(DurableStep step) {
  Seams& s = seams();
  std::lock_guard lock(s.mutex);
  if (s.killStep == step) {
    s.killStep.reset();
    throw DurableWriterKilled{step};
  }
  if (s.failStep == step) {
    s.failStep.reset();
    return s.failErrno;
  }
  return 0;
}

// Where the injected device fills (UINT64_MAX: never), taken by each file as it opens.
struct WriteLimit {
  uint64_t after = UINT64_MAX;
  int err = 0;
};
WriteLimit TakeWriteLimit() {
  Seams& s = seams();
  std::lock_guard lock(s.mutex);
  if (s.writeTimes <= 0) return {};
  --s.writeTimes;
  return {s.writeAfter, s.writeErrno};
}

std::string FolderOf(const std::string& path) {
  const size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

}  // namespace

int SyncFolderOf(const std::string& path) {
  const int fd = ::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return errno;
  int err = 0;
  // Some file systems cannot flush a folder; that is no failure of the write.
  if (::fsync(fd) != 0 && errno != EINVAL && errno != EROFS) err = errno;
  ::close(fd);
  return err;
}

DurableFile::~DurableFile() {
  Abandon();
}

std::string DurableFile::TempName(const std::string& path) {
  return path + ".kqx-save";
}

int DurableFile::Fail(int err) {
  Abandon();
  return err;
}

int DurableFile::Open(const std::string& path) {
  Abandon();
  path_ = path;
  if (const int err = InjectedAt(DurableStep::Open)) return err;
  // A link is followed, so that the file it names is replaced and the link stays.
  struct stat link {};
  if (::lstat(path.c_str(), &link) == 0 && S_ISLNK(link.st_mode)) {
    if (char* real = ::realpath(path.c_str(), nullptr)) {
      path_ = real;
      std::free(real);
    }
  }
  struct stat old {};
  const bool existed = ::stat(path_.c_str(), &old) == 0;
  if (existed && S_ISDIR(old.st_mode)) return EISDIR;
  if (existed && S_ISREG(old.st_mode) && (old.st_mode & 0222) == 0) return EACCES;
  fullAfter_ = UINT64_MAX;
  written_ = 0;
  handed_ = 0;
  if (existed && !S_ISREG(old.st_mode)) {
    // A device or a pipe is written in place: it cannot be replaced by a file.
    fd_ = ::open(path_.c_str(), O_WRONLY | O_CLOEXEC);
    return fd_ < 0 ? errno : 0;
  }
  temp_ = TempName(path_);
  fd_ = ::open(temp_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (fd_ < 0) {
    const int err = errno;
    temp_.clear();
    return err;
  }
  if (existed && ::fchmod(fd_, old.st_mode & 07777) != 0) return Fail(errno);
  const WriteLimit limit = TakeWriteLimit();
  fullAfter_ = limit.after;
  fullErr_ = limit.err;
  return 0;
}

int DurableFile::Write(const void* data, size_t size) {
  if (fd_ < 0) return EBADF;
  if (const int err = InjectedAt(DurableStep::Write)) return Fail(err);
  const auto* bytes = static_cast<const uint8_t*>(data);
  size_t limit = size;
  bool full = false;
  if (fullAfter_ != UINT64_MAX && written_ + size > fullAfter_) {
    limit = static_cast<size_t>(fullAfter_ - written_);
    full = true;
  }
  size_t done = 0;
  while (done < limit) {
    const ssize_t n = ::write(fd_, bytes + done, limit - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      return Fail(errno);
    }
    done += static_cast<size_t>(n);
  }
  written_ += done;
  if (full) return Fail(fullErr_);
#if defined(__linux__)
  // A large file starts going to the disk while it is written, a few megabytes at a time,
  // so that the flush at the end has little left to wait for. Only a hint: the flush
  // still decides.
  constexpr uint64_t kHandOver = 2 << 20;
  if (written_ - handed_ >= kHandOver) {
    ::sync_file_range(fd_, static_cast<off_t>(handed_), static_cast<off_t>(written_ - handed_),
                      SYNC_FILE_RANGE_WRITE);
    handed_ = written_;
  }
#endif
  return 0;
}

int DurableFile::Commit() {
  if (fd_ < 0) return EBADF;
  const bool inPlace = temp_.empty();
  int err = InjectedAt(DurableStep::Sync);
  // A device that cannot be flushed is no failure of the write.
  if (err == 0 && ::fsync(fd_) != 0 && !(inPlace && (errno == EINVAL || errno == EROFS))) {
    err = errno;
  }
  if (err != 0) return Fail(err);
  const int closed = ::close(fd_);
  fd_ = -1;
  if (closed != 0) return Fail(errno);
  if (inPlace) return 0;
  if (int e = InjectedAt(DurableStep::Rename);
      e != 0 || ::rename(temp_.c_str(), path_.c_str()) != 0) {
    return Fail(e != 0 ? e : errno);
  }
  temp_.clear();  // the temporary file is the target now
  // The new file is in place; a folder that cannot be flushed is still reported, since
  // the rename might not survive a power cut.
  if (const int e = InjectedAt(DurableStep::SyncFolder)) return e;
  return SyncFolderOf(path_);
}

void DurableFile::Abandon() {
  if (fd_ >= 0) {
    ::close(fd_);
    fd_ = -1;
  }
  if (!temp_.empty()) {
    ::unlink(temp_.c_str());
    temp_.clear();
  }
}

int WriteFileDurably(const std::string& path, const void* data, size_t size) {
  DurableFile file;
  if (const int err = file.Open(path)) return err;
  if (const int err = file.Write(data, size)) return err;
  return file.Commit();
}

int CopyFileDurably(const std::string& from, const std::string& to) {
  const int in = ::open(from.c_str(), O_RDONLY | O_CLOEXEC);
  if (in < 0) return errno;
  DurableFile file;
  int err = file.Open(to);
  uint8_t buffer[64 * 1024];
  while (err == 0) {
    const ssize_t n = ::read(in, buffer, sizeof buffer);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) err = errno;
    if (n <= 0) break;
    err = file.Write(buffer, static_cast<size_t>(n));
  }
  ::close(in);
  return err != 0 ? err : file.Commit();
}

void InjectDurableWriteFault(int errnoValue, uint64_t afterBytes, int times) {
  Seams& s = seams();
  std::lock_guard lock(s.mutex);
  s.writeErrno = errnoValue;
  s.writeAfter = afterBytes;
  s.writeTimes = times;
}

void InjectDurableStepFault(DurableStep step, int errnoValue) {
  Seams& s = seams();
  std::lock_guard lock(s.mutex);
  s.failStep = step;
  s.failErrno = errnoValue;
}

void InjectDurableKill(DurableStep step) {
  Seams& s = seams();
  std::lock_guard lock(s.mutex);
  s.killStep = step;
}

}  // namespace ui
