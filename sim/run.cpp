#include "sim/run.h"

#include <unistd.h>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "document/state.h"
#include "sim/call_script.h"
#include "sim/engine.h"
#include "sim/scripted_line.h"
#include "speech/codec/resample.h"
#include "speech/codec/wave_file.h"

namespace kq::sim {

namespace fs = std::filesystem;

namespace {

bool ReadWhole(const fs::path& p, std::string& out) {
  std::ifstream in(p, std::ios::binary);
  if (!in) return false;
  std::stringstream ss;
  ss << in.rdbuf();
  out = ss.str();
  return true;
}

// A fresh folder of the run's own, removed when the run is over.
struct TempFolder {
  fs::path path;
  ~TempFolder() {
    std::error_code ec;
    if (!path.empty()) fs::remove_all(path, ec);
  }
};

}  // namespace

int RunDocument(const RunOptions& o, std::ostream& out, std::ostream& err) {
  if (PrgHdr.CompiledFlag == 0) {
    err << "kqx run: the application is not compiled\n";
    return kRunRefused;
  }
  CallScript script;
  fs::path callFolder = ".";
  if (!o.callFile.empty()) {
    std::string text, why;
    if (!ReadWhole(o.callFile, text)) {
      err << "kqx run: " << o.callFile << ": cannot be read\n";
      return kRunRefused;
    }
    auto parsed = ParseCallJson(text, why);
    if (!parsed) {
      err << "kqx run: " << o.callFile << ": " << why << "\n";
      return kRunRefused;
    }
    script = std::move(*parsed);
    callFolder = fs::path(o.callFile).parent_path();
  }
  if (o.keys) {
    script.keys.clear();
    if (!ParseKeys(*o.keys, script.keys)) {
      err << "kqx run: --keys may hold only 0-9, *, #, A-D\n";
      return kRunRefused;
    }
  }
  if (o.hangup) script.hangupWhenDone = true;
  if (!ParseDateTime(script.start)) {
    err << "kqx run: the start \"" << script.start << "\" is not a date YYYY-MM-DD HH:MM:SS\n";
    return kRunRefused;
  }

  std::vector<int16_t> voice;
  if (!script.voiceFile.empty()) {
    const fs::path p = fs::path(script.voiceFile).is_absolute() ? fs::path(script.voiceFile)
                                                                : callFolder / script.voiceFile;
    std::string bytes;
    speech::Pcm pcm;
    if (!ReadWhole(p, bytes)) {
      err << "kqx run: the voice file " << p.string() << " cannot be read\n";
      return kRunRefused;
    }
    const int code = speech::ParseWave(
        std::span(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()), pcm);
    if (code != 0) {
      err << "kqx run: the voice file " << p.string() << " is not a WAVE file the system reads"
          << " (conversion code " << code << ")\n";
      return kRunRefused;
    }
    voice =
        pcm.rate == 8000 ? std::move(pcm.samples) : speech::Resample(pcm.samples, pcm.rate, 8000);
  }

  TempFolder temp;
  fs::path root;
  std::error_code ec;
  if (!o.sandboxDir.empty()) {
    root = o.sandboxDir;
    fs::create_directories(root, ec);
    if (ec || !fs::is_directory(root, ec)) {
      err << "kqx run: the sandbox " << o.sandboxDir << " cannot be made\n";
      return kRunRefused;
    }
  } else {
    static std::atomic<int> serial{0};
    temp.path = fs::temp_directory_path(ec) /
                ("kqx-run-" + std::to_string(::getpid()) + "-" + std::to_string(serial++));
    fs::create_directories(temp.path, ec);
    root = temp.path;
  }

  Tables tables;
  std::string why;
  if (!tables.Open(PrgHdr, o.dbFile, o.tablesDir, why)) {
    err << "kqx run: " << why << "\n";
    return kRunRefused;
  }

  fs::path base = fs::absolute(fs::path(o.appFile), ec).parent_path();
  Sandbox sandbox(fs::absolute(root, ec), base);
  ScriptedLine line(script, std::move(voice));
  Trace trace(&out);
  EngineOptions eo;
  eo.seed = o.seed;
  eo.maxSteps = o.maxSteps;
  eo.decodePrompts = o.decodePrompts;
  eo.speechFormat = o.speechFormat;
  eo.start = script.start;
  eo.busyTables.insert(script.busyTables.begin(), script.busyTables.end());
  Engine engine(line, trace, tables, sandbox, eo);
  engine.Run();
  trace.Flush();
  switch (engine.Reason()) {
    case EndReason::Hangup:
    case EndReason::End:
      return kRunOk;
    default:
      return kRunFault;
  }
}

}  // namespace kq::sim
