// Applications for the simulator's tests, built from typed records: declarations first,
// then lines whose record starts as the function's default and is filled by a lambda.
#pragma once

#include <cstring>
#include <functional>
#include <map>
#include <string>

#include "document/functions.h"
#include "document/header.h"
#include "document/text.h"
#include "tests/support/doc_builder.h"

namespace kq::test {

class App {
 public:
  explicit App(DocFixture& fx) : fx_(fx) {}

  App& Long(const std::string& name) { return Declare(name, kVarLong); }
  App& Double(const std::string& name) { return Declare(name, kVarDouble); }
  App& String(const std::string& name) { return Declare(name, kVarString); }
  App& Path(int32_t type, const std::string& name, const std::string& text) {
    int row = 0;
    while (PrgHdr.Path[row][type - kPathExport].PathName[0] != '\0') ++row;
    DeclarePath(type, row, name, text);
    return *this;
  }
  // A table with its fields bound to variables in order (field 1, 2, ...).
  App& Table(const std::string& name, const std::vector<std::string>& vars) {
    DeclareTable(tables_, name);
    for (size_t i = 0; i < vars.size(); ++i) {
      DeclareColumn(tables_, static_cast<int>(i), types_.at(vars[i]), vars[i]);
    }
    ++tables_;
    return *this;
  }

  template <typename R>
  App& Line(const std::string& label, Fn fn, const std::function<void(R&)>& fill) {
    Rec rec(ToInt(fn));
    R r;
    static_assert(std::is_trivially_copyable_v<R>);
    std::memcpy(&r, rec.bytes.data(), sizeof r);
    fill(r);
    std::memcpy(rec.bytes.data(), &r, sizeof r);
    fx_.Add(label, rec);
    return *this;
  }

  // Field helpers.
  void V(VarRef& ref, const std::string& name) const {
    ref.VarRefType = types_.at(name);
    SetField(ref.VarRefName, name);
  }
  static void C(VarRef& ref, int32_t v) {
    ref.VarRefType = kConstLong;
    SetField(ref.VarRefName, std::to_string(v));
  }
  static void D(VarRef& ref, const std::string& v) {
    ref.VarRefType = kConstDouble;
    SetField(ref.VarRefName, v);
  }
  static void S(VarRef& ref, const std::string& v) {
    ref.VarRefType = kConstString;
    SetField(ref.VarRefName, v);
  }
  static void L(LabelRef& ref, const std::string& name) { SetField(ref.LabelRefName, name); }
  template <size_t N>
  static void T(char (&field)[N], const std::string& text) {
    SetField(field, text);
  }

 private:
  App& Declare(const std::string& name, int32_t type) {
    DeclareVariable(vars_++, type, name);
    types_[name] = type;
    return *this;
  }
  DocFixture& fx_;
  std::map<std::string, int32_t> types_;
  int vars_ = 0;
  int tables_ = 0;
};

}  // namespace kq::test
