#include "document/file_io.h"

#include "ui/platform/codepage.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "document/disk_error.h"
#include "ui/platform/durable_file.h"

namespace kq {

namespace {

struct ReadFault {
  int errnoValue = 0;
  int times = 0;
} g_readFault;

int Fail() {
  return SystemErrorNumber(errno);
}

}  // namespace

int ReadWholeFile(const std::string& name, std::vector<uint8_t>& bytes, size_t limit) {
  const std::string path = ui::Cp1252ToUtf8(name);  // file names on disk are UTF-8
  bytes.clear();
  if (g_readFault.times > 0) {
    --g_readFault.times;
    return SystemErrorNumber(g_readFault.errnoValue);
  }
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
  bytes.resize(std::min(static_cast<size_t>(st.st_size), limit));
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

int WriteWholeFile(const std::string& name, const uint8_t* data, size_t size) {
  const std::string path = ui::Cp1252ToUtf8(name);  // file names on disk are UTF-8
  const int err = ui::WriteFileDurably(path, data, size);
  return err == 0 ? 0 : SystemErrorNumber(err);
}

void InjectWriteFault(int errnoValue, size_t afterBytes, int times) {
  ui::InjectDurableWriteFault(errnoValue, afterBytes, times);
}

void InjectReadFault(int errnoValue, int times) {
  g_readFault = {errnoValue, times};
}

}  // namespace kq
