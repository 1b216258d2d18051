// The laid-out diagram: DOT with the nodes named after their lines and every edge of the
// flow, SVG with the nodes findable by id, and the node names read back.
#include <gtest/gtest.h>

#include <regex>

#include "check/flow.h"
#include "diagram/diagram.h"
#include "tests/support/doc_builder.h"

namespace kq::test {
namespace {

class DiagramTest : public ::testing::Test, public DocFixture {
 protected:
  std::vector<std::string> Texts() {
    std::vector<std::string> t;
    for (int i = 0; i < list().ListCount(); ++i) t.push_back(list().List(i));
    return t;
  }
};

TEST_F(DiagramTest, DotNamesNodesAfterLinesAndHoldsEveryEdge) {
  Add("Start", Rec(20).Label(16 * 10, "Start").Label(16 * 18, "End"));
  Add("", Rec(9).LabelRef(0, "Sub", -1));
  Add("End", Rec(10).LabelRef(0, "End", -1));
  Add("Sub", Rec(14));
  const check::FlowGraph g = check::BuildFlow(list().ListCount());
  std::string dot, error;
  ASSERT_TRUE(diagram::Render(g, Texts(), diagram::Format::Dot, dot, error)) << error;
  for (const char* node : {"L0", "L1", "L2", "L3"}) {
    EXPECT_TRUE(std::regex_search(dot, std::regex(std::string("\\b") + node + "\\s*\\["))) << node;
  }
  // Each edge once, as "Lfrom -> Lto".
  const std::regex edge("(L\\d+) -> (L\\d+)");
  std::multiset<std::pair<std::string, std::string>> found;
  for (auto it = std::sregex_iterator(dot.begin(), dot.end(), edge); it != std::sregex_iterator();
       ++it) {
    found.insert({(*it)[1], (*it)[2]});
  }
  std::multiset<std::pair<std::string, std::string>> expected;
  for (const auto& e : g.edges)
    expected.insert({diagram::NodeName(e.from), diagram::NodeName(e.to)});
  EXPECT_EQ(found, expected);
  EXPECT_NE(dot.find("xlabel=\"#\""), std::string::npos);    // the key's keyword
  EXPECT_NE(dot.find("xlabel=\"T/E\""), std::string::npos);  // the timeout's
  EXPECT_NE(dot.find("pos="), std::string::npos);            // laid out
}

TEST_F(DiagramTest, SvgCarriesTheNodeIdsAndEscapesTheText) {
  Add("", Rec(13).Text(0, 52, "a\\b <&> \xC6"));
  Add("", Rec(13));
  list().SetList(0, "0000\t\tRemark\tC:\\voice <&> \xC6");
  const check::FlowGraph g = check::BuildFlow(list().ListCount());
  std::string svg, error;
  ASSERT_TRUE(diagram::Render(g, Texts(), diagram::Format::Svg, svg, error)) << error;
  EXPECT_NE(svg.find("<svg"), std::string::npos);
  EXPECT_NE(svg.find("id=\"L0\""), std::string::npos);
  EXPECT_NE(svg.find("id=\"L1\""), std::string::npos);
  EXPECT_NE(svg.find("C:\\voice &lt;&amp;&gt; \xC3\x86"), std::string::npos);
}

TEST_F(DiagramTest, NodeNamesAndFileFormats) {
  EXPECT_EQ(diagram::NodeName(12), "L12");
  EXPECT_EQ(diagram::LineOfNode("L12"), 12);
  EXPECT_EQ(diagram::LineOfNode("L0"), 0);
  for (const char* bad : {"L", "12", "Lx", "L1a", "node1", "L1234567"}) {
    EXPECT_EQ(diagram::LineOfNode(bad), -1) << bad;
  }
  EXPECT_EQ(diagram::FormatForFile("flow.dot"), diagram::Format::Dot);
  EXPECT_EQ(diagram::FormatForFile("flow.svg"), diagram::Format::Svg);
  EXPECT_EQ(diagram::FormatForFile("dot"), diagram::Format::Svg);
}

}  // namespace
}  // namespace kq::test
