// File and system functions: Check Path, Check File, Delete File, Sound File Count, Run,
// Variable Export, Prototype. Files live in the sandbox only.
#include <cstring>
#include <fstream>

#include "document/functions.h"
#include "document/header.h"
#include "document/text.h"
#include "sim/engine.h"
#include "sim/record_of.h"

namespace kq::sim {

namespace fs = std::filesystem;

void Engine::ExportLine(const VarExportRec& r) {
  static const char* kSeps[] = {",", ";", " ", "\t", ""};
  static const char* kDelims[] = {"\"", "'", ""};
  const std::string sep = r.FieldSep >= 0 && r.FieldSep < 5 ? kSeps[r.FieldSep] : ",";
  const std::string delim = r.TextDelim >= 0 && r.TextDelim < 3 ? kDelims[r.TextDelim] : "\"";
  std::string record;
  bool first = true;
  for (const VarRef& v : r.ExportVar) {
    if (v.VarRefName[0] == '\0' || v.VarRefName[0] == ' ') continue;
    Value value;
    if (!Read(v, value)) {
      Fail(r.ErrorLabel, "Variable Export: '" + VarText(v) + "' has no value");
      return;
    }
    if (!first) record += sep;
    first = false;
    if (value.type == VType::String) {
      std::string s;
      for (char c : value.s) {
        if (!delim.empty() && c == delim[0]) s += c;
        s += c;
      }
      record += delim + s + delim;
    } else {
      record += ToText(value);
    }
  }
  std::string name;
  if (!ReadText(r.ExportFile, name)) {
    Fail(r.ErrorLabel, "Variable Export: '" + VarText(r.ExportFile) + "' has no value");
    return;
  }
  const auto file = sandbox_.MapFile(PathText(kPathExport, r.ExportPath), name);
  if (!file) {
    Fail(r.ErrorLabel, "Variable Export: '" + name + "' is no file name in the sandbox");
    return;
  }
  std::error_code ec;
  fs::create_directories(file->parent_path(), ec);
  std::ofstream out(*file, std::ios::binary | std::ios::app);
  out << record << "\r\n";
  out.close();
  if (!out) {
    Fail(r.ErrorLabel, "Variable Export: " + name + " cannot be written");
    return;
  }
  trace_.Begin("export").Field("file", SystemText(*file)).Field("record", record).End();
}

void Engine::ExecFile(const uint8_t* block, int fn) {
  switch (ToFn(fn)) {
    case Fn::CheckPath: {
      const auto r = RecordOf<CheckPathRec>(block);
      const auto folder = sandbox_.Map(PathText(r.PathType, r.PathVar));
      std::error_code ec;
      const bool exists = folder && fs::is_directory(*folder, ec);
      trace_.Begin("file")
          .Field("op", "checkpath")
          .Field("path", folder ? SystemText(*folder) : std::string())
          .Field("exists", exists)
          .End();
      Take(r.CheckLabel[exists ? 1 : 0], r.CheckLine[exists ? 1 : 0]);
      return;
    }
    case Fn::CheckFile:
    case Fn::DeleteFile: {
      const auto r = RecordOf<CheckFileRec>(block);
      std::string name;
      if (!ReadText(r.FileVar, name)) {
        Fault(FunctionNameOf(fn) + ": '" + VarText(r.FileVar) + "' has no value");
        return;
      }
      const auto file = sandbox_.MapFile(PathText(r.PathType, r.PathVar), name);
      std::error_code ec;
      bool yes = file && fs::is_regular_file(*file, ec);
      const bool del = ToFn(fn) == Fn::DeleteFile;
      if (del && yes) yes = fs::remove(*file, ec) && !ec;
      trace_.Begin("file")
          .Field("op", del ? "delete" : "checkfile")
          .Field("path", file ? SystemText(*file) : name)
          .Field(del ? "deleted" : "exists", yes)
          .End();
      Take(r.CheckLabel[yes ? 1 : 0], r.CheckLine[yes ? 1 : 0]);
      return;
    }
    case Fn::SoundFileCount: {
      const auto r = RecordOf<FormatTargetRec>(block);
      if (r.Format == 1) {
        int32_t v = 0;
        if (!ReadLong(r.Target, v)) {
          Fault("Sound File Count: '" + VarText(r.Target) + "' has no whole number");
          return;
        }
        counter_ = v;
      } else if (!Write(r.Target, Value::OfLong(static_cast<int32_t>(counter_)))) {
        Fault("Sound File Count: '" + VarText(r.Target) + "' is not a Long variable");
        return;
      }
      trace_.Begin("counter").Field("value", counter_).End();
      return;
    }
    case Fn::Run: {
      const auto r = RecordOf<RunRec>(block);
      std::string program, parameters;
      if (!ReadText(r.FileVar, program)) {
        Fail(r.ErrorLabel, "Run: '" + VarText(r.FileVar) + "' has no value");
        return;
      }
      if (r.Parameters.VarRefType != kVarNone) ReadText(r.Parameters, parameters);
      // Never started: the line is traced and the run goes on as if the program ran.
      trace_.Begin("run")
          .Field("program", PathText(kPathGeneral, r.RunPath) + program)
          .Field("parameters", parameters)
          .Field("wait", r.WaitForTermination != 0)
          .End();
      return;
    }
    case Fn::VariableExport:
      ExportLine(RecordOf<VarExportRec>(block));
      return;
    case Fn::Prototype: {
      const auto r = RecordOf<PrototypeRec>(block);
      Value v;
      const bool has = Read(r.ProtoFunction, v);
      trace_.Begin("prototype").Field("function", has ? ToText(v) : std::string()).End();
      return;
    }
    default:
      Fault("illegal function number" + Str(static_cast<int64_t>(fn)));
      return;
  }
}

}  // namespace kq::sim
