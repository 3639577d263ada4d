#include "base/parse/DefaultSkipGrammar.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using namespace boost::spirit::classic;

// How many leading characters of `text` the skipper passes over.
std::ptrdiff_t skipped(const char* text)
{
    return parse(text, text + std::strlen(text), *VRK::DefaultSkipGrammar()).length;
}

TEST(DefaultSkipGrammar, SkipsWhiteSpaceAndWholeCommentsOnly)
{
    EXPECT_EQ(skipped(" \t\r\nx"), 4);
    EXPECT_EQ(skipped("// line\n  x"), 10);
    EXPECT_EQ(skipped("// to the end"), 13);
    EXPECT_EQ(skipped("// a\r\n\vx"), 7);
    EXPECT_EQ(skipped("// a\r/"), 5);
    EXPECT_EQ(skipped("/***/ /* * / */x"), 15);
    EXPECT_EQ(skipped("/* a\n b */ /**/x"), 15);
    EXPECT_EQ(skipped(" /* never closed"), 1);
    EXPECT_EQ(skipped(" / 2"), 1);
    EXPECT_EQ(skipped("x "), 0);
    EXPECT_EQ(skipped(""), 0);
}

} // namespace
