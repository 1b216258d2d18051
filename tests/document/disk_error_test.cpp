#include <gtest/gtest.h>

#include <cerrno>

#include "document/disk_error.h"
#include "ui/headless/headless_platform.h"

namespace {

using namespace kq;

class DiskErrorTest : public ::testing::Test {
 protected:
  void SetUp() override { ui::SetPlatform(&p_); }
  void TearDown() override { ui::SetPlatform(nullptr); }
  ui::HeadlessPlatform p_;
};

TEST_F(DiskErrorTest, BoxesAndActionCodes) {
  const struct {
    int error;
    const char* text;
    const char* buttons;
    int answer;
    int action;
  } cases[] = {
      {61, "Disk is full.\r\rInsert a new disk and try again.", "RetryCancel", ui::vbRetry, 0},
      {61, "Disk is full.\r\rInsert a new disk and try again.", "RetryCancel", ui::vbCancel, 2},
      {68, "There is no disk in the selected drive.Insert a disk and try again.", "RetryCancel",
       ui::vbRetry, 0},
      {68, "There is no disk in the selected drive.Insert a disk and try again.", "RetryCancel",
       ui::vbIgnore, 3},
      {70, "This disk is write-protected.\r\rRemove the write-protection or use another disk.",
       "OK", ui::vbOK, 2},
      {70, "This disk is write-protected.\r\rRemove the write-protection or use another disk.",
       "OK", ui::vbCancel, 3},
      {71,
       "Cannot read selected drive.\rMake sure that the drive door is closed and that the disk is "
       "formatted and free of errors.",
       "RetryCancel", ui::vbCancel, 2},
      {76, "Path do not exist.", "OK", ui::vbOK, 2},
  };
  for (const auto& c : cases) {
    p_.ClearEvents();
    p_.QueueAnswer(c.answer);
    EXPECT_EQ(HandleDiskError("Save", c.error), c.action) << c.error;
    ASSERT_EQ(p_.CountOf("msgbox"), 1);
    const auto& box = p_.Events()[0].fields;
    EXPECT_EQ(box["title"].Str(), "Save");
    EXPECT_EQ(box["text"].Str(), c.text);
    EXPECT_EQ(box["buttons"].Str(), c.buttons);
    EXPECT_EQ(box["icon"].Str(), "exclamation");
  }
}

TEST_F(DiskErrorTest, OtherErrorsRaiseWithoutABox) {
  EXPECT_EQ(HandleDiskError("Insert", 9), 3);
  EXPECT_EQ(HandleDiskError("Open", 53), 3);
  EXPECT_EQ(p_.CountOf("msgbox"), 0);
}

TEST(SystemErrorNumber, MapsTheErrorsOfThisPlatform) {
  EXPECT_EQ(SystemErrorNumber(ENOSPC), 61);
  EXPECT_EQ(SystemErrorNumber(ENXIO), 68);
  EXPECT_EQ(SystemErrorNumber(ENODEV), 68);
  EXPECT_EQ(SystemErrorNumber(EACCES), 70);
  EXPECT_EQ(SystemErrorNumber(EPERM), 70);
  EXPECT_EQ(SystemErrorNumber(EROFS), 70);
  EXPECT_EQ(SystemErrorNumber(EIO), 71);
  EXPECT_EQ(SystemErrorNumber(EBUSY), 71);
  EXPECT_EQ(SystemErrorNumber(ENOENT), 76);
  EXPECT_EQ(SystemErrorNumber(ENOTDIR), 76);
  // Any other failure is a file access error, whatever its errno value happens to be.
  EXPECT_EQ(SystemErrorNumber(EISDIR), 75);
  EXPECT_EQ(SystemErrorNumber(ENODATA), 75);
  EXPECT_EQ(SystemErrorNumber(EPROTO), 75);
  EXPECT_EQ(SystemErrorNumber(ENOTUNIQ), 75);
}

}  // namespace

// The one retry loop of file and drive operations: Retry runs the statement again, any
// other answer ends it with the last error, and a platform answering Retry by itself is
// given up on after kMaxRetries attempts.
TEST_F(DiskErrorTest, RetryLoopRunsAgainOnRetryAndGivesUp) {
  int calls = 0;
  p_.QueueAnswer(ui::vbRetry);
  EXPECT_EQ(0, RetryDiskOperation("Save", [&] { return ++calls < 2 ? kErrDiskFull : 0; }));
  EXPECT_EQ(2, calls);
  ASSERT_EQ(1, p_.CountOf("msgbox"));
  EXPECT_EQ("Save", p_.EventsOf("msgbox")[0].fields["title"].Str());

  calls = 0;
  p_.ClearEvents();
  p_.QueueAnswer(ui::vbRetry);
  p_.QueueAnswer(ui::vbCancel);
  EXPECT_EQ(kErrDiskNotReady, RetryDiskOperation("Open", [&] {
              return ++calls == 1 ? kErrDiskFull : kErrDiskNotReady;
            }));
  EXPECT_EQ(2, calls);
  EXPECT_EQ(2, p_.CountOf("msgbox"));

  // No box answers for the write-protected error but OK, which leaves at once.
  calls = 0;
  EXPECT_EQ(kErrPermissionDenied, RetryDiskOperation("Save", [&] {
              ++calls;
              return kErrPermissionDenied;
            }));
  EXPECT_EQ(1, calls);

  calls = 0;
  for (int i = 0; i < kMaxRetries + 5; ++i) p_.QueueAnswer(ui::vbRetry);
  EXPECT_EQ(kErrDiskFull, RetryDiskOperation("Save", [&] {
              ++calls;
              return kErrDiskFull;
            }));
  EXPECT_EQ(kMaxRetries, calls);
}

// A caller with no handler of its own raises what the boxes do not take: a Cancel leaves
// with the error, an error without a box ends the run with the run time's box; Retry
// still runs the statement again first.
TEST_F(DiskErrorTest, RetryLoopRaisesAgainWhatNoBoxTakes) {
  int calls = 0;
  p_.QueueAnswer(ui::vbRetry);
  p_.QueueAnswer(ui::vbCancel);
  EXPECT_EQ(kErrDiskFull, RetryDiskOperation(
                              "Change drive path",
                              [&] {
                                ++calls;
                                return kErrDiskFull;
                              },
                              DiskRaise::RaiseAgain));
  EXPECT_EQ(2, calls);

  calls = 0;
  p_.ClearEvents();
  p_.QueueAnswer(ui::vbRetry);
  EXPECT_THROW(
      RetryDiskOperation(
          "Change drive path", [&] { return ++calls == 1 ? kErrDiskNotReady : kErrFileAccess; },
          DiskRaise::RaiseAgain),
      ui::ProgramEnded);
  EXPECT_EQ(2, calls);
  const auto boxes = p_.EventsOf("msgbox");
  ASSERT_EQ(2, boxes.size());
  EXPECT_EQ("Change drive path", boxes[0].fields["title"].Str());
  EXPECT_EQ("KQEdit", boxes[1].fields["title"].Str());
  EXPECT_EQ("Run-time error '75':\r\rPath/File access error", boxes[1].fields["text"].Str());

  // Without RaiseAgain the same error comes back to the caller, no box shown.
  calls = 0;
  p_.ClearEvents();
  EXPECT_EQ(kErrFileAccess, RetryDiskOperation("Save", [&] {
              ++calls;
              return kErrFileAccess;
            }));
  EXPECT_EQ(1, calls);
  EXPECT_EQ(0, p_.CountOf("msgbox"));
}
