// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/file_names.h"

#include <gtest/gtest.h>

namespace {

struct NameCase {
  const char* what;
  QString text;
  QString expected;
};

}  // namespace

TEST(SaveNames, AnyTextBecomesUpperCaseLettersDigitsAndBlanks) {
  const NameCase cases[] = {
      {"typed lower case", "camp", "CAMP"},
      {"a climb out of the folder", "../../../x", "X"},
      {"backslashes and a drive", "C:\\..\\Saves\\x", "CSAVESX"},
      {"a comma", "Smith, John", "SMITH JOHN"},
      {"blanks only", "   ", "   "},
      {"letters beyond ASCII", QString::fromUtf8("Zo\u00eb \u65e5\u672c 7"), "ZO  7"},
      {"punctuation only", "-.,;\"'", ""},
      {"control characters",
       "A\r\nB\tC\x7f"
       "D",
       "ABCD"},
  };
  for (const NameCase& c : cases) {
    EXPECT_EQ(saveNameFrom(c.text), c.expected) << c.what;
    EXPECT_EQ(isSaveName(c.expected), !c.expected.isEmpty()) << c.what;
  }
}

TEST(SaveNames, AreCutToTheLongestName) {
  EXPECT_EQ(saveNameFrom(QString(200, u'a')), QString(kMaxSaveNameLength, u'A'));
  // Dropped characters do not count against the length.
  EXPECT_EQ(saveNameFrom(QString(300, u'-') + "ok"), "OK");
  EXPECT_TRUE(isSaveName(QString(kMaxSaveNameLength, u'A')));
  EXPECT_FALSE(isSaveName(QString(kMaxSaveNameLength + 1, u'A')));
  EXPECT_FALSE(isSaveName("camp"));
  EXPECT_FALSE(isSaveName("A.VNG"));
}

TEST(HunterNames, KeepAllButWhatListInputCannotReadBack) {
  const NameCase cases[] = {
      {"a comma", "Smith, John", "Smith John"},
      {"double quotes", "\"Doc\" Holliday", "Doc Holliday"},
      {"line ends and tabs", "Ann\r\nLee\tB", "AnnLeeB"},
      {"blanks only are a name", "   ", "   "},
      {"a path is only text", "../../../x", "../../../x"},
      {"letters beyond ASCII", QString::fromUtf8("Zo\u00eb \u00df \u65e5\u672c"),
       QString::fromUtf8("Zo\u00eb \u00df \u65e5\u672c")},
  };
  for (const NameCase& c : cases) EXPECT_EQ(hunterNameFrom(c.text), c.expected) << c.what;
}

TEST(HunterNames, AreCutWithoutSplittingACharacter) {
  EXPECT_EQ(hunterNameFrom(QString(300, u'x')).size(), kMaxHunterNameLength);
  const QString deer = QString::fromUtf8("\U0001F98C");  // two UTF-16 halves
  const QString name = hunterNameFrom(QString(kMaxHunterNameLength - 1, u'x') + deer);
  EXPECT_EQ(name, QString(kMaxHunterNameLength - 1, u'x'));
}
