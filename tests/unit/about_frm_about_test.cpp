#include "about/frm_about.h"

#include <gtest/gtest.h>

#include <string>

#include "inmemory/desktop.h"

namespace about {
namespace {

TEST(VersionText, ShowsMajorAndMinor) {
  EXPECT_EQ(versionText({.major = 1, .minor = 0, .revision = 0}), "Software Version:  1.0");
  EXPECT_EQ(versionText({.major = 12, .minor = 34, .revision = 0}), "Software Version:  12.34");
}

TEST(VersionText, AppendsANonzeroRevision) {
  EXPECT_EQ(versionText({.major = 1, .minor = 0, .revision = 7}),
            "Software Version:  1.0   Revision 7");
}

// Checks the label, and that the version is that of the build.
TEST(VersionText, MatchesTheBuild) {
  inmemory::Desktop desktop;
  frmAbout box(desktop, programVersion(), [] {});
  EXPECT_EQ(box.window().control("lblVersion").caption(), versionText(programVersion()));
  const auto [major, minor, revision] = programVersion();
  EXPECT_EQ(std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(revision),
            TALLYREX_PROJECT_VERSION);
}

}  // namespace
}  // namespace about
