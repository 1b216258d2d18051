// The laid-out call-flow diagram: the one module that meets the graph layout library.
// Lines are nodes named "L" and the line number ("L0", "L12"), grouped in their blocks;
// edges carry the keyword of the field they come from.
#pragma once

#include <string>
#include <vector>

#include "check/flow.h"

namespace kq::diagram {

enum class Format {
  Dot,  // the laid-out graph as DOT text (positions included)
  Svg,
};

// The format for an output file: DOT for a name ending in ".dot", SVG otherwise.
Format FormatForFile(const std::string& path);

// Lays out the graph with one node per line, labelled with `texts[line]` (Windows-1252,
// the DisplayLine), and renders it. False, with the reason in `error`, when the layout
// library fails; nothing is written then.
bool Render(const check::FlowGraph& graph, const std::vector<std::string>& texts, Format format,
            std::string& output, std::string& error);

// The node name of a line, and the line of a node name (-1 for anything else).
std::string NodeName(int line);
int LineOfNode(const std::string& name);

}  // namespace kq::diagram
