#include "speech/codec/batch.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <filesystem>
#include <mutex>
#include <thread>

#include "speech/codec/codecs.h"
#include "speech/codec/convert.h"

namespace kq::speech {

namespace fs = std::filesystem;

std::string BatchExtension(int format) {
  std::string ext(format == kWave ? "wav" : SpeechFileExt(format));
  for (char& c : ext) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return ext;
}

std::vector<BatchJob> PlanBatch(const std::vector<std::string>& inputs, int outputFormat,
                                const std::string& outDir, int voxFormat) {
  std::vector<std::string> files;
  for (const std::string& input : inputs) {
    std::error_code ec;
    if (!fs::is_directory(input, ec)) {
      files.push_back(input);
      continue;
    }
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(input, ec)) {
      const std::string name = entry.path().string();
      if (entry.is_regular_file(ec) &&
          SpeechFormatOfFile(name, voxFormat) != kIllegalSpeechFormat) {
        found.push_back(name);
      }
    }
    std::sort(found.begin(), found.end());
    files.insert(files.end(), found.begin(), found.end());
  }
  const std::string ext = BatchExtension(outputFormat);
  std::vector<BatchJob> jobs;
  for (const std::string& file : files) {
    const fs::path out = fs::path(outDir) / (fs::path(file).stem().string() + "." + ext);
    jobs.push_back({file, out.string(), SpeechFormatOfFile(file, voxFormat), outputFormat});
  }
  return jobs;
}

std::vector<BatchFailure> ConvertBatch(const std::vector<BatchJob>& jobs, unsigned threads,
                                       const std::function<void(size_t, size_t)>& progress) {
  std::vector<int> codes(jobs.size(), 0);
  std::atomic<size_t> next{0};
  std::mutex reporting;
  size_t done = 0;
  const auto work = [&] {
    for (size_t i = next++; i < jobs.size(); i = next++) {
      const BatchJob& job = jobs[i];
      codes[i] = Convert(job.input.c_str(), static_cast<int16_t>(job.inputFormat), 8,
                         job.output.c_str(), static_cast<int16_t>(job.outputFormat), 8);
      std::lock_guard lock(reporting);
      ++done;
      if (progress) progress(done, jobs.size());
    }
  };
  if (threads == 0) threads = std::max(1u, std::thread::hardware_concurrency());
  threads = static_cast<unsigned>(std::min<size_t>(threads, std::max<size_t>(jobs.size(), 1)));
  std::vector<std::thread> pool;
  for (unsigned t = 1; t < threads; ++t) pool.emplace_back(work);
  work();
  for (std::thread& t : pool) t.join();
  std::vector<BatchFailure> failures;
  for (size_t i = 0; i < jobs.size(); ++i) {
    if (codes[i] != 0) failures.push_back({jobs[i].input, codes[i]});
  }
  return failures;
}

}  // namespace kq::speech
