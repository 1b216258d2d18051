#include "diagram/diagram.h"

#include <graphviz/cgraph.h>
#include <graphviz/gvc.h>

#include <cstdlib>
#include <memory>
#include <mutex>

#include "ui/platform/codepage.h"

namespace kq::diagram {

namespace {

constexpr size_t kLabelWidth = 60;  // characters of a DisplayLine shown in its node
constexpr size_t kMaxClusters = 150;

// The library's setters take writable strings.
void Set(void* obj, const char* name, const std::string& value) {
  agsafeset(obj, const_cast<char*>(name), const_cast<char*>(value.c_str()), const_cast<char*>(""));
}

// A DisplayLine as a node label: tabs as blanks, cut to a readable width, the layout
// library's escape character doubled, in UTF-8.
std::string NodeLabel(const std::string& text) {
  std::string plain;
  for (char c : text) plain += c == '\t' ? ' ' : c;
  while (!plain.empty() && plain.back() == ' ') plain.pop_back();
  if (plain.size() > kLabelWidth) plain = plain.substr(0, kLabelWidth - 3) + "...";
  std::string escaped;
  for (char c : ui::Cp1252ToUtf8(plain)) {
    if (c == '\\') escaped += '\\';
    escaped += c;
  }
  return escaped;
}

const char* EdgeStyle(check::EdgeKind kind) {
  switch (kind) {
    case check::EdgeKind::Gosub:
      return "dashed";
    case check::EdgeKind::Return:
      return "dotted";
    default:
      return "solid";
  }
}

const char* EdgeColor(check::EdgeKind kind) {
  switch (kind) {
    case check::EdgeKind::Next:
      return "black";
    case check::EdgeKind::Goto:
    case check::EdgeKind::Gosub:
    case check::EdgeKind::Return:
      return "blue";
    case check::EdgeKind::Then:
      return "darkgreen";
    case check::EdgeKind::Else:
      return "firebrick";
    case check::EdgeKind::Key:
      return "purple";
    case check::EdgeKind::Outcome:
      return "darkorange3";
  }
  return "black";
}

// One layout context for the process: the text-measuring plugin keeps what it learns of the
// fonts beyond a context, so a context freed and made again would let it read freed memory.
// The library is not made for two layouts at once, hence the lock.
GVC_t* Context() {
  static GVC_t* const context = gvContext();
  return context;
}
std::mutex& LayoutLock() {
  static std::mutex lock;
  return lock;
}

struct GraphDeleter {
  void operator()(Agraph_t* g) const { agclose(g); }
};

}  // namespace

Format FormatForFile(const std::string& path) {
  const std::string dot = ".dot";
  if (path.size() >= dot.size() && path.compare(path.size() - dot.size(), dot.size(), dot) == 0) {
    return Format::Dot;
  }
  return Format::Svg;
}

std::string NodeName(int line) {
  return "L" + std::to_string(line);
}

int LineOfNode(const std::string& name) {
  if (name.size() < 2 || name.size() > 6 || name[0] != 'L') return -1;
  int line = 0;
  for (size_t i = 1; i < name.size(); ++i) {
    if (name[i] < '0' || name[i] > '9') return -1;
    line = line * 10 + (name[i] - '0');
  }
  return line;
}

bool Render(const check::FlowGraph& graph, const std::vector<std::string>& texts, Format format,
            std::string& output, std::string& error) {
  const std::lock_guard<std::mutex> hold(LayoutLock());
  GVC_t* const gvc = Context();
  if (gvc == nullptr) {
    error = "the graph layout library could not start";
    return false;
  }
  std::unique_ptr<Agraph_t, GraphDeleter> g(
      agopen(const_cast<char*>("callflow"), Agdirected, nullptr));
  Set(g.get(), "rankdir", "TB");
  Set(g.get(), "fontname", "Helvetica");
  Set(g.get(), "nslimit", "2");  // bounds of the ranking and crossing passes
  Set(g.get(), "mclimit", "0.3");
  agattr(g.get(), AGNODE, const_cast<char*>("shape"), const_cast<char*>("box"));
  agattr(g.get(), AGNODE, const_cast<char*>("fontname"), const_cast<char*>("Helvetica"));
  agattr(g.get(), AGNODE, const_cast<char*>("fontsize"), const_cast<char*>("10"));
  agattr(g.get(), AGEDGE, const_cast<char*>("fontname"), const_cast<char*>("Helvetica"));
  agattr(g.get(), AGEDGE, const_cast<char*>("fontsize"), const_cast<char*>("9"));

  // Blocks as clusters, each line a node of its block.
  std::vector<Agnode_t*> nodes(static_cast<size_t>(graph.lines), nullptr);
  for (size_t b = 0; b < graph.blockStarts.size(); ++b) {
    const int first = graph.blockStarts[b];
    const int end = b + 1 < graph.blockStarts.size() ? graph.blockStarts[b + 1] : graph.lines;
    // Small programs show each block framed; beyond kMaxClusters the frames cost the layout
    // more than they give, and a block's boxes are only kept in one column.
    const bool framed = graph.blockStarts.size() <= kMaxClusters;
    std::string name = (framed ? "cluster_" : "block_") + NodeName(first);
    Agraph_t* block = agsubg(g.get(), name.data(), 1);
    if (framed) {
      Set(block, "style", "rounded");
      Set(block, "color", "gray70");
    }
    for (int line = first; line < end; ++line) {
      std::string node = NodeName(line);
      Agnode_t* n = agnode(block, node.data(), 1);
      const std::string& text = static_cast<size_t>(line) < texts.size() ? texts[line] : node;
      Set(n, "label", NodeLabel(text));
      Set(n, "id", node);
      if (!framed) Set(n, "group", name);
      nodes[static_cast<size_t>(line)] = n;
    }
  }
  int index = 0;
  for (const check::Edge& e : graph.edges) {
    Agnode_t* from = nodes[static_cast<size_t>(e.from)];
    Agnode_t* to = nodes[static_cast<size_t>(e.to)];
    if (from == nullptr || to == nullptr) continue;
    std::string name = "e" + std::to_string(index++);  // parallel edges stay apart
    Agedge_t* edge = agedge(g.get(), from, to, name.data(), 1);
    // Keywords as external labels and jumps out of the ranking: a program of a thousand
    // lines is then a stack of short blocks rather than one chain as deep as the program,
    // which keeps the layout to a fraction of a second.
    if (!e.label.empty()) Set(edge, "xlabel", NodeLabel(e.label));
    if (e.kind != check::EdgeKind::Next) Set(edge, "constraint", "false");
    Set(edge, "style", EdgeStyle(e.kind));
    Set(edge, "color", EdgeColor(e.kind));
    Set(edge, "class", check::EdgeKindName(e.kind));
  }

  if (gvLayout(gvc, g.get(), "dot") != 0) {
    error = "the graph layout library could not lay out the diagram";
    return false;
  }
  char* data = nullptr;
  unsigned int length = 0;
  const int rc = gvRenderData(gvc, g.get(), format == Format::Dot ? "dot" : "svg", &data, &length);
  gvFreeLayout(gvc, g.get());
  if (rc != 0 || data == nullptr) {
    if (data != nullptr) gvFreeRenderData(data);
    error = "the graph layout library could not render the diagram";
    return false;
  }
  output.assign(data, length);
  gvFreeRenderData(data);
  return true;
}

}  // namespace kq::diagram
