#include "tests/support/random_doc.h"

#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/state.h"
#include "tests/support/doc_builder.h"
#include "tests/support/record_layouts.h"

namespace kq::test {

namespace {

const std::vector<std::string> kNames = {"Alpha", "Beta", "Gamma", "Delta", "Eps", "Zeta"};

struct Gen {
  std::mt19937& rng;
  const RandomDocOptions& o;
  std::vector<std::string> labels;  // the labels that lines carry
  bool Chance(double p) { return std::uniform_real_distribution<double>(0, 1)(rng) < p; }
  int Pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng); }
  const std::string& Name() {
    return kNames[static_cast<size_t>(Pick(static_cast<int>(kNames.size())))];
  }

  void Var(Rec& r, int offset) {
    if (Chance(o.illegalRate)) {
      r.Var(offset, Chance(0.5) ? kVarNone : 5, Name());
    } else if (Chance(0.3)) {
      r.Var(offset, 8 + Pick(3), std::to_string(Pick(100)));
    } else if (Chance(o.faultRate)) {
      r.Var(offset, Pick(3), "Undeclared");
    } else {
      // A declared variable: entry i holds type i % 3 and name kNames[i].
      const int i = Pick(static_cast<int>(kNames.size()));
      r.Var(offset, i % 3, kNames[static_cast<size_t>(i)]);
    }
  }
  std::string LabelName() {
    if (Chance(0.25)) return "";
    if (labels.empty() || Chance(o.faultRate)) return "Nowhere";
    return labels[static_cast<size_t>(Pick(static_cast<int>(labels.size())))];
  }
  int32_t PathType() {
    if (Chance(o.illegalRate)) return Chance(0.5) ? -1 : 70;
    return 65 + Pick(5);
  }
  std::string PathName() {
    if (Chance(o.faultRate)) return Chance(0.5) ? "" : "NoPath";
    return "P" + std::to_string(Pick(2));  // P0 and P1 are declared for every type
  }
  std::string TableName() {
    if (Chance(o.faultRate)) return "NoTable";
    return Chance(0.5) ? "T0" : "T1";
  }

  Rec Record(int f) {
    Rec r(f);
    for (const FieldSpec& s : RecordFields(f)) {
      for (int i = 0; i < s.count; ++i) {
        switch (s.kind) {
          case FieldSpec::Var:
            Var(r, s.offset + 32 * i);
            break;
          case FieldSpec::LabelRef:
            r.LabelRef(s.offset, LabelName(), Pick(50) - 1);
            break;
          case FieldSpec::LabelArray:
            r.Label(s.offset + 16 * i, LabelName());
            r.I32(s.lineOffset + 4 * i, Pick(50) - 1);
            break;
          case FieldSpec::Text:
            if (s.width == 28) r.Text(s.offset + 28 * i, 28, PathName());
            if (s.width == 16) r.Text(s.offset + 16 * i, 16, TableName());
            if (s.width == 52) r.Text(s.offset, 52, "remark");
            break;
          case FieldSpec::PathType:
            r.I32(s.offset, PathType());
            break;
          case FieldSpec::Flag:
            r.I32(s.offset + 4 * i, Pick(2));
            break;
          case FieldSpec::Number:
            r.I32(s.offset + 4 * i, Pick(4));
            break;
        }
      }
    }
    if (f == 27 || f == 29 || f == 34) {
      for (int i = 0; i < 5; ++i) {
        const int k = Chance(0.6) ? 0 : 1 + Pick(3);
        r.I32(36 + 4 * i, Chance(o.illegalRate) ? 30 : k);
        r.I32(56 + 4 * i, Pick(6));
      }
    }
    return r;
  }
};

}  // namespace

void BuildRandomDocument(ui::ListBox& list, std::mt19937& rng, const RandomDocOptions& options) {
  ResetDocument();
  list.Clear();
  Gen g{rng, options, {}};
  for (size_t i = 0; i < kNames.size(); ++i) {
    if (g.Chance(options.faultRate)) continue;  // a name left undeclared
    DeclareVariable(static_cast<int>(i) * 7, static_cast<int32_t>(i % 3), kNames[i]);
  }
  for (int t = 0; t < 5; ++t) {
    DeclarePath(65 + t, 0, "P0", "/p0/");
    DeclarePath(65 + t, 3, "P1", "/p1/");
  }
  for (int t = 0; t < 2; ++t) {
    if (g.Chance(options.faultRate)) continue;
    DeclareTable(t * 5, "T" + std::to_string(t));
    for (int c = 0; c < 4; ++c) {
      const int i = g.Pick(static_cast<int>(kNames.size()));
      DeclareColumn(t * 5, c, i % 3,
                    g.Chance(options.faultRate) ? "Gone" : kNames[static_cast<size_t>(i)]);
    }
  }
  const int lines = 1 + g.Pick(options.maxLines);
  std::vector<int> live;
  for (int f = 0; f < kFuncCount; ++f) {
    if (IsLiveFunction(f)) live.push_back(f);
  }
  std::vector<std::string> lineLabels(static_cast<size_t>(lines));
  for (int line = 0; line < lines; ++line) {
    if (!g.Chance(0.4)) continue;
    std::string label = "L" + std::to_string(line);
    if (!g.labels.empty() && g.Chance(options.faultRate)) {
      label = g.labels[static_cast<size_t>(g.Pick(static_cast<int>(g.labels.size())))];
    } else {
      g.labels.push_back(label);
    }
    lineLabels[static_cast<size_t>(line)] = label;
  }
  for (int line = 0; line < lines; ++line) {
    const int f = live[static_cast<size_t>(g.Pick(static_cast<int>(live.size())))];
    AddLine(list, lineLabels[static_cast<size_t>(line)], g.Record(f));
  }
}

}  // namespace kq::test
