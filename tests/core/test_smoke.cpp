#include "data/text_case.h"

#include <gtest/gtest.h>

TEST(Smoke, UpperCasesUmlautsButKeepsSharpS) { EXPECT_EQ(lettriner::toUpper(u"äß"), u"Äß"); }
