#include "about/frm_about.h"

#include <gtest/gtest.h>

namespace about {
namespace {

TEST(VersionText, NamesTheVersion) {
  EXPECT_EQ(versionText({.major = 1, .minor = 0, .revision = 0}), "Software Version:  1.0");
  EXPECT_EQ(versionText({.major = 12, .minor = 34, .revision = 0}), "Software Version:  12.34");
}

TEST(VersionText, NamesTheRevisionThatIsNotZero) {
  EXPECT_EQ(versionText({.major = 1, .minor = 0, .revision = 7}),
            "Software Version:  1.0   Revision 7");
}

}  // namespace
}  // namespace about
