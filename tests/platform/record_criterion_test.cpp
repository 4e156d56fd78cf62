// SPDX-License-Identifier: GPL-2.0-or-later
// Reading criterion texts: numbers in both number-to-text forms, quoted texts, bad shapes.
#include "platform/records/record_criterion.h"
#include "platform/records/record_error.h"

#include <gtest/gtest.h>

using platform::Criterion;
using platform::CriterionError;
using platform::parseCriterion;

TEST(CriterionParsing, ReadsNumbersWithAndWithoutTheSignBlank) {
  for (const char* text : {R"(Field("ID") =  5)", R"(Field("ID") = 5)", R"(Field("ID") = 5.0)"}) {
    const Criterion criterion = parseCriterion(QString::fromLatin1(text));
    EXPECT_EQ(criterion.field, "ID") << text;
    EXPECT_EQ(criterion.kind, Criterion::Kind::Number) << text;
    EXPECT_EQ(criterion.number, 5.0) << text;
  }
  EXPECT_EQ(parseCriterion(R"(Field("Animalnum") = -12)").number, -12.0);
}

TEST(CriterionParsing, KeepsQuotedTextAsWrittenBetweenTheOuterQuotes) {
  const Criterion criterion = parseCriterion(R"(Field("Conv Name") = "Whitetail Deer  ")");
  EXPECT_EQ(criterion.field, "Conv Name");
  EXPECT_EQ(criterion.kind, Criterion::Kind::Text);
  EXPECT_EQ(criterion.text, "Whitetail Deer  ");
  EXPECT_EQ(parseCriterion(R"(Field("Item") = "12" Gauge")").text, R"(12" Gauge)");
  EXPECT_EQ(parseCriterion(R"(Field("Item") = "")").text, "");
  // A quoted number stays text.
  EXPECT_EQ(parseCriterion(R"(Field("ID") = "7")").kind, Criterion::Kind::Text);
}

TEST(CriterionParsing, AllowsBlanksAndAnyCaseAroundTheParts) {
  const Criterion criterion = parseCriterion(R"(  field ( "Hypername" )="~DPOI14"  )");
  EXPECT_EQ(criterion.field, "Hypername");
  EXPECT_EQ(criterion.text, "~DPOI14");
}

TEST(CriterionParsing, RejectsEveryOtherShapeWithTheTextInTheMessage) {
  for (const char* text : {R"(Field("ID"))", R"(Field("ID") =)", R"(Field(ID) = 3)", R"(Field("ID" = 3)",
                           R"(Fields("ID") = 3)", R"(Field("") = 3)", R"(Field("ID") = abc)",
                           R"(Field("ID") = "abc)", R"(Field("ID") = 3 OR 1=1)", R"(Field("ID") == 3)", ""}) {
    try {
      parseCriterion(QString::fromLatin1(text));
      ADD_FAILURE() << "accepted: " << text;
    } catch (const CriterionError& error) {
      EXPECT_NE(std::string(error.what()).find(text), std::string::npos) << error.what();
    }
  }
}
