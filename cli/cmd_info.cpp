// kqx info FILE: the header of an application as one JSON object.
#include <fstream>
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/cli_document.h"
#include "cli/commands.h"
#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/headless/json.h"

namespace kqx {

namespace {

// The version as the file holds it, up to its NUL; the document itself is always 3.10
// once opened.
std::string FileVersion(const std::string& path) {
  char v[5] = {};
  std::ifstream in(path, std::ios::binary);
  in.read(v, sizeof v);
  std::string text(v, static_cast<size_t>(in.gcount()));
  const size_t nul = text.find('\0');
  return kq::RTrim(nul == std::string::npos ? text : text.substr(0, nul));
}

std::string TypeName(int32_t type) {
  if (type < 0 || type > 2) return kq::Num(type);
  return kq::RTrim(kq::Row(kq::DataTypeNames[type]));
}

ui::Json Variables() {
  ui::Json::Array list;
  for (const kq::VarRef& v : kq::PrgHdr.Variable) {
    if (kq::FieldEmpty(kq::View(v.VarRefName))) continue;
    ui::Json j;
    j.Set("name", kq::Text(v.VarRefName));
    j.Set("type", TypeName(v.VarRefType));
    list.push_back(std::move(j));
  }
  return list;
}

ui::Json Paths() {
  ui::Json byType;
  for (int t = 0; t < kq::kPathTypes; ++t) {
    ui::Json::Array rows;
    for (int r = 0; r < kq::kPathRows; ++r) {
      const kq::PathEntry& p = kq::PrgHdr.Path[r][t];
      if (kq::FieldEmpty(kq::View(p.PathName))) continue;
      ui::Json j;
      j.Set("name", kq::Text(p.PathName));
      j.Set("path", kq::Text(p.PathText));
      rows.push_back(std::move(j));
    }
    byType.Set(std::string(1, static_cast<char>('A' + t)), std::move(rows));
  }
  return byType;
}

ui::Json Tables() {
  ui::Json::Array list;
  for (const kq::TableEntry& t : kq::PrgHdr.Table) {
    if (kq::FieldEmpty(kq::View(t.TableName))) continue;
    ui::Json::Array columns;
    for (const kq::VarRef& c : t.Column) {
      if (kq::FieldEmpty(kq::View(c.VarRefName))) {
        columns.emplace_back(nullptr);
      } else {
        columns.emplace_back(kq::Text(c.VarRefName));
      }
    }
    ui::Json j;
    j.Set("name", kq::Text(t.TableName));
    j.Set("columns", std::move(columns));
    list.push_back(std::move(j));
  }
  return list;
}

int Info(Session& session, const std::string& path) {
  const std::string version = FileVersion(path);
  if (!OpenDocument(path)) return kExitRefused;
  ui::Json j;
  j.Set("version", version);
  j.Set("compiled", kq::PrgHdr.CompiledFlag != 0);
  j.Set("lines", static_cast<int>(kq::PrgHdr.LineCount));
  j.Set("variables", Variables());
  j.Set("paths", Paths());
  j.Set("tables", Tables());
  session.out << j.Dump() << "\n";
  return kExitOk;
}

}  // namespace

void AddInfoCommand(CLI::App& app, Session& session) {
  auto file = std::make_shared<std::string>();
  CLI::App* cmd = app.add_subcommand("info", "The header of an application as one JSON object");
  cmd->add_option("FILE", *file, "the application file")->required();
  OnRun(*cmd, session, [file, &session] { return Info(session, *file); });
}

}  // namespace kqx
