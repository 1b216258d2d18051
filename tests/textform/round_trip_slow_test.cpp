// Ten thousand random documents of every live function, odd bytes and stale line numbers
// included, through export, import and install.
#include <gtest/gtest.h>

#include <random>

#include "tests/support/doc_fixture.h"
#include "tests/textform/odd_doc.h"
#include "textform/text_form.h"

namespace {

class TextFormSlowTest : public kqtest::DocTest {};

TEST_F(TextFormSlowTest, TenThousandOddDocumentsComeBackByteForByte) {
  std::mt19937 rng(11);
  for (int n = 0; n < 10000; ++n) {
    kqtest::BuildOddDocument(list(), rng, 20);
    const std::string before = kqtest::DocumentBytes(list());
    kq::textform::StagedDocument doc;
    kq::textform::ImportError e;
    ASSERT_TRUE(kq::textform::ParseDocument(kq::textform::ExportDocument(), doc, e))
        << "document " << n << ": " << e.Text();
    ASSERT_TRUE(kq::textform::InstallDocument(doc, e)) << "document " << n << ": " << e.Text();
    ASSERT_EQ(kqtest::DocumentBytes(list()), before) << "document " << n;
  }
}

}  // namespace
