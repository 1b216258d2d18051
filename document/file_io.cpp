#include "document/file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "document/disk_error.h"

namespace kq {

namespace {

struct WriteFault {
  int errnoValue = 0;
  size_t afterBytes = 0;
  int times = 0;
} g_fault;

int Fail() {
  return SystemErrorNumber(errno);
}

// Writes all bytes; -1 with errno set on failure.
int WriteAll(int fd, const uint8_t* data, size_t size) {
  size_t limit = size;
  bool faulty = false;
  if (g_fault.times > 0) {
    --g_fault.times;
    if (g_fault.afterBytes < size) limit = g_fault.afterBytes, faulty = true;
  }
  size_t done = 0;
  while (done < limit) {
    const ssize_t n = ::write(fd, data + done, limit - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      return -1;
    }
    done += static_cast<size_t>(n);
  }
  if (faulty) {
    errno = g_fault.errnoValue;
    return -1;
  }
  return 0;
}

}  // namespace

int ReadWholeFile(const std::string& path, std::vector<uint8_t>& bytes) {
  bytes.clear();
  int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0 && errno == ENOENT) {
    fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  }
  if (fd < 0) return Fail();
  struct stat st {};
  if (::fstat(fd, &st) != 0) {
    const int err = Fail();
    ::close(fd);
    return err;
  }
  if (S_ISDIR(st.st_mode)) {
    ::close(fd);
    return kErrPathNotFound;
  }
  bytes.resize(static_cast<size_t>(st.st_size));
  size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t n = ::read(fd, bytes.data() + done, bytes.size() - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      const int err = Fail();
      ::close(fd);
      bytes.clear();
      return err;
    }
    if (n == 0) break;  // the file became shorter while reading
    done += static_cast<size_t>(n);
  }
  bytes.resize(done);
  ::close(fd);
  return 0;
}

int WriteWholeFile(const std::string& path, const uint8_t* data, size_t size) {
  const std::string temp = path + ".kqx-save";
  struct stat old {};
  const bool existed = ::stat(path.c_str(), &old) == 0;
  const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (fd < 0) return Fail();
  if (WriteAll(fd, data, size) != 0) {
    const int err = Fail();
    ::close(fd);
    ::unlink(temp.c_str());
    return err;
  }
  if (existed) (void)::fchmod(fd, old.st_mode & 07777);
  if (::close(fd) != 0) {
    const int err = Fail();
    ::unlink(temp.c_str());
    return err;
  }
  if (::rename(temp.c_str(), path.c_str()) != 0) {
    const int err = Fail();
    ::unlink(temp.c_str());
    return err;
  }
  return 0;
}

void InjectWriteFault(int errnoValue, size_t afterBytes, int times) {
  g_fault = {errnoValue, afterBytes, times};
}

}  // namespace kq
