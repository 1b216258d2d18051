// Whole files written so that a crash or a failing disk never leaves a mix of old and new:
// the bytes go to a temporary name beside the target, are flushed to the disk, and the
// temporary file is renamed over the target; then the folder is flushed, so that the
// rename itself survives a power cut. A replaced file keeps its permission bits.
// Standard library and POSIX only, so that every library that writes files can use it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace ui {

// The steps of a durable write, in their order.
enum class DurableStep { Open, Write, Sync, Rename, SyncFolder };

// A file being written. Failures come back as errno values (0 for none). After a failure,
// and when the object goes away without Commit, the temporary file is removed and the
// target is as it was.
class DurableFile {
 public:
  DurableFile() = default;
  ~DurableFile();
  DurableFile(const DurableFile&) = delete;
  DurableFile& operator=(const DurableFile&) = delete;

  // Creates the temporary file beside `path`. A target marked read-only is refused with
  // EACCES: the rename would get past the mark that writing into the file respects.
  int Open(const std::string& path);
  // Appends bytes.
  int Write(const void* data, size_t size);
  // Flushes, renames over the target and flushes the folder.
  int Commit();
  // Drops the temporary file; the target stays as it was.
  void Abandon();

  // The temporary name of a target.
  static std::string TempName(const std::string& path);

 private:
  int Fail(int err);

  std::string path_;
  std::string temp_;
  int fd_ = -1;
  uint64_t written_ = 0;
  uint64_t handed_ = 0;              // the bytes whose writing to the disk has been started
  uint64_t fullAfter_ = UINT64_MAX;  // an injected full device
  int fullErr_ = 0;
};

// Writes `size` bytes as the whole file `path` through a DurableFile; an errno value.
int WriteFileDurably(const std::string& path, const void* data, size_t size);

// Copies the file `from` as the whole file `to` through a DurableFile; an errno value.
int CopyFileDurably(const std::string& from, const std::string& to);

// Flushes the folder that holds `path`, so that a file just put there by a rename or a link
// survives a power cut; an errno value. For files that another writer made whole (the
// Qt settings file, written through a flushed temporary file and linked into place).
int SyncFolderOf(const std::string& path);

// Test seams, for the next durable writes of this process:
//  - the next `times` writes fail with `errnoValue` once `afterBytes` bytes of the file
//    have been written, like a device that fills up;
void InjectDurableWriteFault(int errnoValue, uint64_t afterBytes, int times);
//  - the next write fails with `errnoValue` at `step`, as the system call would;
void InjectDurableStepFault(DurableStep step, int errnoValue);
//  - the next write stops dead before `step`, as if the process were killed there: it
//    throws DurableWriterKilled and cleans nothing up.
void InjectDurableKill(DurableStep step);
struct DurableWriterKilled {
  DurableStep step;
};

}  // namespace ui
