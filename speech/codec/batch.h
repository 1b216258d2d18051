// Many speech files converted to one format, in parallel on all cores.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace kq::speech {

struct BatchJob {
  std::string input;
  std::string output;
  int inputFormat = 0;
  int outputFormat = 0;
};

struct BatchFailure {
  std::string input;
  int code = 0;  // of the conversion messages
};

// The jobs that convert `inputs` into the folder `outDir` in `outputFormat`: a file as it
// is named, a folder by its speech files (by extension, not its sub-folders), in name
// order. An input file's format comes from its extension, ".vox" being `voxFormat`; the
// output is named by the input's base name and the format's extension ("wav" for WAVE).
// An input that is not there is a job all the same: its conversion reports it.
std::vector<BatchJob> PlanBatch(const std::vector<std::string>& inputs, int outputFormat,
                                const std::string& outDir, int voxFormat);

// The file extension, lower case, of the files of a format in a batch; empty for none.
std::string BatchExtension(int format);

// Runs the jobs on `threads` threads (0: one a core), each conversion going on whatever
// the others do; WAVE output is at 8000 Hz. `progress`, when set, is called after each job
// with the jobs done and the total, one call at a time. Returns the failures in job order.
std::vector<BatchFailure> ConvertBatch(
    const std::vector<BatchJob>& jobs, unsigned threads = 0,
    const std::function<void(size_t done, size_t total)>& progress = {});

}  // namespace kq::speech
